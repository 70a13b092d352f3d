// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/Editor.h"

#include "editor/language/KelvoraCompleter.h"
#include "editor/language/QKelxHighlighter.h"
#include "editor/language/SyntaxStyles.h"
#include "editor/language/WordModel.h"
#include "editor/text/EditorCompletion.h"
#include "editor/text/LineNumberArea.h"
#include "editor/text/ShowPlace.h"
#include "editor/text/WordCounter.h"

#include <QFileInfo>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>

namespace {

QStringList eachOnce(QStringList names) {
    names.removeDuplicates();
    return sortedWords(names);
}

} // namespace

Editor::Editor(const EditorLook& look, EditorHost* host, QWidget* parent)
    : QPlainTextEdit(parent), host_(host), lineNumberArea_(new LineNumberArea(*this)),
      highlighter_(new QKelxHighlighter(document())), wordCounter_(new WordCounter(*document())),
      completion_(new EditorCompletion(*this, host)), search_(*this) {
    wordCounter_->setParent(this);
    completion_->setParent(this);
    setObjectName(QStringLiteral("editor"));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAcceptDrops(true);
    installEventFilter(this);
    connectSignals();
    highlighter_->setVisibleBlocks([this] { return visibleBlocks(); });
    setSyntaxStyle(::syntaxStyle(look.colorScheme));
    setEditorFont(look.font, QFont::Monospace, true, usualTabWidth);
    setGutter(look.gutterVisible, look.showGutterLineNumbers);
    retranslate();
}

Editor::~Editor() = default;

void Editor::connectSignals() {
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (!replacing_)
            on_textChanged();
    });
    const auto tellCursor = [this] {
        if (!replacing_)
            on_cursorPositionChanged();
    };
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, tellCursor);
    connect(this, &QPlainTextEdit::blockCountChanged, this, tellCursor);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &Editor::updateLineNumberAreaWidth);
    connect(this, &QPlainTextEdit::updateRequest, this, &Editor::redrawLineNumberArea);
    connect(this, &QPlainTextEdit::updateRequest, this, &Editor::renewMarks);
    connect(this, &QPlainTextEdit::undoAvailable, this, &Editor::setUndoAvailable);
    connect(this, &QPlainTextEdit::redoAvailable, this, &Editor::setRedoAvailable);
    connect(this, &QWidget::customContextMenuRequested, this, &Editor::slotCustomMenuRequested);
    connect(completion_->completer(), qOverload<const QString&>(&QCompleter::activated), this,
            &Editor::insertCompletion);
}

void Editor::retranslate() {
    setAccessibleName(tr("Program text"));
    lineNumberArea_->setAccessibleName(tr("Line numbers"));
}

void Editor::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QPlainTextEdit::changeEvent(event);
}

void Editor::setFilePath(const QString& path) {
    filePath_ = path;
    untitled_ = path.isEmpty();
}

QString Editor::displayName() {
    if (!filePath_.isEmpty())
        return QFileInfo(filePath_).fileName();
    untitled_ = true;
    return untitledName_;
}

void Editor::setEntityList(const QStringList& names) {
    entityList_ = eachOnce(names);
    completion_->setEntities(entityList_);
}

void Editor::setVariableList(const QStringList& names) {
    variableList_ = eachOnce(names);
}

void Editor::setLowerCase(bool lower) {
    completion_->setLowerCase(lower);
}

KelvoraCompleter* Editor::completer() const {
    return completion_->completer();
}

void Editor::insertCompletion(const QString& completion) {
    completion_->insert(completion);
}

void Editor::setWordWrap(bool wrap) {
    wordWrap_ = wrap;
    setLineWrapMode(wrap ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void Editor::setEditorFont(const QFont& font, QFont::StyleHint hint, bool fixedPitch,
                           int tabWidth) {
    QFont used(font);
    used.setStyleHint(hint);
    used.setFixedPitch(fixedPitch);
    setFont(used);
    setTabStopDistance(tabWidth * QFontMetricsF(used).horizontalAdvance(u' '));
    completion_->followLook();
    updateLineNumberAreaWidth();
}

void Editor::setSyntaxStyle(QSyntaxStyle* style) {
    if (style == nullptr || style == style_)
        return;
    style_ = style;
    applyStyleColors(*this, *style);
    lineNumberArea_->setSyntaxStyle(*style);
    completion_->followLook();
    showMarks();
    highlighter_->setSyntaxStyle(style);
    highlighter_->recolour();
}

void Editor::setGutter(bool visible, bool lineNumbers) {
    lineNumberArea_->setVisibility(visible, lineNumbers);
    updateLineNumberAreaWidth();
}

void Editor::updateLineNumberAreaWidth() {
    setViewportMargins(lineNumberArea_->widthHint(), 0, 0, 0);
    placeLineNumberArea();
}

void Editor::placeLineNumberArea() {
    const QRect area = contentsRect();
    lineNumberArea_->setGeometry(area.left(), area.top(), lineNumberArea_->widthHint(),
                                 area.height());
}

void Editor::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    placeLineNumberArea();
}

void Editor::redrawLineNumberArea(const QRect& rectToBeRedrawn, int numPixelsScrolledVertically) {
    lineNumberArea_->follow(rectToBeRedrawn, numPixelsScrolledVertically);
}

QList<VisibleLine> Editor::visibleLines(const QRect& rect) const {
    QList<VisibleLine> lines;
    QTextBlock block = firstVisibleBlock();
    while (block.isValid()) {
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        if (place.top() > rect.bottom())
            break;
        if (place.bottom() >= rect.top())
            lines.append({block.blockNumber() + 1, qRound(place.top())});
        block = block.next();
    }
    return lines;
}

QPair<int, int> Editor::visibleBlocks() const {
    const QList<VisibleLine> lines = visibleLines(viewport()->rect());
    return lines.isEmpty() ? QPair<int, int>(0, 0)
                           : QPair<int, int>(lines.first().number - 1, lines.last().number - 1);
}

QString Editor::selectedText() const {
    QString text = textCursor().selectedText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

int Editor::selectionFirstLine() const {
    return document()->findBlock(textCursor().selectionStart()).blockNumber();
}

void Editor::highlightErrorLine(int line) {
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    if (line < 1 || !block.isValid()) {
        clearErrorLine();
        return;
    }
    errorLine_.mark(block);
    showMarks();
    showPlace(*this, QTextCursor(block));
    viewport()->update();
}

void Editor::clearErrorLine() {
    errorLine_.clear();
    showMarks();
    viewport()->update();
}

void Editor::paintEvent(QPaintEvent* event) {
    const QTextBlock faulty = errorLine_.block();
    if (faulty.isValid()) {
        QRectF place = blockBoundingGeometry(faulty).translated(contentOffset());
        place.setLeft(0);
        place.setWidth(viewport()->width());
        QPainter(viewport()).fillRect(place, ErrorLine::color());
    }
    QPlainTextEdit::paintEvent(event);
}

bool Editor::canInsertFromMimeData(const QMimeData* source) const {
    // Files are for the window to open, though they come with their names as text.
    return source->hasText() && !source->hasUrls();
}

void Editor::insertFromMimeData(const QMimeData* source) {
    QString text = source->text();
    // The engine counts lines by line feeds.
    text.replace(QChar::LineSeparator, u'\n');
    insertTyped(text);
}

void Editor::insertTyped(const QString& text) {
    textCursor().insertText(text);
    ensureCursorVisible();
}

int Editor::wordCount() const {
    return wordCounter_->words();
}

int Editor::charCount() const {
    return document()->characterCount() - 1; // the document ends in a separator of its own
}

int Editor::currentLine() const {
    return textCursor().blockNumber() + 1;
}

int Editor::currentColumn() const {
    return textCursor().positionInBlock() + 1;
}

void Editor::tellTextMetrics() {
    emit charCountChanged(charCount());
    emit wordCountChanged(wordCount());
}

void Editor::tellMetrics() {
    tellTextMetrics();
    on_cursorPositionChanged();
}

/// The words of the faulty line come first: a mark paints over what is drawn before it.
void Editor::showMarks() {
    QList<QTextEdit::ExtraSelection> marks = errorLine_.words(palette().color(QPalette::Base));
    markedBlocks_ = visibleBlocks();
    const QTextBlock last = document()->findBlockByNumber(markedBlocks_.second);
    marks += found_.selections(*document(),
                               document()->findBlockByNumber(markedBlocks_.first).position(),
                               last.position() + last.length());
    if (!marks.isEmpty() || !extraSelections().isEmpty())
        setExtraSelections(marks);
}

/// Many marks are only those in view, which is another part of the text now and then.
void Editor::renewMarks() {
    if (found_.areMany() && visibleBlocks() != markedBlocks_)
        showMarks();
}

void Editor::clearMarks() {
    found_.clear();
    showMarks();
}

void Editor::on_textChanged() {
    clearMarks();
    search_.forget();
    tellTextMetrics();
    emit fileContentsChanged();
}

void Editor::on_cursorPositionChanged() {
    emit lineCountChanged(currentLine(), lineCount());
    emit columnCountChanged(currentColumn());
    lineNumberArea_->setCurrentLine(currentLine());
}

void Editor::setUndoAvailable(bool available) {
    undoAvailable_ = available;
}

void Editor::setRedoAvailable(bool available) {
    redoAvailable_ = available;
}
