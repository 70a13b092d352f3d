// SPDX-License-Identifier: Apache-2.0
#include "output/names.h"

#include <array>
#include <cstddef>

namespace kelx::output {

using language::TableKind;

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

int methodOf(TableKind kind) {
    switch (kind) {
    case TableKind::Frequency:
        return 1;
    case TableKind::Average:
        return 2;
    case TableKind::Maximum:
        return 3;
    case TableKind::Median:
        return 4;
    case TableKind::Minimum:
        return 5;
    case TableKind::Sum:
        return 6;
    case TableKind::Stats:
        return 7;
    case TableKind::Gini:
        return 8;
    case TableKind::Quantile:
        return 9;
    default:
        return 0;
    }
}

int typeOf(TableKind kind) {
    switch (kind) {
    case TableKind::AreaList:
    case TableKind::View:
        return 1;
    case TableKind::Tablist:
        return 2;
    case TableKind::Tabop:
        return 3;
    default:
        return 0;
    }
}

const char* kindName(TableKind kind) {
    switch (kind) {
    case TableKind::Count:
        return "COUNT";
    case TableKind::AreaList:
        return "AREALIST";
    case TableKind::View:
        return "VIEW";
    case TableKind::Tabop:
        return "TABOP";
    case TableKind::Tablist:
        return "TABLIST";
    default:
        return methodName(methodOf(kind));
    }
}

} // namespace kelx::output
