// SPDX-License-Identifier: GPL-3.0-or-later
// A table's grid in a sheet: headers and cells, nothing else.
#pragma once

class CellProgress;
class TableBase;
class Workbook;

namespace plainsheet {

/// Throws WorkbookError where no sheet has so many rows or columns.
void checkSize(const TableBase& table);
/// Into the sheet added last. Throws WorkbookError and WritingCancelled.
void write(Workbook& book, const TableBase& table, CellProgress& progress);

} // namespace plainsheet
