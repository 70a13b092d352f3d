// SPDX-License-Identifier: Apache-2.0
// Receives the messages of a compilation or a run.
#pragma once

#include "KelTypes.h"

#include <cstdint>
#include <string>

/// Called on the thread that runs the engine. Lines and columns are 1-based and point to the
/// token at fault. Texts are in the local 8-bit encoding.
class KEL_EXPORT TKelSpcErrorsListener {
public:
    virtual ~TKelSpcErrorsListener();
    virtual void error(eSpcErrors code, const std::string& text, std::int64_t line,
                       std::int64_t column) = 0;
    virtual void warning(eSpcWarnings code, const std::string& text, std::int64_t line,
                         std::int64_t column) = 0;
    virtual bool hasErrors() = 0;
    virtual bool hasWarnings() = 0;
    virtual void clear() = 0;
};
