// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/MadeTable.h"
#include "results/WorkbookReading.h"
#include "results/workbook/WorkbookExports.h"

#include <QTemporaryDir>
#include <QTest>

#include <clocale>

namespace {

/// A column of codes and one of figures.
std::unique_ptr<MadeTable> figures(const MadeRows& rows) {
    return std::make_unique<MadeTable>(
        madeLayout({QStringLiteral("Code"), QStringLiteral("Figure")}, rows),
        madeFacts(tablekind::frequency, QStringLiteral("FREQUENCY"), {QStringLiteral("Sex")}));
}

std::unique_ptr<MadeTable> named(const QString& name) {
    auto table = madeFrequency();
    TableMetadata facts = table->metadata();
    facts.name = name;
    table->setMetadata(facts);
    return table;
}

} // namespace

class TestWorkbook : public QObject {
    Q_OBJECT

private slots:
    void plainSheetHoldsTheGrid();
    void reportSheetHoldsFactsAndFrames();
    void reportTellsEveryFact();
    void areaListHasEntityAndKey();
    void figuresKeepTheirDigits_data();
    void figuresKeepTheirDigits();
    void figuresWrittenWithDecimalsShowThem();
    void textsArriveAsTheyAre_data();
    void textsArriveAsTheyAre();
    void tooLongTextsAreCutAndSaidSo();
    void sheetNamesAreAcceptableAndOwn();
    void decimalSignIsAPointInEveryLanguage();
    void columnsAreAsWideAsTheirTexts();
    void tablesWithoutRowsAreSheetsToo();
    void sheetsAreReadyToScrollAndPrint();

private:
    ReadWorkbook plain(const QList<const TableBase*>& tables) {
        const QString path = folder_.filePath(QStringLiteral("plain.xlsx"));
        const WriteOutcome outcome = writePlainWorkbook(tables, path);
        return ReadWorkbook(outcome.written() ? outcome.path : QString());
    }
    ReadWorkbook report(const QList<const TableBase*>& tables) {
        const WriteOutcome outcome =
            writeReportWorkbook(tables, folder_.filePath(QStringLiteral("report")), true);
        return ReadWorkbook(outcome.written() ? outcome.path : QString());
    }

    QTemporaryDir folder_;
};

void TestWorkbook::plainSheetHoldsTheGrid() {
    const auto table = madeCrosstab();
    const ReadWorkbook book = plain({table.get()});
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.sheets(), QStringList("T_1"));
    QCOMPARE(book.merged(), QStringList({"A1:A2", "B1:D1"}));
    QCOMPARE(book.value("B1").toString(), "PERSON.SEX (Sex)");
    QCOMPARE(book.value("D2").toString(), "2. Female");
    QCOMPARE(book.look("B1"), "Tahoma 9 bold - - General");
    QCOMPARE(book.value("A3").toString(), "Total");
    QCOMPARE(book.value("B3").toDouble(), 2500);
    QCOMPARE(book.value("C4").toDouble(), 0.5);
    QCOMPARE(book.look("C4"), "Calibri 11 - - - General");
    QVERIFY2(book.cell("B5").isEmpty(), "an empty cell is no 0");
    QCOMPARE(book.value("C5").toDouble(), 40);
}

void TestWorkbook::reportSheetHoldsFactsAndFrames() {
    const auto table = madeCrosstab();
    const ReadWorkbook book = report({table.get()});
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.value("A1").toString(), "Title");
    QCOMPARE(book.look("A1"), "Tahoma 9 bold - - General");
    QCOMPARE(book.value("B2").toString(), "A title");
    QCOMPARE(book.look("B2"), "Tahoma 9 - - - General");
    QCOMPARE(book.value("A3").toString(), "Database");
    QCOMPARE(book.value("B6").toString(), "All Database");
    QCOMPARE(book.value("A7").toString(), "Crosstab");
    QCOMPARE(book.value("B8").toString(), "of Area");
    QCOMPARE(book.value("B9").toString(), "by Sex");
    // A blank row, then the header from the second column on.
    QCOMPARE(book.value("B11").toString(), "HOUSE.AREA (Area)");
    QCOMPARE(book.look("C12"), "Tahoma 9 bold FF808080 thin General");
    QCOMPARE(book.cell("C12")["borderColor"].toString(), "FF000000");
    QCOMPARE(book.merged(), QStringList({"A1:E1", "A3:E3", "A5:E5", "A7:E7", "B11:B12", "B2:E2",
                                         "B4:E4", "B6:E6", "B8:E8", "B9:E9", "C11:E11"}));
    QCOMPARE(book.look("B13"), "Tahoma 9 - FFC0C0C0 thin General");
    QCOMPARE(book.value("B13").toString(), "Total");
    QCOMPARE(book.look("C13"), "Tahoma 9 - FFC0C0C0 thin # ##0");
    QCOMPARE(book.look("C14"), "Tahoma 9 - - thin # ##0");
    QCOMPARE(book.look("D14"), "Tahoma 9 - - thin # ##0.00");
    QCOMPARE(book.value("E14").toDouble(), 1234566.5);
    QVERIFY(book.value("C15").isNull());
    QCOMPARE(book.look("C15"), "Tahoma 9 - - thin General");
}

void TestWorkbook::reportTellsEveryFact() {
    const auto table = madeFrequency();
    TableMetadata facts = table->metadata();
    facts.tally = QStringLiteral("t");
    facts.weight = QStringLiteral("w");
    facts.filter = QStringLiteral("AGE < 5 & SEX > 1");
    facts.universalFilter = QStringLiteral("u");
    facts.sort = TableSort{QStringLiteral("PERSON.V1"), 10, false};
    facts.variableLabels = {QString()};
    facts.suppressed = 3;
    table->setMetadata(facts);
    const ReadWorkbook book = report({table.get()});
    QCOMPARE(book.problems(), QString());
    const QList<std::pair<const char*, const char*>> told{
        {"A7", "Tally"},
        {"B8", "t"},
        {"A9", "Weight"},
        {"B10", "w"},
        {"A11", "Filter"},
        {"B12", "AGE < 5 & SEX > 1"},
        {"A13", "Universal Filter"},
        {"B14", "u"},
        {"A15", "Sorted (Descending) by"},
        {"B16", "PERSON.V1"},
        {"A17", "FREQUENCY"},
        {"B18", "of PERSON.V1"}, // has no label
        {"B20", "PERSON.SEX (Sex)"},
    };
    for (const auto& [place, text] : told)
        QCOMPARE(book.value(place).toString(), QLatin1String(text));
    QCOMPARE(book.look("D21"), "Tahoma 9 - - thin # ##0.00");
    QCOMPARE(book.look("D23"), "Tahoma 9 - FFC0C0C0 thin # ##0");
    QCOMPARE(book.look("E23"), "Tahoma 9 - FFC0C0C0 thin General");
    QCOMPARE(book.value("B24").toString(), "MV");
    QVERIFY(book.value("B26").toString().contains(facts.suppressedNote()));
    QVERIFY(!facts.suppressedNote().isEmpty());

    const ReadWorkbook grid = plain({table.get()});
    QCOMPARE(grid.value("A7").toString(), facts.suppressedNote());
}

void TestWorkbook::areaListHasEntityAndKey() {
    const auto table = madeLargeTable(3, 1);
    const ReadWorkbook book = report({table.get()});
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.value("A7").toString(), "Entity");
    QCOMPARE(book.value("B8").toString(), "Municipality");
    QCOMPARE(book.value("A9").toString(), "Key");
    QCOMPARE(book.value("B10").toString(), "KELCODE");
    QCOMPARE(book.value("B12").toString(), "Area");
    // With one column the values stand alone in theirs: nothing to merge.
    QCOMPARE(book.merged(), QStringList({"A1:B1", "A3:B3", "A5:B5", "A7:B7", "A9:B9"}));
}

void TestWorkbook::figuresKeepTheirDigits_data() {
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("type"); // of openpyxl: n number, s text
    QTest::addColumn<QString>("format");
    QTest::newRow("whole") << "1234567"
                           << "n"
                           << "# ##0";
    QTest::newRow("negative") << "-5"
                              << "n"
                              << "# ##0";
    QTest::newRow("beyond 32 bits") << "3000000000"
                                    << "n"
                                    << "# ##0";
    QTest::newRow("last exact one") << "9007199254740992"
                                    << "n"
                                    << "# ##0";
    QTest::newRow("beyond doubles") << "9007199254740993"
                                    << "s"
                                    << "General";
    QTest::newRow("beyond 64 bits") << "92233720368547758070"
                                    << "s"
                                    << "General";
    QTest::newRow("fraction") << "0.333333"
                              << "n"
                              << "# ##0.00";
    QTest::newRow("exponent") << "1.5e-7"
                              << "n"
                              << "# ##0.00";
    QTest::newRow("huge") << "1e400"
                          << "s"
                          << "General";
    QTest::newRow("no number") << "nan"
                               << "s"
                               << "General";
    QTest::newRow("infinite") << "-inf"
                              << "s"
                              << "General";
}

void TestWorkbook::figuresKeepTheirDigits() {
    QFETCH(QString, raw);
    QFETCH(QString, type);
    QFETCH(QString, format);
    const auto table = figures({{"0102", raw.toStdString()}});
    const ReadWorkbook book = report({table.get()});
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.cell("C11")["type"].toString(), type);
    QCOMPARE(book.cell("C11")["format"].toString(), format);
    if (type == u"n")
        QCOMPARE(book.value("C11").toDouble(), raw.toDouble());
    else
        QCOMPARE(book.value("C11").toString(), raw);
    QCOMPARE(book.value("B11").toString(), "0102"); // a code
    const ReadWorkbook grid = plain({table.get()});
    QCOMPARE(grid.problems(), QString());
    QCOMPARE(grid.cell("B2")["type"].toString(), type);
    QCOMPARE(grid.value("A2").toString(), "0102");
}

void TestWorkbook::figuresWrittenWithDecimalsShowThem() {
    const MadeTable table(
        madeLayout({QStringLiteral("Sex"), QStringLiteral("Count"), QStringLiteral("%")},
                   {{"1. Male", "2.000000", "40.000000"},
                    {"2. Female", "3.000000", "60.5"},
                    {"0. __tot__", "5", "100"}}),
        madeFacts(tablekind::frequency, QStringLiteral("FREQUENCY"), {QStringLiteral("Sex")}));
    const ReadWorkbook book = report({&table});
    QCOMPARE(book.look("C11"), "Tahoma 9 - - thin # ##0.00");
    QCOMPARE(book.value("C11").toDouble(), 2);
    QCOMPARE(book.look("C13"), "Tahoma 9 - FFC0C0C0 thin # ##0");
    QCOMPARE(book.look("D13"), "Tahoma 9 - FFC0C0C0 thin # ##0");
}

void TestWorkbook::textsArriveAsTheyAre_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    const auto row = [](const char* name, const QString& text, const QString& read = {}) {
        QTest::newRow(name) << text << (read.isEmpty() ? text : read);
    };
    row("markup", QStringLiteral("1. <5 & \"more\""));
    row("formula", QStringLiteral("=1+1"), QStringLiteral("=1+1"));
    row("beyond 16 bits", QStringLiteral("\U0001F600 ñandú 人口"));
    row("half a character", QStringLiteral("a") + QChar(0xD800) + QStringLiteral("b"),
        QStringLiteral("a\uFFFDb"));
    row("forbidden in XML", QStringLiteral("a") + QChar(0xFFFE), QStringLiteral("a\uFFFD"));
    row("zero", QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"),
        QStringLiteral("a\uFFFDb"));
    // As the format has it; openpyxl gives it as it stands, spreadsheets undo it.
    row("control", QStringLiteral("a\u0001b"), QStringLiteral("a_x0001_b"));
    row("like an escape", QStringLiteral("_x0041_"), QStringLiteral("_x005F_x0041_"));
    row("two lines", QStringLiteral("one\ntwo"));
}

void TestWorkbook::textsArriveAsTheyAre() {
    QFETCH(QString, text);
    QFETCH(QString, read);
    const auto table = figures({{text.toStdString(), "1"}});
    // What a half character becomes on its way through UTF-8 is not the workbook's doing.
    TableMetadata facts = table->metadata();
    facts.title = text;
    table->setMetadata(facts);
    const ReadWorkbook book = report({table.get()});
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.value("B2").toString(), read);
    QCOMPARE(book.value("C11").toDouble(), 1);
}

void TestWorkbook::tooLongTextsAreCutAndSaidSo() {
    const auto table = figures({{std::string(40000, 'x') + "_x0041_", "1"}});
    for (const ReadWorkbook& book : {plain({table.get()}), report({table.get()})}) {
        QCOMPARE(book.problems(), QString());
        const bool isPlain = !book.cell("A2").isEmpty() && book.merged().isEmpty();
        QCOMPARE(book.value(isPlain ? "A2" : "B11").toString(), QString(32767, u'x'));
        QVERIFY(book.value(isPlain ? "A4" : "B13").toString().contains(u"32767"));
    }
}

void TestWorkbook::sheetNamesAreAcceptableAndOwn() {
    const QString longName(40, u'n');
    QStringList names{"x", "X", "x", "a:b/c?[d]*\\", "'quoted'", "History", "", longName, longName};
    std::vector<std::unique_ptr<MadeTable>> tables;
    QList<const TableBase*> all;
    for (const QString& name : names) {
        tables.push_back(named(name));
        all += tables.back().get();
    }
    const ReadWorkbook book = report(all);
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.sheets(), QStringList({"x", "X (2)", "x (3)", "a_b_c__d___", "quoted", "History_",
                                         "Sheet7", longName.left(31), longName.left(27) + " (2)"}));
    const ReadWorkbook grid = plain(all);
    QCOMPARE(grid.problems(), QString());
    QCOMPARE(grid.sheets(), QStringList({"x", "Sheet2", "Sheet3", "a_b_c__d___", "quoted",
                                         "History_", "Sheet7", longName.left(31), "Sheet9"}));
    QCOMPARE(grid.value("B2", 8).toDouble(), 1200); // all is in it, whatever its name
}

void TestWorkbook::decimalSignIsAPointInEveryLanguage() {
    const QString locale = folder_.filePath(QStringLiteral("es_ES.UTF-8"));
    if (QProcess::execute(QStringLiteral("localedef"), {"-i", "es_ES", "-f", "UTF-8", locale}) != 0)
        QSKIP("no Spanish to set");
    qputenv("LOCPATH", folder_.path().toLocal8Bit());
    QVERIFY(std::setlocale(LC_ALL, "es_ES.UTF-8") != nullptr);
    QCOMPARE(QString::asprintf("%c", *std::localeconv()->decimal_point), QString(","));
    const auto table = figures({{"a", "1.25"}});
    const ReadWorkbook book = report({table.get()});
    QCOMPARE(QString::asprintf("%c", *std::localeconv()->decimal_point), QString(","));
    std::setlocale(LC_ALL, "C");
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.value("C11").toDouble(), 1.25);
}

void TestWorkbook::columnsAreAsWideAsTheirTexts() {
    const auto table = figures({{"a much longer label than the others", "1"}, {"b", "2"}});
    const ReadWorkbook book = report({table.get()});
    QVERIFY2(book.width("A") < 2, "the column of the labels is a narrow one");
    QVERIFY(book.width("B") > 25 && book.width("B") < 45);
    QVERIFY(book.width("C") < 12);
    const ReadWorkbook grid = plain({table.get()});
    QVERIFY(grid.width("A") > 25 && grid.width("A") < 45);
}

void TestWorkbook::tablesWithoutRowsAreSheetsToo() {
    const auto facts = madeFacts(tablekind::median, QStringLiteral("MEDIAN"));
    const MadeTable headed(madeLayout({QStringLiteral("Entity"), QStringLiteral("Count")}, {}),
                           facts);
    const MadeTable nothing(madeLayout({}, {}, 0), facts);
    const ReadWorkbook book = report({&headed, &nothing});
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.sheets(), QStringList({"T_1", "T_1 (2)"}));
    QCOMPARE(book.value("C9").toString(), "Count");
    QCOMPARE(book.value("A7", 1).toString(), "MEDIAN");
    const ReadWorkbook grid = plain({&headed, &nothing});
    QCOMPARE(grid.problems(), QString());
    QCOMPARE(grid.value("B1").toString(), "Count");
    QVERIFY(plain({}).problems().isEmpty());
}

void TestWorkbook::sheetsAreReadyToScrollAndPrint() {
    const auto table = madeCrosstab();
    const ReadWorkbook grid = plain({table.get()});
    QCOMPARE(grid.view(), "B3 landscape 9 True 1 0");
    QVERIFY(grid.isCentred("A1") && grid.isCentred("B1") && grid.isCentred("D2"));
    QVERIFY(!grid.isCentred("A3") && !grid.isCentred("B3"));
    const MadeTable unlabelled(madeLayout({"a", "b"}, {{"1", "2"}}, 0),
                               madeFacts(tablekind::frequency, "FREQUENCY", {"Sex"}));
    QCOMPARE(plain({&unlabelled}).view(), "A2 landscape 9 True 1 0");
    const ReadWorkbook book = report({table.get()});
    QCOMPARE(book.view(), "A13 landscape 9 True 1 0");
    QVERIFY(book.isCentred("B11") && book.isCentred("C12"));
    QVERIFY(!book.isCentred("A1") && !book.isCentred("B13"));
    // So many facts that no window would have room for rows below them.
    TableMetadata facts = table->metadata();
    facts.filter = facts.weight = facts.tally = QStringLiteral("x");
    table->setMetadata(facts);
    QCOMPARE(report({table.get()}).view(), "- landscape 9 True 1 0");
}

QTEST_GUILESS_MAIN(TestWorkbook)
#include "tst_workbook.moc"
