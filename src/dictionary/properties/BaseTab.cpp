// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/BaseTab.h"

#include <QFormLayout>

BaseTab::BaseTab(QWidget* parent) : QWidget(parent), form_(new QFormLayout(this)) {
    form_->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form_->setLabelAlignment(Qt::AlignLeft);
}
