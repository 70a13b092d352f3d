// SPDX-License-Identifier: Apache-2.0
#include "plan/same_expression.h"

#include <algorithm>

namespace kelx::plan {
namespace {

bool sameIntervals(const std::vector<language::Interval>& a,
                   const std::vector<language::Interval>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const language::Interval& x, const language::Interval& y) {
                          return x.low == y.low && x.high == y.high;
                      });
}

} // namespace

bool sameExpression(const language::Expression* a, const language::Expression* b) {
    if (a == b)
        return true;
    if (a == nullptr || b == nullptr)
        return false;
    return a->operation == b->operation && a->type == b->type && a->entity == b->entity &&
           a->constant == b->constant && a->variable == b->variable &&
           a->codeEntity == b->codeEntity && a->function == b->function && a->table == b->table &&
           sameIntervals(a->intervals, b->intervals) &&
           std::equal(
               a->arguments.begin(), a->arguments.end(), b->arguments.begin(), b->arguments.end(),
               [](const auto& x, const auto& y) { return sameExpression(x.get(), y.get()); });
}

} // namespace kelx::plan
