// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/NameEdit.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

namespace {

void accept(QLineEdit* edit, const char* pattern) {
    edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QLatin1String(pattern)), edit));
}

} // namespace

void NameEdit::acceptNames(QLineEdit* edit) {
    accept(edit, "^([a-zA-Z][a-zA-Z0-9_]*)?$");
}

void NameEdit::acceptDigits(QLineEdit* edit) {
    accept(edit, "^-?[0-9]*$");
}

void NameEdit::clear(QLineEdit* edit, const QString& inForce) {
    const QSignalBlocker blocker(edit);
    edit->clear();
    edit->setPlaceholderText(inForce);
}

void NameEdit::show(QLineEdit* edit, const QString& text) {
    const QSignalBlocker blocker(edit);
    edit->setPlaceholderText({});
    if (edit->text() != text) {
        edit->setText(text);
        edit->setCursorPosition(0);
    }
}

QLineEdit* NameEdit::bound(const char* objectName, QString& text) {
    auto* edit = new QLineEdit(text);
    edit->setObjectName(QLatin1String(objectName));
    QObject::connect(edit, &QLineEdit::textChanged, edit,
                     [&text](const QString& typed) { text = typed; });
    return edit;
}
