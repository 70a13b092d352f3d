// SPDX-License-Identifier: Apache-2.0
// Small rules about texts, independent of any locale.
#pragma once

#include "catalog/names.h"
#include "storage/utf8.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelx::language {

using catalog::lowerCase;
std::string upperCase(std::string_view text); ///< a to z only
std::string inQuotes(std::string_view text);  ///< in double quotes, shortened where it is long
std::string shortened(std::string_view text); ///< to what a message can show
std::string trimmed(std::string_view text);
/// Blanks outside of quotes become one space each; none at the ends. Comments go away.
std::string simplified(std::string_view source);
using storage::firstInvalidUtf8;

/// The candidate that differs least from the word, in any case; empty where none is near.
std::string nearest(std::string_view word, const std::vector<std::string>& candidates);

} // namespace kelx::language
