// SPDX-License-Identifier: GPL-3.0-or-later
// How texts become figures, and rows of texts columns and rows of totals.
#include "results/tables/CellNumber.h"
#include "results/tables/ResultRows.h"
#include "results/tables/TablePreferences.h"

#include <QLocale>
#include <QTest>

#include <cmath>

namespace {

CellTexts texts(const std::vector<std::vector<std::string>>& rows) {
    CellTexts cells;
    for (const auto& row : rows) {
        cells.startRow();
        for (const std::string& text : row)
            cells.add(std::string_view(text));
    }
    return cells;
}

ResultRows rows(const std::vector<std::vector<std::string>>& cells,
                std::vector<bool> textColumns = {}) {
    return {std::make_shared<const CellTexts>(texts(cells)), {}, std::move(textColumns)};
}

} // namespace

class TestCellFormat : public QObject {
    Q_OBJECT

private slots:
    void showsFigures_data() {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("separator");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char* raw, int decimals, const char* separator,
                            const char* shown) {
            QTest::newRow(qPrintable(QString("%1, %2, %3").arg(raw).arg(decimals).arg(separator)))
                << QString(raw) << decimals << QString(separator) << QString(shown);
        };
        row("1234567.5", 2, "'", "1'234'567.50");
        row("1234567.0", 2, "'", "1'234'567");
        row("1234567", 2, "", "1234567");
        row("1234567.25", 2, " ", "1 234 567.25");
        row("-1234567", 2, ",", "-1,234,567");
        row("-123456.5", 1, ",", "-123,456.5");
        row("999", 2, ",", "999");
        row(" 7\t", 2, ",", "7");
        row("+12", 2, ",", "12");
        row("007", 2, ",", "7");
        row("1e3", 2, ",", "1,000");
        row(".5", 2, ",", "0.50");
        row("", 2, ",", "");
        row("  ", 2, ",", "");
        row("2.345678", 0, ",", "2");
        row("2.5", 0, ",", "3");
        row("0.125", 2, ",", "0.13");
        row("-0.125", 2, ",", "-0.13");
        // Stored as a little less than the tie that they are written as.
        row("1.085", 2, ",", "1.08");
        row("2.675", 2, ",", "2.67");
        row("2.345678", -1, ",", "2");
        // Where doubles have no room for the last digit.
        row("9007199254740993", 2, ",", "9,007,199,254,740,993");
        row("9007199254740993.000000", 2, ",", "9,007,199,254,740,993");
        row("-9223372036854775808", 2, ",", "-9,223,372,036,854,775,808");
        row("9223372036854775808", 2, ",", "9,223,372,036,854,775,808");
        row("1e20", 2, ",", "100,000,000,000,000,000,000");
        // A fraction that only arithmetic has left.
        row("2.0000000000001", 2, ",", "2");
        row("2.000000000002", 2, ",", "2.00");
        row("-0.0", 2, ",", "0");
        row("-0.001", 2, ",", "0.00");
        row("-0.006", 2, ",", "-0.01");
    }
    void showsFigures() {
        QFETCH(QString, raw);
        QFETCH(int, decimals);
        QFETCH(QString, separator);
        QFETCH(QString, shown);
        const FormattedCell cell = CellFormat{decimals, separator, true}.format(raw.toStdString());
        QCOMPARE(cell.display, shown);
        QVERIFY(!cell.isText);
        QVERIFY(!cell.isTotal);
    }

    void isTheSameInEveryLocale() {
        const QLocale usual;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        const QString shown = CellFormat{2, ",", true}.format("1234567.5").display;
        const auto read = readNumber("1234567.5");
        QLocale::setDefault(usual);
        QCOMPARE(shown, "1,234,567.50");
        QCOMPARE(read->value, 1234567.5);
    }

    void readsGroupedFiguresWhereAsked_data() {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("again");
        QTest::newRow("blank") << "1 234.5"
                               << "1,234.50";
        QTest::newRow("apostrophes") << "1'234'567"
                                     << "1,234,567";
        QTest::newRow("comma") << "1,234"
                               << "1,234";
        // A code and its label are no number, whatever they look like.
        QTest::newRow("label of a year") << "1. 1900"
                                         << "";
        QTest::newRow("words") << "7 dwarfs"
                               << "";
    }
    void readsGroupedFiguresWhereAsked() {
        QFETCH(QString, raw);
        QFETCH(QString, again);
        const FormattedCell once = CellFormat{2, ",", false}.format(raw.toStdString());
        QCOMPARE(once.display, raw);
        QVERIFY(once.isText);
        const FormattedCell twice = CellFormat{2, ",", true}.format(raw.toStdString());
        QCOMPARE(twice.display, again.isEmpty() ? raw : again);
        QCOMPARE(twice.isText, again.isEmpty());
    }

    void showsWords_data() {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("isTotal");
        QTest::newRow("total marker") << "0. __tot__"
                                      << "Total" << true;
        QTest::newRow("in capitals") << "__TOT__"
                                     << "Total" << true;
        QTest::newRow("total") << " total "
                               << "Total" << true;
        QTest::newRow("begins so") << "Total of all"
                                   << "Total of all" << false;
        QTest::newRow("missing") << "0. __mv__"
                                 << "MV" << false;
        QTest::newRow("not applicable") << "x__na__"
                                        << "NA" << false;
        QTest::newRow("province") << "Nan"
                                  << "Nan" << false;
        QTest::newRow("no number") << "nan"
                                   << "nan" << false;
        QTest::newRow("endless") << "-inf"
                                 << "-inf" << false;
        QTest::newRow("beyond numbers") << "1e999"
                                        << "1e999" << false;
        QTest::newRow("sign alone") << "-"
                                    << "-" << false;
        QTest::newRow("accents") << " São Tomé "
                                 << "São Tomé" << false;
    }
    void showsWords() {
        QFETCH(QString, raw);
        QFETCH(QString, shown);
        QFETCH(bool, isTotal);
        for (const FormattedCell& cell :
             {CellFormat().format(raw.toStdString()), CellFormat::formatText(raw.toStdString())}) {
            QCOMPARE(cell.display, shown);
            QVERIFY(cell.isText);
            QCOMPARE(cell.isTotal, isTotal);
        }
    }

    void leavesCodesAsTheyStand() {
        QCOMPARE(CellFormat::formatText(" 0102 ").display, "0102");
        QCOMPARE(CellFormat::formatText("2020").display, "2020");
        QVERIFY(CellFormat::formatText("2020").isText);
        QVERIFY(!CellFormat::formatText("  ").isText);
    }

    void writesSixDecimals_data() {
        QTest::addColumn<QString>("figure");
        QTest::addColumn<QString>("written");
        QTest::newRow("whole") << "12"
                               << "12.000000";
        QTest::newRow("large") << "9007199254740993"
                               << "9007199254740993.000000";
        QTest::newRow("real") << "0.33333333333"
                              << "0.333333";
        QTest::newRow("blank") << ""
                               << "";
    }
    void writesSixDecimals() {
        QFETCH(QString, figure);
        QTEST(QString::fromStdString(sixDecimals(std::string_view(figure.toStdString()))),
              "written");
    }
    void writesWhatIsNoNumber() {
        QCOMPARE(sixDecimals(1 / 0.0), "inf");
        QCOMPARE(sixDecimals(-1 / 0.0), "-inf");
        QCOMPARE(sixDecimals(-std::nan("")), "nan");
    }

    void alignsColumnsByTheirCells() {
        const ResultRows table = rows({{"a", "1", "2", "", "5"}, {"b", "2.5", "x"}, {"c"}});
        QCOMPARE(table.alignments(), (QList<int>{1, 2, 1, 2, 2}));
        QCOMPARE(rows({{"2020", "1"}}, {true, false}).alignments(), (QList<int>{1, 2}));
        QCOMPARE(rows({}, {true, false}).alignments(), (QList<int>{1, 2}));
    }

    void findsRowsOfTotals() {
        const ResultRows table =
            rows({{"1. A", "0. __tot__", "4"}, {"1. A", "2", "4"}, {"Total"}}, {true, true, false});
        QCOMPARE(table.totalRows(), (QList<quint8>{1, 0, 1}));
        QCOMPARE(rows({{"7", "__tot__"}}).totalRows(), (QList<quint8>{1}));
    }

    void rowsMayEndEarly() {
        const ResultRows table = rows({{"a", "1"}, {}, {"", "-2.5", "x"}});
        QCOMPARE(table.size(), 3);
        QCOMPARE(table.width(), 3);
        QCOMPARE(table[1].size(), 0);
        QCOMPARE(table[0][2].raw, QString());
        QCOMPARE(table[0][2].display, QString());
        QCOMPARE(table.columns(2), 3);
        QCOMPARE(table[2][1].raw, "-2.5");
        QCOMPARE(table[2][1].display, "-2.50");
        QCOMPARE(table[2][1].value, -2.5);
        QCOMPARE(table[2].raw(2), "x");
        QCOMPARE(table.value(2, 2), 0.0);
        QCOMPARE(table.value(0, -1), 0.0);
        QVERIFY(ResultRows().isEmpty());
    }

    void valuesCanBeLeftOut() {
        ResultRows table = rows({{"12"}});
        QCOMPARE(table.value(0, 0), 12.0);
        QCOMPARE(rows({{"nan"}}).value(0, 0), 0.0);
        table.setValueless();
        QCOMPARE(table[0][0].value, 0.0);
        QCOMPARE(table[0][0].display, "12");
    }

    void knowsTheStoredSeparators() {
        QCOMPARE(TablePreferences::separatorOf(0), " ");
        QCOMPARE(TablePreferences::separatorOf(1), "'");
        QCOMPARE(TablePreferences::separatorOf(2), ",");
        QCOMPARE(TablePreferences::separatorOf(9), " ");
    }
};

QTEST_GUILESS_MAIN(TestCellFormat)
#include "tst_cellformat.moc"
