// SPDX-License-Identifier: Apache-2.0
#include "plan/same_expression.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <variant>

namespace kelx::plan {
namespace {

bool sameIntervals(const std::vector<language::Interval>& a,
                   const std::vector<language::Interval>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const language::Interval& x, const language::Interval& y) {
                          return x.low == y.low && x.high == y.high;
                      });
}

/// Puts hashes of parts together.
class Hash {
public:
    template <class T>
    void add(const T& value) {
        addHash(std::hash<T>()(value));
    }
    void add(const language::Interval& interval) {
        for (const auto& end : {interval.low, interval.high})
            addHash(end ? std::hash<language::Constant>()(*end) : 1);
    }
    void addHash(std::size_t hash) {
        value_ = (value_ ^ hash) * 0xff51afd7ed558ccdULL;
        value_ ^= value_ >> 32;
    }
    std::size_t value() const { return static_cast<std::size_t>(value_); }

private:
    std::uint64_t value_ = 0x9e3779b97f4a7c15ULL;
};

constexpr int levelsHashed = 3;
constexpr std::size_t partsHashed = 8; ///< of each list, from its begin and from its end

template <class List, class Use>
void forFew(const List& list, Use use) {
    const std::size_t first = std::min(list.size(), partsHashed);
    for (std::size_t i = 0; i < first; ++i)
        use(list[i]);
    for (std::size_t i = std::max(first, list.size() - first); i < list.size(); ++i)
        use(list[i]);
}

std::size_t hashOf(const language::Expression& expression, int levels) {
    Hash hash;
    hash.add(static_cast<int>(expression.operation));
    hash.add(expression.constant);
    hash.add(expression.variable);
    hash.add(expression.codeEntity);
    hash.add(expression.function);
    hash.add(expression.table);
    hash.add(expression.intervals.size());
    forFew(expression.intervals, [&](const auto& interval) { hash.add(interval); });
    hash.add(expression.arguments.size());
    if (levels > 1)
        forFew(expression.arguments,
               [&](const auto& argument) { hash.addHash(hashOf(*argument, levels - 1)); });
    return hash.value();
}

} // namespace

std::size_t ExpressionHash::operator()(const language::Expression* expression) const {
    return expression == nullptr ? 0 : hashOf(*expression, levelsHashed);
}

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
