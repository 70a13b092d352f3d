// SPDX-License-Identifier: Apache-2.0
#include "execution/run.h"

#include "execution/definitions.h"
#include "execution/pass_runner.h"
#include "plan/plan.h"

#include <algorithm>
#include <utility>

namespace kelx::execution {
namespace {

/// A pass takes its time by its records, and some in any case.
double workOf(const plan::Pass& pass) {
    return static_cast<double>(plan::recordCount(pass.ranges)) + 1;
}

/// Variables that the program makes are told as one share, as large as all tables together.
double shareOfVariables(const language::BoundProgram& program) {
    const bool any = std::any_of(program.definitions.begin(), program.definitions.end(),
                                 [](const auto& definition) { return definition.used; });
    return any ? 0.5 : 0;
}

} // namespace

bool run(const language::BoundProgram& program, const RunOptions& options,
         language::Messages& messages, const TableSink& sink) {
    Progress progress(options.progress, options.progressInterval);
    try {
        progress.checkNow();
        const double making = shareOfVariables(program);
        plan::Selections selections(messages);
        makeVariables(program, options, making, selections, progress);
        const plan::Plan plan = plan::makePlan(program, selections);
        double all = 0;
        for (const plan::Pass& pass : plan.passes)
            all += workOf(pass);
        double done = 0;
        const auto shareAt = [&](double work) { return making + (1 - making) * work / all; };
        for (const plan::Pass& pass : plan.passes) {
            const double begin = shareAt(done);
            done += workOf(pass);
            runPass(pass, options, sink, {begin, shareAt(done)}, progress);
        }
        saveVariables(program, progress);
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
