// SPDX-License-Identifier: Apache-2.0
// Values as text, whatever the machine's language.
#pragma once

#include "storage/number_text.h"
#include "storage/utf8.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelx::tools {

std::optional<std::int64_t> parseInteger(std::string_view text);
std::optional<double> parseReal(std::string_view text); ///< finite numbers only
bool isBeyondReals(std::string_view text);              ///< a number, but one that no real can hold
std::optional<bool> parseBoolean(std::string_view text); ///< 0, 1, false, true, no, yes
std::string integerText(std::int64_t value);
using storage::characterCount;
using storage::numberText;

std::string upperCase(std::string_view text); ///< ASCII letters only
/// Letters, digits, "_" and "-", not empty: what can be a name in programs and part of file names.
bool isName(std::string_view text);

} // namespace kelx::tools
