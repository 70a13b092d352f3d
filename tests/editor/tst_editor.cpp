// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of programs: what keys, clicks and drops do to the text and the counts.
#include "TypedEditor.h"
#include "dictionary/SaidMessages.h"
#include "editor/text/WordCounter.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QMenu>
#include <QMimeData>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QUrl>

namespace {

/// The words of a text by a walk over all of it.
int walkedWords(const QString& text) {
    int words = 0;
    QString word;
    for (const QChar c : text + u'\n') {
        if (c == u'\n' || c.isSpace()) {
            words += word.isEmpty() ? 0 : 1;
            word.clear();
        } else if (c.unicode() < 128 && c.isLetterOrNumber()) {
            word += c;
        }
    }
    return words;
}

QString longProgram(int lines) {
    return QStringLiteral("define PERSON.GROUP as recode PERSON.AGE (1 : 9 = 2)\n").repeated(lines);
}

QPoint middleOf(const Editor& editor, int position) {
    QTextCursor cursor(editor.document());
    cursor.setPosition(position);
    return editor.cursorRect(cursor).center();
}

} // namespace

class TestEditor : public QObject {
    Q_OBJECT

private slots:
    void breaksLines_data();
    void breaksLines();
    void breaksLinesByLineFeedsOnly();
    void takesTheBreakBackInOneStep();
    void indents_data();
    void indents();
    void takesIndentationBackInOneStep();
    void indentsNothingButLines();
    void keepsTheCursorInView();
    void answersWhatIsUnderConstruction();
    void countsAsTheWholeWalkDoes();
    void countsWhileEditedAtRandom();
    void countsALongTextQuickly();
    void tellsWhereTheCursorIs();
    void namesItsDocument();
    void givesSelectionsWithLineFeeds();
    void takesDroppedTextButNoFiles();
    void runsTheContextMenu();
};

void TestEditor::breaksLines_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("autoIndent");
    QTest::addColumn<QString>("after");
    QTest::newRow("no tabs") << "freq" << 4 << true << "freq\n";
    QTest::newRow("two tabs") << "\t\tas" << 4 << true << "\t\tas\n\t\t";
    QTest::newRow("blanks are not copied") << "    as" << 6 << true << "    as\n";
    QTest::newRow("tabs behind blanks are not copied") << " \tas" << 4 << true << " \tas\n";
    QTest::newRow("in the middle") << "\tas x\nb" << 2 << true << "\ta\n\ts x\nb";
    QTest::newRow("last line") << "\ta\n\t\tb" << 6 << true << "\ta\n\t\tb\n\t\t";
    QTest::newRow("empty last line") << "\ta\n" << 3 << true << "\ta\n\n";
    QTest::newRow("start of the document") << "\ta" << 0 << true << "\n\ta";
    QTest::newRow("empty document") << "" << 0 << true << "\n";
    QTest::newRow("without auto-indent") << "\t\tas" << 4 << false << "\t\tas\n";
}

void TestEditor::breaksLines() {
    QFETCH(QString, before);
    QFETCH(int, position);
    QFETCH(bool, autoIndent);
    TypedEditor typed(before);
    QVERIFY(typed.ready);
    typed.editor.setAutoIndent(autoIndent);
    typed.moveTo(position);
    typed.press(Qt::Key_Return);
    QTEST(typed.text(), "after");
}

void TestEditor::breaksLinesByLineFeedsOnly() {
    TypedEditor typed(QStringLiteral("ab"));
    typed.press(Qt::Key_Return, Qt::ShiftModifier); // at the start of the document
    typed.moveTo(2);
    typed.press(Qt::Key_Enter, Qt::ShiftModifier);
    QApplication::clipboard()->setText(QStringLiteral("x") + QChar(QChar::LineSeparator) + u'y');
    typed.press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(typed.text(), QStringLiteral("\na\nx\nyb"));
    QCOMPARE(typed.editor.blockCount(), 4);
}

void TestEditor::takesTheBreakBackInOneStep() {
    TypedEditor typed(QStringLiteral("\t\tabc"));
    QVERIFY(!typed.editor.hasUndo());
    typed.select(3, 4);
    typed.press(Qt::Key_Return);
    QCOMPARE(typed.text(), QStringLiteral("\t\ta\n\t\tc"));
    QVERIFY(typed.editor.hasUndo());
    QVERIFY(!typed.editor.hasRedo());
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(typed.text(), QStringLiteral("\t\tabc"));
    QVERIFY(!typed.editor.hasUndo());
    QVERIFY(typed.editor.hasRedo());
}

void TestEditor::indents_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("anchor");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("after");
    const int tab = Qt::Key_Tab;
    const int back = Qt::Key_Backtab;
    QTest::newRow("Tab types four blanks") << "ab" << 1 << 1 << tab << "a    b";
    QTest::newRow("Tab over a part") << "abc" << 1 << 2 << tab << "a\tbc";
    QTest::newRow("Tab over lines") << "a\nb\nc" << 0 << 3 << tab << "\ta\n\tb\nc";
    QTest::newRow("Tab up to a line end") << "a\nb\nc" << 0 << 4 << tab << "\ta\n\tb\nc";
    QTest::newRow("Tab over empty lines") << "a\n\n\nb" << 0 << 4 << tab << "\ta\n\t\n\t\nb";
    QTest::newRow("Tab backwards") << "a\nb" << 3 << 0 << tab << "\ta\n\tb";
    QTest::newRow("Backtab takes four blanks") << "      ab" << 7 << 7 << back << "  ab";
    QTest::newRow("Backtab takes two, all there are") << "  ab" << 3 << 3 << back << "ab";
    QTest::newRow("Backtab takes a tab, no letter") << "\tab" << 2 << 2 << back << "ab";
    QTest::newRow("Backtab takes one tab of two") << "\t\tab" << 4 << 4 << back << "\tab";
    QTest::newRow("Backtab without indentation") << "ab" << 2 << 2 << back << "ab";
    QTest::newRow("Backtab in the second line") << "    a\n    b" << 8 << 8 << back << "    a\nb";
    QTest::newRow("Backtab over lines") << "\ta\n  b\nc\n\td" << 1 << 8 << back << "a\nb\nc\n\td";
}

void TestEditor::indents() {
    QFETCH(QString, before);
    QFETCH(int, anchor);
    QFETCH(int, position);
    QFETCH(int, key);
    TypedEditor typed(before);
    typed.select(anchor, position);
    typed.press(static_cast<Qt::Key>(key),
                key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    QTEST(typed.text(), "after");
}

void TestEditor::takesIndentationBackInOneStep() {
    TypedEditor typed(QStringLiteral("a\nb"));
    typed.editor.setReplaceTab(false);
    typed.press(Qt::Key_Tab);
    QCOMPARE(typed.text(), QStringLiteral("\ta\nb"));
    typed.editor.selectAll();
    typed.press(Qt::Key_Tab);
    typed.press(Qt::Key_Tab); // the lines stay selected
    QCOMPARE(typed.text(), QStringLiteral("\t\t\ta\n\t\tb"));
    typed.editor.setReplaceTab(true);
    typed.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(typed.text(), QStringLiteral("\t\ta\n\tb"));
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(typed.text(), QStringLiteral("\t\t\ta\n\t\tb"));
}

void TestEditor::indentsNothingButLines() {
    const QString hard(QChar::Nbsp);
    TypedEditor typed("a" + hard + "b\nc" + hard + "\nd");
    typed.select(1, 6);
    typed.press(Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY(!typed.editor.document()->isModified());
    typed.press(Qt::Key_Tab);
    QCOMPARE(typed.editor.document()->toRawText(),
             QString("a\t" + hard + "b\n\tc" + hard + "\nd")
                 .replace(u'\n', QChar(QChar::ParagraphSeparator)));
    QCOMPARE(typed.editor.selectedText(), "\t" + hard + "b\n\tc" + hard);
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!typed.editor.hasUndo());
    QCOMPARE(typed.editor.document()->toRawText().count(u'\t'), 0);
}

void TestEditor::keepsTheCursorInView() {
    TypedEditor typed(longProgram(400));
    Editor& editor = typed.editor;
    const auto away = [&](int anchor, int position) {
        typed.select(anchor, position);
        editor.verticalScrollBar()->setValue(0);
        return !editor.viewport()->rect().intersects(editor.cursorRect());
    };
    const auto seen = [&] { return editor.viewport()->rect().intersects(editor.cursorRect()); };
    const int far = editor.document()->findBlockByNumber(300).position();
    QVERIFY(away(far, far));
    typed.press(Qt::Key_Tab);
    QVERIFY(seen());
    QVERIFY(away(far, far));
    typed.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(seen());
    QVERIFY(away(far, far));
    typed.press(Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(seen());
    QVERIFY(away(far, far + 4));
    typed.press(Qt::Key_Tab);
    QVERIFY(seen());
    QVERIFY(away(far, far + 4));
    editor.on_delete();
    QVERIFY(seen());
    QVERIFY(away(far, far));
    editor.replace("define", "x", false, false);
    QVERIFY(seen());
}

void TestEditor::answersWhatIsUnderConstruction() {
    TypedEditor typed(QStringLiteral("ab"));
    SaidMessages said;
    typed.press(Qt::Key_F6);
    typed.press(Qt::Key_T, Qt::ControlModifier);
    typed.editor.on_executeBlowUp();
    typed.editor.on_editGraph();
    QVERIFY(std::all_of(said.kinds.begin(), said.kinds.end(),
                        [](MessageKind kind) { return kind == MessageKind::Information; }));
    QCOMPARE(said.take(),
             QStringList({QStringLiteral("Funcionalidad \"Define Frequency\" en Construcción"),
                          QStringLiteral("Funcionalidad \"Toggle Comment\" en Construcción"),
                          QStringLiteral("Funcionalidad \"Execute Blow Up\" en Construcción"),
                          QStringLiteral("Funcionalidad \"Edit Graph\" en Construcción")}));
    QCOMPARE(typed.text(), QStringLiteral("ab"));
}

void TestEditor::countsAsTheWholeWalkDoes() {
    QCOMPARE(countWords(u"a,b"), 1);
    QCOMPARE(countWords(u"a , b"), 2);
    QCOMPARE(countWords(u""), 0);
    QCOMPARE(countWords(u"..., é\t"), 0);
    QCOMPARE(countWords(u"añb c"), 2);
    TypedEditor typed;
    QSignalSpy words(&typed.editor, &Editor::wordCountChanged);
    QSignalSpy chars(&typed.editor, &Editor::charCountChanged);
    QSignalSpy changes(&typed.editor, &Editor::fileContentsChanged);
    typed.type(QStringLiteral("a,b"));
    QCOMPARE(words.last().first().toInt(), 1);
    QCOMPARE(chars.last().first().toInt(), 3);
    QCOMPARE(changes.count(), 3);
    typed.type(QStringLiteral(" 7\nd"));
    QCOMPARE(typed.editor.wordCount(), 3);
    QCOMPARE(typed.editor.charCount(), 7);
}

void TestEditor::countsWhileEditedAtRandom() {
    TypedEditor typed;
    QTextDocument& document = *typed.editor.document();
    QRandomGenerator random(20260);
    const QStringList pieces{"a",     " ",  "\n",         ",b", "freq PERSON.SEX\n", "\n\n\n",
                             "x1 y2", "\t", "  ;\nab.c ", "é",  longProgram(5)};
    const auto place = [&] { return random.bounded(document.characterCount()); };
    const auto edit = [&](QTextCursor& cursor) {
        const int at = place();
        cursor.setPosition(at);
        const int length = random.bounded(3) == 0 ? random.bounded(200) : 0;
        cursor.setPosition(std::min(at + length, document.characterCount() - 1),
                           QTextCursor::KeepAnchor);
        if (random.bounded(3) == 0)
            cursor.removeSelectedText();
        else
            cursor.insertText(pieces[random.bounded(pieces.size())]);
    };
    for (int step = 0; step < 4000; ++step) {
        QTextCursor cursor(&document);
        const int what = random.bounded(100);
        if (what < 15) {
            document.undo();
        } else if (what < 27) {
            document.redo();
        } else if (what < 40) {
            cursor.beginEditBlock(); // several places at once
            for (int i = random.bounded(5); i >= 0; --i)
                edit(cursor);
            cursor.endEditBlock();
        } else if (what == 40) {
            typed.editor.setPlainText(pieces[random.bounded(pieces.size())]);
        } else if (what == 41) {
            document.clear();
        } else {
            edit(cursor);
        }
        const QString text = typed.text();
        QCOMPARE(typed.editor.wordCount(), walkedWords(text));
        QCOMPARE(typed.editor.charCount(), static_cast<int>(text.size()));
        QCOMPARE(typed.editor.lineCount(), static_cast<int>(text.count(u'\n')) + 1);
    }
}

void TestEditor::countsALongTextQuickly() {
    QTextDocument document;
    document.setPlainText(longProgram(100000));
    const WordCounter counter(document);
    const int words = counter.words();
    QTextCursor cursor(document.findBlockByNumber(50000));
    QList<qint64> times;
    for (int i = 0; i < 101; ++i) {
        QElapsedTimer timer;
        timer.start();
        emit document.contentsChange(cursor.position(), 0, 0); // what a key press costs here
        times.append(timer.nsecsElapsed());
    }
    QCOMPARE(counter.words(), words);
    std::nth_element(times.begin(), times.begin() + 50, times.end());
    QVERIFY2(times[50] < 1'000'000, qPrintable(QString::number(times[50])));
}

void TestEditor::tellsWhereTheCursorIs() {
    TypedEditor typed(QStringLiteral("ab\ncd\nef"));
    QSignalSpy lines(&typed.editor, &Editor::lineCountChanged);
    QSignalSpy columns(&typed.editor, &Editor::columnCountChanged);
    typed.press(Qt::Key_Down);
    typed.press(Qt::Key_End);
    QCOMPARE(lines.last(), QVariantList({2, 3}));
    QCOMPARE(columns.last(), QVariantList() << 3);
    typed.press(Qt::Key_Delete); // the cursor stays, a line goes
    QCOMPARE(lines.last(), QVariantList({2, 2}));
    QSignalSpy words(&typed.editor, &Editor::wordCountChanged);
    QSignalSpy chars(&typed.editor, &Editor::charCountChanged);
    typed.editor.tellMetrics();
    QCOMPARE(words.last(), QVariantList() << 2);
    QCOMPARE(chars.last(), QVariantList() << 7);
}

void TestEditor::namesItsDocument() {
    TypedEditor typed;
    Editor& editor = typed.editor;
    editor.setUntitledName(QStringLiteral("Untitled document 2"));
    QVERIFY(editor.isUntitled());
    QCOMPARE(editor.displayName(), QStringLiteral("Untitled document 2"));
    editor.setFilePath(QStringLiteral("/tmp/a b/tables.spc"));
    QVERIFY(!editor.isUntitled());
    QCOMPARE(editor.displayName(), QStringLiteral("tables.spc"));
    editor.setVariableList({"b", "A", "b", "a"});
    QCOMPARE(editor.variableList(), QStringList({"A", "a", "b"}));
}

void TestEditor::givesSelectionsWithLineFeeds() {
    TypedEditor typed(QStringLiteral("a // x\nb\nc"));
    QCOMPARE(typed.editor.selectedText(), QString());
    typed.select(9, 2);
    QCOMPARE(typed.editor.selectedText(), QStringLiteral("// x\nb\n"));
    QCOMPARE(typed.editor.selectionFirstLine(), 0);
    TypedEditor hard(QStringLiteral("a\u00a0b\n\u00a0"));
    hard.editor.selectAll(); // a run of it is one of the whole text
    QCOMPARE(hard.editor.selectedText(), QStringLiteral("a\u00a0b\n\u00a0"));
    typed.select(7, 10);
    QCOMPARE(typed.editor.selectionFirstLine(), 1);
    QSignalSpy define(&typed.editor, &Editor::defineOpen);
    typed.editor.onDefineAssistantClick();
    QCOMPARE(define.last().first().toString(), QStringLiteral("b\nc"));
    typed.editor.on_delete();
    QCOMPARE(typed.text(), QStringLiteral("a // x\n"));
}

void TestEditor::takesDroppedTextButNoFiles() {
    TypedEditor typed(QStringLiteral("freq "));
    Editor& editor = typed.editor;
    QMimeData variable;
    variable.setData(QStringLiteral("application/vnd.text.list"), QByteArray("x"));
    variable.setText(QStringLiteral("PERSON.SEX"));
    const QPoint end = middleOf(editor, 5);
    const auto dragIn = [&](const QMimeData& data) {
        QDragEnterEvent event(end, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(editor.viewport(), &event);
        return event.isAccepted();
    };
    QVERIFY(dragIn(variable));
    QDropEvent drop(end, Qt::CopyAction, &variable, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &drop);
    QCOMPARE(typed.text(), QStringLiteral("freq PERSON.SEX"));
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/a.spc"))});
    file.setText(QStringLiteral("file:///tmp/a.spc"));
    QVERIFY(!dragIn(file)); // the window may take it
    QMimeData picture;
    picture.setData(QStringLiteral("image/png"), QByteArray("x"));
    QVERIFY(!dragIn(picture));
}

void TestEditor::runsTheContextMenu() {
    TypedEditor typed(QStringLiteral("define A.B\nas 1"));
    Editor& editor = typed.editor;
    const auto choose = [&](const char* signalName, auto signal) {
        const QPoint at(20, 10);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, editor.viewport()->mapToGlobal(at));
        QApplication::sendEvent(editor.viewport(), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY2(menu != nullptr, signalName);
        QCOMPARE(menu->pos(), editor.viewport()->mapToGlobal(at) + QPoint(0, 30));
        QSignalSpy spy(&editor, signal);
        QVERIFY(QMetaObject::invokeMethod(menu, signalName));
        menu->close();
        QTRY_COMPARE(spy.count(), 1);
        QTRY_VERIFY(editor.findChildren<QMenu*>().isEmpty());
    };
    choose("runBlock", &Editor::executeRun);
    choose("compileBlock", &Editor::compileRun);
    editor.selectAll();
    choose("defineAssistant", &Editor::defineOpen);
    choose("rundefAssistant", &Editor::rundefOpen);
    choose("tableAssistant", &Editor::tableOpen);
    choose("executeAssistant", &Editor::executeOpen);
    choose("erase", &Editor::fileContentsChanged);
    QCOMPARE(typed.text(), QString());
    editor.slotCustomMenuRequested(QPoint(5, 5));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (const char* command : {"newProgram", "openProgram", "saveProgram", "saveAsProgram",
                                "toolBar", "statusBar", "errorList"})
        QMetaObject::invokeMethod(menu, command);
    menu->close();
    QCOMPARE(typed.host.commands, QStringList({"new", "open", "save", "save as"}));
    QVERIFY(!typed.host.toolBar && !typed.host.statusBar && !typed.host.errorList);
    editor.on_toolBar();
    QVERIFY(typed.host.toolBar);
}

QTEST_MAIN(TestEditor)
#include "tst_editor.moc"
