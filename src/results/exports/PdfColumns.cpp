// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/PdfColumns.h"

#include "results/tables/TableBase.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

/// Padding and border on both sides of a text, and a little for rounding.
constexpr qreal frame = 2 * (8 + 1) + 2;
constexpr qint64 cellsBetweenQuestions = 4096;

} // namespace

PdfColumns::PdfColumns(const TableBase& table, const QFont& font, qreal widest,
                       const WriteProgress& progress)
    : metrics_(font), widest_(widest), digit_(metrics_.horizontalAdvance(QLatin1Char('0'))),
      widths_(std::max(table.columnHeaders().size(), table.reportCells().width()), digit_) {
    measureHeader(table, font);
    measureCells(table, progress);
}

qreal PdfColumns::width() const {
    return std::accumulate(widths_.begin(), widths_.end(), frame * qreal(widths_.size()));
}

QList<qreal> PdfColumns::filling(qreal width) const {
    QList<qreal> widths = widths_;
    const qreal share = width / this->width();
    // On whole units, lest the ground of one column covers the border of the one before.
    for (qreal& column : widths)
        column = std::floor((column + frame) * share);
    return widths;
}

/// Lines break between words, so the longest word counts; but a long text in a narrow column would
/// be a tower.
qreal PdfColumns::wordsWidth(const QFontMetricsF& metrics, const QString& text) const {
    qreal longest = std::min(metrics.horizontalAdvance(text), widest_);
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        longest = std::max(longest, metrics.horizontalAdvance(word));
    return longest;
}

void PdfColumns::widen(qsizetype first, qsizetype count, qreal width) {
    const qsizetype end = std::min(first + count, widths_.size());
    qreal has = frame * qreal(count - 1);
    for (qsizetype column = first; column < end; ++column)
        has += widths_[column];
    for (qsizetype column = first; column < end && has < width; ++column)
        widths_[column] += (width - has) / qreal(count);
}

void PdfColumns::measureHeader(const TableBase& table, const QFont& font) {
    QFont bold = font;
    bold.setBold(true);
    const QFontMetricsF metrics(bold);
    const QList<QStringList> texts = table.headerTexts();
    const auto spans = table.headerSpans();
    const auto positions = table.headerPositions();
    for (qsizetype line = 0; line < texts.size(); ++line)
        for (qsizetype item = 0; item < texts[line].size(); ++item)
            widen(positions[line][item].first, spans[line][item].first,
                  wordsWidth(metrics, texts[line][item]));
}

void PdfColumns::measureCells(const TableBase& table, const WriteProgress& progress) {
    const ResultRows& cells = table.reportCells();
    const qint64 all = cells.size() * cells.width();
    qint64 done = 0;
    for (qsizetype row = 0; row < cells.size(); ++row)
        for (qsizetype column = 0; column < cells.columns(row); ++column) {
            measure(row, column, table);
            cancelled_ = ++done % cellsBetweenQuestions == 0 && progress && !progress(0, all);
            if (cancelled_)
                return;
        }
}

void PdfColumns::measure(qsizetype row, qsizetype column, const TableBase& table) {
    const ResultRows& cells = table.reportCells();
    // Hardly a letter is wider than three digits, so most cells need no closer look.
    if (cells.text(row, column).empty())
        return;
    const QString shown = cells.display(row, column);
    if (3 * digit_ * qreal(shown.size()) <= widths_[column])
        return;
    if (cells.alignments().value(column) == 2)
        widths_[column] = std::max(widths_[column], metrics_.horizontalAdvance(shown));
    else
        widths_[column] = std::max(widths_[column], wordsWidth(metrics_, shown));
}
