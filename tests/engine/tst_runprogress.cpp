// SPDX-License-Identifier: GPL-3.0-or-later
// The progress window while programs run for seconds, on a sample of two million persons.
#include "ExecuterFixture.h"
#include "engine/TKelSpcErrorsListenerImpl.h"
#include "engine/execution/ProcessExecuter.h"
#include "engine/execution/ProgramListRun.h"
#include "engine/execution/RunGuard.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "sample/sample.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <atomic>
#include <thread>

namespace {

/// The aim, which instrumented code cannot reach.
constexpr qint64 soon = SANITIZED ? 1500 : 200; ///< milliseconds
/// Where there is one try only, and other programs may hold the processors.
constexpr qint64 inOneTry = 5 * soon; ///< milliseconds

/// Of many commands, numbered.
QString repeated(int times, const QString& command) {
    QString program;
    for (int i = 0; i < times; ++i)
        program += command.contains("%1") ? command.arg(i) : command;
    return program;
}

/// What a user does while a program runs, in the events that the run lets through.
class Watcher : public QObject {
public:
    explicit Watcher(RecordingShell& shell, const char* window = "runProgress")
        : shell_(shell), window_(window) {
        connect(&timer_, &QTimer::timeout, this, &Watcher::look);
        sinceLook_.start();
        sinceBegin_.start();
        timer_.start(5);
    }
    ~Watcher() override { join(); }

    /// Called once, from the events, when the window has been seen for a while.
    std::function<void(QProgressDialog&)> act;
    bool running() const { return running_; }

    /// Another thread does this as soon as act was called: milliseconds later the press comes.
    void pressSoon(QAbstractButton* button, int milliseconds) {
        const std::function<void()> press = [button] { QTest::mouseClick(button, Qt::LeftButton); };
        hand_ = std::thread([this, button, milliseconds, press] {
            std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
            sincePress_.start();
            pressed_ = true;
            QMetaObject::invokeMethod(button, press, Qt::QueuedConnection);
        });
    }
    /// From the press until now; -1 where there was none.
    qint64 sincePress() {
        const qint64 passed = pressed_ ? sincePress_.elapsed() : -1;
        join();
        return passed;
    }

    qint64 longestSilence = 0; ///< between two events of a timer of 5 ms, in milliseconds
    qint64 firstSeen = -1;     ///< when the window showed
    QStringList labels;
    QList<int> values;

private:
    void join() {
        if (hand_.joinable())
            hand_.join();
    }
    void look() {
        running_ = RunGuard::isRunning();
        if (!running_)
            return;
        if (!labels.isEmpty())
            longestSilence = std::max(longestSilence, sinceLook_.elapsed());
        sinceLook_.start();
        QProgressDialog* dialog = shell_.progress(window_);
        if (firstSeen >= 0 && !dialog->isVisible())
            return; // the run is over but for the last events
        labels += dialog->labelText();
        values += dialog->value();
        if (!dialog->isVisible())
            return;
        if (firstSeen < 0)
            firstSeen = sinceBegin_.elapsed();
        if (const auto once =
                sinceBegin_.elapsed() > firstSeen + 150 ? std::exchange(act, nullptr) : nullptr)
            once(*dialog);
    }

    RecordingShell& shell_;
    const char* window_;
    QTimer timer_;
    QElapsedTimer sinceLook_, sinceBegin_, sincePress_;
    std::thread hand_;
    std::atomic<bool> pressed_ = false;
    bool running_ = false;
};

QAbstractButton* cancelButton(const QProgressDialog& dialog) {
    return dialog.findChild<QAbstractButton*>();
}

} // namespace

class TestRunProgress : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<ExecuterFixture> fixture_;
    const QString tables_ = repeated(60, "FREQ PERSON.INCOME BY PERSON.AGE BY PERSON.EDUCATION\n");

    RecordingShell& shell() const { return fixture_->shell; }
    /// Waits behind the events that are being handled.
    void holdKey(Qt::Key key) {
        QWindow* window = shell().window()->windowHandle();
        QMetaObject::invokeMethod(
            window, [window, key] { QTest::keyClick(window, key); }, Qt::QueuedConnection);
    }
    QString file(const QString& name) const { return folder_->filePath(name); }

    /// Milliseconds from the press to the end of the run.
    qint64 cancelled(const QString& program) {
        fixture_->shell.statuses.clear();
        Watcher watcher(shell());
        watcher.act = [&](QProgressDialog& dialog) {
            watcher.pressSoon(cancelButton(dialog), 137);
        };
        ProcessExecuter executer(shell(), "Process_en");
        const auto listener = ExecuterFixture::listener();
        executer.runText(program, listener, &fixture_->errors);
        const qint64 passed = watcher.sincePress();
        checkNothingIsLeft(*listener);
        if (passed < 0)
            QTest::qFail("the program ended before it could be cancelled", __FILE__, __LINE__);
        return passed;
    }
    void checkNothingIsLeft(TKelSpcErrorsListenerImpl& listener) {
        QCOMPARE(shell().statuses, QStringList({"Processing...", "Execution Canceled"}));
        QCOMPARE(shell().shown, QStringList());
        QVERIFY(TfrmProject::instance().outputs().empty());
        QVERIFY(TfrmProject::instance().session() != nullptr);
        QCOMPARE(fixture_->rows(), QStringList());
        QVERIFY(!listener.hasErrors());
        QVERIFY(!shell().progress()->isVisible());
        QVERIFY(!RunGuard::isRunning());
        QVERIFY(!QFile::exists(file("t0.kbf")));
    }

private slots:
    // Below the build's folder: a test that is killed leaves nothing elsewhere.
    void initTestCase() {
        folder_ = std::make_unique<QTemporaryDir>(QDir::current().filePath("runs-XXXXXX"));
        QVERIFY(folder_->isValid());
        kelx::tools::SampleRequest request;
        request.folder = folder_->path().toStdString();
        request.persons = 2'000'000;
        request.overwrite = true;
        kelx::tools::writeSample(request);
        QFile program(file("many.spc"));
        QVERIFY(program.open(QIODevice::WriteOnly));
        program.write(tables_.toUtf8());
    }

    void init() {
        fixture_ = std::make_unique<ExecuterFixture>();
        ExecuterFixture::open(file("sample.kxdb"));
    }

    void cleanup() { fixture_.reset(); }

    void cancelEndsTheRunSoon_data() {
        QTest::addColumn<QString>("program");
        QTest::newRow("tables") << tables_;
        QTest::newRow("medians") << repeated(
            60, "MEDIAN PERSON.INCOME BY DISTRICT.CODE BY PERSON.AGE FILTER "
                "PERSON.AGE > %1\n");
        QTest::newRow("made variables")
            << repeated(60, "DEFINE HOUSEHOLD.M%1 AS MEDIAN PERSON.INCOME FILTER PERSON.AGE > %1\n"
                            "FREQ HOUSEHOLD.M%1\n");
        QTest::newRow("saved variables")
            << repeated(80, "DEFINE PERSON.T%1 AS PERSON.INCOME * %1.5 + PERSON.AGE SAVE "
                            "\"t%1.kbf\"\n");
        QTest::newRow("areas") << "RUNDEF a AREABREAK HOUSEHOLD\nFREQ PERSON.SEX BY PERSON.AGE\n";
        QTest::newRow("medians of areas")
            << "RUNDEF a AREABREAK HOUSEHOLD\nMEDIAN PERSON.INCOME BY PERSON.SEX\n";
        QTest::newRow("hidden cells")
            << "RUNDEF a AREABREAK HOUSEHOLD\nFREQ PERSON.SEX BY PERSON.AGE SENSITIVE 3\n";
        QTest::newRow("sort") << "VIEW PERSON, PERSON.AGE, PERSON.INCOME, PERSON.BIRTHPLACE\n"
                                 "SORT DESC PERSON.INCOME\n";
    }

    /// Other tests share the processors: the best of three tells what the program itself takes.
    void cancelEndsTheRunSoon() {
        QFETCH(QString, program);
        QList<qint64> passed;
        while (passed.size() < 3 && (passed.isEmpty() || passed.last() >= soon)) {
            passed += cancelled(program);
            if (QTest::currentTestFailed())
                return;
        }
        QVERIFY2(passed.last() < soon, qPrintable(QString::number(passed.last()) + " ms"));
    }

    void runShowsHowFarItIs() {
        Watcher watcher(shell());
        QMenu menu(shell().window());
        menu.addAction("Run");
        menu.popup(QPoint(0, 0));
        QCOMPARE(QApplication::activePopupWidget(), &menu);
        auto* line = new QLineEdit;
        qobject_cast<QMainWindow*>(shell().window())->setCentralWidget(line);
        line->setFocus();
        bool modal = false;
        watcher.act = [&](QProgressDialog& dialog) {
            modal = QApplication::activeModalWidget() == &dialog &&
                    QApplication::activePopupWidget() == nullptr;
            QTest::keyClick(shell().window()->windowHandle(), Qt::Key_X);
        };
        ProcessExecuter executer(shell(), "Process_en");
        executer.runText(tables_.left(tables_.size() / 6), ExecuterFixture::listener(),
                         &fixture_->errors);
        QCOMPARE(shell().shown.size(), 1);
        QVERIFY(modal);
        QCOMPARE(line->text(), "");
        QCOMPARE(shell().progress()->windowTitle(), "Running");
        const int average = shell().progress()->fontMetrics().averageCharWidth();
        QVERIFY(shell().progress()->minimumWidth() >= 50 * average);
        QVERIFY2(watcher.firstSeen >= 400, qPrintable(QString::number(watcher.firstSeen)));
        QVERIFY2(watcher.firstSeen < 400 + inOneTry,
                 qPrintable(QString::number(watcher.firstSeen)));
        QVERIFY2(watcher.longestSilence < inOneTry,
                 qPrintable(QString::number(watcher.longestSilence) + " ms without an event"));
        const QRegularExpression label("^Time Expected: \\d+ s - Time Elapsed: \\d+ s$");
        QVERIFY(label.match(watcher.labels.last()).hasMatch());
        QVERIFY(watcher.labels.first().endsWith("Elapsed: 0 s")); // under a second
        QVERIFY(std::is_sorted(watcher.values.begin(), watcher.values.end()));
        QVERIFY(watcher.values.last() <= 99);
        QVERIFY(watcher.values.last() > watcher.values.first());
        QVERIFY(!shell().progress()->isVisible());
    }

    void escapeCancelsAndTheNextRunGoesOn() {
        ProcessExecuter executer(shell(), "Process_en");
        for (int round = 0; round < 2; ++round) {
            Watcher watcher(shell());
            watcher.act = [](QProgressDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
            executer.runText(tables_, ExecuterFixture::listener());
            QCOMPARE(shell().statuses.last(), "Execution Canceled");
        }
        executer.runText("COUNT PERSON", ExecuterFixture::listener());
        QCOMPARE(shell().statuses.last(), "Table Created");
        QCOMPARE(shell().shown, QStringList("COUNT PERSON"));
    }

    /// Keys that come as those of a keyboard do, while a run shorter than its window goes on.
    void heldKeyBeginsNoSecondRun() {
        ProcessExecuter executer(shell(), "Process_en");
        int runs = 0;
        QAction action;
        action.setShortcut(Qt::Key_F9);
        connect(&action, &QAction::triggered, this, [&] {
            ++runs;
            for (const Qt::Key key : {Qt::Key_F9, Qt::Key_Y, Qt::Key_F9})
                holdKey(key);
            executer.runText(tables_.left(tables_.size() / 60), ExecuterFixture::listener());
        });
        QLineEdit line;
        shell().window()->addAction(&action);
        qobject_cast<QMainWindow*>(shell().window())->setCentralWidget(&line);
        shell().window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(shell().window()));
        line.setFocus();
        QTest::keyClick(&line, Qt::Key_F9);
        QCOMPARE(runs, 1);
        QCoreApplication::processEvents();
        QCOMPARE(runs, 1);
        QCOMPARE(line.text(), "");
        // On a busy machine the progress window shows and takes the focus with it.
        shell().window()->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), shell().window());
        QTest::keyClick(&line, Qt::Key_X); // once it has ended the keyboard is heard again
        QCOMPARE(line.text(), "x");
        QTest::keyClick(&line, Qt::Key_F9);
        QCOMPARE(runs, 2);
        line.setParent(nullptr);
    }

    void secondRunIsRefusedWhileOneGoesOn() {
        Watcher watcher(shell());
        const QString refused = "The program was not run, since another one had not ended.";
        watcher.act = [&](QProgressDialog&) {
            ProcessExecuter second(shell(), "Process_en");
            second.runText("COUNT PERSON", ExecuterFixture::listener(), &fixture_->errors);
            second.compile("COUNT PERSON", ExecuterFixture::listener(), &fixture_->errors);
            ProgramListRun(shell()).runExecuteText("EXECUTE \"many.spc\"",
                                                   ExecuterFixture::listener(), &fixture_->errors);
            second.execute("COUNT PERSON");
            QCOMPARE(fixture_->messages, QStringList()); // a box would hold up the run
        };
        ProcessExecuter first(shell(), "Process_en");
        first.runText(tables_.left(tables_.size() / 10), ExecuterFixture::listener(),
                      &fixture_->errors);
        QCOMPARE(fixture_->rows(), QStringList({refused, refused, refused}));
        QCOMPARE(shell().shown.size(), 1);
        QTRY_COMPARE(fixture_->messages, QStringList(refused));
    }

    void listOfProgramsIsCancelledInItsOwnWindow() {
        Watcher watcher(shell(), "programListProgress");
        watcher.act = [&](QProgressDialog& dialog) {
            QCOMPARE(dialog.labelText(), "Current Program :many.spc - 1/2");
            watcher.pressSoon(cancelButton(dialog), 61);
        };
        ProgramListRun lists(shell());
        lists.runExecuteText("EXECUTE \"many.spc\"\nEXECUTE \"many.spc\"",
                             ExecuterFixture::listener(), &fixture_->errors);
        const qint64 passed = watcher.sincePress();
        QVERIFY2(passed >= 0 && passed < inOneTry, qPrintable(QString::number(passed) + " ms"));
        QCOMPARE(shell().statuses, QStringList({"Processing...", "Execution Canceled"}));
        QCOMPARE(fixture_->rows(), QStringList("Current Program: many.spc - 1/2"));
        QVERIFY(shell().direct.empty());
        QVERIFY(!shell().progress("programListProgress")->isVisible());
    }
};

QTEST_MAIN(TestRunProgress)
#include "tst_runprogress.moc"
