// SPDX-License-Identifier: Apache-2.0
#include "execution/measure_maker.h"

#include "execution/coded_measure.h"
#include "execution/wide_measure.h"

namespace kelx::execution {

std::unique_ptr<TableMaker> makeMeasureMaker(const plan::PlannedTable& table, const Entity& unit,
                                             const RunOptions& options) {
    if (auto maker = makeCodedMeasureMaker(table, unit))
        return maker;
    return makeWideMeasureMaker(table, unit, options);
}

} // namespace kelx::execution
