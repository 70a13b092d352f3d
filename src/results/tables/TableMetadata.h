// SPDX-License-Identifier: GPL-3.0-or-later
// What an output is: what was counted, how it was weighted, filtered and sorted.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class TKelDictionary;
class TKelOutput;

/// Kinds of tables as the charts, maps and dialogs know them.
namespace tablekind {
inline constexpr int frequency = 0;
inline constexpr int average = 1;
inline constexpr int maximum = 2;
inline constexpr int minimum = 3;
inline constexpr int median = 4;
inline constexpr int areaList = 5;
inline constexpr int tabop = 6;
inline constexpr int tablist = 7;
inline constexpr int sum = 8;
inline constexpr int stats = 9;
inline constexpr int gini = 10;
inline constexpr int quantile = 11;
} // namespace tablekind

struct TableSort {
    QString variable;
    int limit = -1; ///< number of rows; -1 for all
    bool ascending = true;
};

struct TableMetadata {
    Q_DECLARE_TR_FUNCTIONS(TableMetadata)

public:
    TableMetadata() = default;
    /// databasePath: of the dictionary file, whose name stands in where it has no description.
    TableMetadata(TKelOutput& output, TKelDictionary& dictionary, const QString& databasePath);

    QString name;
    QString title; ///< the program's, else the name
    QString database;
    QString area; ///< that the run was limited to; empty where it was not
    int kind = tablekind::frequency;
    QString kindName;
    // Of area lists, views and counts only.
    QString entityLabel;
    QString entityName;
    QString key;
    std::optional<QString> tally;
    std::optional<QString> weight;
    std::optional<QString> filter;
    std::optional<QString> universalFilter;
    std::optional<TableSort> sort;
    QList<int> categoryCounts; ///< of each variable; columns of each group of an area list
    QStringList variablePaths; ///< ENTITY.VARIABLE
    QStringList variableLabels;
    qint64 suppressed = 0; ///< cells hidden to protect persons

    /// "Crosstab", or the name of the kind.
    bool isCrosstab() const { return kind == tablekind::frequency && variableLabels.size() > 1; }
    /// What a variable is called where its label stands alone: its path where it has none.
    QString variableTitle(qsizetype index) const;
    /// "All Database" where the run was not limited; in the language of the moment.
    QString geographicArea() const;
    /// How many cells are hidden; empty where none is.
    QString suppressedNote() const;

private:
    void readRun(const TKelOutput& output);
    void readEntity(TKelOutput& output);
};
