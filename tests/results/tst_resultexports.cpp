// SPDX-License-Identifier: GPL-3.0-or-later
// The export commands, through the dialogs that a user sees.
#include "MadeTable.h"
#include "ResultsFixture.h"
#include "app/dialogs/KelvoraFileDialog.h"
#include "app/settings/KelSystem.h"
#include "results/ExportProgress.h"
#include "results/ResultExports.h"
#include "support/ModalAnswer.h"
#include "support/OwnSettings.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTreeView>

namespace {

const QStringList completed{"Export completed"};

} // namespace

class TestResultExports : public QObject {
    Q_OBJECT

    std::unique_ptr<ResultsFixture> results_;

    /// The files below a folder of results, sorted.
    QStringList filesIn(const QString& name) const {
        return QDir(results_->path(name)).entryList(QDir::Files, QDir::Name);
    }
    QString newFolder(const QString& name) const {
        QDir(results_->path("")).mkpath(name);
        return results_->path(name);
    }

private slots:
    void initTestCase() { takeOwnSettings(); }
    void init() {
        results_ = std::make_unique<ResultsFixture>();
        results_->run("FREQ PERSON.SEX\nFREQ PERSON.SEX BY HOUSEHOLD.ROOMS");
    }
    void cleanup() { results_.reset(); }

    void oneTableGoesToAFile_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("csv by label") << "actionCsvLabelAsHeader"
                                      << "CSV (*.csv)"
                                      << "out"
                                      << "out.csv" << QByteArray("\xEF\xBB\xBF");
        QTest::newRow("csv by name") << "actionCsvNameAsHeader"
                                     << "CSV (*.csv)"
                                     << "out.csv"
                                     << "out.csv" << QByteArray("\xEF\xBB\xBF");
        QTest::newRow("json") << "actionJson"
                              << "JSON (*.json)"
                              << "out"
                              << "out" << QByteArray("{");
        QTest::newRow("xml") << "actionXml"
                             << "XML (*.xml)"
                             << "out.xml"
                             << "out.xml" << QByteArray("<?xml");
        QTest::newRow("pdf") << "actionPdf"
                             << "PDF (*.pdf)"
                             << "out"
                             << "out.pdf" << QByteArray("%PDF");
        QTest::newRow("xlsx") << "actionXlsx"
                              << "EXCEL (*.xlsx)"
                              << "out"
                              << "out.xlsx" << QByteArray("PK");
    }

    void oneTableGoesToAFile() {
        QFETCH(QString, action);
        QFETCH(QString, filter);
        QFETCH(QString, typed);
        QFETCH(QString, written);
        QFETCH(QByteArray, begin);
        QStringList dialog;
        ResultsFixture::answerFileDialog(results_->path(typed), &dialog);
        results_->trigger(qPrintable(action));
        QCOMPARE(dialog.value(0), "Save File");
        QCOMPARE(dialog.value(1), filter);
        QCOMPARE(dialog.value(2), results_->path(""));
        QVERIFY2(dialog.value(3).startsWith("FREQ_1."), qPrintable(dialog.value(3)));
        QCOMPARE(results_->messages, completed);
        QCOMPARE(results_->status(), "");
        QVERIFY(ResultsFixture::read(results_->path(written)).startsWith(begin));
    }

    void cancelledDialogsAreSilent() {
        for (const char* action : {"actionPdf", "actionXlsx"}) {
            ResultsFixture::answerFileDialog({});
            results_->trigger(action);
        }
        results_->click(results_->place(0));
        ResultsFixture::answerFileDialog({});
        results_->trigger("actionXml");
        QCOMPARE(results_->messages, QStringList());
    }

    void nothingSelectedIsTold() {
        results_->tree().clearSelection();
        for (const char* action : {"actionCsvLabelAsHeader", "actionXlsx"})
            results_->trigger(action);
        QCOMPARE(results_->messages, QStringList({"Select a table", "Select a table"}));
    }

    void processesGoToAFolder() {
        QStringList dialog;
        results_->click(results_->place(0));
        ResultsFixture::answerFileDialog(newFolder("whole"), &dialog);
        results_->trigger("actionXml");
        QCOMPARE(dialog.value(0), "Select Folder");
        QCOMPARE(results_->messages, completed);
        QCOMPARE(filesIn("whole"), QStringList({"FREQ_1.xlm", "FREQ_2.xlm"}));
        // Two tables that are chosen one by one.
        results_->click(results_->place(0, 0));
        results_->click(results_->place(0, 1), Qt::ControlModifier);
        ResultsFixture::answerFileDialog(newFolder("single"));
        results_->trigger("actionXml");
        QCOMPARE(filesIn("single"), QStringList({"FREQ_1.xml", "FREQ_2.xml"}));
    }

    void nothingInAFolderIsOverwritten() {
        results_->run("FREQ PERSON.SEX");
        results_->tree().selectAll();
        const QString folder = newFolder("all");
        results_->write("all/FREQ_2.json", "kept");
        ResultsFixture::answerFileDialog(folder);
        QMenu* menu = results_->menu(*results_->tree().viewport(),
                                     results_->tree().visualRect(results_->place(0, 0)).center());
        results_->choose(*menu, "actionExportJson");
        QTRY_COMPARE(results_->messages, completed);
        // A process and its tables are the same tables.
        QCOMPARE(filesIn("all"),
                 QStringList({"FREQ_1 (2).json", "FREQ_1.json", "FREQ_2 (2).json", "FREQ_2.json"}));
        QCOMPARE(ResultsFixture::read(results_->path("all/FREQ_2.json")), "kept");
    }

    void filesThatFailAreTold() {
        KelvoraFileDialog::answerNext(results_->path("nowhere/out.csv"));
        results_->trigger("actionCsvNameAsHeader");
        QCOMPARE(results_->messages, completed);
        QVERIFY2(results_->status().contains("out.csv was not written: "),
                 qPrintable(results_->status()));
        // The next one that succeeds leaves nothing of it.
        ResultsFixture::answerFileDialog(results_->path("out.csv"));
        results_->trigger("actionCsvNameAsHeader");
        QCOMPARE(results_->status(), "");
        QVERIFY(QFileInfo::exists(results_->path("out.csv")));
    }

    void allFilesThatFailAreTold() {
        results_->run("FREQ PERSON.SEX");
        results_->tree().selectAll();
        for (const char* name : {"FREQ_1", "FREQ_2", R"(FREQ_1 \(2\))"})
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QString(R"(/%1\.csv was not)").arg(name)));
        KelvoraFileDialog::answerNext(results_->path("nowhere"));
        results_->find<QAction>("actionCsvLabelAsHeader")->trigger();
        QCOMPARE(results_->messages, completed);
        QVERIFY2(results_->status().contains("FREQ_1.csv was not written: ") &&
                     results_->status().endsWith(" (and 2 more)"),
                 qPrintable(results_->status()));
        const QString tip =
            QTextDocumentFragment::fromHtml(results_->window().statusBar()->toolTip())
                .toPlainText();
        QCOMPARE(tip.count("was not written"), 3);
        QVERIFY2(tip.contains("FREQ_2.csv was not written"), qPrintable(tip));
        results_->window().statusBar()->clearMessage();
        QCOMPARE(results_->window().statusBar()->toolTip(), "");
    }

    void theTabDecidesWhichWorkbook() {
        ResultsFixture::answerFileDialog(results_->path("grid.xlsx"));
        results_->trigger("actionXlsx");
        results_->find<QTabWidget>("tabWidget")->setCurrentIndex(1);
        ResultsFixture::answerFileDialog(results_->path("report.xlsx"));
        results_->trigger("actionXlsx");
        QCOMPARE(results_->messages, completed + completed);
        const qint64 grid = QFileInfo(results_->path("grid.xlsx")).size();
        const qint64 report = QFileInfo(results_->path("report.xlsx")).size();
        QVERIFY(grid > 0 && report > 0 && grid != report);
    }

    void progressOutlivesItsParent() {
        auto parent = std::make_unique<QWidget>();
        ExportProgress progress(2, parent.get());
        QVERIFY(progress.beginFile("a.csv"));
        const WriteProgress ask = progress.progress();
        QVERIFY(ask(1, 2));
        parent.reset();
        QVERIFY(!ask(2, 2));
        QVERIFY(!progress.beginFile("b.csv"));
    }

    void longExportsCanBeCancelled() {
        const auto table = madeLargeTable(400'000, 30);
        QStringList told;
        const ResultExports exports(KelSystem::instance(), &results_->window(),
                                    [&](const QStringList& lines) { told += lines; });
        const QString file = results_->write("long.csv", "as it was");
        bool seen = false;
        answerNextDialog([&](QDialog& dialog) {
            auto* progress = qobject_cast<QProgressDialog*>(&dialog);
            QVERIFY(progress != nullptr);
            seen = progress->labelText() == "Writing long.csv";
            QTest::mouseClick(progress->findChild<QPushButton*>(), Qt::LeftButton);
        });
        KelvoraFileDialog::answerNext(file);
        exports.write(ExportFormat::CsvLabelAsHeader, {{{table.get()}, false}});
        QVERIFY(seen);
        QCOMPARE(results_->messages, QStringList());
        QCOMPARE(told.size(), 1);
        QVERIFY2(told[0].contains("long.csv was not written"), qPrintable(told[0]));
        QCOMPARE(ResultsFixture::read(file), "as it was");
    }
};

QTEST_MAIN(TestResultExports)
#include "tst_resultexports.moc"
