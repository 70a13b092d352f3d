// SPDX-License-Identifier: GPL-3.0-or-later
// Outputs of programs, from the engine to the cells that another program reads.
#include "results/RunFixture.h"
#include "results/WorkbookReading.h"
#include "results/workbook/WorkbookExports.h"

#include <QTest>

namespace {

QByteArray place(qsizetype row, qsizetype column) {
    return QByteArray(1, static_cast<char>('A' + column)) + QByteArray::number(row + 1);
}

/// A number where the cell is one for the table, else what is shown of it.
QString expected(const ResultRows& rows, qsizetype row, qsizetype column, bool isNumeric) {
    bool isNumber = false;
    const double number = rows.raw(row, column).toDouble(&isNumber);
    return isNumeric && isNumber ? QString::number(number, 'g', 15) : rows.display(row, column);
}

QString found(const QJsonValue& value) {
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 15) : value.toString();
}

QStringList expectedRows(const ResultRows& rows, const QList<int>& alignments) {
    QStringList texts;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        QStringList cells;
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            cells += expected(rows, row, column,
                              alignments.isEmpty() ? !rows.isTextColumn(column)
                                                   : alignments[column] == 2);
        texts += cells.join('|');
    }
    return texts;
}

QStringList foundRows(const ReadWorkbook& book, const ResultRows& rows, qsizetype firstRow,
                      qsizetype firstColumn) {
    QStringList texts;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        QStringList cells;
        for (qsizetype column = 0; column < rows.columns(row); ++column)
            cells += found(book.value(place(firstRow + row, firstColumn + column).constData()));
        texts += cells.join('|');
    }
    return texts;
}

} // namespace

class TestWorkbookTables : public QObject {
    Q_OBJECT

private slots:
    void sheetsHoldTheFigures_data();
    void sheetsHoldTheFigures();
    void countsAreThoseOfThePersons();
};

void TestWorkbookTables::sheetsHoldTheFigures_data() {
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("layout");
    const auto row = [](const char* name, const char* program, const char* layout = "default") {
        QTest::newRow(name) << QString::fromLatin1(program) << QString::fromLatin1(layout);
    };
    const char* const three = "FREQ PERSON.SEX BY HOUSEHOLD.ROOMS BY DISTRICT.ZONE";
    row("frequency", "FREQ PERSON.SEX");
    row("crosstab", "FREQ HOUSEHOLD.ROOMS BY PERSON.SEX");
    row("three variables", three);
    row("three variables as a matrix", three, "matrixByFirstVar");
    row("average", "AVERAGE PERSON.AGE BY PERSON.SEX");
    row("weighted", "RUNDEF r WEIGHT HOUSEHOLD.WEIGHT\nFREQ PERSON.SEX");
    row("area list", "TABLE T1 AS FREQ PERSON.SEX\nAREALIST DISTRICT, DISTRICT.ZONE, T1");
    row("statistics", "STATS PERSON.AGE");
    row("tables side by side",
        "TABLE A AS FREQ PERSON.SEX\nTABLE B AS FREQ PERSON.SEX\nTABLE L AS TABLIST A, B");
}

void TestWorkbookTables::sheetsHoldTheFigures() {
    QFETCH(QString, program);
    QFETCH(QString, layout);
    RunFixture run;
    const auto table = run.table(program);
    TableViewConfig options = table->viewConfig();
    options.threeVarLayout = layout;
    table->applyViewConfig(options);
    QVERIFY(!table->cells().isEmpty());

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("book.xlsx"));
    QCOMPARE(writePlainWorkbook({table.get()}, path).fault, QString());
    const ReadWorkbook grid(path);
    QCOMPARE(grid.problems(), QString());
    QCOMPARE(grid.sheets(), QStringList(table->tableName()));
    const qsizetype headerRows = table->headerTexts().size();
    QCOMPARE(foundRows(grid, table->cells(), headerRows, 0),
             expectedRows(table->cells(), table->columnAlignments()));

    QCOMPARE(writeReportWorkbook({table.get()}, path, true).fault, QString());
    const ReadWorkbook report(path);
    QCOMPARE(report.problems(), QString());
    qsizetype firstRow = 1;
    while (report.look(place(firstRow - 1, 1).constData()) !=
           u"Tahoma 9 bold FF808080 thin General")
        QVERIFY(++firstRow < 30);
    firstRow += headerRows - 1;
    QCOMPARE(foundRows(report, table->reportCells(), firstRow, 1),
             expectedRows(table->reportCells(), {}));
}

// Two men, four women, one not stated.
void TestWorkbookTables::countsAreThoseOfThePersons() {
    RunFixture run;
    const auto table = run.table(QStringLiteral("FREQ PERSON.SEX"));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("book.xlsx"));
    QVERIFY(writePlainWorkbook({table.get()}, path).written());
    const ReadWorkbook book(path);
    const QList<std::pair<const char*, int>> counted{
        {"1. Male", 2}, {"2. Female", 4}, {"Total", 6}, {"MV", 1}};
    for (qsizetype row = 0; row < counted.size(); ++row) {
        QCOMPARE(book.value(place(row + 1, 0).constData()).toString(),
                 QLatin1String(counted[row].first));
        QCOMPARE(book.value(place(row + 1, 1).constData()).toInt(), counted[row].second);
    }
}

QTEST_GUILESS_MAIN(TestWorkbookTables)
#include "tst_workbooktables.moc"
