// SPDX-License-Identifier: GPL-3.0-or-later
// The code editor that shows colour schemes, driven by keys and mouse.
#include "editor/codeeditor/BracketPairs.h"
#include "editor/codeeditor/QCodeEditor.h"
#include "editor/codeeditor/QFramedTextAttribute.h"
#include "editor/codeeditor/QLineNumberArea.h"
#include "editor/codeeditor/QTabbedEditor.h"
#include "editor/language/QSyntaxStyle.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QCompleter>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

namespace {

/// An editor in a window of its own, with a text in which "|" stands for the cursor.
struct Shown {
    QCodeEditor editor;

    explicit Shown(QString text = {}) {
        const auto cursor = int(text.indexOf(u'|'));
        editor.setPlainText(text.remove(u'|'));
        moveTo(cursor < 0 ? 0 : cursor);
        editor.resize(500, 300);
        editor.show();
        editor.setFocus();
        if (!QTest::qWaitForWindowActive(&editor))
            qFatal("no window");
    }

    void moveTo(int position, int anchor = -1) {
        QTextCursor cursor = editor.textCursor();
        cursor.setPosition(anchor < 0 ? position : anchor);
        cursor.setPosition(position, QTextCursor::KeepAnchor);
        editor.setTextCursor(cursor);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&editor, key, modifiers);
    }
    /// As the constructor's text.
    QString text() const {
        return editor.toPlainText().insert(editor.textCursor().position(), u'|');
    }
    bool popupShows() const { return editor.completer()->popup()->isVisible(); }
    /// Pixels of that colour, or nearly so.
    int pixels(const QColor& wanted) {
        const QImage image = editor.viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor c = image.pixelColor(x, y);
                count += std::abs(c.red() - wanted.red()) + std::abs(c.green() - wanted.green()) +
                             std::abs(c.blue() - wanted.blue()) <
                         6;
            }
        return count;
    }
};

QColor background(const char* name) {
    return QSyntaxStyle::defaultStyle()->getFormat(name).background().color();
}

} // namespace

class TestCodeEditor : public QObject {
    Q_OBJECT

private slots:
    void keysEdit_data();
    void keysEdit();
    void tabCharactersWhereTheyAreWanted();
    void automaticTextIsOneUndoStep();
    void readOnlyTextStays();
    void bracketsMatch_data();
    void bracketsMatch();
    void currentLineAndBracketsAreMarked();
    void selectedWordIsFramed();
    void framesAreNoPartOfTheText();
    void wordsAreCompleted();
    void completionOnDemandAndNone();
    void lineNumbersTakeTheirRoom();
    void schemeReachesAllParts();
    void textBeingComposedKeepsColoursInPlace();
    void sampleIsShown();
    void tabKeysChooseTabs();
};

void TestCodeEditor::keysEdit_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* name, const char* before, const char* keys, const char* after) {
        QTest::newRow(name) << before << keys << after;
    };
    // In the keys: \r Return, \t Tab, < Backtab, # Backspace.
    row("tab", "a|b", "\t", "a    |b");
    row("return keeps the indentation", "   ab|c", "\r", "   ab\n   |c");
    row("return at the start", "|abc", "\r", "\n|abc");
    row("between braces", "  x{|}", "\r", "  x{\n      |\n  }");
    row("after an opening brace", "{|", "\r", "{\n|");
    row("backtab", "      ab|", "<", "  ab|");
    row("backtab on two blanks", "  ab|", "<", "ab|");
    row("backtab on a tab", "\tab|", "<", "ab|");
    row("backtab on nothing", "a  b|", "<", "a  b|");
    row("pairs", "|", "([{", "([{|}])");
    row("closing steps over", "|", "(a)", "(a)|");
    row("closing alone", "|", "a)", "a)|");
    row("closing before another", "|]", ")", ")|]");
    row("quotes", "|", "\"'", "\"'|'\"");
    row("backspace", "(|", "#", "|");
}

void TestCodeEditor::keysEdit() {
    QFETCH(QString, before);
    QFETCH(QString, keys);
    QFETCH(QString, after);
    Shown shown(before);
    for (const QChar c : keys) {
        if (c == u'\r')
            shown.key(Qt::Key_Return);
        else if (c == u'\t')
            shown.key(Qt::Key_Tab);
        else if (c == u'<')
            shown.key(Qt::Key_Backtab, Qt::ShiftModifier);
        else if (c == u'#')
            shown.key(Qt::Key_Backspace);
        else
            QTest::keyClicks(&shown.editor, QString(c));
    }
    QCOMPARE(shown.text(), after);
}

void TestCodeEditor::tabCharactersWhereTheyAreWanted() {
    Shown shown("\t\tab|");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text().count(u' '), 8); // two tabs are as wide as eight blanks
    shown.editor.setReplaceTab(false);
    shown.editor.setPlainText("\tab");
    shown.moveTo(3);
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "\tab\n\t|");
    shown.key(Qt::Key_Tab);
    QTest::keyClicks(&shown.editor, "{");
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "\tab\n\t\t{\n\t\t\t|\n\t\t}");
    shown.editor.setAutoIndentation(false);
    shown.editor.setAutoParentheses(false);
    shown.editor.setPlainText("  {}");
    shown.moveTo(3);
    shown.key(Qt::Key_Return);
    QTest::keyClicks(&shown.editor, "(");
    QCOMPARE(shown.text(), "  {\n(|}");
}

void TestCodeEditor::automaticTextIsOneUndoStep() {
    Shown shown("  {|}");
    shown.key(Qt::Key_Return);
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown.editor.toPlainText(), "  {}");
    shown.moveTo(2);
    shown.key(Qt::Key_Return);
    QCOMPARE(shown.text(), "  \n  |{}");
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown.editor.toPlainText(), "  {}");
    QVERIFY(!shown.editor.document()->isUndoAvailable());
}

void TestCodeEditor::readOnlyTextStays() {
    Shown shown("  {|}");
    shown.editor.setReadOnly(true);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_ParenLeft})
        shown.key(key);
    QTest::keyClicks(&shown.editor, "(ab");
    QCOMPARE(shown.editor.toPlainText(), "  {}");
    QVERIFY(!shown.popupShows());
}

void TestCodeEditor::bracketsMatch_data() {
    QTest::addColumn<QString>("text"); // the cursor is "|"
    QTest::addColumn<int>("here");
    QTest::addColumn<int>("partner");
    QTest::newRow("forward") << "x|(a(b)c)" << 1 << 7;
    QTest::newRow("backward") << "x(a(b)c)|" << 7 << 1;
    QTest::newRow("at the start") << "|()" << 0 << 1;
    QTest::newRow("over lines") << "x|{\n}\n" << 1 << 3;
    QTest::newRow("round ones first") << "(a)|[b]" << 2 << 0;
    QTest::newRow("opening one first") << "[a]|(b)" << 3 << 5;
    QTest::newRow("unclosed") << "x|(a(b)" << -1 << -1;
    QTest::newRow("unopened") << "a)|" << -1 << -1;
    QTest::newRow("opening quote") << "|\"a\" \"b\"" << 0 << 2;
    QTest::newRow("closing quote") << "\"a\" \"b\"|" << 6 << 4;
    QTest::newRow("before a closing quote") << "\"a|\" \"b\"" << -1 << -1;
    QTest::newRow("quote of another line") << "x|\"\n\"" << -1 << -1;
    QTest::newRow("nothing") << "a|b" << -1 << -1;
}

void TestCodeEditor::bracketsMatch() {
    QFETCH(QString, text);
    const auto cursor = int(text.indexOf(u'|'));
    QTextDocument document;
    document.setPlainText(text.remove(u'|'));
    const auto match = matchBracket(document, cursor).value_or(qMakePair(-1, -1));
    QTEST(match.first, "here");
    QTEST(match.second, "partner");
}

void TestCodeEditor::currentLineAndBracketsAreMarked() {
    Shown shown("first\nsec|(o)nd\nthird");
    const QList<QTextEdit::ExtraSelection> marks = shown.editor.extraSelections();
    QCOMPARE(marks.size(), 3);
    QCOMPARE(marks[0].cursor.blockNumber(), 1);
    QVERIFY(marks[0].format.boolProperty(QTextFormat::FullWidthSelection));
    QVERIFY(!marks[0].format.hasProperty(QTextFormat::ForegroundBrush));
    QCOMPARE(marks[0].format.background().color(), background("CurrentLine"));
    QCOMPARE(marks[1].cursor.selectedText() + marks[2].cursor.selectedText(), "()");
    QVERIFY(shown.pixels(background("CurrentLine")) > 2000);
    shown.key(Qt::Key_Down);
    QCOMPARE(shown.editor.extraSelections().size(), 1);
    QCOMPARE(shown.editor.extraSelections()[0].cursor.blockNumber(), 2);
}

void TestCodeEditor::selectedWordIsFramed() {
    Shown shown("|sex by age\nAGE sex, unisex\nSex.sex");
    const auto framed = [&] {
        QStringList words;
        for (const QTextCursor& word : shown.editor.framedAttribute()->frames())
            words += word.selectedText();
        return words.join(u' ');
    };
    QCOMPARE(shown.pixels(background("Occurrences")), 0);
    shown.key(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    shown.key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(shown.editor.textCursor().selectedText(), "sex");
    QCOMPARE(framed(), "sex sex sex Sex sex");
    QVERIFY(shown.pixels(background("Occurrences")) > 200);

    shown.key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(framed(), QString()); // a part of a word
    QTest::mouseDClick(
        shown.editor.viewport(), Qt::LeftButton, Qt::NoModifier,
        shown.editor.cursorRect(QTextCursor(shown.editor.document()->lastBlock())).center() +
            QPoint(10, 0));
    QCOMPARE(framed(), "sex sex sex Sex sex");
    QTest::keyClicks(&shown.editor, "x");
    QCOMPARE(framed(), QString());
    QCOMPARE(shown.pixels(background("Occurrences")), 0);
}

void TestCodeEditor::framesAreNoPartOfTheText() {
    Shown shown("|by age\nby sex");
    QTest::keyClicks(&shown.editor, "one ");
    QTest::keyClicks(&shown.editor, "two ");
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    const QString before = shown.editor.toPlainText();
    const bool undo = shown.editor.document()->isUndoAvailable();
    QVERIFY(shown.editor.document()->isRedoAvailable());
    shown.editor.document()->setModified(false);

    const auto at = int(before.indexOf("by"));
    shown.moveTo(at, at + 2);
    QCOMPARE(shown.editor.framedAttribute()->frames().size(), 2);
    QCOMPARE(shown.editor.toPlainText(), before);
    QVERIFY(!shown.editor.document()->isModified());
    QCOMPARE(shown.editor.document()->isUndoAvailable(), undo);
    shown.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), "by");
    shown.key(Qt::Key_A, Qt::ControlModifier);
    shown.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), before);

    shown.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(shown.editor.toPlainText(), "one two by age\nby sex");
    shown.moveTo(8, 10);
    shown.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(shown.editor.toPlainText(), before);
}

void TestCodeEditor::wordsAreCompleted() {
    Shown shown("|");
    QTest::keyClicks(&shown.editor, "a");
    QVERIFY(!shown.popupShows());
    QTest::keyClicks(&shown.editor, "R");
    QVERIFY(shown.popupShows());
    QTest::keyClicks(&shown.editor, "ea");
    QCOMPARE(shown.editor.completer()->completionCount(), 2);
    QWidget* popup = shown.editor.completer()->popup();
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
    QVERIFY(!shown.popupShows());
    QCOMPARE(shown.text(), "aRealist|");
    QTest::keyClicks(&shown.editor, " fre");
    QVERIFY(shown.popupShows());
    QTest::keyClick(popup, Qt::Key_Escape);
    QVERIFY(!shown.popupShows());
    QTest::keyClicks(&shown.editor, "q");
    QVERIFY(shown.popupShows());
    QTest::keyClick(popup, Qt::Key_Space);
    QVERIFY(!shown.popupShows());
    QCOMPARE(shown.text(), "aRealist freq |");
}

void TestCodeEditor::completionOnDemandAndNone() {
    Shown shown("x |");
    shown.key(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(shown.popupShows());
    QTest::keyClick(shown.editor.completer()->popup(), Qt::Key_Return);
    QCOMPARE(shown.text(), "x abs|");
    shown.key(Qt::Key_A, Qt::ControlModifier);
    shown.key(Qt::Key_C, Qt::ControlModifier);
    shown.key(Qt::Key_Return);
    QVERIFY(!shown.popupShows());
    QCompleter* completer = shown.editor.completer();
    shown.editor.setCompleter(nullptr);
    QTest::keyClicks(&shown.editor, "freq");
    shown.key(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!completer->popup()->isVisible());
    QCOMPARE(shown.editor.toPlainText().trimmed(), "freq");
}

void TestCodeEditor::lineNumbersTakeTheirRoom() {
    Shown shown("a");
    auto* area = shown.editor.findChild<QLineNumberArea*>("lineNumberArea");
    const int digit = shown.editor.fontMetrics().horizontalAdvance(u'9');
    QCOMPARE(area->width(), digit + 13);
    shown.editor.setPlainText(QString("line\n").repeated(99));
    QCOMPARE(area->width(), 3 * digit + 13);
    QCOMPARE(shown.editor.viewport()->x() - area->x(), area->width());

    const auto inked = [&](int line) {
        const QTextBlock block = shown.editor.document()->findBlockByNumber(line);
        QRect row = shown.editor.cursorRect(QTextCursor(block));
        row.setLeft(0);
        row.setWidth(area->width());
        const QImage image = area->grab(row).toImage();
        const QRgb ground = background("Text").rgb();
        int ink = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                ink += image.pixel(x, y) != ground;
        return ink;
    };
    QVERIFY(inked(0) > 5);
    shown.editor.verticalScrollBar()->setValue(shown.editor.verticalScrollBar()->maximum());
    QVERIFY(inked(99) > inked(0) + 5);
    shown.editor.setGutter(true, false);
    QCOMPARE(inked(99), 0);
    shown.editor.setGutter(false, true);
    QCOMPARE(area->width(), 5);
}

void TestCodeEditor::schemeReachesAllParts() {
    Shown shown("define");
    QCOMPARE(QCodeEditor::styleList().size(), 8);
    for (const auto& [name, style] : QCodeEditor::styleList()) {
        shown.editor.setSyntaxStyle(style);
        const QTextCharFormat text = style->getFormat("Text");
        QCOMPARE(shown.editor.palette().color(QPalette::Base), text.background().color());
        const auto formats = shown.editor.document()->begin().layout()->formats();
        QCOMPARE(formats.size(), 1);
        QCOMPARE(formats[0].format, style->getFormat("Keyword"));
        QCOMPARE(shown.editor.extraSelections()[0].format.background(),
                 style->getFormat("CurrentLine").background());
    }
    QVERIFY(!shown.editor.document()->isModified());
    QVERIFY(!shown.editor.document()->isUndoAvailable());
}

void TestCodeEditor::textBeingComposedKeepsColoursInPlace() {
    Shown shown("|x by");
    const auto keywordAt = [&] {
        const auto formats = shown.editor.document()->begin().layout()->formats();
        for (const QTextLayout::FormatRange& range : formats)
            if (range.format.foreground() ==
                shown.editor.syntaxStyle()->getFormat("Keyword").foreground())
                return range.start;
        return -1;
    };
    QCOMPARE(keywordAt(), 2);
    QInputMethodEvent composing("ab", {});
    QCoreApplication::sendEvent(&shown.editor, &composing);
    QCOMPARE(keywordAt(), 4);
    shown.editor.setSyntaxStyle(syntaxStyle(5));
    QCOMPARE(keywordAt(), 4);
    QInputMethodEvent done;
    done.setCommitString("ab");
    QCoreApplication::sendEvent(&shown.editor, &done);
    QCOMPARE(shown.text(), "ab|x by");
    QCOMPARE(keywordAt(), 4);
}

void TestCodeEditor::sampleIsShown() {
    Shown shown;
    QVERIFY(shown.editor.isUntitled());
    shown.editor.setPath("/census/one.spc");
    QVERIFY(!shown.editor.isUntitled());
    shown.editor.showSampleText();
    QVERIFY(
        shown.editor.toPlainText().contains("define Entity.NewVar\n  as recode Entity.OldVar\n"));
    QVERIFY(!shown.editor.document()->isModified());
}

void TestCodeEditor::tabKeysChooseTabs() {
    QTabbedEditor tabs;
    for (int i = 1; i <= 3; ++i)
        tabs.addTab(new QCodeEditor, QString::number(i));
    tabs.show();
    tabs.currentWidget()->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&tabs));
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        return tabs.currentIndex();
    };
    QCOMPARE(press(Qt::Key_3, Qt::ControlModifier), 2);
    QCOMPARE(press(Qt::Key_T, Qt::ControlModifier), 0);
    QCOMPARE(press(Qt::Key_T, Qt::ControlModifier), 1);
    QCOMPARE(press(Qt::Key_9, Qt::ControlModifier), 1);
    QCOMPARE(press(Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier), 1);
    QCOMPARE(press(Qt::Key_1, Qt::ControlModifier), 0);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(qobject_cast<QCodeEditor*>(tabs.widget(i))->toPlainText(), QString());
}

QTEST_MAIN(TestCodeEditor)
#include "tst_codeeditor.moc"
