// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/RecoveryDialog.h"

#include "app/messages/Messages.h"
#include "editor/files/RecoveryRow.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { Program, Text, Written, FileState, Folder };
constexpr int widestColumn = 60; // average characters
constexpr int narrowest = 60;    ///< the dialog

QString titleOf(const RecoveryCopy& copy) {
    if (!copy.name.isEmpty())
        return copy.name.simplified();
    return copy.filePath.isEmpty() ? QCoreApplication::translate("RecoveryDialog", "Untitled")
                                   : QFileInfo(copy.filePath).fileName();
}

} // namespace

QList<RecoveryCopy> RecoveryDialog::ask(RecoveryStore& store, QWidget* parent) {
    const QList<RecoveryCopy> copies = store.abandoned();
    if (copies.isEmpty())
        return {};
    RecoveryDialog dialog(store, copies, parent);
    return dialog.exec() == Accepted ? dialog.chosen() : QList<RecoveryCopy>();
}

RecoveryDialog::RecoveryDialog(RecoveryStore& store, const QList<RecoveryCopy>& copies,
                               QWidget* parent)
    : QDialog(parent), store_(store), list_(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("RecoveryDialog"));
    setWindowTitle(tr("Unsaved programs"));
    auto* explanation = new QLabel(
        tr("Kelvora X ended before these &programs were saved. Restored programs open with their "
           "changes; their files stay as they are until you save."),
        this);
    explanation->setObjectName(QStringLiteral("recoveryExplanation"));
    explanation->setWordWrap(true);
    explanation->setBuddy(list_);
    setUpList(copies);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addWidget(list_);
    layout->addWidget(makeButtons());
    connect(list_, &QTreeWidget::itemChanged, this, &RecoveryDialog::enableButtons);
    enableButtons();
    list_->setFocus();
    fitSize();
}

void RecoveryDialog::setUpList(const QList<RecoveryCopy>& copies) {
    list_->setObjectName(QStringLiteral("recoveryList"));
    list_->setAccessibleName(tr("Programs that were not saved"));
    list_->setHeaderLabels(
        {tr("Program"), tr("Text"), tr("Last change"), tr("State of the file"), tr("Folder")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    for (const RecoveryCopy& copy : copies)
        addRow(copy);
    list_->setCurrentItem(list_->topLevelItem(0));
    const int widest = list_->fontMetrics().averageCharWidth() * widestColumn;
    for (int column = Program; column <= Folder; ++column) {
        list_->resizeColumnToContents(column);
        list_->setColumnWidth(column, qMin(list_->columnWidth(column), widest));
    }
}

/// As wide as the rows, within the screen; the text above wraps.
void RecoveryDialog::fitSize() {
    const QMargins margins = layout()->contentsMargins();
    const int wanted = list_->header()->length() + 2 * list_->frameWidth() +
                       list_->verticalScrollBar()->sizeHint().width() + margins.left() +
                       margins.right();
    const int least = fontMetrics().averageCharWidth() * narrowest;
    resize(qMin(qMax(wanted, least), screen()->availableGeometry().width()),
           fontMetrics().height() * 20);
}

void RecoveryDialog::addRow(const RecoveryCopy& copy) {
    const RecoveryOrigin origin = originOf(copy);
    const QString path = QDir::toNativeSeparators(copy.filePath);
    auto* row = new QTreeWidgetItem(list_);
    row->setText(Program, titleOf(copy));
    row->setText(Written, QLocale().toString(copy.written.toLocalTime(), QLocale::ShortFormat));
    row->setText(FileState, originText(origin));
    row->setText(Text, previewOf(copy.text));
    if (!path.isEmpty())
        row->setText(Folder, QDir::toNativeSeparators(QFileInfo(copy.filePath).path()));
    for (int column = Program; column <= Folder; ++column)
        row->setToolTip(
            column, (path.isEmpty() || column == Text ? row->text(Text) : path).toHtmlEscaped());
    const bool wanted = origin != RecoveryOrigin::Same && origin != RecoveryOrigin::Newer;
    row->setCheckState(Program, wanted ? Qt::Checked : Qt::Unchecked);
    copies_ += copy;
}

QDialogButtonBox* RecoveryDialog::makeButtons() {
    auto* buttons = new QDialogButtonBox(this);
    restore_ = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    restore_->setObjectName(QStringLiteral("restoreButton"));
    restore_->setToolTip(tr("Open the ticked programs"));
    restore_->setDefault(true);
    discard_ = buttons->addButton(tr("&Discard"), QDialogButtonBox::DestructiveRole);
    discard_->setObjectName(QStringLiteral("discardButton"));
    discard_->setToolTip(tr("Delete the ticked texts for good"));
    QPushButton* later = buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    later->setObjectName(QStringLiteral("laterButton"));
    later->setToolTip(tr("Ask again when Kelvora X starts next time"));
    connect(restore_, &QPushButton::clicked, this, &RecoveryDialog::accept);
    connect(discard_, &QPushButton::clicked, this, &RecoveryDialog::discardChosen);
    connect(later, &QPushButton::clicked, this, &RecoveryDialog::reject);
    return buttons;
}

QList<RecoveryCopy> RecoveryDialog::chosen() const {
    QList<RecoveryCopy> ticked;
    for (int row = 0; row < copies_.size(); ++row)
        if (list_->topLevelItem(row)->checkState(Program) == Qt::Checked)
            ticked += copies_.at(row);
    return ticked;
}

void RecoveryDialog::enableButtons() {
    const bool any = !chosen().isEmpty();
    restore_->setEnabled(any);
    discard_->setEnabled(any);
}

void RecoveryDialog::discardChosen() {
    const int count = int(chosen().size());
    if (!askYesNo(
            tr("Discard"),
            tr("Do you want to discard %n program(s)? The text cannot be brought back.", "", count),
            tr("Discard"), tr("Cancel"), false))
        return;
    for (int row = int(copies_.size()) - 1; row >= 0; --row) {
        if (list_->topLevelItem(row)->checkState(Program) != Qt::Checked)
            continue;
        store_.drop(copies_.takeAt(row).id);
        delete list_->takeTopLevelItem(row);
    }
    enableButtons();
    if (copies_.isEmpty())
        reject();
}
