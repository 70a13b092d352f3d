// SPDX-License-Identifier: Apache-2.0
#include "execution/run.h"

#include "execution/pass_runner.h"
#include "plan/plan.h"

#include <utility>

namespace kelx::execution {
namespace {

std::uint64_t recordsOf(const plan::Plan& plan) {
    std::uint64_t records = 0;
    for (const plan::Pass& pass : plan.passes)
        records += plan::recordCount(pass.ranges);
    return records;
}

} // namespace

RunResult run(const language::BoundProgram& program, const RunOptions& options,
              language::Messages& messages) {
    const plan::Plan plan = plan::makePlan(program, messages);
    Progress progress(options.progress, recordsOf(plan));
    RunResult result;
    result.tables.resize(program.tables.size());
    progress.poll();
    for (const plan::Pass& pass : plan.passes) {
        const double start = progress.seconds();
        std::vector<TableResult> tables;
        if (!progress.cancelled())
            tables = runPass(pass, options, progress);
        if (progress.cancelled())
            return {{}, true};
        for (std::size_t i = 0; i < tables.size(); ++i) {
            tables[i].seconds = progress.seconds() - start;
            result.tables[pass.tables[i].index] = std::move(tables[i]);
        }
    }
    if (progress.cancelled())
        return {{}, true};
    return result;
}

} // namespace kelx::execution
