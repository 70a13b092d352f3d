// SPDX-License-Identifier: GPL-3.0-or-later
// Crosstabs of the seven persons of support/SmallDatabase.h. Figures were counted by hand:
//
//   district  rooms  SEX     BAND (of AGE)
//   01        2      1 2 2   2 2 1
//   01        3      2 2     3 3
//   02        2      1 MV    1 2
#include "RunFixture.h"

#include "boundary/output_data.h"
#include "boundary/state.h"
#include "results/tables/AverageLayout.h"
#include "results/tables/CrossLayout.h"
#include "results/tables/TableFrequency.h"
#include "results/tables/VariableHeading.h"

#include "TKelOutput.h"
#include "TKelVariable.h"

#include <QTest>

namespace {

const QString bands = "DEFINE PERSON.BAND AS RECODE PERSON.AGE "
                      "(LOWEST : 19 = 1) (20 : 59 = 2) (60 : HIGHEST = 3) TYPE INTEGER "
                      "VARLABEL \"Age band\" "
                      "VALUELABELS 1 \"Young|er\" 2 \"20 < 60\" 3 \"Old\"\n";
const QString threeVariables = bands + "FREQ HOUSEHOLD.ROOMS BY PERSON.BAND BY PERSON.SEX";
const QStringList bandBySex{"Total,6,2,4,1,", "1. Young|er,2,1,1,,", "2. 20 < 60,2,1,1,1,",
                            "3. Old,2,,2,,"};

QStringList before(const QString& text, const QStringList& lines) {
    QStringList result;
    for (const QString& line : lines)
        result += text + line;
    return result;
}

} // namespace

class TestCrossTables : public QObject {
    Q_OBJECT

    RunFixture fixture_;

    std::unique_ptr<TableBase> table(const QString& program) { return fixture_.table(program); }

private slots:
    void laysOutTwoVariables();
    void headsRowsAndColumns();
    void keepsMarkersRaw();
    void hidesMissing();
    void hidesNotApplicable();
    void headsWhatHasNoFigures();
    void takesWhatIsHiddenFromTheShowFlags();
    void keepsTheTotalColumn();
    void addsBothMarkerColumns();
    void ordersColumnGroups();
    void ordersByNumber();
    void groupsTheReportOfThreeVariables();
    void groupsTheReportOfFourVariables();
    void laysOutTheMatrix();
    void hidesInTheMatrix();
    void keepsTheMatrixToThreeVariables();
    void breaksByAreas();
    void laysOutTabop();
    void formatsByTheConfig();
    void leavesSuppressedCellsEmpty();
    void stepsTheOrder();
};

void TestCrossTables::laysOutTwoVariables() {
    const auto made = table(bands + "FREQ PERSON.BAND BY PERSON.SEX");
    QCOMPARE(commaLines(*made), bandBySex);
    QCOMPARE(commaLines(made->reportCells()), bandBySex);
    QCOMPARE(made->columnAlignments(), QList<int>({1, 2, 2, 2, 2, 2}));
    QCOMPARE(made->totalRows(), QList<quint8>({1, 0, 0, 0}));
    QCOMPARE(made->columnValues(1), QList<double>({6, 2, 2, 2}));
    QCOMPARE(made->kind(), tablekind::frequency);
    QVERIFY(made->layoutNote().isEmpty());
}

void TestCrossTables::headsRowsAndColumns() {
    const auto made = table(bands + "FREQ PERSON.BAND BY PERSON.SEX");
    const QString row = "PERSON.BAND (Age band)";
    const QStringList columns{"Total", "1. Male", "2. Female", "MV", "NA"};
    QCOMPARE(made->columnHeaders(), QStringList{row} + columns);
    QCOMPARE(
        RunFixture::header(*made),
        QStringList({row + "@0,0+1x2|PERSON.SEX (Sex of the person)@1,0+5x1",
                     "Total@1,1+1x1|1. Male@2,1+1x1|2. Female@3,1+1x1|MV@4,1+1x1|NA@5,1+1x1"}));
    QCOMPARE(made->headerColors().last(), QStringList(5, "#7B7B7B"));
    QCOMPARE(made->columnNames(), QStringList({"PERSON.BAND", "0. __tot__", "1. Male", "2. Female",
                                               "0. __mv__", "0. __na__"}));
    QCOMPARE(made->columnLabels(),
             QStringList({"Age band", "Total", "Male", "Female", "MV", "NA"}));
    QCOMPARE(made->dictionaryVariableName(), "PERSON.BAND");
    TablePreferences names;
    names.variableHeading = "Name";
    QCOMPARE(fixture_.table("FREQ PERSON.SEX BY PERSON.AGE", names)->columnHeaders().first(),
             "PERSON.SEX");
}

void TestCrossTables::keepsMarkersRaw() {
    const auto made = table(bands + "FREQ PERSON.SEX BY PERSON.BAND");
    QCOMPARE(commaLines(*made),
             QStringList({"Total,6,2,2,2", "1. Male,2,1,1,", "2. Female,4,1,1,2", "MV,1,,1,"}));
    QCOMPARE(made->cells().raw(0, 0), "0. __tot__");
    QCOMPARE(made->cells().raw(3, 0), "0. __mv__");
    // The code alone where it is its own label, but for columns.
    const auto rooms = table("FREQ HOUSEHOLD.ROOMS BY DISTRICT.ZONE");
    QCOMPARE(commaLines(*rooms), QStringList({"Total,3,3", "2,2,2", "3,1,1"}));
    QCOMPARE(rooms->columnHeaders().last(), "1. 1");
}

void TestCrossTables::hidesMissing() {
    const auto made = table(bands + "FREQ PERSON.SEX BY PERSON.BAND BY PERSON.SEX");
    QVERIFY(commaLines(*made).contains("MV,2. 20 < 60,,,,1,"));
    made->setHideMv(true);
    made->rebuild();
    QCOMPARE(made->columnHeaders().mid(2), QStringList({"Total", "1. Male", "2. Female", "NA"}));
    QVERIFY(commaLines(*made).filter("MV").isEmpty());
    QCOMPARE(commaLines(*made).first(), "Total,Total,6,2,4,");
    made->setHideNa(true);
    made->rebuild();
    QCOMPARE(made->columnHeaders().mid(2), QStringList({"Total", "1. Male", "2. Female"}));
    QCOMPARE(made->headerSpans().first().last(), std::pair(3, 1));
}

void TestCrossTables::hidesNotApplicable() {
    const auto made = table("DEFINE PERSON.SCHOOL AS SWITCH CASE PERSON.AGE > 61 ASSIGN 8 "
                            "CASE PERSON.AGE > 30 ASSIGN 1 ELSE 2 TYPE INTEGER NOTAPP 8\n"
                            "FREQ PERSON.SCHOOL BY HOUSEHOLD.ROOMS");
    QCOMPARE(made->columnDisplays(0), QStringList({"Total", "1", "2", "NA"}));
    made->setHideNa(true);
    made->rebuild();
    QCOMPARE(made->columnDisplays(0), QStringList({"Total", "1", "2"}));
}

/// An output may have lost its figures.
void TestCrossTables::headsWhatHasNoFigures() {
    const auto without = [this](const QString& program) -> TKelOutput& {
        TKelOutput& output = *fixture_.run(program).back();
        KelBoundaryAccess::data(output).dataset.reset();
        return output;
    };
    TableViewConfig matrix;
    matrix.threeVarLayout = "matrixByFirstVar";
    const TableLayout cross = crosstabLayout(without("FREQ PERSON.SEX BY PERSON.AGE"), {}, {});
    QCOMPARE(cross.columnHeaders.first(), "PERSON.SEX (Sex of the person)");
    const TableLayout three = crosstabLayout(without(threeVariables), matrix, {});
    QCOMPARE(three.columnHeaders.first(), "PERSON.BAND (Age band)");
    const TableLayout average =
        averageLayout(without("AVERAGE PERSON.AGE BY HOUSEHOLD.ROOMS BY PERSON.SEX"), {}, {});
    QCOMPARE(average.columnHeaders.first(), "HOUSEHOLD.ROOMS (R-label)");
    const TableLayout one = averageLayout(without("AVERAGE PERSON.AGE BY PERSON.SEX"), {}, {});
    QCOMPARE(one.columnHeaders.size(), 4);
    const TableLayout whole = averageLayout(without("AVERAGE PERSON.AGE"), {}, {});
    QCOMPARE(whole.columnHeaders, QStringList({"Variable", "Average"}));
    for (const TableLayout* layout : {&cross, &three, &average, &one, &whole})
        QCOMPARE(layout->cells.rows(), 0);
}

void TestCrossTables::takesWhatIsHiddenFromTheShowFlags() {
    TableViewConfig config;
    config.hideMv = true;
    config.showMvOneVariable = false;
    config.showNaSeveralVariables = false;
    const auto cross = table(bands + "FREQ PERSON.BAND BY PERSON.SEX");
    cross->applyViewConfig(config);
    QVERIFY(!cross->hideMv());
    QVERIFY(cross->hideNa());
    QCOMPARE(cross->columnHeaders().mid(1), QStringList({"Total", "1. Male", "2. Female", "MV"}));
    const auto single = table("FREQ PERSON.SEX");
    single->applyViewConfig(config);
    QVERIFY(single->hideMv());
    QVERIFY(!single->hideNa());
}

void TestCrossTables::keepsTheTotalColumn() {
    const auto made = table(bands + "FREQ PERSON.BAND BY PERSON.SEX");
    made->setHideTotal(true);
    made->rebuild();
    QCOMPARE(commaLines(*made), bandBySex);
}

void TestCrossTables::addsBothMarkerColumns() {
    const QString school = "DEFINE PERSON.SCHOOL AS SWITCH CASE PERSON.AGE > 61 ASSIGN 8 "
                           "CASE PERSON.AGE > 30 ASSIGN 1 ELSE 2 TYPE INTEGER NOTAPP 8\n";
    const auto made = table(school + "FREQ PERSON.SEX BY PERSON.SCHOOL");
    QCOMPARE(made->columnHeaders().mid(1), QStringList({"Total", "1. 1", "2. 2", "MV", "NA"}));
    QCOMPARE(commaLines(*made),
             QStringList({"Total,5,3,2,,1", "1. Male,2,1,1,,", "2. Female,3,2,1,,1", "MV,1,,1,,"}));
    // As rows only those that occur.
    QCOMPARE(commaLines(*table(school + "FREQ PERSON.SCHOOL BY HOUSEHOLD.ROOMS")),
             QStringList({"Total,6,5,1", "1,3,2,1", "2,3,3,", "NA,1,,1"}));
}

void TestCrossTables::ordersColumnGroups() {
    const auto made = table(bands + "FREQ PERSON.BAND BY PERSON.SEX");
    made->setColumnOrder(
        {columnkeys::variables, columnkeys::notApplicable, columnkeys::total, columnkeys::missing});
    made->rebuild();
    QCOMPARE(made->columnHeaders().mid(1),
             QStringList({"1. Male", "2. Female", "NA", "Total", "MV"}));
    QCOMPARE(commaLines(*made), QStringList({"Total,2,4,,6,1", "1. Young|er,1,1,,2,",
                                             "2. 20 < 60,1,1,,2,1", "3. Old,,2,,2,"}));
}

void TestCrossTables::ordersByNumber() {
    const QString words = "DEFINE PERSON.WORD AS SWITCH CASE PERSON.AGE < 20 ASSIGN \"10\" "
                          "CASE PERSON.AGE < 60 ASSIGN \"9\" ELSE \"A\" TYPE STRING\n";
    QCOMPARE(commaLines(*table(words + "FREQ PERSON.WORD BY HOUSEHOLD.ROOMS")),
             QStringList({"Total,7,5,2", "A,2,,2", "9,3,3,", "10,2,2,"}));
    QCOMPARE(table(words + "FREQ HOUSEHOLD.ROOMS BY PERSON.WORD")->columnHeaders().mid(1),
             QStringList({"Total", "A. A", "9. 9", "10. 10"}));
    const auto large = table("DEFINE PERSON.BIG AS PERSON.AGE * 1000000000 TYPE INTEGER\n"
                             "FREQ PERSON.BIG BY PERSON.SEX");
    const QStringList codes = large->columnDisplays(0);
    QCOMPARE(codes, QStringList({"Total", "5000000000", "19000000000", "20000000000", "31000000000",
                                 "34000000000", "60000000000", "62000000000"}));
}

void TestCrossTables::groupsTheReportOfThreeVariables() {
    const auto made = table(threeVariables);
    const QStringList ofTwoRooms{"Total,4,2,2,1,", "1. Young|er,2,1,1,,", "2. 20 < 60,2,1,1,1,"};
    const QStringList ofThreeRooms{"Total,2,,2,,", "3. Old,2,,2,,"};
    QCOMPARE(commaLines(*made),
             before("Total,", bandBySex) + before("2,", ofTwoRooms) + before("3,", ofThreeRooms));
    QCOMPARE(commaLines(made->reportCells()),
             QStringList{"Total,,,,,,"} + before(",", bandBySex) + QStringList{"2,,,,,,"} +
                 before(",", ofTwoRooms) + QStringList{"3,,,,,,"} + before(",", ofThreeRooms));
    QCOMPARE(made->reportTotalRows(), QList<quint8>({1, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0}));
    QCOMPARE(made->reportColumnAlignments(), QList<int>({1, 1, 2, 2, 2, 2, 2}));
    QCOMPARE(RunFixture::header(*made).first(),
             "HOUSEHOLD.ROOMS (R-label)@0,0+1x2|PERSON.BAND (Age band)@1,0+1x2|"
             "PERSON.SEX (Sex of the person)@2,0+5x1");
}

/// All districts are of zone 1: its part of the table is that of the total.
void TestCrossTables::groupsTheReportOfFourVariables() {
    const auto three = table(threeVariables);
    const QStringList cells = commaLines(*three);
    const QStringList report = commaLines(three->reportCells());
    const auto four =
        table(bands + "FREQ DISTRICT.ZONE BY HOUSEHOLD.ROOMS BY PERSON.BAND BY PERSON.SEX");
    QCOMPARE(commaLines(*four), before("Total,", cells) + before("1,", cells));
    QCOMPARE(commaLines(four->reportCells()), QStringList{"Total,,,,,,,"} + before(",", report) +
                                                  QStringList{"1,,,,,,,"} + before(",", report));
}

void TestCrossTables::laysOutTheMatrix() {
    const auto made = table(threeVariables);
    TableViewConfig config;
    config.threeVarLayout = "matrixByFirstVar";
    config.showNaSeveralVariables = false;
    made->applyViewConfig(config);
    // Four columns in each of the blocks Total, 2 and 3 rooms.
    QCOMPARE(commaLines(*made),
             QStringList({"Total,6,2,4,1,4,2,2,1,2,,2,", "1. Young|er,2,1,1,,2,1,1,,,,,",
                          "2. 20 < 60,2,1,1,1,2,1,1,1,,,,", "3. Old,2,,2,,,,,,2,,2,"}));
    QCOMPARE(commaLines(made->reportCells()), commaLines(*made));
    const QString columns = "Total@%1,3+1x1|1. Male@%2,3+1x1|2. Female@%3,3+1x1|MV@%4,3+1x1";
    QCOMPARE(RunFixture::header(*made),
             QStringList({"PERSON.BAND (Age band)@0,0+1x4|HOUSEHOLD.ROOMS (R-label)@1,0+12x1",
                          "Total@1,1+4x1|2. 2@5,1+4x1|3. 3@9,1+4x1",
                          "PERSON.SEX (Sex of the person)@1,2+4x1|PERSON.SEX (Sex of the "
                          "person)@5,2+4x1|PERSON.SEX (Sex of the person)@9,2+4x1",
                          columns.arg(1).arg(2).arg(3).arg(4) + "|" +
                              columns.arg(5).arg(6).arg(7).arg(8) + "|" +
                              columns.arg(9).arg(10).arg(11).arg(12)}));
    QCOMPARE(made->columnHeaders().mid(0, 6),
             QStringList({"PERSON.BAND (Age band)", "Total / Total", "Total / 1. Male",
                          "Total / 2. Female", "Total / MV", "2. 2 / Total"}));
    QCOMPARE(made->columnNames()[2], "0. __tot__ / 1. Male");
    QCOMPARE(made->columnLabels()[2], "Total / Male");
}

void TestCrossTables::hidesInTheMatrix() {
    const auto made = table(bands + "FREQ PERSON.SEX BY PERSON.BAND BY HOUSEHOLD.ROOMS");
    TableViewConfig config;
    config.threeVarLayout = "matrixByFirstVar";
    made->applyViewConfig(config);
    QVERIFY(!made->columnHeaders().filter("MV / ").isEmpty());
    made->setHideMv(true);
    made->setColumnOrder({columnkeys::variables, columnkeys::total});
    made->rebuild();
    QCOMPARE(made->columnHeaders().mid(1),
             QStringList({"1. Male / 2. 2", "1. Male / 3. 3", "1. Male / Total", "2. Female / 2. 2",
                          "2. Female / 3. 3", "2. Female / Total", "Total / 2. 2", "Total / 3. 3",
                          "Total / Total"}));
    QCOMPARE(commaLines(*made), QStringList({"Total,2,,2,2,2,4,4,2,6", "1. Young|er,1,,1,1,,1,2,,2",
                                             "2. 20 < 60,1,,1,1,,1,2,,2", "3. Old,,,,,2,2,,2,2"}));
}

void TestCrossTables::keepsTheMatrixToThreeVariables() {
    TableViewConfig config;
    config.threeVarLayout = "matrixByFirstVar";
    const auto two = table(bands + "FREQ PERSON.BAND BY PERSON.SEX");
    two->applyViewConfig(config);
    QCOMPARE(commaLines(*two), bandBySex);
    config.threeVarLayout = "MATRIXBYFIRSTVAR";
    const auto three = table(threeVariables);
    three->applyViewConfig(config);
    QCOMPARE(three->headerTexts().size(), 2);
}

void TestCrossTables::breaksByAreas() {
    const auto made = table("RUNDEF r NOWEIGHT AREABREAK DISTRICT\nFREQ PERSON.SEX");
    QCOMPARE(commaLines(*made),
             QStringList({"Total,6,2,4,1,", "01. North,5,1,4,,", "02. South,1,1,,1,"}));
    QCOMPARE(made->headerTexts().last(),
             QStringList({"Total", "1. Male", "2. Female", "MV", "NA"}));
    const auto three =
        table("RUNDEF r NOWEIGHT AREABREAK DISTRICT\n" + bands + "FREQ PERSON.BAND BY PERSON.SEX");
    QCOMPARE(commaLines(three->reportCells()),
             QStringList{"Total,,,,,,"} + before(",", bandBySex) +
                 QStringList({"01. North,,,,,,", ",Total,5,1,4,,", ",1. Young|er,1,,1,,",
                              ",2. 20 < 60,2,1,1,,", ",3. Old,2,,2,,", "02. South,,,,,,",
                              ",Total,1,1,,1,", ",1. Young|er,1,1,,,", ",2. 20 < 60,,,,1,"}));
}

/// The share of women in each cell.
void TestCrossTables::laysOutTabop() {
    const auto made = table(bands + "TABLE F AS FREQ PERSON.BAND BY HOUSEHOLD.ROOMS FILTER "
                                    "PERSON.SEX = 2\n"
                                    "TABLE ALLOF AS FREQ PERSON.BAND BY HOUSEHOLD.ROOMS\n"
                                    "TABLE SHARE AS TABOP OF F / ALLOF * 100");
    QVERIFY(dynamic_cast<TableFrequency*>(made.get()) != nullptr);
    QCOMPARE(made->kind(), tablekind::frequency);
    QCOMPARE(made->metadata().kind, tablekind::tabop);
    QCOMPARE(commaLines(*made), QStringList({"Total,57.14,40,100", "1. Young|er,50,50,",
                                             "2. 20 < 60,33.33,33.33,", "3. Old,100,,100"}));
    QCOMPARE(made->headerTexts().first().first(), "PERSON.BAND (Age band)");
    const auto one = table("TABLE A AS FREQ PERSON.SEX\nTABLE TWICE AS TABOP OF A * 2");
    QCOMPARE(one->kind(), tablekind::tabop);
    QCOMPARE(commaLines(*one), QStringList({"1. Male,4", "2. Female,8", "Total,12", "MV,2"}));
}

void TestCrossTables::formatsByTheConfig() {
    TablePreferences preferences;
    preferences.decimals = 1;
    const auto made = fixture_.table("FREQ PERSON.SEX BY HOUSEHOLD.ROOMS WEIGHT "
                                     "HOUSEHOLD.WEIGHT * 1000.25",
                                     preferences);
    // 3 persons at 1.5, 2 at 2, one at 1.
    QCOMPARE(commaLines(*made).first(), "Total,9 502.4,5 501.4,4 001");
    TableViewConfig config;
    config.decimals = 3;
    config.thousandSep = "'";
    made->applyViewConfig(config);
    QCOMPARE(commaLines(*made).first(), "Total,9'502.375,5'501.375,4'001");
    config.thousandSep.clear();
    made->applyViewConfig(config);
    QCOMPARE(commaLines(*made).first(), "Total,9502.375,5501.375,4001");
}

void TestCrossTables::leavesSuppressedCellsEmpty() {
    const auto made = table(bands + "FREQ PERSON.BAND BY PERSON.SEX SENSITIVE 2");
    QVERIFY(made->metadata().suppressed > 0);
    QCOMPARE(made->cells().raw(1, 2), QString());
    QCOMPARE(made->columnAlignments().mid(1), QList<int>({2, 2, 2, 2, 2}));
}

void TestCrossTables::stepsTheOrder() {
    const auto made = table("FREQ PERSON.SEX BY PERSON.AGE");
    for (const int order : {1, 2, 0}) {
        made->headerClicked(1);
        QCOMPARE(made->rowsOrder(), order);
    }
    const QStringList rows = commaLines(*made);
    made->setRowsOrder(TableViewConfig::Descending);
    made->rebuild();
    QCOMPARE(commaLines(*made), rows);
}

QTEST_GUILESS_MAIN(TestCrossTables)
#include "tst_crosstables.moc"
