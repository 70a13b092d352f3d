// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableFactory.h"

#include "results/tables/Table.h"
#include "results/tables/TableArealist.h"
#include "results/tables/TableAverage.h"
#include "results/tables/TableFrequency.h"
#include "results/tables/TableTablist.h"

#include "TKelOutput.h"

std::unique_ptr<TableBase> makeResultTable(TableSource source) {
    Q_ASSERT(source.output != nullptr);
    const TKelOutput& output = *source.output;
    if (output.type() == eOutputType::TABLIST)
        return std::make_unique<TableTablist>(std::move(source));
    if (output.type() == eOutputType::AREALIST)
        return std::make_unique<TableArealist>(std::move(source));
    const bool isCross = output.type() == eOutputType::TABOP && output.dimension() > 1;
    if (output.method() == eTableMethod::FREQUENCY || isCross)
        return std::make_unique<TableFrequency>(std::move(source));
    if (output.method() == eTableMethod::AVERAGE)
        return std::make_unique<TableAverage>(std::move(source));
    return std::make_unique<Table>(std::move(source));
}
