// SPDX-License-Identifier: GPL-3.0-or-later
// The window for EXECUTE commands: which program runs, faults and their lines, blocks.
#include "ProgramFixture.h"

#include "editor/program/ExecuteProgramSPC.h"
#include "editor/text/Editor.h"

#include <QAction>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QTest>

class TestExecuteWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { fixture_.reset(); }
    void init();
    void cleanup() { fixture_->closeWindows(); }

    void tellsWhichProgramRuns();
    void tellsAnEmptyList();
    void leadsToTheCommandThatFailed();
    void compilesItsCommands();
    void runsABlockAlone();
    void refusesAFolderThatIsMissing();
    void isKnownToItsEditors();

private:
    QStringList rows() const { return ProgramFixture::rows(*window_); }
    void run(const QString& text) const {
        window_->currentEditor()->setPlainText(text);
        QTest::keyClick(window_->currentEditor(), Qt::Key_F9);
    }

    std::unique_ptr<ProgramFixture> fixture_;
    ExecuteProgramSPC* window_ = nullptr;
};

void TestExecuteWindow::initTestCase() {
    fixture_ = std::make_unique<ProgramFixture>();
    fixture_->write("one.spc", "freq PERSON.SEX");
    fixture_->write("two.spc", "freq HOUSEHOLD.ROOMS");
    fixture_->write("bad.spc", "\nfreq PERSON.NONE");
}

void TestExecuteWindow::init() {
    fixture_->messages.clear();
    fixture_->shell.programs.clear();
    window_ = &fixture_->show<ExecuteProgramSPC>();
}

void TestExecuteWindow::tellsWhichProgramRuns() {
    run("execute \"one.spc\"\nexecute \"two.spc\"\nexecute \"one.spc\"\n");
    QCOMPARE(rows().size(), 3);
    for (int program = 0; program < 3; ++program) {
        QVERIFY2(rows()[program].startsWith("Current Program: "), qPrintable(rows()[program]));
        QVERIFY2(rows()[program].endsWith(QString(" - %1/3").arg(program + 1)),
                 qPrintable(rows()[program]));
    }
    // None of them names a place.
    ProgramFixture::clickRow(*window_, 1);
    QCOMPARE(fixture_->messages, QStringList());
    QCOMPARE(fixture_->shell.programs, QStringList());
}

void TestExecuteWindow::tellsAnEmptyList() {
    run(QString());
    QCOMPARE(fixture_->messages,
             QStringList("Please <b>open </b>a program file or <b>write</b> a command "));
}

void TestExecuteWindow::leadsToTheCommandThatFailed() {
    run("execute \"one.spc\"\n\nexecute \"bad.spc\"\n");
    const QString fault = rows().isEmpty() ? QString() : rows().last();
    QVERIFY2(fault.startsWith("3: ") && fault.contains("bad.spc:2: "),
             qPrintable(rows().join('|')));
    ProgramFixture::clickRow(*window_, static_cast<int>(rows().size()) - 1);
    QCOMPARE(window_->currentEditor()->highlightedLine(), 3);
}

void TestExecuteWindow::compilesItsCommands() {
    window_->currentEditor()->setPlainText("execute \"one.spc\"");
    window_->on_actionCompile_triggered();
    QCOMPARE(rows(), QStringList("Compilation successful, no errors or warnings found"));
    window_->currentEditor()->setPlainText("execute \"one.spc\"\nexecute \"none.spc\"");
    window_->on_actionCompile_triggered();
    QVERIFY2(rows().value(1).startsWith("2: "), qPrintable(rows().join('|')));
}

void TestExecuteWindow::runsABlockAlone() {
    window_->currentEditor()->setPlainText(
        "execute \"bad.spc\"\nexecute \"one.spc\"\nexecute \"none.spc\"");
    const auto select = [this](int first, int last) {
        const QTextDocument& text = *window_->currentEditor()->document();
        QTextCursor cursor(text.findBlockByNumber(first));
        cursor.setPosition(text.findBlockByNumber(last).position() +
                               text.findBlockByNumber(last).length() - 1,
                           QTextCursor::KeepAnchor);
        window_->currentEditor()->setTextCursor(cursor);
    };
    select(1, 1);
    QTest::keyClick(window_->currentEditor(), Qt::Key_F9);
    QCOMPARE(rows().size(), 1);
    QVERIFY(rows()[0].endsWith(" - 1/1"));

    select(1, 2);
    window_->currentEditor()->runByBlock();
    QVERIFY2(rows().join('|').contains("3: "), qPrintable(rows().join('|')));
}

void TestExecuteWindow::refusesAFolderThatIsMissing() {
    run("execute \"one.spc\"\noutfile csv \"" + fixture_->folder() + "/no/a.csv\"");
    QCOMPARE(rows().size(), 1);
    QVERIFY2(rows()[0].startsWith("Error: The directory "), qPrintable(rows()[0]));
}

void TestExecuteWindow::isKnownToItsEditors() {
    QVERIFY(window_->isExecuteWindow());
    QVERIFY(window_->currentEditor()->executeMode());
    QTest::keyClick(window_->currentEditor(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(window_->currentEditor()->executeMode());
    QVERIFY(!fixture_->show<ProcessProgramSPC>().currentEditor()->executeMode());
}

QTEST_MAIN(TestExecuteWindow)
#include "tst_executewindow.moc"
