// SPDX-License-Identifier: Apache-2.0
#include "execution/or_parts.h"

#include "plan/same_expression.h"

#include <utility>

namespace kelx::execution {
namespace {

using language::Expression;
using language::Operation;

bool isLeaf(const Expression& expression) {
    return expression.operation == Operation::VariableValue ||
           expression.operation == Operation::CompoundCode;
}

std::unique_ptr<Expression> inOf(const Expression& operand,
                                 std::vector<language::Interval> intervals) {
    auto leaf = std::make_unique<Expression>();
    leaf->operation = operand.operation;
    leaf->type = operand.type;
    leaf->entity = operand.entity;
    leaf->variable = operand.variable;
    leaf->codeEntity = operand.codeEntity;
    leaf->position = operand.position;
    leaf->text = operand.text;
    auto result = std::make_unique<Expression>();
    result->operation = Operation::In;
    result->type = language::ValueType::Boolean;
    result->entity = operand.entity;
    result->intervals = std::move(intervals);
    result->position = operand.position;
    result->text = operand.text + " IN (...)";
    result->arguments.push_back(std::move(leaf));
    return result;
}

class Collector {
public:
    void add(const Expression& expression) {
        if (expression.operation == Operation::Or) {
            for (const auto& argument : expression.arguments)
                add(*argument);
            return;
        }
        Question question = questionOf(expression);
        if (question.operand == nullptr) {
            result_.parts.push_back(&expression);
            return;
        }
        const auto [place, isNew] = places_.try_emplace(question.operand, groups_.size());
        if (isNew)
            groups_.push_back({&expression, question.operand, 0, {}});
        Group& group = groups_[place->second];
        ++group.members;
        group.intervals.insert(group.intervals.end(), question.intervals.begin(),
                               question.intervals.end());
    }

    OrParts take() {
        for (Group& group : groups_) {
            if (group.members > 1) {
                result_.made.push_back(inOf(*group.operand, std::move(group.intervals)));
                result_.parts.push_back(result_.made.back().get());
            } else {
                result_.parts.push_back(group.first);
            }
        }
        return std::move(result_);
    }

private:
    struct Group {
        const Expression* first;
        const Expression* operand;
        std::size_t members;
        std::vector<language::Interval> intervals;
    };
    OrParts result_;
    std::vector<Group> groups_;
    plan::ExpressionMap<std::size_t> places_; ///< of groups, by operand
};

} // namespace

Question questionOf(const Expression& condition) {
    if (condition.operation == Operation::In && isLeaf(*condition.arguments[0]))
        return {condition.arguments[0].get(), condition.intervals};
    if (condition.operation != Operation::Equal)
        return {};
    for (std::size_t i = 0; i < 2; ++i) {
        const Expression& other = *condition.arguments[1 - i];
        if (isLeaf(*condition.arguments[i]) && other.operation == Operation::Constant)
            return {condition.arguments[i].get(), {{other.constant, other.constant}}};
    }
    return {};
}

OrParts orPartsOf(const Expression& expression) {
    Collector collector;
    collector.add(expression);
    return collector.take();
}

} // namespace kelx::execution
