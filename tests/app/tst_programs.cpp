// SPDX-License-Identifier: GPL-3.0-or-later
// Programs in the real main window, typed with the keys that a user presses: words offered from the
// dictionary, runs, faults that lead to their lines, keys shared with the ribbon, rescued texts.
#include "Workbench.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/ribbon/tt/CompactToolButton.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "app/settings/KelSystem.h"
#include "dictionary/mirror/TKpEntity.h"
#include "editor/files/RecoveryStore.h"
#include "editor/program/ProcessProgramSPC.h"
#include "editor/text/Editor.h"
#include "projects/TfrmProject.h"
#include "support/ModalAnswer.h"
#include "support/OwnSettings.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

namespace {

/// Where the keys of a user go: the list that has popped up, or the widget with the focus.
QWidget* keyboard() {
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr)
        return QApplication::focusWidget();
    return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(keyboard(), key, modifiers);
}

void type(const QString& text) {
    for (const QChar letter : text)
        if (letter == u'\n')
            press(Qt::Key_Return);
        else
            QTest::keyClicks(keyboard(), letter);
}

} // namespace

class TestPrograms : public QObject {
    Q_OBJECT

    std::unique_ptr<Workbench> bench_;

    ProcessProgramSPC* window() const {
        const QMdiSubWindow* frame = frameOfProgram();
        return frame != nullptr ? qobject_cast<ProcessProgramSPC*>(frame->widget()) : nullptr;
    }
    Editor& editor() const { return *window()->currentEditor(); }
    QStringList errors() const {
        const auto* list = window()->findChild<QListWidget*>("errorListWidget");
        QStringList rows;
        for (int row = 0; row < list->count(); ++row)
            rows += list->item(row)->text();
        return rows;
    }
    void clickError(int row) const {
        auto* list = window()->findChild<QListWidget*>("errorListWidget");
        QTRY_VERIFY(list->isVisible());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->item(row)).center());
    }
    /// Cells in full precision, joined by "|".
    QStringList outputRows() const {
        const QAbstractItemModel& model = *bench_->find<QTableView>("tableWidget")->model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells += model.index(row, column).data(Qt::UserRole).toString();
            rows += cells.join('|');
        }
        return rows;
    }

    /// From the ribbon's page FILE.
    void pressInMenu(const char* button, Qt::Key key) const {
        // The ribbon may be built anew meanwhile.
        const auto found = [&] {
            bench_->find<tt::TabToolbar>("ribbon")->SetCurrentTab(2);
            return bench_->find<tt::CompactToolButton>(button);
        };
        QTRY_VERIFY(found() != nullptr && found()->isVisible());
        QMenu* menu = found()->defaultAction()->menu();
        menu->popup({});
        QTRY_VERIFY(menu->isVisible());
        QTest::keyClick(menu, key);
    }

    void newProgram() const {
        bench_->activate();
        pressInMenu("File-new", Qt::Key_P);
        QTRY_VERIFY(window() != nullptr);
        QTRY_VERIFY(editor().hasFocus());
    }

    void replaceText(const QString& text) const {
        bench_->find<QMdiArea>("workArea")->setActiveSubWindow(frameOfProgram());
        editor().setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        editor().insertPlainText(text);
    }

    QList<ProcessProgramSPC*> windows() const {
        QList<ProcessProgramSPC*> found;
        for (QMdiSubWindow* frame : bench_->find<QMdiArea>("workArea")->subWindowList())
            if (auto* program = qobject_cast<ProcessProgramSPC*>(frame->widget()))
                found += program;
        return found;
    }
    ProcessProgramSPC* front() const {
        return qobject_cast<ProcessProgramSPC*>(
            bench_->find<QMdiArea>("workArea")->activeSubWindow()->widget());
    }
    static QStringList tabsOf(const ProcessProgramSPC& program) {
        const auto* tabs = program.findChild<QTabWidget*>("tabbedEditor");
        QStringList texts;
        for (int index = 0; index < tabs->count(); ++index)
            texts += tabs->tabText(index);
        return texts;
    }
    static void leaveBehind(const QString& path, const QString& name, bool execute) {
        RecoveryStore crashed(recoveryFolder());
        QVERIFY(crashed.keep({crashed.newId(), path, name, execute, QDateTime::currentDateTimeUtc(),
                              "rescued " + name}));
    }
    static QString recoveryFolder() {
        return QFileInfo(KelSystem::instance().filePath()).absolutePath() + "/recovery";
    }

    QMdiSubWindow* frameOfProgram() const {
        for (QMdiSubWindow* frame : bench_->find<QMdiArea>("workArea")->subWindowList())
            if (qobject_cast<ProcessProgramSPC*>(frame->widget()) != nullptr)
                return frame;
        return nullptr;
    }

    QString write(const QString& name, const QByteArray& text) const {
        QFile file(bench_->folder() + '/' + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write a program");
        return file.fileName();
    }

private slots:
    void initTestCase() {
        takeOwnSettings();
        bench_ = std::make_unique<Workbench>();
    }

    void init() {
        bench_->openSmall();
        bench_->messages.clear();
    }

    void cleanup() {
        bench_->answer({Choice::No, Choice::No, Choice::No});
        bench_->find<QMdiArea>("workArea")->closeAllSubWindows();
        QTRY_COMPARE(bench_->windowNames(), QStringList());
        bench_->answer({});
    }

    void typedProgramIsCompletedAndRuns() {
        newProgram();
        type("freq ");
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        auto* popup = qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
        QStringList offered;
        for (int row = 0; row < popup->model()->rowCount(); ++row)
            offered += popup->model()->index(row, 0).data().toString();
        QCOMPARE(offered, QStringList({"country", "district", "household", "person"}));
        type("p");
        press(Qt::Key_Return);
        QTRY_COMPARE(editor().toPlainText(), "freq person");
        type(".s");
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        press(Qt::Key_Return);
        QTRY_COMPARE(editor().toPlainText(), "freq person.sex");
        type(" by");
        type(" ");
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        type("household");
        if (QApplication::activePopupWidget() != nullptr)
            press(Qt::Key_Escape);
        type(".rooms");
        if (QApplication::activePopupWidget() != nullptr)
            press(Qt::Key_Escape);
        QCOMPARE(editor().toPlainText(), "freq person.sex by household.rooms");
        press(Qt::Key_F9);
        QCOMPARE(bench_->messages, QStringList());
        QTRY_COMPARE(bench_->resultCount(), 1);
        QVERIFY(bench_->windowNames().contains("ResultsManager"));
        const auto* table = bench_->find<QTableView>("tableWidget");
        QTRY_VERIFY(table->isVisible());
        // Weighted by the household, counted by hand.
        QCOMPARE(outputRows().mid(2), QStringList({"0. __tot__|9.5|5.5|4", "1. Male|2.5|2.5|",
                                                   "2. Female|7|3|4", "0. __mv__|1|1|"}));
    }

    void faultsLeadToTheirLines() {
        newProgram();
        replaceText(
            "freq person.sex\n\nfreq person.nothing\nfreq household.rooms\nfreq nowhere.x\n");
        press(Qt::Key_F9);
        QTRY_COMPARE(errors().size(), 3);
        QCOMPARE(errors()[0], "2 errors found");
        QVERIFY2(errors()[1].startsWith("3: "), qPrintable(errors()[1]));
        QVERIFY2(errors()[2].startsWith("5: "), qPrintable(errors()[2]));
        QCOMPARE(bench_->messages, QStringList());
        clickError(2);
        QCOMPARE(editor().highlightedLine(), 5);
        QCOMPARE(editor().currentLine(), 5);
        clickError(1);
        QCOMPARE(editor().highlightedLine(), 3);
        clickError(0);
        QCOMPARE(editor().highlightedLine(), 0);
        QCOMPARE(bench_->messages, QStringList());
        // The line is mended where the click has led; the selection alone runs then.
        clickError(1);
        editor().setFocus();
        press(Qt::Key_Home);
        press(Qt::Key_End, Qt::ShiftModifier);
        type("freq person.sex");
        if (QApplication::activePopupWidget() != nullptr)
            press(Qt::Key_Escape);
        press(Qt::Key_Home);
        press(Qt::Key_End, Qt::ShiftModifier);
        const int before = bench_->resultCount();
        press(Qt::Key_F9);
        QTRY_COMPARE(bench_->resultCount(), before + 1);
        QCOMPARE(errors(), QStringList());
    }

    void blocksTellTheLinesOfTheDocument() {
        newProgram();
        replaceText("freq person.sex\nfreq person.nothing\nfreq person.sex\nfreq person.worse\n");
        press(Qt::Key_Home, Qt::ControlModifier);
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
        press(Qt::Key_F9);
        QTRY_COMPARE(errors().size(), 2);
        QVERIFY2(errors()[1].startsWith("4: "), qPrintable(errors()[1]));
    }

    /// The ribbon has the same keys for dictionaries.
    void keysGoToTheWindowThatHasTheFocus() {
        newProgram();
        type("freq");
        if (QApplication::activePopupWidget() != nullptr)
            press(Qt::Key_Escape);
        const QString path = bench_->folder() + "/typed.spc";
        KelvoraFileDialog::answerNext(path);
        press(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(QFileInfo::exists(path));
        QVERIFY(!editor().document()->isModified());
        QCOMPARE(editor().filePath(), path);
        const QString second = write("second.spc", "freq household.rooms\n");
        KelvoraFileDialog::answerNext(second);
        press(Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE(editor().filePath(), second);
        QCOMPARE(TfrmProject::instance().dictionaryPath(), bench_->smallPath());
        press(Qt::Key_N, Qt::ControlModifier);
        QTRY_VERIFY(editor().filePath().isEmpty());
        QCOMPARE(bench_->messages, QStringList());
        // Outside of it they are the dictionary's.
        bench_->find<QWidget>("TreeViewDictionary")->setFocus();
        KelvoraFileDialog::answerNext(bench_->smallPath());
        QTest::keyClick(bench_->find<QWidget>("TreeViewDictionary"), Qt::Key_O,
                        Qt::ControlModifier);
        QTRY_COMPARE(bench_->messages.size(), 1); // windows stand against it
        QVERIFY(bench_->messages[0].startsWith("Please, close all the windows"));
    }

    void programsOpenOnceAndAreRemembered() {
        const QString path = write("remembered.spc", "freq person.sex\n");
        KelvoraFileDialog::answerNext(path);
        pressInMenu("File-open", Qt::Key_P);
        QTRY_VERIFY(window() != nullptr);
        QCOMPARE(editor().toPlainText(), "freq person.sex\n");
        QCOMPARE(KelSystem::instance().recentPrograms(false).value(0), path);
        KelvoraFileDialog::answerNext(path);
        pressInMenu("File-open", Qt::Key_P);
        QCOMPARE(bench_->windowNames().size(), 1);
        window()->newProgram();
        QCOMPARE(tabsOf(*window()), QStringList({"remembered.spc", "Untitled document"}));
        // The ribbon offers it, and what else lies beside the dictionary.
        QTRY_VERIFY(bench_->find<tt::CompactToolButton>("File-programs") != nullptr &&
                    bench_->find<tt::CompactToolButton>("File-programs")->isEnabled());
        KelvoraFileDialog::answerNext(bench_->folder() + "/absent.spc");
        pressInMenu("File-open", Qt::Key_P);
        QCOMPARE(bench_->messages.size(), 1);
        QCOMPARE(bench_->windowNames().size(), 1);
    }

    void executeWindowsRunProgramsOfTheFolder() {
        write("called.spc", "freq person.{name}\n");
        bench_->activate();
        pressInMenu("File-new", Qt::Key_E);
        QTRY_VERIFY(window() != nullptr && window()->isExecuteWindow());
        replaceText("EXECUTE \"called.spc\" name = {SEX}\nEXECUTE \"called.spc\" name = {NOPE}\n");
        press(Qt::Key_F9);
        QTRY_VERIFY(!errors().isEmpty());
        QVERIFY2(errors().join('\n').contains("called.spc:1: "), qPrintable(errors().join('\n')));
        replaceText("EXECUTE \"called.spc\" name = {SEX}\nEXECUTE \"called.spc\" name = {SEX}\n");
        press(Qt::Key_F9);
        QTRY_VERIFY(errors().filter("2/2").size() == 1);
        QCOMPARE(errors().filter("1/2").size(), 1);
    }

    void variablesThatARunSavedAreOfferedNext() {
        newProgram();
        replaceText("define PERSON.DOUBLED as PERSON.SEX * 2\n save \"DOUBLED.kbf\" overwrite\n"
                    "freq PERSON.DOUBLED\n");
        press(Qt::Key_F9);
        QTRY_VERIFY2(bench_->resultCount() > 0,
                     qPrintable((errors() + bench_->messages).join('\n')));
        replaceText("");
        type("freq person.dou");
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        press(Qt::Key_Return);
        QTRY_COMPARE(editor().toPlainText(), "freq person.doubled");
    }

    void closingAsksForUnsavedText() {
        newProgram();
        replaceText("freq person.sex");
        bench_->answer({Choice::Cancel});
        bench_->window().close();
        QVERIFY(bench_->window().isVisible());
        QVERIFY(bench_->messages.value(0).startsWith("Do you want to save the changes to"));
        QCOMPARE(editor().toPlainText(), "freq person.sex");
    }

    /// What an earlier run of the program left unsaved.
    void rescuedTextsAreOffered() {
        const QString path = write("saved.spc", "old\n");
        leaveBehind(path, "saved.spc", false);
        answerNextDialog([](QDialog& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>("restoreButton"), Qt::LeftButton);
        });
        bench_->window().offerRecovered();
        QTRY_VERIFY(window() != nullptr);
        QCOMPARE(editor().toPlainText(), "rescued saved.spc");
        QCOMPARE(editor().filePath(), path);
        QVERIFY(editor().document()->isModified());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "old\n");
        bench_->activate();
        editor().setFocus();
        press(Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(!editor().document()->isModified());
        QVERIFY(RecoveryStore(recoveryFolder()).abandoned().isEmpty());
    }

    void rescuedTextsComeAsTabsOfAWindowForEachKind() {
        const QString path = write("open.spc", "old\n");
        KelvoraFileDialog::answerNext(path);
        pressInMenu("File-open", Qt::Key_P);
        QTRY_COMPARE(windows().size(), 1);
        leaveBehind({}, "one", false);
        leaveBehind({}, "list", true);
        leaveBehind(path, "open.spc", true); // under which kind does not matter
        leaveBehind({}, "two", false);
        answerNextDialog([](QDialog& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>("restoreButton"), Qt::LeftButton);
        });
        bench_->window().offerRecovered();
        QTRY_COMPARE(windows().size(), 3);
        QCOMPARE(tabsOf(*windows()[0]), QStringList("open.spc *"));
        QCOMPARE(windows()[0]->currentEditor()->toPlainText(), "rescued open.spc");
        QCOMPARE(tabsOf(*windows()[1]), QStringList({"one *", "two *"}));
        QVERIFY(!windows()[1]->isExecuteWindow());
        QCOMPARE(tabsOf(*windows()[2]), QStringList("list *"));
        QVERIFY(windows()[2]->isExecuteWindow());
    }

    void noFileIsOpenInTwoWindows() {
        const QString path = write("once.spc", "freq person.sex\n");
        KelvoraFileDialog::answerNext(path);
        pressInMenu("File-open", Qt::Key_P);
        QTRY_VERIFY(window() != nullptr);
        ProcessProgramSPC* first = window();
        pressInMenu("File-new", Qt::Key_E);
        QTRY_COMPARE(windows().size(), 2);
        ProcessProgramSPC* second = windows()[1];
        QTRY_VERIFY(second->currentEditor()->hasFocus());
        // By the window's own key, and by the ribbon for the other kind.
        KelvoraFileDialog::answerNext(path);
        press(Qt::Key_O, Qt::ControlModifier);
        QTRY_COMPARE(front(), first);
        QVERIFY(!second->hasFile(path));
        bench_->find<QMdiArea>("workArea")
            ->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(second->parentWidget()));
        KelvoraFileDialog::answerNext(path);
        pressInMenu("File-open", Qt::Key_E);
        QTRY_COMPARE(front(), first);
        QCOMPARE(windows().size(), 2);
        QCOMPARE(bench_->messages, QStringList());
        // Nor by saving.
        second->currentEditor()->insertPlainText("EXECUTE \"once.spc\"");
        KelvoraFileDialog::answerNext(path);
        second->saveProgramAs();
        QCOMPARE(bench_->messages, QStringList("The file once.spc is open in another window."));
        QVERIFY(!second->hasFile(path));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "freq person.sex\n");
    }
};

QTEST_MAIN(TestPrograms)
#include "tst_programs.moc"
