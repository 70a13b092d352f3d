// SPDX-License-Identifier: GPL-3.0-or-later
// Editing, saving and closing a dictionary through the docks of the real window.
#include "Workbench.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/settings/KelSystem.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "support/ModalAnswer.h"
#include "support/SmallDatabase.h"

#include <QApplication>
#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeView>

class TestDictionaryWindow : public QObject {
    Q_OBJECT

    const QString question_ = "Dictionary has been modified. Save modifications?";
    std::unique_ptr<Workbench> bench_;
    std::unique_ptr<QTemporaryDir> folder_;

    QString path() const { return folder_->filePath("small.kxdb"); }
    QTableView& table() const { return *bench_->find<QTableView>("variableTable"); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
        bench_->activate();
        QTest::keyClick(&bench_->window(), key, modifiers);
    }

    /// Types into a cell of the selected variable.
    void edit(int column, const QString& text) const {
        const QModelIndex cell = table().currentIndex().siblingAtColumn(column);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          table().visualRect(cell).center());
        QTest::keyClick(&table(), Qt::Key_F2);
        auto* line = table().viewport()->findChild<QLineEdit*>();
        QVERIFY(line != nullptr);
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_VERIFY(table().viewport()->findChild<QLineEdit*>() == nullptr);
    }

    void editSexLabel(const QString& text) const {
        bench_->select("PERSON", "SEX");
        edit(3, text);
    }

    std::string savedLabel(const QString& file, const char* variable) const {
        const auto dictionary = kel::readDictionary(file.toStdString(), nullptr, true);
        for (const TKelVariable* candidate : dictionary->findEntity("PERSON")->variables())
            if (candidate->name() == variable)
                return candidate->label();
        return "no such variable";
    }

    void closeByDock() const { bench_->window().dock("Dictionary")->close(); }

private slots:
    void initTestCase() { bench_ = std::make_unique<Workbench>(); }

    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        writeSmallDatabase(folder_->path());
        bench_->messages.clear();
        bench_->openByKeyboard(path());
        QVERIFY(TfrmProject::instance().isOpen());
    }

    void cleanup() {
        if (TfrmProject::instance().isOpen()) {
            bench_->answer({Choice::No});
            closeByDock();
        }
        QVERIFY(!TfrmProject::instance().isOpen());
    }

    void editedLabelIsSavedAndFoundAgain() {
        editSexLabel("Sex as declared");
        QVERIFY(TfrmProject::instance().dictionary()->isDirty());
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!TfrmProject::instance().dictionary()->isDirty());
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(savedLabel(path(), "SEX"), "Sex as declared");
        closeByDock();
        QCOMPARE(bench_->messages, QStringList());
        bench_->openByKeyboard(path());
        bench_->select("PERSON", "SEX");
        QCOMPARE(table().currentIndex().siblingAtColumn(3).data().toString(), "Sex as declared");
    }

    void saveFollowsTheMarkOfChanges() {
        // Nothing to save yet: the key does nothing, and the file stays as it is.
        const QDateTime before = QFileInfo(path()).lastModified();
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(QFileInfo(path()).lastModified(), before);
        editSexLabel("Changed");
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(savedLabel(path(), "SEX"), "Changed");
    }

    void closingAsksAboutChanges() {
        editSexLabel("Changed");
        bench_->answer({Choice::Cancel});
        closeByDock();
        QCOMPARE(bench_->messages, QStringList(question_));
        QVERIFY(TfrmProject::instance().isOpen());
        QVERIFY(bench_->window().dock("Dictionary")->isVisible());
        bench_->answer({Choice::No});
        closeByDock();
        QVERIFY(!TfrmProject::instance().isOpen());
        QVERIFY(savedLabel(path(), "SEX") != "Changed");
        QVERIFY(!bench_->window().dockExists("Variables"));
    }

    void changesAreSavedBeforeTheNextOneOpens() {
        editSexLabel("Kept");
        bench_->answer({Choice::Yes});
        bench_->openByKeyboard(bench_->smallPath());
        QCOMPARE(bench_->messages, QStringList(question_));
        QCOMPARE(TfrmProject::instance().dictionaryPath(), bench_->smallPath());
        QCOMPARE(savedLabel(path(), "SEX"), "Kept");
    }

    void failedSaveKeepsTheChanges() {
        editSexLabel("Changed");
        // The engine writes beside the file: a folder in the file's place stands in the way.
        QVERIFY(QFile::rename(path(), folder_->filePath("away.kxdb")));
        QVERIFY(QDir(folder_->path()).mkdir("small.kxdb"));
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(bench_->messages.size(), 1);
        QVERIFY(TfrmProject::instance().dictionary()->isDirty());
        bench_->messages.clear();
        bench_->answer({Choice::Yes});
        closeByDock(); // Yes cannot be done: the dictionary stays
        QCOMPARE(bench_->messages.size(), 2);
        QVERIFY(TfrmProject::instance().isOpen());
        QVERIFY(QDir(folder_->path()).rmdir("small.kxdb"));
        QVERIFY(QFile::rename(folder_->filePath("away.kxdb"), path()));
    }

    void savedAsOpensTheNewFile() {
        editSexLabel("In the copy");
        const QTemporaryDir other;
        const QString copy = other.filePath("copy.kxdb");
        KelvoraFileDialog::answerNext(copy);
        press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), copy);
        QVERIFY(TfrmProject::instance().allPathsFound());
        QVERIFY(!TfrmProject::instance().dictionary()->isDirty());
        QCOMPARE(savedLabel(copy, "SEX"), "In the copy");
        QVERIFY(savedLabel(path(), "SEX") != "In the copy");
        QCOMPARE(KelSystem::instance().recentDictionaries().value(0), copy);
        QVERIFY(bench_->window().dock("Dictionary")->toolTip().endsWith("copy.kxdb"));
        // The data were found from the new place too.
        bench_->select("PERSON", "SEX");
        bench_->frequency();
        QCOMPARE(bench_->frequencyRows().size(), 4);
        bench_->window().onHideResults();
    }

    void onlyLocalVariablesAreRenamed() {
        bench_->select("PERSON", "SEX");
        QTest::keyClick(&table(), Qt::Key_F2);
        QCOMPARE(bench_->messages.size(), 1);
        QVERIFY(bench_->messages[0].contains("not a local variable"));
        QVERIFY(table().viewport()->findChild<QLineEdit*>() == nullptr);
        QVERIFY(!TfrmProject::instance().dictionary()->isDirty());
    }

    void savedVariablesOfARunAppear() {
        bench_->select("PERSON", "SEX");
        bench_->window().runProgram("DEFINE PERSON.ADULT\n AS PERSON.AGE >= 18\n TYPE INTEGER\n"
                                    " SAVE \"PERSON_ADULT.kbf\"\nFREQ PERSON.ADULT\n");
        QCOMPARE(bench_->messages, QStringList());
        QVERIFY2(Workbench::click(&table(), "ADULT"), "the new variable is not shown");
        TKpEntity* root = TfrmProject::instance().root();
        const QList<TKpVariable*> all = DictionaryUtil().allVariables(root);
        const auto found = std::find_if(all.begin(), all.end(), [](const TKpVariable* variable) {
            return variable->name == "ADULT";
        });
        QVERIFY(found != all.end() && (*found)->local);
        bench_->window().onHideResults();
    }

    void missingFileIsLocated() {
        const QTemporaryDir other;
        closeByDock();
        QVERIFY(
            QFile::rename(folder_->filePath("PERSON_AGE.kbf"), other.filePath("PERSON_AGE.kbf")));
        bench_->openByKeyboard(path());
        QTRY_COMPARE(bench_->messages.size(), 1); // some paths could not be found
        bench_->messages.clear();
        answerNextDialog([&other](QDialog& dialog) {
            QVERIFY(dialog.windowTitle().startsWith("Locate Paths: 1 of 1"));
            KelvoraFileDialog::answerNext(other.filePath("PERSON_AGE.kbf"));
            for (const char* name : {"browse", "relocate"})
                dialog.findChild<QAbstractButton*>(name)->click();
            if (dialog.isVisible())
                dialog.reject();
        });
        bench_->window().locateFiles();
        QCOMPARE(bench_->messages, QStringList("No errors found in the database"));
        QVERIFY(TfrmProject::instance().allPathsFound());
        QVERIFY(TfrmProject::instance().dictionary()->isDirty());
        bench_->select("PERSON", "AGE");
        bench_->frequency();
        QVERIFY(bench_->frequencyRows().size() > 2);
        bench_->window().onHideResults();
    }

    void nothingIsBusyWhileTheUserIsAsked() {
        closeByDock();
        QVERIFY(QFile::remove(folder_->filePath("PERSON_AGE.kbf")));
        bench_->saidWhileBusy = 0;
        bench_->answer({Choice::No});
        bench_->openByKeyboard(folder_->filePath("small.dicx"));
        QTRY_COMPARE(bench_->messages.size(), 2); // the question, and what is missing in the end
        QVERIFY(bench_->messages[0].contains("PERSON_AGE.kbf"));
        QVERIFY(TfrmProject::instance().isOpen());
        QCOMPARE(bench_->saidWhileBusy, 0);
        QVERIFY(QApplication::overrideCursor() == nullptr);
        bench_->messages.clear();
    }

    void quickViewFollowsAnEdit() {
        bench_->select("PERSON", "SEX");
        QTest::keyClick(&table(), Qt::Key_F3);
        edit(3, "Seen at once");
        QStringList texts;
        for (const QLabel* label : bench_->window().dock("VarProperties")->findChildren<QLabel*>())
            texts += label->text();
        QVERIFY2(texts.contains("Seen at once"), qPrintable(texts.join('|')));
        bench_->window().onCloseInfoAppProperties();
    }

    void propertiesFollowTheSelectionAndMarkChanges() {
        bench_->select("PERSON", "SEX");
        QTest::keyClick(&table(), Qt::Key_F8);
        QDockWidget* properties = bench_->window().dock("Variable Properties");
        QVERIFY(properties != nullptr && properties->isVisible());
        auto* label = properties->findChild<QLineEdit*>("leVarLabel");
        label->setFocus();
        label->selectAll();
        QTest::keyClicks(label, "From the dock");
        QTest::mouseClick(properties->findChild<QPushButton*>("btnSave"), Qt::LeftButton);
        bench_->window().dock("Variables")->raise();
        QCOMPARE(table().currentIndex().siblingAtColumn(3).data().toString(), "From the dock");
        QVERIFY(TfrmProject::instance().dictionary()->isDirty());
    }
};

QTEST_MAIN(TestDictionaryWindow)
#include "tst_dictionarywindow.moc"
