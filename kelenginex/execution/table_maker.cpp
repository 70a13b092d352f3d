// SPDX-License-Identifier: Apache-2.0
#include "execution/table_maker.h"

#include "execution/frequency_maker.h"
#include "execution/list_maker.h"
#include "execution/measure_maker.h"

#include <stdexcept>

namespace kelx::execution {

std::unique_ptr<TableMaker> makeTableMaker(const plan::PlannedTable& table, const Entity& unit,
                                           const RunOptions& options) {
    switch (table.command->kind) {
    case language::TableKind::Frequency:
    case language::TableKind::Count:
        return makeFrequencyMaker(table, unit);
    case language::TableKind::Average:
    case language::TableKind::Sum:
    case language::TableKind::Minimum:
    case language::TableKind::Maximum:
    case language::TableKind::Median:
    case language::TableKind::Quantile:
    case language::TableKind::Stats:
    case language::TableKind::Gini:
        return makeMeasureMaker(table, unit, options);
    case language::TableKind::AreaList:
    case language::TableKind::View:
        return makeListMaker(table, unit);
    default:
        throw std::logic_error("the table " + table.command->name + " is not made of records");
    }
}

} // namespace kelx::execution
