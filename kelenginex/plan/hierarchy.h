// SPDX-License-Identifier: Apache-2.0
// Ways through the hierarchy: from a record to its descendants and back.
#pragma once

#include "catalog/model.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::plan {

using catalog::Entity;

/// Records begin to end - 1 of an entity.
struct RecordRange {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    bool operator==(const RecordRange&) const = default;
};
using RecordRanges = std::vector<RecordRange>; ///< ascending, apart from each other

std::uint64_t recordCount(const RecordRanges& ranges);
/// The pointer files between an entity and one below it, opened once. Safe to use from several
/// threads.
class DescentPath {
public:
    /// Throws storage::FileError where a pointer file cannot be read. from is above or at to.
    DescentPath(const Entity& from, const Entity& to);

    /// The first record under a record; the end of all records where record is the upper count.
    std::uint64_t first(std::uint64_t record) const;
    /// The record above a record.
    std::uint64_t above(std::uint64_t record) const;
    /// The same, sooner found where it is the guess or the next one.
    std::uint64_t above(std::uint64_t record, std::uint64_t guess) const;
    RecordRanges descend(const RecordRanges& ranges) const;
    std::size_t length() const { return files_.size(); }
    /// The pointer file of a path of length 1.
    const storage::PointerFile& only() const { return *files_.front(); }

private:
    std::vector<std::shared_ptr<const storage::PointerFile>> files_; ///< top down
};

/// The parts of ranges that lie within a range.
RecordRanges within(const RecordRanges& ranges, const RecordRange& range);
/// Joins neighbours and leaves out empty ranges; the input is ascending.
RecordRanges joined(const RecordRanges& ranges);

} // namespace kelx::plan
