// SPDX-License-Identifier: GPL-3.0-or-later
// PDF reports as other programs read them.
#include "ExportFixture.h"
#include "MadeTable.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

class tst_PdfExport : public QObject {
    Q_OBJECT

private slots:
    void holdsFactsHeadersAndCells();
    void pagesAreOfA4WithMargins();
    void labelsAreWhole();
    void tellsOfHiddenCells();
    void wideTablesLieAcrossInSmallerLetters();
    void veryWideTablesStandInBlocks_data();
    void veryWideTablesStandInBlocks();
    void blocksTellProgressAndStop();
    void longTablesGoOnWithoutGaps();
    void longTextsBreakIntoLines();
    void emptyTablesHaveTheirFacts();

private:
    ExportFixture fixture_;

    QString text(const TableBase& table, const QString& name, const QStringList& options = {}) {
        const WriteOutcome outcome = fixture_.writer.writePdf(table, fixture_.path(name));
        if (!outcome.written())
            return "fault: " + outcome.fault;
        return QString::fromUtf8(
            ExportFixture::said("pdftotext", options + QStringList{outcome.path, "-"}));
    }
    QString facts(const QString& name) const {
        return QString::fromUtf8(ExportFixture::said("pdfinfo", {fixture_.path(name)}));
    }
    QList<QRectF> words(const QString& name, const QString& word) const;
    static int pages(const QString& facts) {
        static const QRegularExpression count("Pages:\\s+(\\d+)");
        return count.match(facts).captured(1).toInt();
    }
};

/// Where a word stands on its page, in points.
QList<QRectF> tst_PdfExport::words(const QString& name, const QString& word) const {
    const QString boxes =
        QString::fromUtf8(ExportFixture::said("pdftotext", {"-bbox", fixture_.path(name), "-"}));
    const QRegularExpression box(
        "<word xMin=\"([\\d.-]+)\" yMin=\"([\\d.-]+)\" xMax=\"([\\d.-]+)\" "
        "yMax=\"([\\d.-]+)\">" +
        QRegularExpression::escape(word) + "</word>");
    QList<QRectF> found;
    for (auto match = box.globalMatch(boxes); match.hasNext();) {
        const QRegularExpressionMatch at = match.next();
        found += QRectF(QPointF(at.captured(1).toDouble(), at.captured(2).toDouble()),
                        QPointF(at.captured(3).toDouble(), at.captured(4).toDouble()));
    }
    return found;
}

void tst_PdfExport::holdsFactsHeadersAndCells() {
    const QString said = text(*madeCrosstab(), "cross", {"-layout"});
    for (const char* expected :
         {"Title", "A title", "Database", "A database", "Geographic Area", "All Database",
          "Crosstab", "of Area", "by Sex", "HOUSE.AREA (Area)", "PERSON.SEX (Sex)", "1. Male",
          "2. Female", "1 234 567", "1 234 566.50"})
        QVERIFY2(said.contains(expected), expected);
    QVERIFY(QRegularExpression("Total +2 500 +1 200 +1 300").match(said).hasMatch());
    QVERIFY(QRegularExpression("2\\. Rural +40 +60").match(said).hasMatch());
    QCOMPARE(fixture_.files(), QStringList{"cross.pdf"});
}

void tst_PdfExport::pagesAreOfA4WithMargins() {
    text(*madeCrosstab(), "a4.PDF");
    const QString said = facts("a4.PDF");
    QVERIFY2(said.contains("A4"), qPrintable(said));
    QCOMPARE(pages(said), 1);
    // The facts begin at the margins; the table fills the width between them.
    const QList<QRectF> title = words("a4.PDF", "Title");
    QCOMPARE(title.size(), 1);
    constexpr qreal margin = 10 / 25.4 * 72;
    QVERIFY(qAbs(title.first().left() - margin) < 2);
    QVERIFY(title.first().top() >= margin - 1);
    const QRectF last = words("a4.PDF", "566.50").first();
    QVERIFY(last.right() < 595 - margin && last.right() > 595 - margin - 20);
}

void tst_PdfExport::labelsAreWhole() {
    TableMetadata facts = madeFacts(tablekind::frequency, "FREQUENCY", {"a <b> & c"});
    const MadeTable table(madeLayout({"Age <group>"}, {{"1. < 5 years"}, {"2. 5 & more"}}), facts);
    const QString said = text(table, "labels.pdf");
    for (const char* expected : {"of a <b> & c", "Age <group>", "1. < 5 years", "2. 5 & more"})
        QVERIFY2(said.contains(expected), expected);
}

void tst_PdfExport::tellsOfHiddenCells() {
    TableMetadata facts = madeFacts(tablekind::frequency, "FREQUENCY", {"Sex"});
    facts.suppressed = 12;
    const MadeTable table(madeLayout({"a", "b"}, {{"1. x", ""}}), facts);
    QVERIFY(text(table, "hidden.pdf").contains(facts.suppressedNote()));
}

void tst_PdfExport::wideTablesLieAcrossInSmallerLetters() {
    // Too wide for A4 upright, not for A4 across.
    text(*madeLargeTable(3, 20), "across.pdf");
    QVERIFY(QRegularExpression("Page size: +84[12]").match(facts("across.pdf")).hasMatch());

    const QString said = text(*madeLargeTable(3, 40), "wide.pdf");
    QVERIFY(said.contains("C39") && said.contains("Municipality"));
    const QList<QRectF> last = words("wide.pdf", "C39");
    QCOMPARE(last.size(), 1);
    constexpr qreal margin = 10 / 25.4 * 72;
    QVERIFY(last.first().right() < 842 - margin);
    QVERIFY(last.first().height() < words("across.pdf", "C19").first().height());
    // The last figure of the last row, in the same column.
    QCOMPARE(words("wide.pdf", "53").size(), 1);
    QVERIFY(words("wide.pdf", "53").first().right() < 842 - margin);
}

void tst_PdfExport::veryWideTablesStandInBlocks_data() {
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::newRow("a few") << 30 << 102;
    QTest::newRow("two thousand") << 3 << 2000;
    QTest::newRow("several pages high") << 90 << 102;
}

/// All cells are there, large enough to be read, below their header and beside their label.
void tst_PdfExport::veryWideTablesStandInBlocks() {
    QFETCH(int, rows);
    QFETCH(int, columns);
    constexpr qreal margin = 10 / 25.4 * 72;
    const auto table = madeLargeTable(rows, columns);
    const QStringList sheets =
        text(*table, "blocks.pdf", {"-layout"}).split('\f', Qt::SkipEmptyParts);
    static const QRegularExpression header("\\bC(\\d+)\\b");
    static const QRegularExpression row("area (\\d+) +(.*)");
    static const QRegularExpression gap(" {2,}");
    QSet<std::pair<int, int>> found;
    for (const QString& sheet : sheets) {
        QList<int> shown;
        for (auto match = header.globalMatch(sheet); match.hasNext();)
            shown += match.next().captured(1).toInt();
        for (auto match = row.globalMatch(sheet); match.hasNext();) {
            const QRegularExpressionMatch line = match.next();
            const QStringList figures = line.captured(2).trimmed().split(gap);
            QCOMPARE(figures.size(), shown.size());
            const int number = line.captured(1).toInt();
            for (qsizetype at = 0; at < figures.size(); ++at) {
                QCOMPARE(QString(figures[at]).remove(' ').toInt(), number * 7 + shown[at]);
                found += {number, shown[at]};
            }
        }
    }
    QCOMPARE(found.size(), qsizetype{rows} * (columns - 1));
    for (const QString& word : {QStringLiteral("C1"), QStringLiteral("C%1").arg(columns - 1)})
        for (const QRectF& box : words("blocks.pdf", word)) {
            QVERIFY2(box.height() >= 5, qPrintable(QString::number(box.height())));
            QVERIFY(box.right() < 842 - margin);
        }
}

void tst_PdfExport::blocksTellProgressAndStop() {
    const auto table = madeLargeTable(40, 300);
    QList<qint64> asked;
    const auto progress = [&](qint64 done, qint64 total) {
        asked += done;
        return total == 40 * 300;
    };
    QVERIFY(fixture_.writer.writePdf(*table, fixture_.path("p.pdf"), progress).written());
    QVERIFY(std::is_sorted(asked.cbegin(), asked.cend()));
    QCOMPARE(asked.last(), 40 * 300);
    const QByteArray before = fixture_.read("p.pdf");
    const auto stop = [&](qint64 done, qint64 /*total*/) { return done < 40 * 200; };
    QVERIFY(fixture_.writer.writePdf(*table, fixture_.path("p.pdf"), stop).cancelled);
    QCOMPARE(fixture_.read("p.pdf"), before);
}

/// More rows than are laid out at a time: each stands there once, in order, below a header on each
/// page.
void tst_PdfExport::longTablesGoOnWithoutGaps() {
    constexpr int rows = 5000;
    const QString said = text(*madeLargeTable(rows, 3), "long.pdf", {"-layout"});
    const QStringList sheets = said.split('\f', Qt::SkipEmptyParts);
    QCOMPARE(sheets.size(), pages(facts("long.pdf")));
    QVERIFY(sheets.size() > 50);
    int expected = 0;
    static const QRegularExpression row("area (\\d+) +([\\d ]+)");
    for (const QString& sheet : sheets) {
        QCOMPARE(sheet.count("C2"), 1);
        const int before = expected;
        for (auto match = row.globalMatch(sheet); match.hasNext(); ++expected)
            QCOMPARE(match.next().captured(1).toInt(), expected);
        // All pages but the last are full.
        if (&sheet != &sheets.first() && &sheet != &sheets.last())
            QVERIFY2(expected - before >= sheets[1].count("area ") - 1, qPrintable(sheet));
    }
    QCOMPARE(expected, rows);
}

void tst_PdfExport::longTextsBreakIntoLines() {
    const std::string sentence =
        "Agriculture, hunting, forestry and fishing without anything else ";
    MadeRows rows;
    for (int row = 0; row < 40; ++row)
        rows.push_back({sentence + sentence + sentence + "end" + std::to_string(row), "1"});
    const MadeTable table(madeLayout({"Branch", "Count"}, rows),
                          madeFacts(tablekind::frequency, "FREQUENCY", {"Branch"}));
    const QString said = text(table, "lines.pdf");
    for (int row = 0; row < 40; ++row)
        QVERIFY(said.contains(QStringLiteral("end%1\n").arg(row)));
    QVERIFY(facts("lines.pdf").contains("595")); // upright
}

void tst_PdfExport::emptyTablesHaveTheirFacts() {
    const MadeTable table(TableLayout(), madeFacts(tablekind::frequency, "UNKNOWN"));
    const QString said = text(table, "empty.pdf");
    QVERIFY2(said.contains("A title") && said.contains("UNKNOWN"), qPrintable(said));
    const MadeTable headers(madeLayout({"only", "headers"}, {}), madeFacts(0, "UNKNOWN"));
    QVERIFY(text(headers, "headers.pdf").contains("headers"));
}

QTEST_MAIN(tst_PdfExport)
#include "tst_pdfexport.moc"
