// SPDX-License-Identifier: GPL-3.0-or-later
// The looks that cells of our workbooks can have.
#pragma once

#include <array>

struct lxw_format;
struct lxw_workbook;

enum class CellStyle {
    Plain,
    Label,      ///< headings of facts
    GridHeader, ///< without borders
    Value,
    Header,
    Text,
    Integer,
    Real,
    TotalText,
    TotalInteger,
    TotalReal,
};

/// The formats of one workbook, each made when it is first asked for.
class WorkbookFormats {
public:
    explicit WorkbookFormats(lxw_workbook* workbook) : workbook_(workbook) {}
    lxw_format* format(CellStyle style); ///< null for Plain

private:
    lxw_workbook* workbook_;
    std::array<lxw_format*, 11> formats_{};
};
