// SPDX-License-Identifier: Apache-2.0
// RECODE and SWITCH: one of several values for each record.
#include "execution/code_intervals.h"
#include "execution/constant_bounds.h"
#include "execution/node.h"
#include "execution/typed_data.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace kelx::execution {
namespace {

using language::Expression;
using language::Operation;
using Choice = std::uint16_t; ///< number of a value; one beyond the last: none

/// The values to choose from, and filling in what was chosen.
class Choices {
public:
    Choices(std::vector<Node*> values, bool hasElse)
        : nodes_(std::move(values)), hasElse_(hasElse), views_(nodes_.size()) {
        if (nodes_.size() >= std::numeric_limits<Choice>::max())
            throw std::runtime_error("There are too many values to choose from.");
    }

    std::size_t size() const { return nodes_.size(); }
    /// What a record gets that nothing else takes: ELSE's value, which is the last, or none.
    Choice rest() const { return static_cast<Choice>(hasElse_ ? size() - 1 : size()); }

    ValueType type() const {
        const auto any = [&](ValueType type) {
            return std::any_of(nodes_.begin(), nodes_.end(),
                               [&](const Node* node) { return node->type() == type; });
        };
        const bool numbers = any(ValueType::Integer) || any(ValueType::Real);
        if (any(ValueType::String) && (numbers || any(ValueType::Boolean)))
            throw std::runtime_error("Texts and numbers cannot be values of one variable.");
        if (any(ValueType::String))
            return ValueType::String;
        if (any(ValueType::Real))
            return ValueType::Real;
        return numbers ? ValueType::Integer : ValueType::Boolean;
    }

    void fill(Frames& frames, const std::vector<Choice>& chosen, Vector& result) {
        vectors_.clear();
        for (Node* node : nodes_)
            vectors_.push_back(&node->value(frames));
        switch (result.type) {
        case ValueType::Integer:
            pick<std::int64_t>(
                chosen, [&](std::size_t i) { return views_[i].integers(*vectors_[i]); },
                result.integers);
            break;
        case ValueType::Real:
            pick<double>(
                chosen, [&](std::size_t i) { return views_[i].reals(*vectors_[i]); }, result.reals);
            break;
        case ValueType::String:
            pick<std::string_view>(
                chosen, [&](std::size_t i) { return vectors_[i]->texts.data(); }, result.texts);
            break;
        default:
            pick<std::uint8_t>(
                chosen, [&](std::size_t i) { return vectors_[i]->truths.data(); }, result.truths);
        }
        pickStates(chosen, result);
    }

private:
    template <class T>
    struct Source {
        const T* data;
        std::size_t step;
    };

    template <class T, class Data>
    void pick(const std::vector<Choice>& chosen, Data data, std::vector<T>& out) {
        const T nothing{};
        std::vector<Source<T>> sources;
        for (std::size_t i = 0; i < size(); ++i)
            sources.push_back({data(i), vectors_[i]->constant ? std::size_t{0} : std::size_t{1}});
        sources.push_back({&nothing, 0});
        out.resize(chosen.size());
        for (std::size_t i = 0; i < chosen.size(); ++i) {
            const Source<T>& source = sources[chosen[i]];
            out[i] = source.data[i * source.step];
        }
    }

    void pickStates(const std::vector<Choice>& chosen, Vector& result) const {
        const auto none = static_cast<Choice>(size());
        const bool valid = std::all_of(vectors_.begin(), vectors_.end(),
                                       [](const Vector* values) { return values->allValid; });
        result.allValid =
            valid && (hasElse_ || std::count(chosen.begin(), chosen.end(), none) == 0);
        if (result.allValid)
            return;
        result.states.resize(chosen.size());
        for (std::size_t i = 0; i < chosen.size(); ++i)
            result.states[i] = chosen[i] == none
                                   ? static_cast<std::uint8_t>(state::blank | state::untaken)
                                   : withoutCode(vectors_[chosen[i]]->stateAt(i));
    }
    /// A value that is MV or NA is no code of the new variable.
    static std::uint8_t withoutCode(std::uint8_t one) { return state::combined(one, one); }

    std::vector<Node*> nodes_;
    bool hasElse_;
    std::vector<NumberView> views_;
    std::vector<const Vector*> vectors_;
};

/// Which value each code of a variable chooses.
class CodeChoices {
public:
    /// Intervals of codes and the values that they choose; the first that holds a code counts.
    struct Rule {
        CodeIntervals intervals;
        Choice choice;
    };

    CodeChoices(const catalog::Variable& variable, const std::vector<Rule>& rules, Choice rest)
        : column_(variable.column()), rest_(rest) {
        const storage::Physical physical = column_->info().physical;
        if (storage::physicalSize(physical) <= 2)
            fillByCode(rules, static_cast<std::size_t>(storage::blankCode(physical)) + 1);
        else
            fillByEnds(rules);
    }

    void choose(const Frame& frame, std::vector<Choice>& chosen) {
        const void* data = column_->read(frame.begin, frame.count, scratch_);
        chosen.resize(frame.count);
        withCodes(data, column_->info().physical, [&](const auto* codes) {
            if (byCode_.empty())
                return chooseByEnds(codes, chosen);
            for (std::size_t i = 0; i < frame.count; ++i)
                chosen[i] = byCode_[codes[i]];
        });
    }

private:
    void fillByCode(const std::vector<Rule>& rules, std::size_t codes) {
        FirstCome places(codes, rest_);
        for (const Rule& rule : rules) {
            for (const CodeInterval& interval : rule.intervals)
                places.take(interval.first, interval.last, rule.choice);
        }
        byCode_.assign(places.numbers.begin(), places.numbers.end());
    }

    void fillByEnds(const std::vector<Rule>& rules) {
        std::vector<IntervalTable<std::uint64_t>::Bounds> bounds;
        for (const Rule& rule : rules) {
            for (const CodeInterval& interval : rule.intervals) {
                bounds.push_back({interval.first, interval.last});
                choices_.push_back(rule.choice);
            }
        }
        byEnds_ = IntervalTable<std::uint64_t>(bounds);
    }

    template <class Code>
    void chooseByEnds(const Code* codes, std::vector<Choice>& chosen) const {
        for (std::size_t i = 0; i < chosen.size(); ++i) {
            const std::uint32_t found = byEnds_.find(std::uint64_t{codes[i]});
            chosen[i] = found != byEnds_.none ? choices_[found] : rest_;
        }
    }

    std::shared_ptr<const storage::Column> column_;
    storage::ColumnScratch scratch_;
    Choice rest_;
    std::vector<Choice> byCode_; ///< of codes of one or two bytes
    IntervalTable<std::uint64_t> byEnds_;
    std::vector<Choice> choices_; ///< by interval
};

/// From the last test to the first, so that the first that holds has the last word.
void chooseByTests(const std::vector<const Vector*>& tests, Choice rest, std::size_t count,
                   std::vector<Choice>& chosen) {
    chosen.assign(count, rest);
    for (std::size_t k = tests.size(); k-- > 0;) {
        const Vector& test = *tests[k];
        const std::size_t step = test.constant ? 0 : 1;
        for (std::size_t i = 0; i < count; ++i) {
            const bool holds = test.truths[i * step] != 0 && test.stateAt(i) == state::valid;
            chosen[i] = holds ? static_cast<Choice>(k) : chosen[i];
        }
    }
}

/// Values that codes of a variable choose: RECODE, and a SWITCH that asks for nothing else.
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

class SwitchNode : public Node {
public:
    SwitchNode(Choices choices, std::vector<Node*> tests, const Entity* entity)
        : Node(choices.type(), entity), choices_(std::move(choices)), tests_(std::move(tests)) {
        result_.constant = entity == nullptr;
        for (const Node* test : tests_) {
            if (test->type() != ValueType::Boolean)
                throw std::runtime_error("CASE takes truth values only.");
        }
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        results_.clear();
        for (Node* test : tests_)
            results_.push_back(&test->value(frames));
        chooseByTests(results_, choices_.rest(), count, chosen_);
        choices_.fill(frames, chosen_, result_);
    }

private:
    Choices choices_;
    std::vector<Node*> tests_;
    std::vector<const Vector*> results_;
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

std::unique_ptr<Node> makeCodedSwitch(const Expression& expression, const NodeOf& nodeOf) {
    const catalog::Variable* variable = nullptr;
    std::vector<CodeChoices::Rule> rules;
    std::vector<Node*> values;
    const auto& arguments = expression.arguments;
    for (std::size_t i = 0; i + 1 < arguments.size(); i += 2) {
        auto test = codeTestOf(*arguments[i]);
        if (!test || test->variable->entity != expression.entity ||
            (variable != nullptr && variable != test->variable))
            return nullptr;
        variable = test->variable;
        rules.push_back({std::move(test->intervals), static_cast<Choice>(i / 2)});
    }
    if (variable == nullptr)
        return nullptr;
    for (std::size_t i = 1; i < arguments.size(); i += 2)
        values.push_back(&nodeOf(*arguments[i]));
    const bool hasElse = arguments.size() % 2 == 1;
    if (hasElse)
        values.push_back(&nodeOf(*arguments.back()));
    Choices choices(std::move(values), hasElse);
    CodeChoices codes(*variable, rules, choices.rest());
    return std::make_unique<CodedChoiceNode>(expression, std::move(choices), std::move(codes));
}

std::unique_ptr<Node> makeSwitch(std::vector<Node*> arguments, const Entity* entity) {
    const bool hasElse = arguments.size() % 2 == 1;
    std::vector<Node*> tests;
    std::vector<Node*> values;
    for (std::size_t i = 0; i + 1 < arguments.size(); i += 2) {
        tests.push_back(arguments[i]);
        values.push_back(arguments[i + 1]);
    }
    if (hasElse)
        values.push_back(arguments.back());
    return std::make_unique<SwitchNode>(Choices(std::move(values), hasElse), std::move(tests),
                                        entity);
}

} // namespace kelx::execution
