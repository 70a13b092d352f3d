// SPDX-License-Identifier: Apache-2.0
// From cells and categories to rows with totals.
#include "output/table.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::output {
namespace {

using execution::Category;
using execution::CategoryKind;
using execution::Cell;
using execution::Dimension;
using execution::TableResult;

/// A row: the place of its category, or total, in each dimension as one number, and its figures.
struct Row {
    std::uint64_t place = 0;
    std::uint64_t records = 0;
    double sum = 0;
};

/// The order of rows in one dimension: valid categories, the total, MV, NA.
class Places {
public:
    explicit Places(const Dimension& dimension) : dimension_(dimension) {
        const auto isValid = [](const Category& c) { return c.kind == CategoryKind::Valid; };
        valid_ = static_cast<std::uint64_t>(
            std::count_if(dimension.categories.begin(), dimension.categories.end(), isValid));
    }

    std::uint64_t size() const { return dimension_.categories.size() + 1; }
    std::uint64_t total() const { return valid_; }
    bool isValid(std::uint32_t category) const { return category < valid_; }
    std::uint64_t of(std::uint32_t category) const {
        return category + (isValid(category) ? 0 : 1);
    }

    void write(std::uint64_t place, std::vector<Value>& cells) const {
        if (place == total())
            return triple("0", "__tot__", "tot", cells);
        const auto& category =
            dimension_.categories[static_cast<std::size_t>(place - (place > total() ? 1 : 0))];
        if (category.kind == CategoryKind::Missing)
            return triple("0", "__mv__", "mv", cells);
        if (category.kind == CategoryKind::NotApplicable)
            return triple("0", "__na__", "na", cells);
        triple(category.code, category.label, "", cells);
    }

private:
    static void triple(const std::string& code, const std::string& label, const char* kind,
                       std::vector<Value>& cells) {
        cells.emplace_back(code);
        cells.emplace_back(label);
        cells.emplace_back(std::string(kind));
    }

    const Dimension& dimension_;
    std::uint64_t valid_ = 0;
};

/// Makes the rows of a result.
class RowMaker {
public:
    explicit RowMaker(const TableResult& result) {
        for (const Dimension& dimension : result.dimensions)
            places_.emplace_back(dimension);
        strides_.resize(places_.size());
        std::uint64_t stride = 1;
        for (std::size_t d = places_.size(); d-- > 0;) {
            strides_[d] = stride;
            if (__builtin_mul_overflow(stride, places_[d].size(), &stride))
                throw std::runtime_error("The table has too many combinations of categories.");
        }
        for (const Cell& cell : result.cells)
            addCell(cell);
        rows_.push_back({grandTotal(), 0, 0}); // stands in every table, and adds nothing
        join();
    }

    const std::vector<Row>& rows() const { return rows_; }

    void write(const Row& row, std::vector<Value>& cells) const {
        for (std::size_t d = 0; d < places_.size(); ++d)
            places_[d].write(row.place / strides_[d] % places_[d].size(), cells);
    }

private:
    std::uint64_t grandTotal() const {
        std::uint64_t place = 0;
        for (std::size_t d = 0; d < places_.size(); ++d)
            place += places_[d].total() * strides_[d];
        return place;
    }

    /// The cell's own row and those of all totals that it is part of.
    void addCell(const Cell& cell) {
        const std::size_t first = rows_.size();
        rows_.push_back({0, cell.records, cell.sum});
        for (std::size_t d = 0; d < places_.size(); ++d) {
            const std::uint32_t category = cell.categories[d];
            const std::size_t last = rows_.size();
            if (places_[d].isValid(category)) {
                for (std::size_t i = first; i < last; ++i) {
                    rows_.push_back(rows_[i]);
                    rows_.back().place += places_[d].total() * strides_[d];
                }
            }
            for (std::size_t i = first; i < last; ++i)
                rows_[i].place += places_[d].of(category) * strides_[d];
        }
    }

    void join() {
        std::stable_sort(rows_.begin(), rows_.end(),
                         [](const Row& a, const Row& b) { return a.place < b.place; });
        std::vector<Row> joined;
        for (const Row& row : rows_) {
            if (joined.empty() || joined.back().place != row.place) {
                joined.push_back(row);
                continue;
            }
            joined.back().records += row.records;
            joined.back().sum += row.sum;
        }
        rows_ = std::move(joined);
    }

    std::vector<Places> places_;
    std::vector<std::uint64_t> strides_;
    std::vector<Row> rows_;
};

Value figure(const Row& row, bool exact) {
    if (exact)
        return static_cast<std::int64_t>(row.records);
    return row.sum;
}

std::string headingOf(const catalog::Entity& entity) {
    return entity.label.empty() ? entity.name : entity.label;
}

void describe(const language::TableCommand& command, const catalog::Dictionary& dictionary,
              Table& table) {
    const language::RunSettings& settings = *command.settings;
    const catalog::Entity* unit = command.unit != nullptr ? command.unit : command.countEntity;
    table.name = command.name;
    table.unit = unit->name;
    table.database =
        dictionary.label.empty() ? dictionary.file.filename().string() : dictionary.label;
    const bool selected = settings.selection && !settings.selection->label.empty();
    table.area = selected ? settings.selection->label : "All Database";
    table.title = command.title ? command.title : settings.title;
    table.decimals = command.decimals ? command.decimals : settings.decimals;
    if (command.filter)
        table.filter = command.filter->text;
    if (command.weight)
        table.weight = command.weight->text;
    if (command.tally)
        table.tally = command.tally->text;
    if (settings.filter)
        table.universalFilter =
            settings.filterLabel ? *settings.filterLabel : settings.filter->text;
}

void layCount(const TableResult& result, Table& table) {
    table.kind = "COUNT";
    table.entity = result.command->countEntity;
    table.fields = {{"Entity", "Entity", ""}, {"Count", "Count", ""}};
    table.cells.emplace_back(table.entity != nullptr ? table.entity->name : table.unit);
    const Cell cell = result.cells.empty() ? Cell{} : result.cells.front();
    table.cells.push_back(figure({0, cell.records, cell.sum}, result.exact));
}

void layFrequency(const TableResult& result, const catalog::Entity& unit, Table& table) {
    table.kind = "FREQUENCY";
    table.method = 1;
    table.dimension = static_cast<int>(result.dimensions.size());
    for (const Dimension& dimension : result.dimensions) {
        table.variables.push_back(dimension.variable);
        table.fields.push_back({dimension.name, dimension.label, dimension.name});
        table.fields.push_back(
            {dimension.name + " label", dimension.label + " (label)", dimension.name});
        table.fields.push_back(
            {dimension.name + " kind", dimension.label + " (kind)", dimension.name});
    }
    table.fields.push_back({unit.name, headingOf(unit), ""});
    const RowMaker maker(result);
    table.cells.reserve(maker.rows().size() * table.fields.size());
    for (const Row& row : maker.rows()) {
        maker.write(row, table.cells);
        table.cells.push_back(figure(row, result.exact));
    }
}

} // namespace

Table makeTable(const execution::TableResult& result, const catalog::Dictionary& dictionary) {
    const language::TableCommand& command = *result.command;
    Table table;
    table.seconds = result.seconds;
    describe(command, dictionary, table);
    if (command.kind == language::TableKind::Count)
        layCount(result, table);
    else
        layFrequency(result, *command.unit, table);
    return table;
}

} // namespace kelx::output
