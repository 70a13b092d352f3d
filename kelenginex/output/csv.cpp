// SPDX-License-Identifier: Apache-2.0
#include "output/table.h"

namespace kelx::output {
namespace {

std::string quoted(const std::string& text) {
    if (text.find_first_of("\",\r\n") == std::string::npos)
        return text;
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"')
            result += '"';
        result += c;
    }
    return result + '"';
}

} // namespace

std::string asCsv(const Table& table) {
    std::string result;
    const auto endCell = [&](std::size_t column) {
        result += column + 1 < table.fields.size() ? "," : "\r\n";
    };
    for (std::size_t column = 0; column < table.fields.size(); ++column) {
        result += quoted(table.fields[column].name);
        endCell(column);
    }
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        for (std::size_t column = 0; column < table.fields.size(); ++column) {
            result += quoted(toText(table.at(row, column)));
            endCell(column);
        }
    }
    return result;
}

} // namespace kelx::output
