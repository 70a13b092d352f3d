// SPDX-License-Identifier: Apache-2.0
// Tables for reading on a terminal.
#include "output/table.h"
#include "storage/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>

namespace kelx::output {
namespace {

using Grid = std::vector<std::vector<std::string>>;

std::size_t width(const std::string& text) {
    return storage::characterCount(text);
}

/// One line, without what could move a terminal's cursor.
std::string safe(const std::string& text) {
    std::string result = text;
    for (char& c : result) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            c = ' ';
    }
    return result;
}

std::string figure(const Table& table, const Value& value) {
    const auto* real = std::get_if<double>(&value);
    if (real == nullptr || !table.decimals || !std::isfinite(*real))
        return toText(value);
    char buffer[400];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, *real, std::chars_format::fixed,
                                   *table.decimals);
    return end.ec == std::errc() ? std::string(buffer, end.ptr) : toText(value);
}

/// Columns from `firstFigure` on are set to the right. Every column is as wide as its widest cell.
std::string aligned(const Grid& grid, std::size_t firstFigure) {
    std::vector<std::size_t> widths;
    for (const auto& row : grid) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], width(row[i]));
    }
    std::string result;
    for (std::size_t r = 0; r < grid.size(); ++r) {
        std::string line;
        for (std::size_t i = 0; i < grid[r].size(); ++i) {
            const std::string gap(widths[i] - width(grid[r][i]), ' ');
            line += i == 0 ? "" : "  ";
            line += i < firstFigure ? grid[r][i] + gap : gap + grid[r][i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        result += line + "\n";
        if (r == 0) {
            std::size_t total = widths.empty() ? 0 : 2 * (widths.size() - 1);
            for (const std::size_t w : widths)
                total += w;
            result += std::string(total, '-') + "\n";
        }
    }
    return result;
}

/// "1. Male", the code alone where it is its own label, "Total", "MV" or "NA".
std::string category(const Table& table, std::int64_t row, std::size_t dimension) {
    const std::string code = toText(table.at(row, dimension * 3));
    const std::string label = toText(table.at(row, dimension * 3 + 1));
    const std::string kind = toText(table.at(row, dimension * 3 + 2));
    if (kind == "tot")
        return "Total";
    if (kind == "mv" || kind == "na")
        return kind == "mv" ? "MV" : "NA";
    return safe(code == label ? code : code + ". " + label);
}

std::string body(const Table& table) {
    const auto dimensions = static_cast<std::size_t>(table.dimension);
    Grid grid(1);
    const std::size_t texts = dimensions == 0 ? 1 : dimensions;
    for (std::size_t d = 0; d < dimensions; ++d)
        grid[0].push_back(safe(table.fields[d * 3].label));
    for (std::size_t f = dimensions * 3; f < table.fields.size(); ++f)
        grid[0].push_back(safe(table.fields[f].label));
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        std::vector<std::string> line;
        for (std::size_t d = 0; d < dimensions; ++d)
            line.push_back(category(table, row, d));
        for (std::size_t f = dimensions * 3; f < table.fields.size(); ++f)
            line.push_back(safe(figure(table, table.at(row, f))));
        grid.push_back(std::move(line));
    }
    return aligned(grid, texts);
}

/// Where the categories of a dimension stand: in the order of codes, then the total, MV, NA. Rows
/// come in that order, but a category may first meet the second dimension in a late row.
struct Axis {
    std::vector<std::string> names;
    std::map<std::pair<std::string, std::string>, std::size_t> places; ///< by kind and code
};

std::pair<std::string, std::string> keyOf(const Table& table, std::int64_t row,
                                          std::size_t dimension) {
    return {toText(table.at(row, dimension * 3 + 2)), toText(table.at(row, dimension * 3))};
}

void place(const Table& table, std::int64_t row, std::size_t dimension, Axis& axis) {
    if (axis.places.emplace(keyOf(table, row, dimension), axis.names.size()).second)
        axis.names.push_back(category(table, row, dimension));
}

/// The rows under the total of the other dimension name every category in order; those that only
/// occur beside MV or NA come after them.
Axis axisOf(const Table& table, std::size_t dimension) {
    Axis axis;
    for (const bool underTotal : {true, false}) {
        for (std::int64_t row = 0; row < table.rows(); ++row) {
            const bool isUnder = keyOf(table, row, 1 - dimension).first == "tot";
            if (isUnder == underTotal)
                place(table, row, dimension, axis);
        }
    }
    return axis;
}

std::string crossTable(const Table& table) {
    const Axis rows = axisOf(table, 0);
    const Axis columns = axisOf(table, 1);
    Grid grid(rows.names.size() + 1, std::vector<std::string>(columns.names.size() + 1));
    grid[0][0] = safe(table.fields[0].label + " by " + table.fields[3].label);
    for (std::size_t c = 0; c < columns.names.size(); ++c)
        grid[0][c + 1] = columns.names[c];
    for (std::size_t r = 0; r < rows.names.size(); ++r) {
        grid[r + 1][0] = rows.names[r];
        for (std::size_t c = 0; c < columns.names.size(); ++c)
            grid[r + 1][c + 1] = "-";
    }
    for (std::int64_t row = 0; row < table.rows(); ++row) {
        const std::size_t r = rows.places.at(keyOf(table, row, 0));
        const std::size_t c = columns.places.at(keyOf(table, row, 1));
        grid[r + 1][c + 1] = figure(table, table.at(row, 6));
    }
    return aligned(grid, 1);
}

void addLine(std::string& text, const char* what, const std::optional<std::string>& value) {
    if (value)
        text += std::string(what) + ": " + safe(*value) + "\n";
}

} // namespace

std::string asText(const Table& table) {
    std::string text = table.title ? safe(*table.title) + "\n" : std::string();
    text += safe(table.name) + " (" + table.kind + ")\n";
    addLine(text, "Database", table.database);
    addLine(text, "Area", table.area);
    addLine(text, "Unit of count", table.unit);
    addLine(text, "Weight", table.weight);
    addLine(text, "Tally", table.tally);
    addLine(text, "Filter", table.filter);
    addLine(text, "Universal filter", table.universalFilter);
    text += "\n" + (table.dimension == 2 ? crossTable(table) : body(table));
    if (table.suppressed > 0)
        text += std::to_string(table.suppressed) + " cells are not shown, to protect persons.\n";
    return text;
}

} // namespace kelx::output
