// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/messages/Messages.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

namespace {

MessageAnswer& answerer() {
    static MessageAnswer answer;
    return answer;
}

QString translated(const char* text) {
    return QCoreApplication::translate("Messages", text);
}

/// With the arrow, since a busy program shows the wait cursor.
QMessageBox::StandardButton run(QMessageBox& box) {
    const QMessageBox::StandardButtons buttons = box.standardButtons();
    if (buttons.testFlag(QMessageBox::No) && !buttons.testFlag(QMessageBox::Cancel))
        box.setEscapeButton(QMessageBox::No);
    const bool waiting = QGuiApplication::overrideCursor() != nullptr;
    if (waiting)
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = box.exec();
    if (waiting)
        QGuiApplication::restoreOverrideCursor();
    return static_cast<QMessageBox::StandardButton>(answer);
}

/// Plain text unless told otherwise, since texts quote what files hold.
QMessageBox::StandardButton ask(QMessageBox::Icon icon, const QString& title, const QString& text,
                                QMessageBox::StandardButtons buttons,
                                Qt::TextFormat format = Qt::PlainText) {
    QMessageBox box(icon, title, text, buttons, QApplication::activeWindow());
    box.setTextFormat(format);
    return run(box);
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

void showError(const QString& title, const QString& text) {
    show(MessageKind::Error, QMessageBox::Critical, title, text);
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

void showAbout(const QString& title, const QString& html) {
    show(MessageKind::Information, QMessageBox::Information, title, html, Qt::RichText);
}

bool askYesNo(const QString& title, const QString& text) {
    if (answerer())
        return answerer()(MessageKind::Question, text) == Choice::Yes;
    return ask(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

bool askYesNo(const QString& title, const QString& text, const QString& yesText,
              const QString& noText, bool yesIsDefault) {
    if (answerer())
        return answerer()(MessageKind::Question, text) == Choice::Yes;
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Yes)->setText(yesText);
    box.button(QMessageBox::No)->setText(noText);
    box.setDefaultButton(yesIsDefault ? QMessageBox::Yes : QMessageBox::No);
    return run(box) == QMessageBox::Yes;
}

bool askYesNoRich(const QString& title, const QString& html, const QString& informative) {
    if (answerer())
        return answerer()(MessageKind::Question, html + '\n' + informative) == Choice::Yes;
    QMessageBox box(QMessageBox::Information, title, html, QMessageBox::Yes | QMessageBox::No,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::RichText);
    box.setInformativeText(informative);
    box.setDefaultButton(QMessageBox::Yes);
    return run(box) == QMessageBox::Yes;
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
    QMessageBox box(QMessageBox::Question, title, text, yesNoCancel, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    auto* tick = new QCheckBox(boxText, &box);
    box.setCheckBox(tick);
    const Choice choice = choiceOf(run(box));
    ticked = tick->isChecked();
    return choice;
}

void answerMessages(MessageAnswer answer) {
    answerer() = std::move(answer);
}
