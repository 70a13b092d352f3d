// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/FrequencyView.h"

#include "app/widgets/ReadOnlyTable.h"
#include "results/FrequencyModel.h"
#include "results/ResultLabels.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QTableView* makeTable(QAbstractItemModel* model) {
    auto* table = new ReadOnlyTable(model, QStringLiteral("frequencyTable"));
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
    table->horizontalHeader()->setSectionResizeMode(FrequencyModel::LabelColumn,
                                                    QHeaderView::Stretch);
    return table;
}

} // namespace

FrequencyView::FrequencyView(QWidget* parent)
    : QWidget(parent), model_(new FrequencyModel(this)),
      title_(makeResultTitle(QStringLiteral("frequencyTitle"))),
      note_(makeResultNote(QStringLiteral("frequencyNote"))), table_(makeTable(model_)),
      copy_(new QAction(this)) {
    copy_->setObjectName(QStringLiteral("actionCopyTable"));
    copy_->setShortcut(QKeySequence::Copy);
    copy_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copy_, &QAction::triggered, this, &FrequencyView::copyToClipboard);
    table_->addAction(copy_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title_);
    layout->addWidget(note_);
    layout->addWidget(table_, 1);
    retranslate();
}

void FrequencyView::showTable(const FrequencyTable& table) {
    filled_ = true;
    model_->setTable(table);
    const int unit = table_->fontMetrics().averageCharWidth();
    table_->setColumnWidth(FrequencyModel::CodeColumn, 9 * unit);
    table_->setColumnWidth(FrequencyModel::CountColumn, 19 * unit);
    table_->setColumnWidth(FrequencyModel::PercentColumn, 14 * unit);
    retranslate();
}

void FrequencyView::clear() {
    filled_ = false;
    model_->setTable({});
    retranslate();
}

void FrequencyView::copyToClipboard() const {
    QGuiApplication::clipboard()->setText(model_->table().toText());
}

void FrequencyView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void FrequencyView::retranslate() {
    title_->setText(filled_ ? model_->table().title() : tr("No results yet"));
    note_->setText(filled_ ? model_->table().note()
                           : tr("Select a variable and choose Frequency (F9)."));
    copy_->setText(tr("Copy Table"));
    copy_->setEnabled(filled_);
    table_->setAccessibleName(tr("Frequency table"));
    emit model_->headerDataChanged(Qt::Horizontal, 0, FrequencyModel::ColumnCount - 1);
    table_->viewport()->update();
}
