// SPDX-License-Identifier: GPL-3.0-or-later
// The table of averages.
#pragma once

#include "results/tables/TableBase.h"

class TableAverage final : public TableBase {
public:
    using TableBase::TableBase;

    int kind() const override { return tablekind::average; }
    void headerClicked(int column) override; ///< steps the order of rows: 0, 1, 2, 0

protected:
    TableLayout layOut() const override;
};
