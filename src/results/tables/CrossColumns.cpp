// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/CrossColumns.h"

#include "results/tables/CellFormat.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

std::optional<CategoryKind> kindOfKey(const QString& key) {
    if (key == columnkeys::total)
        return CategoryKind::Total;
    if (key == columnkeys::variables)
        return CategoryKind::Valid;
    if (key == columnkeys::missing)
        return CategoryKind::Missing;
    if (key == columnkeys::notApplicable)
        return CategoryKind::NotApplicable;
    return std::nullopt;
}

/// Those of the columns, each once.
std::vector<CategoryKind> shownKinds(const TableViewConfig& options) {
    const QStringList keys =
        options.columnOrder.isEmpty() ? TableViewConfig().columnOrder : options.columnOrder;
    std::vector<CategoryKind> kinds;
    for (const QString& key : keys) {
        const auto kind = kindOfKey(key);
        const bool hidden = kind && (isHidden(*kind, options) ||
                                     (*kind == CategoryKind::Total && options.hideTotal));
        if (kind && !hidden && std::find(kinds.begin(), kinds.end(), *kind) == kinds.end())
            kinds.push_back(*kind);
    }
    return kinds;
}

std::vector<CrossColumn> numbered(const std::vector<TableCategory>& categories) {
    std::vector<CrossColumn> columns;
    columns.reserve(categories.size());
    for (std::uint32_t number = 0; number < categories.size(); ++number)
        columns.push_back({categories[number], number});
    return columns;
}

bool occurs(const std::vector<CrossColumn>& columns, CategoryKind kind) {
    return std::any_of(columns.begin(), columns.end(),
                       [kind](const CrossColumn& column) { return column.category.kind == kind; });
}

std::vector<CrossColumn> arranged(const std::vector<CrossColumn>& columns,
                                  const TableViewConfig& options) {
    std::vector<CrossColumn> result;
    result.reserve(columns.size());
    for (const CategoryKind kind : shownKinds(options))
        std::copy_if(columns.begin(), columns.end(), std::back_inserter(result),
                     [kind](const CrossColumn& column) { return column.category.kind == kind; });
    return result;
}

} // namespace

QString CrossColumn::heading() const {
    return category.kind == CategoryKind::Valid ? name() : markerName(category.label);
}

QString CrossColumn::name() const {
    return QString::fromStdString(category.columnText());
}

QString CrossColumn::label() const {
    return category.kind == CategoryKind::Valid ? QString::fromStdString(category.label)
                                                : markerName(category.label);
}

bool isHidden(CategoryKind kind, const TableViewConfig& options) {
    switch (kind) {
    case CategoryKind::Missing:
        return options.hideMv;
    case CategoryKind::NotApplicable:
        return options.hideNa;
    default:
        return false;
    }
}

std::vector<CrossColumn> arrangedColumns(const std::vector<TableCategory>& categories,
                                         const TableViewConfig& options) {
    return arranged(numbered(categories), options);
}

std::vector<CrossColumn> crossColumns(const std::vector<TableCategory>& categories,
                                      const TableViewConfig& options) {
    std::vector<CrossColumn> columns = numbered(categories);
    const bool hasMissing = occurs(columns, CategoryKind::Missing);
    const bool hasNotApplicable = occurs(columns, CategoryKind::NotApplicable);
    if (hasNotApplicable && !hasMissing)
        columns.push_back({{"0", "__mv__", CategoryKind::Missing}, Pivot::none});
    if (hasMissing && !hasNotApplicable)
        columns.push_back({{"0", "__na__", CategoryKind::NotApplicable}, Pivot::none});
    return arranged(columns, options);
}
