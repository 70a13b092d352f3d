// SPDX-License-Identifier: GPL-3.0-or-later
// An output as cells, headers and flags, which grid, report, exports, charts and maps read. It
// neither draws nor writes files.
#pragma once

#include "results/tables/ResultRows.h"
#include "results/tables/TableLayout.h"
#include "results/tables/TableMetadata.h"
#include "results/tables/TableViewConfig.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <utility>

class TKelOutput;

/// What tables are made with. The output must outlive its table: who keeps a table keeps the
/// session that made the output.
struct TableSource {
    TKelOutput* output = nullptr;
    TablePreferences preferences;
    TableMetadata metadata;
};

/// Laid out when it is first read, and again after rebuild().
class TableBase {
public:
    explicit TableBase(TableSource source);
    TableBase(const TableBase&) = delete;
    TableBase& operator=(const TableBase&) = delete;
    virtual ~TableBase();

    // The grid. References hold until the next rebuild(); copies of rows are cheap.
    virtual const ResultRows& cells() const;
    virtual QList<int> columnAlignments() const; ///< by column: 2 right, 1 left
    virtual QList<quint8> totalRows() const;     ///< by row: 1 for one of totals
    // The report, where the outer variables of crosstabs stand as rows of their own.
    virtual const ResultRows& reportCells() const;
    virtual QList<int> reportColumnAlignments() const;
    virtual QList<quint8> reportTotalRows() const;

    virtual QStringList columnHeaders() const; ///< a label for each column
    virtual QStringList columnNames() const;   ///< a field name for each column
    virtual QStringList columnLabels() const;  ///< a field label for each column
    virtual QList<QStringList> headerTexts() const;
    virtual QList<QStringList> headerColors() const;
    virtual QList<QList<std::pair<int, int>>> headerSpans() const;     ///< columns, rows
    virtual QList<QList<std::pair<int, int>>> headerPositions() const; ///< column, row

    virtual QString outputName() const;
    virtual QString title() const;
    virtual QString database() const;
    virtual QString geographicArea() const;
    virtual QString tableName() const;
    virtual std::string asJson() const;    ///< the engine's own text, UTF-8
    virtual bool exportedDirectly() const; ///< goes to a file and is not shown
    virtual int kind() const;
    virtual QString dictionaryVariableName() const;

    // View options; they show after rebuild().
    virtual int rowsOrder() const;
    virtual void setRowsOrder(int order);
    virtual QStringList columnOrder() const;
    virtual void setColumnOrder(const QStringList& keys);
    virtual bool hideNa() const;
    virtual void setHideNa(bool hide);
    virtual bool hideMv() const;
    virtual void setHideMv(bool hide);
    virtual bool hideTotal() const;
    virtual void setHideTotal(bool hide);
    virtual bool showTotalsRow() const;
    virtual void setShowTotalsRow(bool show);
    virtual void headerClicked(int column); ///< changes the order; nothing here
    virtual QStringList columnGroupLabels() const;
    virtual void reserved() {} ///< without effect: keeps the place for an operation to come

    virtual void rebuild(); ///< anew from the dataset
    virtual void applyViewConfig(const TableViewConfig& config);
    virtual TableViewConfig viewConfig() const;
    virtual QList<double> columnValues(int column) const; ///< skips rows that end before it
    virtual QStringList columnDisplays(int column) const; ///< skips rows that end before it

    /// Why the table has headers only, to be shown in its place; empty where nothing is missing.
    QString layoutNote() const;

    const TableMetadata& metadata() const { return source_.metadata; }
    void setMetadata(TableMetadata metadata) { source_.metadata = std::move(metadata); }

protected:
    /// The rows and headers under the options as they stand.
    virtual TableLayout layOut() const = 0;
    /// Decimals and separator of the table; decimals that the program tells come first.
    virtual CellFormat cellFormat() const;
    virtual bool hasValues() const { return true; } ///< else all values read 0
    /// Takes decimals and separator, which otherwise stay those of the preferences.
    void takeFormat(const TableViewConfig& config);

    TKelOutput& output() const { return *source_.output; }
    const TablePreferences& preferences() const { return source_.preferences; }
    const TableViewConfig& options() const { return config_; }
    TableViewConfig& options() { return config_; }

private:
    struct Built {
        TableLayout layout; ///< its texts are taken over by the rows
        ResultRows cells;
        ResultRows report;
    };
    Built build() const;
    const Built& built() const;

    TableSource source_;
    TableViewConfig config_;
    int decimals_;
    QString separator_;
    mutable std::optional<Built> built_;
};
