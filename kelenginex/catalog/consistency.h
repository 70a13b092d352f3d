// SPDX-License-Identifier: Apache-2.0
// Checks a database against its dictionary, file by file. A blank is a value as any other, but a
// code must not be blank.
#pragma once

#include "catalog/model.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kelx::catalog {

/// Errors spoil results or end a run; warnings are what somebody should look at.
enum class FindingSeverity { Error, Warning };

/// What is wrong with a part of a database. Names that do not apply are empty.
struct Finding {
    FindingSeverity severity = FindingSeverity::Error;
    std::string entity, variable, file;
    std::string check; ///< what was looked at: "File", "Checksum", "Codes", ...
    std::string found; ///< in words, with the first records
};

/// What is worth knowing of a variable that is no code: a blank is a value as any other.
struct Blanks {
    std::string entity, variable, file;
    std::uint64_t blanks = 0;
    std::uint64_t records = 0;
};

struct ConsistencyReport {
    std::vector<Finding> findings; ///< in the order of the dictionary, unnamed files last
    std::vector<Blanks> blanks;    ///< of variables that have some
    std::uint64_t entities = 0;
    std::uint64_t variables = 0;
    std::uint64_t records = 0; ///< of all entities whose number is known

    std::uint64_t count(FindingSeverity severity) const;
};

/// Told how many of the variables are looked through; what it throws ends the check.
using CheckProgress = std::function<void(std::uint64_t done, std::uint64_t all)>;

/// Looks at every file of an open dictionary, on all cores. What is wrong becomes a finding, never
/// an exception.
ConsistencyReport checkConsistency(const Dictionary& dictionary,
                                   const CheckProgress& progress = {});

} // namespace kelx::catalog
