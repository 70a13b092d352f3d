// SPDX-License-Identifier: GPL-3.0-or-later
// The tabs of the editors, and the counters of the one in front.
#include "TypedEditor.h"
#include "editor/language/QSyntaxStyle.h"
#include "editor/language/SyntaxStyles.h"
#include "editor/text/LineNumberArea.h"
#include "editor/text/MetricReporter.h"
#include "editor/text/TabbedEditor.h"

#include <QLabel>
#include <QTabBar>

class TestTabbedEditor : public QObject {
    Q_OBJECT

private slots:
    void startsWithOneEditor();
    void changesTabsByKeys();
    void appliesToOneOrAll();
    void keepsAChosenFont();
    void countsInTheStatusBar();
};

namespace {

struct Tabs {
    Tabs() {
        tabs.show();
        tabs.activateWindow();
        ready = QTest::qWaitForWindowActive(&tabs);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(tabs.windowHandle(), key, modifiers);
    }
    MadeHost host;
    TabbedEditor tabs{EditorLook(), &host};
    bool ready = false;
};

} // namespace

void TestTabbedEditor::startsWithOneEditor() {
    Tabs made;
    TabbedEditor& tabs = made.tabs;
    QCOMPARE(tabs.count(), 1);
    Editor* first = tabs.currentEditor();
    QVERIFY(first != nullptr);
    Editor* second = tabs.addEditor();
    QCOMPARE(tabs.currentEditor(), second);
    QCOMPARE(tabs.editors(), QList<Editor*>({first, second}));
    QCOMPARE(tabs.editor(0), first);
    QCOMPARE(tabs.editor(2), nullptr);
    QCOMPARE(tabs.editor(-1), nullptr);
    QVERIFY(tabs.isMovable() && tabs.tabsClosable());
    tabs.tabBar()->moveTab(0, 1);
    QCOMPARE(tabs.editors(), QList<Editor*>({second, first}));
}

void TestTabbedEditor::changesTabsByKeys() {
    Tabs made;
    QVERIFY(made.ready);
    TabbedEditor& tabs = made.tabs;
    tabs.addEditor();
    tabs.addEditor()->setFocus();
    made.press(Qt::Key_1, Qt::ControlModifier); // typed into the editor
    QCOMPARE(tabs.currentIndex(), 0);
    tabs.currentEditor()->setFocus();
    made.press(Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(tabs.currentIndex(), 1);
    tabs.currentEditor()->setFocus();
    made.press(Qt::Key_9, Qt::ControlModifier); // there is no such tab
    made.press(Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(tabs.currentIndex(), 1);
    tabs.tabBar()->setFocus();
    made.press(Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(tabs.currentIndex(), 2);
    tabs.tabBar()->setFocus();
    made.press(Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(tabs.currentIndex(), 0);
    for (Editor* editor : tabs.editors())
        QCOMPARE(editor->toPlainText(), QString());
}

void TestTabbedEditor::appliesToOneOrAll() {
    Tabs made;
    TabbedEditor& tabs = made.tabs;
    Editor* first = tabs.currentEditor();
    Editor* second = tabs.addEditor();
    tabs.setAutoIndent(false, false);
    tabs.setWordWrap(true, false);
    QVERIFY(first->autoIndent() && !second->autoIndent());
    QVERIFY(!first->wordWrap() && second->wordWrap());
    Editor* third = tabs.addEditor();
    QVERIFY(third->autoIndent() && !third->wordWrap());
    tabs.setAutoIndent(false, true);
    tabs.setWordWrap(true, true);
    tabs.addEditor();
    for (Editor* editor : tabs.editors()) {
        QVERIFY(!editor->autoIndent());
        QCOMPARE(editor->lineWrapMode(), QPlainTextEdit::WidgetWidth);
    }
    EditorLook look;
    look.colorScheme = 1;
    look.gutterVisible = false;
    tabs.setLook(look);
    tabs.addEditor();
    const QColor base = syntaxStyle(1)->getFormat(QStringLiteral("Text")).background().color();
    for (Editor* editor : tabs.editors()) {
        QCOMPARE(editor->palette().color(QPalette::Base), base);
        QCOMPARE(editor->findChild<LineNumberArea*>()->widthHint(), 5);
    }
}

void TestTabbedEditor::keepsAChosenFont() {
    Tabs made;
    TabbedEditor& tabs = made.tabs;
    Editor* first = tabs.currentEditor();
    Editor* second = tabs.addEditor();
    QFont chosen;
    chosen.setPointSize(31);
    tabs.setEditorFont(chosen, false);
    QCOMPARE(second->font().pointSize(), 31);
    QVERIFY(second->font().fixedPitch());
    QVERIFY(first->font().pointSize() != 31);
    EditorLook look;
    look.colorScheme = 2; // the font is as before
    tabs.setLook(look);
    QCOMPARE(second->font().pointSize(), 31);
    look.font.setPointSize(17);
    tabs.setLook(look);
    for (Editor* editor : {first, second, tabs.addEditor()})
        QCOMPARE(editor->font().pointSize(), 17);
}

void TestTabbedEditor::countsInTheStatusBar() {
    TypedEditor typed(QStringLiteral("a b\nc"));
    MetricReporter reporter;
    connect(&typed.editor, &Editor::wordCountChanged, &reporter, &MetricReporter::updateWordCount);
    connect(&typed.editor, &Editor::charCountChanged, &reporter, &MetricReporter::updateCharCount);
    connect(&typed.editor, &Editor::lineCountChanged, &reporter, &MetricReporter::updateLineCount);
    connect(&typed.editor, &Editor::columnCountChanged, &reporter,
            &MetricReporter::updateColumnCount);
    const auto shown = [&] {
        QStringList texts;
        for (const QLabel* label : reporter.findChildren<QLabel*>())
            texts += label->text();
        return texts;
    };
    typed.moveTo(5);
    typed.editor.tellMetrics();
    QCOMPARE(shown(), QStringList({"Words: 3", "Chars: 5", "Line: 2/2", "Column: 2"}));
    typed.type(QStringLiteral("\nd e"));
    QCOMPARE(shown(), QStringList({"Words: 5", "Chars: 9", "Line: 3/3", "Column: 4"}));
}

QTEST_MAIN(TestTabbedEditor)
#include "tst_tabbededitor.moc"
