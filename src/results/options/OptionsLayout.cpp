// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/options/OptionsLayout.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QVBoxLayout>

QGroupBox* addOptionsGroup(QDialog& dialog, const QString& title) {
    auto* group = new QGroupBox(title);
    group->setObjectName(QStringLiteral("groupBox"));
    new QVBoxLayout(group);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(group);
    column->addStretch();
    column->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return group;
}
