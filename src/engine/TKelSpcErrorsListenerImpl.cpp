// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TKelSpcErrorsListenerImpl.h"

void TKelSpcErrorsListenerImpl::error(eSpcErrors code, const std::string& text, std::int64_t line,
                                      std::int64_t column) {
    errors_.push_back({static_cast<std::int32_t>(code), line, column, text});
}

void TKelSpcErrorsListenerImpl::warning(eSpcWarnings code, const std::string& text,
                                        std::int64_t line, std::int64_t column) {
    warnings_.push_back({static_cast<std::int32_t>(code), line, column, text});
}

bool TKelSpcErrorsListenerImpl::hasErrors() {
    return !errors_.empty();
}

bool TKelSpcErrorsListenerImpl::hasWarnings() {
    return !warnings_.empty();
}

void TKelSpcErrorsListenerImpl::clear() {
    errors_.clear();
    warnings_.clear();
}

const std::vector<SpcMessage>& TKelSpcErrorsListenerImpl::errors() const {
    return errors_;
}

const std::vector<SpcMessage>& TKelSpcErrorsListenerImpl::warnings() const {
    return warnings_;
}

QStringList TKelSpcErrorsListenerImpl::lines(std::int64_t firstLineOfBlock) const {
    QStringList result;
    for (const SpcMessage& message : errors_)
        result += formatSpcMessage(message, SpcMessageKind::Error, firstLineOfBlock);
    for (const SpcMessage& message : warnings_)
        result += formatSpcMessage(message, SpcMessageKind::Warning, firstLineOfBlock);
    return result;
}
