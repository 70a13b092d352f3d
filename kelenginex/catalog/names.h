// SPDX-License-Identifier: Apache-2.0
// How names and numbers in dictionaries are compared and read.
#pragma once

#include "storage/number_text.h"

#include <optional>
#include <string>
#include <string_view>

namespace kelx::catalog {

/// Equal but for the case of letters: Latin (ASCII, Latin-1, Extended-A), Greek and Cyrillic. The
/// process's locale has no say.
bool sameName(std::string_view a, std::string_view b);
/// The same letters made small; the length in bytes stays.
std::string lowerCase(std::string_view text);
/// The whole text as a number, blanks around it allowed.
std::optional<double> parseNumber(std::string_view text);
std::optional<long long> parseInteger(std::string_view text);
using storage::numberText;
/// True for a name that a command can use after a ".": no blanks, control characters or any of
/// the characters that separate words there.
bool isUsableName(std::string_view name);

} // namespace kelx::catalog
