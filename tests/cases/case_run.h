// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a case through the boundary, as the workbench does.
#pragma once

#include "case_file.h"

#include <cstddef>

namespace kelx::test {

/// A table as it came.
struct ActualTable {
    std::string name;
    std::map<std::string, std::string> facts;
    std::vector<Cells> rows;
};

struct Outcome {
    std::vector<ActualTable> tables;
    std::vector<std::string> messages; ///< "KEL_E_NAME 1:2 text"
    std::string thrown;                ///< what ended the run; empty where nothing did
};

/// Runs the programs in a folder with the database, which is changed where they save something.
Outcome runCase(const Case& given, const std::filesystem::path& folder, unsigned threads,
                std::size_t blockRecords);

/// All of an outcome, for people and for comparisons.
std::string toText(const Outcome& outcome);

} // namespace kelx::test
