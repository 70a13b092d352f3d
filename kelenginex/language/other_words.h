// SPDX-License-Identifier: Apache-2.0
// Words that people bring along from other languages.
#pragma once

#include <string>
#include <string_view>

namespace kelx::language {

/// What is written here for a word of other languages, in any case; empty where it is none.
std::string ourWordFor(std::string_view word);

} // namespace kelx::language
