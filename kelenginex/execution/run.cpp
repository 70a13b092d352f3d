// SPDX-License-Identifier: Apache-2.0
#include "execution/run.h"

#include "execution/pass_runner.h"
#include "plan/plan.h"

#include <utility>

namespace kelx::execution {
namespace {

/// A pass takes its time by its records, and some in any case.
double workOf(const plan::Pass& pass) {
    return static_cast<double>(plan::recordCount(pass.ranges)) + 1;
}

} // namespace

bool run(const language::BoundProgram& program, const RunOptions& options,
         language::Messages& messages, const TableSink& sink) {
    Progress progress(options.progress);
    try {
        progress.checkNow();
        const plan::Plan plan = plan::makePlan(program, messages);
        double all = 0;
        for (const plan::Pass& pass : plan.passes)
            all += workOf(pass);
        double done = 0;
        for (const plan::Pass& pass : plan.passes) {
            const double begin = done / all;
            done += workOf(pass);
            runPass(pass, options, sink, {begin, done / all}, progress);
        }
        progress.finish();
    } catch (const Cancelled&) {
        return false;
    }
    return true;
}

RunResult run(const language::BoundProgram& program, const RunOptions& options,
              language::Messages& messages) {
    RunResult result;
    result.tables.resize(program.tables.size());
    const bool whole =
        run(program, options, messages, [&](std::size_t index, TableResult table, Progress&) {
            result.tables[index] = std::move(table);
        });
    if (!whole)
        return {{}, true};
    return result;
}

} // namespace kelx::execution
