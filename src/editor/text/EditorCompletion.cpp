// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/EditorCompletion.h"

#include "editor/language/KelvoraCompleter.h"
#include "editor/text/CompletionPlace.h"
#include "editor/text/EditorHost.h"

#include <QAbstractItemView>
#include <QDebug>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

namespace {

/// Words after which a blank offers the entities.
bool isVariableTrigger(const QString& word) {
    static const QStringList triggers{QStringLiteral("AREALIST"), QStringLiteral("FREQ"),
                                      QStringLiteral("BY"), QStringLiteral("AREABREAK")};
    return triggers.contains(word.toUpper());
}

bool isCommand(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    // Both together are how some keyboards reach their third level of characters.
    return held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier) ||
           held.testFlag(Qt::MetaModifier);
}

bool asksForWords(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space && event.modifiers() == Qt::ControlModifier;
}

QString wordAt(const QTextCursor& cursor, int stepsBack = 0) {
    const int column = cursor.positionInBlock() - stepsBack;
    return column < 0 ? QString() : wordAround(cursor.block().text(), column);
}

} // namespace

EditorCompletion::EditorCompletion(QPlainTextEdit& editor, const EditorHost* host)
    : editor_(editor), host_(host), completer_(new KelvoraCompleter(this)),
      reserved_(completer_->words()) {
    completer_->setWidget(&editor);
    completer_->setCompletionMode(QCompleter::PopupCompletion);
    QAbstractItemView* popup = completer_->popup();
    popup->setObjectName(QStringLiteral("completionPopup"));
    popup->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // it is as wide as its words
}

void EditorCompletion::followLook() {
    QAbstractItemView* popup = completer_->popup();
    popup->setFont(editor_.font());
    popup->setPalette(editor_.palette());
}

void EditorCompletion::offerReservedWords() {
    completer_->setWords(reserved_);
}

bool EditorCompletion::takes(const QKeyEvent& event) const {
    if (!completer_->popup()->isVisible())
        return false;
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    default:
        return false;
    }
}

EditorCompletion::Trigger EditorCompletion::triggerOf(const QKeyEvent& event) {
    if (isCommand(event) || event.text().size() != 1)
        return Trigger::None;
    switch (event.text().front().unicode()) {
    case u' ':
        return Trigger::Blank;
    case u',':
        return Trigger::Comma;
    case u'.':
        return Trigger::Dot;
    default:
        return Trigger::None;
    }
}

void EditorCompletion::beforeKey(const QKeyEvent& event) {
    const Trigger trigger = triggerOf(event);
    afterEntityDot_ =
        trigger == Trigger::Dot && !inProse() && lookUpEntity(wordAt(editor_.textCursor()));
    if (trigger == Trigger::Comma)
        completer_->setWords(entities_);
}

bool EditorCompletion::lookUpEntity(const QString& word) {
    qDebug().noquote() << "Previous Word: " << word;
    const QString name = lowerCase_ ? word.toLower() : word.toUpper();
    if (!entities_.contains(name))
        return false;
    completer_->setWords(variablesOf(name));
    return true;
}

QStringList EditorCompletion::variablesOf(const QString& entity) const {
    if (host_ == nullptr)
        return {};
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QStringList names = host_->variablesOf(entity);
    QGuiApplication::restoreOverrideCursor();
    if (lowerCase_)
        for (QString& name : names)
            name = name.toLower();
    return names;
}

void EditorCompletion::afterKey(const QKeyEvent& event) {
    if (asksForWords(event)) {
        offersAfter(Trigger::Blank); // the entities, where they belong here
        open(wordAt(editor_.textCursor()));
        return;
    }
    const bool holds = (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
    if ((holds && event.text().isEmpty()) || event.key() == Qt::Key_Delete)
        return;
    const Trigger trigger = triggerOf(event);
    const bool offers = trigger == Trigger::None ? offersForWord(event) : offersAfter(trigger);
    if (offers && !inProse())
        open(wordAt(editor_.textCursor()));
    else
        hide();
}

/// A blank offers something only after a word that wants an entity: anywhere else Return would put
/// a word into the text that nobody asked for.
bool EditorCompletion::offersAfter(Trigger trigger) {
    const QTextCursor cursor = editor_.textCursor();
    switch (trigger) {
    case Trigger::Blank:
        if (!wordAt(cursor).isEmpty() || !isVariableTrigger(wordAt(cursor, 1)))
            return false;
        completer_->setWords(entities_);
        return true;
    case Trigger::Comma:
        return cursor.block().text().trimmed().size() > 1;
    case Trigger::Dot:
        return afterEntityDot_;
    case Trigger::None:
        break;
    }
    return false;
}

bool EditorCompletion::offersForWord(const QKeyEvent& event) const {
    const QString text = event.text();
    const bool types = !text.isEmpty() && !isCommand(event) &&
                       (text.back().isPrint() || event.key() == Qt::Key_Backspace);
    return types && !endsWord(text.back()) && !wordAt(editor_.textCursor()).isEmpty();
}

bool EditorCompletion::inProse() const {
    const QTextCursor cursor = editor_.textCursor();
    const QTextBlock block = cursor.block();
    return isProse(block.text(), cursor.positionInBlock(), block.previous().userState() == 1);
}

void EditorCompletion::open(const QString& prefix) {
    QAbstractItemView* popup = completer_->popup();
    completer_->setCompletionPrefix(prefix);
    popup->setCurrentIndex(completer_->completionModel()->index(0, 0));
    const bool nothingToAdd = completer_->completionCount() == 1 &&
                              completer_->currentCompletion().size() == prefix.size();
    if (nothingToAdd) {
        hide();
        return;
    }
    QRect place = editor_.cursorRect().translated(editor_.viewport()->pos());
    place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width());
    completer_->complete(place);
}

void EditorCompletion::hide() {
    completer_->popup()->hide();
}

void EditorCompletion::insert(const QString& completion) {
    if (completer_->widget() != &editor_)
        return;
    QTextCursor cursor = editor_.textCursor();
    const QString prefix = completer_->completionPrefix();
    // Without a prefix the word next to the cursor is another one.
    if (!prefix.isEmpty())
        cursor.setPosition(cursor.block().position() +
                           wordEnd(cursor.block().text(), cursor.positionInBlock()));
    cursor.beginEditBlock(); // or undoing it would take what was typed before along
    cursor.insertText(completion.mid(prefix.size()));
    cursor.endEditBlock();
    editor_.setTextCursor(cursor);
}
