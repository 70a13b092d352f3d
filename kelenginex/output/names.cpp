// SPDX-License-Identifier: Apache-2.0
#include "output/names.h"

#include <array>
#include <cstddef>

namespace kelx::output {
namespace {

constexpr std::array types = {"TABLE", "AREALIST", "TABLIST", "TABOP"};
constexpr std::array methods = {"NONE",    "FREQUENCY", "AVERAGE", "MAXIMUM", "MEDIAN",
                                "MINIMUM", "SUM",       "STATS",   "GINI",    "QUANTILE"};

template <class Names>
const char* nameAt(const Names& names, int index) {
    const bool known = index >= 0 && static_cast<std::size_t>(index) < names.size();
    return known ? names[static_cast<std::size_t>(index)] : "";
}

} // namespace

const char* typeName(int type) {
    return nameAt(types, type);
}

const char* methodName(int method) {
    return nameAt(methods, method);
}

} // namespace kelx::output
