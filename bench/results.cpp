// SPDX-License-Identifier: Apache-2.0
// How long result tables as large as they get take to show and to write, and what they weigh.
#include "memory.h"
#include "result_data.h"
#include "result_runs.h"

#include "app/settings/KelSystem.h"
#include "results/exports/ResultFileWriter.h"

#include "TKelSession.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

using namespace kelx;

constexpr double mostToShow = 1000; // milliseconds, as the others
constexpr double mostForAScreen = 16;
constexpr double mostBytesACell = 400;
constexpr double mostToWrite = 64e6; // bytes beside the table
constexpr int screenRows = 50;
constexpr int screenColumns = 15;

double milliseconds(const std::function<void()>& act) {
    QElapsedTimer timer;
    timer.start();
    act();
    return double(timer.nsecsElapsed()) / 1e6;
}

qint64 cellsOf(const TableBase& table) {
    return table.cells().size() * table.cells().width();
}

class Bench {
public:
    Bench(ResultRuns& runs, const QString& folder) : runs_(runs), folder_(folder) {}

    void measureTable(const char* what, const std::string& program) {
        std::printf("%s\n", what);
        const std::int64_t before = ownMemory();
        const auto session = runs_.run(program);
        const std::int64_t output = ownMemory() - before;
        const MemoryPeak peak;
        std::unique_ptr<TableBase> table;
        const double shown = milliseconds([&] { table = runs_.table(*session); });
        const std::int64_t most = peak.most() - before;
        const auto cells = double(cellsOf(*table));
        std::printf("  %lld rows by %lld columns\n", (long long)table->cells().size(),
                    (long long)table->cells().width());
        check("from the output to the table", shown, mostToShow, "ms");
        std::printf("  %-36s %9.1f bytes a cell\n", "the engine's output", double(output) / cells);
        std::printf("  %-36s %9.1f bytes a cell\n", "with the table",
                    double(ownMemory() - before) / cells);
        check("  and while it was made", double(most) / cells, mostBytesACell, "bytes a cell");
        measureScreens(*table);
        measureOptions(*table);
    }

    /// All cells, and as a table of about a million.
    void measureFiles(const char* what, const std::string& program) {
        const auto session = runs_.run(program);
        const auto table = runs_.table(*session);
        std::printf("%s, %.1f million cells\n", what, double(cellsOf(*table)) / 1e6);
        const KelSystem settings(folder_);
        const ResultFileWriter writer(settings);
        measureFile("CSV", [&](const WriteProgress& progress) {
            return writer.writeCsv(*table, folder_ + "/table.csv",
                                   ResultFileWriter::HeaderChoice::Name, progress);
        });
        measureFile("XLSX", [&](const WriteProgress& progress) {
            return writer.writeExcelPlain({table.get()}, folder_ + "/table.xlsx", progress);
        });
        measureFile("XLSX with the report", [&](const WriteProgress& progress) {
            return writer.writeExcelReport({table.get()}, folder_ + "/report.xlsx", true, progress);
        });
    }

    const QStringList& faults() const { return faults_; }

private:
    using Write = std::function<WriteOutcome(const WriteProgress& progress)>;

    void check(const char* what, double found, double most, const char* unit) {
        std::printf("  %-36s %9.1f %s\n", what, found, unit);
        if (found > most)
            faults_ += QStringLiteral("%1: %2 %4, more than %3")
                           .arg(QString::fromLatin1(what).trimmed())
                           .arg(found, 0, 'f', 1)
                           .arg(most, 0, 'f', 0)
                           .arg(QString::fromLatin1(unit));
    }

    /// The texts that a grid asks for when it is scrolled.
    void measureScreens(const TableBase& table) {
        const ResultRows& cells = table.cells();
        const qsizetype lastRow = std::max<qsizetype>(0, cells.size() - screenRows);
        const qsizetype lastColumn = std::max<qsizetype>(0, cells.width() - screenColumns);
        std::vector<double> times;
        qsizetype letters = 0;
        for (int part = 0; part <= 10; ++part) {
            times.push_back(milliseconds([&] {
                for (qsizetype row = 0; row < screenRows; ++row)
                    for (qsizetype column = 0; column < screenColumns; ++column)
                        letters +=
                            cells
                                .display(lastRow * part / 10 + row, lastColumn * part / 10 + column)
                                .size();
            }));
        }
        check("the cells of a screen, at worst", *std::max_element(times.begin(), times.end()),
              mostForAScreen, "ms");
        if (letters == 0)
            faults_ += QStringLiteral("the screens are empty");
    }

    void measureOptions(TableBase& table) {
        TableViewConfig config = table.viewConfig();
        std::rotate(config.columnOrder.begin(), config.columnOrder.begin() + 1,
                    config.columnOrder.end());
        const double took = milliseconds([&] {
            table.applyViewConfig(config);
            layOut(table);
        });
        check("columns in another order", took, mostToShow, "ms");
    }

    void measureFile(const char* what, const Write& write) {
        const std::int64_t before = ownMemory();
        const MemoryPeak peak;
        qint64 told = 0;
        WriteOutcome outcome;
        const double took = milliseconds([&] {
            outcome = write([&](qint64 done, qint64 total) {
                told += done <= total ? 1 : 0;
                return true;
            });
        });
        std::printf("  %-36s %9.1f ms, %.1f MB, progress told %lld times\n", what, took,
                    double(QFileInfo(outcome.path).size()) / 1e6, (long long)told);
        check("  memory beside the table", double(peak.most() - before) / 1e6, mostToWrite / 1e6,
              "MB");
        if (!outcome.written() || told == 0)
            faults_ += QString::fromLatin1(what) + ": " + outcome.fault;
    }

    ResultRuns& runs_;
    QString folder_;
    QStringList faults_;
};

} // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // nothing is painted
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    const std::filesystem::path place = folder.path().toStdString();
    ResultRuns runs(bench::writeResultsDatabase(place));
    Bench measured(runs, folder.path());
    measured.measureTable("area list", bench::areaListProgram());
    measured.measureTable("crosstab", bench::crosstabProgram());
    measured.measureFiles("a part of the area list",
                          bench::areaListProgram(bench::resultAreas / 3));
    measured.measureFiles("the area list", bench::areaListProgram());
    for (const QString& fault : measured.faults())
        std::fprintf(stderr, "beyond its limit: %s\n", qPrintable(fault));
    return measured.faults().isEmpty() ? 0 : 1;
}
