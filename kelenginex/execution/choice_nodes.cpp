// SPDX-License-Identifier: Apache-2.0
// RECODE: the value of the first interval that holds a code.
#include "execution/choices.h"
#include "execution/constant_bounds.h"

#include <optional>
#include <stdexcept>
#include <utility>

namespace kelx::execution {
namespace {

using language::Expression;
using language::Operation;

/// RECODE of a variable with codes.
class CodedChoiceNode : public Node {
public:
    CodedChoiceNode(const Expression& expression, Choices choices, CodeChoices codes)
        : Node(choices.type(), expression.entity), choices_(std::move(choices)),
          codes_(std::move(codes)) {}

protected:
    void work(Frames& frames, std::size_t) override {
        codes_.choose(frames.frame(*entity()), chosen_);
        choices_.fill(frames, chosen_, result_);
    }

private:
    Choices choices_;
    CodeChoices codes_;
    std::vector<Choice> chosen_;
};

/// RECODE of what has no codes: reals, and what is computed.
class RecodeNode : public Node {
public:
    RecodeNode(const Expression& expression, Choices choices, Node& operand)
        : Node(choices.type(), expression.entity), choices_(std::move(choices)), operand_(operand) {
        result_.constant = expression.entity == nullptr;
        if (operand.type() == ValueType::String)
            texts_ = IntervalTable<std::string>(textBounds(expression.intervals));
        else
            reals_ = IntervalTable<double>(realBounds(expression.intervals));
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& values = operand_.value(frames);
        chosen_.resize(count);
        if (operand_.type() == ValueType::String)
            choose(values, values.texts.data(), texts_);
        else
            choose(values, view_.reals(values), reals_);
        choices_.fill(frames, chosen_, result_);
    }

private:
    template <class Value, class Table>
    void choose(const Vector& operand, const Value* values, const Table& table) {
        const std::size_t step = operand.constant ? 0 : 1;
        for (std::size_t i = 0; i < chosen_.size(); ++i) {
            const bool hasCode = (operand.stateAt(i) & state::noValue) == 0;
            const std::uint32_t found = hasCode ? table.find(values[i * step]) : Table::none;
            chosen_[i] = found != Table::none ? static_cast<Choice>(found) : choices_.rest();
        }
    }

    Choices choices_;
    Node& operand_;
    IntervalTable<double> reals_;
    IntervalTable<std::string> texts_;
    NumberView view_;
    std::vector<Choice> chosen_;
};

/// The rules of RECODE on a coded variable of the expression's own entity; else nothing.
std::optional<std::vector<CodeChoices::Rule>> rulesOf(const Expression& expression) {
    const Expression& tested = *expression.arguments.at(0);
    if (tested.operation != Operation::VariableValue || tested.entity != expression.entity)
        return std::nullopt;
    const auto column = tested.variable->column();
    std::vector<CodeChoices::Rule> rules;
    for (std::size_t i = 0; i < expression.intervals.size(); ++i) {
        auto codes = intervalsFor(*column, {expression.intervals[i]});
        if (!codes)
            return std::nullopt;
        rules.push_back({std::move(*codes), static_cast<Choice>(i)});
    }
    return rules;
}

} // namespace

std::unique_ptr<Node> makeRecode(const Expression& expression, std::vector<Node*> arguments) {
    Node& operand = *arguments.at(0);
    arguments.erase(arguments.begin());
    const bool hasElse = arguments.size() == expression.intervals.size() + 1;
    if (!hasElse && arguments.size() != expression.intervals.size())
        throw std::logic_error("RECODE needs a value for each interval");
    Choices choices(std::move(arguments), hasElse);
    if (const auto rules = rulesOf(expression)) {
        CodeChoices codes(*expression.arguments[0]->variable, *rules, choices.rest());
        return std::make_unique<CodedChoiceNode>(expression, std::move(choices), std::move(codes));
    }
    return std::make_unique<RecodeNode>(expression, std::move(choices), operand);
}

} // namespace kelx::execution
