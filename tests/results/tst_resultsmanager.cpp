// SPDX-License-Identifier: GPL-3.0-or-later
// The window of results: its tree, the options of tables, and its life.
#include "ResultsFixture.h"
#include "app/settings/KelSystem.h"
#include "results/DirectOutputs.h"
#include "results/tables/TableBase.h"
#include "support/ModalAnswer.h"
#include "support/OwnSettings.h"

#include "TKelSession.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTreeView>

namespace {

void accept(QDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
}

} // namespace

class TestResultsManager : public QObject {
    Q_OBJECT

    std::unique_ptr<ResultsFixture> results_;

    bool optionsShow() const { return results_->find<QAction>("actionOrder")->isVisible(); }
    Qt::CheckState checked(int process, int table) const {
        return static_cast<Qt::CheckState>(
            results_->place(process, table).data(Qt::CheckStateRole).toInt());
    }
    QString names(int process) const {
        QStringList names{results_->place(process).data().toString()};
        for (int i = 0; i < results_->tree().model()->rowCount(results_->place(process)); ++i)
            names += results_->place(process, i).data().toString();
        return names.join(' ');
    }

private slots:
    void initTestCase() { takeOwnSettings(); }
    void init() { results_ = std::make_unique<ResultsFixture>(); }
    void cleanup() { results_.reset(); }

    void runsAndTheirTablesStandInTheTree() {
        QVERIFY(results_->find<QLabel>("labelNoTable")->isVisible());
        QCOMPARE(results_->find<QLabel>("labelTableInfo")->text(), "[INFO]");
        QCOMPARE(results_->window().windowTitle(), "Results");
        results_->run("FREQ PERSON.SEX\nFREQ PERSON.SEX BY HOUSEHOLD.ROOMS");
        QCOMPARE(names(0), "PROC-001 FREQ_1 FREQ_2");
        QCOMPARE(results_->tree().currentIndex(), results_->place(0, 0));
        QCOMPARE(results_->selected(), QStringList("FREQ_1"));
        QCOMPARE(checked(0, 0), Qt::Checked);
        QCOMPARE(checked(0, 1), Qt::Unchecked);
        QCOMPARE(results_->tables, QStringList("FREQ_1"));
        QVERIFY(results_->grid().isVisible());
        QVERIFY(results_->tree().isExpanded(results_->place(0)));
        QVERIFY(!(results_->place(0).flags() & Qt::ItemIsUserCheckable));

        results_->run("COUNT PERSON");
        QCOMPARE(names(0), "PROC-001 FREQ_1 FREQ_2");
        QCOMPARE(names(1), "PROC-002 COUNT_1");
        QCOMPARE(results_->selected(), QStringList("COUNT_1"));
        // The tables of an earlier run go on showing, though its session is the window's alone.
        results_->letGoOfDictionary();
        results_->click(results_->place(0, 1));
        QCOMPARE(ResultsFixture::rows(results_->grid()).last(), "MV|1|1|");
        QCOMPARE(results_->tables.last(), "FREQ_2");
    }

    void checksAndSelectionFollowEachOther() {
        results_->run("FREQ PERSON.SEX\nFREQ PERSON.SEX BY HOUSEHOLD.ROOMS\nCOUNT PERSON");
        results_->clickBox(results_->place(0, 1));
        QCOMPARE(results_->selected(), QStringList({"FREQ_1", "FREQ_2"}));
        QCOMPARE(results_->tables.last(), "FREQ_2");
        QVERIFY(!optionsShow()); // two are selected
        results_->clickBox(results_->place(0, 0));
        QCOMPARE(results_->selected(), QStringList("FREQ_2"));
        QCOMPARE(checked(0, 0), Qt::Unchecked);
        QVERIFY(optionsShow());
        results_->click(results_->place(0, 0));
        QCOMPARE(results_->selected(), QStringList("FREQ_1"));
        QCOMPARE(checked(0, 0), Qt::Checked);
        QCOMPARE(checked(0, 1), Qt::Unchecked);
        results_->click(results_->place(0, 2), Qt::ControlModifier);
        QCOMPARE(checked(0, 0), Qt::Checked);
        QCOMPARE(checked(0, 2), Qt::Checked);
        QCOMPARE(results_->tables.last(), "COUNT_1");
        results_->click(results_->place(0));
        QVERIFY(!optionsShow());
        QCOMPARE(checked(0, 2), Qt::Unchecked);
        QCOMPARE(results_->messages, QStringList());
    }

    void arrowsAndF6ReachTheTables() {
        results_->run("FREQ PERSON.SEX\nFREQ PERSON.SEX BY HOUSEHOLD.ROOMS");
        results_->window().setFocus();
        QTRY_VERIFY(results_->tree().hasFocus());
        QTest::keyClick(&results_->tree(), Qt::Key_Down);
        QCOMPARE(results_->tables.last(), "FREQ_2");
        QTest::keyClick(&results_->tree(), Qt::Key_F6);
        QVERIFY(results_->grid().hasFocus());
        QTest::keyClick(&results_->grid(), Qt::Key_F6);
        QVERIFY(results_->tree().hasFocus());
    }

    void runWithoutOutputsIsAProcessWithoutTables() {
        results_->run("FREQ PERSON.SEX");
        results_->tables.clear();
        results_->run("DEFINE PERSON.OLD AS PERSON.AGE > 60\n");
        QCOMPARE(names(1), "PROC-002");
        QCOMPARE(results_->tree().currentIndex(), results_->place(1));
        QCOMPARE(results_->tables, QStringList());
        QVERIFY(results_->find<QLabel>("labelNoTable")->isVisible());
        QVERIFY(!optionsShow());
        QCOMPARE(results_->messages, QStringList());
        results_->window().onViewOptionsDialogClicked();
        QCOMPARE(results_->messages, QStringList("No table has been selected."));
    }

    void directOutputsAreWrittenAndNotShown() {
        const QString file = results_->path("sex.csv");
        QCOMPARE(results_->run("FREQ PERSON.SEX OUTFILE CSV \"" + file + "\"\nCOUNT PERSON"),
                 QStringList());
        QVERIFY(ResultsFixture::read(file).contains("1. Male,2.500000,"));
        const auto* info = results_->find<QLabel>("labelTableInfo");
        QVERIFY(info->isVisible());
        QCOMPARE(info->text(), "Table result was exported directly.");
        QCOMPARE(results_->find<QLabel>("labelReportInfo")->text(), info->text());
        QVERIFY(!results_->grid().isVisible());
        results_->click(results_->place(0, 1));
        QVERIFY(results_->grid().isVisible());
        QVERIFY(!info->isVisible());
        // A file that cannot be written is told, and the table stands all the same.
        const auto session = results_->session("FREQ PERSON.SEX OUTFILE CSV \"" +
                                               results_->path("taken.csv") + "\"");
        QDir(results_->path("")).mkdir("taken.csv"); // meanwhile
        const QStringList lines = results_->window().addOutputs(session->outputs(), session, {});
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines[0].contains("taken.csv was not written: "), qPrintable(lines[0]));
        QCOMPARE(names(1), "PROC-002 FREQ_1");
    }

    void listsOfProgramsWriteTheirFilesAlone() {
        const auto session = results_->session("FREQ PERSON.SEX\nFREQ PERSON.SEX OUTFILE CSV \"" +
                                               results_->path("list.csv") + "\"");
        const DirectOutputs direct(KelSystem::instance(), results_->dictionary(),
                                   results_->path("small.kxdb"));
        QCOMPARE(direct.write(session->outputs()), QStringList());
        QVERIFY(QFileInfo::exists(results_->path("list.csv")));
        QVERIFY(!results_->tree().model()->hasChildren());
    }

    void stylesSettleTheTablesOfTheirRun() {
        const QString style = results_->write(
            "style.json", R"({"general":{"decimals":4},"frequencyMultiVar":{"showMv":false}})");
        results_->run("FREQ PERSON.SEX\nFREQ PERSON.SEX BY HOUSEHOLD.ROOMS", style);
        QVERIFY(ResultsFixture::rows(results_->grid()).contains("1. Male|2.5000|26.3158|26.3158"));
        results_->click(results_->place(0, 1));
        QVERIFY(!ResultsFixture::rows(results_->grid()).join('\n').contains("MV"));
        results_->run("FREQ PERSON.SEX");
        QVERIFY(ResultsFixture::rows(results_->grid()).contains("1. Male|2.50|26.32|26.32"));
    }

    void optionsOfACrosstabHideItsMissingValues() {
        results_->run("FREQ PERSON.SEX BY HOUSEHOLD.ROOMS");
        QVERIFY(ResultsFixture::rows(results_->grid()).join('\n').contains("MV"));
        answerNextDialog([](QDialog& dialog) {
            QCOMPARE(dialog.metaObject()->className(), "FormatDialog");
            for (int row = 1; row <= 4; ++row)
                if (dialog.findChild<QComboBox*>(QString("comboBox_%1").arg(row))->currentText() ==
                    "MV")
                    QTest::mouseClick(dialog.findChild<QCheckBox*>(QString("checkBox_%1").arg(row)),
                                      Qt::LeftButton, {}, {6, 8});
            accept(dialog);
        });
        results_->trigger("actionOrder");
        QVERIFY(results_->window().shownTable()->hideMv());
        QVERIFY(!ResultsFixture::rows(results_->grid()).join('\n').contains("MV"));
        // A dialog that is cancelled leaves all as it was, and the table is shown again.
        results_->tables.clear();
        answerNextDialog([](QDialog& dialog) { dialog.reject(); });
        results_->trigger("actionOrder");
        QVERIFY(results_->window().shownTable()->hideMv());
        QCOMPARE(results_->tables, QStringList("FREQ_1"));
    }

    void optionsOfAFrequencyKeepItsOrder() {
        results_->run("FREQ PERSON.SEX");
        answerNextDialog([](QDialog& dialog) {
            QCOMPARE(dialog.metaObject()->className(), "OrderDialog");
            dialog.findChild<QRadioButton*>("radioButtonDescending")->click();
            accept(dialog);
        });
        results_->trigger("actionOrder");
        QCOMPARE(results_->window().shownTable()->rowsOrder(), 2);
    }

    void optionsOfAnAreaListAddTotals() {
        results_->run("TABLE T AS FREQUENCY OF PERSON.SEX\nAREALIST DISTRICT, T");
        answerNextDialog([](QDialog& dialog) {
            QCOMPARE(dialog.metaObject()->className(), "ArealistViewOptionsDialog");
            QTest::mouseClick(dialog.findChild<QCheckBox*>("checkBoxShowColumnsTotal"),
                              Qt::LeftButton, {}, {6, 8});
            accept(dialog);
        });
        const int before = results_->grid().model()->rowCount();
        results_->trigger("actionOrder");
        QCOMPARE(results_->grid().model()->rowCount(), before + 1);
        // Weighted figures are none of digits alone.
        QCOMPARE(ResultsFixture::rows(results_->grid()).last(), "Total||||7|1");
    }

    void averagesAndTabListsHaveNoOptions() {
        results_->run("AVERAGE PERSON.AGE BY PERSON.SEX\nFREQ PERSON.SEX");
        QVERIFY(!optionsShow());
        results_->click(results_->place(0, 1));
        QVERIFY(optionsShow());
    }

    void closingHidesAndForgetsNothing() {
        results_->run("FREQ PERSON.SEX");
        const QSignalSpy closed(&results_->window(), &ResultsManager::signalCloseWindow);
        for (int round = 1; round <= 2; ++round) {
            QVERIFY(!results_->window().close());
            QVERIFY(!results_->window().isVisible());
            QCOMPARE(closed.count(), round);
            results_->window().show();
        }
        QVERIFY(results_->grid().isVisible());
        QCOMPARE(names(0), "PROC-001 FREQ_1");
    }

    void anotherLanguageShowsTheSameTable() {
        results_->run("FREQ PERSON.SEX");
        const QStringList before = ResultsFixture::rows(results_->grid());
        results_->tables.clear();
        QEvent change(QEvent::LanguageChange);
        QApplication::sendEvent(&results_->window(), &change);
        QCOMPARE(ResultsFixture::rows(results_->grid()), before);
        QCOMPARE(results_->find<QTabWidget>("tabWidget")->tabText(0), "List");
        QCOMPARE(results_->find<QTabWidget>("tabWidget")->tabText(1), "Table");
    }
};

QTEST_MAIN(TestResultsManager)
#include "tst_resultsmanager.moc"
