// SPDX-License-Identifier: Apache-2.0
// The functions of the language: a table of scalar rules, and one node for each shape of rule.
#include "execution/node.h"
#include "plan/area_codes.h"
#include "storage/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <string>

namespace kelx::execution {
namespace {

using Text = std::string_view;
using Integer = std::int64_t;

using storage::beginsCharacter;

Integer length(Text text) {
    return static_cast<Integer>(storage::characterCount(text));
}

/// Byte where a character (from 0) begins; the end beyond the last.
std::size_t byteOf(Text text, Integer character) {
    std::size_t i = 0;
    for (Integer seen = 0; i < text.size(); ++i) {
        if (beginsCharacter(text[i]) && seen++ == character)
            break;
    }
    return i;
}

Text left(Text text, Integer count) {
    return count <= 0 ? Text{} : text.substr(0, byteOf(text, count));
}

Text right(Text text, Integer count) {
    return count <= 0 ? Text{}
                      : text.substr(byteOf(text, std::max<Integer>(length(text) - count, 0)));
}

Text substr(Text text, Integer start, Integer count) {
    if (count <= 0 || start < 1 - count)
        return {};
    if (start < 1) { // characters before the first count, but are none
        count += start - 1;
        start = 1;
    }
    return left(text.substr(byteOf(text, start - 1)), count);
}

Text ltrim(Text text) {
    const auto first = text.find_first_not_of(" \t");
    return first == Text::npos ? Text{} : text.substr(first);
}

Text rtrim(Text text) {
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

Integer pos(Text text, Text target) {
    const auto found = text.find(target);
    return found == Text::npos ? 0 : length(text.substr(0, found)) + 1;
}

/// Letters of ASCII and Latin-1, which UTF-8 writes as 0xc3 and a second byte.
std::string withCase(Text text, bool upper) {
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        auto byte = static_cast<unsigned char>(result[i]);
        const bool latin = i > 0 && result[i - 1] == '\xc3';
        const unsigned char first = latin ? (upper ? 0xa0 : 0x80) : (upper ? 'a' : 'A');
        const unsigned char last = latin ? (upper ? 0xbe : 0x9e) : (upper ? 'z' : 'Z');
        const bool isSign = latin && (byte == 0xb7 || byte == 0x97); // times and divided by
        if (byte >= first && byte <= last && !isSign)
            byte = static_cast<unsigned char>(upper ? byte - 0x20 : byte + 0x20);
        result[i] = static_cast<char>(byte);
    }
    return result;
}

/// The number that a text is, blanks around it left aside.
std::optional<double> val(Text text) {
    text = ltrim(rtrim(text));
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

using RealRule = std::optional<double> (*)(double);
struct RealFunction {
    Text name;
    RealRule rule;
};
constexpr RealFunction realFunctions[] = {
    {"SQRT", [](double x) { return x < 0 ? std::nullopt : std::optional(std::sqrt(x)); }},
    {"LOG", [](double x) { return x <= 0 ? std::nullopt : std::optional(std::log10(x)); }},
    {"LN", [](double x) { return x <= 0 ? std::nullopt : std::optional(std::log(x)); }},
};

/// A text from a text and up to two whole numbers. Those that only cut need no copy.
using CutRule = Text (*)(Text, Integer, Integer);
struct CutFunction {
    Text name;
    std::size_t numbers;
    CutRule rule;
};
constexpr CutFunction cutFunctions[] = {
    {"LEFT", 1, [](Text t, Integer n, Integer) { return left(t, n); }},
    {"RIGHT", 1, [](Text t, Integer n, Integer) { return right(t, n); }},
    {"SUBSTR", 2, [](Text t, Integer s, Integer n) { return substr(t, s, n); }},
    {"TRIM", 0, [](Text t, Integer, Integer) { return ltrim(rtrim(t)); }},
    {"LTRIM", 0, [](Text t, Integer, Integer) { return ltrim(t); }},
    {"RTRIM", 0, [](Text t, Integer, Integer) { return rtrim(t); }},
};

/// Shared by all functions: states of arguments, and rules that have no answer.
class FunctionNode : public Node {
public:
    FunctionNode(ValueType type, std::vector<Node*> arguments, const Entity* entity)
        : Node(type, entity), arguments_(std::move(arguments)) {
        result_.constant = entity == nullptr;
    }

protected:
    /// The arguments' values, and result_.states from theirs.
    void prepare(Frames& frames, std::size_t count) {
        values_.clear();
        for (Node* argument : arguments_)
            values_.push_back(&argument->value(frames));
        result_.allValid = false;
        result_.states.assign(count, state::valid);
        for (const Vector* values : values_) {
            for (std::size_t i = 0; i < count; ++i)
                result_.states[i] = state::combined(result_.states[i], values->stateAt(i));
        }
    }
    bool isValid(std::size_t i) const { return result_.states[i] == state::valid; }
    void setMissing(std::size_t i) { result_.states[i] = state::blank; }
    Text textOf(std::size_t argument, std::size_t i) const {
        const Vector& values = *values_[argument];
        return values.texts[values.constant ? 0 : i];
    }
    /// Doubles are cut to whole numbers; absent arguments are 0.
    Integer integerOf(std::size_t argument, std::size_t i) const {
        if (argument >= values_.size())
            return 0;
        const Vector& values = *values_[argument];
        const std::size_t at = values.constant ? 0 : i;
        if (values.type == ValueType::Real)
            return static_cast<Integer>(std::clamp(values.reals[at], -1e15, 1e15));
        return values.type == ValueType::Integer ? values.integers[at] : values.truths[at] & 1;
    }

    std::vector<Node*> arguments_;
    std::vector<const Vector*> values_;
};

class RealFunctionNode : public FunctionNode {
public:
    RealFunctionNode(RealRule rule, std::vector<Node*> arguments, const Entity* entity)
        : FunctionNode(ValueType::Real, std::move(arguments), entity), rule_(rule) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        prepare(frames, count);
        const double* in = view_.reals(*values_[0]);
        const std::size_t step = values_[0]->constant ? 0 : 1;
        result_.reals.assign(count, 0);
        for (std::size_t i = 0; i < count; ++i) {
            const auto answer = isValid(i) ? rule_(in[i * step]) : std::nullopt;
            if (answer)
                result_.reals[i] = *answer;
            else if (isValid(i))
                setMissing(i);
        }
    }

private:
    RealRule rule_;
    NumberView view_;
};

class AbsNode : public FunctionNode {
public:
    AbsNode(std::vector<Node*> arguments, const Entity* entity)
        : FunctionNode(arguments.at(0)->type() == ValueType::Real ? ValueType::Real
                                                                  : ValueType::Integer,
                       arguments, entity) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        prepare(frames, count);
        const std::size_t step = values_[0]->constant ? 0 : 1;
        if (type() == ValueType::Real) {
            const double* in = view_.reals(*values_[0]);
            result_.reals.resize(count);
            for (std::size_t i = 0; i < count; ++i)
                result_.reals[i] = std::fabs(in[i * step]);
            return;
        }
        const Integer* in = view_.integers(*values_[0]);
        result_.integers.resize(count);
        for (std::size_t i = 0; i < count; ++i) {
            const Integer value = in[i * step];
            if (value == std::numeric_limits<Integer>::min())
                setMissing(i);
            else
                result_.integers[i] = value < 0 ? -value : value;
        }
    }

private:
    NumberView view_;
};

class CutFunctionNode : public FunctionNode {
public:
    CutFunctionNode(CutRule rule, std::vector<Node*> arguments, const Entity* entity)
        : FunctionNode(ValueType::String, std::move(arguments), entity), rule_(rule) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        prepare(frames, count);
        result_.texts.assign(count, {});
        for (std::size_t i = 0; i < count; ++i) {
            if (isValid(i))
                result_.texts[i] = rule_(textOf(0, i), integerOf(1, i), integerOf(2, i));
        }
    }

private:
    CutRule rule_;
};

/// LOWER, UPPER and STR: texts that stand nowhere yet.
class MakeTextNode : public FunctionNode {
public:
    enum class Kind { Lower, Upper, Str };
    MakeTextNode(Kind kind, std::vector<Node*> arguments, const Entity* entity)
        : FunctionNode(ValueType::String, std::move(arguments), entity), kind_(kind) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        prepare(frames, count);
        result_.made.resize(count);
        result_.texts.assign(count, {});
        for (std::size_t i = 0; i < count; ++i) {
            if (!isValid(i))
                continue;
            result_.made[i] = make(i);
            result_.texts[i] = result_.made[i];
        }
    }

private:
    std::string make(std::size_t i) const {
        if (kind_ != Kind::Str)
            return withCase(textOf(0, i), kind_ == Kind::Upper);
        const Vector& values = *values_[0];
        if (values.type == ValueType::Real)
            return plan::numberText(values.reals[values.constant ? 0 : i]);
        return std::to_string(integerOf(0, i));
    }
    Kind kind_;
};

/// LENGTH and POS.
class MeasureTextNode : public FunctionNode {
public:
    MeasureTextNode(std::vector<Node*> arguments, const Entity* entity)
        : FunctionNode(ValueType::Integer, std::move(arguments), entity) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        prepare(frames, count);
        result_.integers.assign(count, 0);
        for (std::size_t i = 0; i < count; ++i) {
            if (isValid(i))
                result_.integers[i] =
                    values_.size() == 1 ? length(textOf(0, i)) : pos(textOf(0, i), textOf(1, i));
        }
    }
};

class ValNode : public FunctionNode {
public:
    ValNode(std::vector<Node*> arguments, const Entity* entity)
        : FunctionNode(ValueType::Real, std::move(arguments), entity) {}

protected:
    void work(Frames& frames, std::size_t count) override {
        prepare(frames, count);
        result_.reals.assign(count, 0);
        for (std::size_t i = 0; i < count; ++i) {
            const auto value = isValid(i) ? val(textOf(0, i)) : std::nullopt;
            if (value)
                result_.reals[i] = *value;
            else if (isValid(i))
                setMissing(i);
        }
    }
};

/// MISSING and NOTAPPLICABLE: questions about the state, always with an answer.
class StateNode : public Node {
public:
    StateNode(std::uint8_t asked, Node& argument, const Entity* entity)
        : Node(ValueType::Boolean, entity), asked_(asked), argument_(argument) {
        result_.constant = entity == nullptr;
    }

protected:
    void work(Frames& frames, std::size_t count) override {
        const Vector& values = argument_.value(frames);
        result_.truths.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            result_.truths[i] = (values.stateAt(i) & asked_) != 0 ? truth : 0;
    }

private:
    std::uint8_t asked_;
    Node& argument_;
};

void require(bool holds, const std::string& name) {
    if (!holds)
        throw std::runtime_error(name + " is used with arguments that it does not take.");
}

std::unique_ptr<Node> makeTextFunction(const std::string& name, std::vector<Node*> arguments,
                                       const Entity* entity) {
    require(!arguments.empty() && arguments[0]->type() == ValueType::String, name);
    for (const CutFunction& function : cutFunctions) {
        if (function.name == name) {
            require(arguments.size() == function.numbers + 1, name);
            return std::make_unique<CutFunctionNode>(function.rule, std::move(arguments), entity);
        }
    }
    if (name == "LENGTH" || name == "POS") {
        require(arguments.size() == (name == "POS" ? 2U : 1U) &&
                    arguments.back()->type() == ValueType::String,
                name);
        return std::make_unique<MeasureTextNode>(std::move(arguments), entity);
    }
    if (name == "VAL")
        return std::make_unique<ValNode>(std::move(arguments), entity);
    const auto kind = name == "UPPER" ? MakeTextNode::Kind::Upper : MakeTextNode::Kind::Lower;
    if (name != "UPPER" && name != "LOWER")
        throw std::logic_error("no function " + name);
    return std::make_unique<MakeTextNode>(kind, std::move(arguments), entity);
}

} // namespace

std::unique_ptr<Node> makeFunction(const std::string& name, std::vector<Node*> arguments,
                                   const Entity* entity) {
    require(!arguments.empty(), name);
    if (name == "MISSING" || name == "NOTAPPLICABLE")
        return std::make_unique<StateNode>(
            name == "MISSING" ? state::missing : state::notApplicable, *arguments[0], entity);
    const bool takesNumber = isNumber(arguments[0]->type());
    for (const RealFunction& function : realFunctions) {
        if (function.name == name) {
            require(takesNumber, name);
            return std::make_unique<RealFunctionNode>(function.rule, std::move(arguments), entity);
        }
    }
    if (name == "ABS") {
        require(takesNumber, name);
        return std::make_unique<AbsNode>(std::move(arguments), entity);
    }
    if (name == "STR") {
        require(takesNumber, name);
        return std::make_unique<MakeTextNode>(MakeTextNode::Kind::Str, std::move(arguments),
                                              entity);
    }
    return makeTextFunction(name, std::move(arguments), entity);
}

} // namespace kelx::execution
