// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/MetricReporter.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

MetricReporter::MetricReporter(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("metricReporter"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(fontMetrics().horizontalAdvance(u'9') * 2);
    wordLabel_ = addLabel("wordLabel");
    charLabel_ = addLabel("charLabel");
    lineLabel_ = addLabel("lineLabel");
    columnLabel_ = addLabel("columnLabel");
    showAll();
}

QLabel* MetricReporter::addLabel(const char* name) {
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    layout()->addWidget(label);
    return label;
}

void MetricReporter::updateWordCount(int words) {
    words_ = words;
    wordLabel_->setText(tr("Words: ") + QString::number(words));
}

void MetricReporter::updateCharCount(int chars) {
    chars_ = chars;
    charLabel_->setText(tr("Chars: ") + QString::number(chars));
}

void MetricReporter::updateLineCount(int current, int total) {
    line_ = current;
    lines_ = total;
    lineLabel_->setText(tr("Line: ") + QString::number(current) + u'/' + QString::number(total));
}

void MetricReporter::updateColumnCount(int column) {
    column_ = column;
    columnLabel_->setText(tr("Column: ") + QString::number(column));
}

void MetricReporter::showAll() {
    updateWordCount(words_);
    updateCharCount(chars_);
    updateLineCount(line_, lines_);
    updateColumnCount(column_);
}

void MetricReporter::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        showAll();
    QFrame::changeEvent(event);
}
