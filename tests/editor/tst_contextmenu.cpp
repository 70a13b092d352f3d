// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of an editor: what it holds, what it offers for a selection, what it tells, and
// that its keys stay the window's.
#include "editor/text/EditorContextMenu.h"

#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

QString line(const QAction& action) {
    if (action.isSeparator())
        return QStringLiteral("-");
    QString text = action.text();
    if (!action.shortcut().isEmpty())
        text += '|' + action.shortcut().toString(QKeySequence::PortableText);
    return text;
}

/// The entries in order, those of a sub-menu in brackets behind it.
QString outline(const QMenu& menu) {
    QStringList lines;
    for (const QAction* action : menu.actions())
        lines += line(*action) +
                 (action->menu() != nullptr ? '[' + outline(*action->menu()) + ']' : QString());
    return lines.join(',');
}

QString offered(const QString& selection, bool executeMode = false) {
    EditorContextMenu menu(selection, true, true, true, executeMode);
    QStringList names;
    for (const QAction* action : menu.findChild<QMenu*>("contextAssist")->actions()) {
        if (action->isEnabled())
            names += action->text().trimmed();
    }
    return names.join(',');
}

} // namespace

class TestContextMenu : public QObject {
    Q_OBJECT

private slots:
    void standsInTheToldOrder();
    void offersAssistantsBySelection_data();
    void offersAssistantsBySelection();
    void greysWhatNeedsASelection();
    void showsWhichBarsAreThere();
    void tellsWhatWasChosen();
    void isWorkedByKeyboard();
    void leavesTheKeysToTheWindow();
};

void TestContextMenu::standsInTheToldOrder() {
    const EditorContextMenu menu({}, true, true, true, false);
    QCOMPARE(outline(menu),
             QStringLiteral("New,Open,Save,Save as,-,Cut,Copy,Paste,Delete,Select all,-,"
                            "Toggle Comment|Ctrl+T,-,Block[Compile|F5,Run|F9],-,"
                            "Execute[Assist[RUNDEF ,DEFINE ,TABLE ,EXECUTE ],BlowUp],-,"
                            "Wizards[DEFINE ,TABLE ],DEFINEs ,Frequency|F6,-,Syntax clue|F8,-,"
                            "Edit Style[Table,Graph],-,Tool bar,Status bar,Output"));
}

void TestContextMenu::offersAssistantsBySelection_data() {
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("expected");
    const QString all = "RUNDEF,DEFINE,TABLE";
    QTest::newRow("none") << "" << all;
    QTest::newRow("define") << "define PERSON.X as count"
                            << "DEFINE";
    QTest::newRow("define behind a line end") << "// all\nDefine PERSON.X"
                                              << "DEFINE";
    QTest::newRow("define behind a tab") << "\tDEFINE PERSON.X"
                                         << "DEFINE";
    QTest::newRow("define inside a word") << "predefine PERSON.X" << all;
    QTest::newRow("define without a blank") << "define" << all;
    QTest::newRow("rundef") << "rundef one"
                            << "RUNDEF";
    QTest::newRow("table") << "table t as frequency"
                           << "TABLE";
    QTest::newRow("rundef before table") << "table t\nrundef r"
                                         << "RUNDEF";
    QTest::newRow("define and table") << "define P.X\ntable t"
                                      << "DEFINE,TABLE";
    QTest::newRow("define and execute") << "define P.X\nexecute \"a.spc\""
                                        << "DEFINE,EXECUTE";
    QTest::newRow("execute alone") << "execute \"a.spc\""
                                   << "RUNDEF,DEFINE,TABLE,EXECUTE";
    QTest::newRow("table before execute") << "execute \"a.spc\"\ntable t"
                                          << "TABLE";
    QTest::newRow("other text") << "freq PERSON.SEX" << all;
}

void TestContextMenu::offersAssistantsBySelection() {
    QFETCH(QString, selection);
    QFETCH(QString, expected);
    QCOMPARE(offered(selection), expected);
    QCOMPARE(offered(selection, true), QStringLiteral("EXECUTE"));
}

void TestContextMenu::greysWhatNeedsASelection() {
    for (const bool selected : {false, true}) {
        const EditorContextMenu menu(selected ? "freq" : "", true, true, true, false);
        for (const char* name :
             {"contextCut", "contextCopy", "contextDelete", "contextCompile", "contextRun"})
            QVERIFY2(menu.findChild<QAction*>(name)->isEnabled() == selected, name);
        QVERIFY(menu.findChild<QAction*>("contextPaste")->isEnabled());
        QVERIFY(menu.findChild<QAction*>("contextSelectAll")->isEnabled());
    }
}

void TestContextMenu::showsWhichBarsAreThere() {
    for (int shown = 0; shown < 3; ++shown) {
        const EditorContextMenu menu({}, shown == 0, shown == 1, shown == 2, false);
        QCOMPARE(menu.findChild<QAction*>("contextToolBar")->isChecked(), shown == 0);
        QCOMPARE(menu.findChild<QAction*>("contextStatusBar")->isChecked(), shown == 1);
        QCOMPARE(menu.findChild<QAction*>("contextErrorList")->isChecked(), shown == 2);
    }
}

/// Each entry gives its own signal, and no other.
void TestContextMenu::tellsWhatWasChosen() {
    EditorContextMenu menu("define x table y", true, true, true, false);
    QHash<QString, int> told;
    const QMetaObject& meta = EditorContextMenu::staticMetaObject;
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        names += meta.method(i).name();
        spies.push_back(std::make_unique<QSignalSpy>(&menu, meta.method(i)));
    }
    QCOMPARE(names.join(','),
             QStringLiteral("newProgram,openProgram,saveProgram,saveAsProgram,cut,copy,paste,erase,"
                            "selectAll,toggleComment,runBlock,compileBlock,rundefAssistant,"
                            "defineAssistant,tableAssistant,executeAssistant,wizardDefine,"
                            "wizardTable,executeBlowUp,defineFrequency,syntaxClue,editTable,"
                            "editGraph,toolBar,statusBar,errorList"));
    const QStringList entries{"New",          "Open",          "Save",        "SaveAs",
                              "Cut",          "Copy",          "Paste",       "Delete",
                              "SelectAll",    "ToggleComment", "Run",         "Compile",
                              "AssistRundef", "AssistDefine",  "AssistTable", "AssistExecute",
                              "WizardDefine", "WizardTable",   "BlowUp",      "Frequency",
                              "SyntaxClue",   "EditTable",     "EditGraph",   "ToolBar",
                              "StatusBar",    "ErrorList"};
    for (qsizetype i = 0; i < entries.size(); ++i) {
        auto* entry = menu.findChild<QAction*>("context" + entries[i]);
        QVERIFY2(entry != nullptr, qPrintable(entries[i]));
        entry->setEnabled(true);
        entry->trigger();
        for (qsizetype j = 0; j < names.size(); ++j)
            QVERIFY2(spies[static_cast<std::size_t>(j)]->size() == (j <= i ? 1 : 0),
                     qPrintable(entries[i] + ' ' + names[j]));
    }
}

void TestContextMenu::isWorkedByKeyboard() {
    const QPointer<EditorContextMenu> menu =
        new EditorContextMenu("table t", true, true, true, false);
    const QSignalSpy opened(menu, &EditorContextMenu::tableAssistant);
    menu->popup({0, 0});
    menu->setActiveAction(menu->findChild<QMenu*>("contextExecute")->menuAction());
    QTest::keyClick(menu, Qt::Key_Right);
    QTRY_VERIFY(menu->findChild<QMenu*>("contextExecute")->isVisible());
    QTest::keyClick(menu->findChild<QMenu*>("contextExecute"), Qt::Key_Right);
    auto* assist = menu->findChild<QMenu*>("contextAssist");
    QTRY_VERIFY(assist->isVisible());
    QTRY_VERIFY(assist->activeAction() != nullptr);
    QCOMPARE(assist->activeAction()->text(), QStringLiteral("TABLE ")); // the only one enabled
    QTest::keyClick(assist, Qt::Key_Return);
    QCOMPARE(opened.size(), 1);
    QTRY_VERIFY(menu.isNull());
}

/// A key that stands on an action of the window and in the menu must go on working.
void TestContextMenu::leavesTheKeysToTheWindow() {
    QMainWindow window;
    auto* text = new QPlainTextEdit(&window);
    window.setCentralWidget(text);
    auto* run = new QAction(&window);
    run->setShortcut(Qt::Key_F9);
    window.addAction(run);
    const QSignalSpy runs(run, &QAction::triggered);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    text->setFocus();
    const EditorContextMenu menu("freq PERSON.SEX", true, true, true, false, text);
    const QSignalSpy blocks(&menu, &EditorContextMenu::runBlock);
    QTest::keyClick(text, Qt::Key_F9);
    QCOMPARE(runs.size(), 1);
    QCOMPARE(blocks.size(), 0);
}

QTEST_MAIN(TestContextMenu)
#include "tst_contextmenu.moc"
