// SPDX-License-Identifier: Apache-2.0
#include "output/sorting.h"

#include "catalog/names.h"
#include "language/message_table.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <optional>
#include <utility>

namespace kelx::output {
namespace {

using Order = std::vector<std::uint32_t>;

std::optional<std::size_t> findField(const Table& table, const std::string& name,
                                     std::string Field::*text) {
    for (std::size_t i = 0; i < table.fields.size(); ++i) {
        if (catalog::sameName(table.fields[i].*text, name))
            return i;
    }
    return std::nullopt;
}

[[noreturn]] void throwNoColumn(const Table& table, const language::SortClause& clause,
                                const std::string& column, const std::string& hint) {
    throw SortFault(language::makeMessage(language::Error::SortColumn, clause.position,
                                          {table.name, column, hint}));
}

[[noreturn]] void throwNoColumn(const Table& table, const language::SortClause& clause) {
    constexpr std::size_t mostNamed = 20;
    std::string names;
    for (std::size_t i = 0; i < table.fields.size() && i < mostNamed; ++i)
        names += (i > 0 ? ", " : "") + table.fields[i].name;
    if (table.fields.size() > mostNamed)
        names += " and " + std::to_string(table.fields.size() - mostNamed) + " more";
    throwNoColumn(table, clause, "\"" + clause.column + "\"", " Its columns are " + names + ".");
}

std::size_t columnOf(const SortGuide::Part& part, const Table& table,
                     const language::SortClause& clause) {
    if (!clause.element)
        return part.total;
    const auto element = static_cast<std::size_t>(std::max(*clause.element, 1));
    if (element > part.columns)
        throwNoColumn(table, clause, std::to_string(element) + " of " + part.name,
                      " That table has " + std::to_string(part.columns) + ".");
    return part.first + element - 1;
}

std::size_t columnOf(const Laid& laid, const language::SortClause& clause) {
    if (clause.column.empty())
        return laid.guide.column;
    for (const auto& [name, column] : laid.guide.names) {
        if (catalog::sameName(name, clause.column))
            return column;
    }
    for (const SortGuide::Part& part : laid.guide.parts) {
        if (catalog::sameName(part.name, clause.column))
            return columnOf(part, laid.table, clause);
    }
    if (const auto field = findField(laid.table, clause.column, &Field::name))
        return *field;
    if (const auto field = findField(laid.table, clause.column, &Field::label))
        return *field;
    throwNoColumn(laid.table, clause);
}

/// A single number behind a table that has not so many columns is the limit.
language::SortClause understood(const Laid& laid, language::SortClause clause) {
    const bool single = clause.element && !clause.limit;
    for (const SortGuide::Part& part : laid.guide.parts) {
        if (single && catalog::sameName(part.name, clause.column) &&
            static_cast<std::size_t>(std::max(*clause.element, 1)) > part.columns)
            clause.limit = std::exchange(clause.element, std::nullopt);
    }
    return clause;
}

/// -1, 0 or 1; numbers come before texts.
int compared(const Value& a, const Value& b) {
    const auto sign = [](const auto& x, const auto& y) { return x < y ? -1 : y < x ? 1 : 0; };
    const auto* textA = std::get_if<std::string>(&a);
    const auto* textB = std::get_if<std::string>(&b);
    if (textA != nullptr && textB != nullptr)
        return sign(*textA, *textB); // of UTF-8, bytes are in the order of code points
    if (textA != nullptr || textB != nullptr)
        return textA != nullptr ? 1 : -1;
    const auto* integerA = std::get_if<std::int64_t>(&a);
    const auto* integerB = std::get_if<std::int64_t>(&b);
    if (integerA != nullptr && integerB != nullptr)
        return sign(*integerA, *integerB);
    const auto real = [](const Value& value) {
        const auto* integer = std::get_if<std::int64_t>(&value);
        return integer != nullptr ? static_cast<double>(*integer) : std::get<double>(value);
    };
    return sign(real(a), real(b));
}

/// The rank of each row by a column; equal values have equal ranks, blanks none.
class Ranks {
public:
    Ranks(const Column& column, bool ordered, execution::Progress& progress) : column_(column) {
        const std::size_t values = column.numbers ? column.values->size() : column.rows();
        ranks_.resize(values, blank);
        Order order(values);
        std::iota(order.begin(), order.end(), 0U);
        if (!ordered)
            std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
                progress.check();
                return isBlank(value(a)) ? false
                                         : isBlank(value(b)) || compared(value(a), value(b)) < 0;
            });
        std::uint32_t rank = 0;
        for (std::size_t i = 0; i < values && !isBlank(value(order[i])); ++i) {
            progress.check();
            if (i > 0 && (ordered || compared(value(order[i - 1]), value(order[i])) != 0))
                ++rank;
            ranks_[order[i]] = rank;
        }
    }
    static constexpr std::uint32_t blank = UINT32_MAX;
    std::uint32_t at(std::size_t row) const {
        return ranks_[column_.numbers ? (*column_.numbers)[row] : row];
    }

private:
    static bool isBlank(const Value& value) {
        return std::holds_alternative<std::monostate>(value);
    }
    /// Of a number that stands for a value, or of a row.
    Value value(std::size_t i) const {
        return column_.numbers ? (*column_.values)[i] : column_.at(i);
    }

    const Column& column_;
    std::vector<std::uint32_t> ranks_;
};

/// The rows that stay, in their new order.
Order orderOf(const Laid& laid, std::size_t column, const language::SortClause& clause,
              execution::Progress& progress) {
    const SortGuide& guide = laid.guide;
    const bool ordered =
        std::find(guide.ordered.begin(), guide.ordered.end(), column) != guide.ordered.end();
    const Ranks ranks(laid.table.columns[column], ordered, progress);
    Order order(static_cast<std::size_t>(laid.table.rows()));
    std::iota(order.begin(), order.end(), 0U);
    const auto firstMarker =
        std::stable_partition(order.begin(), order.end(), [&](std::uint32_t row) {
            progress.check();
            return !guide.isMarker || !guide.isMarker(row);
        });
    std::stable_sort(order.begin(), firstMarker, [&](std::uint32_t a, std::uint32_t b) {
        progress.check();
        const std::uint32_t x = ranks.at(a);
        const std::uint32_t y = ranks.at(b);
        if (x == Ranks::blank || y == Ranks::blank)
            return x != Ranks::blank && y == Ranks::blank;
        return clause.descending ? x > y : x < y;
    });
    const auto rows = static_cast<std::size_t>(firstMarker - order.begin());
    if (clause.limit && *clause.limit > 0 && static_cast<std::size_t>(*clause.limit) < rows)
        order.erase(order.begin() + *clause.limit, firstMarker);
    return order;
}

/// Columns that share something go on sharing it.
class Reordering {
public:
    Reordering(const Order& order, execution::Progress& progress)
        : order_(order), progress_(progress) {}

    void apply(Form& form) {
        for (Column& column : form.columns) {
            if (column.figures)
                column.figures = reordered(column.figures, figures_);
            else if (column.numbers)
                column.numbers = reordered(column.numbers, numbers_);
            else
                column.values = reordered(column.values, values_);
        }
    }

    /// Lets go of the columns as they were, one by one: texts without number take their time.
    void finish() {
        for (auto& list : kept_) {
            list.reset();
            progress_.checkNow();
        }
    }

private:
    template <class List>
    using Done = std::map<const List*, std::shared_ptr<const List>>;

    template <class List>
    std::shared_ptr<const List> reordered(const std::shared_ptr<const List>& list,
                                          Done<List>& done) const {
        std::shared_ptr<const List>& result = done[list.get()];
        if (!result) {
            auto made = std::make_shared<List>();
            made->reserve(order_.size());
            for (const std::uint32_t row : order_) {
                progress_.check();
                made->push_back((*list)[row]);
            }
            result = std::move(made);
            kept_.push_back(list);
        }
        return result;
    }

    const Order& order_;
    execution::Progress& progress_;
    mutable std::vector<std::shared_ptr<const void>> kept_; ///< so that no address comes up again
    Done<Column::Values> values_;
    Done<Column::Numbers> numbers_;
    Done<Column::Figures> figures_;
};

} // namespace

void sortRows(Laid& laid, const language::SortClause& asked, execution::Progress& progress) {
    const language::SortClause clause = understood(laid, asked);
    const std::size_t column = columnOf(laid, clause);
    const Order order = orderOf(laid, column, clause, progress);
    Reordering reordering(order, progress);
    reordering.apply(laid.table);
    if (laid.table.inTriples)
        reordering.apply(*laid.table.inTriples);
    reordering.finish();
    laid.table.sort = clause;
    if (clause.column.empty() || clause.element)
        laid.table.sort->column = laid.table.fields[column].name;
}

} // namespace kelx::output
