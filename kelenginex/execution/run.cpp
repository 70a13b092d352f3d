// SPDX-License-Identifier: Apache-2.0
#include "execution/run.h"

#include "execution/definitions.h"
#include "execution/pass_runner.h"
#include "execution/saved_variables.h"
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

/// Where the stages behind the variables end.
class Stages {
public:
    Stages(double making, const plan::Plan& plan, const SavedVariables& saved)
        : making_(making), all_(workPerSaved * static_cast<double>(saved.records()) + 1) {
        for (const plan::Pass& pass : plan.passes)
            all_ += workOf(pass);
    }
    double shareAt(double work) const {
        return making_ + (beforeEnd - making_) * std::min(work / all_, 1.0);
    }
    static constexpr double beforeEnd = 0.98;

private:
    static constexpr double workPerSaved = 2; ///< a value is read, and written
    double making_;
    double all_;
};

void runPasses(const plan::Plan& plan, const RunOptions& options, const TableSink& sink,
               const Stages& stages, Progress& progress) {
    double done = 0;
    for (const plan::Pass& pass : plan.passes) {
        const double begin = stages.shareAt(done);
        done += workOf(pass);
        runPass(pass, options, sink, {begin, stages.shareAt(done)}, progress);
    }
}

} // namespace

bool run(const language::BoundProgram& program, const RunOptions& options,
         language::Messages& messages, const TableSink& sink, const RunEnd& end) {
    Progress progress(options.progress, options.progressInterval);
    try {
        progress.checkNow();
        SavedVariables saved(program);
        const double making = shareOfVariables(program);
        plan::Selections selections(messages);
        makeVariables(program, options, making, selections, progress);
        const plan::Plan plan = plan::makePlan(program, selections);
        const Stages stages(making, plan, saved);
        runPasses(plan, options, sink, stages, progress);
        storage::StagedFiles files;
        progress.begin(Stages::beforeEnd, saved.records());
        saved.write(files, messages, progress);
        progress.begin(Progress::atLastQuestion, sinkUnits);
        if (end)
            end(files, progress);
        saved.checkFiles();
        progress.askLast();
        files.publish();
        saved.settle();
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
