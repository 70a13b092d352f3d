// SPDX-License-Identifier: Apache-2.0
// Cases of SWITCH that ask the same thing for one value after the other, as one question.
#pragma once

#include "execution/choices.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace kelx::execution {

/// Several cases that are settled together.
class CaseLookup {
public:
    virtual ~CaseLookup() = default;
    /// Lowers the choice of each record to the first of the cases that holds for it.
    virtual void choose(Frames& frames, std::vector<Choice>& chosen) = 0;
};

/// A case that is asked by itself.
struct SingleCase {
    const language::Expression* test;
    Choice number;
};

/// Sorts the cases of one SWITCH: comparisons of the same variable or compound code with constants
/// come together.
class CaseSorter {
public:
    /// The SWITCH is of the entity; rest is the choice of records that no case takes.
    CaseSorter(const Entity& entity, Choice rest) : entity_(entity), rest_(rest) {}

    /// Cases come in their order.
    void add(const language::Expression& test, Choice number);
    std::vector<std::unique_ptr<CaseLookup>> lookups(const NodeOf& nodeOf) const;
    /// What is left, in order.
    std::vector<SingleCase> singles() const;

private:
    struct CodedGroup {
        const catalog::Variable* variable = nullptr;
        std::vector<CodeChoices::Rule> rules;
        std::vector<SingleCase> cases;
    };
    /// Of values without codes: reals and compound codes.
    struct ValueGroup {
        const language::Expression* operand = nullptr;
        std::vector<language::Interval> intervals;
        std::vector<Choice> choices; ///< by interval
        std::vector<SingleCase> cases;
    };

    bool addCoded(const language::Expression& test, Choice number);
    bool addValues(const language::Expression& test, Choice number);

    const Entity& entity_;
    Choice rest_;
    std::vector<CodedGroup> coded_;
    std::vector<ValueGroup> values_;
    std::map<const catalog::Variable*, std::size_t> codedPlaces_;
    plan::ExpressionMap<std::size_t> valuePlaces_;
    std::vector<SingleCase> others_;
};

} // namespace kelx::execution
