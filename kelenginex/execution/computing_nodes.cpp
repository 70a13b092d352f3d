// SPDX-License-Identifier: Apache-2.0
// AND, OR, NOT and arithmetic.
#include "execution/node.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::execution {
namespace {

using language::Operation;

/// AND, OR and NOT; what is NA or MV counts as false.
class LogicNode : public Node {
public:
    LogicNode(Operation operation, std::vector<Node*> operands, const Entity* entity)
        : Node(ValueType::Boolean, entity), operation_(operation), operands_(std::move(operands)) {
        for (const Node* operand : operands_) {
            if (operand->type() != ValueType::Boolean)
                throw std::runtime_error("AND, OR and NOT take truth values only.");
        }
        result_.constant = entity == nullptr;
    }

    bool mayBeTrue(const plan::RecordRange& records) const override {
        const auto may = [&](const Node* operand) { return operand->mayBeTrue(records); };
        if (operation_ == Operation::And)
            return std::all_of(operands_.begin(), operands_.end(), may);
        return operation_ == Operation::Not || std::any_of(operands_.begin(), operands_.end(), may);
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        result_.truths.assign(count, operation_ == Operation::Or ? 0 : truth);
        for (Node* operand : operands_) {
            const Vector& values = operand->value(frames);
            const std::size_t step = values.constant ? 0 : 1;
            const std::uint8_t* plain = values.truths.data();
            if (values.allValid) {
                join(count, [&](std::size_t i) { return plain[i * step]; });
            } else {
                const std::uint8_t* states = values.states.data();
                join(count, [&](std::size_t i) {
                    return states[i * step] == state::valid ? plain[i * step] : std::uint8_t{0};
                });
            }
        }
    }

private:
    template <class Get>
    void join(std::size_t count, Get get) {
        std::uint8_t* truths = result_.truths.data();
        if (operation_ == Operation::And) {
            for (std::size_t i = 0; i < count; ++i)
                truths[i] &= get(i);
        } else if (operation_ == Operation::Or) {
            for (std::size_t i = 0; i < count; ++i)
                truths[i] |= get(i);
        } else {
            for (std::size_t i = 0; i < count; ++i)
                truths[i] = static_cast<std::uint8_t>(~get(i));
        }
    }

    Operation operation_;
    std::vector<Node*> operands_;
};

void markMissing(Vector& result, std::size_t i, std::size_t count) {
    if (result.allValid) {
        result.states.assign(count, state::valid);
        result.allValid = false;
    }
    if (result.states[i] == state::valid)
        result.states[i] = state::blank;
}

/// + - * / and the sign. Whole numbers stay whole but for division; what does not fit is MV.
class ArithmeticNode : public Node {
public:
    ArithmeticNode(Operation operation, Node& left, Node& right, const Entity* entity)
        : Node(typeOf(operation, left.type(), right.type()), entity), operation_(operation),
          left_(left), right_(right) {
        if (!isNumber(left.type()) || !isNumber(right.type()))
            throw std::runtime_error("Arithmetic takes numbers only.");
        result_.constant = entity == nullptr;
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& a = left_.value(frames);
        const Vector& b = right_.value(frames);
        combineStates(a, b, count, result_);
        if (type() == ValueType::Real)
            workReal(viewA_.reals(a), a.constant ? 0 : 1, viewB_.reals(b), b.constant ? 0 : 1,
                     count);
        else
            workInteger(viewA_.integers(a), a.constant ? 0 : 1, viewB_.integers(b),
                        b.constant ? 0 : 1, count);
    }

private:
    static ValueType typeOf(Operation operation, ValueType a, ValueType b) {
        const bool real =
            operation == Operation::Divide || a == ValueType::Real || b == ValueType::Real;
        return real ? ValueType::Real : ValueType::Integer;
    }

    void workReal(const double* a, std::size_t stepA, const double* b, std::size_t stepB,
                  std::size_t count) {
        result_.reals.resize(count);
        double* out = result_.reals.data();
        for (std::size_t i = 0; i < count; ++i) {
            const double x = a[i * stepA];
            const double y = b[i * stepB];
            switch (operation_) {
            case Operation::Add:
                out[i] = x + y;
                break;
            case Operation::Subtract:
                out[i] = x - y;
                break;
            case Operation::Multiply:
                out[i] = x * y;
                break;
            default:
                out[i] = y == 0 ? 0 : x / y;
                if (y == 0)
                    markMissing(result_, i, count);
            }
        }
    }

    void workInteger(const std::int64_t* a, std::size_t stepA, const std::int64_t* b,
                     std::size_t stepB, std::size_t count) {
        result_.integers.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            if (overflows(a[i * stepA], b[i * stepB], result_.integers[i]))
                markMissing(result_, i, count);
        }
    }

    bool overflows(std::int64_t x, std::int64_t y, std::int64_t& out) const {
        if (operation_ == Operation::Add)
            return __builtin_add_overflow(x, y, &out);
        if (operation_ == Operation::Subtract)
            return __builtin_sub_overflow(x, y, &out);
        return __builtin_mul_overflow(x, y, &out);
    }

    Operation operation_;
    Node& left_;
    Node& right_;
    NumberView viewA_, viewB_;
};

/// The sign turned.
class NegateNode : public Node {
public:
    NegateNode(Node& operand, const Entity* entity)
        : Node(operand.type() == ValueType::Real ? ValueType::Real : ValueType::Integer, entity),
          operand_(operand) {
        if (!isNumber(operand.type()))
            throw std::runtime_error("Arithmetic takes numbers only.");
        result_.constant = entity == nullptr;
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& values = operand_.value(frames);
        combineStates(values, values, count, result_);
        if (type() == ValueType::Real) {
            result_.reals.resize(count);
            std::transform(values.reals.begin(), values.reals.end(), result_.reals.begin(),
                           [](double value) { return -value; });
            return;
        }
        const std::int64_t* integers = view_.integers(values);
        result_.integers.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            if (__builtin_sub_overflow(std::int64_t{0}, integers[i], &result_.integers[i]))
                markMissing(result_, i, count);
        }
    }

private:
    Node& operand_;
    NumberView view_;
};

} // namespace

std::unique_ptr<Node> makeLogic(Operation operation, std::vector<Node*> operands,
                                const Entity* entity) {
    return std::make_unique<LogicNode>(operation, std::move(operands), entity);
}

std::unique_ptr<Node> makeArithmetic(Operation operation, std::vector<Node*> operands,
                                     const Entity* entity) {
    if (operation == Operation::Negate)
        return std::make_unique<NegateNode>(*operands.at(0), entity);
    return std::make_unique<ArithmeticNode>(operation, *operands.at(0), *operands.at(1), entity);
}

} // namespace kelx::execution
