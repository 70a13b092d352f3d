// SPDX-License-Identifier: Apache-2.0
#include "measure_fixture.h"

#include "execution/progress.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace kelx::test {

using execution::Figure;

language::BoundProgram measureProgram(catalog::Dictionary& dictionary,
                                      const MeasureQuestion& question) {
    const std::string head = question.settings + "\nFREQ ";
    const std::string by = question.by.empty() ? "PERSON.SEX" : question.by;
    language::BoundProgram program =
        compiled(dictionary, head + by + " TALLY " + question.measure + " " + question.clauses);
    language::TableCommand& command = program.tables.at(0);
    command.kind = question.kind;
    command.quantiles = question.parts;
    command.measure = std::move(command.tally);
    command.tally = nullptr;
    if (question.by.empty())
        command.dimensions.clear();
    if (!question.tally.empty()) {
        language::BoundProgram other =
            compiled(dictionary, "FREQ PERSON.SEX TALLY " + question.tally);
        command.tally = other.tables.at(0).tally;
    }
    return program;
}

namespace {

std::string nameOf(const execution::TableResult& table, std::size_t cell) {
    std::string name;
    for (std::size_t d = 0; d < table.dimensions.size(); ++d) {
        const auto& category = table.dimensions[d].categories.at(table.cells.categories(cell)[d]);
        name += d > 0 ? "|" : "";
        name += category.kind == execution::CategoryKind::Valid     ? category.code
                : category.kind == execution::CategoryKind::Missing ? "MV"
                                                                    : "NA";
    }
    return name;
}

MeasureRows rowsOf(const execution::TableResult& table) {
    execution::RowCells rows;
    std::vector<std::string> names;
    const auto add = [&](const std::string& name, auto holds) {
        for (std::size_t cell = 0; cell < table.cells.size(); ++cell) {
            if (holds(cell))
                rows.cells.push_back(static_cast<std::uint32_t>(cell));
        }
        rows.begins.push_back(rows.cells.size());
        names.push_back(name);
    };
    add("all", [](std::size_t) { return true; });
    add("even", [](std::size_t cell) { return cell % 2 == 0; });
    add("none", [](std::size_t) { return false; });
    for (std::size_t own = 0; own < table.cells.size(); ++own) {
        rows.cells.push_back(static_cast<std::uint32_t>(own));
        rows.begins.push_back(rows.cells.size());
        names.push_back(nameOf(table, own));
    }
    execution::Progress silent{{}};
    const std::vector<Figure> figures = table.measured->work(rows, silent);
    const std::size_t width = table.measured->figures();
    if (figures.size() != names.size() * width)
        throw std::runtime_error("not so many figures as rows ask for");
    MeasureRows result;
    for (std::size_t row = 0; row < names.size(); ++row)
        result[names[row]] = {figures.begin() + static_cast<std::ptrdiff_t>(row * width),
                              figures.begin() + static_cast<std::ptrdiff_t>((row + 1) * width)};
    return result;
}

} // namespace

MeasureRows measureWith(catalog::Dictionary& dictionary, const MeasureQuestion& question,
                        const execution::RunOptions& options) {
    const language::BoundProgram program = measureProgram(dictionary, question);
    language::Messages messages;
    const execution::RunResult result = execution::run(program, options, messages);
    return rowsOf(result.tables.at(0));
}

MeasureRows measure(catalog::Dictionary& dictionary, const MeasureQuestion& question,
                    const std::vector<std::size_t>& blocks) {
    execution::RunOptions options;
    options.threads = 1;
    MeasureRows first = measureWith(dictionary, question, options);
    const unsigned threads[] = {2, 3};
    for (std::size_t i = 0; i < std::max(blocks.size(), std::size(threads)); ++i) {
        options.threads = threads[i % std::size(threads)];
        options.blockRecords = blocks[i % blocks.size()];
        if (measureWith(dictionary, question, options) != first)
            throw std::runtime_error("threads or blocks change the figures of " + question.measure);
    }
    return first;
}

double number(const Figure& figure) {
    if (const auto* whole = std::get_if<std::int64_t>(&figure))
        return static_cast<double>(*whole);
    const auto* real = std::get_if<double>(&figure);
    return real != nullptr ? *real : blankReal;
}

Expected::Expected(std::vector<Case> of, bool isWeighted)
    : sorted(std::move(of)), weighted(isWeighted) {
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Case& a, const Case& b) { return a.value < b.value; });
}

double Expected::cases() const {
    long double sum = 0;
    for (const Case& c : sorted)
        sum += c.weight;
    return static_cast<double>(sum);
}

double Expected::sum() const {
    long double sum = 0;
    for (const Case& c : sorted)
        sum += static_cast<long double>(c.weight) * c.value;
    return static_cast<double>(sum);
}

double Expected::quantile(int i, int parts) const {
    if (sorted.empty())
        return blankReal;
    const long double p = static_cast<long double>(i) / parts;
    if (!weighted) {
        const long double h = static_cast<long double>(sorted.size() - 1) * p;
        const auto below = static_cast<std::size_t>(h + 1e-9L);
        const long double share = std::max(h - static_cast<long double>(below), 0.0L);
        const double low = sorted[below].value;
        const double high = sorted[std::min(below + 1, sorted.size() - 1)].value;
        return static_cast<double>(low + share * (high - low));
    }
    const long double target = cases() * p;
    long double running = 0;
    for (const Case& c : sorted) {
        running += c.weight;
        if (running >= target * (1 - 1e-13L))
            return c.value;
    }
    return sorted.back().value;
}

double Expected::variance() const {
    const long double middle = mean();
    long double squares = 0;
    for (const Case& c : sorted) {
        const long double distance = c.value - middle;
        squares += c.weight * distance * distance;
    }
    return cases() > 1 ? static_cast<double>(squares / (cases() - 1)) : blankReal;
}

double Expected::gini() const {
    long double first = 0;
    long double second = 0;
    long double running = 0;
    for (const Case& c : sorted) {
        running += c.weight;
        first += static_cast<long double>(c.weight) * c.value * running;
        second += static_cast<long double>(c.weight) * c.weight * c.value;
    }
    return static_cast<double>((2 * first - second) / (static_cast<long double>(cases()) * sum()) -
                               1);
}

std::vector<double> Expected::stats() const {
    const double deviation = std::sqrt(variance());
    return {cases(),
            sum(),
            mean(),
            quantile(1, 2),
            sorted.front().value,
            sorted.back().value,
            deviation,
            variance(),
            deviation / mean() * 100,
            deviation / std::sqrt(cases())};
}

} // namespace kelx::test
