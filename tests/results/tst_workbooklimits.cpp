// SPDX-License-Identifier: GPL-3.0-or-later
// Workbooks that are too large, stopped, or have no room.
#include "results/MadeTable.h"
#include "results/WorkbookReading.h"
#include "results/workbook/WorkbookExports.h"
#include "results/workbook/ZipPackage.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>

#include <sys/resource.h>

namespace {

qsizetype openFiles() {
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

void forgetPeak() {
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        file.write("5");
}

/// The most memory since then, in MB.
qint64 peak() {
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toLongLong() / 1024;
    return -1;
}

/// A limit of the system on this process, as long as this object lives.
class Limit {
public:
    Limit(__rlimit_resource kind, rlim_t value) : kind_(kind) {
        getrlimit(kind_, &before_);
        const rlimit small{value, before_.rlim_max};
        setrlimit(kind_, &small);
    }
    ~Limit() { setrlimit(kind_, &before_); }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

private:
    __rlimit_resource kind_;
    rlimit before_{};
};

/// No file of this process grows beyond, as on a disk that is full.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes)
        : before_(std::signal(SIGXFSZ, SIG_IGN)), limit_(RLIMIT_FSIZE, bytes) {}
    ~SmallDisk() { std::signal(SIGXFSZ, before_); }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    void (*before_)(int);
    Limit limit_;
};

} // namespace

class TestWorkbookLimits : public QObject {
    Q_OBJECT

private slots:
    void init() { QVERIFY(folder_.isValid()); }
    void progressGrowsToTheEnd();
    void cancelLeavesTheFileThatWasThere();
    void fullDiskLeavesTheFileThatWasThere_data();
    void fullDiskLeavesTheFileThatWasThere();
    void fullDiskLeavesTheWorkbookThatSheetsJoin();
    void placeThatCannotBeWrittenIsTold_data();
    void placeThatCannotBeWrittenIsTold();
    void sheetsHoldSoManyRowsAndColumns();
    void manyTablesFitIntoOneWorkbook();
    void memoryStaysBounded();

private:
    QString old() const {
        QString path = folder_.filePath(QStringLiteral("old.xlsx"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("the former one");
        return path;
    }
    QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder_;
};

void TestWorkbookLimits::progressGrowsToTheEnd() {
    const auto table = madeLargeTable(5000, 10);
    QList<qint64> asked;
    qint64 told = 0;
    const auto progress = [&](qint64 done, qint64 total) {
        asked += done;
        told = total;
        return true;
    };
    QVERIFY(writePlainWorkbook({table.get()}, old(), progress).written());
    QCOMPARE(told, 50000);
    QVERIFY(asked.size() >= 10);
    QVERIFY(std::is_sorted(asked.cbegin(), asked.cend()));
    // Then the sheets are packed, read again and counted piece by piece.
    QVERIFY2(asked.count(50000) > 10, qPrintable(QString::number(asked.count(50000))));
}

void TestWorkbookLimits::cancelLeavesTheFileThatWasThere() {
    const QString path = old();
    const auto table = madeLargeTable(5000, 10);
    const qsizetype before = openFiles();
    const auto stop = [](qint64 done, qint64) { return done < 20000; };
    const WriteOutcome plain = writePlainWorkbook({table.get()}, path, stop);
    const WriteOutcome report = writeReportWorkbook({table.get()}, path, true, stop);
    QVERIFY(plain.cancelled && report.cancelled);
    // All cells written: at the last step, and while they are counted.
    for (const int last : {1, 6}) {
        int finishing = 0;
        const auto stopLate = [&](qint64 done, qint64 total) {
            finishing += done == total ? 1 : 0;
            return finishing < last;
        };
        QVERIFY(writePlainWorkbook({table.get()}, path, stopLate).cancelled);
    }
    QCOMPARE(bytesOf(path), "the former one");
    QCOMPARE(files(), QStringList("old.xlsx"));
    QCOMPARE(openFiles(), before);
}

void TestWorkbookLimits::fullDiskLeavesTheFileThatWasThere_data() {
    const auto table = madeLargeTable(5000, 10);
    const QString path = folder_.filePath(QStringLiteral("old.xlsx"));
    QVERIFY(writePlainWorkbook({table.get()}, path).written());
    const qsizetype sheet =
        ZipPackage(path).read(QStringLiteral("xl/worksheets/sheet1.xml"), 10'000'000).size();
    QTest::addColumn<qsizetype>("room");
    QTest::newRow("nothing") << qsizetype{0};
    QTest::newRow("not even the rows") << qsizetype{100'000};
    // The rows are kept in a file of their own, then copied between the sheet's begin and end; the
    // library does not look whether that fits.
    QTest::newRow("the rows, but not the sheet") << sheet - 10;
}

void TestWorkbookLimits::fullDiskLeavesTheFileThatWasThere() {
    QFETCH(qsizetype, room);
    const QString path = old();
    const auto table = madeLargeTable(5000, 10);
    WriteOutcome outcome;
    {
        const SmallDisk disk(static_cast<rlim_t>(room));
        outcome = writePlainWorkbook({table.get()}, path);
    }
    QVERIFY2(!outcome.fault.isEmpty(), "nobody noticed");
    QCOMPARE(bytesOf(path), "the former one");
    QCOMPARE(files(), QStringList("old.xlsx"));
}

void TestWorkbookLimits::fullDiskLeavesTheWorkbookThatSheetsJoin() {
    const QString path = folder_.filePath(QStringLiteral("joined.xlsx"));
    const auto small = madeCrosstab();
    QVERIFY(writeReportWorkbook({small.get()}, path, true).written());
    const QByteArray before = bytesOf(path);
    const auto table = madeLargeTable(5000, 10);
    QTest::ignoreMessage(QtWarningMsg, qPrintable("No se pudo guardar el archivo XLSX en " + path));
    WriteOutcome outcome;
    {
        const SmallDisk disk(static_cast<rlim_t>(before.size() + 10'000));
        outcome = writeReportWorkbook({table.get()}, path, false);
    }
    QVERIFY2(!outcome.fault.isEmpty(), "nobody noticed");
    QCOMPARE(bytesOf(path), before);
    QVERIFY(QFile::remove(path));
}

void TestWorkbookLimits::placeThatCannotBeWrittenIsTold_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("no such folder") << folder_.filePath(QStringLiteral("none/a.xlsx"));
    QTest::newRow("a folder") << QDir::tempPath();
}

void TestWorkbookLimits::placeThatCannotBeWrittenIsTold() {
    QFETCH(QString, path);
    const auto table = madeFrequency();
    const WriteOutcome outcome = writePlainWorkbook({table.get()}, path);
    QVERIFY(outcome.fault.contains(QLatin1String("can't be written")));
    QVERIFY(!outcome.written());
}

void TestWorkbookLimits::sheetsHoldSoManyRowsAndColumns() {
    const QString path = old();
    const auto wide = madeLargeTable(2, 16384);
    QVERIFY(writePlainWorkbook({wide.get()}, path).written());
    QCOMPARE(ReadWorkbook(path).value("XFD3").toInt(), 7 + 16383);
    const QByteArray before = bytesOf(path);
    QTest::ignoreMessage(QtWarningMsg, qPrintable("No se pudo guardar el archivo XLSX en " + path));
    const WriteOutcome report = writeReportWorkbook({wide.get()}, path, true);
    QVERIFY2(report.fault.contains(QLatin1String("16385 columns")), qPrintable(report.fault));
    const auto high = madeLargeTable(1048576, 1);
    const WriteOutcome plain = writePlainWorkbook({high.get()}, path);
    QVERIFY2(plain.fault.contains(QLatin1String("rows")), qPrintable(plain.fault));
    QCOMPARE(bytesOf(path), before);
}

void TestWorkbookLimits::manyTablesFitIntoOneWorkbook() {
    const auto table = madeFrequency();
    const QList<const TableBase*> tables(300, table.get());
    const QString path = folder_.filePath(QStringLiteral("many.xlsx"));
    QCOMPARE(writeReportWorkbook(tables, path, true).fault, QString());
    const ReadWorkbook book(path);
    QCOMPARE(book.problems(), QString());
    QCOMPARE(book.sheets().size(), 300);
    QCOMPARE(book.sheets().last(), "T_1 (300)");

    const QByteArray before = bytesOf(path);
    const qsizetype open = openFiles();
    WriteOutcome outcome;
    {
        const Limit fewFiles(RLIMIT_NOFILE, 100);
        outcome = writePlainWorkbook(tables, path);
    }
    QVERIFY2(!outcome.fault.isEmpty(), "each sheet needs a file for its rows");
    QCOMPARE(bytesOf(path), before);
    QCOMPARE(openFiles(), open);
}

void TestWorkbookLimits::memoryStaysBounded() {
    const auto table = madeLargeTable(33334, 30);
    forgetPeak();
    const auto before = peak();
    QElapsedTimer timer;
    timer.start();
    const QString path = folder_.filePath(QStringLiteral("million.xlsx"));
    QCOMPARE(writePlainWorkbook({table.get()}, path).fault, QString());
    qInfo("1 million cells, grid: %lld ms, %lld MB more", timer.restart(), peak() - before);
    QCOMPARE(writeReportWorkbook({table.get()}, path, true).fault, QString());
    qInfo("1 million cells, report: %lld ms, %lld MB more", timer.restart(), peak() - before);
    QCOMPARE(writeReportWorkbook({table.get()}, path, false).fault, QString());
    qInfo("1 million cells, added: %lld ms, %lld MB more", timer.restart(), peak() - before);
    QVERIFY(before > 0);
    QVERIFY2(peak() - before < 40, "memory must not grow with the cells");
}

QTEST_GUILESS_MAIN(TestWorkbookLimits)
#include "tst_workbooklimits.moc"
