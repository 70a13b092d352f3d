// SPDX-License-Identifier: Apache-2.0
#include "import/type_guess.h"

#include "import/values.h"

#include <algorithm>
#include <cmath>

namespace kelx::tools {

namespace {

using storage::ValueType;

constexpr double mostExact = 9007199254740992.0; // 2^53

const FieldPlan& realField() {
    static const FieldPlan field = [] {
        FieldPlan real;
        real.type = ValueType::Real;
        return real;
    }();
    return field;
}

bool hasZerosInFront(std::string_view text) {
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    return text.size() > 1 && text[0] == '0' && text[1] != '.';
}

} // namespace

void TypeGuess::note(const SourceValue& value, const SourceField& field) {
    if (value.isBlank())
        return;
    if (value.kind == SourceValue::Kind::Text)
        return noteText(value.text, field.numeric);
    double number = value.number;
    for (const Recode& recode : field.plan.recodes)
        if (number >= recode.lowest && number <= recode.highest)
            number = recode.code;
    noteNumber(number);
}

void TypeGuess::noteText(std::string_view text, bool numeric) {
    if (texts_)
        return;
    const bool code = !numeric && hasZerosInFront(text);
    if (const auto integer = parseInteger(text); integer && !code) {
        noteInteger(*integer);
        return;
    }
    const auto real = parseReal(text);
    if (!real && numeric)
        return; // a fault, told elsewhere
    integers_ = false;
    texts_ = !real || code;
    reals_ = !texts_;
    if (reals_) {
        TypedValue value;
        value.blank = false;
        value.real = *real;
        value.text = text;
        seen_.field = &realField();
        seen_.note(value);
    }
}

void TypeGuess::noteNumber(double number) {
    if (number == std::trunc(number) && std::abs(number) <= mostExact)
        return noteInteger(static_cast<std::int64_t>(number));
    integers_ = false;
    TypedValue value;
    value.blank = false;
    value.real = number;
    seen_.field = &realField();
    seen_.note(value);
}

void TypeGuess::noteInteger(std::int64_t value) {
    seen_.lowest = std::min(seen_.lowest, value);
    seen_.highest = std::max(seen_.highest, value);
}

void TypeGuess::settle(SourceField& field, ColumnSummary& summary) const {
    field.plan.type = integers_                 ? ValueType::Integer
                      : reals_ || field.numeric ? ValueType::Real
                                                : ValueType::String;
    summary.lowest = seen_.lowest;
    summary.highest = seen_.highest;
    summary.decimals = seen_.decimals;
}

} // namespace kelx::tools
