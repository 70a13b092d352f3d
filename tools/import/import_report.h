// SPDX-License-Identifier: Apache-2.0
// What all imports are asked for and what they tell.
#pragma once

#include "catalog/reader.h"
#include "import/faults.h"
#include "import/progress.h"
#include "storage/column.h"
#include "storage/secret.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kelx::tools {

/// Where an import goes to.
struct ImportTarget {
    std::filesystem::path database; ///< the dictionary to write; data go into its folder
    /// The entity above all; where empty, what the codebook says, else DATABASE.
    std::string root;
    std::shared_ptr<const storage::Secret> key; ///< protects the database
    bool overwrite = false;                     ///< replace a database, and what only that one has
    catalog::Questions questions;               ///< about the replaced database
    std::optional<char> separator; ///< of CSV files with data; where not given, the comma
    bool tolerant = false;         ///< faults of values and records are counted instead of refused
    Progress progress;             ///< bytes read, of twice the bytes of all files; may be empty
};

struct ImportReport {
    struct Variable {
        std::string name;
        storage::ValueType type = storage::ValueType::None;
        std::uint64_t blanks = 0;
        bool coded = false;          ///< there are labels or ranges
        std::uint64_t outside = 0;   ///< values outside them
        std::uint64_t faulty = 0;    ///< values that do not fit the type, blank now
        std::uint64_t conflicts = 0; ///< rows that contradict the record's first one
    };
    struct Level {
        std::string name;
        std::uint64_t records = 0;
        bool sorted = false;          ///< rows had to be put into the order of their parents
        std::uint64_t orphans = 0;    ///< rows without a parent, left out
        std::uint64_t duplicates = 0; ///< rows whose key is blank or was there before
        std::uint64_t faultyRows = 0; ///< rows that could not be read, left out
        std::vector<Variable> variables;
    };
    std::vector<Level> levels;
    std::vector<std::string> notes; ///< what the import changed on its own
    std::uint64_t faults = 0;
    std::vector<std::string> firstFaults; ///< each as "file:line:column: error: text"

    void take(const Faults& met) {
        faults = met.count();
        firstFaults = met.first();
    }
};

} // namespace kelx::tools
