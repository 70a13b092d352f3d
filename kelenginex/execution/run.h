// SPDX-License-Identifier: Apache-2.0
// Runs a checked program.
#pragma once

#include "execution/result.h"
#include "language/messages.h"
#include "storage/staged_files.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace kelx::execution {

class Progress;

/// Elapsed and expected milliseconds and percent done; a true answer stops the run.
using ProgressCallback = std::function<bool(int expected, int elapsed, int percent)>;

struct RunOptions {
    unsigned threads = 0; ///< 0: one for each core
    std::size_t blockRecords =
        65536; ///< records a step works on at most; figures never depend on it
    /// What the cells of a pass's tables may take on all threads together. Tables beyond wait for a
    /// pass of their own; one that is too large by itself goes on fewer threads.
    std::size_t cellBytes = std::size_t{512} << 20;
    /// Called on the calling thread, at least every 100 ms; the last call of a whole run says 100,
    /// and its answer is no longer heard.
    ProgressCallback progress;
    /// Between two calls; the sooner a true answer comes, the sooner the run stops.
    std::chrono::milliseconds progressInterval{40};
};

/// Takes a finished table, by its number in the program, on the calling thread. The stage of the
/// progress is the table's own, in parts of `sinkUnits`; it should be told and asked meanwhile.
using TableSink = std::function<void(std::size_t index, TableResult table, Progress& progress)>;
constexpr std::uint64_t sinkUnits = 1'000'000;

/// Called on the calling thread after the last table, when the variables that the program saves
/// are described as they are to be: more files to appear with theirs. The stage of the progress is
/// its own, in parts of `sinkUnits`.
using RunEnd = std::function<void(storage::StagedFiles& files, Progress& progress)>;

/// The program must be free of errors and outlive the tables. Warnings go to messages. Each table
/// is given away before the next one is finished. All files appear at the end, or none. False where
/// the run was cancelled: then tables that were given away do not count, and nothing was written.
/// Throws storage::FileError where data cannot be read or written, and std::runtime_error where a
/// table grows too large; then nothing was written either.
bool run(const language::BoundProgram& program, const RunOptions& options,
         language::Messages& messages, const TableSink& sink, const RunEnd& end = {});

struct RunResult {
    std::vector<TableResult> tables;
    bool cancelled = false; ///< then there are no tables
};

/// The same with all tables kept.
RunResult run(const language::BoundProgram& program, const RunOptions& options,
              language::Messages& messages);

} // namespace kelx::execution
