// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/SpcMessage.h"

#include "kel.h"

namespace {

QString codeName(const SpcMessage& message, SpcMessageKind kind) {
    return QString::fromStdString(
        kind == SpcMessageKind::Error
            ? kel::errorCodeName(static_cast<eSpcErrors>(message.code))
            : kel::warningCodeName(static_cast<eSpcWarnings>(message.code)));
}

} // namespace

QString formatSpcMessage(const SpcMessage& message, SpcMessageKind kind,
                         std::int64_t firstLineOfBlock) {
    return QString::number(firstLineOfBlock + message.line) + QLatin1String(": ") +
           codeName(message, kind) + QLatin1Char(' ') +
           QString::fromLocal8Bit(QByteArray::fromStdString(message.text));
}
