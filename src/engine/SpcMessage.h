// SPDX-License-Identifier: GPL-3.0-or-later
// A message of a compilation or a run, and the line of text that shows it.
#pragma once

#include <QString>

#include <cstdint>
#include <string>

struct SpcMessage {
    std::int32_t code = 0;   ///< value of eSpcErrors or eSpcWarnings
    std::int64_t line = 0;   ///< as the engine counts
    std::int64_t column = 0; ///< as the engine counts
    std::string text;        ///< in the local 8-bit encoding
};

enum class SpcMessageKind { Error, Warning };

/// "line: code name text". The first line of a block of text is added to the message's line.
QString formatSpcMessage(const SpcMessage& message, SpcMessageKind kind,
                         std::int64_t firstLineOfBlock = 0);
