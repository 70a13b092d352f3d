// SPDX-License-Identifier: Apache-2.0
// Comparisons and IN: on codes where a variable meets constants, else on values.
#include "execution/code_intervals.h"
#include "execution/kernels.h"
#include "execution/node.h"
#include "execution/typed_data.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::execution {
namespace {

using language::Constant;
using language::Expression;
using language::Operation;

/// A coded variable against constants; reads codes in place and never looks at values.
class CodeTestNode : public Node {
public:
    CodeTestNode(const catalog::Variable& variable, CodeIntervals intervals)
        : Node(ValueType::Boolean, variable.entity), column_(variable.column()),
          intervals_(std::move(intervals)) {}

    bool mayBeTrue(std::size_t block) const override {
        const storage::Zone zone = column_->zone(block);
        return zone.blanks < zone.records &&
               std::any_of(intervals_.begin(), intervals_.end(), [&](const CodeInterval& i) {
                   return i.first <= zone.maxCode && i.last >= zone.minCode;
               });
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Frame frame = frames.frame(*entity());
        const void* data = column_->read(frame.begin, count, scratch_);
        result_.truths.assign(count, 0);
        withCodes(data, column_->info().physical, [&](const auto* codes) {
            using Code = std::decay_t<decltype(*codes)>;
            for (const CodeInterval& interval : intervals_)
                kernels().of<Code>().testRange(codes, count, static_cast<Code>(interval.first),
                                               static_cast<Code>(interval.last - interval.first),
                                               result_.truths.data());
        });
    }

private:
    std::shared_ptr<const storage::Column> column_;
    storage::ColumnScratch scratch_;
    CodeIntervals intervals_;
};

template <class T>
struct Pair {
    const T* left;
    const T* right;
    std::size_t leftStep;
    std::size_t rightStep;
};

template <class T, class Test>
void compareAll(const Pair<T>& values, std::size_t count, std::uint8_t* truths, Test test) {
    for (std::size_t i = 0; i < count; ++i)
        truths[i] =
            test(values.left[i * values.leftStep], values.right[i * values.rightStep]) ? truth : 0;
}

template <class T>
void compare(Operation operation, const Pair<T>& values, std::size_t count, std::uint8_t* truths) {
    switch (operation) {
    case Operation::Equal:
        return compareAll(values, count, truths, [](T a, T b) { return a == b; });
    case Operation::NotEqual:
        return compareAll(values, count, truths, [](T a, T b) { return a != b; });
    case Operation::Less:
        return compareAll(values, count, truths, [](T a, T b) { return a < b; });
    case Operation::LessEqual:
        return compareAll(values, count, truths, [](T a, T b) { return a <= b; });
    case Operation::Greater:
        return compareAll(values, count, truths, [](T a, T b) { return a > b; });
    case Operation::GreaterEqual:
        return compareAll(values, count, truths, [](T a, T b) { return a >= b; });
    default:
        throw std::logic_error("not a comparison");
    }
}

/// What has no stored code passes no comparison.
void dropNoValue(const Vector& operand, std::size_t count, std::vector<std::uint8_t>& truths) {
    if (operand.allValid)
        return;
    for (std::size_t i = 0; i < count; ++i) {
        if ((operand.stateAt(i) & state::noValue) != 0)
            truths[i] = 0;
    }
}

class ComparisonNode : public Node {
public:
    ComparisonNode(Operation operation, Node& left, Node& right, const Entity* entity)
        : Node(ValueType::Boolean, entity), operation_(operation), left_(left), right_(right) {
        if ((left.type() == ValueType::String) != (right.type() == ValueType::String))
            throw std::runtime_error("Texts are compared with texts only.");
        result_.constant = entity == nullptr;
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& a = left_.value(frames);
        const Vector& b = right_.value(frames);
        const std::size_t stepA = a.constant ? 0 : 1;
        const std::size_t stepB = b.constant ? 0 : 1;
        result_.truths.resize(count);
        std::uint8_t* truths = result_.truths.data();
        if (a.type == ValueType::String)
            compare<std::string_view>(operation_, {a.texts.data(), b.texts.data(), stepA, stepB},
                                      count, truths);
        else if (a.type == ValueType::Real || b.type == ValueType::Real)
            compare<double>(operation_, {viewA_.reals(a), viewB_.reals(b), stepA, stepB}, count,
                            truths);
        else
            compare<std::int64_t>(
                operation_, {viewA_.integers(a), viewB_.integers(b), stepA, stepB}, count, truths);
        dropNoValue(a, count, result_.truths);
        dropNoValue(b, count, result_.truths);
    }

private:
    Operation operation_;
    Node& left_;
    Node& right_;
    NumberView viewA_, viewB_;
};

double asReal(const Constant& constant) {
    if (const auto* real = std::get_if<double>(&constant))
        return *real;
    if (const auto* flag = std::get_if<bool>(&constant))
        return *flag ? 1 : 0;
    if (const auto* integer = std::get_if<std::int64_t>(&constant))
        return static_cast<double>(*integer);
    throw std::runtime_error("IN compares numbers with numbers only.");
}

const std::string& asText(const Constant& constant) {
    if (const auto* text = std::get_if<std::string>(&constant))
        return *text;
    throw std::runtime_error("IN compares texts with texts only.");
}

/// IN on values that have no codes: reals, and what is computed.
class InNode : public Node {
public:
    InNode(const std::vector<language::Interval>& intervals, Node& operand)
        : Node(ValueType::Boolean, operand.entity()), operand_(operand) {
        result_.constant = operand.entity() == nullptr;
        for (const language::Interval& interval : intervals) {
            if (operand.type() == ValueType::String)
                texts_.push_back(bounds<std::string>(interval, asText));
            else
                reals_.push_back(bounds<double>(interval, asReal));
        }
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& values = operand_.value(frames);
        result_.truths.assign(count, 0);
        if (isText())
            test(values.texts.data(), count, texts_);
        else
            test(view_.reals(values), count, reals_);
        dropNoValue(values, count, result_.truths);
    }

private:
    template <class T>
    struct Bounds {
        std::optional<T> low, high;
    };
    template <class T, class Convert>
    static Bounds<T> bounds(const language::Interval& interval, Convert convert) {
        Bounds<T> result;
        if (interval.low)
            result.low = convert(*interval.low);
        if (interval.high)
            result.high = convert(*interval.high);
        return result;
    }
    bool isText() const { return operand_.type() == ValueType::String; }

    template <class T, class Bound>
    void test(const T* values, std::size_t count, const std::vector<Bound>& bounds) {
        for (const Bound& bound : bounds) {
            for (std::size_t i = 0; i < count; ++i) {
                if ((!bound.low || values[i] >= *bound.low) &&
                    (!bound.high || values[i] <= *bound.high))
                    result_.truths[i] = truth;
            }
        }
    }

    Node& operand_;
    std::vector<Bounds<double>> reals_;
    std::vector<Bounds<std::string>> texts_;
    NumberView view_;
};

std::optional<CodeIntervals> codesOf(const Expression& expression, const Expression*& variable) {
    const auto& arguments = expression.arguments;
    const auto isVariable = [](const Expression& e) {
        return e.operation == Operation::VariableValue;
    };
    if (expression.operation == Operation::In && isVariable(*arguments.at(0))) {
        variable = arguments[0].get();
        return intervalsFor(*variable->variable->column(), expression.intervals);
    }
    if (expression.operation < Operation::Equal || expression.operation > Operation::GreaterEqual)
        return std::nullopt;
    for (std::size_t i = 0; i < 2; ++i) {
        const Expression& other = *arguments.at(1 - i);
        variable = arguments[i].get();
        if (isVariable(*variable) && other.operation == Operation::Constant)
            return intervalsFor(*variable->variable->column(),
                                i == 0 ? expression.operation : mirrored(expression.operation),
                                other.constant);
    }
    return std::nullopt;
}

} // namespace

std::unique_ptr<Node> makeCodeTest(const Expression& expression) {
    const Expression* variable = nullptr;
    auto intervals = codesOf(expression, variable);
    if (!intervals)
        return nullptr;
    return std::make_unique<CodeTestNode>(*variable->variable, std::move(*intervals));
}

std::unique_ptr<Node> makeComparison(Operation operation, Node& left, Node& right,
                                     const Entity* entity) {
    return std::make_unique<ComparisonNode>(operation, left, right, entity);
}

std::unique_ptr<Node> makeIn(const std::vector<language::Interval>& intervals, Node& operand) {
    return std::make_unique<InNode>(intervals, operand);
}

} // namespace kelx::execution
