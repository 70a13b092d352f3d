// SPDX-License-Identifier: Apache-2.0
// The words that cannot stand alone as names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelx::language {

const std::vector<std::string>& reservedWords(); ///< in lower case, ascending
bool isReserved(std::string_view word);          ///< in any case

} // namespace kelx::language
