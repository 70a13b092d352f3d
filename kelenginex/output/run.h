// SPDX-License-Identifier: Apache-2.0
// From a checked program to its tables.
#pragma once

#include "execution/run.h"
#include "output/table.h"

#include <functional>
#include <vector>

namespace kelx::output {

struct TablesOfRun {
    std::vector<Table> tables; ///< those that are outputs, in the program's order
    bool cancelled = false;    ///< then there are no tables
};

/// Called when all tables are laid out: more files to appear with the variables that the program
/// saves, which are described as they are to be. The progress is as in execution::RunEnd.
using TablesEnd = std::function<void(const std::vector<Table>& tables, storage::StagedFiles& files,
                                     execution::Progress& progress)>;

/// Runs a program and lays out each table as soon as its figures are there. They are released then,
/// but for those that other tables are made of. Throws what execution::run() throws, and
/// std::runtime_error where a table cannot be laid out. Where SORT names no column of a table, that
/// goes to messages as an error, and there are no tables.
TablesOfRun runTables(const language::BoundProgram& program, const catalog::Dictionary& dictionary,
                      const execution::RunOptions& options, language::Messages& messages,
                      const TablesEnd& end = {});

} // namespace kelx::output
