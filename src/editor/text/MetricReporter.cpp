// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/MetricReporter.h"

#include "app/widgets/ElidedLabel.h"

#include <QEvent>
#include <QHBoxLayout>

MetricReporter::MetricReporter(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("metricReporter"));
    auto* row = new QHBoxLayout(this);
    const int gap = fontMetrics().horizontalAdvance(u'9') * 2;
    row->setContentsMargins(gap, 0, 0, 0);
    row->setSpacing(gap);
    wordLabel_ = addLabel("wordLabel");
    charLabel_ = addLabel("charLabel");
    lineLabel_ = addLabel("lineLabel");
    columnLabel_ = addLabel("columnLabel");
    showAll();
}

ElidedLabel* MetricReporter::addLabel(const char* name) {
    auto* label = new ElidedLabel(this); // a narrow window has no room for all
    label->setObjectName(QLatin1String(name));
    layout()->addWidget(label);
    return label;
}

void MetricReporter::updateWordCount(int words) {
    words_ = words;
    wordLabel_->setFullText(tr("Words: ") + QString::number(words));
}

void MetricReporter::updateCharCount(int chars) {
    chars_ = chars;
    charLabel_->setFullText(tr("Chars: ") + QString::number(chars));
}

void MetricReporter::updateLineCount(int current, int total) {
    line_ = current;
    lines_ = total;
    lineLabel_->setFullText(tr("Line: ") + QString::number(current) + u'/' +
                            QString::number(total));
}

void MetricReporter::updateColumnCount(int column) {
    column_ = column;
    columnLabel_->setFullText(tr("Column: ") + QString::number(column));
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
