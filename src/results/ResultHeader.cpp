// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultHeader.h"

#include "results/tables/TableBase.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

double linear(double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

QString shortHeader(const QString& text) {
    static const QRegularExpression codeAndLabel(QStringLiteral("^\\s*(\\S+)\\.\\s+(\\S+)\\s*$"));
    const auto match = codeAndLabel.match(text);
    return match.hasMatch() && match.captured(1) == match.captured(2) ? match.captured(1) : text;
}

QColor readableOn(const QColor& background) {
    const double light = luminance(background);
    return (light + 0.05) / 0.05 >= 1.05 / (light + 0.05) ? Qt::black : Qt::white;
}

ResultHeader::ResultHeader(const TableBase& table) {
    const QList<QStringList> texts = table.headerTexts();
    const QList<QStringList> colors = table.headerColors();
    const auto spans = table.headerSpans();
    const auto positions = table.headerPositions();
    places_.resize(texts.size());
    for (qsizetype row = 0; row < texts.size(); ++row)
        for (qsizetype i = 0; i < texts[row].size(); ++i) {
            const auto [columns, rows] = spans.value(row).value(i, {1, 1});
            const auto [column, top] = positions.value(row).value(i, {i, row});
            place({texts[row][i],
                   shortHeader(texts[row][i]),
                   QColor(colors.value(row).value(i)),
                   {top, column, rows, columns}});
        }
}

void ResultHeader::place(HeaderItem item) {
    const CellSpan& span = item.span;
    if (span.row < 0 || span.row >= places_.size() || span.column < 0)
        return;
    const auto rows = static_cast<int>(places_.size());
    for (int row = span.row; row < std::min(rows, span.row + span.rows); ++row)
        for (int column = span.column; column < span.column + span.columns; ++column)
            if (int& at = placeAt(row, column); at == none)
                at = spanned;
    placeAt(span.row, span.column) = static_cast<int>(items_.size());
    items_ += std::move(item);
}

int& ResultHeader::placeAt(int row, int column) {
    QList<int>& places = places_[row];
    while (places.size() <= column)
        places += none;
    return places[column];
}

const HeaderItem* ResultHeader::at(int row, int column) const {
    const int item = places_.value(row).value(column, none);
    return item < 0 ? nullptr : &items_[item];
}
