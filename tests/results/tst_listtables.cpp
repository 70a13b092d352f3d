// SPDX-License-Identifier: GPL-3.0-or-later
// Tables that show a dataset's fields as columns: area lists, views, counts, measures, tables side
// by side.
#include "MadeDataset.h"
#include "MadeTable.h"
#include "RunFixture.h"
#include "results/tables/AreaLayout.h"
#include "results/tables/GenericLayout.h"
#include "results/tables/TablistLayout.h"

#include <QTest>

#include <optional>

namespace {

const QString areas = "TABLE T1 AS FREQ PERSON.SEX\n"
                      "AREALIST DISTRICT, DISTRICT.ZONE, T1";

QStringList header(const TableLayout& layout) {
    return RunFixture::header(layout.header.texts, layout.header.positions, layout.header.spans);
}

/// Two tables and what stands before them, with markers on either side of the categories.
MadeDatasetOutput twoTables() {
    return {{{"D.CMPCODE", "District", "D"},
             {"1. A", "A", "T1"},
             {"T1 MV", "$mv$", "T1"},
             {"2. B", "B", "T1"},
             {"T1 Total", "$tot$", "T1"},
             {"T1 NA", "$na$", "T1"},
             {"T2 NA", "$na$", "T2"},
             {"1. A", "A", "T2"},
             {"T2 Total", "$tot$", "T2"}},
            {{"01", "1", "2", "3", "4", "5", "6", "7", "8"}}};
}

QString rowUnder(TKelOutput& output, const TableViewConfig& options) {
    return RunFixture::raws(areaLayout(output, options).cells).first();
}

QString totalsUnder(std::vector<MadeField> fields, MadeDataset::Rows rows) {
    MadeDatasetOutput output(std::move(fields), std::move(rows));
    TableViewConfig options;
    options.showTotalsRow = true;
    return RunFixture::raws(areaLayout(output, options).cells).last();
}

/// Notes what is asked of it.
class RecordingTable : public MadeTable {
public:
    RecordingTable() : MadeTable(madeLayout({"A"}, {})) {}

    void setHideNa(bool /*hide*/) override { calls += "hideNa"; }
    void setHideMv(bool /*hide*/) override { calls += "hideMv"; }
    void setHideTotal(bool /*hide*/) override { calls += "hideTotal"; }
    void setShowTotalsRow(bool /*show*/) override { calls += "showTotalsRow"; }
    void setRowsOrder(int /*order*/) override { calls += "rowsOrder"; }
    void setColumnOrder(const QStringList& /*keys*/) override { calls += "columnOrder"; }
    void rebuild() override { calls += "rebuild"; }

    QStringList calls;
};

} // namespace

class TestListTables : public QObject {
    Q_OBJECT

    std::optional<RunFixture> run_;

private slots:
    void init() { run_.emplace(); }
    void cleanup() { run_.reset(); }

    // North: a man, four women; South: a man and one not stated.
    void showsAnAreaList() {
        const auto table = run_->table(areas);
        QCOMPARE(table->kind(), tablekind::areaList);
        QCOMPARE(table->columnHeaders(),
                 QStringList({"DISTRICT.CMPCODE", "DISTRICT.NAME", "DISTRICT.ZONE", "Total",
                              "1. Male", "2. Female", "MV"}));
        QCOMPARE(table->columnNames(),
                 QStringList({"DISTRICT.CMPCODE", "DISTRICT.NAME", "DISTRICT.ZONE", "T1 Total",
                              "1. Male", "2. Female", "T1 MV"}));
        QCOMPARE(table->columnLabels(), QStringList({"District", "N-label", "Z-label", "$tot$",
                                                     "Male", "Female", "$mv$"}));
        QCOMPARE(RunFixture::header(*table),
                 QStringList({"District@0,0+1x1|N-label@1,0+1x1|Z-label@2,0+1x1|"
                              "T1 Sex of the person@3,0+4x1",
                              "DISTRICT.CMPCODE@0,1+1x1|DISTRICT.NAME@1,1+1x1|"
                              "DISTRICT.ZONE@2,1+1x1|Total@3,1+1x1|1. Male@4,1+1x1|"
                              "2. Female@5,1+1x1|MV@6,1+1x1"}));
        QCOMPARE(table->headerColors(),
                 QList<QStringList>({QStringList(4, "#7B7B7B"), QStringList(7, "#7B7B7B")}));
        QCOMPARE(RunFixture::displays(table->cells()),
                 QStringList({"01|North|1|5|1|4|0", "02|South|1|1|1|0|1"}));
        QCOMPARE(table->columnAlignments(), (QList<int>{1, 1, 2, 2, 2, 2, 2}));
        QCOMPARE(table->reportColumnAlignments(), table->columnAlignments());
        QCOMPARE(table->dictionaryVariableName(), "DISTRICT.NAME");
    }

    void hidesAndOrdersColumnsOfTables() {
        MadeDatasetOutput output = twoTables();
        TableViewConfig options;
        QCOMPARE(rowUnder(output, options), "01|4|1|3|2|5|8|7|6");
        options.columnOrder = {"__na__", "Variables", "__tot__"};
        QCOMPARE(rowUnder(output, options), "01|5|1|3|4|2|6|7|8");
        options.hideTotal = true;
        QCOMPARE(rowUnder(output, options), "01|5|1|3|2|6|7");
        options.hideMv = true;
        QCOMPARE(rowUnder(output, options), "01|5|1|3|6|7");
        options.hideNa = true;
        QCOMPARE(rowUnder(output, options), "01|1|3|7");
    }

    void hidesTotalsOfSeveralFigures() {
        const auto table = run_->table("TABLE T1 AS STATS OF PERSON.AGE BY PERSON.SEX\n"
                                       "AREALIST DISTRICT, T1");
        const QStringList all = table->columnHeaders();
        QVERIFY(all.join('|').contains("Total Mean"));
        table->setHideTotal(true);
        table->rebuild();
        QVERIFY(table->columnHeaders().size() < all.size());
        QVERIFY(!table->columnHeaders().join('|').contains("Total"));
    }

    void optionsShowAfterRebuild() {
        const auto table = run_->table(areas);
        QCOMPARE(table->cells().width(), 7);
        table->setHideMv(true);
        table->setHideTotal(true);
        table->setShowTotalsRow(true);
        QCOMPARE(table->cells().width(), 7);
        table->rebuild();
        QCOMPARE(
            RunFixture::raws(table->cells()),
            QStringList({"01|North|1|1|4", "02|South|1|1|0", "Total||2.000000|2.000000|4.000000"}));
        QCOMPARE(table->totalRows(), (QList<quint8>{0, 0, 1}));
        QCOMPARE(table->columnDisplays(4), QStringList({"4", "0", "4"}));
        QCOMPARE(RunFixture::header(*table).first().section('|', 3),
                 "T1 Sex of the person@3,0+2x1");
        const QStringList before = RunFixture::raws(table->cells());
        table->headerClicked(1);
        table->rebuild();
        QCOMPARE(RunFixture::raws(table->cells()), before);
    }

    void hasOneHeaderRowWhereNothingJoins() {
        QCOMPARE(RunFixture::header(*run_->table("AREALIST DISTRICT, DISTRICT.ZONE")),
                 QStringList("DISTRICT.CMPCODE@0,0+1x1|DISTRICT.NAME@1,0+1x1|"
                             "DISTRICT.ZONE@2,0+1x1"));
    }

    void joinsWhatHasNoGroup() {
        MadeDatasetOutput output({{"A", "a", ""}, {"", "b", ""}, {"C", "c", "G"}}, {});
        QCOMPARE(header(areaLayout(output, {})),
                 QStringList({"@0,0+2x1|G@2,0+1x1", "A@0,1+1x1|??????@1,1+1x1|C@2,1+1x1"}));
        MadeDatasetOutput unnamed({{"A", "a", ""}, {"", "b", "G"}}, {});
        QCOMPARE(header(areaLayout(unnamed, {})), QStringList("A@0,0+1x1|G@1,0+1x1"));
    }

    void addsWholeNumbersOnly() {
        QCOMPARE(totalsUnder({{"C", "", "a"}, {"X", "", "b"}, {"Y", "", "c"}, {"Z", "", "d"}},
                             {{"1", "3", "1.5", "0"}, {"2", "", "2", ""}, {"3", "4", "3", "0"}}),
                 "Total|7.000000||");
        QCOMPARE(totalsUnder({{"C", "", "a"}, {"X", "", "b"}, {"Y", "", "c"}},
                             {{"1", "-3", "n/a"}, {"2", "4", "5"}}),
                 "Total||5.000000");
    }
    // A 32-bit float would say 16777216, and a double 9007199254740992.
    void addsExactly() {
        QCOMPARE(totalsUnder({{"C", "", "a"}, {"X", "", "b"}, {"Y", "", "c"}, {"Z", "", "d"}},
                             {{"1", "16777216", "9007199254740992", "9223372036854775807"},
                              {"2", "1", "1", "1"}}),
                 "Total|16777217.000000|9007199254740993.000000|");
    }
    void addsNoTexts() {
        TKelEntity entity(nullptr);
        entity.setName("D");
        MadeDatasetOutput output({{"D.CMPCODE", "", "a"},
                                  {"D.TEXT", "", "b"},
                                  {"D.NUMBER", "", "c"},
                                  {"1. D.TEXT", "", "T1"}},
                                 {{"01", "007", "7", "8"}, {"02", "11", "2", "9"}});
        output.addVariable(entity, "TEXT", eVarType::STRING);
        output.addVariable(entity, "NUMBER", eVarType::INTEGER);
        output.addVariable(entity, "TEXT", eVarType::STRING);
        TableViewConfig options;
        options.showTotalsRow = true;
        const TableLayout layout = areaLayout(output, options);
        QCOMPARE(RunFixture::raws(layout.cells).last(), "Total||9.000000|17.000000");
        QCOMPARE(layout.textColumns, (std::vector<bool>{true, true, false, false}));
    }

    void showsAView() {
        const auto table = run_->table("VIEW DISTRICT, DISTRICT.CODE, DISTRICT.ZONE");
        QCOMPARE(table->kind(), tablekind::areaList);
        QCOMPARE(RunFixture::displays(table->cells()), QStringList({"01|01|1", "02|02|1"}));
        QCOMPARE(table->columnAlignments(), (QList<int>{1, 1, 2}));
        // Records without a code are numbered; stored values stand as codes.
        QCOMPARE(RunFixture::displays(run_->table("VIEW PERSON, PERSON.SEX, PERSON.AGE")->cells())
                     .last(),
                 "7|9|20");
    }

    void showsTextsThatAProgramMade() {
        const auto table = run_->table(
            "DEFINE DISTRICT.MARK AS DISTRICT.CODE TYPE STRING\nVIEW DISTRICT, DISTRICT.MARK");
        QCOMPARE(RunFixture::displays(table->cells()), QStringList({"01|01", "02|02"}));
        QCOMPARE(table->columnAlignments(), (QList<int>{1, 1}));
    }

    void showsACount() {
        const auto table = run_->table("COUNT HOUSEHOLD");
        QCOMPARE(table->kind(), tablekind::areaList);
        QCOMPARE(table->columnHeaders(), QStringList({"Entity", "Count"}));
        QCOMPARE(RunFixture::displays(table->cells()), QStringList("HOUSEHOLD|3"));
        QCOMPARE(table->columnAlignments(), (QList<int>{1, 2}));
        QCOMPARE(table->dictionaryVariableName(), QString());
    }

    void showsMeasures() {
        const auto table = run_->table("MAX PERSON.AGE BY PERSON.SEX");
        QCOMPARE(table->kind(), tablekind::maximum);
        QCOMPARE(table->columnHeaders().first(), "Sex of the person");
        QCOMPARE(table->columnNames().first(), "PERSON.SEX");
        QCOMPARE(RunFixture::displays(table->cells()),
                 QStringList({"1. Male|34", "2. Female|62", "Total|62", "MV|20"}));
        QCOMPARE(table->columnAlignments(), (QList<int>{1, 2}));
        QCOMPARE(table->totalRows(), (QList<quint8>{0, 0, 1, 0}));
        QCOMPARE(table->columnValues(1), (QList<double>{0, 0, 0, 0}));
        QCOMPARE(RunFixture::displays(run_->table("MEDIAN PERSON.AGE")->cells()),
                 QStringList("31"));
    }

    // Several figures stand under what they measure.
    void showsSeveralFigures() {
        const auto table = run_->table("STATS OF PERSON.AGE BY PERSON.SEX");
        QCOMPARE(table->kind(), tablekind::stats);
        QCOMPARE(table->headerTexts().size(), 2);
        QCOMPARE(table->headerTexts().first(), QStringList({"PERSON.SEX", "Age in years"}));
        QCOMPARE(table->headerSpans().first().last().first, table->cells().width() - 1);
        // Cases, sum, mean of the ages 34 and 19.
        QCOMPARE(RunFixture::displays(table->cells()).first().section('|', 0, 3),
                 "1. Male|2|53|26.50");
        const auto whole = run_->table("QUANTILE 4 OF PERSON.AGE");
        QCOMPARE(RunFixture::header(*whole),
                 QStringList({"Age in years@0,0+3x1",
                              "Quantile 1@0,1+1x1|Quantile 2@1,1+1x1|Quantile 3@2,1+1x1"}));
        const QString doubled = "DEFINE PERSON.TWICE AS PERSON.AGE * 2 TYPE INTEGER\n"
                                "STATS OF PERSON.TWICE";
        QCOMPARE(run_->table(doubled)->headerTexts().first(), QStringList("PERSON.TWICE"));
        QCOMPARE(run_->table(doubled + " BY PERSON.TWICE")->headerTexts().first(),
                 QStringList({"PERSON.TWICE", "STATS PERSON.TWICE"}));
    }

    void hasOneHeaderRowOverSingleFigures() {
        for (const char* program :
             {"COUNT HOUSEHOLD", "SUM PERSON.AGE", "MAX PERSON.AGE BY PERSON.SEX",
              "TABLE A AS SUM PERSON.AGE\nTABLE R AS TABOP OF A * 2"})
            QCOMPARE(run_->table(program)->headerTexts().size(), 1);
    }

    // The areas are headed by their variable.
    void breaksByAreas() {
        const QString broken = "RUNDEF r NOWEIGHT AREABREAK DISTRICT\n";
        const auto stats = run_->table(broken + "STATS OF PERSON.AGE BY PERSON.SEX");
        QCOMPARE(stats->columnNames().first(), "DISTRICT.CMPCODE");
        QCOMPARE(stats->headerTexts().first(),
                 QStringList({"DISTRICT.CMPCODE", "PERSON.SEX", "Age in years"}));
        QCOMPARE(stats->cells().display(0, 0), "01. North");
        const QString tables = broken + "TABLE A AS SUM PERSON.AGE\nTABLE B AS MAX PERSON.AGE\n";
        const auto tablist = run_->table(tables + "TABLE L AS TABLIST A, B");
        QCOMPARE(tablist->columnHeaders(), QStringList({"DISTRICT.CMPCODE", "A", "B"}));
        const auto tabop = run_->table(tables + "TABLE R AS TABOP OF A / B");
        QCOMPARE(tabop->columnNames(), QStringList({"DISTRICT.CMPCODE", "R"}));
        QCOMPARE(tabop->columnHeaders(), QStringList({"District", "R"}));
    }

    void showsTheFigureOfTables() {
        const auto table = run_->table("TABLE A AS FREQ PERSON.SEX\n"
                                       "TABLE B AS FREQ PERSON.SEX FILTER PERSON.AGE < 20\n"
                                       "TABLE R AS TABOP OF B / A * 100");
        QCOMPARE(table->kind(), tablekind::tabop);
        QCOMPARE(table->columnHeaders(), QStringList({"Sex of the person", "R"}));
        QCOMPARE(RunFixture::displays(table->cells()),
                 QStringList({"1. Male|50", "2. Female|25", "Total|33.33", "MV|0"}));
    }

    void showsTablesSideBySide() {
        const auto table = run_->table("TABLE A AS FREQ PERSON.SEX\n"
                                       "TABLE B AS AVERAGE PERSON.AGE BY PERSON.SEX\n"
                                       "TABLE L AS TABLIST A, B",
                                       {1, "'", "Name"});
        QCOMPARE(table->kind(), tablekind::tablist);
        QCOMPARE(table->columnHeaders(), QStringList({"PERSON.SEX", "A", "B"}));
        QCOMPARE(RunFixture::header(*table), QStringList("PERSON.SEX@0,0+1x1|A@1,0+1x1|B@2,0+1x1"));
        QCOMPARE(RunFixture::displays(table->cells()),
                 QStringList({"1. Male|2|26.5", "2. Female|4|39.5", "Total|6|35.2", "MV|1|20"}));
        QCOMPARE(table->dictionaryVariableName(), QString());
    }

    void headsMarkersOfTablesByTheirWords() {
        MadeDatasetOutput output(
            {{"P.SEX", "Sex", "P.SEX"}, {"T1 Total", "$tot$", "T1"}, {"", "", "T2"}},
            {{"0. __mv__", "1234567.5", ""}});
        const TableLayout layout = tablistLayout(output);
        QCOMPARE(layout.columnHeaders, QStringList({"P.SEX", "Total", "T2"}));
        QCOMPARE(layout.columnLabels, QStringList({"Sex", "$tot$", ""}));
    }

    // Frequencies and tables side by side take decimals and separator, lists keep the user's own.
    void takesTheFormatOfAStyle() {
        TableViewConfig style;
        style.decimals = 1;
        style.thousandSep = QString();
        const QString joined = "DEFINE PERSON.BIG AS PERSON.AGE * 1000.25 TYPE REAL\n"
                               "TABLE A AS AVERAGE PERSON.BIG BY PERSON.SEX\n";
        const auto tablist = run_->table(joined + "TABLE L AS TABLIST A, A");
        QCOMPARE(tablist->cells().display(0, 1), "26 506.63");
        tablist->applyViewConfig(style);
        QCOMPARE(tablist->cells().display(0, 1), "26506.6");
        const auto list = run_->table(joined + "VIEW PERSON, PERSON.BIG");
        list->applyViewConfig(style);
        QCOMPARE(list->cells().display(0, 1), "34 008.50");
    }

    void theProgramsDecimalsComeFirst() {
        TableViewConfig style;
        style.decimals = 1;
        const auto table = run_->table("AVERAGE PERSON.AGE BY PERSON.SEX DECIMALS 4");
        table->applyViewConfig(style);
        QCOMPARE(table->cells().display(2, 1), "35.1667");
    }

    // Classes that stand for others override setters: each is told, in this order.
    void appliesAConfigThroughTheSetters() {
        RecordingTable table;
        table.applyViewConfig({});
        QCOMPARE(table.calls, QStringList({"hideNa", "hideMv", "hideTotal", "showTotalsRow",
                                           "rowsOrder", "columnOrder", "rebuild"}));
        table.calls.clear();
        static_cast<TableBase&>(table).reserved();
        QVERIFY(table.calls.isEmpty());
    }

    void readsColumnsOfRowsThatEndEarly() {
        const MadeTable table(madeLayout({"A", "B", "C"}, {{"a", "1", "2.5"}, {"b"}, {"c", "3"}}));
        QCOMPARE(table.columnValues(1), (QList<double>{1, 3}));
        QCOMPARE(table.columnDisplays(1), QStringList({"1", "3"}));
        QCOMPARE(table.columnDisplays(0), QStringList({"a", "b", "c"}));
        QCOMPARE(table.columnDisplays(2), QStringList("2.50"));
        QVERIFY(table.columnValues(3).isEmpty());
    }

    void appliesAWholeConfig() {
        TableViewConfig style;
        style.hideNa = style.hideMv = style.hideTotal = style.showTotalsRow = true;
        style.rowsOrder = TableViewConfig::Descending;
        style.columnOrder = QStringList{"Variables"};
        style.columnGroupLabels = QStringList{"Todos"};
        style.threeVarLayout = "matrixByFirstVar";
        const auto table = run_->table(areas);
        table->applyViewConfig(style);
        QVERIFY(table->hideNa() && table->hideMv() && table->hideTotal());
        QVERIFY(table->showTotalsRow());
        QCOMPARE(table->rowsOrder(), 2);
        QCOMPARE(table->columnOrder(), style.columnOrder);
        QCOMPARE(table->columnGroupLabels(), style.columnGroupLabels);
        QCOMPARE(table->viewConfig().threeVarLayout, style.threeVarLayout);
        QCOMPARE(table->cells().size(), 3);
        QCOMPARE(table->cells().width(), 5);
    }

    void whatHasNoFiguresHasNoRows() {
        MadeDatasetOutput empty;
        for (const TableLayout& layout :
             {areaLayout(empty, {}), genericLayout(empty), tablistLayout(empty)}) {
            QCOMPARE(layout.cells.rows(), 0);
            QVERIFY(layout.columnHeaders.isEmpty());
        }
        MadeDatasetOutput fieldless({}, {});
        QCOMPARE(areaLayout(fieldless, {}).cells.rows(), 0);
        QCOMPARE(genericLayout(fieldless).cells.rows(), 0);
        // A list of nothing still has its headings.
        const auto none = run_->table("AREALIST DISTRICT, DISTRICT.ZONE FILTER DISTRICT.ZONE = 5");
        QCOMPARE(none->cells().size(), 0);
        QCOMPARE(none->columnHeaders().size(), 3);
        QCOMPARE(none->columnAlignments(), (QList<int>{1, 1, 2}));
    }
};

QTEST_GUILESS_MAIN(TestListTables)
#include "tst_listtables.moc"
