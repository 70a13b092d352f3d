// SPDX-License-Identifier: Apache-2.0
// Finished tables on standard output or as files.
#pragma once

#include "output/table.h"
#include "storage/pulse.h"
#include "storage/staged_files.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kelx::tool {

struct TablePrinting {
    std::string format = "text";  ///< or json, csv
    std::filesystem::path folder; ///< of the files; standard output where empty
    bool time = false;
};

/// The files that go into a folder, if there is one. Throws storage::FileError, and what the pulse
/// throws.
void stageFiles(const std::vector<output::Table>& tables, const TablePrinting& printing,
                storage::StagedFiles& files, const storage::Pulse& pulse);
/// The tables, or where a folder has them now, the names of their files.
void print(const std::vector<output::Table>& tables, const TablePrinting& printing);

} // namespace kelx::tool
