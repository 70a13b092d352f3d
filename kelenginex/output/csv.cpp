// SPDX-License-Identifier: Apache-2.0
#include "output/buffered.h"

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

void writeCsv(const Table& table, const TextSink& sink) {
    Buffered out(sink);
    const auto endOf = [&](std::size_t column) {
        return column + 1 < table.fields.size() ? "," : "\r\n";
    };
    for (std::size_t column = 0; column < table.fields.size(); ++column)
        out << quoted(table.fields[column].name) << endOf(column);
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        for (std::size_t column = 0; column < table.fields.size(); ++column)
            out << quoted(toText(table.at(row, column))) << endOf(column);
    }
    out.finish();
}

} // namespace kelx::output
