// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/OutputView.h"

#include "app/widgets/ReadOnlyTable.h"
#include "results/OutputModel.h"
#include "results/ResultLabels.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int rowsMeasured = 200; ///< for the width of columns

} // namespace

OutputView::OutputView(QWidget* parent)
    : QWidget(parent), model_(new OutputModel(this)),
      title_(makeResultTitle(QStringLiteral("outputTitle"))),
      note_(makeResultNote(QStringLiteral("outputNote"))),
      table_(new ReadOnlyTable(model_, QStringLiteral("outputTable"))), copy_(new QAction(this)) {
    copy_->setObjectName(QStringLiteral("actionCopyOutput"));
    copy_->setShortcut(QKeySequence::Copy);
    copy_->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(copy_, &QAction::triggered, this, &OutputView::copySelection);
    table_->setContextMenuPolicy(Qt::ActionsContextMenu);
    table_->addAction(copy_);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->horizontalHeader()->setResizeContentsPrecision(rowsMeasured);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title_);
    layout->addWidget(note_);
    layout->addWidget(table_, 1);
    retranslate();
}

void OutputView::showTable(const OutputTable& table) {
    title_->setText(table.title());
    note_->setText(table.note());
    note_->setVisible(!note_->text().isEmpty());
    model_->setTable(table);
    table_->resizeColumnsToContents();
}

void OutputView::copySelection() const {
    const auto line = [this](const std::function<QVariant(int)>& cell) {
        QStringList cells;
        for (int column = 0; column < model_->columnCount(); ++column)
            cells += cell(column).toString();
        return cells.join('\t') + '\n';
    };
    QString text = line(
        [this](int column) { return model_->headerData(column, Qt::Horizontal, Qt::DisplayRole); });
    const QItemSelectionModel& selection = *table_->selectionModel();
    for (int row = 0; row < model_->rowCount(); ++row)
        if (!selection.hasSelection() || selection.isRowSelected(row))
            text += line([&](int column) { return model_->index(row, column).data(Qt::EditRole); });
    QGuiApplication::clipboard()->setText(text);
}

void OutputView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void OutputView::retranslate() {
    copy_->setText(tr("Copy Table"));
    table_->setAccessibleName(tr("Rows of the result"));
    if (model_->columnCount() > 0)
        emit model_->headerDataChanged(Qt::Horizontal, 0, model_->columnCount() - 1);
    table_->viewport()->update();
}
