// SPDX-License-Identifier: GPL-3.0-or-later
// A program window in the real main window: whose keys are whose, and that closing asks for unsaved
// programs.
#include "app/Workbench.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/settings/KelSystem.h"
#include "editor/program/ProcessProgramSPC.h"
#include "editor/text/Editor.h"
#include "support/OwnSettings.h"

#include <QFile>
#include <QMdiSubWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

class TestProgramInWorkbench : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        takeOwnSettings();
        bench_ = std::make_unique<Workbench>();
    }
    void cleanupTestCase() { bench_.reset(); }
    void savesWhatHasTheKeys();
    void opensWhatHasTheKeys();
    void runsIntoTheResults();
    void asksForUnsavedProgramsAtTheEnd();

private:
    ProcessProgramSPC& newWindow() const;

    std::unique_ptr<Workbench> bench_;
};

ProcessProgramSPC& TestProgramInWorkbench::newWindow() const {
    auto* window = new ProcessProgramSPC(bench_->window(), KelSystem::instance());
    bench_->window().addWindow(window);
    bench_->activate();
    window->currentEditor()->setFocus();
    return *window;
}

void TestProgramInWorkbench::savesWhatHasTheKeys() {
    bench_->openSmall();
    bench_->window().on_dictIsDirtyReceived(true); // else the ribbon's Save is out of the way
    ProcessProgramSPC& window = newWindow();
    QTRY_VERIFY(window.currentEditor()->hasFocus());
    const QSignalSpy dictionarySaved(&bench_->window(), &MainWindow::saveClick);
    const QSignalSpy dictionarySavedAs(&bench_->window(), &MainWindow::saveAsClick);
    QTest::keyClicks(window.currentEditor(), "freq PERSON.SEX");
    const QString path = bench_->folder() + "/keys.spc";
    KelvoraFileDialog::answerNext(path);
    QTest::keyClick(window.currentEditor(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(window.hasFile(path));
    const QString other = bench_->folder() + "/keys2.spc";
    KelvoraFileDialog::answerNext(other);
    QTest::keyClick(window.currentEditor(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(QFile::exists(other));
    QCOMPARE(dictionarySaved.count(), 0);
    QCOMPARE(dictionarySavedAs.count(), 0);

    auto* tree = bench_->window().findChild<QTreeView*>();
    QVERIFY(tree != nullptr);
    tree->setFocus();
    QTRY_VERIFY(tree->hasFocus());
    QTest::keyClick(tree, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(dictionarySaved.count(), 1);
    window.parentWidget()->close();
}

void TestProgramInWorkbench::opensWhatHasTheKeys() {
    QFile file(bench_->folder() + "/opened.spc");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("freq PERSON.AGE") > 0);
    file.close();
    ProcessProgramSPC& window = newWindow();
    KelvoraFileDialog::answerNext(file.fileName());
    QTest::keyClick(window.currentEditor(), Qt::Key_O, Qt::ControlModifier);
    QVERIFY(window.hasFile(file.fileName()));
    window.parentWidget()->close();
}

void TestProgramInWorkbench::runsIntoTheResults() {
    bench_->openSmall();
    bench_->messages.clear();
    ProcessProgramSPC& window = newWindow();
    QTest::keyClicks(window.currentEditor(), "freq PERSON.SEX");
    QTest::keyClick(window.currentEditor(), Qt::Key_F9);
    QCOMPARE(bench_->messages, QStringList());
    QVERIFY2(!bench_->frequencyRows().isEmpty(), "no table");
    bench_->answer({Choice::No});
    window.parentWidget()->close();
}

void TestProgramInWorkbench::asksForUnsavedProgramsAtTheEnd() {
    ProcessProgramSPC& window = newWindow();
    QTest::keyClicks(window.currentEditor(), "freq");
    bench_->messages.clear();
    bench_->answer({Choice::Cancel});
    QVERIFY(!bench_->window().close());
    QCOMPARE(bench_->messages,
             QStringList("Do you want to save the changes to Untitled document?"));
    QCOMPARE(window.currentEditor()->toPlainText(), QString("freq"));
    bench_->answer({Choice::No});
    QVERIFY(bench_->window().close());
    bench_->endWindow();
}

QTEST_MAIN(TestProgramInWorkbench)
#include "tst_programinworkbench.moc"
