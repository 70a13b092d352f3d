// SPDX-License-Identifier: Apache-2.0
// Files that a program asks its tables to be written to.
#pragma once

#include "language/messages.h"
#include "output/table.h"
#include "storage/pulse.h"
#include "storage/staged_files.h"

#include <filesystem>
#include <vector>

namespace kelx::output {

/// A file and what it is to hold.
struct TableFile {
    enum class Form { Json, Csv };
    std::filesystem::path path;
    Form form = Form::Json;
    std::vector<const Table*> tables; ///< of one command that makes several, all go to its file
};

/// Those of SAVE and OUTFILE JSON, which the engine itself writes.
std::vector<TableFile> jsonFiles(const std::vector<Table>& tables,
                                 const language::BoundProgram& program);
/// Those of OUTFILE, as CSV.
std::vector<TableFile> csvFiles(const std::vector<Table>& tables,
                                const language::BoundProgram& program);
/// An error for each table that asks for a format that only the workbench writes.
void requireCsv(const language::BoundProgram& program, language::Messages& messages);

/// Stages each file. One table in JSON is an object, several are an array; several in CSV stand
/// each after a line with its name. Throws storage::FileError, and what the pulse throws.
void stageFiles(const std::vector<TableFile>& files, storage::StagedFiles& staged,
                const storage::Pulse& pulse);

} // namespace kelx::output
