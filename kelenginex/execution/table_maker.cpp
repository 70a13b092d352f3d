// SPDX-License-Identifier: Apache-2.0
#include "execution/table_maker.h"

#include "execution/frequency_maker.h"

#include <stdexcept>

namespace kelx::execution {

std::unique_ptr<TableMaker> makeTableMaker(const plan::PlannedTable& table, const Entity& unit,
                                           const RunOptions& /*options*/) {
    switch (table.command->kind) {
    case language::TableKind::Frequency:
    case language::TableKind::Count:
        return makeFrequencyMaker(table, unit);
    default:
        throw std::runtime_error("The kind of the table " + table.command->name +
                                 " is not supported yet.");
    }
}

} // namespace kelx::execution
