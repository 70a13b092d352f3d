// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultsManager.h"

#include "results/FrequencyView.h"

#include <QEvent>
#include <QIcon>
#include <QListWidget>

ResultsManager::ResultsManager(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), list_(new QListWidget), view_(new FrequencyView) {
    setObjectName(QStringLiteral("ResultsManager"));
    setChildrenCollapsible(false);
    setWindowIcon(QIcon(QStringLiteral(":/icons/res/icons/48px-Table.png")));
    list_->setObjectName(QStringLiteral("resultList"));
    addWidget(list_);
    addWidget(view_);
    const int unit = fontMetrics().averageCharWidth();
    setSizes({28 * unit, 80 * unit});
    setStretchFactor(1, 1);
    connect(list_, &QListWidget::currentRowChanged, this, &ResultsManager::showTable);
    retranslate();
}

std::size_t ResultsManager::addOutputs(const std::vector<TKelOutput*>& outputs) {
    const int before = tableCount();
    for (TKelOutput* output : outputs) {
        auto table = FrequencyTable::fromOutput(*output);
        if (!table)
            continue;
        auto* item = new QListWidgetItem(table->variable(), list_);
        item->setToolTip(table->title());
        tables_.push_back(std::move(*table));
    }
    const int added = tableCount() - before;
    if (added > 0)
        list_->setCurrentRow(before);
    return static_cast<std::size_t>(added);
}

void ResultsManager::showTable(int row) {
    if (row >= 0 && row < tableCount())
        view_->showTable(tables_[static_cast<std::size_t>(row)]);
}

void ResultsManager::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QSplitter::changeEvent(event);
}

void ResultsManager::retranslate() {
    setWindowTitle(tr("Results"));
    list_->setAccessibleName(tr("Tables of the results"));
}
