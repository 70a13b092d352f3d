// SPDX-License-Identifier: Apache-2.0
// Makes a database from one file with the records of all levels: CSV, fixed-width text, or a file
// of a statistics package.
#pragma once

#include "import/import_report.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace kelx::tools {

struct FlatRequest : ImportTarget {
    std::filesystem::path data;
    /// "PROVINCE:CODE:NAME,HOUSEHOLD:NUMBER,PERSON": levels from the top down, each with the field
    /// that is its key (the lowest may have none) and that of its label. Where empty, the
    /// codebook's levels and keys, or one level RECORD.
    std::string levels;
    std::filesystem::path codebook;   ///< of a CSV file; may be empty
    std::filesystem::path layout;     ///< a .dicx that says where the fields of a text stand
    std::size_t recordTypeColumn = 1; ///< where a text's lines say of which kind they are
    std::vector<std::pair<std::string, std::string>> places; ///< a field and its level
    std::string weight; ///< field with the weights of its level's records
    // Of files of statistics packages:
    std::string encoding;          ///< where the file does not say it or says it wrong
    std::filesystem::path formats; ///< a .sas7bcat with the labels of a .sas7bdat
    std::filesystem::path helper;  ///< the program that reads them
};

/// True for the names of files of statistics packages.
bool isStatisticsFile(const std::filesystem::path& file);

/// Checks everything before it writes anything: after a fault the folder is as before. Throws
/// LocatedError, storage::FileError, and std::runtime_error for a contradictory request.
ImportReport importFlat(const FlatRequest& request);

} // namespace kelx::tools
