// SPDX-License-Identifier: GPL-3.0-or-later
// Four rows, one for each place of a group of columns: which group stands there, and whether it
// shows.
#pragma once

#include "results/options/ColumnGroups.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QGridLayout;

class ColumnGroupRows : public QWidget {
    Q_OBJECT

public:
    explicit ColumnGroupRows(ColumnGroups groups, QWidget* parent = nullptr);
    const ColumnGroups& groups() const { return groups_; }

private slots:
    void onComboBox1IndexChanged(int index);
    void onComboBox2IndexChanged(int index);
    void onComboBox3IndexChanged(int index);
    void onComboBox4IndexChanged(int index);
    void onCheckBox1stateChanged();
    void onCheckBox2stateChanged();
    void onCheckBox3stateChanged();
    void onCheckBox4stateChanged();

private:
    struct Row {
        QComboBox* combo;
        QCheckBox* check;
    };

    void addRow(QGridLayout& grid, int row);
    void connectRows();
    void place(std::size_t row, int index);
    void readCheck(std::size_t row);
    void showGroups();
    void showRow(std::size_t row);

    ColumnGroups groups_;
    std::array<Row, 4> rows_{};
};
