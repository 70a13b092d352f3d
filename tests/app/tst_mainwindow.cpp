// SPDX-License-Identifier: GPL-3.0-or-later
// The main job through the real window, as a user does it. Figures are counted by hand from the
// records in support/SmallDatabase.h.
#include "EngineCalls.h"
#include "app/MainWindow.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "app/settings/KelSystem.h"
#include "engine/TKelConfigImpl.h"
#include "engine/UIInvoker.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "support/ModalAnswer.h"
#include "support/SmallDatabase.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

class TestMainWindow : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    std::unique_ptr<MainWindow> window_;
    QStringList messages_;
    Choice answer_ = Choice::No;

    template <typename Widget>
    Widget* find(const char* name) const {
        return window_->findChild<Widget*>(QLatin1String(name));
    }

    /// No window manager does it here once a dialog has gone.
    void activate() const {
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void openByKeyboard(const QString& path) const {
        activate();
        KelvoraFileDialog::answerNext(path);
        QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
        QTRY_VERIFY_WITH_TIMEOUT(!window_->isLoading(), 20000);
    }

    void select(const QStringList& entities, const QString& variable) const {
        activate();
        const auto* tree = find<QTreeView>("entityTree");
        QModelIndex place;
        for (const QString& name : entities) {
            const auto found = tree->model()->match(tree->model()->index(0, 0, place),
                                                    Qt::DisplayRole, name, 1, Qt::MatchExactly);
            QVERIFY2(!found.isEmpty(), qPrintable(name));
            place = found.first();
        }
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(place).center());
        const auto* table = find<QTableView>("variableTable");
        const auto rows = table->model()->match(table->model()->index(0, 0), Qt::DisplayRole,
                                                variable, 1, Qt::MatchExactly);
        QVERIFY2(!rows.isEmpty(), qPrintable(variable));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(rows.first()).center());
    }

    void selectSex() const { select({"COUNTRY", "DISTRICT", "HOUSEHOLD", "PERSON"}, "SEX"); }

    void openSmall() const {
        if (TfrmProject::instance().dictionaryPath() != folder_.filePath("small.kxdb"))
            openByKeyboard(folder_.filePath("small.kxdb"));
        QVERIFY(TfrmProject::instance().allPathsFound());
    }

    void runSex() const {
        openSmall();
        selectSex();
        QTest::keyClick(window_.get(), Qt::Key_F9);
        QCOMPARE(frequencyRows().size(), 4);
    }

    QStringList frequencyRows() const {
        const QAbstractItemModel* model = find<QTableView>("frequencyTable")->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells += model->index(row, column).data().toString();
            rows += cells.join('|');
        }
        return rows;
    }

private slots:
    void initTestCase() {
        UIInvoker::instance();
        kel::init(std::make_shared<TKelConfigImpl>());
        kel::setupLocale("en");
        writeSmallDatabase(folder_.path());
        answerMessages([this](MessageKind, const QString& text) {
            messages_ += text;
            return answer_;
        });
        window_ = std::make_unique<MainWindow>();
        window_->setWindowTitle("KelXProcess 67f53c7a");
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void init() { messages_.clear(); }

    void cleanupTestCase() { answerMessages({}); }

    void windowStartsEmpty() {
        QCOMPARE(MainWindow::instance(), window_.get());
        QCOMPARE(find<QTreeView>("entityTree")->model()->rowCount(), 0);
        QVERIFY(!find<QAction>("actionFrequency")->isEnabled());
        QVERIFY(!find<QDockWidget>("resultDock")->isVisible());
    }

    void wrongExtensionIsRefused() {
        openByKeyboard(folder_.filePath("small.txt"));
        QCOMPARE(messages_, QStringList("Archivo no válido"));
        QVERIFY(!TfrmProject::instance().isOpen());
    }

    void dictionaryOpensThroughTheMenu() {
        openByKeyboard(folder_.filePath("small.kxdb"));
        QCOMPARE(messages_, QStringList());
        QVERIFY(TfrmProject::instance().isOpen());
        QCOMPARE(TfrmProject::instance().dictionaryKind(), DictionaryKind::Kxdb);
        QVERIFY(TfrmProject::instance().allPathsFound());
        QCOMPARE(find<QLabel>("dictionaryLabel")->text(), "small.kxdb");
        QCOMPARE(window_->windowTitle(), "KelXProcess 67f53c7a");
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        QCOMPARE(KelSystem::instance().directoryFor("DICTIONARY"), folder_.path());
    }

    void frequencyShowsWeightedFigures() {
        runSex();
        QCOMPARE(messages_, QStringList());
        QVERIFY(find<QDockWidget>("resultDock")->isVisible());
        QStringList rows = frequencyRows();
        rows.sort();
        QCOMPARE(rows, QStringList({"1|Male|2.50|26.3", "2|Female|7.00|73.7", "|Missing|1.00|",
                                    "|Total|9.50|100.0"}));
        QVERIFY(find<QLabel>("frequencyNote")->text().contains("Unit of count: PERSON"));
        QVERIFY(find<QLabel>("frequencyNote")->text().contains("HOUSEHOLD.WEIGHT"));
        QVERIFY(find<QLabel>("frequencyTitle")->text().contains("PERSON.SEX"));
    }

    void keyboardAloneMakesATable() {
        openSmall();
        auto* tree = find<QTreeView>("entityTree");
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_End); // PERSON, the last entity
        QTest::keyClick(window_.get(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), "rooms");
        QCOMPARE(find<QLabel>("variableCount")->text(), "0 of 3");
        QTest::keyClick(tree, Qt::Key_Up);
        QCOMPARE(find<QLabel>("variableCount")->text(), "1 of 2");
        QTest::keyClick(window_.get(), Qt::Key_F9);
        QStringList rows = frequencyRows();
        rows.sort();
        QCOMPARE(rows, QStringList({"2||2.50|55.6", "3||2.00|44.4", "|Total|4.50|100.0"}));
        find<QLineEdit>("variableFilter")->clear();
    }

    void totalIsBoldAndNumbersStandRight() {
        runSex();
        const QAbstractItemModel* model = find<QTableView>("frequencyTable")->model();
        QCOMPARE(model->rowCount(), 4);
        for (int row = 0; row < model->rowCount(); ++row) {
            const QModelIndex index = model->index(row, 2);
            QCOMPARE(index.data(Qt::FontRole).value<QFont>().bold(),
                     index.siblingAtColumn(1).data().toString() == "Total");
            QVERIFY(index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        }
    }

    void copiedTableKeepsFullPrecision() {
        runSex();
        find<QAction>("actionCopyTable")->trigger();
        const QString text = QGuiApplication::clipboard()->text();
        QVERIFY(text.contains("Code\tLabel\tWeighted count\tPercent\n"));
        QVERIFY(text.contains("1\tMale\t2.5\t26.315789473684"));
        QVERIFY(text.contains("Unit of count: PERSON"));
    }

    void frequencyWithoutWeightCounts() {
        openSmall();
        select({"COUNTRY", "DISTRICT"}, "ZONE");
        QTest::keyClick(window_.get(), Qt::Key_F9);
        QStringList rows = frequencyRows();
        rows.sort();
        QCOMPARE(rows, QStringList({"1||2|100.0", "|Total|2|100.0"}));
        QVERIFY(find<QLabel>("frequencyNote")->text().contains("Not weighted"));
    }

    void programFaultIsToldAndKeepsTheTable() {
        runSex();
        const QStringList before = frequencyRows();
        window_->runFrequency("PERSON.NOSUCH");
        QCOMPARE(messages_.size(), 1);
        QVERIFY2(messages_[0].startsWith("1: KEL_E_"), qPrintable(messages_[0]));
        QCOMPARE(frequencyRows(), before);
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void badFileKeepsTheOpenDictionary() {
        openSmall();
        QFile bad(folder_.filePath("bad.kxdb"));
        QVERIFY(bad.open(QIODevice::WriteOnly));
        bad.write("this is no dictionary");
        bad.close();
        openByKeyboard(bad.fileName());
        QTRY_COMPARE(messages_.size(), 1);
        QVERIFY2(messages_[0].contains("bad.kxdb"), qPrintable(messages_[0]));
        QCOMPARE(TfrmProject::instance().dictionaryPath(), folder_.filePath("small.kxdb"));
        selectSex();
        QTest::keyClick(window_.get(), Qt::Key_F9);
        QCOMPARE(frequencyRows().size(), 4);
    }

    void missingFilesAreTold() {
        const QTemporaryDir other;
        writeSmallDatabase(other.path());
        QVERIFY(QFile::remove(other.filePath("PERSON_AGE.kbf")));
        openByKeyboard(other.filePath("small.dicx"));
        QTRY_COMPARE(messages_.size(), 1);
        QVERIFY(messages_[0].startsWith("Some variable and/or entity paths could not be found!"));
        QVERIFY(messages_[0].contains("PERSON.AGE"));
        QVERIFY(!messages_[0].contains("PERSON.SEX"));
        QVERIFY(!TfrmProject::instance().allPathsFound());
        QCOMPARE(TfrmProject::instance().dictionaryKind(), DictionaryKind::Dicx);
        // The results of the dictionary before went with it.
        QCOMPARE(frequencyRows(), QStringList());
        messages_.clear();
        openByKeyboard(folder_.filePath("small.kxdb"));
        QVERIFY(TfrmProject::instance().allPathsFound());
    }

    void missingEntityFileIsTold() {
        const QTemporaryDir other;
        writeSmallDatabase(other.path());
        QVERIFY(QFile::remove(other.filePath("PERSON.kpt")));
        openByKeyboard(other.filePath("small.kxdb"));
        QTRY_COMPARE(messages_.size(), 1);
        QVERIFY2(messages_[0].endsWith("\n\nPERSON"), qPrintable(messages_[0]));
        messages_.clear();
        selectSex();
        QTest::keyClick(window_.get(), Qt::Key_F9);
        QCOMPARE(messages_.size(), 1);
        QVERIFY2(messages_[0].contains("PERSON.kpt"), qPrintable(messages_[0]));
        QVERIFY(!find<QDockWidget>("resultDock")->isVisible());
    }

    void dataFolderOfTheUserIsKept() {
        const QTemporaryDir alone;
        const QString path = alone.filePath("small.kxdb");
        QVERIFY(QFile::copy(folder_.filePath("small.kxdb"), path));
        answerNextDialog([this](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "Select data folder to SMALL");
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(folder_.path());
            dialog.accept();
        });
        openByKeyboard(path);
        QCOMPARE(messages_, QStringList());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), path);
        QVERIFY(TfrmProject::instance().allPathsFound());
        selectSex();
        QTest::keyClick(window_.get(), Qt::Key_F9);
        QCOMPARE(messages_, QStringList());
        QCOMPARE(frequencyRows().size(), 4);
    }

    void refusedDataFolderEndsTheLoad() {
        openSmall();
        const QTemporaryDir alone;
        QVERIFY(QFile::copy(folder_.filePath("small.kxdb"), alone.filePath("small.kxdb")));
        answerNextDialog([](QDialog& dialog) { dialog.reject(); });
        openByKeyboard(alone.filePath("small.kxdb"));
        QTRY_COMPARE(messages_, QStringList("Missing data location."));
        QCOMPARE(TfrmProject::instance().dictionaryPath(), folder_.filePath("small.kxdb"));
    }

    void passwordOpensAProtectedDatabase() {
        const QTemporaryDir other;
        writeSmallDatabase(other.path(), "s3cret");
        const QString path = other.filePath("small.kxdb");
        const auto answer = [this, &path](const QString& password) {
            messages_.clear();
            answerNextDialog([password](QDialog& dialog) {
                QTest::keyClicks(dialog.findChild<QLineEdit*>("password"), password);
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
            openByKeyboard(path);
        };
        answer("wrong");
        QTRY_COMPARE(messages_, QStringList("Wrong password."));
        answer("");
        QTRY_COMPARE(messages_, QStringList("Missing password."));
        answer("s3cret");
        QCOMPARE(messages_, QStringList());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), path);
        selectSex();
        QTest::keyClick(window_.get(), Qt::Key_F9);
        QCOMPARE(frequencyRows().size(), 4);
    }

    void changesAreSavedBeforeTheNextOneOpens() {
        const QTemporaryDir other;
        writeSmallDatabase(other.path());
        const QString path = other.filePath("small.kxdb");
        openByKeyboard(path);
        TKelDictionary& dictionary = *TfrmProject::instance().dictionary();
        dictionary.findEntity("PERSON")->setLabel("Inhabitant");
        dictionary.setDirty(true);
        answer_ = Choice::Yes;
        openByKeyboard(folder_.filePath("small.kxdb"));
        answer_ = Choice::No;
        QCOMPARE(messages_, QStringList("Do you want to save the changes in the dictionary?"));
        const auto saved = kel::readDictionary(path.toStdString(), nullptr, true);
        QCOMPARE(saved->findEntity("PERSON")->label(), "Inhabitant");
    }

    void languageChangesTheOpenWindow_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("column");
        QTest::newRow("Spanish") << "Process_es"
                                 << "&Archivo"
                                 << "Etiqueta";
        QTest::newRow("Portuguese") << "Process_pt"
                                    << "&Arquivo"
                                    << "Rótulo";
        QTest::newRow("French") << "Process_fr"
                                << "&Fichier"
                                << "Libellé";
        QTest::newRow("English") << "Process_en"
                                 << "&File"
                                 << "Label";
    }

    void languageChangesTheOpenWindow() {
        QFETCH(QString, language);
        QFETCH(QString, menu);
        QFETCH(QString, column);
        QVERIFY(KelSystem::instance().installTranslator(language));
        QCoreApplication::processEvents();
        QCOMPARE(window_->menuBar()->actions().first()->text(), menu);
        QCOMPARE(find<QTableView>("variableTable")
                     ->model()
                     ->headerData(1, Qt::Horizontal, Qt::DisplayRole)
                     .toString(),
                 column);
        QCOMPARE(window_->windowTitle(), "KelXProcess 67f53c7a");
    }

    // The last one: the engine ends with it.
    void closingAsksOnceAndEndsTheEngineOnce() {
        runSex();
        TfrmProject::instance().dictionary()->setDirty(true);
        answer_ = Choice::No;
        QVERIFY(window_->close());
        QCOMPARE(messages_, QStringList("Do you want to save the changes in the dictionary?"));
        QCOMPARE(destroyCalls(), 1);
        QVERIFY(!TfrmProject::instance().isOpen());
        window_.reset();
        QCOMPARE(destroyCalls(), 1);
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
