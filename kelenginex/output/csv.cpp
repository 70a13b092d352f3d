// SPDX-License-Identifier: Apache-2.0
#include "output/buffered.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

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

/// A column whose values, where they repeat, are put into words once.
class CsvColumn {
public:
    explicit CsvColumn(const Column& column) : column_(column) {
        if (!column.numbers)
            return;
        for (const Value& value : *column.values)
            texts_.push_back(quoted(toText(value)));
    }
    void write(std::size_t row, Buffered& out) const {
        if (column_.numbers)
            out << texts_[(*column_.numbers)[row]];
        else
            out << quoted(toText(column_.at(row)));
    }

private:
    const Column& column_;
    std::vector<std::string> texts_;
};

/// The names of the fields; where tables have one name for their columns, with theirs before it.
std::vector<std::string> headersOf(const Table& table) {
    std::map<std::string_view, std::size_t> times;
    for (const Field& field : table.fields)
        ++times[field.name];
    std::vector<std::string> headers;
    for (const Field& field : table.fields) {
        const bool plain = times[field.name] == 1 || field.table.empty();
        headers.push_back(plain ? field.name : field.table + " " + field.name);
    }
    return headers;
}

} // namespace

void writeCsv(const Table& table, const TextSink& sink) {
    Buffered out(sink);
    const auto endOf = [&](std::size_t column) {
        return column + 1 < table.fields.size() ? "," : "\r\n";
    };
    const std::vector<std::string> headers = headersOf(table);
    for (std::size_t column = 0; column < headers.size(); ++column)
        out << quoted(headers[column]) << endOf(column);
    const std::vector<CsvColumn> columns(table.columns.begin(), table.columns.end());
    for (std::size_t row = 0; row < static_cast<std::size_t>(table.rows()); ++row) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            columns[column].write(row, out);
            out << endOf(column);
        }
    }
    out.finish();
}

} // namespace kelx::output
