// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ColumnWidths.h"

#include "results/ResultModel.h"

#include <algorithm>

namespace {

constexpr int cellBudget = 60'000;
constexpr int mostRows = 400;
constexpr int fewestRows = 20;
constexpr int lastRows = 5; ///< totals stand at the end
constexpr int mostCharacters = 60;

} // namespace

ColumnWidths::ColumnWidths(const ResultModel& model, const QFont& font, int padding)
    : model_(&model), cells_(font), headers_(headingFont()), padding_(padding) {
    const int columns = std::max(1, model.columnCount());
    const int rows = model.cellRows();
    const int first = model.firstCellRow();
    const int head = std::min(rows, std::clamp(cellBudget / columns, fewestRows, mostRows));
    for (int row = 0; row < head; ++row)
        sample_ += first + row;
    for (int row = std::max(head, rows - lastRows); row < rows; ++row)
        sample_ += first + row;
}

QString ColumnWidths::longest(int column) const {
    QString longest;
    for (const int row : sample_) {
        const QString text = model_->text(row, column);
        if (text.size() > longest.size())
            longest = text;
    }
    return longest;
}

int ColumnWidths::headerWidth(int column) const {
    int width = 0;
    for (int row = model_->firstHeaderRow(); row < model_->firstCellRow(); ++row) {
        const HeaderItem* item = model_->headerAt(row, column);
        if (item != nullptr && item->span.columns < 2)
            width = std::max(width, headers_.horizontalAdvance(item->shown));
    }
    return width;
}

int ColumnWidths::of(int column) const {
    const int text = std::max(cells_.horizontalAdvance(longest(column)), headerWidth(column));
    return std::min(text, mostCharacters * cells_.averageCharWidth()) + padding_;
}
