// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultLabels.h"

#include <QLabel>

QLabel* makeResultNote(const QString& objectName) {
    auto* label = new QLabel;
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setWordWrap(true);
    return label;
}

QLabel* makeResultTitle(const QString& objectName) {
    QLabel* label = makeResultNote(objectName);
    QFont bold = label->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    label->setFont(bold);
    return label;
}
