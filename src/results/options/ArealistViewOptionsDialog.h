// SPDX-License-Identifier: GPL-3.0-or-later
// Asks how the columns of an area list stand, which of them show, and whether totals close it.
#pragma once

#include <QDialog>
#include <QStringList>

class ColumnGroupRows;
class QCheckBox;

class ArealistViewOptionsDialog : public QDialog {
    Q_OBJECT

public:
    struct Options {
        QStringList columnOrder; ///< a permutation of the four column keys
        bool hideNa = false;
        bool hideMv = false;
        bool hideTotal = false;
        bool showTotalsRow = false;
    };

    explicit ArealistViewOptionsDialog(const Options& options, QWidget* parent = nullptr);
    Options options() const;

private:
    ColumnGroupRows* rows_; ///< the four combos with their check boxes
    QCheckBox* checkBoxShowColumnsTotal_;
};
