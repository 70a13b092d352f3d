// SPDX-License-Identifier: GPL-3.0-or-later
// Finding, replacing and going to a line in the editor.
#include "TypedEditor.h"
#include "support/Contrast.h"

#include <QScrollBar>
#include <QSignalSpy>

#include <algorithm>

namespace {

const QString nothing = QStringLiteral("No results found.");
const QString cameRound = QStringLiteral("No more results found.");

/// The last thing that was said, which is forgotten then.
QString said(QSignalSpy& spy) {
    QString text = spy.isEmpty() ? QString() : spy.last().first().toString();
    spy.clear();
    return text;
}

} // namespace

class TestSearch : public QObject {
    Q_OBJECT

private slots:
    void findsRoundOnce();
    void comesRoundWithOneMatch();
    void findsNothing();
    void beginsAnewAfterAnEdit();
    void beginsAnewWithOtherFlags();
    void marksAllMatches();
    void replacesTheMatch();
    void replacesRoundOnce_data();
    void replacesRoundOnce();
    void keepsHardBlanksInALongText();
    void findsAllAsOneByOne();
    void marksWhereverOneScrolls();
    void marksGoOnAfterAReplacement();
    void showsPlacesInTheMiddle();
    void replacesAll_data();
    void replacesAll();
    void replacesAllInOneStep();
    void tellsTheCountsOnceAfterReplacing();
    void replacesInALongText();
    void goesToALine();
    void leavesAnEmptyQueryAlone();
};

void TestSearch::findsRoundOnce() {
    TypedEditor typed(QStringLiteral("ab x\nAB\nxab"));
    QSignalSpy spy(&typed.editor, &Editor::findResultReady);
    typed.moveTo(3);
    for (const int end : {7, 11, 2}) {
        QVERIFY(typed.editor.find("ab", false, false));
        QCOMPARE(typed.position(), end);
        QCOMPARE(typed.editor.selectedText().toLower(), QStringLiteral("ab"));
    }
    QVERIFY(spy.isEmpty());
    QVERIFY(!typed.editor.find("ab", false, false));
    QCOMPARE(said(spy), cameRound);
    QCOMPARE(typed.position(), 3);
    QVERIFY(!typed.editor.textCursor().hasSelection());
    QVERIFY(typed.editor.find("ab", true, true));
    QCOMPARE(typed.position(), 2);
}

void TestSearch::comesRoundWithOneMatch() {
    TypedEditor typed(QStringLiteral("one match here"));
    QSignalSpy spy(&typed.editor, &Editor::findResultReady);
    typed.moveTo(6);
    QVERIFY(typed.editor.find("match", false, false));
    QVERIFY(!typed.editor.find("match", false, false));
    QCOMPARE(said(spy), cameRound);
    QCOMPARE(typed.position(), 6);
    QVERIFY(typed.editor.find("match", false, false)); // a new round
}

void TestSearch::findsNothing() {
    TypedEditor typed(QStringLiteral("Freq frequency"));
    QSignalSpy spy(&typed.editor, &Editor::findResultReady);
    typed.moveTo(4);
    QVERIFY(!typed.editor.find("freq", true, true));
    QCOMPARE(said(spy), nothing);
    QCOMPARE(typed.position(), 4);
    QVERIFY(typed.editor.find("freq", true, false));
    QCOMPARE(typed.position(), 9);
}

void TestSearch::beginsAnewAfterAnEdit() {
    TypedEditor typed(QStringLiteral("a b a"));
    QVERIFY(typed.editor.find("a", false, false));
    QVERIFY(typed.editor.find("a", false, false));
    typed.moveTo(3);
    typed.type(QStringLiteral("x"));
    typed.moveTo(0);
    QVERIFY(typed.editor.find("a", false, false)); // the first one again, of a new round
    QVERIFY(typed.editor.find("a", false, false));
    QVERIFY(!typed.editor.find("a", false, false));
    QCOMPARE(typed.position(), 0);
}

void TestSearch::beginsAnewWithOtherFlags() {
    TypedEditor typed(QStringLiteral("A a"));
    QVERIFY(typed.editor.find("a", true, false));
    QCOMPARE(typed.position(), 3);
    QVERIFY(typed.editor.find("a", false, false));
    QCOMPARE(typed.position(), 1);
    QVERIFY(typed.editor.find("a", false, false));
    QVERIFY(!typed.editor.find("a", false, false));
    QCOMPARE(typed.position(), 3);
}

void TestSearch::marksAllMatches() {
    TypedEditor typed(QStringLiteral("sex SEX\nsexes"));
    Editor& editor = typed.editor;
    QSignalSpy spy(&editor, &Editor::findAllResult);
    QVERIFY(editor.findAll("sex", false, false));
    QCOMPARE(said(spy), QStringLiteral("Found 3 coincidences"));
    QCOMPARE(editor.extraSelections().size(), 3);
    const QTextCharFormat format = editor.extraSelections().first().format;
    const QColor ground = format.background().color();
    QCOMPARE(ground, QColor(61, 174, 233).lighter(130));
    QVERIFY(contrast(ground, format.foreground().color()) > 4.5);
    QVERIFY(editor.findAll("sex", true, true));
    QCOMPARE(said(spy), QStringLiteral("Found 1 coincidences"));
    QVERIFY(!editor.document()->isModified());
    typed.type(QStringLiteral("x"));
    QVERIFY(editor.extraSelections().isEmpty());
    editor.findAll("sexes", false, false);
    editor.find("sex", false, false);
    QVERIFY(editor.extraSelections().isEmpty());
    spy.clear();
    QSignalSpy none(&editor, &Editor::findResultReady);
    QVERIFY(editor.findAll("nothing", false, false));
    QVERIFY(spy.isEmpty());
    QCOMPARE(said(none), nothing);
    QVERIFY(editor.extraSelections().isEmpty());
}

void TestSearch::replacesTheMatch() {
    TypedEditor typed(QStringLiteral("a b a b"));
    Editor& editor = typed.editor;
    QSignalSpy spy(&editor, &Editor::findResultReady);
    QSignalSpy changes(&editor, &Editor::fileContentsChanged);
    QSignalSpy chars(&editor, &Editor::charCountChanged);
    QVERIFY(editor.find("b", false, false));
    editor.replace("b", "long", false, false); // the one behind the cursor, not that before it
    QCOMPARE(typed.text(), QStringLiteral("a b a long"));
    QCOMPARE(typed.position(), 10);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(chars.last().first().toInt(), 10);
    typed.moveTo(0);
    editor.replace("A", "cd", false, false);
    QCOMPARE(typed.text(), QStringLiteral("cd b a long"));
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(typed.text(), QStringLiteral("a b a long"));
    editor.replace("B", "c", true, false);
    QCOMPARE(said(spy), nothing);
    QCOMPARE(typed.text(), QStringLiteral("a b a long"));
}

void TestSearch::replacesRoundOnce_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("with");
    QTest::addColumn<int>("presses");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("cursorAfter");
    QTest::newRow("from the start") << "a a" << 0 << "a"
                                    << "aa" << 3 << "aa aa" << cameRound << 0;
    QTest::newRow("round the end") << "x x x" << 1 << "x"
                                   << "xx" << 4 << "xx xx xx" << cameRound << 2;
    QTest::newRow("within the text put in") << "x x x" << 1 << "x"
                                            << "axb" << 4 << "axb axb axb" << cameRound << 3;
    QTest::newRow("longer ones before") << "x\nx\nx" << 4 << "x"
                                        << "xyz" << 4 << "xyz\nxyz\nxyz" << cameRound << 8;
    QTest::newRow("with its neighbours") << "aab" << 0 << "ab"
                                         << "b" << 2 << "ab" << cameRound << 0;
    QTest::newRow("by nothing") << "a-a-" << 2 << "a"
                                << "" << 3 << "--" << nothing << 0;
    QTest::newRow("by another") << "a a" << 1 << "a"
                                << "b" << 3 << "b b" << nothing << 1;
}

void TestSearch::replacesRoundOnce() {
    QFETCH(QString, before);
    QFETCH(int, cursor);
    QFETCH(QString, what);
    QFETCH(QString, with);
    QFETCH(int, presses);
    TypedEditor typed(before);
    QSignalSpy spy(&typed.editor, &Editor::findResultReady);
    typed.moveTo(cursor);
    for (int press = 0; press < presses; ++press) {
        QVERIFY(spy.isEmpty());
        typed.editor.replace(what, with, false, false);
    }
    QTEST(said(spy), "message");
    QTEST(typed.text(), "after");
    QTEST(typed.position(), "cursorAfter");
}

void TestSearch::keepsHardBlanksInALongText() {
    const QChar hard(QChar::Nbsp);
    const QString before = (QStringLiteral("a") + hard + QStringLiteral("b a\n")).repeated(3000);
    TypedEditor typed(before);
    typed.editor.replaceAll("a", "c\nd", false, false);
    QString after = typed.editor.document()->toRawText();
    after.replace(QChar::ParagraphSeparator, u'\n');
    QVERIFY(after == (QStringLiteral("c\nd") + hard + QStringLiteral("b c\nd\n")).repeated(3000));
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    after = typed.editor.document()->toRawText();
    after.replace(QChar::ParagraphSeparator, u'\n');
    QVERIFY(after == before);
}

void TestSearch::findsAllAsOneByOne() {
    const QString hard(QChar::Nbsp);
    TypedEditor typed("ab ABab ab_ab\naab, ab;aab ab" + hard + "ab aba" + hard +
                      "b\n\nabababab a b");
    Editor& editor = typed.editor;
    const QTextDocument& document = *editor.document();
    for (const QString& query : {QString("ab"), QString("a"), QString("ab ab"), QString("aba"),
                                 QString("a b"), QString(" ")})
        for (int flags = 0; flags < 4; ++flags) {
            const bool matchCase = (flags & 1) != 0;
            const bool whole = (flags & 2) != 0;
            QTextDocument::FindFlags asked;
            asked.setFlag(QTextDocument::FindCaseSensitively, matchCase);
            asked.setFlag(QTextDocument::FindWholeWords, whole);
            QList<int> expected;
            for (QTextCursor match = document.find(query, 0, asked); !match.isNull();
                 match = document.find(query, match, asked))
                expected.append(match.selectionStart());
            editor.findAll(query, matchCase, whole);
            QList<int> starts;
            for (const auto& mark : editor.extraSelections())
                starts.append(mark.cursor.selectionStart());
            QCOMPARE(starts, expected);
        }
    typed.moveTo(0);
    QVERIFY(editor.find("ab" + hard + "ab", false, false)); // as it is taken from a selection
    QCOMPARE(editor.selectedText(), QStringLiteral("ab AB"));
}

void TestSearch::marksWhereverOneScrolls() {
    TypedEditor typed(QStringLiteral("freq PERSON.SEX\n").repeated(20000));
    Editor& editor = typed.editor;
    editor.findAll("person", false, false);
    const QColor mark = QColor(61, 174, 233).lighter(130).rgb();
    const auto isMarked = [&](int y) {
        const int x = editor.cursorRect(editor.cursorForPosition({0, y})).x() +
                      editor.fontMetrics().horizontalAdvance(QStringLiteral("freq PER"));
        const QImage image = editor.viewport()->grab().toImage();
        const int half = editor.fontMetrics().height() / 2;
        for (int row = std::max(0, y - half); row < std::min(image.height(), y + half); ++row)
            if (image.pixelColor(x, row) == mark)
                return true;
        return false;
    };
    QScrollBar& bar = *editor.verticalScrollBar();
    for (const int line : {0, 7000, 19000, 12345}) {
        bar.setValue(line);
        const int height = editor.viewport()->height();
        for (int y = 4; y < height - 20; y += 40)
            QVERIFY2(isMarked(y), qPrintable(QString::number(line)));
        QVERIFY(editor.extraSelections().size() < 1000);
    }
    editor.resize(editor.width(), editor.height() + 200);
    QTRY_VERIFY(isMarked(editor.viewport()->height() - 30));
    typed.type(QStringLiteral("x"));
    QVERIFY(editor.extraSelections().isEmpty());
    bar.setValue(0);
    QVERIFY(editor.extraSelections().isEmpty());
}

void TestSearch::marksGoOnAfterAReplacement() {
    for (const int lines : {10, 5000}) { // all are marked, and those in view
        TypedEditor typed(QStringLiteral("a b\n").repeated(lines));
        Editor& editor = typed.editor;
        editor.findAll("a", false, false);
        typed.moveTo(4);
        editor.replace("a", "long", false, false);
        QVERIFY(!editor.extraSelections().isEmpty());
        for (const auto& mark : editor.extraSelections()) {
            QCOMPARE(mark.cursor.selectedText(), QStringLiteral("a"));
            QVERIFY(mark.cursor.blockNumber() != 1);
        }
    }
}

void TestSearch::showsPlacesInTheMiddle() {
    TypedEditor typed(QStringLiteral("freq PERSON.SEX\n").repeated(500) + "needle\n" +
                      QStringLiteral("freq PERSON.SEX\n").repeated(500));
    Editor& editor = typed.editor;
    const auto isCentred = [&] {
        const int height = editor.viewport()->height();
        return std::abs(editor.cursorRect().center().y() - height / 2) < height / 8;
    };
    editor.goTo(300);
    QVERIFY(isCentred());
    const int top = editor.verticalScrollBar()->value();
    editor.goTo(303); // in view: nothing moves
    QCOMPARE(editor.verticalScrollBar()->value(), top);
    QVERIFY(editor.find("needle", false, false));
    QVERIFY(isCentred());
    editor.highlightErrorLine(800);
    QVERIFY(isCentred());
}

void TestSearch::replacesAll_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("with");
    QTest::addColumn<bool>("caseSensitive");
    QTest::addColumn<bool>("wholeWords");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("count");
    QTest::newRow("all") << "a b\na"
                         << "a"
                         << "c" << false << false << "c b\nc" << 2;
    QTest::newRow("found in itself") << "aaa"
                                     << "a"
                                     << "aa" << false << false << "aaaaaa" << 3;
    QTest::newRow("by nothing") << "xaxa"
                                << "a"
                                << "" << false << false << "xx" << 2;
    QTest::newRow("meeting anew") << "aab b"
                                  << "ab"
                                  << "" << false << false << "a b" << 1;
    QTest::newRow("any case") << "A a"
                              << "a"
                              << "b" << false << false << "b b" << 2;
    QTest::newRow("this case") << "A a"
                               << "a"
                               << "b" << true << false << "A b" << 1;
    QTest::newRow("whole words") << "ab a"
                                 << "a"
                                 << "b" << false << true << "ab b" << 1;
    QTest::newRow("over lines") << "a,a"
                                << ","
                                << "\n"
                                << false << false << "a\na" << 1;
    QTest::newRow("none") << "a"
                          << "b"
                          << "c" << false << false << "a" << 0;
}

void TestSearch::replacesAll() {
    QFETCH(QString, before);
    QFETCH(QString, what);
    QFETCH(QString, with);
    QFETCH(bool, caseSensitive);
    QFETCH(bool, wholeWords);
    QFETCH(int, count);
    TypedEditor typed(before);
    typed.editor.moveCursor(QTextCursor::End);
    QSignalSpy spy(&typed.editor, &Editor::findResultReady);
    typed.editor.replaceAll(what, with, caseSensitive, wholeWords);
    QTEST(typed.text(), "after");
    QCOMPARE(said(spy),
             count == 0 ? nothing
                        : QStringLiteral("Document searched. Replaced %1 instances.").arg(count));
    QCOMPARE(typed.editor.document()->isModified(), count > 0);
    QCOMPARE(typed.editor.hasUndo(), count > 0);
}

void TestSearch::replacesAllInOneStep() {
    const QString before = QStringLiteral("a b\na\n\na");
    TypedEditor typed(before);
    typed.editor.replaceAll("a", "x\ny", false, false);
    QCOMPARE(typed.editor.blockCount(), 7);
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(typed.text(), before);
    QVERIFY(!typed.editor.hasUndo());
    QVERIFY(!typed.editor.document()->isModified());
    QCOMPARE(typed.editor.wordCount(), 4);
}

void TestSearch::tellsTheCountsOnceAfterReplacing() {
    TypedEditor typed(QStringLiteral("a b\na"));
    QSignalSpy words(&typed.editor, &Editor::wordCountChanged);
    QSignalSpy lines(&typed.editor, &Editor::lineCountChanged);
    typed.editor.findAll("a", false, false);
    typed.editor.replaceAll("a", "c\nd", false, false);
    QCOMPARE(words.count(), 1);
    QCOMPARE(words.last().first().toInt(), 5);
    QCOMPARE(lines.count(), 1);
    QCOMPARE(lines.last().last().toInt(), 4);
    QVERIFY(typed.editor.extraSelections().isEmpty());
}

void TestSearch::replacesInALongText() {
    TypedEditor typed(QStringLiteral("freq PERSON.SEX\n").repeated(20000));
    QSignalSpy spy(&typed.editor, &Editor::findAllResult);
    typed.editor.findAll("person", false, false);
    QCOMPARE(said(spy), QStringLiteral("Found 20000 coincidences"));
    typed.moveTo(16 * 300 + 3);
    typed.editor.replaceAll("PERSON", "HOUSEHOLD", true, true);
    QCOMPARE(typed.text(), QStringLiteral("freq HOUSEHOLD.SEX\n").repeated(20000));
    QCOMPARE(typed.editor.currentLine(), 301);
    QCOMPARE(typed.editor.currentColumn(), 4);
    typed.press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(typed.text(), QStringLiteral("freq PERSON.SEX\n").repeated(20000));
    QVERIFY(!typed.editor.hasUndo());
}

void TestSearch::goesToALine() {
    TypedEditor typed(QString(200, u'\n'));
    Editor& editor = typed.editor;
    QSignalSpy refused(&editor, &Editor::gotoResultReady);
    QSignalSpy closed(&editor, &Editor::gotoClose);
    for (const int line : {1, 201, 120}) {
        editor.goTo(line);
        QCOMPARE(editor.currentLine(), line);
        QCOMPARE(editor.currentColumn(), 1);
        QCOMPARE(closed.last().first().toInt(), line);
        QVERIFY(editor.viewport()->rect().contains(editor.cursorRect()));
    }
    QVERIFY(refused.isEmpty());
    for (const int line : {0, -5, 202}) {
        editor.goTo(line);
        QCOMPARE(said(refused), QStringLiteral("Invalid line number."));
        QCOMPARE(editor.currentLine(), 120);
    }
    QCOMPARE(closed.count(), 3);
}

void TestSearch::leavesAnEmptyQueryAlone() {
    TypedEditor typed(QStringLiteral("abc"));
    QSignalSpy spy(&typed.editor, &Editor::findResultReady);
    typed.select(0, 2);
    QVERIFY(!typed.editor.find({}, false, false));
    typed.editor.findAll({}, false, false);
    typed.editor.replace({}, "x", false, false);
    typed.editor.replaceAll({}, "x", false, false);
    QVERIFY(spy.isEmpty());
    QCOMPARE(typed.text(), QStringLiteral("abc"));
    QCOMPARE(typed.editor.selectedText(), QStringLiteral("ab"));
}

QTEST_MAIN(TestSearch)
#include "tst_search.moc"
