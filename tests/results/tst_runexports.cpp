// SPDX-License-Identifier: GPL-3.0-or-later
// Files of what the engine made: small.kxdb, counted by hand.
#include "ExportFixture.h"
#include "RunFixture.h"
#include "results/exports/DirectExport.h"

#include "TKelOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

class tst_RunExports : public QObject {
    Q_OBJECT

private slots:
    void init();

    void frequencyAsCsv();
    void areaListKeepsItsCodes();
    void crosstabAsXml();
    void jsonIsReadAgain();
    void threeWayReportHasGroupRows();
    void programsWriteTheirFiles_data();
    void programsWriteTheirFiles();
    void runWithoutFolderWritesIntoResults();

private:
    QList<QByteArray> csv(const QString& program) {
        files_->writer.writeCsv(*run_->table(program), files_->path("t.csv"),
                                ResultFileWriter::HeaderChoice::Label);
        return files_->read("t.csv").mid(3).split('\n');
    }

    std::unique_ptr<RunFixture> run_;
    std::unique_ptr<ExportFixture> files_;
};

void tst_RunExports::init() {
    run_ = std::make_unique<RunFixture>();
    files_ = std::make_unique<ExportFixture>();
}

void tst_RunExports::frequencyAsCsv() {
    const QList<QByteArray> lines = csv("FREQ PERSON.SEX");
    QCOMPARE(lines.size(), 6);
    QVERIFY(lines[0].endsWith(",Count,%,Cumul%,"));
    QCOMPARE(lines[1], "1. Male,2.000000,33.333333,33.333333,");
    QCOMPARE(lines[2], "2. Female,4.000000,66.666667,100.000000,");
    QCOMPARE(lines[3], "0. __tot__,6.000000,100,,");
    QCOMPARE(lines[4], "0. __mv__,1,,,");
    QCOMPARE(lines[5], "");
}

void tst_RunExports::areaListKeepsItsCodes() {
    const QString program = "TABLE T1 AS FREQ PERSON.SEX\nAREALIST DISTRICT, DISTRICT.ZONE, T1";
    const QList<QByteArray> lines = csv(program);
    QVERIFY2(lines[1].startsWith("01,"), lines[1].constData());
    QVERIFY2(lines[2].startsWith("02,"), lines[2].constData());
    QVERIFY2(lines[0].contains("T1 Total,"), lines[0].constData());
    files_->settings.setCsvArealistHeaderVariable("Label");
    const QList<QByteArray> labels = csv(program);
    QVERIFY2(labels[0].contains("$tot$,Male,Female,$mv$,"), labels[0].constData());
    QCOMPARE(labels[1], lines[1]);
}

void tst_RunExports::crosstabAsXml() {
    const auto table = run_->table("CROSSTABS DISTRICT.NAME BY PERSON.SEX");
    QVERIFY(files_->writer.writeXml(*table, files_->path("c.xml")).written());
    QXmlStreamReader xml(files_->read("c.xml"));
    QStringList found;
    bool total = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("row"))
            total = xml.attributes().value("class") == QLatin1String("totalRow");
        else if ((total && xml.name() == QLatin1String("column")) ||
                 xml.name() == QLatin1String("result_type"))
            found += xml.readElementText();
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    // Total, Male, Female, MV.
    QCOMPARE(found.mid(0, 5), (QStringList{"Crosstable", "0. __tot__", "6", "2", "4"}));
}

void tst_RunExports::jsonIsReadAgain() {
    const auto table = run_->table("FREQ PERSON.SEX TITLE \"Un t\u00edtulo\"");
    QVERIFY(files_->writer.writeJson(*table, files_->path("j.json")).written());
    QJsonParseError fault;
    const QJsonObject object = QJsonDocument::fromJson(files_->read("j.json"), &fault).object();
    QVERIFY2(fault.error == QJsonParseError::NoError, qPrintable(fault.errorString()));
    QCOMPARE(object["title"].toString(), QString("Un t\u00edtulo"));
}

void tst_RunExports::threeWayReportHasGroupRows() {
    const auto table = run_->table("CROSSTABS DISTRICT.NAME BY HOUSEHOLD.ROOMS BY PERSON.SEX");
    const WriteOutcome outcome = files_->writer.writePdf(*table, files_->path("c.pdf"));
    QVERIFY2(outcome.written(), qPrintable(outcome.fault));
    const QString said =
        QString::fromUtf8(ExportFixture::said("pdftotext", {"-layout", outcome.path, "-"}));
    QVERIFY2(said.contains("Crosstab") && said.contains("2. Female"), qPrintable(said));
    // A row of its own for each district, its rooms below.
    QVERIFY2(QRegularExpression("\n *(\\d+\\. )?North *\n").match(said).hasMatch(),
             qPrintable(said));
}

void tst_RunExports::programsWriteTheirFiles_data() {
    QTest::addColumn<QString>("clause");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("csv") << R"(OUTFILE "a.csv")" << QByteArray("\xEF\xBB\xBF");
    QTest::newRow("html") << R"(OUTFILE HTML "a.html")" << QByteArray("\xEF\xBB\xBF");
    QTest::newRow("xlsx") << R"(OUTFILE XLSX "a.xlsx" OVERWRITE)" << QByteArray("PK\x03\x04");
    QTest::newRow("pdf") << R"(OUTFILE PDF "a.pdf")" << QByteArray("%PDF-");
}

void tst_RunExports::programsWriteTheirFiles() {
    QFETCH(QString, clause);
    QFETCH(QByteArray, start);
    const TKelOutputConfig options = run_->run("FREQ PERSON.SEX " + clause).back()->options();
    QVERIFY(options.direct);
    const auto table = run_->table("FREQ PERSON.SEX");
    const WriteOutcome outcome = DirectExport(files_->settings).write(*table, options);
    QVERIFY2(outcome.written(), qPrintable(outcome.fault));
    // Beside the dictionary, as the engine made the path absolute.
    QCOMPARE(QFileInfo(outcome.path).path(), QFileInfo(run_->path()).path());
    QFile file(outcome.path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.read(start.size()) == start);
}

void tst_RunExports::runWithoutFolderWritesIntoResults() {
    files_->settings.setDirectoryFor("TABLE", files_->folder.path());
    // The engine asks for the folder while it compiles.
    const QDir dictionary = QFileInfo(run_->path()).dir();
    QVERIFY(dictionary.mkdir("gone"));
    const auto outputs = run_->run(R"(FREQ PERSON.SEX OUTFILE "gone/a.csv")");
    QVERIFY(dictionary.rmdir("gone"));
    const TKelOutputConfig options = outputs.back()->options();
    const auto table = run_->table("FREQ PERSON.SEX");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("gone does not exist\\.$"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Using default directory"));
    QStringList notes;
    QCOMPARE(DirectExport(files_->settings).write(*table, options, &notes).path,
             files_->path("a.csv"));
    QCOMPARE(notes.size(), 1);
}

QTEST_MAIN(tst_RunExports)
#include "tst_runexports.moc"
