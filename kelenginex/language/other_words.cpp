// SPDX-License-Identifier: Apache-2.0
#include "language/other_words.h"

#include "language/text.h"

#include <array>
#include <utility>

namespace kelx::language {

namespace {

constexpr std::array<std::pair<std::string_view, const char*>, 12> words = {{
    {"avg", "AVERAGE"},
    {"between", "IN (low : high)"},
    {"compute", "DEFINE"},
    {"having", "FILTER"},
    {"if", "FILTER, or SWITCH CASE in a DEFINE"},
    {"mean", "AVERAGE"},
    {"means", "AVERAGE"},
    {"order", "SORT"},
    {"select", "TABLE, or VIEW for records"},
    {"tabulate", "FREQ"},
    {"where", "FILTER"},
    {"xor", "<>"},
}};

} // namespace

std::string ourWordFor(std::string_view word) {
    constexpr std::size_t longest = 10;
    if (word.size() > longest)
        return {};
    const std::string wanted = lowerCase(word);
    for (const auto& [theirs, ours] : words) {
        if (theirs == wanted)
            return ours;
    }
    return {};
}

} // namespace kelx::language
