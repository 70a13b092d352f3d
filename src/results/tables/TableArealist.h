// SPDX-License-Identifier: GPL-3.0-or-later
// The table of an area list or a view.
#pragma once

#include "results/tables/TableBase.h"

class TableArealist : public TableBase {
public:
    using TableBase::TableBase;

    int kind() const override { return tablekind::areaList; }

protected:
    TableLayout layOut() const override;
};
