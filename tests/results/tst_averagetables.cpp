// SPDX-License-Identifier: GPL-3.0-or-later
// Averages and other measures of the seven persons of support/SmallDatabase.h, whose ages are
//
//   district  rooms  AGE (SEX)
//   01        2      34 (1)  31 (2)  5 (2)
//   01        3      60 (2)  62 (2)
//   02        2      19 (1)  20 (missing)
#include "RunFixture.h"

#include "results/tables/Table.h"
#include "results/tables/TableAverage.h"
#include "results/tables/VariableHeading.h"

#include "TKelOutput.h"

#include <QTest>

namespace {

const QString bySexAndRooms = "AVERAGE PERSON.AGE BY HOUSEHOLD.ROOMS BY PERSON.SEX";

} // namespace

class TestAverageTables : public QObject {
    Q_OBJECT

    RunFixture fixture_;

    std::unique_ptr<TableBase> table(const QString& program) { return fixture_.table(program); }
    /// The output as the class that stands for any.
    std::unique_ptr<Table> plainTable(const QString& program) {
        TKelOutput& output = *fixture_.run(program).back();
        return std::make_unique<Table>(TableSource{&output, {}, fixture_.metadata(output)});
    }

private slots:
    void averagesAllRecords();
    void averagesByOneVariable();
    void ordersTheRowsOfOneVariable();
    void averagesByTwoVariables();
    void averagesByThreeVariables();
    void hidesTheTotalColumn();
    void keepsThePreferencesFormat();
    void leavesOtherMeasuresAsTheyCome_data();
    void leavesOtherMeasuresAsTheyCome();
    void laysOutAnyOutputAsATable();
    void formatsOfATableOfAnyOutput();
};

void TestAverageTables::averagesAllRecords() {
    const auto made = table("AVERAGE PERSON.AGE");
    QVERIFY(dynamic_cast<TableAverage*>(made.get()) != nullptr);
    QCOMPARE(made->kind(), tablekind::average);
    QCOMPARE(made->columnHeaders(), QStringList({"Variable", "Average"}));
    QCOMPARE(made->headerTexts(), QList<QStringList>({{"Variable", "Average"}}));
    QCOMPARE(made->columnNames(), QStringList({"Variable", "PERSON.AGE"}));
    QCOMPARE(commaLines(made->cells()), QStringList({"PERSON.AGE,33"}));
    QCOMPARE(made->columnAlignments(), QList<int>({1, 2}));
}

/// The overall average stands for the total.
void TestAverageTables::averagesByOneVariable() {
    const auto made = table("AVERAGE PERSON.AGE BY PERSON.SEX");
    QCOMPARE(made->columnHeaders(),
             QStringList({"PERSON.SEX (Sex of the person)", "count", "%", "Cumul%"}));
    // 53 / 2, 158 / 4, 211 / 6.
    QCOMPARE(commaLines(made->cells()),
             QStringList({"1. Male,26.50,75.36,75.36", "2. Female,39.50,112.32,187.68",
                          "Total,35.17,100,", "MV,20,,"}));
}

void TestAverageTables::ordersTheRowsOfOneVariable() {
    const auto made = table("AVERAGE PERSON.AGE BY PERSON.SEX");
    const auto codes = [&] {
        made->rebuild();
        return made->columnDisplays(0);
    };
    made->headerClicked(0);
    QCOMPARE(codes(), QStringList({"1. Male", "2. Female", "Total", "MV"}));
    made->headerClicked(0);
    QCOMPARE(codes(), QStringList({"2. Female", "1. Male", "Total", "MV"}));
    made->headerClicked(0);
    QCOMPARE(made->rowsOrder(), 0);
}

void TestAverageTables::averagesByTwoVariables() {
    const auto made = table(bySexAndRooms);
    // The measured variable is neither row nor column.
    QCOMPARE(
        RunFixture::header(*made),
        QStringList({"HOUSEHOLD.ROOMS (R-label)@0,0+1x2|PERSON.SEX (Sex of the person)@1,0+5x1",
                     "Total@1,1+1x1|1. Male@2,1+1x1|2. Female@3,1+1x1|MV@4,1+1x1|NA@5,1+1x1"}));
    QCOMPARE(commaLines(made->cells()),
             QStringList({"Total,35.17,26.50,39.50,20,", "2,22.25,26.50,18,20,", "3,61,,61,,"}));
    QCOMPARE(made->cells().raw(1, 1), "22.25");
    QCOMPARE(made->dictionaryVariableName(), "HOUSEHOLD.ROOMS");
}

void TestAverageTables::averagesByThreeVariables() {
    const auto made = table("AVERAGE PERSON.AGE BY DISTRICT.ZONE BY HOUSEHOLD.ROOMS BY PERSON.SEX");
    const QStringList rows{"Total,35.17,26.50,39.50,20,", "2,22.25,26.50,18,20,", "3,61,,61,,"};
    QStringList cells;
    QStringList report;
    for (const char* zone : {"Total", "1"}) {
        report += QLatin1String(zone) + QStringLiteral(",,,,,,");
        for (const QString& row : rows) {
            cells += QLatin1String(zone) + "," + row;
            report += "," + row;
        }
    }
    QCOMPARE(commaLines(made->cells()), cells);
    QCOMPARE(commaLines(made->reportCells()), report);
}

void TestAverageTables::hidesTheTotalColumn() {
    const auto made = table(bySexAndRooms);
    TableViewConfig config;
    config.hideTotal = true;
    config.hideMv = true;
    config.hideNa = true;
    made->applyViewConfig(config);
    QCOMPARE(made->columnHeaders().mid(1), QStringList({"1. Male", "2. Female"}));
    QCOMPARE(commaLines(made->cells()), QStringList({"Total,26.50,39.50", "2,26.50,18", "3,,61"}));
}

/// Only tables of frequencies and those side by side take decimals and separator from a style.
void TestAverageTables::keepsThePreferencesFormat() {
    TablePreferences preferences;
    preferences.decimals = 4;
    const auto made = fixture_.table(bySexAndRooms, preferences);
    made->applyViewConfig(TableViewConfig());
    QCOMPARE(made->cells().display(0, 1), "35.1667");
    QCOMPARE(fixture_.table(bySexAndRooms + " DECIMALS 1", preferences)->cells().display(0, 1),
             "35.2");
}

void TestAverageTables::leavesOtherMeasuresAsTheyCome_data() {
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("firstRow");
    QTest::newRow("median") << "MEDIAN PERSON.AGE BY PERSON.SEX" << tablekind::median
                            << "1. Male,26.50";
    QTest::newRow("two variables") << "MAXIMUM PERSON.AGE BY HOUSEHOLD.ROOMS BY PERSON.SEX"
                                   << tablekind::maximum << "2,1. Male,34";
    QTest::newRow("no variable") << "SUM PERSON.AGE" << tablekind::sum << "231";
    QTest::newRow("gini") << "GINI OF PERSON.AGE BY DISTRICT.ZONE" << tablekind::gini << "";
}

void TestAverageTables::leavesOtherMeasuresAsTheyCome() {
    QFETCH(const QString, program);
    QFETCH(const int, kind);
    QFETCH(const QString, firstRow);
    const auto made = table(program);
    QVERIFY(dynamic_cast<Table*>(made.get()) != nullptr);
    QCOMPARE(made->kind(), kind);
    if (firstRow.isEmpty())
        QCOMPARE(made->columnHeaders().size(), 2);
    else
        QCOMPARE(commaLines(made->cells()).first(), firstRow);
}

/// What has a class of its own elsewhere is laid out the same way, but for the words and flags told
/// for this one.
void TestAverageTables::laysOutAnyOutputAsATable() {
    const auto frequency = plainTable("FREQ PERSON.SEX");
    QCOMPARE(frequency->columnHeaders()[1], "count");
    frequency->setRowsOrder(TableViewConfig::Descending);
    frequency->rebuild();
    QCOMPARE(frequency->columnDisplays(1), QStringList({"4", "2", "6", "1"}));
    const auto cross = plainTable("FREQ HOUSEHOLD.ROOMS BY PERSON.SEX");
    QCOMPARE(commaLines(cross->cells()), QStringList({"Total,6,2,4,1,", "2,4,2,2,1,", "3,2,,2,,"}));
    QCOMPARE(cross->columnValues(1), QList<double>({0, 0, 0}));
    const auto average = plainTable(bySexAndRooms);
    QCOMPARE(average->kind(), tablekind::average);
    QCOMPARE(average->cells().display(0, 1), "35.17");
    const auto list = plainTable("AREALIST DISTRICT, DISTRICT.ZONE");
    QCOMPARE(list->kind(), tablekind::areaList);
    QCOMPARE(commaLines(list->cells()), QStringList({"01,North,1", "02,South,1"}));
    const auto count = plainTable("COUNT PERSON");
    QCOMPARE(count->kind(), tablekind::areaList);
    QCOMPARE(commaLines(count->cells()), QStringList({"PERSON,7"}));
}

void TestAverageTables::formatsOfATableOfAnyOutput() {
    TKelOutput& output = *fixture_.run("TABLE A AS SUM PERSON.INCOME * 1000\n").back();
    TablePreferences preferences;
    preferences.thousandSep = "";
    const Table made({&output, preferences, fixture_.metadata(output)});
    QCOMPARE(made.cells().display(0, 0), "385,750");
}

QTEST_GUILESS_MAIN(TestAverageTables)
#include "tst_averagetables.moc"
