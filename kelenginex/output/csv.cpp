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

} // namespace

void writeCsv(const Table& table, const TextSink& sink) {
    Buffered out(sink);
    const auto endOf = [&](std::size_t column) {
        return column + 1 < table.fields.size() ? "," : "\r\n";
    };
    for (std::size_t column = 0; column < table.fields.size(); ++column)
        out << quoted(table.fields[column].name) << endOf(column);
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
