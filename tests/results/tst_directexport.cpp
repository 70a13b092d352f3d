// SPDX-License-Identifier: GPL-3.0-or-later
// Files that a program asks for.
#include "ExportFixture.h"
#include "MadeTable.h"
#include "results/exports/DirectExport.h"

#include "TKelOutput.h"

#include <QRegularExpression>
#include <QTest>

class tst_DirectExport : public QObject {
    Q_OBJECT

private slots:
    void init() { fixture_ = std::make_unique<ExportFixture>(); }

    void formatDecidesTheFile_data();
    void formatDecidesTheFile();
    void workbooksAreAddedToUnlessOverwritten();
    void folderThatIsGoneGivesWayToResults();
    void relativePathsLieInResults();
    void withoutNameNothingIsWritten();
    void faultsAreTold();

private:
    static TKelOutputConfig asked(const QString& path, int format = 0, int flavour = 2) {
        TKelOutputConfig options;
        options.outputFile = path.toStdString();
        options.format = format;
        options.formatFlavour = flavour;
        options.direct = true;
        return options;
    }
    WriteOutcome write(const TKelOutputConfig& options, QStringList* notes = nullptr) const {
        return DirectExport(fixture_->settings).write(*madeFrequency(), options, notes);
    }
    QByteArray sheets(const QString& name) const {
        return ExportFixture::said("python3",
                                   {"-c",
                                    "import re, sys, zipfile\n"
                                    "book = zipfile.ZipFile(sys.argv[1])"
                                    ".read('xl/workbook.xml').decode()\n"
                                    "print('|'.join(re.findall('<sheet name=\"([^\"]*)', book)))",
                                    fixture_->path(name)})
            .trimmed();
    }

    std::unique_ptr<ExportFixture> fixture_;
};

void tst_DirectExport::formatDecidesTheFile_data() {
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("start");
    const QByteArray csv = "\xEF\xBB\xBFPERSON.SEX (Sex),Count,%,Cumul%,\n";
    QTest::newRow("csv") << 0 << "a.csv"
                         << "a.csv" << csv;
    QTest::newRow("csv by default") << 7 << "a.html"
                                    << "a.html.csv" << csv;
    QTest::newRow("xlsx") << 3 << "a"
                          << "a.xlsx" << QByteArray("PK\x03\x04");
    QTest::newRow("pdf") << 10 << "a.pdf"
                         << "a.pdf" << QByteArray("%PDF-1.");
}

void tst_DirectExport::formatDecidesTheFile() {
    QFETCH(int, format);
    QFETCH(QString, name);
    QFETCH(QString, file);
    QFETCH(QByteArray, start);
    QStringList notes;
    const WriteOutcome outcome = write(asked(fixture_->path(name), format), &notes);
    QVERIFY2(outcome.written(), qPrintable(outcome.fault));
    QCOMPARE(outcome.path, fixture_->path(file));
    QVERIFY(fixture_->read(file).startsWith(start));
    QCOMPARE(fixture_->files(), QStringList{file});
    QVERIFY(notes.isEmpty());
}

void tst_DirectExport::workbooksAreAddedToUnlessOverwritten() {
    constexpr int xlsx = 3;
    for (int time = 0; time < 2; ++time)
        QVERIFY(write(asked(fixture_->path("book.xlsx"), xlsx, 2)).written());
    QCOMPARE(sheets("book.xlsx"), "T_1|T_1 (2)");
    QVERIFY(write(asked(fixture_->path("book.xlsx"), xlsx, 1)).written());
    QCOMPARE(sheets("book.xlsx"), "T_1");
}

void tst_DirectExport::folderThatIsGoneGivesWayToResults() {
    const QString results = fixture_->path("results");
    fixture_->settings.setDirectoryFor("TABLE", results);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("/gone does not exist\\.$"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Using default directory .*results$"));
    QStringList notes;
    const WriteOutcome outcome = write(asked(fixture_->path("gone/deep/../t.csv")), &notes);
    QVERIFY2(outcome.written(), qPrintable(outcome.fault));
    QCOMPARE(outcome.path, results + "/t.csv");
    QVERIFY(QFileInfo::exists(results + "/t.csv"));
    QVERIFY(!QFileInfo::exists(fixture_->path("gone")));
    QCOMPARE(notes.size(), 1);
    QVERIFY(notes.first().contains(fixture_->path("gone")) && notes.first().contains(results));
}

void tst_DirectExport::relativePathsLieInResults() {
    fixture_->settings.setDirectoryFor("TABLE", fixture_->folder.path());
    QCOMPARE(write(asked("t.csv")).path, fixture_->path("t.csv"));
    QCOMPARE(fixture_->files(), QStringList{"t.csv"});
}

void tst_DirectExport::withoutNameNothingIsWritten() {
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("was not written"));
    QVERIFY(!write(asked("")).fault.isEmpty());
}

void tst_DirectExport::faultsAreTold() {
    QVERIFY(QDir().mkdir(fixture_->path("t.csv")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("t.csv was not written"));
    const WriteOutcome outcome = write(asked(fixture_->path("t.csv")));
    QVERIFY(!outcome.fault.isEmpty() && !outcome.cancelled);
}

QTEST_MAIN(tst_DirectExport)
#include "tst_directexport.moc"
