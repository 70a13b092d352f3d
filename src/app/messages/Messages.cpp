// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/messages/Messages.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>

namespace {

MessageAnswer& answerer() {
    static MessageAnswer answer;
    return answer;
}

QString translated(const char* text) {
    return QCoreApplication::translate("Messages", text);
}

/// Plain text unless told otherwise, since texts quote what files hold. The arrow, since a busy
/// program shows the wait cursor.
QMessageBox::StandardButton ask(QMessageBox::Icon icon, const QString& title, const QString& text,
                                QMessageBox::StandardButtons buttons,
                                Qt::TextFormat format = Qt::PlainText, QCheckBox* tick = nullptr) {
    QMessageBox box(icon, title, text, buttons, QApplication::activeWindow());
    box.setTextFormat(format);
    if (tick != nullptr)
        box.setCheckBox(tick);
    if (buttons.testFlag(QMessageBox::No) && !buttons.testFlag(QMessageBox::Cancel))
        box.setEscapeButton(QMessageBox::No);
    const bool waiting = QGuiApplication::overrideCursor() != nullptr;
    if (waiting)
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = box.exec();
    if (waiting)
        QGuiApplication::restoreOverrideCursor();
    if (tick != nullptr)
        tick->setParent(nullptr); // the caller's, not the box's
    return static_cast<QMessageBox::StandardButton>(answer);
}

void show(MessageKind kind, QMessageBox::Icon icon, const QString& title, const QString& text,
          Qt::TextFormat format = Qt::PlainText) {
    if (answerer())
        answerer()(kind, text);
    else
        ask(icon, title, text, QMessageBox::Ok, format);
}

constexpr QMessageBox::StandardButtons yesNoCancel =
    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;

Choice choiceOf(QMessageBox::StandardButton button) {
    switch (button) {
    case QMessageBox::Yes:
        return Choice::Yes;
    case QMessageBox::No:
        return Choice::No;
    default:
        return Choice::Cancel;
    }
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

void showRichInformation(const QString& text) {
    show(MessageKind::Information, QMessageBox::Information,
         translated(QT_TRANSLATE_NOOP("Messages", "Information")), text, Qt::RichText);
}

bool askYesNo(const QString& title, const QString& text) {
    if (answerer())
        return answerer()(MessageKind::Question, text) == Choice::Yes;
    return ask(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

Choice askYesNoCancel(const QString& title, const QString& text) {
    if (answerer())
        return answerer()(MessageKind::Question, text);
    return choiceOf(ask(QMessageBox::Question, title, text, yesNoCancel));
}

Choice askYesNoCancel(const QString& title, const QString& text, const QString& boxText,
                      bool& ticked) {
    if (answerer())
        return answerer()(MessageKind::Question, text);
    QCheckBox tick(boxText);
    const Choice choice =
        choiceOf(ask(QMessageBox::Question, title, text, yesNoCancel, Qt::PlainText, &tick));
    ticked = tick.isChecked();
    return choice;
}

void answerMessages(MessageAnswer answer) {
    answerer() = std::move(answer);
}
