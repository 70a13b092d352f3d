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
#include <QHeaderView>
#include <QLabel>
#include <QLoggingCategory>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
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
        QCOMPARE(info->text(), "Table result was exported directly.\n" + file);
        QCOMPARE(info->alignment(), results_->find<QLabel>("labelNoTable")->alignment());
        QTRY_VERIFY(info->height() > results_->window().height() / 2); // in the middle of the pane
        QCOMPARE(results_->find<QLabel>("labelReportInfo")->text(), info->text());
        QVERIFY(!results_->grid().isVisible());
        results_->click(results_->place(0, 1));
        QVERIFY(results_->grid().isVisible());
        QVERIFY(!info->isVisible());
        QVERIFY(info->alignment() != Qt::AlignCenter);
        // A file that cannot be written is told, and the table stands all the same.
        const auto session = results_->session("FREQ PERSON.SEX OUTFILE CSV \"" +
                                               results_->path("taken.csv") + "\"");
        QDir(results_->path("")).mkdir("taken.csv"); // meanwhile
        const QStringList lines = results_->window().addOutputs(session->outputs(), session, {});
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines[0].contains("taken.csv was not written: "), qPrintable(lines[0]));
        QCOMPARE(names(1), "PROC-002 FREQ_1");
        QVERIFY(results_->grid().isVisible());
        QCOMPARE(ResultsFixture::rows(results_->grid()).last(), "MV|1||");
        QCOMPARE(info->text(), lines[0]);
        QCOMPARE(results_->find<QLabel>("labelReportInfo")->text(), lines[0]);
    }

    void listsOfProgramsWriteTheirFilesAlone() {
        const auto session = results_->session("FREQ PERSON.SEX\nFREQ PERSON.SEX OUTFILE CSV \"" +
                                               results_->path("list.csv") + "\"");
        const DirectOutputs direct(KelSystem::instance(), results_->dictionary(),
                                   results_->path("small.kxdb"));
        QCOMPARE(direct.write(session->outputs(), nullptr), QStringList());
        QVERIFY(QFileInfo::exists(results_->path("list.csv")));
        QVERIFY(!results_->tree().model()->hasChildren());
    }

    void firstStyleOfAListSettlesAllItsTables() {
        const QString style =
            results_->write("style.json", R"({"frequencyMultiVar":{"showMv":false}})");
        const QString cross = "FREQ PERSON.SEX BY HOUSEHOLD.ROOMS OUTFILE CSV \"%1\"\n";
        const auto written = [&](const QString& name, const QString& others) {
            const QString path = results_->path(name);
            const auto session = results_->session(others + cross.arg(path));
            DirectOutputs(KelSystem::instance(), results_->dictionary(),
                          results_->path("small.kxdb"))
                .write(session->outputs(), nullptr);
            return ResultsFixture::read(path);
        };
        const QString first = "FREQ PERSON.SEX OUTFILE CSV \"" + results_->path("first.csv") + '"';
        const QByteArray plain = written("plain.csv", first + '\n');
        const QByteArray styled =
            written("styled.csv", first + " OVERWRITE TABLESTYLE \"" + style + "\"\n");
        QVERIFY2(plain.contains("mv"), plain.constData());
        QVERIFY2(!styled.isEmpty() && !styled.contains("mv"), styled.constData());
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
        const auto separators = [&] {
            int shown = 0;
            for (const QAction* action : results_->find<QToolBar>("toolBar")->actions())
                shown += action->isSeparator() && action->isVisible() ? 1 : 0;
            return shown;
        };
        QCOMPARE(separators(), 0);
        QTest::keySequence(&results_->tree(), Qt::CTRL | Qt::SHIFT | Qt::Key_O); // does nothing
        results_->click(results_->place(0, 1));
        QVERIFY(optionsShow());
        QCOMPARE(separators(), 1);
    }

    void optionsAndExportsAreReachedByKeyboard() {
        results_->run("FREQ PERSON.SEX\nAVERAGE PERSON.AGE BY PERSON.SEX");
        results_->window().resize(420, 500);
        auto* more = results_->find<QToolButton>("qt_toolbar_ext_button");
        QTRY_VERIFY(more->isVisible());
        QWidget* pdf = results_->find<QToolBar>("toolBar")->widgetForAction(
            results_->find<QAction>("actionPdf"));
        QVERIFY(!pdf->isVisible());
        QVERIFY(more->focusPolicy() & Qt::TabFocus);
        more->setFocus();
        QTest::keyClick(more, Qt::Key_Space);
        QTRY_VERIFY(pdf->isVisible());

        int asked = 0;
        const auto cancel = [&asked](QDialog& dialog) {
            ++asked;
            dialog.reject();
        };
        answerNextDialog(cancel);
        results_->tree().setFocus();
        QTest::keySequence(&results_->tree(), Qt::CTRL | Qt::SHIFT | Qt::Key_O);
        QCOMPARE(asked, 1);
        // Behind what the menus hold without them.
        for (QWidget* viewport : {results_->tree().viewport(), results_->grid().viewport()}) {
            QMenu* menu = results_->menu(*viewport, {20, 30});
            QCOMPARE(menu->actions().last()->objectName(), "actionOrder");
            QVERIFY(menu->actions().front()->objectName() != "actionOrder");
            answerNextDialog(cancel);
            QTest::keyClick(menu, Qt::Key_Up);
            QTest::keyClick(menu, Qt::Key_Return);
        }
        QTRY_COMPARE(asked, 3);
        results_->click(results_->place(0, 1));
        QMenu* menu = results_->menu(*results_->grid().viewport(), {20, 30});
        QCOMPARE(menu->actions().size(), 1);
        menu->close();
    }

    void headersOfAreaListsAloneAreClicked() {
        results_->run("FREQ PERSON.SEX\nAREALIST DISTRICT, DISTRICT.ZONE");
        const auto shows = [&] {
            results_->tables.clear();
            QHeaderView* header = results_->grid().horizontalHeader();
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              {header->sectionViewportPosition(1) + 5, header->height() / 2});
            return results_->tables.size();
        };
        QCOMPARE(shows(), 0);
        results_->click(results_->place(0, 1));
        QCOMPARE(shows(), 1);
        results_->click(results_->place(0, 0));
        QCOMPARE(shows(), 0);
    }

    void preferencesSettleWhatNoStyleDoes() {
        KelSystem& system = KelSystem::instance();
        const auto before = std::make_pair(system.decimals(), system.tableSeparator());
        system.setDecimals(3);
        system.setTableSeparator(1);
        results_->run("FREQ PERSON.SEX TALLY 10000");
        system.setDecimals(before.first);
        system.setTableSeparator(before.second);
        QCOMPARE(ResultsFixture::rows(results_->grid()).value(1), "1. Male|25'000|26.316|26.316");
        results_->run("FREQ PERSON.SEX TALLY 10000");
        QCOMPARE(ResultsFixture::rows(results_->grid()).value(1), "1. Male|25 000|26.32|26.32");
    }

    void outputsAreLoggedOnceTheLogTakesDetails() {
        static QStringList said;
        said.clear();
        const auto before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext& context, const QString& text) {
                if (qstrcmp(context.category, "KelvoraX.results") == 0)
                    said += text;
            });
        results_->run("FREQ PERSON.SEX");
        const QStringList byDefault = said;
        QLoggingCategory::setFilterRules("KelvoraX.results.debug=true");
        results_->run("FREQ PERSON.SEX");
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(before);
        QCOMPARE(byDefault, QStringList());
        QCOMPARE(said.mid(0, 10),
                 QStringList({"============================", "[Proc::dataset dump]",
                              "  NAME      :FREQ_1", "  TYPE      :TABLE", "  METHOD    :FREQUENCY",
                              "  DIMENSION :1", "  recCount  :4", "  numFields :4",
                              "  VARIABLES :SEX", "  --- dataset rows ---"}));
        QCOMPARE(said.size(), 15);
        QCOMPARE(said[10], "  row0:1,Male,,2.5");
        QCOMPARE(said[13], "  row3:0,__mv__,mv,1");
        QCOMPARE(said.last(), said.first());
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

    void tablesAreLaidOutInTheNewLanguage() {
        results_->run("FREQ PERSON.SEX\nAVERAGE PERSON.AGE\nCOUNT PERSON");
        const auto heading = [&](int table, int column) {
            results_->click(results_->place(0, table));
            return ResultsFixture::rows(results_->grid()).value(0).section('|', column, column);
        };
        QCOMPARE(heading(0, 1), "Count");
        QVERIFY(heading(1, 1).contains("Average"));
        results_->click(results_->place(0, 0));
        KelSystem& system = KelSystem::instance();
        const auto english = qScopeGuard([&] { system.installTranslator("Process_en"); });
        QVERIFY(system.installTranslator("Process_es"));
        QTRY_COMPARE(results_->find<QTabWidget>("tabWidget")->tabText(0), "Lista");
        // The one that was shown, and those that were laid out before.
        QCOMPARE(ResultsFixture::rows(results_->grid()).value(0).section('|', 1, 1), "Casos");
        QVERIFY2(heading(1, 1).contains("Promedio"), qPrintable(heading(1, 1)));
        ResultsFixture::answerFileDialog(results_->path("es.csv"));
        results_->click(results_->place(0, 0));
        results_->trigger("actionCsvLabelAsHeader");
        const QByteArray csv = ResultsFixture::read(results_->path("es.csv"));
        QVERIFY2(csv.contains("Casos") && !csv.contains("Count"), csv.constData());
        // Labels of the dictionary stay as they are.
        results_->find<QTabWidget>("tabWidget")->setCurrentIndex(1);
        const QString report = ResultsFixture::rows(results_->report()).join('\n');
        QVERIFY2(report.contains("Casos") && report.contains("Sex of the person"),
                 qPrintable(report));
        QVERIFY2(!report.contains("Count|") && !report.contains("Geographic Area"),
                 qPrintable(report));
    }
};

QTEST_MAIN(TestResultsManager)
#include "tst_resultsmanager.moc"
