// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/SyntaxClue.h"

#include "editor/language/KelvoraCompleter.h"
#include "editor/program/RundefTemplate.h"
#include "editor/text/Editor.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextCursor>

#include <algorithm>

namespace {

QString wordAt(const Editor& editor) {
    QTextCursor cursor = editor.textCursor();
    cursor.select(QTextCursor::WordUnderCursor);
    return cursor.selectedText();
}

} // namespace

SyntaxClue::SyntaxClue(QObject* parent)
    : QObject(parent), completer_(new KelvoraCompleter(QStringList(), true, this)) {
    completer_->setCompletionMode(QCompleter::PopupCompletion);
    completer_->popup()->setObjectName(QStringLiteral("syntaxCluePopup"));
    // It comes before the completer's own filter, which would let the editor take Return.
    completer_->popup()->installEventFilter(this);
    connect(completer_, qOverload<const QString&>(&QCompleter::activated), this,
            &SyntaxClue::insert);
}

void SyntaxClue::offer(Editor& editor) {
    editor_ = &editor;
    completer_->setWidget(&editor);
    completer_->loadFromFile(QStringLiteral(":/resources/commandlist.txt"));
    const QString word = wordAt(editor);
    const QStringList lines = completer_->words();
    const bool begun = std::any_of(lines.begin(), lines.end(), [&word](const QString& line) {
        return line.startsWith(word, Qt::CaseInsensitive);
    });
    completer_->setCompletionPrefix(begun ? word : QString());
    QAbstractItemView* popup = completer_->popup();
    popup->setAccessibleName(tr("Commands"));
    popup->setFont(editor.font());
    popup->setPalette(editor.palette());
    completer_->setMaxVisibleItems(static_cast<int>(lines.size()));
    QRect place = editor.cursorRect();
    place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width() +
                   2 * editor.fontMetrics().averageCharWidth());
    completer_->complete(place);
    popup->setCurrentIndex(completer_->completionModel()->index(0, 0));
}

QWidget& SyntaxClue::list() const {
    return *completer_->popup();
}

void SyntaxClue::close() {
    completer_->popup()->hide();
}

void SyntaxClue::insert(const QString& line) {
    if (editor_ == nullptr || completer_->widget() != editor_)
        return;
    const QString prefix = completer_->completionPrefix();
    QTextCursor cursor = editor_->textCursor();
    cursor.clearSelection();
    if (!prefix.isEmpty()) {
        cursor.movePosition(QTextCursor::Left);
        cursor.movePosition(QTextCursor::EndOfWord);
    }
    cursor.insertText(line.mid(prefix.size()));
    editor_->setTextCursor(cursor);
    emit inserted(line);
}

void SyntaxClue::chooseCurrent() {
    const QModelIndex current = completer_->popup()->currentIndex();
    const QString line = current.data().toString();
    close();
    if (current.isValid())
        insert(line);
}

/// The list is not narrowed: whoever types on wants none of it.
void SyntaxClue::passOn(QKeyEvent& event) {
    close();
    if (editor_ != nullptr)
        QCoreApplication::sendEvent(editor_, &event);
}

bool SyntaxClue::eventFilter(QObject* object, QEvent* event) {
    if (object != completer_->popup() || event->type() != QEvent::KeyPress)
        return QObject::eventFilter(object, event);
    auto& key = *static_cast<QKeyEvent*>(event);
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        chooseCurrent();
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        if (key.text().isEmpty())
            return false;
        passOn(key);
        return true;
    }
}

void expandClue(Editor& editor, const QString& line) {
    if (line != QLatin1String("RUNDEF command"))
        return;
    QTextCursor cursor = editor.textCursor();
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor,
                        static_cast<int>(line.size()));
    cursor.insertText(rundefTemplate());
    cursor.endEditBlock();
    editor.setTextCursor(cursor);
}
