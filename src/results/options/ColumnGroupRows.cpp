// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/options/ColumnGroupRows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <utility>

ColumnGroupRows::ColumnGroupRows(ColumnGroups groups, QWidget* parent)
    : QWidget(parent), groups_(std::move(groups)) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins({});
    grid->setColumnStretch(1, 1);
    for (int row = 0; row < static_cast<int>(rows_.size()); ++row)
        addRow(*grid, row);
    showGroups();
    connectRows();
}

void ColumnGroupRows::addRow(QGridLayout& grid, int row) {
    const QString number = QString::number(row + 1);
    auto* combo = new QComboBox;
    combo->setObjectName(QStringLiteral("comboBox_") + number);
    combo->setAccessibleName(tr("Columns at place %1").arg(number));
    for (const QString& key : ColumnGroups::keys())
        combo->addItem(ColumnGroups::label(key), key);
    auto* check = new QCheckBox(tr("Show"));
    check->setObjectName(QStringLiteral("checkBox_") + number);
    auto* label = new QLabel(QLatin1Char('#') + number);
    label->setBuddy(combo);
    grid.addWidget(label, row, 0);
    grid.addWidget(combo, row, 1);
    grid.addWidget(check, row, 2);
    rows_[static_cast<std::size_t>(row)] = {combo, check};
}

void ColumnGroupRows::connectRows() {
    using Rows = ColumnGroupRows;
    constexpr std::array choosing{&Rows::onComboBox1IndexChanged, &Rows::onComboBox2IndexChanged,
                                  &Rows::onComboBox3IndexChanged, &Rows::onComboBox4IndexChanged};
    constexpr std::array checking{&Rows::onCheckBox1stateChanged, &Rows::onCheckBox2stateChanged,
                                  &Rows::onCheckBox3stateChanged, &Rows::onCheckBox4stateChanged};
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        connect(rows_[row].combo, &QComboBox::currentIndexChanged, this, choosing[row]);
        connect(rows_[row].check, &QCheckBox::stateChanged, this, checking[row]);
    }
}

void ColumnGroupRows::showGroups() {
    for (std::size_t row = 0; row < rows_.size(); ++row)
        showRow(row);
}

void ColumnGroupRows::showRow(std::size_t row) {
    const auto& [combo, check] = rows_[row];
    const QSignalBlocker comboIsQuiet(combo);
    const QSignalBlocker checkIsQuiet(check);
    const QString& key = groups_.order()[static_cast<qsizetype>(row)];
    const bool canHide = groups_.canHide(key);
    combo->setCurrentIndex(combo->findData(key));
    check->setChecked(!groups_.isHidden(key));
    check->setEnabled(canHide);
    check->setAccessibleName(tr("Show %1").arg(ColumnGroups::label(key)));
    check->setToolTip(canHide ? tr("Checked: %1 shows in the table").arg(ColumnGroups::label(key))
                              : tr("%1 always shows").arg(ColumnGroups::label(key)));
}

void ColumnGroupRows::place(std::size_t row, int index) {
    groups_.place(static_cast<qsizetype>(row), rows_[row].combo->itemData(index).toString());
    showGroups();
}

void ColumnGroupRows::readCheck(std::size_t row) {
    groups_.setHidden(groups_.order()[static_cast<qsizetype>(row)], !rows_[row].check->isChecked());
}

void ColumnGroupRows::onComboBox1IndexChanged(int index) {
    place(0, index);
}

void ColumnGroupRows::onComboBox2IndexChanged(int index) {
    place(1, index);
}

void ColumnGroupRows::onComboBox3IndexChanged(int index) {
    place(2, index);
}

void ColumnGroupRows::onComboBox4IndexChanged(int index) {
    place(3, index);
}

void ColumnGroupRows::onCheckBox1stateChanged() {
    readCheck(0);
}

void ColumnGroupRows::onCheckBox2stateChanged() {
    readCheck(1);
}

void ColumnGroupRows::onCheckBox3stateChanged() {
    readCheck(2);
}

void ColumnGroupRows::onCheckBox4stateChanged() {
    readCheck(3);
}
