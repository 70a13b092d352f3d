// SPDX-License-Identifier: GPL-3.0-or-later
// The very bytes of what is written as text.
#include "ExportFixture.h"
#include "MadeTable.h"
#include "results/exports/HtmlReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>
#include <QTranslator>

using Choice = ResultFileWriter::HeaderChoice;

namespace {

/// A language whose words are those of ours in capitals.
class Capitals : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* text, const char* /*comment*/,
                      int /*number*/) const override {
        return QString::fromUtf8(text).toUpper();
    }
};

} // namespace

class tst_TextExports : public QObject {
    Q_OBJECT

private slots:
    void csvHasSeparatorsBehindEachCell();
    void csvQuotesNothing();
    void csvOfListsTakesHeadersFromPreferences_data();
    void csvOfListsTakesHeadersFromPreferences();
    void csvFollowsSeparatorAndHeaderPreference();
    void csvIsReadByAnotherProgram();
    void xmlOfOneVariable();
    void xmlOfCrosstab();
    void xmlKeepsItsOddities();
    void xmlOfAreaList();
    void xmlWithoutVariables();
    void reportAlignsAsTheGrid();
    void jsonIsAsTheEngineGivesIt();
    void htmlHoldsTheWholeReport();
    void htmlEscapesAndTellsOfHiddenCells();
    void htmlHoldsBlocksOfColumns();
    void htmlSpeaksTheLanguageOfTheInterface();
};

namespace {

std::unique_ptr<MadeTable> list(int kind) {
    TableLayout layout = madeLayout({"KELCODE", "1. Male", "Total"}, {{"0101", "5", "9"}});
    layout.columnNames = QStringList{"KELCODE", "1. Male", "T1 Total"};
    layout.columnLabels = QStringList{"Code", "Male", "$tot$"};
    return std::make_unique<MadeTable>(std::move(layout), madeFacts(kind, "LIST"));
}

} // namespace

void tst_TextExports::csvHasSeparatorsBehindEachCell() {
    const ExportFixture fixture;
    const WriteOutcome outcome =
        fixture.writer.writeCsv(*madeFrequency(), fixture.path("plain"), Choice::Label);
    QVERIFY(outcome.written());
    QCOMPARE(outcome.path, fixture.path("plain.csv"));
    QCOMPARE(fixture.read("plain.csv"), "\xEF\xBB\xBF"
                                        "PERSON.SEX (Sex),Count,%,Cumul%,\n"
                                        "1. Male,1200,48.000000,48.000000,\n"
                                        "2. Female,1300,52.000000,100.000000,\n"
                                        "0. __tot__,2500,100,,\n"
                                        "0. __mv__,7,,,\n");
    // Both commands write the same, and capitals of a suffix count as well.
    fixture.writer.writeCsv(*madeFrequency(), fixture.path("names.CSV"), Choice::Name);
    QCOMPARE(fixture.read("names.CSV"), fixture.read("plain.csv"));
    QCOMPARE(fixture.files(), (QStringList{"names.CSV", "plain.csv"}));
}

void tst_TextExports::csvQuotesNothing() {
    const ExportFixture fixture;
    const MadeTable table(madeLayout({"a,b", "\"c\""}, {{"1. x, \"y\"", "1"}, {"short"}, {}}),
                          madeFacts(tablekind::frequency, "FREQUENCY"));
    fixture.writer.writeCsv(table, fixture.path("t.csv"), Choice::Name);
    QCOMPARE(fixture.read("t.csv"), "\xEF\xBB\xBF"
                                    "a,b,\"c\",\n"
                                    "1. x, \"y\",1,\n"
                                    "short,,\n"
                                    ",,\n");
}

void tst_TextExports::csvOfListsTakesHeadersFromPreferences_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("areaList");
    QTest::addColumn<QString>("tablist");
    QTest::addColumn<QByteArray>("header");
    const QByteArray names = "KELCODE,1. Male,T1 Total,";
    const QByteArray labels = "Code,Male,$tot$,";
    const QByteArray shown = "KELCODE,1. Male,Total,";
    QTest::newRow("area list, names") << int(tablekind::areaList) << "Name"
                                      << "Label" << names;
    QTest::newRow("area list, labels") << int(tablekind::areaList) << "Label"
                                       << "Name" << labels;
    QTest::newRow("tablist, names") << int(tablekind::tablist) << "Label"
                                    << "Name" << names;
    QTest::newRow("tablist, labels") << int(tablekind::tablist) << "Name"
                                     << "Label" << labels;
    QTest::newRow("others") << int(tablekind::tabop) << "Label"
                            << "Label" << shown;
}

void tst_TextExports::csvOfListsTakesHeadersFromPreferences() {
    QFETCH(int, kind);
    QFETCH(QString, areaList);
    QFETCH(QString, tablist);
    QFETCH(QByteArray, header);
    ExportFixture fixture;
    fixture.settings.setCsvArealistHeaderVariable(areaList);
    fixture.settings.setCsvTablistHeaderVariable(tablist);
    fixture.writer.writeCsv(*list(kind), fixture.path("l.csv"), Choice::Label);
    QCOMPARE(fixture.read("l.csv").mid(3).split('\n').first(), header);
}

void tst_TextExports::csvFollowsSeparatorAndHeaderPreference() {
    ExportFixture fixture;
    fixture.settings.setCsvDelimiter(";");
    fixture.settings.setCsvShowHeader(false);
    fixture.writer.writeCsv(*list(tablekind::areaList), fixture.path("l.csv"), Choice::Label);
    QCOMPARE(fixture.read("l.csv"), "\xEF\xBB\xBF"
                                    "0101;5;9;\n");
}

void tst_TextExports::csvIsReadByAnotherProgram() {
    const ExportFixture fixture;
    const auto table = madeLargeTable(3000, 30);
    fixture.writer.writeCsv(*table, fixture.path("large.csv"), Choice::Name);
    const QByteArray answer = ExportFixture::said(
        "python3", {"-c",
                    "import csv, json, sys\n"
                    "rows = list(csv.reader(open(sys.argv[1], encoding='utf-8-sig')))\n"
                    "print(json.dumps([len(rows), len(rows[0]), rows[0][29], rows[3000][:2],\n"
                    "                  sum(int(row[29]) for row in rows[1:])]))",
                    fixture.path("large.csv")});
    // 30 columns and what is behind the last separator; figures are row * 7 + column.
    QCOMPARE(answer.trimmed(), R"([3001, 31, "C29", ["area 2999", "20994"], 31576500])");
}

void tst_TextExports::xmlOfOneVariable() {
    const ExportFixture fixture;
    const WriteOutcome outcome =
        fixture.writer.writeXml(*madeFrequency(), fixture.path("no suffix"));
    QCOMPARE(outcome.path, fixture.path("no suffix"));
    const QByteArray xml = fixture.read("no suffix");
    QVERIFY(
        xml.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<data>\n"
                       "  <titles>\n"
                       "    <title>A title</title>\n"
                       "    <database>A database</database>\n"
                       "    <geographic_area>All Database</geographic_area>\n"
                       "  </titles>\n"
                       "  <metadata>\n"
                       "    <result_type>FREQUENCY</result_type>\n"
                       "    <of>Sex</of>\n"
                       "    <by>\n"
                       "    </by>\n"
                       "  </metadata>\n"
                       "  <table>\n"
                       "    <row class=\"header\">\n"
                       "      <column colspan=\"1\" rowspan=\"1\">PERSON.SEX (Sex)</column>\n"));
    QVERIFY(xml.endsWith("    <row class=\"totalRow\">\n"
                         "      <column class=\"stringCell\">0. __tot__</column>\n"
                         "      <column>2500</column>\n"
                         "      <column>100</column>\n"
                         "      <column></column>\n"
                         "    </row>\n"
                         "    <row>\n"
                         "      <column class=\"stringCell\">0. __mv__</column>\n"
                         "      <column>7</column>\n"
                         "      <column></column>\n"
                         "      <column></column>\n"
                         "    </row>\n"
                         "  </table>\n"
                         "</data>\n"));
}

void tst_TextExports::xmlOfCrosstab() {
    const ExportFixture fixture;
    fixture.writer.writeXml(*madeCrosstab(), fixture.path("c.xml"));
    const QByteArray xml = fixture.read("c.xml");
    QVERIFY(xml.contains("    <result_type>Crosstable</result_type>\n"
                         "    <of>Area</of>\n"
                         "    <by>\n"
                         "        <by_item>Sex</by_item>\n"
                         "    </by>\n"));
    QVERIFY(xml.contains("      <column colspan=\"1\" rowspan=\"2\">HOUSE.AREA (Area)</column>\n"
                         "      <column colspan=\"3\" rowspan=\"1\">PERSON.SEX (Sex)</column>\n"
                         "    </row>\n"
                         "    <row class=\"header\">\n"
                         "      <column colspan=\"1\" rowspan=\"1\">Total</column>\n"));
    QVERIFY(xml.contains("      <column>1234567</column>\n"
                         "      <column>0.5</column>\n"
                         "      <column>1234566.5</column>\n"));
}

void tst_TextExports::xmlKeepsItsOddities() {
    const ExportFixture fixture;
    TableMetadata facts = madeFacts(tablekind::average, "AVERAGE", {"Age < 5 & more", ""});
    facts.title = "a & b";
    facts.tally = "t";
    facts.weight = "w";
    facts.filter = "AGE > 5";
    facts.universalFilter = "u";
    facts.sort = TableSort{"PERSON.AGE", 10, false};
    const MadeTable table(madeLayout({"<x>"}, {{"1. < 5"}}), facts);
    fixture.writer.writeXml(table, fixture.path("o.xml"));
    const QByteArray xml = fixture.read("o.xml");
    QVERIFY(xml.contains("    <title>a & b</title>\n"));
    QVERIFY(xml.contains("  <metadata>\n"
                         "    <tally>t</tally>\n"
                         "    <weight>w</weight>\n"
                         "    <local_filter>AGE > 5</local_filter>\n"
                         "    <universar_filter>u</universal_filter>\n"
                         "    <sort_type>Descending</sort_type>\n"
                         "    <sort>PERSON.AGE</sort>\n"
                         "    <result_type>AVERAGE</result_type>\n"
                         "    <of>Age < 5 & more</of>\n"
                         "    <by>\n"
                         "        <by_item>PERSON.V2</by_item>\n"
                         "    </by>\n"));
    QVERIFY(xml.contains("rowspan=\"1\"><x></column>\n"));
    QVERIFY(xml.contains("<column class=\"stringCell\">1. < 5</column>\n"));
}

void tst_TextExports::xmlOfAreaList() {
    const ExportFixture fixture;
    fixture.writer.writeXml(*madeLargeTable(1, 2), fixture.path("a.xml"));
    const QByteArray xml = fixture.read("a.xml");
    QVERIFY(xml.contains("  <metadata>\n"
                         "    <entity>Municipality</entity>\n"
                         "    <key>KELCODE</key>\n"
                         "  </metadata>\n"));
}

void tst_TextExports::xmlWithoutVariables() {
    const ExportFixture fixture;
    const MadeTable table(TableLayout(), madeFacts(tablekind::frequency, "UNKNOWN"));
    fixture.writer.writeXml(table, fixture.path("n.xml"));
    QVERIFY(fixture.read("n.xml").endsWith("    <result_type>UNKNOWN</result_type>\n"
                                           "    <of></of>\n"
                                           "    <by>\n"
                                           "    </by>\n"
                                           "  </metadata>\n"
                                           "  <table>\n"
                                           "  </table>\n"
                                           "</data>\n"));
}

/// The second column holds a text in the grid only, the third one in the report only.
void tst_TextExports::reportAlignsAsTheGrid() {
    const ExportFixture fixture;
    TableLayout layout = madeLayout({"a", "b", "c"}, {{"x", "text", "1"}});
    layout.report = madeCells({{"x", "2", "text"}});
    const MadeTable table(std::move(layout), madeFacts(tablekind::frequency, "FREQUENCY"));
    fixture.writer.writeXml(table, fixture.path("r.xml"));
    const QByteArray body = "      <column class=\"stringCell\">2</column>\n"
                            "      <column>text</column>\n";
    QVERIFY(fixture.read("r.xml").contains(body));
    QVERIFY(HtmlReport(table).whole().contains("<td class=\"stringCell\">2</td><td>text</td>"));
}

void tst_TextExports::jsonIsAsTheEngineGivesIt() {
    const ExportFixture fixture;
    const auto table = madeFrequency();
    table->json = "{\"name\": \"Poblaci\xC3\xB3n\",\n \"rows\": [[1, 2.50]]}";
    const WriteOutcome outcome = fixture.writer.writeJson(*table, fixture.path("j"));
    QCOMPARE(outcome.path, fixture.path("j"));
    QCOMPARE(fixture.read("j"), QByteArray::fromStdString(table->json));
}

void tst_TextExports::htmlHoldsTheWholeReport() {
    QCOMPARE(
        HtmlReport(*madeCrosstab()).whole(),
        "<!DOCTYPE html><html><head><style>table {border-collapse: collapse; width: 100%;}"
        "th {background-color: #808080; border: 1px solid black; padding: 8px; text-align: "
        "center;}td {border: 1px solid black; padding: 8px; text-align: right;}.totalRow "
        "{background-color: #C0C0C0;}.stringCell {text-align: left;}</style></head><body>"
        "<h2>Title</h2><p>A title</p><h2>Database</h2><p>A database</p><h2>Geographic Area</h2>"
        "<p>All Database</p><h2>Crosstab</h2><p>of Area</p><p>by Sex</p><br><table>"
        "<tr><th colspan=\"1\" rowspan=\"2\">HOUSE.AREA (Area)</th>"
        "<th colspan=\"3\" rowspan=\"1\">PERSON.SEX (Sex)</th></tr>"
        "<tr><th colspan=\"1\" rowspan=\"1\">Total</th><th colspan=\"1\" rowspan=\"1\">1. "
        "Male</th><th colspan=\"1\" rowspan=\"1\">2. Female</th></tr>"
        "<tr class=\"totalRow\"><td class=\"stringCell\">Total</td><td>2 500</td><td>1 200</td>"
        "<td>1 300</td></tr>"
        "<tr><td class=\"stringCell\">1. Urban</td><td>1 234 567</td><td>0.50</td><td>1 234 "
        "566.50</td></tr>"
        "<tr><td class=\"stringCell\">2. Rural</td><td></td><td>40</td><td>60</td></tr>"
        "</table></body></html>");
}

void tst_TextExports::htmlEscapesAndTellsOfHiddenCells() {
    TableMetadata facts = madeFacts(tablekind::median, "MEDIAN", {"a < b"});
    facts.title = "x & y";
    facts.filter = "AGE < 5";
    facts.universalFilter = "u";
    facts.weight = "w";
    facts.sort = TableSort{"PERSON.AGE", -1, true};
    facts.suppressed = 3;
    const MadeTable table(madeLayout({"<h>"}, {{"1. < 5 years"}, {"2. more"}}), facts);
    const HtmlReport html(table);
    const QString whole = html.whole();
    QVERIFY(whole.contains("<h2>Title</h2><p>x &amp; y</p>"));
    QVERIFY(whole.contains("<h2>Weight</h2><p>w</p><h2>Filter</h2><p>AGE &lt; 5</p>"
                           "<h2>Universal Filter</h2><p>u</p>"
                           "<h2>Sorted(Ascending) by</h2><p>PERSON.AGE</p>"
                           "<h2>MEDIAN</h2><p>of a &lt; b</p><br><table>"));
    QVERIFY(whole.contains("rowspan=\"1\">&lt;h&gt;</th>"));
    QVERIFY(whole.contains("<td class=\"stringCell\">1. &lt; 5 years</td>"));
    QVERIFY(!facts.suppressedNote().isEmpty());
    QVERIFY(whole.endsWith("</table><br><p>" + facts.suppressedNote().toHtmlEscaped() +
                           "</p></body></html>"));
    // The note stands below the last rows, the facts above the first.
    const ColumnBlock all{0, 0, 1};
    QVERIFY(!html.slice(0, 1, all).contains(facts.suppressedNote()));
    QVERIFY(!html.slice(1, 2, all).contains("Title"));
    QVERIFY(html.slice(1, 2, all).contains(facts.suppressedNote()));
}

void tst_TextExports::htmlHoldsBlocksOfColumns() {
    const auto table = madeCrosstab();
    const HtmlReport html(*table);
    // The label and the last two columns of three under one heading.
    const QString last = html.slice(0, 3, {1, 2, 4});
    QVERIFY(!last.contains("Title"));
    QVERIFY2(last.contains("<tr><th colspan=\"1\" rowspan=\"2\">HOUSE.AREA (Area)</th>"
                           "<th colspan=\"2\" rowspan=\"1\">PERSON.SEX (Sex)</th></tr>"
                           "<tr><th colspan=\"1\" rowspan=\"1\">1. Male</th>"
                           "<th colspan=\"1\" rowspan=\"1\">2. Female</th></tr>"
                           "<tr class=\"totalRow\"><td class=\"stringCell\">Total</td>"
                           "<td>1 200</td><td>1 300</td></tr>"),
             qPrintable(last));
    // Where all of a row of the header is above, it would be an empty one.
    const QString first = html.slice(0, 3, {0, 0, 1});
    QVERIFY(first.contains("Title"));
    QVERIFY2(first.contains("<table><tr><th colspan=\"1\" rowspan=\"1\">HOUSE.AREA (Area)</th></tr>"
                            "<tr class=\"totalRow\"><td class=\"stringCell\">Total</td></tr>"),
             qPrintable(first));
    QCOMPARE(html.headerRows({0, 0, 1}), 1);
    QCOMPARE(html.headerRows({1, 2, 4}), 2);
}

void tst_TextExports::htmlSpeaksTheLanguageOfTheInterface() {
    Capitals language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    TableMetadata facts = madeFacts(tablekind::frequency, "FREQUENCY", {"a", "b"});
    facts.sort = TableSort{"PERSON.AGE", -1, false};
    facts.tally = facts.weight = facts.filter = facts.universalFilter = "x";
    const QString cross = HtmlReport(MadeTable(madeLayout({"h"}, {}), facts)).whole();
    for (const char* heading : {"TITLE", "DATABASE", "GEOGRAPHIC AREA", "TALLY", "WEIGHT", "FILTER",
                                "UNIVERSAL FILTER", "SORTED(DESCENDING) BY", "CROSSTAB"})
        QVERIFY2(cross.contains(QStringLiteral("<h2>%1</h2>").arg(heading)), heading);
    QVERIFY(cross.contains("<p>OF a</p><p>BY b</p>"));
    const QString list = HtmlReport(*madeLargeTable(1, 2)).whole();
    QVERIFY(list.contains("<h2>ENTITY</h2>") && list.contains("<h2>KEY</h2>"));
    // Other programs read the words of XML.
    const ExportFixture fixture;
    QVERIFY(fixture.writer.writeXml(*madeCrosstab(), fixture.path("x.xml")).written());
    QVERIFY(!fixture.read("x.xml").contains("TITLE"));
}

QTEST_GUILESS_MAIN(tst_TextExports)
#include "tst_textexports.moc"
