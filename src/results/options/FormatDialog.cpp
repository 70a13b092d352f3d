// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/options/FormatDialog.h"

#include "results/options/ColumnGroupRows.h"
#include "results/options/OptionsLayout.h"
#include "results/tables/TableViewConfig.h"

#include <QGroupBox>
#include <QLayout>

FormatDialog::FormatDialog(const QStringList& order, bool hideNa, bool hideMv, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("FormatDialog"));
    setWindowTitle(tr("View Options"));
    ColumnGroups groups(order, {columnkeys::notApplicable, columnkeys::missing});
    groups.setHidden(columnkeys::notApplicable, hideNa);
    groups.setHidden(columnkeys::missing, hideMv);
    rows_ = new ColumnGroupRows(groups);
    addOptionsGroup(*this, tr("Order"))->layout()->addWidget(rows_);
}

QStringList FormatDialog::columnOrder() const {
    return rows_->groups().order();
}

bool FormatDialog::hideNa() const {
    return rows_->groups().isHidden(columnkeys::notApplicable);
}

bool FormatDialog::hideMv() const {
    return rows_->groups().isHidden(columnkeys::missing);
}
