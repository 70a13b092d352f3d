// SPDX-License-Identifier: Apache-2.0
#include "execution/case_lookups.h"

#include "execution/constant_bounds.h"
#include "execution/or_parts.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace kelx::execution {
namespace {

using language::Expression;
using language::Operation;

/// Two cases are worth a table; one is as well asked by itself, and perhaps never.
constexpr std::size_t fewest = 2;

class CodedLookup : public CaseLookup {
public:
    CodedLookup(const catalog::Variable& variable, const std::vector<CodeChoices::Rule>& rules,
                Choice rest, const Entity& at)
        : upper_(*variable.entity), at_(at), rest_(rest), codes_(variable, rules, rest) {}

    void choose(Frames& frames, std::vector<Choice>& chosen) override {
        codes_.choose(frames.frame(upper_), own_);
        if (&upper_ == &at_) {
            lower(own_.data(), chosen);
            return;
        }
        const auto& ends = frames.runEnds(upper_, at_);
        std::size_t i = 0;
        for (std::size_t run = 0; run < own_.size(); ++run) {
            if (own_[run] == rest_)
                i = ends[run];
            for (; i < ends[run]; ++i)
                chosen[i] = std::min(chosen[i], own_[run]);
        }
    }

private:
    static void lower(const Choice* own, std::vector<Choice>& chosen) {
        for (std::size_t i = 0; i < chosen.size(); ++i)
            chosen[i] = std::min(chosen[i], own[i]);
    }

    const Entity& upper_;
    const Entity& at_;
    Choice rest_;
    CodeChoices codes_;
    std::vector<Choice> own_;
};

class ValueLookup : public CaseLookup {
public:
    ValueLookup(Node& operand, const std::vector<language::Interval>& intervals,
                std::vector<Choice> choices)
        : operand_(operand), choices_(std::move(choices)) {
        if (operand.type() == ValueType::String)
            texts_ = IntervalTable<std::string>(textBounds(intervals));
        else
            reals_ = IntervalTable<double>(realBounds(intervals));
    }

    void choose(Frames& frames, std::vector<Choice>& chosen) override {
        const Vector& values = operand_.value(frames);
        if (operand_.type() == ValueType::String)
            choose(values, values.texts.data(), texts_, chosen);
        else
            choose(values, values.reals.data(), reals_, chosen);
    }

private:
    template <class Value, class Table>
    void choose(const Vector& operand, const Value* values, const Table& table,
                std::vector<Choice>& chosen) const {
        for (std::size_t i = 0; i < chosen.size(); ++i) {
            const bool hasCode = (operand.stateAt(i) & state::noValue) == 0;
            const std::uint32_t found = hasCode ? table.find(values[i]) : Table::none;
            if (found != Table::none)
                chosen[i] = std::min(chosen[i], choices_[found]);
        }
    }

    Node& operand_;
    IntervalTable<double> reals_;
    IntervalTable<std::string> texts_;
    std::vector<Choice> choices_; ///< by interval
};

/// Intervals have closed ends, so what lies beyond an open one is the next real number.
std::optional<language::Interval> intervalOf(Operation operation, double value) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    switch (operation) {
    case Operation::Less:
        return language::Interval{std::nullopt, std::nextafter(value, -infinity)};
    case Operation::LessEqual:
        return language::Interval{std::nullopt, value};
    case Operation::Greater:
        return language::Interval{std::nextafter(value, infinity), std::nullopt};
    case Operation::GreaterEqual:
        return language::Interval{value, std::nullopt};
    default:
        return std::nullopt;
    }
}

/// questionOf(), and what compares a real variable with a number by its size.
Question valueQuestionOf(const Expression& test) {
    Question question = questionOf(test);
    if (question.operand != nullptr || test.operation < Operation::Less ||
        test.operation > Operation::GreaterEqual)
        return question;
    for (std::size_t i = 0; i < 2; ++i) {
        const Expression& own = *test.arguments[i];
        const Expression& other = *test.arguments[1 - i];
        if (own.operation != Operation::VariableValue || own.type != ValueType::Real ||
            other.operation != Operation::Constant)
            continue;
        const double value = asReal(other.constant);
        const auto interval = intervalOf(i == 0 ? test.operation : mirrored(test.operation), value);
        if (interval && std::isfinite(value))
            return {&own, {*interval}};
    }
    return {};
}

} // namespace

void CaseSorter::add(const Expression& test, Choice number) {
    if (!addCoded(test, number) && !addValues(test, number))
        others_.push_back({&test, number});
}

bool CaseSorter::addCoded(const Expression& test, Choice number) {
    std::optional<CodeTest> codes;
    if (test.operation == Operation::Or) {
        const OrParts parts = orPartsOf(test);
        if (parts.parts.size() == 1)
            codes = codeTestOf(*parts.parts.front());
    } else {
        codes = codeTestOf(test);
    }
    if (!codes)
        return false;
    const Entity& entity = *codes->variable->entity;
    if (&entity != &entity_ && !entity.isAncestorOf(entity_))
        return false;
    const auto [place, isNew] = codedPlaces_.try_emplace(codes->variable, coded_.size());
    if (isNew)
        coded_.push_back({codes->variable, {}, {}});
    coded_[place->second].rules.push_back({std::move(codes->intervals), number});
    coded_[place->second].cases.push_back({&test, number});
    return true;
}

bool CaseSorter::addValues(const Expression& test, Choice number) {
    Question question = valueQuestionOf(test);
    // Whole numbers are compared as such.
    if (question.operand == nullptr ||
        (question.operand->type != ValueType::Real && question.operand->type != ValueType::String))
        return false;
    const auto [place, isNew] = valuePlaces_.try_emplace(question.operand, values_.size());
    if (isNew)
        values_.push_back({question.operand, {}, {}, {}});
    ValueGroup& group = values_[place->second];
    for (language::Interval& interval : question.intervals) {
        group.intervals.push_back(std::move(interval));
        group.choices.push_back(number);
    }
    group.cases.push_back({&test, number});
    return true;
}

std::vector<std::unique_ptr<CaseLookup>> CaseSorter::lookups(const NodeOf& nodeOf) const {
    std::vector<std::unique_ptr<CaseLookup>> result;
    for (const CodedGroup& group : coded_) {
        if (group.cases.size() >= fewest)
            result.push_back(
                std::make_unique<CodedLookup>(*group.variable, group.rules, rest_, entity_));
    }
    for (const ValueGroup& group : values_) {
        if (group.cases.size() >= fewest)
            result.push_back(std::make_unique<ValueLookup>(nodeOf(*group.operand), group.intervals,
                                                           group.choices));
    }
    return result;
}

std::vector<SingleCase> CaseSorter::singles() const {
    std::vector<SingleCase> result = others_;
    const auto take = [&](const auto& groups) {
        for (const auto& group : groups) {
            if (group.cases.size() < fewest)
                result.insert(result.end(), group.cases.begin(), group.cases.end());
        }
    };
    take(coded_);
    take(values_);
    std::sort(result.begin(), result.end(),
              [](const SingleCase& a, const SingleCase& b) { return a.number < b.number; });
    return result;
}

} // namespace kelx::execution
