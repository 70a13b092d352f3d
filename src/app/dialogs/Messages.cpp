// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/Messages.h"

#include <QApplication>
#include <QMessageBox>

namespace {

MessageAnswer& answerer() {
    static MessageAnswer answer;
    return answer;
}

QString translated(const char* text) {
    return QCoreApplication::translate("Messages", text);
}

void show(MessageKind kind, QMessageBox::Icon icon, const QString& title, const QString& text) {
    if (answerer()) {
        answerer()(kind, text);
        return;
    }
    QMessageBox box(icon, title, text, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText); // texts quote what files hold
    box.exec();
}

} // namespace

void showError(const QString& text) {
    show(MessageKind::Error, QMessageBox::Critical,
         translated(QT_TRANSLATE_NOOP("Messages", "Error")), text);
}

void showInformation(const QString& text) {
    show(MessageKind::Information, QMessageBox::Information,
         translated(QT_TRANSLATE_NOOP("Messages", "Information")), text);
}

void showWarning(const QString& text) {
    show(MessageKind::Warning, QMessageBox::Warning,
         translated(QT_TRANSLATE_NOOP("Messages", "Warning")), text);
}

bool askYesNo(const QString& title, const QString& text) {
    if (answerer())
        return answerer()(MessageKind::Question, text);
    return QMessageBox::question(QApplication::activeWindow(), title, text,
                                 QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void answerMessages(MessageAnswer answer) {
    answerer() = std::move(answer);
}
