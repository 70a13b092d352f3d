// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codeeditor/QCodeEditor.h"

#include "editor/codeeditor/BracketPairs.h"
#include "editor/codeeditor/QFramedTextAttribute.h"
#include "editor/codeeditor/QLineNumberArea.h"
#include "editor/language/QKelxCompleter.h"
#include "editor/language/QKelxHighlighter.h"
#include "editor/language/QSyntaxStyle.h"

#include <QAbstractItemView>
#include <QFile>
#include <QFontDatabase>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace {

constexpr int defaultTabBlanks = 4;
constexpr int minimumPrefix = 2;

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool asksForCompletion(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space && event.modifiers() == Qt::ControlModifier;
}

/// Whether it types a part of a word; a shortcut's letter is none.
bool continuesWord(const QKeyEvent& event) {
    static const QString endOfWord = QStringLiteral("~!@#$%^&*()_+{}|:\"<>?,./;'[]\\-=");
    const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const QString typed = event.text();
    return held != Qt::ControlModifier && !typed.isEmpty() && typed.back().isPrint() &&
           !endOfWord.contains(typed.back());
}

QString wordAt(QTextCursor cursor) {
    cursor.select(QTextCursor::WordUnderCursor);
    return cursor.selectedText();
}

} // namespace

QCodeEditor::QCodeEditor(QWidget* parent)
    : QTextEdit(parent), highlighter_(new QKelxHighlighter(document())),
      lineNumberArea_(new QLineNumberArea(this)), frames_(new QFramedTextAttribute(this)),
      tabReplace_(defaultTabBlanks, u' ') {
    setAccessibleName(tr("Program text"));
    setAcceptRichText(false);
    setLineWrapMode(NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setCompleter(new QKelxCompleter(this));
    connectChanges();
    setSyntaxStyle(QSyntaxStyle::defaultStyle());
    layoutGutter();
}

void QCodeEditor::connectChanges() {
    const auto repaintNumbers = [this] { lineNumberArea_->update(); };
    connect(document(), &QTextDocument::blockCountChanged, this, &QCodeEditor::layoutGutter);
    connect(document(), &QTextDocument::contentsChanged, lineNumberArea_, repaintNumbers);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, lineNumberArea_, repaintNumbers);
    connect(this, &QTextEdit::cursorPositionChanged, lineNumberArea_, repaintNumbers);
    connect(this, &QTextEdit::cursorPositionChanged, this, &QCodeEditor::markExtras);
    connect(this, &QTextEdit::selectionChanged, this, &QCodeEditor::frameOccurrences);
    connect(this, &QTextEdit::textChanged, this, &QCodeEditor::frameOccurrences);
    highlighter_->setVisibleBlocks([this] {
        return qMakePair(cursorForPosition({0, 0}).blockNumber(),
                         cursorForPosition(viewport()->rect().bottomRight()).blockNumber());
    });
}

void QCodeEditor::setPath(const QString& path) {
    path_ = path;
    untitled_ = path.isEmpty();
}

QString QCodeEditor::sampleTextPath() {
    return QStringLiteral(":/resources/code_samples/kelvora.spc");
}

void QCodeEditor::showSampleText() {
    QFile file(sampleTextPath());
    if (file.open(QIODevice::ReadOnly))
        setPlainText(QString::fromUtf8(file.readAll()));
}

void QCodeEditor::setSyntaxStyle(QSyntaxStyle* style) {
    style_ = style != nullptr ? style : QSyntaxStyle::defaultStyle();
    applyStyleColors(*this, *style_);
    highlighter_->setSyntaxStyle(style_);
    highlighter_->recolour();
    lineNumberArea_->setSyntaxStyle(style_);
    frames_->setSyntaxStyle(style_);
    markExtras();
}

void QCodeEditor::setGutter(bool visible, bool lineNumbers) {
    lineNumberArea_->setGutter(visible, lineNumbers);
    layoutGutter();
}

void QCodeEditor::layoutGutter() {
    const int width = lineNumberArea_->sizeHint().width();
    setViewportMargins(width, 0, 0, 0);
    const QRect inside = contentsRect();
    lineNumberArea_->setGeometry(inside.left(), inside.top(), width, inside.height());
}

void QCodeEditor::setTabReplaceSize(int blanks) {
    tabReplace_ = QString(blanks, u' ');
    updateTabStop();
}

void QCodeEditor::updateTabStop() {
    setTabStopDistance(QFontMetricsF(font()).horizontalAdvance(u' ') * tabReplaceSize());
}

void QCodeEditor::setCompleter(QCompleter* completer) {
    if (completer_ != nullptr)
        completer_->disconnect(this);
    completer_ = completer;
    if (completer_ == nullptr)
        return;
    completer_->setWidget(this);
    completer_->setCompletionMode(QCompleter::PopupCompletion);
    connect(completer_, qOverload<const QString&>(&QCompleter::activated), this,
            &QCodeEditor::insertCompletion);
}

void QCodeEditor::resizeEvent(QResizeEvent* event) {
    QTextEdit::resizeEvent(event);
    layoutGutter();
}

void QCodeEditor::focusInEvent(QFocusEvent* event) {
    if (completer_ != nullptr)
        completer_->setWidget(this);
    QTextEdit::focusInEvent(event);
}

void QCodeEditor::changeEvent(QEvent* event) {
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateTabStop();
        layoutGutter();
    } else if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Program text"));
    }
}

void QCodeEditor::paintEvent(QPaintEvent* event) {
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    frames_->paint(painter, *this);
}

void QCodeEditor::keyPressEvent(QKeyEvent* event) {
    if (popupTakes(*event)) {
        event->ignore();
        return;
    }
    if (asksForCompletion(*event) && completer_ != nullptr) {
        complete(*event);
        return;
    }
    editByKey(event);
}

void QCodeEditor::editByKey(QKeyEvent* event) {
    const bool writable = !isReadOnly();
    if (writable && replaceTab_ && event->key() == Qt::Key_Tab &&
        event->modifiers() == Qt::NoModifier) {
        insertPlainText(tabReplace_);
        return;
    }
    if (writable && replaceTab_ && event->key() == Qt::Key_Backtab) {
        removeIndentLevel();
        return;
    }
    const LineIndent indent = currentIndent();
    const bool indents = writable && autoIndentation_ && isReturn(*event);
    if (indents && isBetweenBraces()) {
        openBraces(indent);
        return;
    }
    const int before = document()->revision();
    QTextEdit::keyPressEvent(event);
    if (document()->revision() != before) {
        if (indents)
            insertJoined(indentText(indent, 0));
        if (autoParentheses_)
            pairParentheses(event->text());
    }
    complete(*event);
}

LineIndent QCodeEditor::currentIndent() const {
    const double tabColumns = tabStopDistance() / QFontMetricsF(font()).averageCharWidth();
    return lineIndent(textCursor().block().text(), tabColumns);
}

QString QCodeEditor::indentText(const LineIndent& indent, int levels) const {
    if (replaceTab_)
        return QString(indent.columns + levels * tabReplaceSize(), u' ');
    const double tabs = indent.columns * QFontMetricsF(font()).averageCharWidth();
    return QString(qRound(tabs / tabStopDistance()) + levels, u'\t');
}

bool QCodeEditor::isBetweenBraces() const {
    const int at = textCursor().position();
    return at > 0 && document()->characterAt(at) == u'}' && document()->characterAt(at - 1) == u'{';
}

void QCodeEditor::openBraces(const LineIndent& indent) {
    const QString outer = indentText(indent, 0);
    QTextCursor cursor = textCursor();
    cursor.insertText(u'\n' + indentText(indent, 1) + u'\n' + outer);
    cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, int(outer.size()) + 1);
    setTextCursor(cursor);
}

void QCodeEditor::removeIndentLevel() {
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::StartOfBlock);
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor,
                        charactersOfLevel(cursor.block().text(), tabReplaceSize()));
    cursor.removeSelectedText();
}

/// As one undo step with what has just been typed.
void QCodeEditor::insertJoined(const QString& text) {
    QTextCursor cursor = textCursor();
    cursor.joinPreviousEditBlock();
    cursor.insertText(text);
    cursor.endEditBlock();
}

void QCodeEditor::pairParentheses(const QString& typed) {
    for (const BracketPair& pair : bracketPairs) {
        if (typed == pair.open) {
            insertJoined(pair.close);
            moveCursor(QTextCursor::Left);
            return;
        }
        if (typed == pair.close && document()->characterAt(textCursor().position()) == pair.close) {
            QTextCursor cursor = textCursor();
            cursor.joinPreviousEditBlock();
            cursor.deletePreviousChar();
            cursor.endEditBlock();
            moveCursor(QTextCursor::Right);
            return;
        }
    }
}

bool QCodeEditor::popupTakes(const QKeyEvent& event) const {
    if (completer_ == nullptr || !completer_->popup()->isVisible())
        return false;
    const int key = event.key();
    return isReturn(event) || key == Qt::Key_Escape || key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

void QCodeEditor::complete(const QKeyEvent& event) {
    const bool held = (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
    if (completer_ == nullptr || isReadOnly() || (held && event.text().isEmpty()) ||
        event.key() == Qt::Key_Delete)
        return;
    QAbstractItemView* popup = completer_->popup();
    const QString prefix = wordAt(textCursor());
    const bool shortens = event.key() == Qt::Key_Backspace && popup->isVisible();
    if (!asksForCompletion(event) &&
        (prefix.size() < minimumPrefix || !(shortens || continuesWord(event)))) {
        popup->hide();
        return;
    }
    if (prefix != completer_->completionPrefix())
        completer_->setCompletionPrefix(prefix);
    if (!popup->currentIndex().isValid())
        popup->setCurrentIndex(completer_->completionModel()->index(0, 0));
    QRect place = cursorRect();
    place.translate(viewport()->x(), viewport()->y());
    place.setWidth(popup->sizeHintForColumn(0) + popup->verticalScrollBar()->sizeHint().width());
    completer_->complete(place);
}

void QCodeEditor::insertCompletion(const QString& completion) {
    if (completer_ == nullptr || completer_->widget() != this)
        return;
    const qsizetype prefix = completer_->completionPrefix().size();
    QTextCursor cursor = textCursor();
    if (prefix > 0) {
        cursor.movePosition(QTextCursor::Left);
        cursor.movePosition(QTextCursor::EndOfWord);
    }
    cursor.insertText(completion.mid(prefix));
    setTextCursor(cursor);
}

void QCodeEditor::markExtras() {
    QList<ExtraSelection> marks;
    if (!isReadOnly()) {
        ExtraSelection line;
        line.format = style_->getFormat(QStringLiteral("CurrentLine"));
        line.format.clearForeground();
        line.format.setProperty(QTextFormat::FullWidthSelection, true);
        line.cursor = textCursor();
        line.cursor.clearSelection();
        marks += line;
    }
    if (const auto match = matchBracket(*document(), textCursor().position()))
        marks << characterMark(match->first) << characterMark(match->second);
    setExtraSelections(marks);
}

QTextEdit::ExtraSelection QCodeEditor::characterMark(int position) const {
    ExtraSelection mark;
    mark.format = style_->getFormat(QStringLiteral("Parentheses"));
    mark.cursor = QTextCursor(document());
    mark.cursor.setPosition(position);
    mark.cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
    return mark;
}

void QCodeEditor::frameOccurrences() {
    frames_->clear();
    QTextCursor begin = textCursor(); // at the end, a "." behind the word would count
    begin.setPosition(begin.selectionStart());
    const QString selected = textCursor().selectedText();
    if (selected.size() > 1 && selected == wordAt(begin))
        for (QTextCursor found = document()->find(selected); !found.isNull();
             found = document()->find(selected, found))
            frames_->frame(found);
    viewport()->update();
}
