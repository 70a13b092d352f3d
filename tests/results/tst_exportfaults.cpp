// SPDX-License-Identifier: GPL-3.0-or-later
// Files that cannot be written, or that the user no longer wants: what was there stays.
#include "ExportFixture.h"
#include "MadeTable.h"

#include <QRegularExpression>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// No file of this process grows beyond a size, as on a disk that is full.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        former_ = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &limit_);
        rlimit small = limit_;
        small.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        ::setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, former_);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit limit_{};
    void (*former_)(int);
};

} // namespace

class tst_ExportFaults : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { table_ = madeLargeTable(2000, 10); }
    void init() { fixture_ = std::make_unique<ExportFixture>(); }

    void folderThatIsNotThere_data() { formats(); }
    void folderThatIsNotThere();
    void folderInPlaceOfTheFile_data() { formats(); }
    void folderInPlaceOfTheFile();
    void folderThatMayNotBeWritten_data() { formats(); }
    void folderThatMayNotBeWritten();
    void fullDiskKeepsTheOldFile_data() { formats(); }
    void fullDiskKeepsTheOldFile();
    void cancelKeepsTheOldFile_data();
    void cancelKeepsTheOldFile();
    void progressCountsTheCells_data() { cancelKeepsTheOldFile_data(); }
    void progressCountsTheCells();
    void oldFilesAreReplaced_data() { formats(); }
    void oldFilesAreReplaced();

private:
    static void formats();
    WriteOutcome write(const QString& path, const WriteProgress& progress = {}) const;

    std::unique_ptr<MadeTable> table_;
    std::unique_ptr<ExportFixture> fixture_;
};

void tst_ExportFaults::formats() {
    QTest::addColumn<QString>("suffix");
    for (const char* suffix : {"csv", "json", "xml", "pdf"})
        QTest::newRow(suffix) << suffix;
}

WriteOutcome tst_ExportFaults::write(const QString& path, const WriteProgress& progress) const {
    const ResultFileWriter& writer = fixture_->writer;
    if (path.endsWith("csv"))
        return writer.writeCsv(*table_, path, ResultFileWriter::HeaderChoice::Label, progress);
    if (path.endsWith("json"))
        return writer.writeJson(*table_, path);
    if (path.endsWith("xml"))
        return writer.writeXml(*table_, path, progress);
    return writer.writePdf(*table_, path, progress);
}

void tst_ExportFaults::folderThatIsNotThere() {
    QFETCH(QString, suffix);
    const QString path = fixture_->path("gone/table." + suffix);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("gone/table.* was not written"));
    const WriteOutcome outcome = write(path);
    QVERIFY(!outcome.written() && !outcome.cancelled && !outcome.fault.isEmpty());
    QCOMPARE(outcome.path, path);
    QVERIFY(fixture_->files().isEmpty());
}

void tst_ExportFaults::folderInPlaceOfTheFile() {
    QFETCH(QString, suffix);
    const QString path = fixture_->path("folder." + suffix);
    QVERIFY(QDir().mkdir(path));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("was not written"));
    QVERIFY(!write(path).fault.isEmpty());
    QVERIFY(QFileInfo(path).isDir());
    QVERIFY(fixture_->files().isEmpty());
}

void tst_ExportFaults::folderThatMayNotBeWritten() {
    QFETCH(QString, suffix);
    if (::geteuid() == 0)
        QSKIP("all folders may be written by this user");
    fixture_->put("old." + suffix, "old");
    const QFile::Permissions all = QFile(fixture_->folder.path()).permissions();
    QFile::setPermissions(fixture_->folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("was not written"));
    QVERIFY(!write(fixture_->path("old." + suffix)).fault.isEmpty());
    QFile::setPermissions(fixture_->folder.path(), all);
    QCOMPARE(fixture_->read("old." + suffix), "old");
}

void tst_ExportFaults::fullDiskKeepsTheOldFile() {
    QFETCH(QString, suffix);
    table_->json = std::string(200000, 'x');
    const QString name = "old." + suffix;
    fixture_->put(name, "old");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("was not written"));
    WriteOutcome outcome;
    {
        const SmallDisk disk(50000);
        outcome = write(fixture_->path(name));
    }
    QVERIFY(!outcome.written() && !outcome.fault.isEmpty());
    QCOMPARE(fixture_->read(name), "old");
    QCOMPARE(fixture_->files(), QStringList{name});
    QVERIFY(write(fixture_->path(name)).written());
}

void tst_ExportFaults::cancelKeepsTheOldFile_data() {
    QTest::addColumn<QString>("suffix");
    for (const char* suffix : {"csv", "xml", "pdf"})
        QTest::newRow(suffix) << suffix;
}

void tst_ExportFaults::cancelKeepsTheOldFile() {
    QFETCH(QString, suffix);
    const QString name = "old." + suffix;
    fixture_->put(name, "old");
    int calls = 0;
    const WriteOutcome outcome =
        write(fixture_->path(name), [&calls](qint64, qint64) { return ++calls < 3; });
    QVERIFY(outcome.cancelled && !outcome.written() && outcome.fault.isEmpty());
    QCOMPARE(calls, 3);
    QCOMPARE(fixture_->read(name), "old");
    QCOMPARE(fixture_->files(), QStringList{name});
}

void tst_ExportFaults::progressCountsTheCells() {
    QFETCH(QString, suffix);
    QList<qint64> done;
    const WriteOutcome outcome =
        write(fixture_->path("p." + suffix), [&done](qint64 cells, qint64 all) {
            done += all == 20000 ? cells : -1;
            return true;
        });
    QVERIFY(outcome.written());
    QVERIFY(done.size() >= 4);
    QVERIFY(std::is_sorted(done.begin(), done.end()));
    QVERIFY(done.first() >= 0 && done.last() > 15000 && done.last() <= 20000);
}

void tst_ExportFaults::oldFilesAreReplaced() {
    QFETCH(QString, suffix);
    table_->json = "{}";
    const QString name = "old." + suffix;
    fixture_->put(name, QByteArray(3000000, 'x'));
    QVERIFY(write(fixture_->path(name)).written());
    QVERIFY(!fixture_->read(name).endsWith('x'));
    QCOMPARE(fixture_->files(), QStringList{name});
}

QTEST_MAIN(tst_ExportFaults)
#include "tst_exportfaults.moc"
