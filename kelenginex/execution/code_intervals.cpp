// SPDX-License-Identifier: Apache-2.0
#include "execution/code_intervals.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace kelx::execution {
namespace {

using language::Constant;
using language::Expression;
using language::Operation;
using storage::Column;
using storage::ValueType;

/// First code whose value is not below (or, past, is above) a constant; codeCount where none is.
class CodeBound {
public:
    explicit CodeBound(const Column& column) : column_(column) {}

    std::uint64_t end() const {
        const auto& info = column_.info();
        return info.naCode ? *info.naCode : info.maxCode + 1;
    }
    bool takes(const Constant& constant) const {
        const bool isText = std::holds_alternative<std::string>(constant);
        const auto& info = column_.info();
        return info.physical != storage::Physical::Real64 &&
               isText == (info.type == ValueType::String);
    }
    std::uint64_t notBelow(const Constant& constant) const { return find(constant, false); }
    std::uint64_t above(const Constant& constant) const { return find(constant, true); }

private:
    std::uint64_t find(const Constant& constant, bool past) const {
        if (const auto* text = std::get_if<std::string>(&constant))
            return findText(*text, past);
        if (const auto* real = std::get_if<double>(&constant))
            return findReal(*real, past);
        const auto* flag = std::get_if<bool>(&constant);
        const std::int64_t value =
            flag != nullptr ? static_cast<std::int64_t>(*flag) : std::get<std::int64_t>(constant);
        return findInteger(value, past);
    }

    std::uint64_t findInteger(std::int64_t value, bool past) const {
        const std::int64_t base = column_.info().base;
        if (value < base)
            return 0;
        const std::uint64_t code =
            static_cast<std::uint64_t>(value) - static_cast<std::uint64_t>(base);
        return code >= end() ? end() : code + (past ? 1 : 0);
    }

    std::uint64_t findReal(double value, bool past) const {
        if (std::isnan(value) || value >= 9223372036854775808.0)
            return end();
        if (value < -9223372036854775808.0)
            return 0;
        const double whole = std::ceil(value);
        if (whole >= 9223372036854775808.0)
            return end();
        return findInteger(static_cast<std::int64_t>(whole), past && whole == value);
    }

    std::uint64_t findText(const std::string& value, bool past) const {
        std::uint64_t low = 0;
        std::uint64_t high = column_.textCount();
        while (low < high) {
            const std::uint64_t middle = low + (high - low) / 2;
            const int order = column_.text(middle).compare(value);
            if (order < 0 || (past && order == 0))
                low = middle + 1;
            else
                high = middle;
        }
        return std::min(low, end());
    }

    const Column& column_;
};

void add(CodeIntervals& intervals, std::uint64_t begin, std::uint64_t end) {
    if (begin < end)
        intervals.push_back({begin, end - 1});
}

} // namespace

std::optional<CodeIntervals> intervalsFor(const Column& column, Operation operation,
                                          const Constant& constant) {
    const CodeBound bound(column);
    if (!bound.takes(constant))
        return std::nullopt;
    const std::uint64_t from = bound.notBelow(constant);
    const std::uint64_t past = bound.above(constant);
    CodeIntervals result;
    switch (operation) {
    case Operation::Equal:
        add(result, from, past);
        break;
    case Operation::NotEqual:
        add(result, 0, from);
        add(result, past, bound.end());
        break;
    case Operation::Less:
        add(result, 0, from);
        break;
    case Operation::LessEqual:
        add(result, 0, past);
        break;
    case Operation::Greater:
        add(result, past, bound.end());
        break;
    case Operation::GreaterEqual:
        add(result, from, bound.end());
        break;
    default:
        return std::nullopt;
    }
    return result;
}

std::optional<CodeIntervals> intervalsFor(const Column& column,
                                          const std::vector<language::Interval>& intervals) {
    const CodeBound bound(column);
    CodeIntervals result;
    for (const language::Interval& interval : intervals) {
        if ((interval.low && !bound.takes(*interval.low)) ||
            (interval.high && !bound.takes(*interval.high)))
            return std::nullopt;
        add(result, interval.low ? bound.notBelow(*interval.low) : 0,
            interval.high ? bound.above(*interval.high) : bound.end());
    }
    if (column.info().physical == storage::Physical::Real64)
        return std::nullopt;
    return result;
}

CodeIntervals joined(CodeIntervals intervals) {
    std::sort(intervals.begin(), intervals.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    CodeIntervals result;
    for (const CodeInterval& own : intervals) {
        if (!result.empty() && own.first <= result.back().last + 1)
            result.back().last = std::max(result.back().last, own.last);
        else
            result.push_back(own);
    }
    return result;
}

Operation mirrored(Operation operation) {
    switch (operation) {
    case Operation::Less:
        return Operation::Greater;
    case Operation::LessEqual:
        return Operation::GreaterEqual;
    case Operation::Greater:
        return Operation::Less;
    case Operation::GreaterEqual:
        return Operation::LessEqual;
    default:
        return operation;
    }
}

std::optional<CodeTest> codeTestOf(const Expression& expression) {
    const auto& arguments = expression.arguments;
    const auto test = [](const Expression& operand, auto find) -> std::optional<CodeTest> {
        if (operand.operation != Operation::VariableValue)
            return std::nullopt;
        auto intervals = find(*operand.variable->column());
        if (!intervals)
            return std::nullopt;
        return CodeTest{operand.variable, std::move(*intervals)};
    };
    if (expression.operation == Operation::In)
        return test(*arguments.at(0), [&](const Column& column) {
            return intervalsFor(column, expression.intervals);
        });
    if (expression.operation < Operation::Equal || expression.operation > Operation::GreaterEqual)
        return std::nullopt;
    for (std::size_t i = 0; i < 2; ++i) {
        const Expression& other = *arguments.at(1 - i);
        if (arguments[i]->operation == Operation::VariableValue &&
            other.operation == Operation::Constant)
            return test(*arguments[i], [&](const Column& column) {
                return intervalsFor(column,
                                    i == 0 ? expression.operation : mirrored(expression.operation),
                                    other.constant);
            });
    }
    return std::nullopt;
}

} // namespace kelx::execution
