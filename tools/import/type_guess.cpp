// SPDX-License-Identifier: Apache-2.0
#include "import/type_guess.h"

#include "import/values.h"

#include <algorithm>
#include <cmath>

namespace kelx::tools {

namespace {

using storage::ValueType;

constexpr std::int64_t mostExact = std::int64_t{1} << 53;

const FieldPlan& realField() {
    static const FieldPlan field = [] {
        FieldPlan real;
        real.type = ValueType::Real;
        return real;
    }();
    return field;
}

std::string_view withoutSign(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    return text;
}

bool hasZerosInFront(std::string_view text) {
    const std::string_view digits = withoutSign(text);
    return digits.size() > 1 && digits[0] == '0' && digits[1] != '.';
}

bool isWhole(std::string_view text) {
    const std::string_view digits = withoutSign(text);
    return !text.starts_with('+') && !digits.empty() &&
           digits.find_first_not_of("0123456789") == std::string_view::npos;
}

void keepFirst(std::optional<TypeGuess::Culprit>& first, const RowSource& source, std::size_t index,
               std::string_view text, const char* why) {
    if (!first)
        first = {std::string(text), why, source.place(index)};
}

} // namespace

void TypeGuess::note(const RowSource& source, std::size_t index, const SourceField& field) {
    const SourceValue value = source.value(index);
    if (value.isBlank())
        return;
    if (value.kind == SourceValue::Kind::Text)
        return noteText(source, index, value.text, field.numeric);
    double number = value.number;
    for (const Recode& recode : field.plan.recodes)
        if (number >= recode.lowest && number <= recode.highest)
            number = recode.code;
    noteNumber(number);
}

void TypeGuess::noteText(const RowSource& source, std::size_t index, std::string_view text,
                         bool numeric) {
    const bool code = !numeric && hasZerosInFront(text);
    const auto real = code ? std::nullopt : parseReal(text);
    ++numbers_;
    if (const auto integer = code ? std::nullopt : parseInteger(text)) {
        noteInteger(*integer);
        if (*integer > mostExact || *integer < -mostExact)
            keepFirst(firstLarge_, source, index, text,
                      "cannot be told from its neighbours beside numbers that are not whole");
        if (!seen_.fits())
            keepFirst(lastBound_, source, index, text, "lies too far from the other values");
    } else if (!code && isWhole(text)) {
        keepFirst(firstWide_, source, index, text, "is a whole number beyond 64 bits");
    } else if (real) {
        noteReal(*real, text);
        keepFirst(firstReal_, source, index, text, "is a key that is no whole number");
    } else {
        --numbers_;
        if (numeric)
            return; // a fault, told elsewhere
        ++others_;
        keepFirst(firstOther_, source, index, text,
                  code                  ? "has zeros in front"
                  : isBeyondReals(text) ? "is beyond the numbers that can be held"
                                        : "is no number");
    }
}

void TypeGuess::noteNumber(double number) {
    if (number == std::trunc(number) && std::abs(number) <= static_cast<double>(mostExact))
        return noteInteger(static_cast<std::int64_t>(number));
    noteReal(number, {});
}

void TypeGuess::noteReal(double number, std::string_view text) {
    hasReals_ = true;
    TypedValue value;
    value.blank = false;
    value.real = number;
    value.text = text;
    seen_.field = &realField();
    seen_.note(value);
}

void TypeGuess::noteInteger(std::int64_t value) {
    seen_.lowest = std::min(seen_.lowest, value);
    seen_.highest = std::max(seen_.highest, value);
}

TypeGuess::First TypeGuess::whyText(const SourceField& field) const {
    if (firstOther_)
        return firstOther_;
    if (firstWide_)
        return firstWide_;
    if (hasReals_ && firstLarge_)
        return firstLarge_;
    if (firstReal_ && field.plan.role == FieldRole::Key)
        return firstReal_;
    return hasReals_ ? std::nullopt : lastBound_;
}

void TypeGuess::settle(SourceField& field, ColumnSummary& summary) {
    culprit_ = whyText(field);
    field.plan.type = culprit_    ? ValueType::String
                      : hasReals_ ? ValueType::Real
                                  : ValueType::Integer;
    summary.lowest = seen_.lowest;
    summary.highest = seen_.highest;
    summary.decimals = seen_.decimals;
}

} // namespace kelx::tools
