// SPDX-License-Identifier: Apache-2.0
#include "execution/block_values.h"

#include "catalog/names.h"
#include "storage/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelx::execution {
namespace {

using language::Constant;

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

/// Rounded half away from zero; nothing where that is no 64-bit number.
std::optional<std::int64_t> rounded(double value) {
    const double whole = std::round(value);
    if (!(whole >= -0x1p63 && whole < 0x1p63))
        return std::nullopt;
    return static_cast<std::int64_t>(whole);
}

/// The number that a text is; NaN where it is none.
double numberIn(std::string_view text) {
    return catalog::parseNumber(text).value_or(nothing);
}

double numberOf(const Constant& constant) {
    if (const auto* text = std::get_if<std::string>(&constant))
        return numberIn(*text);
    if (const auto* real = std::get_if<double>(&constant))
        return *real;
    if (const auto* flag = std::get_if<bool>(&constant))
        return *flag ? 1 : 0;
    return static_cast<double>(std::get<std::int64_t>(constant));
}

std::string textOf(const Constant& constant) {
    if (const auto* text = std::get_if<std::string>(&constant))
        return *text;
    if (const auto* integer = std::get_if<std::int64_t>(&constant))
        return std::to_string(*integer);
    return storage::numberText(numberOf(constant));
}

void markMissing(BlockValues& to, std::size_t at) {
    if (to.states[at] != state::valid)
        return;
    to.states[at] = state::blank;
    to.allValid = false;
}

/// out[i] = convert(in[i]), or the same for all where the values are constant.
template <class In, class Out, class Convert>
void convertAll(const Vector& values, const In* in, std::size_t count, Out* out, Convert convert) {
    if (values.constant) {
        std::fill_n(out, count, convert(in[0]));
        return;
    }
    for (std::size_t i = 0; i < count; ++i)
        out[i] = convert(in[i]);
}

/// Texts as numbers, NaN where they are none.
const double* parsed(const Vector& values, std::size_t count, std::vector<double>& numbers) {
    numbers.resize(values.constant ? 1 : count);
    std::transform(values.texts.begin(),
                   values.texts.begin() + static_cast<std::ptrdiff_t>(numbers.size()),
                   numbers.begin(), numberIn);
    return numbers.data();
}

} // namespace

ValueRule::ValueRule(const language::Definition& definition)
    : variable_(*definition.variable), type_(variable_.type) {
    if (type_ == ValueType::None)
        type_ = definition.value ? definition.value->type : ValueType::Real;
    if (type_ != ValueType::String)
        ranges_ = variable_.ranges;
    missing_ = codeOf(variable_.missing);
    notApplicable_ = codeOf(variable_.notapp);
    if (definition.otherwise)
        otherwise_ = single(*definition.otherwise);
}

/// A code as a value of the variable; nothing where the type has no such value.
std::optional<ValueRule::Single> ValueRule::codeOf(std::optional<double> code) const {
    const bool fits = code && (type_ == ValueType::Real || type_ == ValueType::String ||
                               (type_ == ValueType::Boolean && (*code == 0 || *code == 1)) ||
                               (type_ == ValueType::Integer && *code == std::round(*code)));
    return fits ? single(Constant(*code)) : std::nullopt;
}

std::optional<ValueRule::Single> ValueRule::single(const Constant& constant) const {
    Single result;
    if (type_ == ValueType::String) {
        result.text = textOf(constant);
        return result;
    }
    result.real = numberOf(constant);
    if (!std::isfinite(result.real))
        return std::nullopt;
    if (const auto* integer = std::get_if<std::int64_t>(&constant)) {
        result.integer = *integer;
    } else if (const auto whole = rounded(result.real)) {
        result.integer = *whole;
    } else if (type_ == ValueType::Integer) {
        return std::nullopt;
    }
    if (type_ == ValueType::Boolean)
        result.integer = result.real != 0 ? 1 : 0;
    return result;
}

BlockValues ValueRule::begin() const {
    BlockValues values;
    values.type = type_;
    if (type_ == ValueType::String)
        values.texts = std::make_unique<storage::TextTable>(variable_.fullName());
    return values;
}

void ValueRule::add(const Vector& values, const std::uint8_t* mask, std::size_t count,
                    BlockValues& to) {
    const std::size_t begin = to.size();
    addStates(values, count, to);
    if (type_ == ValueType::Real)
        addReals(values, count, to);
    else if (type_ == ValueType::String)
        addTexts(values, count, to);
    else if (type_ == ValueType::Boolean)
        addTruths(values, count, to);
    else
        addIntegers(values, count, to);
    if (!ranges_.empty())
        dropOutside(begin, to);
    if (mask != nullptr || !values.allValid)
        putDefaults(values, mask, begin, to);
    if (!to.allValid && (missing_ || notApplicable_))
        writeCodes(begin, to);
}

void ValueRule::addStates(const Vector& values, std::size_t count, BlockValues& to) const {
    const std::size_t begin = to.size();
    to.states.resize(begin + count, state::valid);
    if (values.allValid)
        return;
    const std::size_t step = values.constant ? 0 : 1;
    std::uint8_t* out = to.states.data() + begin;
    std::uint8_t any = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t one = values.states[i * step];
        out[i] = state::combined(one, one);
        any |= one;
    }
    to.allValid = to.allValid && any == state::valid;
}

void ValueRule::addIntegers(const Vector& values, std::size_t count, BlockValues& to) {
    const std::size_t begin = to.integers.size();
    to.integers.resize(begin + count);
    std::int64_t* out = to.integers.data() + begin;
    if (values.type == ValueType::Integer || values.type == ValueType::Boolean) {
        convertAll(values, view_.integers(values), count, out, [](std::int64_t v) { return v; });
        return;
    }
    const double* in =
        values.type == ValueType::String ? parsed(values, count, parsed_) : values.reals.data();
    for (std::size_t i = 0; i < count; ++i) {
        const auto whole = rounded(in[values.constant ? 0 : i]);
        out[i] = whole.value_or(0);
        if (!whole)
            markMissing(to, begin + i);
    }
}

void ValueRule::addTruths(const Vector& values, std::size_t count, BlockValues& to) {
    const std::size_t begin = to.integers.size();
    to.integers.resize(begin + count);
    std::int64_t* out = to.integers.data() + begin;
    const auto isTrue = [](auto v) { return std::int64_t{v != 0 ? 1 : 0}; };
    if (values.type == ValueType::Boolean) {
        convertAll(values, values.truths.data(), count, out, isTrue);
    } else if (values.type == ValueType::Integer) {
        convertAll(values, values.integers.data(), count, out, isTrue);
    } else {
        const double* in =
            values.type == ValueType::String ? parsed(values, count, parsed_) : values.reals.data();
        convertAll(values, in, count, out, isTrue);
        for (std::size_t i = 0; i < count; ++i) {
            if (std::isnan(in[values.constant ? 0 : i]))
                markMissing(to, begin + i);
        }
    }
}

void ValueRule::addReals(const Vector& values, std::size_t count, BlockValues& to) {
    const std::size_t begin = to.reals.size();
    to.reals.resize(begin + count);
    double* out = to.reals.data() + begin;
    const double* in =
        values.type == ValueType::String ? parsed(values, count, parsed_) : view_.reals(values);
    convertAll(values, in, count, out, [](double v) { return v; });
    bool finite = true;
    for (std::size_t i = 0; i < count; ++i)
        finite &= out[i] - out[i] == 0;
    for (std::size_t i = 0; i < count && !finite; ++i) {
        if (!std::isfinite(out[i]))
            markMissing(to, begin + i);
    }
}

void ValueRule::addTexts(const Vector& values, std::size_t count, BlockValues& to) const {
    const std::size_t begin = to.integers.size();
    to.integers.resize(begin + count);
    const auto number = [&](std::size_t at) -> std::int64_t {
        if (values.type == ValueType::String)
            return to.texts->numberOf(values.texts[at]);
        if (values.type == ValueType::Integer)
            return to.texts->numberOf(std::to_string(values.integers[at]));
        if (values.type == ValueType::Real)
            return to.texts->numberOf(storage::numberText(values.reals[at]));
        return to.texts->numberOf(values.truths[at] != 0 ? "1" : "0");
    };
    for (std::size_t i = 0; i < count; ++i) {
        if (to.states[begin + i] == state::valid)
            to.integers[begin + i] = number(values.constant ? 0 : i);
    }
}

/// A value outside all ranges becomes MV, unless it is one of the codes for MV and NA.
void ValueRule::dropOutside(std::size_t begin, BlockValues& to) const {
    for (std::size_t i = begin; i < to.size(); ++i) {
        const double value =
            type_ == ValueType::Real ? to.reals[i] : static_cast<double>(to.integers[i]);
        if (value == variable_.missing || value == variable_.notapp)
            continue;
        if (std::none_of(ranges_.begin(), ranges_.end(),
                         [&](const catalog::Range& range) { return range.contains(value); }))
            markMissing(to, i);
    }
}

void ValueRule::putDefaults(const Vector& values, const std::uint8_t* mask, std::size_t begin,
                            BlockValues& to) const {
    for (std::size_t i = begin; i < to.size(); ++i) {
        const bool untaken = (values.stateAt(i - begin) & state::untaken) != 0;
        if (untaken || (mask != nullptr && mask[i - begin] == 0)) {
            to.states[i] = state::blank;
            to.allValid = false;
            put(otherwise_, i, to);
        }
    }
}

void ValueRule::writeCodes(std::size_t begin, BlockValues& to) const {
    for (std::size_t i = begin; i < to.size(); ++i) {
        if (to.states[i] == state::blank)
            put(missing_, i, to);
        else if (to.states[i] == state::blankNotApplicable)
            put(notApplicable_, i, to);
    }
}

void ValueRule::put(const std::optional<Single>& value, std::size_t at, BlockValues& to) const {
    if (!value)
        return;
    to.states[at] = state::valid;
    if (type_ == ValueType::Real)
        to.reals[at] = value->real;
    else if (type_ == ValueType::String)
        to.integers[at] = to.texts->numberOf(value->text);
    else
        to.integers[at] = value->integer;
}

} // namespace kelx::execution
