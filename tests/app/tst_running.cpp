// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench while a program runs: what would disturb the run is refused or waits for its end.
#include "Workbench.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/ribbon/tt/TabToolbar.h"
#include "engine/execution/RunGuard.h"
#include "kel.h"
#include "projects/TfrmProject.h"
#include "results/ResultsManager.h"
#include "sample/sample.h"

#include <QApplication>
#include <QDockWidget>
#include <QFileInfo>
#include <QMdiArea>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTimer>

class TestRunning : public QObject {
    Q_OBJECT

    std::unique_ptr<Workbench> bench_;

    QString samplePath() const { return bench_->folder() + "/sample/sample.kxdb"; }
    QProgressDialog* progress() const { return bench_->find<QProgressDialog>("runProgress"); }

    /// Seconds of work.
    static QString longProgram() {
        return QString("FREQ PERSON.INCOME BY PERSON.AGE BY PERSON.EDUCATION\n").repeated(40);
    }

    /// Runs it, and acts from its events as soon as the progress window shows. The run ends by
    /// Cancel where act leaves it running.
    void runAndAct(const QString& program, std::function<void()> act) const {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (progress() == nullptr || !progress()->isVisible())
                return;
            QVERIFY(RunGuard::isRunning());
            if (const auto once = std::exchange(act, nullptr))
                once();
            else // some events later, which may have brought what was put off
                QTest::mouseClick(progress()->findChild<QPushButton*>(), Qt::LeftButton);
        });
        timer.start(10);
        bench_->window().runProgram(program);
        QVERIFY(act == nullptr);
        QVERIFY(!RunGuard::isRunning());
    }

    /// Acts from the events of an export as soon as its progress shows. Cancel ends it.
    void exportAndAct(const std::function<void()>& begin, std::function<void()> act) const {
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            auto* shown = bench_->find<QProgressDialog>("exportProgress");
            if (shown == nullptr || !shown->isVisible())
                return;
            QVERIFY(RunGuard::isRunning());
            if (const auto once = std::exchange(act, nullptr))
                once();
            else
                QTest::mouseClick(shown->findChild<QPushButton*>(), Qt::LeftButton);
        });
        timer.start(10);
        begin();
        QVERIFY(act == nullptr);
        QVERIFY(!RunGuard::isRunning());
    }

    QString filePath(const QString& name) const { return bench_->folder() + '/' + name; }
    static QString longList() {
        return "AREALIST HOUSEHOLD, HOUSEHOLD.ROOMS, HOUSEHOLD.TYPE, HOUSEHOLD.TENURE, "
               "HOUSEHOLD.WATER, HOUSEHOLD.WEIGHT, HOUSEHOLD.ELECTRICITY";
    }

private slots:
    void initTestCase() {
        bench_ = std::make_unique<Workbench>();
        kelx::tools::SampleRequest request;
        request.folder = (bench_->folder() + "/sample").toStdString();
        request.persons = 1'000'000;
        kelx::tools::writeSample(request);
        bench_->openByKeyboard(samplePath());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), samplePath());
    }

    void init() { bench_->messages.clear(); }

    void closingTheWindowIsRefused() {
        runAndAct(longProgram(), [this] {
            QVERIFY(bench_->window().isBusy());
            QVERIFY(!bench_->window().close());
            QVERIFY(bench_->window().isVisible());
        });
        QVERIFY(!bench_->window().isBusy());
        QCOMPARE(bench_->window().statusBar()->currentMessage(), "Execution Canceled");
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(bench_->windowNames(), QStringList());
    }

    void dictionaryIsNeitherOpenedNorSavedNorClosed() {
        TfrmProject::instance().dictionary()->setDirty(true);
        runAndAct(longProgram(), [this] {
            MainWindow& window = bench_->window();
            window.openFile(bench_->smallPath(), "kxdb");
            window.on_openRecentDictionary(bench_->smallPath());
            window.saveOpenDictionary();
            window.saveAsOpenDictionary();
            window.on_closeAllDictionary();
            window.dock("Dictionary")->close();
            QCOMPARE(TfrmProject::instance().dictionaryPath(), samplePath());
            QVERIFY(TfrmProject::instance().dictionary()->isDirty());
            QVERIFY(!window.isLoading());
        });
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(TfrmProject::instance().dictionaryPath(), samplePath());
        QVERIFY(bench_->window().dock("Dictionary")->isVisible());
        bench_->window().saveOpenDictionary();
        QVERIFY(!TfrmProject::instance().dictionary()->isDirty());
    }

    void ribbonWaitsForTheEnd() {
        const auto* ribbon = bench_->find<tt::TabToolbar>("ribbon");
        runAndAct(longProgram(), [this, ribbon] {
            bench_->window().rebuildToolbars();
            QTest::qWait(0);
            QCOMPARE(bench_->find<tt::TabToolbar>("ribbon"), ribbon);
        });
        QTRY_VERIFY(bench_->find<tt::TabToolbar>("ribbon") != ribbon);
    }

    void secondRunIsToldOfAfterwards() {
        runAndAct(longProgram(), [this] {
            bench_->window().runProgram("COUNT PERSON");
            QCOMPARE(bench_->messages, QStringList());
        });
        QTRY_COMPARE(bench_->messages.size(), 1);
        QCOMPARE(bench_->windowNames(), QStringList());
    }

    void everyOutputIsListed() {
        bench_->window().runProgram("FREQ PERSON.SEX\nCOUNT PERSON\nAVERAGE PERSON.AGE");
        QCOMPARE(bench_->messages, QStringList());
        QCOMPARE(bench_->resultCount(), 3);
        QCOMPARE(bench_->windowNames(), QStringList("ResultsManager"));
        QCOMPARE(bench_->frequencyRows().size(), 3);
        const QString file = bench_->folder() + "/sex.csv";
        bench_->window().runProgram("FREQ PERSON.SEX OUTFILE CSV \"" + file + "\"");
        QCOMPARE(bench_->messages, QStringList());
        QVERIFY(QFileInfo(file).size() > 0);
        QCOMPARE(bench_->resultCount(), 4);
        bench_->window().runProgram("FREQ PERSON.SEX OUTFILE CSV \"" + bench_->folder() +
                                    "/nowhere/sex.csv\"");
        QVERIFY2(bench_->messages.join('\n').contains("nowhere"),
                 qPrintable(bench_->messages.join('\n')));
    }

    void whatIsPutOffWaitsForTheLastGuard() {
        QObject context;
        int done = 0;
        auto first = std::make_unique<RunGuard>();
        RunGuard::afterwards(&context, [&] { ++done; });
        first.reset();
        auto second = std::make_unique<RunGuard>(); // its files are written
        QCoreApplication::processEvents();
        QCOMPARE(done, 0);
        second.reset();
        QTRY_COMPARE(done, 1);
    }

    void nothingEndsWhileFilesAreWritten_data() {
        QTest::addColumn<bool>("direct");
        QTest::newRow("by a program") << true;
        QTest::newRow("by the user") << false;
    }

    void nothingEndsWhileFilesAreWritten() {
        QFETCH(bool, direct);
        MainWindow& window = bench_->window();
        const QString file = filePath("long.xlsx");
        const std::function<void()> begin = [&] {
            if (direct) {
                window.runProgram(longList() + " OUTFILE XLSX \"" + file + '"');
                return;
            }
            KelvoraFileDialog::answerNext(file);
            bench_->find<ResultsManager>("ResultsManager")->onExportAsExcel();
        };
        if (!direct)
            window.runProgram(longList());
        bench_->messages.clear();
        const int before = bench_->resultCount();
        const QList<std::function<void()>> acts{
            [&] { QVERIFY(!window.close()); },
            [&] { QApplication::closeAllWindows(); },
            [&] { window.on_closeAllDictionary(); },
            [&] { window.dock("Dictionary")->close(); },
            [&] { window.openFile(bench_->smallPath(), "kxdb"); },
            [&] { window.runProgram("COUNT PERSON"); },
        };
        for (const auto& act : acts) {
            exportAndAct(begin, [&] {
                QVERIFY(window.isBusy());
                act();
            });
            QVERIFY(window.isVisible());
            QVERIFY(!window.isLoading());
            QCOMPARE(TfrmProject::instance().dictionaryPath(), samplePath());
            QVERIFY(bench_->find<ResultsManager>("ResultsManager") != nullptr);
            QVERIFY(!QFileInfo::exists(file));
        }
        QTRY_COMPARE(bench_->messages.filter("another one had not ended").size(), 1);
        QCOMPARE(bench_->messages.filter("was not written: cancelled").size(),
                 direct ? acts.size() : 0);
        QCOMPARE(bench_->resultCount(), before + (direct ? acts.size() : 0));
    }

    void cancelMeansTheFilesThatAreLeft() {
        const QString program = longList() + " OUTFILE XLSX \"%1\"\n" + longList() +
                                " OUTFILE XLSX \"%2\"\nFREQ PERSON.SEX OUTFILE \"%3\"\n";
        exportAndAct(
            [&] {
                bench_->window().runProgram(
                    program.arg(filePath("1.xlsx"), filePath("2.xlsx"), filePath("3.csv")));
            },
            [] {});
        const QStringList lines = bench_->messages.value(0).split('\n');
        QCOMPARE(lines.size(), 3);
        for (int number = 0; number < 3; ++number)
            QVERIFY2(lines[number].contains(QString("%1.").arg(number + 1)) &&
                         lines[number].endsWith("was not written: cancelled"),
                     qPrintable(lines[number]));
        QVERIFY(!QFileInfo::exists(filePath("3.csv")));
    }

    void figuresShowInTheirForm() {
        // Rows from the last one.
        const auto shown = [&](int row, int column, int role = Qt::DisplayRole) {
            const QAbstractItemModel& table = *bench_->find<QTableView>("tableWidget")->model();
            return table.index(table.rowCount() - 1 - row, column).data(role).toString();
        };
        bench_->window().runProgram("COUNT PERSON");
        QCOMPARE(shown(0, 1), "1 000 000");
        // Beyond the whole numbers of 64 bits.
        bench_->window().runProgram(
            "DEFINE PERSON.BIG AS PERSON.AGE * 1000000000000000.0 * 10000.0\n"
            "SUM PERSON.BIG\n");
        const double sum = shown(0, 0, Qt::UserRole).toDouble();
        QVERIFY2(sum > 1e26, qPrintable(shown(0, 0, Qt::UserRole)));
        QCOMPARE(shown(0, 0).remove(' ').toDouble(), sum);
        bench_->window().runProgram("RUNDEF SELECTION INLINE PROVINCE \"01\"\n"
                                    "FREQ PERSON.SEX TITLE \"Sex in the first province\"");
        QCOMPARE(bench_->messages, QStringList());
        const QAbstractItemModel& report = *bench_->find<QTableView>("tableWidgetReport")->model();
        QCOMPARE(report.index(1, 0).data().toString(), "  Sex in the first province");
        QVERIFY(report.index(5, 0).data().toString() != "  All Database");
    }
};

QTEST_MAIN(TestRunning)
#include "tst_running.moc"
