// SPDX-License-Identifier: Apache-2.0
// One pass over a variable's data that looks for what is wrong with them.
#pragma once

#include "catalog/model.h"
#include "storage/error.h"
#include "storage/pointer_file.h"

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

namespace kelx::catalog {

/// The reason alone; a finding has the file in a place of its own.
std::string reasonOf(const storage::FileError& fault);

/// Faults of one kind: how many, and the first of them in words.
struct FaultCount {
    static constexpr std::size_t shown = 5;

    std::uint64_t count = 0;
    std::vector<std::string> first;

    bool wantsText() const { return first.size() < shown; }
};

struct ColumnFaults {
    FaultCount blocks;      ///< that cannot be read, each with the reason
    FaultCount unexpected;  ///< values outside labels and ranges
    FaultCount blankCodes;  ///< records without a code, of code variables
    FaultCount doubleCodes; ///< codes that stand twice under one parent
};

/// Reads a column block by block. Families are what groups a code variable's records under their
/// parents; null where the variable is no code or its entity has no sound pointers. Ends early
/// where `stop` is set. Records count from 1 in texts.
ColumnFaults checkColumn(const Variable& variable, const storage::Column& column,
                         const storage::PointerFile* families, const std::atomic<bool>& stop);

} // namespace kelx::catalog
