// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/ResultRows.h"

#include "results/tables/CellNumber.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int left = 1;
constexpr int right = 2;

} // namespace

ResultRows::ResultRows(std::shared_ptr<const CellTexts> texts, CellFormat format,
                       std::vector<bool> textColumns)
    : texts_(std::move(texts)), format_(std::move(format)), textColumns_(std::move(textColumns)),
      totalRows_(texts_->rows(), 0) {
    textColumns_.resize(std::max(textColumns_.size(), static_cast<std::size_t>(texts_->width())));
    for (const bool isText : textColumns_)
        alignments_ += isText ? left : right;
    for (qsizetype row = 0; row < texts_->rows(); ++row)
        for (qsizetype column = 0; column < texts_->columns(row); ++column)
            mark(row, column);
}

/// No text is made of a figure here: it is made when the figure comes into view.
void ResultRows::mark(qsizetype row, qsizetype column) {
    const std::string_view text = texts_->at(row, column);
    if (text.empty() || (!isTextColumn(column) && readNumber(text, format_.readsGrouped)))
        return;
    const FormattedCell cell = CellFormat::formatText(text);
    if (cell.isText)
        alignments_[column] = left;
    if (cell.isTotal)
        totalRows_[row] = 1;
}

qsizetype ResultRows::columns(qsizetype row) const {
    return texts_->columns(row);
}

std::string_view ResultRows::text(qsizetype row, qsizetype column) const {
    return texts_->at(row, column);
}

QString ResultRows::raw(qsizetype row, qsizetype column) const {
    const std::string_view own = text(row, column);
    return QString::fromUtf8(own.data(), static_cast<qsizetype>(own.size()));
}

QString ResultRows::display(qsizetype row, qsizetype column) const {
    return formatted(row, column).display;
}

double ResultRows::value(qsizetype row, qsizetype column) const {
    if (valueless_)
        return 0;
    const auto number = readNumber(text(row, column));
    return number ? number->value : 0;
}

ResultCell ResultRows::cell(qsizetype row, qsizetype column) const {
    return {raw(row, column), display(row, column), value(row, column)};
}

FormattedCell ResultRows::formatted(qsizetype row, qsizetype column) const {
    const std::string_view own = text(row, column);
    return isTextColumn(column) ? CellFormat::formatText(own) : format_.format(own);
}

bool ResultRows::isTextColumn(qsizetype column) const {
    return column >= 0 && static_cast<std::size_t>(column) < textColumns_.size() &&
           textColumns_[static_cast<std::size_t>(column)];
}

qsizetype ResultRow::size() const {
    return rows_->columns(row_);
}

ResultCell ResultRow::operator[](qsizetype column) const {
    return rows_->cell(row_, column);
}

QString ResultRow::raw(qsizetype column) const {
    return rows_->raw(row_, column);
}

QString ResultRow::display(qsizetype column) const {
    return rows_->display(row_, column);
}
