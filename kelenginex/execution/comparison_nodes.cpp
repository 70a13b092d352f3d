// SPDX-License-Identifier: Apache-2.0
// Comparisons and IN: on codes where a variable meets constants, else on values.
#include "execution/code_intervals.h"
#include "execution/constant_bounds.h"
#include "execution/kernels.h"
#include "execution/node.h"
#include "execution/typed_data.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace kelx::execution {
namespace {

using language::Constant;
using language::Expression;
using language::Operation;

/// True where the test holds for the zone of one of the blocks that records lie in.
template <class Test>
bool anyZone(const storage::Column& column, const plan::RecordRange& records, Test test) {
    const std::uint64_t last = (records.end - 1) / storage::recordsPerBlock;
    for (std::uint64_t block = records.begin / storage::recordsPerBlock; block <= last; ++block) {
        const storage::Zone zone = column.zone(static_cast<std::size_t>(block));
        if (zone.blanks < zone.records && test(zone))
            return true;
    }
    return false;
}

/// What of a column of real numbers can pass a comparison with constants.
class RealZones {
public:
    RealZones() = default;
    /// Rules nothing out where the expression is no such comparison.
    explicit RealZones(const Expression& expression) {
        const auto& arguments = expression.arguments;
        if (expression.operation == Operation::In) {
            addIntervals(*arguments.at(0), expression.intervals);
            return;
        }
        const auto isNumber = [](const Expression& other) {
            return other.operation == Operation::Constant &&
                   !std::holds_alternative<std::string>(other.constant);
        };
        if (isNumber(*arguments.at(1)))
            addComparison(*arguments[0], expression.operation, arguments[1]->constant);
        else if (isNumber(*arguments[0]))
            addComparison(*arguments[1], mirrored(expression.operation), arguments[0]->constant);
    }

    bool mayHold(const plan::RecordRange& records) const {
        return !column_ || anyZone(*column_, records, [&](const storage::Zone& zone) {
            return std::any_of(bounds_.begin(), bounds_.end(), [&](const auto& own) {
                return own.low <= zone.maxReal && own.high >= zone.minReal;
            });
        });
    }

private:
    struct Bounds {
        double low, high;
    };
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    void addIntervals(const Expression& operand, const std::vector<language::Interval>& intervals) {
        if (!take(operand))
            return;
        for (const language::Interval& interval : intervals)
            bounds_.push_back({interval.low ? asReal(*interval.low) : -infinity,
                               interval.high ? asReal(*interval.high) : infinity});
    }

    void addComparison(const Expression& operand, Operation operation, const Constant& constant) {
        if (operation == Operation::NotEqual || !take(operand))
            return;
        const double value = asReal(constant);
        const bool up = operation == Operation::Greater || operation == Operation::GreaterEqual;
        const bool down = operation == Operation::Less || operation == Operation::LessEqual;
        bounds_.push_back({value, value});
        if (down)
            bounds_.back().low = -infinity;
        if (up)
            bounds_.back().high = infinity;
    }

    bool take(const Expression& operand) {
        if (operand.operation != Operation::VariableValue)
            return false;
        auto column = operand.variable->column();
        if (column->info().physical != storage::Physical::Real64)
            return false;
        column_ = std::move(column);
        return true;
    }

    std::shared_ptr<const storage::Column> column_; ///< null: nothing is ruled out
    std::vector<Bounds> bounds_;
};

/// A coded variable against constants; reads codes in place and never looks at values.
class CodeTestNode : public Node {
public:
    CodeTestNode(const catalog::Variable& variable, CodeIntervals intervals)
        : Node(ValueType::Boolean, variable.entity), column_(variable.column()),
          intervals_(joined(std::move(intervals))) {}

    bool mayBeTrue(const plan::RecordRange& records) const override {
        return anyZone(*column_, records, [&](const storage::Zone& zone) {
            const auto next = notBefore(zone.minCode);
            return next != intervals_.end() && next->first <= zone.maxCode;
        });
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Frame frame = frames.frame(*entity());
        const void* data = column_->read(frame.begin, count, scratch_);
        result_.truths.assign(count, 0);
        withCodes(data, column_->info().physical, [&](const auto* codes) {
            if (intervals_.size() <= mostTried)
                tryEach(codes, count);
            else
                search(codes, count);
        });
    }

private:
    /// Of more intervals the one that may hold a code is searched for.
    static constexpr std::size_t mostTried = 16;

    template <class Code>
    void tryEach(const Code* codes, std::size_t count) {
        for (const CodeInterval& interval : intervals_)
            kernels().of<Code>().testRange(codes, count, static_cast<Code>(interval.first),
                                           static_cast<Code>(interval.last - interval.first),
                                           result_.truths.data());
    }

    template <class Code>
    void search(const Code* codes, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            const auto next = notBefore(codes[i]);
            result_.truths[i] = next != intervals_.end() && next->first <= codes[i] ? truth : 0;
        }
    }

    /// The first interval that does not end before a code.
    CodeIntervals::const_iterator notBefore(std::uint64_t code) const {
        return std::partition_point(intervals_.begin(), intervals_.end(),
                                    [&](const CodeInterval& own) { return own.last < code; });
    }

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
    ComparisonNode(const Expression& expression, Node& left, Node& right)
        : Node(ValueType::Boolean, expression.entity), operation_(expression.operation),
          left_(left), right_(right), zones_(expression) {
        if ((left.type() == ValueType::String) != (right.type() == ValueType::String))
            throw std::runtime_error("Texts are compared with texts only.");
        result_.constant = expression.entity == nullptr;
    }

    bool mayBeTrue(const plan::RecordRange& records) const override {
        return zones_.mayHold(records);
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
    RealZones zones_;
    NumberView viewA_, viewB_;
};

/// IN on values that have no codes: reals, and what is computed.
class InNode : public Node {
public:
    InNode(const Expression& expression, Node& operand)
        : Node(ValueType::Boolean, operand.entity()), operand_(operand), zones_(expression) {
        result_.constant = operand.entity() == nullptr;
        if (operand.type() == ValueType::String)
            texts_ = IntervalTable<std::string>(textBounds(expression.intervals));
        else
            reals_ = IntervalTable<double>(realBounds(expression.intervals));
    }

    bool mayBeTrue(const plan::RecordRange& records) const override {
        return zones_.mayHold(records);
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& values = operand_.value(frames);
        result_.truths.resize(count);
        if (operand_.type() == ValueType::String)
            test(values.texts.data(), count, texts_);
        else
            test(view_.reals(values), count, reals_);
        dropNoValue(values, count, result_.truths);
    }

private:
    template <class Value, class Table>
    void test(const Value* values, std::size_t count, const Table& table) {
        for (std::size_t i = 0; i < count; ++i)
            result_.truths[i] = table.find(values[i]) != Table::none ? truth : 0;
    }

    Node& operand_;
    RealZones zones_;
    IntervalTable<double> reals_;
    IntervalTable<std::string> texts_;
    NumberView view_;
};

} // namespace

std::unique_ptr<Node> makeCodeTest(const Expression& expression) {
    auto test = codeTestOf(expression);
    if (!test)
        return nullptr;
    return std::make_unique<CodeTestNode>(*test->variable, std::move(test->intervals));
}

std::unique_ptr<Node> makeComparison(const Expression& expression, Node& left, Node& right) {
    return std::make_unique<ComparisonNode>(expression, left, right);
}

std::unique_ptr<Node> makeIn(const Expression& expression, Node& operand) {
    return std::make_unique<InNode>(expression, operand);
}

} // namespace kelx::execution
