// SPDX-License-Identifier: GPL-3.0-or-later
// Compiling and running from the program window, by keys: whole programs and blocks, what is
// refused before the engine, and the way from an error to its line.
#include "ProgramFixture.h"

#include "editor/text/Editor.h"
#include "sample/sample.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenu>
#include <QSplitter>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

class TestProgramRuns : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { fixture_ = std::make_unique<ProgramFixture>(); }
    void cleanupTestCase() { fixture_.reset(); }
    void init();
    void cleanup() { fixture_->closeWindows(); }

    void runsWhatIsTyped();
    void tellsAnEmptyProgram_data();
    void tellsAnEmptyProgram();
    void compilesWithoutResults();
    void leadsFromAnErrorToItsLine();
    void goesThroughTheErrorsByKeys();
    void runsABlockAlone();
    void countsTheLinesOfABlockInTheDocument();
    void refusesAFolderThatIsMissing();
    void replacesADeprecatedClauseForTheEngineAlone();
    void showsAHiddenListForErrors();
    void copiesAndClearsTheList();
    void keepsCopiesBeforeTheEngineBegins();
    void needsADictionary();
    void canBeCancelledAndDoesNothingElseMeanwhile();

private:
    void setText(const QString& text) const { window_->currentEditor()->setPlainText(text); }
    void select(int firstLine, int lastLine) const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(window_->currentEditor(), key, modifiers);
    }
    QStringList rows() const { return ProgramFixture::rows(*window_); }
    /// F5 stands on two commands and does neither.
    void compile() const { ProgramFixture::action(*window_, "actionCompile")->trigger(); }

    std::unique_ptr<ProgramFixture> fixture_;
    ProcessProgramSPC* window_ = nullptr;
};

void TestProgramRuns::init() {
    fixture_->messages.clear();
    fixture_->shell.programs.clear();
    fixture_->shell.statuses.clear();
    window_ = &fixture_->show<ProcessProgramSPC>();
}

void TestProgramRuns::select(int firstLine, int lastLine) const {
    const QTextDocument& text = *window_->currentEditor()->document();
    QTextCursor cursor(text.findBlockByNumber(firstLine));
    const QTextBlock last = text.findBlockByNumber(lastLine);
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    window_->currentEditor()->setTextCursor(cursor);
}

void TestProgramRuns::runsWhatIsTyped() {
    ProgramFixture::type(*window_->currentEditor(), "freq PERSON.SEX");
    press(Qt::Key_Escape);
    press(Qt::Key_F9);
    QCOMPARE(fixture_->shell.programs, QStringList("freq PERSON.SEX"));
    QCOMPARE(fixture_->shell.outputs, 1);
    QCOMPARE(rows(), QStringList());
    QVERIFY(fixture_->shell.statuses.contains("Table Created"));
    QVERIFY(ProgramFixture::action(*window_, "actionRun")->isEnabled());
}

void TestProgramRuns::tellsAnEmptyProgram_data() {
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("compile") << QByteArray("actionCompile");
    QTest::newRow("run") << QByteArray("actionRun");
}

void TestProgramRuns::tellsAnEmptyProgram() {
    QFETCH(QByteArray, command);
    ProgramFixture::action(*window_, command.constData())->trigger();
    QCOMPARE(fixture_->messages,
             QStringList("Please <b>open </b>a program file or <b>write</b> a command "));
    QCOMPARE(fixture_->shell.statuses, QStringList());
}

void TestProgramRuns::compilesWithoutResults() {
    setText("freq PERSON.SEX");
    compile();
    QCOMPARE(rows(), QStringList("Compilation successful, no errors or warnings found"));
    QCOMPARE(fixture_->shell.programs, QStringList());
    select(0, 0);
    compile();
    QCOMPARE(rows(), QStringList("Compilation by block successful, no errors or warnings found"));
}

void TestProgramRuns::leadsFromAnErrorToItsLine() {
    setText("freq PERSON.SEX\n\nfreq PERSON.AGEX\nfreq PERSON.NONE\n");
    press(Qt::Key_F9);
    QCOMPARE(rows().size(), 3);
    QCOMPARE(rows().first(), QString("2 errors found"));
    QVERIFY2(rows()[1].startsWith("3: "), qPrintable(rows()[1]));
    QVERIFY2(rows()[2].startsWith("4: "), qPrintable(rows()[2]));
    QCOMPARE(window_->currentEditor()->highlightedLine(), 0);

    ProgramFixture::clickRow(*window_, 2);
    QCOMPARE(window_->currentEditor()->highlightedLine(), 4);
    QCOMPARE(window_->currentEditor()->currentLine(), 4);
    QTRY_VERIFY(window_->currentEditor()->hasFocus());
    ProgramFixture::clickRow(*window_, 0);
    QCOMPARE(window_->currentEditor()->highlightedLine(), 0);
    QCOMPARE(fixture_->messages, QStringList());

    // A row that says something else is told.
    ProgramFixture::errors(*window_).addItem("no place at all");
    ProgramFixture::clickRow(*window_, 3);
    QCOMPARE(fixture_->messages.size(), 1);
    QVERIFY(!window_->currentEditor()->document()->isModified());
}

void TestProgramRuns::goesThroughTheErrorsByKeys() {
    setText("freq PERSON.AGEX\nfreq PERSON.NONE\n");
    press(Qt::Key_F9);
    QListWidget& list = ProgramFixture::errors(*window_);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(window_->currentEditor()->highlightedLine(), 1);
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(window_->currentEditor()->highlightedLine(), 2);
    QVERIFY(list.hasFocus());
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Return);
    QCOMPARE(window_->currentEditor()->highlightedLine(), 1);
    QVERIFY(window_->currentEditor()->hasFocus());

    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Escape);
    QVERIFY(window_->currentEditor()->hasFocus());
}

void TestProgramRuns::runsABlockAlone() {
    setText("freq PERSON.NONE\nfreq PERSON.SEX\nfreq HOUSEHOLD.ROOMS\nfreq PERSON.NONE");
    select(1, 2);
    press(Qt::Key_F9);
    QCOMPARE(rows(), QStringList());
    QCOMPARE(fixture_->shell.programs, QStringList("freq PERSON.SEX\nfreq HOUSEHOLD.ROOMS"));
    QCOMPARE(fixture_->shell.outputs, 2);
}

void TestProgramRuns::countsTheLinesOfABlockInTheDocument() {
    setText("// one\n// two\nfreq PERSON.SEX\nfreq PERSON.NONE\nfreq PERSON.SEX");
    select(2, 3);
    compile();
    QCOMPARE(rows().size(), 2);
    QVERIFY2(rows()[1].startsWith("4: "), qPrintable(rows()[1]));
    ProgramFixture::clickRow(*window_, 1);
    QCOMPARE(window_->currentEditor()->highlightedLine(), 4);

    select(2, 3);
    emit window_->currentEditor()->runByBlock();
    QVERIFY2(rows().value(1).startsWith("4: "), qPrintable(rows().join('|')));
}

void TestProgramRuns::refusesAFolderThatIsMissing() {
    const QString clause = "freq PERSON.SEX outfile csv \"%1/no/such/a.csv\"";
    const QString program = clause.arg(fixture_->folder());
    setText(program);
    press(Qt::Key_F9);
    QCOMPARE(rows(), QStringList("Error: The directory " + fixture_->folder() +
                                 "/no/such used in the outfile statement doesn't exist"));
    QCOMPARE(fixture_->shell.statuses, QStringList());
    ProgramFixture::clickRow(*window_, 0);
    QCOMPARE(fixture_->messages, QStringList());

    setText("// " + program + "\nfreq PERSON.SEX");
    press(Qt::Key_F9);
    QCOMPARE(rows(), QStringList());
    QCOMPARE(fixture_->shell.programs.size(), 1);
}

void TestProgramRuns::replacesADeprecatedClauseForTheEngineAlone() {
    const QString program = "// here is no OUTFILE JSON at all\nfreq PERSON.SEX";
    setText(program);
    press(Qt::Key_F9);
    QCOMPARE(rows(), QStringList("SUGGESTION: outfile json DEPRECATED, USE: save"));
    QCOMPARE(fixture_->shell.programs, QStringList(program));
    QCOMPARE(window_->currentEditor()->toPlainText(), program);
    ProgramFixture::clickRow(*window_, 0);
    QCOMPARE(fixture_->messages, QStringList());

    setText("// OUTFILE JSON\nfreq PERSON.NONE");
    press(Qt::Key_F9);
    QCOMPARE(rows().size(), 3);
    QVERIFY(rows().last().startsWith("SUGGESTION"));
    ProgramFixture::clickRow(*window_, 2);
    QCOMPARE(fixture_->messages, QStringList());
}

void TestProgramRuns::showsAHiddenListForErrors() {
    ProgramFixture::action(*window_, "actionSplitter")->trigger();
    QVERIFY(!ProgramFixture::errors(*window_).isVisible());
    setText("freq PERSON.SEX");
    press(Qt::Key_F9);
    QVERIFY(!ProgramFixture::errors(*window_).isVisible());
    setText("freq PERSON.NONE");
    press(Qt::Key_F9);
    QVERIFY(ProgramFixture::errors(*window_).isVisible());
    QVERIFY(ProgramFixture::action(*window_, "actionSplitter")->isChecked());
}

void TestProgramRuns::copiesAndClearsTheList() {
    setText("freq PERSON.NONE");
    press(Qt::Key_F9);
    QListWidget& list = ProgramFixture::errors(*window_);
    list.setFocus();
    list.setCurrentRow(1);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), rows().join('\n'));
    QVERIFY(rows().size() > 1);

    emit list.customContextMenuRequested(QPoint(2, 2));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(rows(), QStringList());
}

/// It may take the whole program with it.
void TestProgramRuns::keepsCopiesBeforeTheEngineBegins() {
    const auto copies = [](const QString& text) {
        return ProgramFixture::recoveryTexts().filter(text).size();
    };
    window_->currentEditor()->insertPlainText("freq PERSON.SEX // in another tab");
    press(Qt::Key_N, Qt::ControlModifier);
    window_->currentEditor()->insertPlainText("freq PERSON.SEX // that runs");
    int before = 0;
    connect(ProgramFixture::action(*window_, "actionRun"), &QAction::enabledChanged, this,
            [&](bool enabled) {
                if (!enabled)
                    before = int(copies("in another tab") + copies("that runs"));
            });
    press(Qt::Key_F9);
    QCOMPARE(fixture_->shell.programs, QStringList("freq PERSON.SEX // that runs"));
    QCOMPARE(before, 2);
}

void TestProgramRuns::needsADictionary() {
    fixture_->closeDictionary();
    setText("freq PERSON.SEX");
    compile();
    press(Qt::Key_F9);
    QCOMPARE(fixture_->messages, QStringList(2, "The <b>Select at least one dictionary</b> "));
    QCOMPARE(rows(), QStringList());
    fixture_->openDictionary();
}

void TestProgramRuns::canBeCancelledAndDoesNothingElseMeanwhile() {
    kelx::tools::SampleRequest request;
    request.folder = fixture_->folder().toStdString();
    request.persons = 300'000;
    request.overwrite = true;
    kelx::tools::writeSample(request);
    fixture_->openDictionary("sample.kxdb");
    setText(QString("freq PERSON.INCOME by PERSON.AGE by PERSON.EDUCATION\n").repeated(200));
    QElapsedTimer sinceCancel;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] {
        QWidget* progress = QApplication::activeModalWidget();
        if (progress == nullptr || !progress->isActiveWindow() || sinceCancel.isValid())
            return;
        QVERIFY(!ProgramFixture::action(*window_, "actionRun")->isEnabled());
        QVERIFY(!window_->parentWidget()->close());
        window_->on_actionRun_triggered();
        sinceCancel.start();
        QTest::keyClick(progress, Qt::Key_Escape);
    });
    user.start(10);
    press(Qt::Key_F9);
    QVERIFY2(sinceCancel.isValid(), "the run ended before its progress showed");
    QVERIFY2(sinceCancel.elapsed() < 1000, qPrintable(QString::number(sinceCancel.elapsed())));
    QCOMPARE(fixture_->shell.programs, QStringList());
    QVERIFY(fixture_->shell.statuses.contains("Execution Canceled"));
    QCOMPARE(rows(), QStringList());
    QVERIFY(window_->isVisible());
    QVERIFY(ProgramFixture::action(*window_, "actionRun")->isEnabled());
    fixture_->openDictionary();
}

QTEST_MAIN(TestProgramRuns)
#include "tst_programruns.moc"
