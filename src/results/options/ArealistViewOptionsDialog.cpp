// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/options/ArealistViewOptionsDialog.h"

#include "results/options/ColumnGroupRows.h"
#include "results/options/OptionsLayout.h"
#include "results/tables/TableViewConfig.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLayout>

ArealistViewOptionsDialog::ArealistViewOptionsDialog(const Options& options, QWidget* parent)
    : QDialog(parent), checkBoxShowColumnsTotal_(new QCheckBox(tr("Show Totals Row"))) {
    setObjectName(QStringLiteral("ArealistViewOptionsDialog"));
    setWindowTitle(tr("View Options"));
    ColumnGroups groups(options.columnOrder,
                        {columnkeys::total, columnkeys::notApplicable, columnkeys::missing});
    groups.setHidden(columnkeys::total, options.hideTotal);
    groups.setHidden(columnkeys::notApplicable, options.hideNa);
    groups.setHidden(columnkeys::missing, options.hideMv);
    rows_ = new ColumnGroupRows(groups);
    checkBoxShowColumnsTotal_->setObjectName(QStringLiteral("checkBoxShowColumnsTotal"));
    checkBoxShowColumnsTotal_->setToolTip(
        tr("Add a row with the sum of each column of whole numbers"));
    checkBoxShowColumnsTotal_->setChecked(options.showTotalsRow);
    QLayout* column = addOptionsGroup(*this, tr("Variables"))->layout();
    column->addWidget(rows_);
    column->addWidget(checkBoxShowColumnsTotal_);
}

ArealistViewOptionsDialog::Options ArealistViewOptionsDialog::options() const {
    const ColumnGroups& groups = rows_->groups();
    return {groups.order(), groups.isHidden(columnkeys::notApplicable),
            groups.isHidden(columnkeys::missing), groups.isHidden(columnkeys::total),
            checkBoxShowColumnsTotal_->isChecked()};
}
