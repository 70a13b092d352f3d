// SPDX-License-Identifier: GPL-3.0-or-later
// Asks in which order the groups of columns of a crosstab stand, and whether those of missing and
// not applicable values show.
#pragma once

#include <QDialog>
#include <QStringList>

class ColumnGroupRows;

class FormatDialog : public QDialog {
    Q_OBJECT

public:
    /// order: a permutation of the four column keys.
    FormatDialog(const QStringList& order, bool hideNa, bool hideMv, QWidget* parent = nullptr);
    QStringList columnOrder() const;
    bool hideNa() const;
    bool hideMv() const;

private:
    ColumnGroupRows* rows_; ///< the four combos with their check boxes
};
