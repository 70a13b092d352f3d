// SPDX-License-Identifier: GPL-3.0-or-later
// Opening, running and closing through the real window, as a user does it. Figures are counted by
// hand from the records in support/SmallDatabase.h.
#include "EngineCalls.h"
#include "Workbench.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "app/settings/KelSystem.h"
#include "kel.h"
#include "preferences/ConfigDialog.h"
#include "projects/TfrmProject.h"
#include "support/ModalAnswer.h"
#include "support/SmallDatabase.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeView>

class TestMainWindow : public QObject {
    Q_OBJECT

    std::unique_ptr<Workbench> bench_;

    QMdiArea& area() const { return *bench_->find<QMdiArea>("workArea"); }
    tt::TabToolbar& ribbon() const { return *bench_->find<tt::TabToolbar>("ribbon"); }

    /// Opens, after the windows of the work area have gone.
    void open(const QString& path) const {
        area().closeAllSubWindows();
        bench_->openByKeyboard(path);
    }

    void runSex() const {
        bench_->openSmall();
        bench_->select("PERSON", "SEX");
        bench_->frequency();
        QCOMPARE(bench_->frequencyRows().size(), 4);
    }

    QStringList leftDocks() const {
        QStringList names;
        for (const QDockWidget* dock : bench_->window().findChildren<QDockWidget*>())
            if (bench_->window().dockWidgetArea(const_cast<QDockWidget*>(dock)) ==
                Qt::LeftDockWidgetArea)
                names += dock->objectName();
        names.sort();
        return names;
    }

private slots:
    void initTestCase() { bench_ = std::make_unique<Workbench>(); }
    void init() { bench_->messages.clear(); }

    void windowStartsEmpty() {
        QCOMPARE(MainWindow::instance(), &bench_->window());
        QCOMPARE(leftDocks(), QStringList());
        QCOMPARE(bench_->windowNames(), QStringList());
        QTRY_VERIFY(bench_->find<QPushButton>("openDictionary")->isVisible());
        QCOMPARE(ribbon().CurrentTab(), 0);
    }

    void whatIsNoDictionaryIsRefused() {
        bench_->openByKeyboard(bench_->folder() + "/small.txt");
        QCOMPARE(bench_->messages, QStringList("Archivo no válido"));
        bench_->messages.clear();
        QDir(bench_->folder()).mkdir("folder.dicx");
        bench_->openByKeyboard(bench_->folder() + "/folder.dicx");
        QCOMPARE(bench_->messages.size(), 1);
        QVERIFY(bench_->messages[0].contains("folder.dicx"));
        QVERIFY(!TfrmProject::instance().isOpen());
    }

    void dictionaryOpensFromTheKeyboard() {
        open(bench_->smallPath());
        QCOMPARE(bench_->messages, QStringList());
        const TfrmProject& project = TfrmProject::instance();
        QCOMPARE(project.dictionaryKind(), DictionaryKind::Kxdb);
        QVERIFY(project.allPathsFound());
        QCOMPARE(bench_->find<QLabel>("dictionaryLabel")->text(), "small.kxdb");
        QCOMPARE(bench_->window().windowTitle(), "KelXProcess 67f53c7a");
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        QCOMPARE(ribbon().CurrentTab(), 2);
        QVERIFY(leftDocks().contains("Dictionary"));
        QVERIFY(leftDocks().contains("Variables"));
        const KelSystem& system = KelSystem::instance();
        QCOMPARE(system.directoryFor("DICTIONARY"), bench_->folder());
        QCOMPARE(system.recentDictionaries().value(0), bench_->smallPath());
        // Stored at once: a crash later on forgets nothing.
        QVariant last;
        system.readValue(last, "lastOpened", "kelSystem", "");
        QCOMPARE(last.toString(), bench_->smallPath());
        // What the empty work area tells of it.
        const auto* entities = bench_->find<QTableView>("overviewEntities");
        QVERIFY(entities->isVisible());
        QCOMPARE(entities->model()->rowCount(), 4);
        QCOMPARE(entities->model()->index(3, 2).data().toString(), "7");
    }

    void frequencyShowsWeightedFigures() {
        runSex();
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(bench_->windowNames(), QStringList("ResultsManager"));
        QCOMPARE(bench_->frequencyRows(),
                 QStringList({"1. Male|2.50|26.32|26.32", "2. Female|7|73.68|100", "MV|1||",
                              "Total|9.50|100|"}));
        const QAbstractItemModel& report = *bench_->find<QTableView>("tableWidgetReport")->model();
        QCOMPARE(report.index(6, 0).data().toString(), "Weight");
        QCOMPARE(report.index(7, 0).data().toString(), "  HOUSEHOLD.WEIGHT");
    }

    void treeMenuCountsEveryVariable() {
        bench_->openSmall();
        auto* tree = bench_->find<QTreeView>("TreeViewDictionary");
        QVERIFY(Workbench::click(tree, "HOUSEHOLD"));
        const int before = bench_->resultCount();
        bench_->chooseFromMenu(tree, "actionFrequency");
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(bench_->resultCount(), before + 2);
    }

    void resultsComeBackAfterTheirTabWasClosed() {
        runSex();
        const int tables = bench_->resultCount();
        for (int round = 0; round < 2; ++round) {
            area().closeAllSubWindows();
            QTRY_COMPARE(bench_->windowNames(), QStringList());
            QTRY_VERIFY(bench_->find<QWidget>("startPage")->isVisible());
            bench_->window().onShowResults();
            QCOMPARE(bench_->windowNames(), QStringList("ResultsManager"));
        }
        QCOMPARE(bench_->resultCount(), tables);
    }

    void copiedTableKeepsFullPrecision() {
        runSex();
        auto* tree = bench_->find<QWidget>("ResultsManager")->findChild<QTreeView*>("treeView");
        bench_->activate();
        tree->setFocus();
        QTRY_VERIFY(tree->hasFocus());
        QTest::keyClick(tree, Qt::Key_C, Qt::ControlModifier);
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY2(text.startsWith("PERSON.SEX (Sex of the person)\tCount\t%\tCumul%\n"),
                 qPrintable(text));
        QVERIFY2(text.contains("1. Male\t2.500000\t26.315789"), qPrintable(text));
    }

    void programFaultIsToldAndKeepsTheTable() {
        runSex();
        const QStringList before = bench_->frequencyRows();
        bench_->window().runProgram("FREQ PERSON.NOSUCH");
        QCOMPARE(bench_->messages.size(), 2);
        QCOMPARE(bench_->messages[0], "1 error found");
        QVERIFY2(bench_->messages[1].startsWith("1: KEL_E_"), qPrintable(bench_->messages[1]));
        QCOMPARE(bench_->frequencyRows(), before);
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void openWindowsStandAgainstAnotherDictionary() {
        runSex();
        bench_->openByKeyboard(bench_->folder() + "/small.dicx");
        QCOMPARE(bench_->messages,
                 QStringList("Please, close all the windows from the application work area before "
                             "changing the dictionary"));
        QCOMPARE(TfrmProject::instance().dictionaryPath(), bench_->smallPath());
        bench_->messages.clear();
        area().closeAllSubWindows();
        bench_->window().onClickInPreferences();
        QCOMPARE(bench_->windowNames(), QStringList("KelxPreferencesDialog"));
        bench_->openByKeyboard(bench_->folder() + "/small.dicx");
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), bench_->folder() + "/small.dicx");
        QCOMPARE(TfrmProject::instance().dictionaryKind(), DictionaryKind::Dicx);
    }

    void unreadableFileLeavesNothingOpen() {
        bench_->openSmall();
        QFile bad(bench_->folder() + "/bad.kxdb");
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("this is no dictionary");
        bad.close();
        open(bad.fileName());
        QTRY_COMPARE(bench_->messages.size(), 1);
        QVERIFY2(bench_->messages[0].contains("bad.kxdb"), qPrintable(bench_->messages[0]));
        QVERIFY(!TfrmProject::instance().isOpen());
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        QTRY_COMPARE(leftDocks(), QStringList());
        QVERIFY(!KelSystem::instance().recentDictionaries().contains(bad.fileName()));
    }

    void brokenTextFormEndsWithAWordInTheStatusBar() {
        QFile bad(bench_->folder() + "/broken.dicx");
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("<kelDictionary_XML><general>");
        bad.close();
        open(bad.fileName());
        QCOMPARE(bench_->messages, QStringList());
        QVERIFY(!TfrmProject::instance().isOpen());
        QCOMPARE(bench_->window().findChild<QStatusBar*>()->currentMessage(), "Invalid Dictionary");
    }

    void missingFilesAreTold() {
        const QTemporaryDir other;
        writeSmallDatabase(other.path());
        QVERIFY(QFile::remove(other.filePath("PERSON_AGE.kbf")));
        open(other.filePath("small.kxdb"));
        QTRY_COMPARE(bench_->messages,
                     QStringList("Some variable and/or entity paths could not be found!\nPlease, "
                                 "press Locate button in the Dictionary ToolBar"));
        QVERIFY(!TfrmProject::instance().allPathsFound());
        QCOMPARE(ribbon().CurrentTab(), 1);
    }

    void dataFolderOfTheUserIsKept() {
        const QTemporaryDir alone;
        const QString path = alone.filePath("small.kxdb");
        QVERIFY(QFile::copy(bench_->smallPath(), path));
        answerNextDialog([this](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "Select data folder to SMALL");
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(bench_->folder());
            dialog.accept();
        });
        open(path);
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), path);
        QVERIFY(TfrmProject::instance().allPathsFound());
        bench_->select("PERSON", "SEX");
        bench_->frequency();
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(bench_->frequencyRows().size(), 4);
    }

    void refusedDataFolderEndsTheLoad() {
        const QTemporaryDir alone;
        QVERIFY(QFile::copy(bench_->smallPath(), alone.filePath("small.kxdb")));
        answerNextDialog([](QDialog& dialog) { dialog.reject(); });
        open(alone.filePath("small.kxdb"));
        QTRY_COMPARE(bench_->messages, QStringList("Missing data location."));
        QVERIFY(!TfrmProject::instance().isOpen());
    }

    void passwordOpensAProtectedDatabase() {
        const QTemporaryDir other;
        writeSmallDatabase(other.path(), "s3cret");
        const QString path = other.filePath("small.kxdb");
        const auto answer = [this, &path](const QString& password) {
            bench_->messages.clear();
            answerNextDialog([password](QDialog& dialog) {
                QTest::keyClicks(dialog.findChild<QLineEdit*>("password"), password);
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
            open(path);
        };
        for (const char* wrong : {"wrong", "Wrong", "s3cret "}) {
            answer(wrong);
            QTRY_COMPARE(bench_->messages, QStringList("Wrong password."));
        }
        answer("");
        QTRY_COMPARE(bench_->messages, QStringList("Missing password."));
        answer("s3cret");
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), path);
    }

    void quickViewStandsOnTheRight() {
        open(bench_->smallPath());
        bench_->select("PERSON", "SEX");
        QTest::keyClick(bench_->find<QTableView>("variableTable"), Qt::Key_F3);
        QDockWidget* view = bench_->window().dock("VarProperties");
        QVERIFY(view != nullptr && view->isVisible());
        QCOMPARE(bench_->window().dockWidgetArea(view), Qt::RightDockWidgetArea);
        QVERIFY(view->windowTitle().contains("PERSON.SEX"));
        QTest::keyClick(bench_->find<QTreeView>("TreeViewDictionary"), Qt::Key_F3);
        QCOMPARE(bench_->window().dock("VarProperties"), view);
        QVERIFY(view->windowTitle().contains("PERSON"));
    }

    void ribbonKeepsPageAndDocksThroughARebuild() {
        bench_->openSmall();
        ribbon().SetCurrentTab(5);
        ribbon().SetMinimized(true);
        const QStringList docks = leftDocks();
        bench_->window().rebuildToolbars();
        QTRY_COMPARE(bench_->window().findChildren<tt::TabToolbar*>().size(), 1);
        QCOMPARE(ribbon().CurrentTab(), 5);
        QVERIFY(ribbon().IsMinimized());
        QCOMPARE(leftDocks(), docks);
        ribbon().SetMinimized(false);
    }

    void modeActionSwitchesBetweenTabsAndWindows() {
        area().closeAllSubWindows();
        auto* mode = bench_->find<QAction>("modeAction");
        QCOMPARE(area().viewMode(), QMdiArea::TabbedView);
        mode->trigger();
        QCOMPARE(area().viewMode(), QMdiArea::SubWindowView);
        QCOMPARE(bench_->windowNames(), QStringList());
        mode->trigger();
        QCOMPARE(area().viewMode(), QMdiArea::TabbedView);
        QVERIFY(area().tabsClosable() && area().tabsMovable());
    }

    void preferencesOpenOnceAndEscapeClosesTheirTab() {
        bench_->find<QAction>("preferencesAction")->trigger();
        bench_->find<QAction>("preferencesAction")->trigger();
        QCOMPARE(bench_->windowNames(), QStringList("KelxPreferencesDialog"));
        QTest::keyClick(bench_->find<ConfigDialog>("KelxPreferencesDialog"), Qt::Key_Escape);
        QTRY_COMPARE(bench_->windowNames(), QStringList());
    }

    void styleChangesTheWholeWindow() {
        bench_->openSmall();
        bench_->window().onClickInPreferences();
        auto* colours = bench_->find<QComboBox>("cbMenuColors");
        QVERIFY(colours->count() >= 4);
        const int light = bench_->window().palette().color(QPalette::Window).lightness();
        colours->setFocus();
        QTest::keyClick(colours, Qt::Key_End);
        QTRY_VERIFY(bench_->window().palette().color(QPalette::Window).lightness() < light / 2);
        QTest::keyClick(colours, Qt::Key_Home);
        QTRY_COMPARE(bench_->window().palette().color(QPalette::Window).lightness(), light);
        area().closeAllSubWindows();
    }

    void languageChangesTheOpenWindow_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("column");
        QTest::newRow("Spanish") << "Process_es"
                                 << "ARCHIVO"
                                 << "Etiqueta";
        QTest::newRow("Portuguese") << "Process_pt"
                                    << "ARQUIVO"
                                    << "Rótulo";
        QTest::newRow("French") << "Process_fr"
                                << "FICHIER"
                                << "Libellé";
        QTest::newRow("English") << "Process_en"
                                 << "FILE"
                                 << "Label";
    }

    void languageChangesTheOpenWindow() {
        QFETCH(QString, language);
        QFETCH(QString, page);
        QFETCH(QString, column);
        bench_->openSmall();
        ribbon().SetCurrentTab(2);
        bench_->window().onClickInPreferences();
        auto* choice = bench_->find<QComboBox>("cbLanguage");
        choice->setCurrentIndex(choice->findData(language));
        const auto shown = [this] { return ribbon().findChild<QTabWidget*>()->tabText(2); };
        QTRY_COMPARE(shown().trimmed(), page);
        QCOMPARE(ribbon().CurrentTab(), 2);
        QVariant stored;
        KelSystem::instance().readValue(stored, "language", "kelSystem", "");
        QCOMPARE(stored.toString(), language);
        const auto* table = bench_->find<QTableView>("variableTable");
        QCOMPARE(table->model()->headerData(3, Qt::Horizontal, Qt::DisplayRole).toString(), column);
        QCOMPARE(bench_->window().windowTitle(), "KelXProcess 67f53c7a");
    }

    void vanishedRecentFileIsToldAndForgotten() {
        area().closeAllSubWindows();
        const QString gone = bench_->folder() + "/gone.kxdb";
        KelSystem::instance().addRecentDictionary(gone);
        bench_->window().on_openRecentDictionary(gone);
        QCOMPARE(bench_->messages.size(), 1);
        QVERIFY(bench_->messages[0].contains("gone.kxdb"));
        QVERIFY(!KelSystem::instance().recentDictionaries().contains(gone));
        QVERIFY(TfrmProject::instance().isOpen()); // what was open stays
    }

    void closedDictionaryLeavesNoResultsBehind() {
        runSex();
        area().closeAllSubWindows();
        bench_->window().on_closeAllDictionary();
        QVERIFY(!TfrmProject::instance().isOpen());
        QTRY_VERIFY(bench_->find<QWidget>("ResultsManager") == nullptr);
        QTRY_COMPARE(leftDocks(), QStringList());
        QTRY_VERIFY(bench_->find<QPushButton>("openDictionary")->isVisible());
        QCOMPARE(ribbon().CurrentTab(), 0);
    }

    // The last one: the engine ends with it.
    void closingAsksOnceAndEndsTheEngineOnce() {
        runSex();
        TfrmProject::instance().dictionary()->setDirty(true);
        QVERIFY(bench_->window().close());
        QCOMPARE(bench_->messages,
                 QStringList("Do you want to save the changes in the dictionary?"));
        QCOMPARE(destroyCalls(), 1);
        QVERIFY(!TfrmProject::instance().isOpen());
        bench_->endWindow();
        QCOMPARE(destroyCalls(), 1);
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
