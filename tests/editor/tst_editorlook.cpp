// SPDX-License-Identifier: GPL-3.0-or-later
// How the editor of programs looks: the gutter, the line that is marked as faulty, and the colours
// of the schemes.
#include "TypedEditor.h"
#include "editor/language/QSyntaxStyle.h"
#include "editor/language/SyntaxStyles.h"
#include "editor/text/LineNumberArea.h"
#include "support/Contrast.h"

#include <QSignalSpy>

namespace {

QString longProgram(int lines) {
    return QStringLiteral("define PERSON.GROUP as recode PERSON.AGE (1 : 9 = 2)\n").repeated(lines);
}

QPoint middleOf(const Editor& editor, int position) {
    QTextCursor cursor(editor.document());
    cursor.setPosition(position);
    return editor.cursorRect(cursor).center();
}

/// The colour behind the text of a line (1-based), at the right edge.
QColor lineColor(Editor& editor, int line) {
    const QTextCursor cursor(editor.document()->findBlockByNumber(line - 1));
    const int y = editor.cursorRect(cursor).center().y();
    const QImage image = editor.viewport()->grab().toImage();
    return image.pixelColor(image.width() - 2, y);
}

bool showsColor(QWidget& widget, const QColor& color) {
    const QImage image = widget.grab().toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                return true;
    return false;
}

QColor styleColor(int scheme, const char* name) {
    return syntaxStyle(scheme)->getFormat(QLatin1String(name)).foreground().color();
}

} // namespace

class TestEditorLook : public QObject {
    Q_OBJECT

private slots:
    void widensTheGutter();
    void paintsTheGutter();
    void marksAFaultyLineWithoutEditing();
    void followsTheFaultyLine();
    void writesTheFaultyLineReadably();
    void clearsTheFaultyLineByDoubleClick();
    void changesItsScheme();
};

void TestEditorLook::widensTheGutter() {
    TypedEditor typed;
    auto* gutter = typed.editor.findChild<LineNumberArea*>();
    const int digit = typed.editor.fontMetrics().horizontalAdvance(u'9');
    const auto agrees = [&](int width) {
        return gutter->width() == width && typed.editor.viewport()->x() - gutter->x() == width;
    };
    QVERIFY(agrees(digit + 30));
    typed.editor.setPlainText(QString(998, u'\n'));
    QVERIFY(agrees(3 * digit + 30));
    typed.editor.moveCursor(QTextCursor::End);
    typed.press(Qt::Key_Return);
    QVERIFY(agrees(4 * digit + 30));
    typed.editor.setGutter(false, true);
    QVERIFY(agrees(5));
    typed.editor.setGutter(true, false);
    QVERIFY(agrees(4 * digit + 30));
    QFont larger = typed.editor.font();
    larger.setPointSizeF(larger.pointSizeF() * 2);
    typed.editor.setEditorFont(larger, QFont::Monospace, true, 3);
    const QFontMetrics metrics = typed.editor.fontMetrics();
    QVERIFY(agrees(4 * metrics.horizontalAdvance(u'9') + 30));
    QCOMPARE(typed.editor.tabStopDistance(),
             3 * QFontMetricsF(typed.editor.font()).horizontalAdvance(u' '));
}

void TestEditorLook::paintsTheGutter() {
    TypedEditor typed(QStringLiteral("a\nb\nc"));
    auto* gutter = typed.editor.findChild<LineNumberArea*>();
    for (int scheme = 0; scheme < syntaxStyles().size(); ++scheme) {
        typed.editor.setSyntaxStyle(syntaxStyle(scheme));
        typed.editor.setGutter(true, true);
        const QColor ground = typed.editor.palette().color(QPalette::Base);
        QCOMPARE(gutter->grab().toImage().pixelColor(1, gutter->height() - 2), ground);
        QVERIFY(showsColor(*gutter, styleColor(scheme, "LineNumber")));
        QVERIFY(showsColor(*gutter, styleColor(scheme, "CurrentLineNumber")));
        typed.editor.setGutter(true, false);
        QVERIFY(!showsColor(*gutter, styleColor(scheme, "LineNumber")));
    }
}

void TestEditorLook::marksAFaultyLineWithoutEditing() {
    TypedEditor typed(longProgram(300));
    Editor& editor = typed.editor;
    editor.highlightErrorLine(250);
    QCOMPARE(editor.highlightedLine(), 250);
    QCOMPARE(editor.currentLine(), 250);
    QVERIFY(editor.viewport()->rect().contains(editor.cursorRect()));
    const QColor base = editor.palette().color(QPalette::Base);
    QVERIFY(lineColor(editor, 250) != base);
    QCOMPARE(lineColor(editor, 249), base);
    QVERIFY(!editor.document()->isModified());
    QVERIFY(!editor.hasUndo());
    editor.findAll(QStringLiteral("recode"), false, false);
    QVERIFY(lineColor(editor, 250) != base);
    editor.highlightErrorLine(248);
    QVERIFY(lineColor(editor, 248) != base);
    QCOMPARE(lineColor(editor, 250), base);
    for (const int none : {0, -1, 302}) {
        editor.highlightErrorLine(3);
        editor.highlightErrorLine(none);
        QCOMPARE(editor.highlightedLine(), 0);
        QCOMPARE(lineColor(editor, 3), base);
    }
}

void TestEditorLook::followsTheFaultyLine() {
    TypedEditor typed(QStringLiteral("a\nb\nc"));
    Editor& editor = typed.editor;
    editor.highlightErrorLine(2);
    typed.moveTo(0);
    typed.type(QStringLiteral("x\n"));
    QCOMPARE(editor.highlightedLine(), 3);
    typed.moveTo(4); // a break in front of the faulty words takes them down
    typed.press(Qt::Key_Return);
    typed.type(QStringLiteral("more "));
    QCOMPARE(editor.highlightedLine(), 4);
    const QColor base = editor.palette().color(QPalette::Base);
    QVERIFY(lineColor(editor, 4) != base);
    QCOMPARE(lineColor(editor, 3), base);
    editor.setPlainText(QStringLiteral("1\n2\n3\n4"));
    QCOMPARE(editor.highlightedLine(), 0);
}

void TestEditorLook::writesTheFaultyLineReadably() {
    TypedEditor typed(QStringLiteral("freq 12 \"a\" // b\nfreq 12 \"a\" // b"));
    Editor& editor = typed.editor;
    for (int scheme = 0; scheme < syntaxStyles().size(); ++scheme) {
        editor.highlightErrorLine(2);
        editor.setSyntaxStyle(syntaxStyle(scheme));
        QCOMPARE(editor.extraSelections().size(), 1);
        const QColor words = editor.extraSelections().first().format.foreground().color();
        const QColor ground = lineColor(editor, 2);
        QVERIFY2(contrast(words, ground) >= 4.5, qPrintable(syntaxStyles()[scheme].first));
        editor.clearErrorLine();
        QVERIFY(editor.extraSelections().isEmpty());
        QTRY_VERIFY(showsColor(*editor.viewport(), styleColor(scheme, "Keyword")));
    }
    editor.highlightErrorLine(2);
    editor.findAll("freq", false, false);
    QCOMPARE(editor.extraSelections().size(), 3);
    QVERIFY(showsColor(*editor.viewport(), QColor(61, 174, 233).lighter(130).rgb()));
    typed.type(QStringLiteral("x")); // into the faulty line, which stays one
    QCOMPARE(editor.extraSelections().size(), 1);
    QCOMPARE(editor.extraSelections().first().cursor.selectedText(),
             QStringLiteral("xfreq 12 \"a\" // b"));
    editor.setPlainText(QStringLiteral("1\n2"));
    QVERIFY(editor.extraSelections().isEmpty());
}

void TestEditorLook::clearsTheFaultyLineByDoubleClick() {
    TypedEditor typed(QStringLiteral("freq PERSON.SEX\nfaulty"));
    Editor& editor = typed.editor;
    editor.highlightErrorLine(2);
    for (const int line : {2, 0}) { // with and without a faulty line
        QCOMPARE(editor.highlightedLine(), line);
        typed.moveTo(0);
        QTest::mouseDClick(editor.viewport(), Qt::LeftButton, {}, middleOf(editor, 13));
        QCOMPARE(editor.highlightedLine(), 0);
        QCOMPARE(editor.selectedText(), QStringLiteral("SEX"));
    }
    QCOMPARE(lineColor(editor, 2), editor.palette().color(QPalette::Base));
}

void TestEditorLook::changesItsScheme() {
    TypedEditor typed(longProgram(3));
    Editor& editor = typed.editor;
    editor.findAll(QStringLiteral("recode"), false, false);
    QSignalSpy changes(&editor, &Editor::fileContentsChanged);
    for (int scheme = 0; scheme < syntaxStyles().size(); ++scheme) {
        editor.setSyntaxStyle(syntaxStyle(scheme));
        QTRY_VERIFY(showsColor(*editor.viewport(), styleColor(scheme, "Keyword")));
        QCOMPARE(editor.palette().color(QPalette::Text), styleColor(scheme, "Text"));
    }
    QCOMPARE(changes.count(), 0);
    QVERIFY(!editor.document()->isModified());
    QVERIFY(!editor.extraSelections().isEmpty());
}

QTEST_MAIN(TestEditorLook)
#include "tst_editorlook.moc"
