// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/options/OrderDialog.h"

#include "results/options/OptionsLayout.h"

#include <QGroupBox>
#include <QLayout>
#include <QRadioButton>

#include <stdexcept>

namespace {

int checkedOrder(int order) {
    if (order < 0 || order > 2)
        throw std::invalid_argument("Invalid order");
    return order;
}

QRadioButton* makeRadio(const char* name, const QString& text) {
    auto* radio = new QRadioButton(text);
    radio->setObjectName(QLatin1String(name));
    return radio;
}

} // namespace

OrderDialog::OrderDialog(int order, QWidget* parent)
    : QDialog(parent), order_(checkedOrder(order)),
      radioButtonDefault_(makeRadio("radioButtonDefault", tr("Default"))),
      radioButtonAscending_(makeRadio("radioButtonAscending", tr("Ascending"))),
      radioButtonDescending_(makeRadio("radioButtonDescending", tr("Descending"))) {
    setObjectName(QStringLiteral("OrderDialog"));
    setWindowTitle(tr("View Options"));
    QLayout* column = addOptionsGroup(*this, tr("Order"))->layout();
    QRadioButton* const radios[] = {radioButtonDefault_, radioButtonAscending_,
                                    radioButtonDescending_};
    for (QRadioButton* radio : radios)
        column->addWidget(radio);
    radios[order_]->setChecked(true);
    radios[order_]->setFocus();
    for (QRadioButton* radio : radios)
        connect(radio, &QRadioButton::toggled, this, &OrderDialog::onRadioButtonToggled);
}

void OrderDialog::onRadioButtonToggled(bool checked) {
    if (!checked)
        return;
    if (radioButtonAscending_->isChecked())
        order_ = 1;
    else
        order_ = radioButtonDescending_->isChecked() ? 2 : 0;
}
