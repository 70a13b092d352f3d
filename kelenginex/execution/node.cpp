// SPDX-License-Identifier: Apache-2.0
#include "execution/node.h"

#include "execution/or_parts.h"

#include <stdexcept>

namespace kelx::execution {

using language::Expression;
using language::Operation;

const Vector& Node::value(Frames& frames) {
    if (serial_ != frames.serial()) {
        serial_ = frames.serial();
        work(frames, entity_ == nullptr ? 1 : frames.frame(*entity_).count);
    }
    return result_;
}

Node& NodePool::keep(std::unique_ptr<Node> node) {
    nodes_.push_back(std::move(node));
    return *nodes_.back();
}

Node& NodePool::own(const Expression& expression) {
    const auto known = known_.find(&expression);
    if (known != known_.end())
        return *known->second;
    Node& node = keep(make(expression));
    known_.emplace(&expression, &node);
    return node;
}

Node& NodePool::at(const Expression& expression, const Entity& at) {
    Node& node = own(expression);
    if (node.entity() == nullptr || node.entity() == &at)
        return node;
    const auto known = spread_.find({&node, &at});
    if (known != spread_.end())
        return *known->second;
    if (!node.entity()->isAncestorOf(at))
        throw std::runtime_error(expression.text + " has no value for each " + at.name + ".");
    Node& result = keep(makeSpread(node, at));
    spread_.emplace(std::pair(&node, &at), &result);
    return result;
}

Node& NodePool::argument(const Expression& argument, const Expression& of) {
    return of.entity == nullptr ? own(argument) : at(argument, *of.entity);
}

std::vector<Node*> NodePool::argumentsOf(const Expression& expression) {
    std::vector<Node*> result;
    for (const auto& part : expression.arguments)
        result.push_back(&argument(*part, expression));
    return result;
}

/// Null where the OR asks no variable more than once.
std::unique_ptr<Node> NodePool::makeMergedOr(const Expression& expression) {
    OrParts parts = orPartsOf(expression);
    if (parts.made.empty())
        return nullptr;
    for (auto& made : parts.made)
        made_.push_back(std::move(made));
    std::vector<Node*> operands;
    for (const Expression* part : parts.parts)
        operands.push_back(&argument(*part, expression));
    return makeLogic(Operation::Or, std::move(operands), expression.entity);
}

std::unique_ptr<Node> NodePool::make(const Expression& expression) {
    if (auto test = makeCodeTest(expression))
        return test;
    if (expression.operation == Operation::Switch)
        return makeSwitch(expression, [&](const Expression& part) -> Node& {
            return argument(part, expression);
        });
    if (expression.operation == Operation::Or) {
        if (auto merged = makeMergedOr(expression))
            return merged;
    }
    std::vector<Node*> arguments = argumentsOf(expression);
    switch (expression.operation) {
    case Operation::Constant:
        return makeConstant(expression.constant);
    case Operation::VariableValue:
        return makeVariable(*expression.variable);
    case Operation::CompoundCode:
        return makeCompoundCode(*expression.codeEntity);
    case Operation::And:
    case Operation::Or:
    case Operation::Not:
        return makeLogic(expression.operation, std::move(arguments), expression.entity);
    case Operation::In:
        return makeIn(expression, *arguments.at(0));
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
    case Operation::Negate:
        return makeArithmetic(expression.operation, std::move(arguments), expression.entity);
    case Operation::Function:
        return makeFunction(expression.function, std::move(arguments), expression.entity);
    case Operation::Recode:
        return makeRecode(expression, std::move(arguments));
    case Operation::Number:
    case Operation::SampleRandom:
    case Operation::SampleSystematic:
    case Operation::RecordNumber:
        return makeRecordNode(expression);
    default:
        return makeComparison(expression, *arguments.at(0), *arguments.at(1));
    }
}

const double* NumberView::reals(const Vector& vector) {
    if (vector.type == ValueType::Real)
        return vector.reals.data();
    if (vector.type == ValueType::Integer) {
        reals_.assign(vector.integers.begin(), vector.integers.end());
    } else {
        reals_.resize(vector.truths.size());
        for (std::size_t i = 0; i < reals_.size(); ++i)
            reals_[i] = vector.truths[i] & 1;
    }
    return reals_.data();
}

const std::int64_t* NumberView::integers(const Vector& vector) {
    if (vector.type == ValueType::Integer)
        return vector.integers.data();
    integers_.resize(vector.truths.size());
    for (std::size_t i = 0; i < integers_.size(); ++i)
        integers_[i] = vector.truths[i] & 1;
    return integers_.data();
}

void combineStates(const Vector& a, const Vector& b, std::size_t count, Vector& result) {
    result.allValid = a.allValid && b.allValid;
    if (result.allValid)
        return;
    result.states.resize(count);
    for (std::size_t i = 0; i < count; ++i)
        result.states[i] = state::combined(a.stateAt(i), b.stateAt(i));
}

bool isNumber(ValueType type) {
    return type == ValueType::Integer || type == ValueType::Real || type == ValueType::Boolean;
}

} // namespace kelx::execution
