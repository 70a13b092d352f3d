// SPDX-License-Identifier: Apache-2.0
// Runs a checked program.
#pragma once

#include "execution/result.h"
#include "language/messages.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace kelx::execution {

/// Elapsed and expected milliseconds and percent done; a true answer stops the run.
using ProgressCallback = std::function<bool(int expected, int elapsed, int percent)>;

struct RunOptions {
    unsigned threads = 0; ///< 0: one for each core
    std::size_t blockRecords =
        65536;                 ///< records a step works on at once; figures never depend on it
    ProgressCallback progress; ///< called on the calling thread, at least every 100 ms
};

struct RunResult {
    std::vector<TableResult> tables;
    bool cancelled = false; ///< then there are no tables
};

/// The program must be free of errors and outlive the result. Warnings go to messages. Throws
/// storage::FileError where data cannot be read.
RunResult run(const language::BoundProgram& program, const RunOptions& options,
              language::Messages& messages);

} // namespace kelx::execution
