// SPDX-License-Identifier: GPL-3.0-or-later
// The program window around its files and runs: menus and keys, finding, bars and their memory,
// formats, the syntax clue, the way to and from assistants, the words of the dictionary.
#include "ProgramFixture.h"

#include "editor/files/RecoveryStore.h"
#include "editor/language/KelvoraCompleter.h"
#include "editor/program/PrintProgram.h"
#include "editor/program/RundefTemplate.h"
#include "editor/text/Editor.h"
#include "projects/TfrmProject.h"
#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPrinter>
#include <QSignalSpy>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QTranslator>

namespace {

class Capitals : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return QString::fromUtf8(text).toUpper();
    }
};

QString outline(const QMenu& menu) {
    QStringList entries;
    for (const QAction* entry : menu.actions()) {
        QString text = entry->isSeparator() ? QStringLiteral("-") : entry->text().remove('&');
        if (!entry->shortcut().isEmpty())
            text += ' ' + entry->shortcut().toString(QKeySequence::PortableText);
        entries += text;
    }
    return entries.join('|');
}

/// Where the keys of a user go.
QWidget* keysGoTo() {
    return QApplication::activePopupWidget() != nullptr ? QApplication::activePopupWidget()
                                                        : QApplication::focusWidget();
}

void press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(keysGoTo(), static_cast<Qt::Key>(key), modifiers);
}

} // namespace

class TestProgramWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { fixture_ = std::make_unique<ProgramFixture>(); }
    void cleanupTestCase() { fixture_.reset(); }
    void init();
    void cleanup() { fixture_->closeWindows(); }

    void standsInTheToldMenus();
    void givesEachMenuEntryALetterOfItsOwn();
    void leavesKeysInDoubtAloneAndReachesTheirCommands();
    void keepsItsKeysFromTheWindowAround();
    void runsFromAnOpenListOfWords();
    void findsWithTheSelection();
    void replacesByKeys();
    void goesToALine();
    void hidesAndRemembersItsBars();
    void comesBackWhereItStood();
    void givesThePanelATenthOrWhatItNeeds();
    void formatsOneTabOrAll_data();
    void formatsOneTabOrAll();
    void changesTheFontOfAllTabs();
    void showsTheStateOfTheTabInFront();
    void offersTheSyntaxClue();
    void typesOnPastTheSyntaxClue();
    void opensAnAssistantForWholeCommands();
    void takesWhatAnAssistantMakes();
    void knowsTheWordsOfTheOpenDictionary();
    void takesUpPreferencesWhenShown();
    void printsBlackOnWhite();
    void speaksTheLanguageThatIsChosen();

private:
    Editor& editor() const { return *window_->currentEditor(); }
    QAction& action(const char* name) const { return *ProgramFixture::action(*window_, name); }
    template <typename Widget>
    Widget& find(const char* name) const {
        return *window_->findChild<Widget*>(QLatin1String(name));
    }

    std::unique_ptr<ProgramFixture> fixture_;
    ProcessProgramSPC* window_ = nullptr;
};

void TestProgramWindow::init() {
    fixture_->messages.clear();
    fixture_->answers.clear();
    fixture_->shell.programs.clear();
    window_ = &fixture_->show<ProcessProgramSPC>();
}

void TestProgramWindow::standsInTheToldMenus() {
    QStringList menus;
    for (const QAction* menu : window_->menuBar()->actions())
        menus += menu->text().remove('&') + ": " + outline(*menu->menu());
    QCOMPARE(menus.join('\n'),
             QString("File: New Ctrl+N|Open Ctrl+O|Save Ctrl+S|Save As Ctrl+Shift+S|-|"
                     "Print... Ctrl+P|-|Exit\n"
                     "Edit: Undo Ctrl+Z|Redo Ctrl+Y|-|Cut Ctrl+X|Copy Ctrl+C|Paste Ctrl+V|-|"
                     "Find... Ctrl+F|Replace... Ctrl+H|Go To... Ctrl+G|-|"
                     "Select All Ctrl+A|Time/Date F5\n"
                     "Format: Font...|-|Auto Indent|Word Wrap\n"
                     "Language: C|C++|Java|Python|Kelx\n"
                     "View: Status Bar|Tool Bar\n"
                     "Program: SyntaxClue F8|GoTo Ctrl+G|-|Compile F5|Run F9|-|Splitter"));
    QCOMPARE(action("actionRun").toolTip(), QString("Run Program (F9)"));
    QCOMPARE(action("actionSyntaxClue").toolTip(),
             QString("Show the available commands syntax (F8)"));
    for (const char* name : {"actionC", "actionKelx"}) {
        action(name).trigger();
        QVERIFY(action("actionKelx").isChecked());
        QVERIFY(!action("actionC").isChecked());
    }
}

void TestProgramWindow::givesEachMenuEntryALetterOfItsOwn() {
    QList<QList<QAction*>> groups{window_->menuBar()->actions()};
    for (const char* menu : {"menuFile", "menuEdit", "menuFormat", "menuView", "menuProgram"})
        groups += find<QMenu>(menu).actions();
    for (const QList<QAction*>& group : groups) {
        QStringList letters;
        for (const QAction* entry : group)
            if (!entry->isSeparator())
                letters += QKeySequence::mnemonic(entry->text()).toString();
        QVERIFY2(!letters.contains(QString()) && letters.removeDuplicates() == 0,
                 qPrintable(letters.join(' ')));
    }
}

void TestProgramWindow::leavesKeysInDoubtAloneAndReachesTheirCommands() {
    editor().setPlainText("freq PERSON.SEX");
    press(Qt::Key_F5);
    press(Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(editor().toPlainText(), QString("freq PERSON.SEX"));
    QCOMPARE(ProgramFixture::rows(*window_), QStringList());
    QVERIFY(!find<QDialog>("gotoDialog").isVisible());

    action("actionTool_Bar").trigger();
    press(Qt::Key_P, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    press(Qt::Key_C);
    QCOMPARE(ProgramFixture::rows(*window_).size(), 1);
    action("actionTool_Bar").trigger();
}

void TestProgramWindow::keepsItsKeysFromTheWindowAround() {
    QAction outside;
    outside.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    fixture_->shell.main.addAction(&outside);
    const QSignalSpy told(&outside, &QAction::triggered);
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(told.count(), 0);
    QCOMPARE(ProgramFixture::tabs(*window_).count(), 2);

    auto* elsewhere = new QLineEdit(&fixture_->shell.main);
    elsewhere->show();
    elsewhere->setFocus();
    press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(told.count(), 1);
    QCOMPARE(ProgramFixture::tabs(*window_).count(), 2);
    delete elsewhere;
}

void TestProgramWindow::runsFromAnOpenListOfWords() {
    ProgramFixture::type(editor(), "freq person.");
    QTRY_VERIFY(editor().completer()->popup()->isVisible());
    QTest::keyClick(keysGoTo(), 's');
    QVERIFY(editor().completer()->popup()->isVisible());
    press(Qt::Key_F9);
    QCOMPARE(ProgramFixture::rows(*window_).value(0), QString("1 error found"));
    QCOMPARE(editor().toPlainText(), QString("freq person.s"));
    QVERIFY(!editor().completer()->popup()->isVisible());
}

void TestProgramWindow::findsWithTheSelection() {
    editor().setPlainText("freq PERSON.SEX\nfreq PERSON.AGE");
    QTextCursor cursor = editor().textCursor();
    cursor.setPosition(4, QTextCursor::KeepAnchor);
    editor().setTextCursor(cursor);
    action("actionSplitter").trigger();
    press(Qt::Key_F, Qt::ControlModifier);
    auto& bottom = find<QTabWidget>("bottomTabs");
    QCOMPARE(bottom.currentIndex(), 1);
    auto* query = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(query != nullptr);
    QCOMPARE(query->text(), QString("freq"));
    press(Qt::Key_Return);
    QCOMPARE(editor().textCursor().blockNumber(), 1);
    press(Qt::Key_Escape);
    QVERIFY(editor().hasFocus());
    QCOMPARE(bottom.currentIndex(), 1);
    QVERIFY(bottom.isVisible());

    // Once it has the keys, the same key leads back.
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(bottom.currentIndex(), 0);
    QVERIFY(editor().hasFocus());

    // The page belongs to the tab in front.
    press(Qt::Key_N, Qt::ControlModifier);
    editor().setPlainText("one freq");
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Return);
    QCOMPARE(editor().textCursor().selectedText(), QString("freq"));
    QVERIFY(!ProgramFixture::tabs(*window_).findChildren<Editor*>().contains(
        static_cast<Editor*>(nullptr)));
}

void TestProgramWindow::replacesByKeys() {
    editor().setPlainText("one one");
    press(Qt::Key_H, Qt::ControlModifier);
    auto* with = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(with != nullptr);
    QTest::keyClicks(with, "two");
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "one");
    find<QAbstractButton>("findAllButton").click();
    QCOMPARE(find<QLabel>("findMessage").text(), QString("Found 2 coincidences"));
    find<QAbstractButton>("replaceAllButton").click();
    QCOMPARE(editor().toPlainText(), QString("two two"));
    QVERIFY(window_->isWindowModified());
    action("actionUndo").trigger();
    QCOMPARE(editor().toPlainText(), QString("one one"));
}

void TestProgramWindow::goesToALine() {
    editor().setPlainText("1\n2\n3\n4");
    action("actionGo_To").trigger();
    auto& dialog = find<QDialog>("gotoDialog");
    QTRY_VERIFY(dialog.isAncestorOf(QApplication::focusWidget()));
    QTest::keyClicks(QApplication::focusWidget(), "3");
    press(Qt::Key_Return);
    QCOMPARE(editor().currentLine(), 3);
    QVERIFY(!dialog.isVisible());
}

void TestProgramWindow::hidesAndRemembersItsBars() {
    QVERIFY(action("actionTool_Bar").isChecked() && action("actionStatus_Bar").isChecked());
    action("actionTool_Bar").trigger();
    QVERIFY(!find<QToolBar>("programToolBar").isVisible());
    QVERIFY(!window_->isToolBarVisible());
    // The context menu's way.
    editor().on_statusBar();
    QVERIFY(!window_->statusBar()->isVisible());
    QVERIFY(!action("actionStatus_Bar").isChecked());
    editor().on_errorList();
    QVERIFY(!window_->isErrorListVisible());
    editor().on_errorList();
    QVERIFY(window_->isErrorListVisible());

    window_->parentWidget()->close();
    QVariant stored;
    KelSystem::instance().readValue(stored, "toolbar", "cmdEditor", true);
    QCOMPARE(stored.toBool(), false);
    window_ = &fixture_->show<ProcessProgramSPC>();
    QVERIFY(!window_->isToolBarVisible() && !action("actionTool_Bar").isChecked());
    action("actionTool_Bar").trigger();
    action("actionStatus_Bar").trigger();
    window_->parentWidget()->close();
    QVERIFY(KelSystem::instance().cmdEditorToolbar());
}

void TestProgramWindow::comesBackWhereItStood() {
    const QRect place(30, 20, 720, 480);
    QMdiSubWindow* frame =
        fixture_->shell.addWindow(new ProcessProgramSPC(fixture_->shell, KelSystem::instance()));
    frame->showNormal();
    QCoreApplication::processEvents();
    frame->setGeometry(place);
    frame->close();
    frame =
        fixture_->shell.addWindow(new ProcessProgramSPC(fixture_->shell, KelSystem::instance()));
    frame->showNormal();
    QTRY_COMPARE(frame->geometry(), place);
    frame->close();

    // A place of a larger screen is cut down to the work area.
    KelSystem::instance().setCmdEditorGeometry(QRect(5000, 20, 4000, 3000));
    frame =
        fixture_->shell.addWindow(new ProcessProgramSPC(fixture_->shell, KelSystem::instance()));
    frame->showNormal();
    QTRY_COMPARE(frame->size(), fixture_->shell.area->viewport()->size());
    QVERIFY(fixture_->shell.area->viewport()->rect().contains(frame->pos()));
    frame->close();
}

void TestProgramWindow::givesThePanelATenthOrWhatItNeeds() {
    auto& bottom = find<QTabWidget>("bottomTabs");
    for (const QSize size : {QSize(1100, 700), QSize(800, 500)}) {
        fixture_->shell.main.resize(size);
        QTRY_VERIFY(qAbs(window_->width() - size.width()) < 30);
        QVERIFY(bottom.height() >= bottom.minimumSizeHint().height());
        QVERIFY2(bottom.height() <= qMax(bottom.minimumSizeHint().height(), size.height() / 10) + 4,
                 qPrintable(QString::number(bottom.height())));
        QVERIFY(editor().height() > bottom.height());
    }
    fixture_->shell.main.resize(1100, 700);
}

void TestProgramWindow::formatsOneTabOrAll_data() {
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    QTest::addColumn<bool>("later");
    QTest::newRow("all") << int(Choice::Yes) << true << true << true;
    QTest::newRow("this one") << int(Choice::No) << false << true << false;
    QTest::newRow("none") << int(Choice::Cancel) << false << false << false;
}

void TestProgramWindow::formatsOneTabOrAll() {
    QFETCH(int, answer);
    Editor& first = editor();
    press(Qt::Key_N, Qt::ControlModifier);
    Editor& second = editor();
    fixture_->answers = {static_cast<Choice>(answer), static_cast<Choice>(answer)};
    action("actionWord_Wrap").trigger();
    action("actionAuto_Indent").trigger();
    QCOMPARE(fixture_->messages, QStringList(2, "Apply to all open and future tabs?"));
    QTEST(first.wordWrap(), "first");
    QTEST(second.wordWrap(), "second");
    QTEST(!first.autoIndent(), "first");
    QTEST(!second.autoIndent(), "second");
    QTEST(action("actionWord_Wrap").isChecked(), "second");
    QTEST(!action("actionAuto_Indent").isChecked(), "second");
    press(Qt::Key_N, Qt::ControlModifier);
    QTEST(editor().wordWrap(), "later");
}

void TestProgramWindow::changesTheFontOfAllTabs() {
    Editor& first = editor();
    press(Qt::Key_N, Qt::ControlModifier);
    fixture_->answers = {Choice::Yes};
    answerNextDialog([](QDialog& dialog) {
        auto& fonts = static_cast<QFontDialog&>(dialog);
        QFont font = fonts.currentFont();
        font.setPointSize(17);
        fonts.setCurrentFont(font);
        fonts.accept();
    });
    action("actionFont").trigger();
    QCOMPARE(first.font().pointSize(), 17);
    QCOMPARE(editor().font().pointSize(), 17);

    answerNextDialog([](QDialog& dialog) { dialog.reject(); });
    action("actionFont").trigger();
    QCOMPARE(fixture_->messages, QStringList("Apply to all open and future tabs?"));
}

void TestProgramWindow::showsTheStateOfTheTabInFront() {
    ProgramFixture::type(editor(), "a,b c");
    QVERIFY(action("actionUndo").isEnabled());
    QVERIFY(!action("actionCopy").isEnabled());
    press(Qt::Key_A, Qt::ControlModifier);
    QVERIFY(action("actionCopy").isEnabled() && action("actionCut").isEnabled());
    action("actionCopy").trigger();
    press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(!action("actionUndo").isEnabled() && !action("actionCut").isEnabled());
    const auto metrics = [this] {
        QStringList texts;
        for (const QLabel* label : window_->statusBar()->findChildren<QLabel*>())
            texts += label->text();
        return texts.join('|');
    };
    QVERIFY2(metrics().contains("Words: 0"), qPrintable(metrics()));
    action("actionPaste").trigger();
    QCOMPARE(editor().toPlainText(), QString("a,b c"));
    QVERIFY2(metrics().contains("Words: 2"), qPrintable(metrics()));
    action("actionUndo").trigger();
    QVERIFY(action("actionRedo").isEnabled());
    press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(editor().toPlainText(), QString("a,b c"));
    press(Qt::Key_A, Qt::ControlModifier);
    action("actionTime_Date").trigger();
    QVERIFY(QDateTime::fromString(editor().toPlainText()).isValid());
}

void TestProgramWindow::offersTheSyntaxClue() {
    press(Qt::Key_F8);
    auto* list = qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    QVERIFY(list != nullptr);
    QCOMPARE(list->model()->rowCount(), 8);
    press(Qt::Key_Escape);
    QVERIFY(editor().toPlainText().isEmpty());

    // The rest of what is typed goes in, and the one with a template becomes that.
    ProgramFixture::type(editor(), "rund");
    editor().completer()->popup()->hide();
    press(Qt::Key_F8);
    press(Qt::Key_Return);
    QTRY_COMPARE(editor().toPlainText(), rundefTemplate());
    QVERIFY(rundefTemplate().startsWith("\nRUNDEF\n\tprogram_name \t//optional"));

    editor().setPlainText("");
    press(Qt::Key_F8);
    press(Qt::Key_Return);
    QCOMPARE(editor().toPlainText(), QString("DEFINE command"));
    QCoreApplication::processEvents();
    QCOMPARE(editor().toPlainText(), QString("DEFINE command"));
}

void TestProgramWindow::typesOnPastTheSyntaxClue() {
    press(Qt::Key_F8);
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    press(Qt::Key_7);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(editor().toPlainText(), QString("7"));
}

void TestProgramWindow::opensAnAssistantForWholeCommands() {
    QSignalSpy asked(window_, &ProcessProgramSPC::assistantRequested);
    window_->onDefineAssistantOpen("define");
    QCOMPARE(asked.count(), 0);
    QCOMPARE(fixture_->messages,
             QStringList("The typed code is incomplete to show a define assistant window"));

    editor().setPlainText("// x\ntable t1\n\tas frequency\n\tof PERSON.SEX");
    press(Qt::Key_A, Qt::ControlModifier);
    editor().onTableAssistantClick();
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked[0][0].value<Assistant>(), Assistant::Table);
    QVERIFY2(asked[0][1].toString().endsWith("table t1 as frequency of PERSON.SEX"),
             qPrintable(asked[0][1].toString()));
    window_->onRundefAssistantOpen(QString());
    QCOMPARE(asked.count(), 2);

    // Outside of a work area none can open.
    ProcessProgramSPC alone(fixture_->shell, KelSystem::instance());
    const QSignalSpy none(&alone, &ProcessProgramSPC::assistantRequested);
    alone.onDefineAssistantOpen("define");
    alone.onExecuteAssistantOpen("execute \"a.spc\"");
    QCOMPARE(none.count(), 0);
    QCOMPARE(fixture_->messages.size(), 1);
}

void TestProgramWindow::takesWhatAnAssistantMakes() {
    editor().setPlainText("define X");
    press(Qt::Key_A, Qt::ControlModifier);
    window_->onSaveAssistant("define PERSON.X\n\tas count\n");
    QCOMPARE(editor().toPlainText(), QString("define PERSON.X\n\tas count\n"));
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor().toPlainText(), QString("define X"));
}

void TestProgramWindow::knowsTheWordsOfTheOpenDictionary() {
    QCOMPARE(window_->variablesOf("person").isEmpty(), false);
    QCOMPARE(window_->variablesOf("person"), window_->variablesOf("PERSON"));
    QCOMPARE(window_->variablesOf("nobody"), QStringList());
    ProgramFixture::type(editor(), "freq ");
    const auto offered = [this] { return editor().completer()->words(); };
    QCOMPARE(offered(), QStringList({"country", "district", "household", "person"}));
    press(Qt::Key_Escape);

    fixture_->closeDictionary();
    QCOMPARE(window_->variablesOf("person"), QStringList());
    editor().clear();
    ProgramFixture::type(editor(), "freq person.");
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    fixture_->openDictionary();
    editor().clear();
    ProgramFixture::type(editor(), "freq person.");
    QVERIFY2(offered().contains("sex"), qPrintable(offered().join(' ')));
    press(Qt::Key_Escape);
}

void TestProgramWindow::takesUpPreferencesWhenShown() {
    KelSystem& system = KelSystem::instance();
    press(Qt::Key_N, Qt::ControlModifier);
    const QColor before = editor().palette().base().color();
    system.setEditorColorScheme(1);
    window_->hide();
    window_->show();
    const QColor after = editor().palette().base().color();
    QVERIFY(after != before);
    QCOMPARE(ProgramFixture::errors(*window_).palette().base().color(), after);
    ProgramFixture::tabs(*window_).setCurrentIndex(0);
    QCOMPARE(editor().palette().base().color(), after);
    system.setEditorColorScheme(0);
}

void TestProgramWindow::printsBlackOnWhite() {
    KelSystem::instance().setEditorColorScheme(1);
    window_->hide();
    window_->show();
    const auto print = [this](const QString& text) {
        const QString file = fixture_->path("paper.pdf");
        editor().setPlainText(text);
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(file);
        printProgram(editor(), "paper", printer);
        return ProgramFixture::read(file);
    };
    const QByteArray one = print("freq PERSON.SEX // a comment\n");
    const QByteArray many = print(QString("freq PERSON.SEX // a comment\n").repeated(200));
    QVERIFY(one.startsWith("%PDF"));
    QCOMPARE(one.count("/Type /Page\n"), 1);
    QVERIFY2(many.count("/Type /Page\n") > 1, qPrintable(QString::number(many.size())));
    KelSystem::instance().setEditorColorScheme(0);
}

void TestProgramWindow::speaksTheLanguageThatIsChosen() {
    ProgramFixture::type(editor(), "f");
    editor().completer()->popup()->hide();
    Capitals capitals;
    QCoreApplication::installTranslator(&capitals);
    QCoreApplication::processEvents();
    QCOMPARE(action("actionRun").text().remove('&'), QString("RUN"));
    QCOMPARE(action("actionRun").toolTip(), QString("RUN PROGRAM (F9)"));
    QCOMPARE(find<QMenu>("menuFile").title().remove('&'), QString("FILE"));
    QCOMPARE(find<QTabWidget>("bottomTabs").tabText(0), QString("OUTPUT"));
    QCOMPARE(find<QTabWidget>("bottomTabs").tabText(1), QString("FIND"));
    QCOMPARE(find<QLabel>("languageLabel").text(), QString("LANGUAGE: Kelx"));
    QVERIFY(window_->windowTitle().contains("[UNSAVED]"));
    QCoreApplication::removeTranslator(&capitals);
    QCoreApplication::processEvents();
    QCOMPARE(action("actionRun").text().remove('&'), QString("Run"));
}

QTEST_MAIN(TestProgramWindow)
#include "tst_programwindow.moc"
