// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fixture.h"
#include "language/text.h"

#include <gtest/gtest.h>

#include <string>

namespace kelx::language {

/// That a program gives these tables, as it stands and simplified, and there is nothing to tell.
inline void expectTables(const std::string& program, const std::string& tables) {
    Census census;
    census.options.autoWeight = false;
    for (const std::string& text : {program, simplified(program)}) {
        const BoundProgram bound = census.compile(text);
        EXPECT_EQ(told(census.messages), "") << text;
        EXPECT_EQ(summary(bound), tables) << text;
    }
}

} // namespace kelx::language
