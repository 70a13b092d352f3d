// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/EditorCompletion.h"

#include "editor/language/KelvoraCompleter.h"
#include "editor/text/CompletionPlace.h"
#include "editor/text/EditorHost.h"
#include "editor/text/WaitCursor.h"

#include <QAbstractItemView>
#include <QDebug>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollBar>

#include <algorithm>

namespace {

/// Words after which a blank offers the entities.
bool isVariableTrigger(const QString& word) {
    static const QStringList triggers{QStringLiteral("AREALIST"), QStringLiteral("FREQ"),
                                      QStringLiteral("BY"), QStringLiteral("AREABREAK")};
    return triggers.contains(word.toUpper());
}

/// Whether one of those words stands in the line so far.
bool listsEntities(QStringView line) {
    const auto words = line.split(u' ', Qt::SkipEmptyParts);
    return std::any_of(words.begin(), words.end(),
                       [](QStringView word) { return isVariableTrigger(word.toString()); });
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
    connect(editor.document(), &QTextDocument::contentsChange, this,
            &EditorCompletion::forgetReplacedText);
}

void EditorCompletion::followLook() {
    QAbstractItemView* popup = completer_->popup();
    popup->setFont(editor_.font());
    popup->setPalette(editor_.palette());
}

void EditorCompletion::offer(const QStringList& words) {
    completer_->setWords(words);
    offeredIn_ = editor_.textCursor().block();
}

void EditorCompletion::offerReservedWords() {
    offer(reserved_);
}

/// The lines of a text that another one replaces may go by the same names.
void EditorCompletion::forgetReplacedText(int position, int /*removed*/, int added) {
    if (position == 0 && added > 1 && added >= editor_.document()->characterCount() - 1)
        offerReservedWords();
}

void EditorCompletion::offerWordsOfPlace() {
    const QTextCursor cursor = editor_.textCursor();
    const QString line = cursor.block().text();
    const QStringView before = QStringView(line).first(wordStart(line, cursor.positionInBlock()));
    const QStringView words = before.trimmed();
    const bool afterBlank = !before.isEmpty() && before.back().isSpace();
    if (!inProse() && before.endsWith(u'.') &&
        lookUpEntity(wordAround(line, int(before.size()) - 1)))
        return;
    const bool wantsEntity =
        (afterBlank && isVariableTrigger(wordAround(words, int(words.size())))) ||
        (words.endsWith(u',') && listsEntities(words));
    offer(wantsEntity && !inProse() ? entities_ : reserved_);
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
    const QTextCursor cursor = editor_.textCursor();
    if (typesWord(event) && (cursor.block() != offeredIn_ || cursor.selectionStart() == 0))
        offerReservedWords();
    afterEntityDot_ =
        trigger == Trigger::Dot && !inProse() && lookUpEntity(wordAt(editor_.textCursor()));
    if (trigger == Trigger::Comma && !inProse())
        offer(entities_);
}

bool EditorCompletion::lookUpEntity(const QString& word) {
    qDebug().noquote() << "Previous Word: " << word;
    const QString name = lowerCase_ ? word.toLower() : word.toUpper();
    if (!entities_.contains(name))
        return false;
    offer(variablesOf(name));
    return true;
}

QStringList EditorCompletion::variablesOf(const QString& entity) const {
    if (host_ == nullptr)
        return {};
    const WaitCursor wait;
    QStringList names = host_->variablesOf(entity);
    if (lowerCase_)
        for (QString& name : names)
            name = name.toLower();
    return names;
}

void EditorCompletion::afterKey(const QKeyEvent& event) {
    if (asksForWords(event)) {
        offerWordsOfPlace();
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
        offer(entities_);
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

bool EditorCompletion::typesWord(const QKeyEvent& event) {
    const QString text = event.text();
    return !text.isEmpty() && !isCommand(event) &&
           (text.back().isPrint() || event.key() == Qt::Key_Backspace);
}

bool EditorCompletion::offersForWord(const QKeyEvent& event) const {
    return typesWord(event) && !endsWord(event.text().back()) &&
           !wordAt(editor_.textCursor()).isEmpty();
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
    editor_.ensureCursorVisible();
}
