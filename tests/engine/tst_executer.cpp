// SPDX-License-Identifier: GPL-3.0-or-later
// What a compilation and a run show, keep and leave behind, on the database of
// support/SmallDatabase.h.
#include "ExecuterFixture.h"
#include "engine/execution/ProcessExecuter.h"
#include "engine/execution/ProgramListRun.h"
#include "engine/execution/RunGuard.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "support/SmallDatabase.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

namespace {

const QString warned = "RUNDEF r FILTER PERSON.AGE > 3\nCOUNT HOUSEHOLD";
const QString faulty = "FREQ PERSON.SEX\nFREQ PERSON.SEXX\nFREQ PERSON.AGEX";

class Capitals : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return QString::fromUtf8(text).toUpper();
    }
};

} // namespace

class TestExecuter : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    std::unique_ptr<ExecuterFixture> fixture_;
    std::unique_ptr<ProcessExecuter> executer_;
    std::unique_ptr<ProgramListRun> lists_;

    RecordingShell& shell() const { return fixture_->shell; }
    void write(const QString& name, const QByteArray& text) const {
        QFile file(folder_.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// Runs with the list and gives the messages.
    QStringList run(const QString& program) const {
        const auto listener = ExecuterFixture::listener();
        executer_->runText(program, listener, &fixture_->errors);
        return executer_->compileMessages(listener, false, false);
    }
    QStringList runList(const QString& program) const {
        const auto listener = ExecuterFixture::listener();
        lists_->runExecuteText(program, listener, &fixture_->errors);
        return executer_->compileMessages(listener, false, false);
    }
    /// Neither seen nor about to be: what shows a window of this kind by itself is a timer of its.
    void verifyAtRest(const char* name) const {
        const QProgressDialog* dialog = shell().progress(name);
        QVERIFY(dialog != nullptr);
        QVERIFY(!dialog->isVisible());
        QVERIFY(!dialog->autoClose());
        QVERIFY(!dialog->autoReset());
        QCOMPARE(dialog->minimumDuration(), 400);
        const auto timers = dialog->findChildren<QTimer*>();
        QVERIFY(!timers.isEmpty());
        for (const QTimer* timer : timers)
            QVERIFY(!timer->isActive());
    }

private slots:
    void initTestCase() {
        writeSmallDatabase(folder_.path());
        write("one.spc", "FREQ PERSON.SEX OUTFILE CSV \"one.csv\"");
        write("two.spc", "TABLE {name} AS COUNT {what}");
        write("bad.spc", "COUNT PERSON\n\nFREQ PERSON.SEXX");
        write("saving.spc", "DEFINE PERSON.OLD AS PERSON.AGE > 25 SAVE \"old.kbf\"");
        QVERIFY(QDir(folder_.path()).mkdir("sub"));
        write("sub/one.spc", "COUNT PERSON OUTFILE \"a.csv\"");
    }

    void init() {
        fixture_ = std::make_unique<ExecuterFixture>();
        ExecuterFixture::open(folder_.filePath("small.kxdb"));
        executer_ = std::make_unique<ProcessExecuter>(shell(), "Process_en");
        lists_ = std::make_unique<ProgramListRun>(shell());
    }

    void cleanup() {
        lists_.reset();
        executer_.reset();
        fixture_.reset();
    }

    void runShowsItsOutputsAndSaysSo() {
        std::size_t outputs = 0;
        shell().onResults = [&] {
            outputs = TfrmProject::instance().outputs().size();
            QVERIFY(!RunGuard::isRunning());
        };
        executer_->runText("FREQ PERSON.SEX, PERSON.AGE", ExecuterFixture::listener(),
                           &fixture_->errors, "as typed");
        QCOMPARE(outputs, std::size_t(2));
        QCOMPARE(shell().shown, QStringList("as typed"));
        QCOMPARE(fixture_->rows(), QStringList());
        QCOMPARE(shell().statuses, QStringList({"Processing...", "Execution Finished",
                                                "Creating Table...", "Table Created"}));
    }

    void runWithoutOutputsCreatesNoTable() {
        run("DEFINE PERSON.GROWN AS PERSON.AGE > 17 SAVE \"grown.kbf\"");
        QCOMPARE(shell().statuses, QStringList({"Processing...", "Execution Finished"}));
        // It has saved a variable, which the text tells the one who shows results.
        QCOMPARE(shell().shown.size(), 1);
    }

    void warningsAloneAreHeaded() {
        const QStringList lines = run(warned);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0], "compiler syntax error");
        QVERIFY2(lines[1].startsWith("1: KEL_W_FILTER_BELOW "), qPrintable(lines[1]));
        QCOMPARE(shell().statuses.last(), "Table Created");
    }

    void errorsFollowTheFaultInTheFirstRow() {
        fixture_->errors.addItem("of before");
        const QStringList lines = run(faulty);
        QCOMPARE(fixture_->rows(), QStringList({"2 errors found", "of before"}));
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith("2: KEL_E_UNKNOWN_VARIABLE "), qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith("3: KEL_E_"), qPrintable(lines[1]));
        QCOMPARE(shell().statuses, QStringList({"Processing...", "Execution Failed"}));
        QCOMPARE(fixture_->messages, QStringList());
        QVERIFY(!RunGuard::isRunning());
    }

    void failedRunKeepsTheOutputsOfTheOneBefore() {
        run("COUNT PERSON");
        TfrmProject& project = TfrmProject::instance();
        const auto session = project.session();
        const std::weak_ptr<TKelSession> maker = session;
        run(faulty);
        run(faulty);
        QVERIFY(project.session() != session);
        QCOMPARE(project.outputs().size(), std::size_t(1));
        QVERIFY(project.outputs()[0]->asJson().find("\"COUNT\"") != std::string::npos);
        run("FREQ PERSON.SEX");
        QVERIFY(project.outputs()[0]->asJson().find("FREQUENCY") != std::string::npos);
        QCOMPARE(maker.use_count(), 1L); // this test's own
    }

    void listenerAndCallbackEndWithTheRun() {
        const auto listener = ExecuterFixture::listener();
        executer_->runText("COUNT PERSON", listener, &fixture_->errors);
        const std::size_t uses = static_cast<std::size_t>(listener.use_count());
        QCOMPARE(uses, std::size_t(1));
        const auto session = TfrmProject::instance().session();
        executer_.reset();
        // Would call both, had they stayed.
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, session->compile("FREQ PERSON.SEXX"));
        session->executeText("COUNT PERSON", nullptr);
        QVERIFY(!listener->hasErrors());
    }

    void compilationAppendsItsFaultAndKeepsTheLastRun() {
        run("COUNT PERSON");
        const auto session = TfrmProject::instance().session();
        fixture_->errors.addItem("of before");
        const auto listener = ExecuterFixture::listener();
        executer_->compile(faulty, listener, &fixture_->errors);
        QCOMPARE(fixture_->rows(), QStringList({"of before", "2 errors found"}));
        QCOMPARE(executer_->compileMessages(listener, false, true).size(), 2);
        QCOMPARE(TfrmProject::instance().session(), session);
        QCOMPARE(shell().shown.size(), 1);
    }

    void goodCompilationIsReported() {
        const auto listener = ExecuterFixture::listener();
        executer_->compile("FREQ PERSON.SEX", listener, &fixture_->errors);
        shell().statuses.clear();
        QCOMPARE(executer_->compileMessages(listener, false, false), QStringList());
        QCOMPARE(executer_->compileBlockMessages(listener, 4, true),
                 QStringList("Compilation by block successful, no errors or warnings found"));
        QCOMPARE(shell().statuses, QStringList());
        const QString text = "Compilation successful, no errors or warnings found";
        QCOMPARE(executer_->compileMessages(listener, false, true), QStringList(text));
        QCOMPARE(shell().statuses, QStringList(text));
    }

    void linesOfABlockAreThoseOfItsDocument() {
        const auto listener = ExecuterFixture::listener();
        executer_->compile("FREQ PERSON.SEX\n\nFREQ PERSON.SEXX", listener, &fixture_->errors);
        const QStringList lines = executer_->compileBlockMessages(listener, 10, true);
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines[0].startsWith("13: KEL_E_UNKNOWN_VARIABLE "), qPrintable(lines[0]));
    }

    void nothingRunsWithoutADictionary() {
        TfrmProject::instance().close();
        const QStringList box("The <b>Select at least one dictionary</b> ");
        run("COUNT PERSON");
        QCOMPARE(fixture_->messages, box);
        QCOMPARE(shell().statuses, QStringList("Execution Canceled"));
        QVERIFY(!executer_->compile("COUNT PERSON"));
        executer_->compile("COUNT PERSON", ExecuterFixture::listener(), &fixture_->errors);
        lists_->runExecuteText("EXECUTE \"two.spc\"", ExecuterFixture::listener(),
                               &fixture_->errors);
        QCOMPARE(fixture_->messages, box + box + box + box);
        QCOMPARE(shell().statuses.size(), 2);
        QCOMPARE(fixture_->rows(), QStringList());
    }

    void emptyTextsAreTold() {
        QVERIFY(!executer_->compile(""));
        executer_->execute("");
        QCOMPARE(fixture_->messages,
                 QStringList({"Program code is empty", "The executing program is empty"}));
        fixture_->messages.clear();
        QVERIFY(executer_->compile("  \n")); // only blanks: a session can be made
        executer_->execute(" ");
        QCOMPARE(fixture_->messages, QStringList());
    }

    void executeTellsFaultAndMessagesInBoxes() {
        executer_->execute(faulty);
        QCOMPARE(fixture_->messages.size(), 2);
        QCOMPARE(fixture_->messages[0], "2 errors found");
        const QStringList lines = fixture_->messages[1].split("\\n");
        QCOMPARE(lines.size(), 2);
        QVERIFY(lines[1].startsWith("3: KEL_E_"));
        QCOMPARE(shell().shown, QStringList());
    }

    // Engine texts with quotes, umlauts and the like arrive in the local encoding.
    void namesOutsideAsciiComeThrough() {
        const QStringList lines = run(QString::fromUtf8("FREQ PERSON.GRÖSSE\nFREQ \"Ж\""));
        QVERIFY2(lines.join('\n').contains(QString::fromUtf8("GRÖSSE")),
                 qPrintable(lines.join('\n')));
    }

    void progressWindowNeverShowsForShortOrFailedRuns() {
        run("COUNT PERSON");
        verifyAtRest("runProgress");
        run(faulty);
        verifyAtRest("runProgress");
        runList("EXECUTE \"bad.spc\"");
        verifyAtRest("programListProgress");
        ProcessExecuter other(shell(), "Process_en");
        other.runText("COUNT PERSON", ExecuterFixture::listener());
        QCOMPARE(shell().window()->findChildren<QProgressDialog*>("runProgress").size(), 1);
    }

    void progressWindowFollowsTheLanguage() {
        run("COUNT PERSON");
        Capitals capitals;
        QCoreApplication::installTranslator(&capitals);
        run("COUNT PERSON");
        QCOMPARE(shell().progress()->findChild<QAbstractButton*>()->text(), "CANCEL");
        QCoreApplication::removeTranslator(&capitals);
    }

    void programsOfAListAreNamedInTurn() {
        const QStringList lines = runList("EXECUTE \"one.spc\"\n"
                                          "EXECUTE \"two.spc\" name = {T}, what = {PERSON}\n"
                                          "EXECUTE \"two.spc\" name = {U}, what = {HOUSEHOLD}");
        QCOMPARE(lines, QStringList());
        QCOMPARE(fixture_->rows(),
                 QStringList({"Current Program: one.spc - 1/3", "Current Program: two.spc - 2/3",
                              "Current Program: two.spc - 3/3"}));
        QCOMPARE(shell().statuses, QStringList({"Processing...", "Execution Finished",
                                                "Creating Table...", "Table Created"}));
        QCOMPARE(shell().shown, QStringList());
        QVERIFY(TfrmProject::instance().execute() != nullptr);
        fixture_->errors.clear();
        runList("EXECUTE \"one.spc\"");
        runList("EXECUTE \"one.spc\"");
        QCOMPARE(fixture_->errors.count(), 2); // each run names its own
    }

    void filesOfAListAreWrittenAndFaultsListed() {
        shell().writeFaults = {"one.csv: the disk is full"};
        QCOMPARE(runList("EXECUTE \"one.spc\" EXECUTE \"sub/one.spc\" "
                         "EXECUTE \"two.spc\" name = {T}, what = {PERSON}"),
                 QStringList());
        QCOMPARE(fixture_->rows().last(), "one.csv: the disk is full");
        QCOMPARE(shell().direct.size(), std::size_t(2));
        // Each beside its own program.
        QCOMPARE(QString::fromStdString(shell().direct[0]->options().outputFile),
                 folder_.filePath("one.csv"));
        QCOMPARE(QString::fromStdString(shell().direct[1]->options().outputFile),
                 folder_.filePath("sub/a.csv"));
    }

    void faultsOfCalledProgramsStandAtTheCall() {
        const QStringList lines = runList("EXECUTE \"one.spc\"\n\nEXECUTE \"bad.spc\"");
        QCOMPARE(fixture_->rows(), QStringList("1 error found"));
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines[0].startsWith("3: KEL_E_UNKNOWN_VARIABLE bad.spc:3: "),
                 qPrintable(lines[0]));
        QCOMPARE(shell().statuses.last(), "Execution Failed");
        QCOMPARE(shell().reloads, 0);
    }

    void savedVariablesOfAListAreShown() {
        runList("EXECUTE \"saving.spc\"");
        QCOMPARE(fixture_->rows(), QStringList("Current Program: saving.spc - 1/1"));
        QCOMPARE(shell().reloads, 1);
    }
};

QTEST_MAIN(TestExecuter)
#include "tst_executer.moc"
