// SPDX-License-Identifier: GPL-3.0-or-later
// The table of frequencies, and of crosstabs of any figure.
#pragma once

#include "results/tables/TableBase.h"

class TableFrequency final : public TableBase {
public:
    using TableBase::TableBase;

    int kind() const override { return tablekind::frequency; }
    void headerClicked(int column) override; ///< steps the order of rows: 0, 1, 2, 0
    /// Takes decimals and separator. What is hidden follows from the flags for the number of its
    /// variables, whatever the config's hide flags say.
    void applyViewConfig(const TableViewConfig& config) override;

protected:
    TableLayout layOut() const override;
};
