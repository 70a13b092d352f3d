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

/// Makes columns hold a text that goes over them, in even parts.
void widen(QList<qreal>& widths, qsizetype first, qsizetype count, qreal width) {
    const qsizetype end = std::min(first + count, widths.size());
    qreal has = frame * qreal(count - 1);
    for (qsizetype column = first; column < end; ++column)
        has += widths[column];
    for (qsizetype column = first; column < end && has < width; ++column)
        widths[column] += (width - has) / qreal(count);
}

} // namespace

PdfColumns::PdfColumns(const TableBase& table, const QFont& font, qreal widest,
                       const WriteProgress& progress)
    : metrics_(font), widest_(widest), digit_(metrics_.horizontalAdvance(QLatin1Char('0'))),
      widths_(std::max(table.columnHeaders().size(), table.reportCells().width()), digit_) {
    while (labels_ < widths_.size() && table.reportCells().isTextColumn(labels_))
        ++labels_;
    // Where all are texts, there are no figures that the first one could be the label of.
    if (labels_ == widths_.size())
        labels_ = std::min<qsizetype>(labels_, 1);
    measureHeader(table, font);
    measureCells(table, progress);
}

/// What is left of a heading that the border of the block cuts needs its width as well.
QList<qreal> PdfColumns::widthsOf(const ColumnBlock& block) const {
    QList<qreal> widths;
    for (qsizetype place = 0; place < block.size(); ++place)
        widths += widths_[block.column(place)];
    for (const Span& span : spans_) {
        const int shown = block.shown(span.first, span.count);
        if (shown > 0 && shown < span.count)
            widen(widths, std::max<qsizetype>(0, span.first - block.first) + block.labels, shown,
                  span.width);
    }
    return widths;
}

qreal PdfColumns::width(const ColumnBlock& block) const {
    const QList<qreal> widths = widthsOf(block);
    return std::accumulate(widths.begin(), widths.end(), frame * qreal(widths.size()));
}

/// Labels that would leave less than half of the width to figures are not repeated.
qsizetype PdfColumns::repeated(qreal widest) const {
    qsizetype labels = labels_;
    while (labels > 0 && width({0, 0, labels}) > widest / 2)
        --labels;
    return labels;
}

QList<ColumnBlock> PdfColumns::blocks(qreal widest) {
    for (qreal& column : widths_)
        column = std::min(column, widest / 2 - frame);
    if (width(all()) <= widest)
        return {all()};
    QList<ColumnBlock> blocks;
    const qsizetype labels = repeated(widest);
    ColumnBlock block{0, 0, 0};
    qreal taken = 0;
    for (qsizetype column = 0; column < widths_.size(); ++column) {
        const qreal needed = widths_[column] + frame;
        if (taken + needed > widest && block.end > std::max(block.first, labels)) {
            blocks += block;
            block = {labels, column, column};
            taken = width({0, 0, labels});
        }
        taken += needed;
        block.end = column + 1;
    }
    return blocks += block;
}

/// In whole units, lest the ground of one column covers the border of the one before.
QList<qreal> PdfColumns::filling(const ColumnBlock& block, qreal width) const {
    QList<qreal> widths = widthsOf(block);
    const qreal share = width / this->width(block);
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

void PdfColumns::measureHeader(const TableBase& table, const QFont& font) {
    QFont bold = font;
    bold.setBold(true);
    const QFontMetricsF metrics(bold);
    const QList<QStringList> texts = table.headerTexts();
    const auto spans = table.headerSpans();
    const auto positions = table.headerPositions();
    for (qsizetype line = 0; line < texts.size(); ++line)
        for (qsizetype item = 0; item < texts[line].size(); ++item) {
            const Span span{positions[line][item].first, spans[line][item].first,
                            wordsWidth(metrics, texts[line][item])};
            widen(widths_, span.first, span.count, span.width);
            if (span.count > 1)
                spans_ += span;
        }
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
