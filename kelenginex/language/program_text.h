// SPDX-License-Identifier: Apache-2.0
// What must hold before a text is read as a program.
#pragma once

#include "language/messages.h"

#include <cstddef>
#include <string_view>

namespace kelx::language {

constexpr std::size_t longestProgram = 1u << 20; ///< bytes

/// False for a text that is too long or not UTF-8, which is reported. `source` is its number in
/// the messages.
bool isReadable(std::string_view program, Messages& messages, std::size_t source = 0);

} // namespace kelx::language
