// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultsManager.h"

#include "TKelDataset.h"
#include "TKelOutput.h"
#include "results/FrequencyView.h"
#include "results/OutputView.h"

#include <QEvent>
#include <QIcon>
#include <QListWidget>
#include <QStackedWidget>

#include <utility>

ResultsManager::ResultsManager(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), list_(new QListWidget), frequency_(new FrequencyView),
      output_(new OutputView), views_(new QStackedWidget) {
    setObjectName(QStringLiteral("ResultsManager"));
    setChildrenCollapsible(false);
    setWindowIcon(QIcon(QStringLiteral(":/icons/res/icons/48px-Table.png")));
    list_->setObjectName(QStringLiteral("resultList"));
    addWidget(list_);
    views_->addWidget(frequency_);
    views_->addWidget(output_);
    addWidget(views_);
    const int unit = fontMetrics().averageCharWidth();
    setSizes({28 * unit, 80 * unit});
    setStretchFactor(1, 1);
    connect(list_, &QListWidget::currentRowChanged, this, &ResultsManager::showTable);
    retranslate();
}

std::size_t ResultsManager::addOutputs(const std::vector<TKelOutput*>& outputs,
                                       const std::shared_ptr<TKelSession>& session) {
    const int before = tableCount();
    const QString areas = selectedAreas(*session);
    for (TKelOutput* output : outputs) {
        if (auto table = FrequencyTable::fromOutput(*output, areas)) {
            const QString name = table->variable();
            const QString title = table->title();
            addTable(std::move(*table), name, title);
        } else if (output->dataset() != nullptr) {
            const OutputTable rows{session, output};
            addTable(rows, rows.name(), rows.title());
        }
    }
    const int added = tableCount() - before;
    if (added > 0)
        list_->setCurrentRow(before);
    return static_cast<std::size_t>(added);
}

void ResultsManager::addTable(Table table, const QString& name, const QString& toolTip) {
    tables_.push_back(std::move(table));
    (new QListWidgetItem(name, list_))->setToolTip(toolTip);
}

void ResultsManager::showTable(int row) {
    if (row < 0 || row >= tableCount())
        return;
    const Table& table = tables_[static_cast<std::size_t>(row)];
    if (const auto* frequency = std::get_if<FrequencyTable>(&table)) {
        frequency_->showTable(*frequency);
        views_->setCurrentWidget(frequency_);
    } else {
        output_->showTable(std::get<OutputTable>(table));
        views_->setCurrentWidget(output_);
    }
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
