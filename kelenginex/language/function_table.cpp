// SPDX-License-Identifier: Apache-2.0
#include "language/function_table.h"

#include "language/text.h"

#include <algorithm>

namespace kelx::language {

const std::vector<FunctionEntry>& functionTable() {
    using enum Parameter;
    using storage::ValueType;
    static const std::vector<FunctionEntry> table = {
        {"ABS", {Number}, ValueType::None, "ABS(number)", "The number without its sign."},
        {"CMPCODE",
         {Entity},
         ValueType::String,
         "CMPCODE(entity)",
         "The compound code of the record's area of that entity."},
        {"LEFT",
         {Text, Whole},
         ValueType::String,
         "LEFT(text, size)",
         "The first characters of a text."},
        {"LENGTH", {Text}, ValueType::Integer, "LENGTH(text)", "The number of characters."},
        {"LN", {Number}, ValueType::Real, "LN(number)", "The natural logarithm."},
        {"LOG", {Number}, ValueType::Real, "LOG(number)", "The logarithm to base 10."},
        {"LOWER", {Text}, ValueType::String, "LOWER(text)", "The text in small letters."},
        {"LTRIM",
         {Text},
         ValueType::String,
         "LTRIM(text)",
         "The text without the blanks at its beginning."},
        {"MISSING",
         {Variable},
         ValueType::Boolean,
         "MISSING(variable)",
         "True where the value is missing."},
        {"NOTAPPLICABLE",
         {Variable},
         ValueType::Boolean,
         "NOTAPPLICABLE(variable)",
         "True where the variable does not apply."},
        {"POS",
         {Text, Text},
         ValueType::Integer,
         "POS(text, wanted)",
         "The place of the wanted text in the text, from 1; 0 where it is not there."},
        {"RIGHT",
         {Text, Whole},
         ValueType::String,
         "RIGHT(text, size)",
         "The last characters of a text."},
        {"RTRIM",
         {Text},
         ValueType::String,
         "RTRIM(text)",
         "The text without the blanks at its end."},
        {"SQRT", {Number}, ValueType::Real, "SQRT(number)", "The square root."},
        {"STR", {Number}, ValueType::String, "STR(number)", "The number as a text."},
        {"SUBSTR",
         {Text, Whole, Whole},
         ValueType::String,
         "SUBSTR(text, start, length)",
         "A part of the text; the first character is 1."},
        {"TRIM", {Text}, ValueType::String, "TRIM(text)", "The text without blanks at its ends."},
        {"UPPER", {Text}, ValueType::String, "UPPER(text)", "The text in capital letters."},
        {"VAL", {Text}, ValueType::Real, "VAL(text)", "The number that the text holds."},
    };
    return table;
}

const FunctionEntry* findFunction(std::string_view name) {
    const std::vector<FunctionEntry>& table = functionTable();
    const std::string wanted = upperCase(name);
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const FunctionEntry& e) { return wanted == e.name; });
    return found == table.end() ? nullptr : &*found;
}

} // namespace kelx::language
