// SPDX-License-Identifier: GPL-3.0-or-later
// The table of several tables side by side.
#pragma once

#include "results/tables/TableBase.h"

class TableTablist : public TableBase {
public:
    using TableBase::TableBase;

    int kind() const override { return tablekind::tablist; }
    QString dictionaryVariableName() const override { return {}; }
    void applyViewConfig(const TableViewConfig& config) override;

protected:
    TableLayout layOut() const override;
};
