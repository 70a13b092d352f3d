// SPDX-License-Identifier: Apache-2.0
// Tables for reading on a terminal.
#include "output/buffered.h"
#include "storage/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>

namespace kelx::output {
namespace {

using Line = std::vector<std::string>;

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

std::string fixed(double value, int decimals) {
    char buffer[400];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return end.ec == std::errc() ? std::string(buffer, end.ptr) : toText(value);
}

/// Sums of weights have many digits that nobody reads: the other forms keep them all.
std::string shortened(double value) {
    constexpr int most = 6;
    std::string text = fixed(value, most);
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string figure(const Table& table, const Value& value) {
    const auto* real = std::get_if<double>(&value);
    if (real == nullptr || !std::isfinite(*real))
        return toText(value);
    return table.decimals ? fixed(*real, *table.decimals) : shortened(*real);
}

/// Lines that are made when they are asked for: once for the widths, once to be written.
struct Lines {
    std::size_t count = 0; ///< the first one is the heading
    std::function<Line(std::size_t)> at;
    std::size_t firstFigure = 1; ///< columns from here on are set to the right
    Line groups;                 ///< of each column, above the headings; none where it is empty
};

std::vector<std::size_t> widthsOf(const Lines& lines) {
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < lines.count; ++i) {
        const Line line = lines.at(i);
        widths.resize(std::max(widths.size(), line.size()));
        for (std::size_t column = 0; column < line.size(); ++column)
            widths[column] = std::max(widths[column], width(line[column]));
    }
    return widths;
}

/// Columns side by side that are of one group.
struct Run {
    std::size_t begin = 0, end = 0;
};

std::vector<Run> runsOf(const Line& groups) {
    std::vector<Run> runs;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (i == 0 || groups[i] != groups[i - 1])
            runs.push_back({i, i});
        runs.back().end = i + 1;
    }
    return runs;
}

std::size_t widthOf(const Run& run, const std::vector<std::size_t>& widths) {
    std::size_t total = 2 * (run.end - run.begin - 1);
    for (std::size_t i = run.begin; i < run.end; ++i)
        total += widths[i];
    return total;
}

/// Each group's name once, over all its columns, which become as wide as it is.
void writeGroups(const Line& groups, std::vector<std::size_t>& widths, Buffered& out) {
    std::string text;
    for (const Run& run : runsOf(groups)) {
        const std::string& name = groups[run.begin];
        if (width(name) > widthOf(run, widths))
            widths[run.end - 1] += width(name) - widthOf(run, widths);
        text += (run.begin == 0 ? "" : "  ") + name +
                std::string(widthOf(run, widths) - width(name), ' ');
    }
    text.erase(text.find_last_not_of(' ') + 1);
    out << text << "\n";
}

/// Every column is as wide as its widest cell.
void writeAligned(const Lines& lines, Buffered& out) {
    std::vector<std::size_t> widths = widthsOf(lines);
    if (!lines.groups.empty())
        writeGroups(lines.groups, widths, out);
    std::size_t total = widths.empty() ? 0 : 2 * (widths.size() - 1);
    for (const std::size_t w : widths)
        total += w;
    for (std::size_t i = 0; i < lines.count; ++i) {
        const Line line = lines.at(i);
        std::string text;
        for (std::size_t column = 0; column < line.size(); ++column) {
            const std::string gap(widths[column] - width(line[column]), ' ');
            text += column == 0 ? "" : "  ";
            text += column < lines.firstFigure ? line[column] + gap : gap + line[column];
        }
        text.erase(text.find_last_not_of(' ') + 1);
        out << text << "\n";
        if (i == 0)
            out << std::string(total, '-') << "\n";
    }
}

/// "1. Male", the code alone where it is its own label, "Total", "MV" or "NA".
std::string category(const Form& table, std::int64_t row, std::size_t dimension) {
    const std::string code = toText(table.at(row, dimension * 3));
    const std::string label = toText(table.at(row, dimension * 3 + 1));
    const std::string kind = toText(table.at(row, dimension * 3 + 2));
    if (kind == "tot")
        return "Total";
    if (kind == "mv" || kind == "na")
        return kind == "mv" ? "MV" : "NA";
    return safe(code == label ? code : code + ". " + label);
}

/// Columns behind the dimensions.
std::size_t figuresFrom(const Form& form) {
    return form.triples * 3;
}

Line heading(const Form& form) {
    Line line;
    for (std::size_t d = 0; d < form.triples; ++d)
        line.push_back(safe(form.fields[d * 3].label));
    for (std::size_t f = figuresFrom(form); f < form.fields.size(); ++f)
        line.push_back(safe(form.fields[f].label.starts_with('$') ? form.fields[f].name
                                                                  : form.fields[f].label));
    return line;
}

Line rowLine(const Table& table, const Form& form, std::int64_t row) {
    Line line;
    for (std::size_t d = 0; d < form.triples; ++d)
        line.push_back(category(form, row, d));
    for (std::size_t f = figuresFrom(form); f < form.fields.size(); ++f)
        line.push_back(safe(figure(table, form.at(row, f))));
    return line;
}

/// Texts stand on the left, up to the first column of figures.
std::size_t leftColumns(const Form& form) {
    if (form.triples > 0)
        return form.triples;
    const auto isText = [](const Column& column) {
        for (std::size_t row = 0; row < column.rows(); ++row) {
            const Value value = column.at(row);
            if (!std::holds_alternative<std::monostate>(value))
                return std::holds_alternative<std::string>(value);
        }
        return false;
    };
    std::size_t columns = 0;
    while (columns < form.columns.size() && isText(form.columns[columns]))
        ++columns;
    return columns;
}

/// The groups of a list's columns that their headings do not tell; none where all do.
Line groupsOf(const Table& table) {
    constexpr int list = 1;
    Line groups;
    bool any = false;
    for (std::size_t i = 0; table.type == list && i < table.fields.size(); ++i) {
        const Field& field = table.fields[i];
        const bool told = field.group == field.label || field.group == field.name;
        groups.push_back(told ? "" : safe(field.group));
        any = any || !told;
    }
    return any ? groups : Line();
}

void writeList(const Table& table, Buffered& out) {
    const Form& form = table.tripleForm();
    const auto at = [&](std::size_t i) {
        return i == 0 ? heading(form) : rowLine(table, form, static_cast<std::int64_t>(i) - 1);
    };
    writeAligned(
        {static_cast<std::size_t>(form.rows()) + 1, at, leftColumns(form), groupsOf(table)}, out);
}

/// The categories of a dimension that occur, in the order of their places: codes, the total, MV,
/// NA.
struct Axis {
    Line names;
    std::vector<std::size_t> places; ///< by the number of the value

    Axis(const Form& table, std::size_t dimension) {
        const Column& column = table.columns[dimension * 3];
        constexpr std::int64_t none = -1;
        std::vector<std::int64_t> rows(column.values->size(), none); ///< where a value stands
        for (std::size_t row = 0; row < column.rows(); ++row)
            rows[(*column.numbers)[row]] = static_cast<std::int64_t>(row);
        for (const std::int64_t row : rows) {
            places.push_back(names.size());
            if (row != none)
                names.push_back(category(table, row, dimension));
        }
    }
    std::size_t at(const Form& table, std::size_t dimension, std::int64_t row) const {
        return places[(*table.columns[dimension * 3].numbers)[static_cast<std::size_t>(row)]];
    }
};

void writeCross(const Table& table, const Axis& rows, const Axis& columns, Buffered& out) {
    const Form& form = table.tripleForm();
    std::vector<Line> grid(rows.names.size() + 1, Line(columns.names.size() + 1, "-"));
    grid[0] = {safe(form.fields[0].label + " by " + form.fields[3].label)};
    grid[0].insert(grid[0].end(), columns.names.begin(), columns.names.end());
    for (std::size_t r = 0; r < rows.names.size(); ++r)
        grid[r + 1][0] = rows.names[r];
    for (std::int64_t row = 0; row < form.rows(); ++row)
        grid[rows.at(form, 0, row) + 1][columns.at(form, 1, row) + 1] =
            figure(table, form.at(row, 6));
    writeAligned({grid.size(), [&](std::size_t i) { return grid[i]; }, 1, {}}, out);
}

/// Two dimensions and one figure make a cross table, unless that would be mostly empty and larger
/// than memory.
void writeBody(const Table& table, Buffered& out) {
    constexpr std::size_t mostCrossed = 2'000'000;
    const Form& form = table.tripleForm();
    if (form.triples != 2 || form.fields.size() != 7)
        return writeList(table, out);
    const Axis rows(form, 0);
    const Axis columns(form, 1);
    if (rows.names.size() * columns.names.size() > mostCrossed)
        writeList(table, out);
    else
        writeCross(table, rows, columns, out);
}

void writeLine(Buffered& out, const char* what, const std::optional<std::string>& value) {
    if (value)
        out << what << ": " << safe(*value) << "\n";
}

} // namespace

void writeText(const Table& table, const TextSink& sink) {
    Buffered out(sink);
    if (table.title)
        out << safe(*table.title) << "\n";
    out << safe(table.name) << " (" << table.kind << ")\n";
    writeLine(out, "Database", table.database);
    writeLine(out, "Area", table.area);
    if (!table.unit.empty())
        writeLine(out, "Unit of count", table.unit);
    writeLine(out, "Weight", table.weight);
    writeLine(out, "Tally", table.tally);
    writeLine(out, "Filter", table.filter);
    writeLine(out, "Universal filter", table.universalFilter);
    out << "\n";
    writeBody(table, out);
    if (table.suppressed > 0)
        out << std::to_string(table.suppressed)
            << (table.suppressed == 1 ? " cell is suppressed.\n" : " cells are suppressed.\n");
    out.finish();
}

} // namespace kelx::output
