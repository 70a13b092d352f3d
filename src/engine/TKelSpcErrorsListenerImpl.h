// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the messages of one compilation or run.
#pragma once

#include "TKelSpcErrorsListener.h"
#include "engine/SpcMessage.h"

#include <QStringList>

#include <vector>

/// Written on the thread that runs the engine and read there after the run: no lock.
class TKelSpcErrorsListenerImpl : public TKelSpcErrorsListener {
public:
    void error(eSpcErrors code, const std::string& text, std::int64_t line,
               std::int64_t column) override;
    void warning(eSpcWarnings code, const std::string& text, std::int64_t line,
                 std::int64_t column) override;
    bool hasErrors() override;
    bool hasWarnings() override;
    void clear() override;

    const std::vector<SpcMessage>& errors() const;
    const std::vector<SpcMessage>& warnings() const;
    /// Every message as a line of text, errors first.
    QStringList lines(std::int64_t firstLineOfBlock = 0) const;

private:
    std::vector<SpcMessage> errors_;
    std::vector<SpcMessage> warnings_;
};
