// SPDX-License-Identifier: GPL-3.0-or-later
// The table of one variable: rows, percents, order, markers.
#include "MadeDataset.h"
#include "RunFixture.h"
#include "results/tables/OneVariableLayout.h"

#include <QTest>

#include <optional>

namespace {

/// Of rows with code, label, kind and figure.
std::unique_ptr<MadeDatasetOutput> output(MadeDataset::Rows rows) {
    return std::make_unique<MadeDatasetOutput>(
        std::vector<MadeField>{{"A.V", "V", ""}, {"", "", ""}, {"", "", ""}, {"A", "A", ""}},
        std::move(rows));
}

MadeDataset::Rows tiesAndBlanks() {
    return {{"1", "One", "", "5"},     {"2", "2", "", "3"}, {"3", "Three", "", "5"},
            {"4", "Four", "", ""},     {"5", "", "", "1"},  {"0", "__tot__", "tot", "20"},
            {"0", "__mv__", "mv", "6"}};
}

QStringList rowsOf(TKelOutput& output, const OneVariableOptions& options) {
    return RunFixture::raws(oneVariableLayout(output, options).cells);
}

QStringList firstCells(const QStringList& rows) {
    QStringList cells;
    for (const QString& row : rows)
        cells += row.section('|', 0, 0);
    return cells;
}

} // namespace

class TestOneVariable : public QObject {
    Q_OBJECT

    std::optional<RunFixture> run_;

private slots:
    void init() { run_.emplace(); }
    void cleanup() { run_.reset(); }

    // Male 2, Female 4, not stated 1 of 7 persons.
    void showsAFrequency() {
        const auto table = run_->table("FREQ PERSON.SEX");
        QCOMPARE(table->kind(), tablekind::frequency);
        const QString heading = "PERSON.SEX (Sex of the person)";
        QCOMPARE(table->columnHeaders(), QStringList({heading, "Count", "%", "Cumul%"}));
        QCOMPARE(RunFixture::header(*table),
                 QStringList(heading + "@0,0+1x1|Count@1,0+1x1|%@2,0+1x1|Cumul%@3,0+1x1"));
        QCOMPARE(table->headerColors(), QList<QStringList>({QStringList(4, "#7B7B7B")}));
        QCOMPARE(RunFixture::raws(table->cells()),
                 QStringList({"1. Male|2.000000|33.333333|33.333333",
                              "2. Female|4.000000|66.666667|100.000000", "0. __tot__|6.000000|100|",
                              "0. __mv__|1||"}));
        QCOMPARE(RunFixture::displays(table->cells()),
                 QStringList(
                     {"1. Male|2|33.33|33.33", "2. Female|4|66.67|100", "Total|6|100|", "MV|1||"}));
        QCOMPARE(table->columnAlignments(), (QList<int>{1, 2, 2, 2}));
        QCOMPARE(table->totalRows(), (QList<quint8>{0, 0, 1, 0}));
        QCOMPARE(RunFixture::displays(table->reportCells()), RunFixture::displays(table->cells()));
        QCOMPARE(table->columnValues(1), (QList<double>{2, 4, 6, 1}));
    }

    // By the households' weights: 2.5, 7 and 1.
    void showsWeights() {
        const auto table = run_->table("FREQ PERSON.SEX WEIGHT HOUSEHOLD.WEIGHT");
        QCOMPARE(RunFixture::displays(table->cells()),
                 QStringList({"1. Male|2.50|26.32|26.32", "2. Female|7|73.68|100",
                              "Total|9.50|100|", "MV|1||"}));
    }

    void namesUnlabelledCodesOnce() {
        const auto table = run_->table("FREQ HOUSEHOLD.ROOMS");
        QCOMPARE(table->columnDisplays(0), QStringList({"2", "3", "Total"}));
        QCOMPARE(table->columnAlignments().first(), 1);
        QCOMPARE(table->columnHeaders().first(), "HOUSEHOLD.ROOMS (R-label)");
    }

    void followsThePreferredHeading_data() {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("sex");
        QTest::addColumn<QString>("rooms"); // which has no alias
        QTest::newRow("name") << "Name"
                              << "PERSON.SEX"
                              << "HOUSEHOLD.ROOMS";
        QTest::newRow("label") << "Label"
                               << "Sex of the person"
                               << "R-label";
        QTest::newRow("alias") << "Alias"
                               << "GENDER"
                               << "HOUSEHOLD.ROOMS";
        QTest::newRow("alias and label") << "AliasAndLabel"
                                         << "GENDER (Sex of the person)"
                                         << "HOUSEHOLD.ROOMS (R-label)";
        QTest::newRow("name and label") << "NameAndLabel"
                                        << "PERSON.SEX (Sex of the person)"
                                        << "HOUSEHOLD.ROOMS (R-label)";
        QTest::newRow("unknown") << "Caption"
                                 << "PERSON.SEX (Sex of the person)"
                                 << "HOUSEHOLD.ROOMS (R-label)";
    }
    void followsThePreferredHeading() {
        QFETCH(QString, word);
        const TablePreferences preferences{2, " ", word};
        QTEST(run_->table("FREQ PERSON.SEX", preferences)->columnHeaders().first(), "sex");
        QTEST(run_->table("FREQ HOUSEHOLD.ROOMS", preferences)->columnHeaders().first(), "rooms");
    }

    void aVariableWithoutLabelHasNoBrackets() {
        const QString define = "DEFINE PERSON.OLD AS PERSON.AGE > 40 TYPE INTEGER\n";
        QCOMPARE(run_->table(define + "FREQ PERSON.OLD")->columnHeaders().first(), "PERSON.OLD");
        QCOMPARE(
            run_->table(define + "FREQ PERSON.OLD", {2, " ", "Label"})->columnHeaders().first(),
            "PERSON.OLD");
    }

    // The hide flags are of crosstabs and lists.
    void showsMarkersWhateverIsHidden() {
        const auto table = run_->table(
            "DEFINE PERSON.WORK AS RECODE PERSON.AGE (0 : 17 = 8) (18 : 59 = 1) (60 : 61 = 2) "
            "ELSE 9 TYPE INTEGER MISSING 9 NOTAPP 8\nFREQ PERSON.WORK");
        table->setHideMv(true);
        table->setHideNa(true);
        table->setHideTotal(true);
        table->rebuild();
        QCOMPARE(RunFixture::raws(table->cells()),
                 QStringList({"1|4.000000|80.000000|80.000000", "2|1.000000|20.000000|100.000000",
                              "0. __tot__|5.000000|100|", "0. __mv__|1||", "0. __na__|1||"}));
    }

    // Ages 34, 19 of men, 31, 5, 60, 62 of women, 20: 26.5 and 39.5; 35.16666 over all whose sex
    // is stated.
    void showsAverages() {
        const auto table = run_->table("AVERAGE PERSON.AGE BY PERSON.SEX");
        QCOMPARE(table->kind(), tablekind::average);
        QCOMPARE(table->columnHeaders(),
                 QStringList({"PERSON.SEX (Sex of the person)", "count", "%", "Cumul%"}));
        QCOMPARE(RunFixture::displays(table->cells()),
                 QStringList({"1. Male|26.50|75.36|75.36", "2. Female|39.50|112.32|187.68",
                              "Total|35.17|100|", "MV|20||"}));
        table->setRowsOrder(TableViewConfig::Descending);
        table->rebuild();
        QCOMPARE(table->columnDisplays(0), QStringList({"2. Female", "1. Male", "Total", "MV"}));
    }

    void ordersRowsByFigure() {
        const auto data = output(tiesAndBlanks());
        const auto order = [&](int rowsOrder) {
            return firstCells(rowsOf(*data, OneVariableOptions::ofFigures("V", rowsOrder, 2)));
        };
        const QStringList end{"0. __tot__", "0. __mv__"};
        QCOMPARE(order(0), QStringList({"1. One", "2", "3. Three", "4. Four", "5"}) + end);
        // Ties stay in place; nobody learns how large an empty figure is.
        QCOMPARE(order(1), QStringList({"5", "2", "1. One", "3. Three", "4. Four"}) + end);
        QCOMPARE(order(2), QStringList({"1. One", "3. Three", "2", "5", "4. Four"}) + end);
        QCOMPARE(firstCells(rowsOf(*data, OneVariableOptions::ofFrequency("V", 2))), order(0));
    }

    void hiddenFiguresStayHidden() {
        const auto data = output(tiesAndBlanks());
        QCOMPARE(
            rowsOf(*data, OneVariableOptions::ofFrequency("V", 2)),
            QStringList({"1. One|5.000000|25.000000|25.000000", "2|3.000000|15.000000|40.000000",
                         "3. Three|5.000000|25.000000|65.000000", "4. Four|||",
                         "5|1.000000|5.000000|", "0. __tot__|20.000000|100|", "0. __mv__|6||"}));
        const auto withoutTotal = output({{"1", "1", "", "5"}, {"0", "__tot__", "tot", ""}});
        QCOMPARE(rowsOf(*withoutTotal, OneVariableOptions::ofFrequency("V", 2)),
                 QStringList({"1|5.000000||", "0. __tot__|||"}));
    }

    void dividesByNothing() {
        const auto data =
            output({{"1", "1", "", "5"}, {"2", "2", "", "0"}, {"0", "__tot__", "tot", "0"}});
        QCOMPARE(rowsOf(*data, OneVariableOptions::ofFrequency("V", 2)),
                 QStringList({"1|5.000000|0.000000|0.000000", "2|0.000000|0.000000|0.000000",
                              "0. __tot__|0.000000|100|"}));
        QCOMPARE(
            rowsOf(*data, OneVariableOptions::ofFigures("V", 0, 2)),
            QStringList({"1|5.000000|inf|inf", "2|0.000000|nan|nan", "0. __tot__|0.000000|100|"}));
    }

    // Averages 26.5 and 39.5; 211 / 6 over all.
    void writesAllDecimalsThatAreShown() {
        const QString program = "AVERAGE PERSON.AGE BY PERSON.SEX DECIMALS %1";
        const auto twelve = run_->table(program.arg(12));
        QCOMPARE(RunFixture::displays(twelve->cells()),
                 QStringList({"1. Male|26.500000000000|75.355450236967|75.355450236967",
                              "2. Female|39.500000000000|112.322274881517|187.677725118483",
                              "Total|35.166666666667|100|", "MV|20||"}));
        QCOMPARE(RunFixture::raws(run_->table(program.arg(6))->cells()),
                 QStringList({"1. Male|26.500000|75.355450|75.355450",
                              "2. Female|39.500000|112.322275|187.677725",
                              "0. __tot__|35.166667|100|", "0. __mv__|20||"}));
        const auto frequency = run_->table("FREQ PERSON.SEX WEIGHT HOUSEHOLD.WEIGHT / 3");
        TableViewConfig style;
        style.decimals = 8;
        frequency->applyViewConfig(style);
        QCOMPARE(frequency->columnDisplays(1),
                 QStringList({"0.83333333", "2.33333333", "3.16666667", "0.33333333"}));
    }

    // A label may hold a marker: the engine tells what is one.
    void trustsTheKindsThatAreTold() {
        const auto told = output({{"0", "__na__ zero", "", "5"},
                                  {"1", "__mv__", "", "3"},
                                  {"2", "two", "", "2"},
                                  {"0", "__tot__", "tot", "10"},
                                  {"0", "__na__", "na", "4"}});
        QCOMPARE(rowsOf(*told, OneVariableOptions::ofFrequency("V", 2)),
                 QStringList({"0. __na__ zero|5.000000|50.000000|50.000000",
                              "1. __mv__|3.000000|30.000000|80.000000",
                              "2. two|2.000000|20.000000|100.000000", "0. __tot__|10.000000|100|",
                              "0. __na__|4||"}));
        const auto untold = output({{"1", "one", "", "5"},
                                    {"0", "the __tot__", "", "10"},
                                    {"0", "__na__ zero", "", "4"},
                                    {"0", "__mv__", "", "3"}});
        QCOMPARE(rowsOf(*untold, OneVariableOptions::ofFrequency("V", 2)),
                 QStringList({"1. one|5.000000|50.000000|50.000000", "0. __tot__|10.000000|100|",
                              "0. __mv__|3||", "0. __na__|4||"}));
    }

    void ordersNegativeCodes() {
        const QString define = "DEFINE PERSON.GAP AS PERSON.AGE - 30 TYPE INTEGER\n";
        QCOMPARE(run_->table(define + "FREQ PERSON.GAP")->columnDisplays(0),
                 QStringList({"-25", "-11", "-10", "1", "4", "30", "32", "Total"}));
        QCOMPARE(run_->table(define + "FREQ PERSON.GAP BY PERSON.SEX")->columnDisplays(0),
                 QStringList({"Total", "-25", "-11", "-10", "1", "4", "30", "32"}));
    }

    // An empty text is a code like others.
    void showsBlankCodes() {
        const QString define = "DEFINE PERSON.WORD AS SWITCH CASE PERSON.AGE < 20 ASSIGN \"\" "
                               "CASE PERSON.AGE < 60 ASSIGN \" b\" ELSE \"a\" TYPE STRING\n";
        QCOMPARE(RunFixture::raws(run_->table(define + "FREQ PERSON.WORD")->cells()),
                 QStringList({"|2.000000|28.571429|28.571429", " b|3.000000|42.857143|71.428571",
                              "a|2.000000|28.571429|100.000000", "0. __tot__|7.000000|100|"}));
        QCOMPARE(commaLines(*run_->table(define + "FREQ PERSON.WORD BY PERSON.SEX")),
                 QStringList({"Total,6,2,4,1,", ",2,1,1,,", "b,2,1,1,1,", "a,2,,2,,"}));
    }

    void keepsLargeCounts() {
        const auto data = output(
            {{"1", "1", "", "9007199254740993"}, {"0", "__tot__", "tot", "9007199254740993"}});
        const TableLayout layout =
            oneVariableLayout(*data, OneVariableOptions::ofFrequency("V", 2));
        const ResultRows rows(std::make_shared<const CellTexts>(layout.cells), {},
                              layout.textColumns);
        QCOMPARE(rows.display(0, 1), "9,007,199,254,740,993");
        QCOMPARE(rows.display(1, 1), "9,007,199,254,740,993");
    }

    void anOutputWithoutFiguresHasHeaders() {
        MadeDatasetOutput empty;
        const TableLayout layout =
            oneVariableLayout(empty, OneVariableOptions::ofFrequency("V", 2));
        QCOMPARE(layout.columnHeaders, QStringList({"V", "Count", "%", "Cumul%"}));
        QCOMPARE(layout.cells.rows(), 0);
    }
};

QTEST_GUILESS_MAIN(TestOneVariable)
#include "tst_onevariable.moc"
