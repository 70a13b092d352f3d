// SPDX-License-Identifier: Apache-2.0
// Writes .kbf files record by record, in one pass and with bounded memory.
#pragma once

#include "storage/column.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

namespace kelx::storage {

/// What is known before the first value.
struct ColumnPlan {
    ValueType type = ValueType::Integer;
    std::uint8_t decimals = 0;
    /// Bounds of the values of an Integer column, where known: then it is written directly.
    /// Without them values are spooled to a temporary file and narrowed at the end.
    std::optional<std::int64_t> lowest;
    std::optional<std::int64_t> highest;
    std::shared_ptr<const Secret> key; ///< encrypts the data blocks
};

/// One writer, one file. Nothing stands under the final name before commit().
/// Every function throws FileError where the file cannot be written.
class ColumnWriter {
public:
    static std::unique_ptr<ColumnWriter> create(const std::filesystem::path& file,
                                                const ColumnPlan& plan);
    virtual ~ColumnWriter() = default; ///< without commit(), leaves no trace

    virtual void addInteger(std::int64_t value) = 0; ///< Integer, Boolean (0 or 1)
    virtual void addReal(double value) = 0;          ///< NaN is a blank
    virtual void addText(std::string_view utf8) = 0;
    virtual void addBlank() = 0;
    virtual std::uint64_t records() const = 0;
    /// Completes, syncs and renames. The writer is of no use afterwards.
    virtual void commit() = 0;
};

} // namespace kelx::storage
