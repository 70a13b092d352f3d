// SPDX-License-Identifier: Apache-2.0
// Makes a database from one CSV file for each level and a codebook.
#pragma once

#include "import/located_error.h"
#include "import/progress.h"
#include "storage/column.h"
#include "storage/secret.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kelx::tools {

/// What to import and how. Names of levels count in any case.
struct ImportRequest {
    std::filesystem::path database; ///< the dictionary to write; data go into its folder
    std::filesystem::path codebook;
    /// Levels and their files, from the top down; each lies under the one before.
    std::vector<std::pair<std::string, std::filesystem::path>> levels;
    std::vector<std::pair<std::string, std::string>> under; ///< level and its parent, otherwise
    /// The entity above all; one of the levels (with a single record) or a name of its own. Where
    /// empty, the codebook's root, else DATABASE.
    std::string root;
    std::shared_ptr<const storage::Secret> key; ///< protects the database
    bool overwrite = false;
    Progress progress; ///< bytes read, of twice the bytes of all files; may be empty
};

struct ImportReport {
    struct Variable {
        std::string name;
        storage::ValueType type = storage::ValueType::None;
        std::uint64_t blanks = 0;
        bool coded = false;
        std::uint64_t outsideLabels = 0;
    };
    struct Level {
        std::string name;
        std::uint64_t records = 0;
        bool sorted = false; ///< rows had to be put into the order of their parents
        std::vector<Variable> variables;
    };
    std::vector<Level> levels;
};

/// Checks everything before it writes anything: after a fault the folder is as before. Throws
/// LocatedError, storage::FileError, and std::runtime_error for a contradictory request.
ImportReport importCsv(const ImportRequest& request);

} // namespace kelx::tools
