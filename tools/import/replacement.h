// SPDX-License-Identifier: Apache-2.0
// What becomes of the files of a database when another one takes its place.
#pragma once

#include "catalog/reader.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kelx::tools {

/// Files that only the database to be replaced names. Other dictionaries in its folder may be
/// others' databases, whose files must stay as they are.
class Replacement {
public:
    /// Throws storage::FileError where one of the new data files would take the place of a file
    /// that the replaced dictionary does not name or that another one in the folder names.
    Replacement(const std::filesystem::path& database, const std::vector<std::string>& dataFiles,
                const catalog::Questions& questions);

    /// Removes the files of the replaced database that the new one does not have.
    void removeLeftovers() const;

private:
    std::vector<std::filesystem::path> leftovers_;
};

} // namespace kelx::tools
