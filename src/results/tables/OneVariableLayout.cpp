// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/OneVariableLayout.h"

#include "results/tables/CellNumber.h"
#include "results/tables/RowOrder.h"
#include "results/tables/VariableHeading.h"

#include "TKelDataset.h"
#include "TKelOutput.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>
#include <vector>

namespace {

constexpr int codeField = 0;
constexpr int labelField = 1;
constexpr int kindField = 2;
constexpr int figureField = 3;
constexpr int fewestDecimals = 6; ///< that figures are written with

/// Hidden and blank figures stay empty.
struct Category {
    std::string name;
    std::string figure;
    double value = 0;
};

struct Categories {
    std::vector<Category> rows;
    std::string total, missing, notApplicable;
};

bool contains(const std::string& text, const char* marker) {
    return text.find(marker) != std::string::npos;
}

CategoryKind kindByLabel(const std::string& label) {
    if (contains(label, "__tot__"))
        return CategoryKind::Total;
    if (contains(label, "__mv__"))
        return CategoryKind::Missing;
    return contains(label, "__na__") ? CategoryKind::NotApplicable : CategoryKind::Valid;
}

/// Totals come late.
bool tellsKinds(TKelDataset& data) {
    for (std::int64_t record = data.recCount() - 1; record >= 0; --record)
        if (!data.stringValue(record, kindField).empty())
            return true;
    return false;
}

Categories readCategories(TKelDataset& data) {
    Categories result;
    const bool byKind = tellsKinds(data); // else a label that holds a marker is one
    for (std::int64_t record = 0; record < data.recCount(); ++record) {
        const std::string label = data.stringValue(record, labelField);
        std::string figure = data.stringValue(record, figureField);
        const CategoryKind kind =
            byKind ? categoryKindOf(data.stringValue(record, kindField)) : kindByLabel(label);
        switch (kind) {
        case CategoryKind::Total:
            result.total = std::move(figure);
            break;
        case CategoryKind::Missing:
            result.missing = std::move(figure);
            break;
        case CategoryKind::NotApplicable:
            result.notApplicable = std::move(figure);
            break;
        case CategoryKind::Valid:
            result.rows.push_back({categoryText(data.stringValue(record, codeField), label),
                                   std::move(figure), data.doubleValue(record, figureField)});
        }
    }
    return result;
}

/// Ties stay in place. Empty figures come last: their order must not tell of them.
void order(std::vector<Category>& rows, int rowsOrder) {
    if (rowsOrder == TableViewConfig::Default)
        return;
    const bool descends = rowsOrder == TableViewConfig::Descending;
    std::stable_sort(rows.begin(), rows.end(), [&](const Category& a, const Category& b) {
        if (a.figure.empty() || b.figure.empty())
            return !a.figure.empty() && b.figure.empty();
        return descends ? a.value > b.value : a.value < b.value;
    });
}

/// Percents, one by one, and their running sum.
class Percents {
public:
    Percents(const std::string& total, bool zeroWithoutTotal, int decimals)
        : decimals_(decimals), isKnown_(!total.empty()), zeroWithoutTotal_(zeroWithoutTotal) {
        const auto number = readNumber(total);
        total_ = number ? number->value : 0;
    }

    /// Percent and running sum as cells. What follows a hidden figure has no running sum: it would
    /// leave that figure out.
    void add(const Category& category, CellTexts& cells) {
        if (!isKnown_ || category.figure.empty()) {
            isRunning_ = false;
            cells.add(std::string_view());
            cells.add(std::string_view());
            return;
        }
        const double percent =
            zeroWithoutTotal_ && !(total_ > 0) ? 0 : category.value * 100 / total_;
        sum_ += percent;
        cells.add(withDecimals(percent, decimals_));
        cells.add(isRunning_ ? withDecimals(sum_, decimals_) : std::string());
    }

private:
    double total_ = 0;
    double sum_ = 0;
    int decimals_;
    bool isKnown_;
    bool zeroWithoutTotal_;
    bool isRunning_ = true;
};

void addRow(CellTexts& cells, std::string_view name, std::string_view figure,
            std::string_view percent) {
    cells.startRow();
    cells.add(name);
    cells.add(figure);
    cells.add(percent);
    cells.add(std::string_view());
}

CellTexts cellsOf(TKelDataset& data, const OneVariableOptions& options) {
    Categories categories = readCategories(data);
    order(categories.rows, options.rowsOrder);
    const int decimals = std::max(options.decimals, fewestDecimals);
    Percents percents(categories.total, options.zeroWithoutTotal, decimals);
    CellTexts cells;
    for (const Category& category : categories.rows) {
        cells.startRow();
        cells.add(category.name);
        cells.add(withDecimals(category.figure, decimals));
        percents.add(category, cells);
    }
    addRow(cells, "0. __tot__", withDecimals(categories.total, decimals),
           categories.total.empty() ? "" : "100");
    if (!categories.missing.empty())
        addRow(cells, "0. __mv__", categories.missing, "");
    if (!categories.notApplicable.empty())
        addRow(cells, "0. __na__", categories.notApplicable, "");
    return cells;
}

} // namespace

OneVariableOptions OneVariableOptions::ofFrequency(const QString& heading, int decimals) {
    return {heading, QCoreApplication::translate("OneVariableLayout", "Count"),
            TableViewConfig::Default, true, decimals};
}

OneVariableOptions OneVariableOptions::ofFigures(const QString& heading, int rowsOrder,
                                                 int decimals) {
    return {heading, QCoreApplication::translate("OneVariableLayout", "count"), rowsOrder, false,
            decimals};
}

TableLayout oneVariableLayout(TKelOutput& output, const OneVariableOptions& options) {
    TableLayout layout;
    layout.columnHeaders = {options.heading, options.figure, QStringLiteral("%"),
                            QCoreApplication::translate("OneVariableLayout", "Cumul%")};
    layout.columnNames = layout.columnHeaders;
    layout.columnLabels = layout.columnHeaders;
    layout.textColumns = {true, false, false, false};
    layout.header.startRow();
    for (int column = 0; column < layout.columnHeaders.size(); ++column)
        layout.header.add(layout.columnHeaders[column], column);
    if (TKelDataset* const data = output.dataset())
        layout.cells = cellsOf(*data, options);
    return layout;
}
