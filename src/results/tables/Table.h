// SPDX-License-Identifier: GPL-3.0-or-later
// The table of any output: it takes the layout that suits its type and method.
#pragma once

#include "results/tables/TableBase.h"

class Table final : public TableBase {
public:
    using TableBase::TableBase;

protected:
    TableLayout layOut() const override;
    CellFormat cellFormat() const override; ///< without a separator of its own the comma stays
    bool hasValues() const override { return false; }

private:
    TableLayout layOutTable() const;
};
