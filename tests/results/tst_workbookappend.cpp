// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/MadeTable.h"
#include "results/WorkbookReading.h"
#include "results/workbook/WorkbookExports.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

std::unique_ptr<MadeTable> named(const QString& name) {
    auto table = madeCrosstab();
    TableMetadata facts = table->metadata();
    facts.name = name;
    table->setMetadata(facts);
    return table;
}

/// Parts of before that are gone or other ones now.
QStringList changedParts(const ReadWorkbook& before, const ReadWorkbook& after) {
    const QJsonObject old = before.facts()["parts"].toObject();
    const QJsonObject now = after.facts()["parts"].toObject();
    QStringList changed;
    for (const QString& part : old.keys())
        if (old[part] != now[part])
            changed += part;
    return changed;
}

} // namespace

class TestWorkbookAppend : public QObject {
    Q_OBJECT

private slots:
    void keepsAllThatWasThere();
    void addsFormatsOnce();
    void growsItsOwnWorkbook();
    void joinsUnusualWorkbooks_data();
    void joinsUnusualWorkbooks();
    void opensInASpreadsheet();
    void leavesWhatItCannotExtend_data();
    void leavesWhatItCannotExtend();
    void leavesAWorkbookThatIsOpenElsewhere();
    void leavesTheWorkbookWhenCancelled();
    void overwritesOnlyWhenTold();

private:
    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    QTemporaryDir folder_;
};

void TestWorkbookAppend::keepsAllThatWasThere() {
    const QString file = path("full.xlsx");
    makeWorkbook("full", file);
    const ReadWorkbook before(file);
    QCOMPARE(before.problems(), QString());
    const auto first = named(QStringLiteral("freq_1"));
    const auto second = named(QStringLiteral("A & B"));
    const WriteOutcome outcome = writeReportWorkbook({first.get(), second.get()}, file, false);
    QCOMPARE(outcome.fault, QString());
    const ReadWorkbook after(file);
    QCOMPARE(after.problems(), QString());
    QCOMPARE(after.sheets(),
             QStringList({"Población", "FREQ_1", "x'y & <z>", "freq_1 (2)", "A & B"}));
    for (int sheet = 0; sheet < 3; ++sheet)
        QCOMPARE(after.sheet(sheet), before.sheet(sheet));
    QCOMPARE(after.facts()["defined"], before.facts()["defined"]);
    QCOMPARE(after.facts()["selected"], before.facts()["selected"]);
    QCOMPARE(after.sheet(0)["charts"].toInt(), 1);
    for (int sheet = 3; sheet < 5; ++sheet) {
        QCOMPARE(after.view(sheet), "A13 landscape 9 True 1 0");
        QVERIFY(after.isCentred("C12", sheet) && !after.isCentred("C13", sheet));
    }
    QCOMPARE(after.value("D1").toString(), "=B1*2");
    QCOMPARE(changedParts(before, after),
             QStringList({"[Content_Types].xml", "xl/_rels/workbook.xml.rels", "xl/styles.xml",
                          "xl/workbook.xml"}));
    QVERIFY(runPython(QStringLiteral("print_part.py"), {file, QStringLiteral("xl/workbook.xml")})
                .contains("<own:thing a=\"1\"/></ext></extLst></workbook>"));
    // The new sheets look as those of a new workbook.
    QCOMPARE(after.look("A1", 3), "Tahoma 9 bold - - General");
    QCOMPARE(after.look("C12", 3), "Tahoma 9 bold FF808080 thin General");
    QCOMPARE(after.look("D14", 4), "Tahoma 9 - - thin # ##0.00");
    QCOMPARE(after.look("C13", 4), "Tahoma 9 - FFC0C0C0 thin # ##0");
    QCOMPARE(after.value("E14", 4).toDouble(), 1234566.5);
    QVERIFY(after.merged(4).contains(QStringLiteral("C11:E11")));
}

void TestWorkbookAppend::addsFormatsOnce() {
    const QString file = path("often.xlsx");
    makeWorkbook("full", file);
    const auto table = madeCrosstab();
    QVERIFY(writeReportWorkbook({table.get()}, file, false).written());
    const int formats = ReadWorkbook(file).facts()["formats"].toInt();
    for (int time = 0; time < 3; ++time)
        QVERIFY(writeReportWorkbook({table.get()}, file, false).written());
    const ReadWorkbook book(file);
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.facts()["formats"].toInt(), formats);
    QCOMPARE(book.sheets().mid(3), QStringList({"T_1", "T_1 (2)", "T_1 (3)", "T_1 (4)"}));
}

void TestWorkbookAppend::growsItsOwnWorkbook() {
    const QString file = path("own.xlsx");
    const auto table = madeFrequency();
    QVERIFY(writeReportWorkbook({table.get()}, file, false).written()); // there is none yet
    const int formats = ReadWorkbook(file).facts()["formats"].toInt();
    QVERIFY(writeReportWorkbook({table.get()}, file, false).written());
    const ReadWorkbook book(file);
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.sheets(), QStringList({"T_1", "T_1 (2)"}));
    QCOMPARE(book.facts()["formats"].toInt(), formats);
    QCOMPARE(ReadWorkbook::texts(book.facts()["titles"]),
             QStringList({"Worksheets", "2", "T_1", "T_1 (2)"}));
    QCOMPARE(book.sheet(1)["cells"], book.sheet(0)["cells"]);
}

void TestWorkbookAppend::joinsUnusualWorkbooks_data() {
    QTest::addColumn<QByteArray>("kind");
    QTest::newRow("no formats, other folders and prefixes") << QByteArray("bare");
    QTest::newRow("formats with a prefix, in UTF-16, lists missing") << QByteArray("prefixed");
}

void TestWorkbookAppend::joinsUnusualWorkbooks() {
    QFETCH(QByteArray, kind);
    const QString file = path((kind + ".xlsx").constData());
    makeWorkbook(kind.constData(), file);
    const auto table = madeCrosstab();
    const WriteOutcome outcome = writeReportWorkbook({table.get(), table.get()}, file, false);
    QCOMPARE(outcome.fault, QString());
    const ReadWorkbook book(file);
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.sheets(), QStringList({"One", "T_1", "T_1 (2)"}));
    QCOMPARE(book.value("A1").toDouble(), 4);
    QCOMPARE(book.look("C13", 1), "Tahoma 9 - FFC0C0C0 thin # ##0");
    QCOMPARE(book.look("C12", 2), "Tahoma 9 bold FF808080 thin General");
    QVERIFY(book.isCentred("C12", 2));
    QCOMPARE(book.view(2), "A13 landscape 9 True 1 0");
}

void TestWorkbookAppend::opensInASpreadsheet() {
    const QString office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (office.isEmpty())
        QSKIP("no spreadsheet program to open it with");
    const QString file = path("office.xlsx");
    makeWorkbook("full", file);
    const auto table = madeCrosstab();
    QVERIFY(writeReportWorkbook({table.get()}, file, false).written());
    // To its own format and back, which is a workbook that another program wrote.
    const QString profile = QStringLiteral("-env:UserInstallation=file://%1").arg(path("profile"));
    const auto convert = [&](const char* format, const QString& from) {
        QProcess process;
        process.start(office, {profile, "--headless", "--convert-to", QLatin1String(format),
                               "--outdir", path("converted"), from});
        process.waitForFinished(90000);
    };
    convert("ods", file);
    convert("xlsx", path("converted/office.ods"));
    const QString written = path("converted/office.xlsx");
    const ReadWorkbook before(written);
    QCOMPARE(before.sheets().last(), "T_1");
    QCOMPARE(before.value("E14", 3).toDouble(), 1234566.5);
    QVERIFY(writeReportWorkbook({table.get()}, written, false).written());
    const ReadWorkbook after(written);
    QCOMPARE(after.problems(), QString());
    QCOMPARE(after.sheets().last(), "T_1 (2)");
    for (int sheet = 0; sheet < 4; ++sheet)
        QCOMPARE(after.sheet(sheet), before.sheet(sheet));
}

void TestWorkbookAppend::leavesWhatItCannotExtend_data() {
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QString>("said");
    const auto row = [](const char* kind, const char* said) {
        QTest::newRow(kind) << QByteArray(kind) << QString::fromLatin1(said);
    };
    row("words", "no XLSX workbook");
    row("empty", "no XLSX workbook");
    row("cut_off", "no XLSX workbook");
    row("text_document", "no XLSX workbook");
    row("compound", "protected by a password");
    row("encrypted", "protected by a password");
    row("strict", "Strict Open XML");
    row("signed", "signed");
    row("missing", "damaged (book/workbook.xml)");
    row("broken", "damaged (book/workbook.xml)");
    row("damaged", "damaged (book/workbook.xml)");
    row("entities", "damaged (book/workbook.xml)");
    row("attributes", "damaged (book/workbook.xml)");
    row("elements", "book/workbook.xml is too large");
    row("nested", "book/workbook.xml is too large");
    row("bomb", "book/own.xml is too large");
}

void TestWorkbookAppend::leavesWhatItCannotExtend() {
    QFETCH(QByteArray, kind);
    QFETCH(QString, said);
    const QString file = path((kind + ".xlsx").constData());
    makeWorkbook(kind.constData(), file);
    const QByteArray before = bytesOf(file);
    const auto table = madeFrequency();
    QTest::ignoreMessage(QtWarningMsg, qPrintable("No se pudo guardar el archivo XLSX en " + file));
    const WriteOutcome outcome = writeReportWorkbook({table.get()}, file, false);
    QVERIFY2(outcome.fault.contains(said), qPrintable(outcome.fault));
    QCOMPARE(bytesOf(file), before);
}

void TestWorkbookAppend::leavesAWorkbookThatIsOpenElsewhere() {
    const QString file = path("open.xlsx");
    const auto table = madeFrequency();
    QVERIFY(writeReportWorkbook({table.get()}, file, true).written());
    const QByteArray before = bytesOf(file);
    for (const char* name : {".~lock.open.xlsx#", "~$open.xlsx"}) {
        QFile lock(path(name));
        QVERIFY(lock.open(QIODevice::WriteOnly));
        QTest::ignoreMessage(QtWarningMsg,
                             qPrintable("No se pudo guardar el archivo XLSX en " + file));
        const WriteOutcome outcome = writeReportWorkbook({table.get()}, file, false);
        QVERIFY2(outcome.fault.contains(QLatin1String(name)), qPrintable(outcome.fault));
        QCOMPARE(bytesOf(file), before);
        QVERIFY(lock.remove());
    }
    QVERIFY(writeReportWorkbook({table.get()}, file, false).written());
}

void TestWorkbookAppend::leavesTheWorkbookWhenCancelled() {
    const QString file = path("cancelled.xlsx");
    makeWorkbook("full", file);
    const QByteArray before = bytesOf(file);
    const auto table = madeLargeTable(3000, 10);
    // In the middle of the cells, and when all of them are written and the parts are put together.
    for (const qint64 stopAt : {qint64{12000}, qint64{28000}}) {
        int afterwards = 0;
        const WriteOutcome outcome =
            writeReportWorkbook({table.get()}, file, false, [&](qint64 done, qint64) {
                return done < stopAt || (stopAt > 20000 && ++afterwards < 2);
            });
        QVERIFY(outcome.cancelled);
        QVERIFY(!outcome.written());
        QCOMPARE(bytesOf(file), before);
    }
}

void TestWorkbookAppend::overwritesOnlyWhenTold() {
    const QString file = path("again.xlsx");
    makeWorkbook("full", file);
    const auto table = madeFrequency();
    QVERIFY(writeReportWorkbook({table.get()}, file, true).written());
    QCOMPARE(ReadWorkbook(file).sheets(), QStringList("T_1"));
}

QTEST_GUILESS_MAIN(TestWorkbookAppend)
#include "tst_workbookappend.moc"
