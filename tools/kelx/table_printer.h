// SPDX-License-Identifier: Apache-2.0
// Finished tables on standard output or as files.
#pragma once

#include "output/table.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kelx::tool {

struct TablePrinting {
    std::string format = "text";  ///< or json, csv
    std::filesystem::path folder; ///< of the files; standard output where empty
    bool time = false;
};

/// Throws storage::FileError where a file cannot be written.
void print(const std::vector<output::Table>& tables, const TablePrinting& printing);

} // namespace kelx::tool
