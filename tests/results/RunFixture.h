// SPDX-License-Identifier: GPL-3.0-or-later
// Programs run on the database of support/SmallDatabase.h, and their outputs as tables.
#pragma once

#include "results/tables/TableBase.h"

#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

class TKelDictionary;
class TKelSession;

class RunFixture {
public:
    RunFixture();
    ~RunFixture();
    RunFixture(const RunFixture&) = delete;
    RunFixture& operator=(const RunFixture&) = delete;

    /// Weights only where the program says so. Outputs live until the next run.
    std::vector<TKelOutput*> run(const QString& program);
    /// The last output of a run as the table that suits it, with its metadata.
    std::unique_ptr<TableBase> table(const QString& program, const TablePreferences& preferences);
    std::unique_ptr<TableBase> table(const QString& program);
    TableMetadata metadata(TKelOutput& output) const;
    TKelDictionary& dictionary() const { return *dictionary_; }
    QString path() const { return folder_.filePath(QStringLiteral("small.kxdb")); }

    /// A text for each row, the cells' texts with "|" between them.
    static QStringList displays(const ResultRows& rows, QChar separator = QLatin1Char('|'));
    static QStringList raws(const ResultRows& rows);
    static QStringList raws(const CellTexts& texts);
    /// A text for each header row: "text@column,row+columns x rows" of its items.
    static QStringList header(const QList<QStringList>& texts,
                              const QList<QList<std::pair<int, int>>>& positions,
                              const QList<QList<std::pair<int, int>>>& spans);
    static QStringList header(const TableBase& table) {
        return header(table.headerTexts(), table.headerPositions(), table.headerSpans());
    }

private:
    QTemporaryDir folder_;
    std::shared_ptr<TKelDictionary> dictionary_;
    std::shared_ptr<TKelSession> session_;
};

/// As RunFixture::displays(), with "," between the cells.
inline QStringList commaLines(const ResultRows& rows) {
    return RunFixture::displays(rows, QLatin1Char(','));
}
inline QStringList commaLines(const TableBase& table) {
    return commaLines(table.cells());
}
