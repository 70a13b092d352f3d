// SPDX-License-Identifier: Apache-2.0
#include "import/typed_value.h"

#include "import/values.h"

#include <algorithm>
#include <cmath>

namespace kelx::tools {

namespace {

using storage::ValueType;

constexpr double mostExact = 9007199254740992.0; // 2^53

double powerOfTen(int exponent) {
    double power = 1;
    for (int i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

double recoded(const FieldPlan& field, double number) {
    for (const Recode& recode : field.recodes)
        if (number >= recode.lowest && number <= recode.highest)
            return recode.code;
    return number;
}

std::string readNumber(double number, const FieldPlan& field, TypedValue& typed) {
    if (std::isnan(number))
        return {};
    number = recoded(field, number);
    typed.blank = false;
    typed.real = number;
    if (field.type == ValueType::Real)
        return std::isfinite(number) ? "" : " is not a finite number";
    if (field.type == ValueType::String)
        return " is a number, not a text";
    if (number != std::trunc(number) || std::abs(number) > mostExact)
        return " is not a whole number that can be held";
    typed.integer = static_cast<std::int64_t>(number);
    const bool isTruth = typed.integer == 0 || typed.integer == 1;
    return field.type == ValueType::Boolean && !isTruth ? " is neither 0 nor 1" : "";
}

std::string readText(std::string_view text, const FieldPlan& field, TypedValue& typed) {
    typed.text = text;
    typed.blank = false;
    if (field.width == 0)
        return {};
    const std::size_t length = characterCount(text);
    const auto width = static_cast<std::size_t>(field.width);
    if (length > width || (field.exactWidth() && length != width))
        return " has " + std::to_string(length) +
               (length == 1 ? " character, not " : " characters, not ") +
               (field.exactWidth() ? "" : "at most ") + std::to_string(width);
    return {};
}

std::string readInteger(std::string_view text, TypedValue& typed) {
    const auto number = parseInteger(text);
    if (!number)
        return parseReal(text) ? " is not a whole number that can be held" : " is not a number";
    typed.integer = *number;
    return {};
}

std::string readReal(std::string_view text, const FieldPlan& field, TypedValue& typed) {
    const auto number = parseReal(text);
    if (!number)
        return " is not a number";
    const bool implied = field.impliedDecimals > 0 && parseInteger(text);
    typed.real = implied ? *number / powerOfTen(field.impliedDecimals) : *number;
    return {};
}

} // namespace

std::string readValue(const SourceValue& value, const FieldPlan& field, TypedValue& typed) {
    typed = {};
    if (value.isBlank())
        return {};
    if (value.kind == SourceValue::Kind::Number)
        return readNumber(value.number, field, typed);
    if (field.type == ValueType::String)
        return readText(value.text, field, typed);
    typed.text = value.text;
    typed.blank = false;
    if (field.type == ValueType::Integer)
        return readInteger(value.text, typed);
    if (field.type == ValueType::Real)
        return readReal(value.text, field, typed);
    const auto truth = parseBoolean(value.text);
    if (!truth)
        return " is neither 0 nor 1, false nor true, no nor yes";
    typed.integer = *truth ? 1 : 0;
    return {};
}

void ColumnSummary::note(const TypedValue& value) {
    if (value.blank)
        return;
    if (field->type == ValueType::Integer) {
        lowest = std::min(lowest, value.integer);
        highest = std::max(highest, value.integer);
    } else if (field->type == ValueType::Real) {
        const bool asWritten = !value.text.empty() && field->impliedDecimals == 0;
        if (!asWritten && value.real == std::trunc(value.real))
            return;
        const std::string text = asWritten ? std::string() : numberText(value.real);
        const std::string_view shown = asWritten ? value.text : std::string_view(text);
        const std::size_t point = shown.find('.');
        const std::size_t digits = point == std::string_view::npos ? 0 : shown.size() - point - 1;
        decimals = std::max(decimals, static_cast<int>(std::min<std::size_t>(digits, 15)));
    }
}

bool ColumnSummary::fits() const {
    return lowest > highest ||
           static_cast<std::uint64_t>(highest) - static_cast<std::uint64_t>(lowest) <
               std::numeric_limits<std::uint64_t>::max();
}

} // namespace kelx::tools
