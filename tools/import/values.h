// SPDX-License-Identifier: Apache-2.0
// Values as text, whatever the machine's language.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelx::tools {

std::optional<std::int64_t> parseInteger(std::string_view text);
std::optional<double> parseReal(std::string_view text); ///< finite numbers only
std::optional<bool> parseBoolean(std::string_view text); ///< 0, 1, false, true, no, yes
std::string integerText(std::int64_t value);
std::string realText(double value); ///< the shortest that reads back as the same number

std::size_t characterCount(std::string_view utf8);
std::string upperCase(std::string_view text); ///< ASCII letters only
/// Letters, digits, "_" and "-", not empty: what can be a name in programs and part of file names.
bool isName(std::string_view text);

} // namespace kelx::tools
