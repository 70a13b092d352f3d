// SPDX-License-Identifier: GPL-3.0-or-later
// A new XLSX file, written sheet by sheet and downward, so that its size needs no memory.
#pragma once

#include "results/workbook/WorkbookFormats.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// Rows and columns count from 0.
struct CellArea {
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;
};

/// Throws WorkbookError. Dropped before close() it leaves no file.
class Workbook {
public:
    static constexpr qint64 maxRows = 1048576;
    static constexpr qint64 maxColumns = 16384;

    /// expectedCells: of all sheets; very large files need another kind of archive.
    Workbook(const QString& path, qint64 expectedCells);
    ~Workbook();
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    /// What follows goes to this sheet. The name must be acceptable and free (SheetNames).
    void addSheet(const QString& name);
    // Into the row written last or one below it; each cell once.
    void text(int row, int column, const QString& text, CellStyle style);
    void number(int row, int column, double value, CellStyle style);
    void blank(int row, int column, CellStyle style); ///< nothing at all in the Plain style
    /// Its cells are written as any others, whenever their rows come. A single cell is none.
    void merge(const CellArea& area);
    void setColumnWidth(int column, double width); ///< in digits
    /// So many rows above and columns at the left stand still when others scroll.
    void freeze(int rows, int columns);
    /// A text of this sheet was longer than a cell holds.
    bool hasCutTexts() const { return hasCutTexts_; }

    /// Writes the file and reads it again: all cells must be in it. goOn is asked now and then;
    /// false throws WritingCancelled.
    void close(const std::function<bool()>& goOn);

private:
    struct Library;

    void countCell(int row);
    void checkSheetsReachedDisk() const;
    void pack(const std::function<bool()>& goOn);

    QString path_;
    std::unique_ptr<Library> library_;
    std::vector<qint64> cellCounts_; ///< by sheet
    int row_ = 0;
    bool hasCutTexts_ = false;
};
