// SPDX-License-Identifier: Apache-2.0
// Puts a column in memory together from blocks that are made in any order, each as narrow as its
// own values allow, and all as wide as they need in the end.
#pragma once

#include "execution/block_values.h"
#include "execution/kernels.h"
#include "storage/memory_column.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kelx::execution {

/// Blocks are those of storage. Functions that take a block may be called from several threads at
/// once, each for blocks of its own.
class ColumnBuilder {
public:
    virtual ~ColumnBuilder() = default;
    /// The name is told where values cannot be kept.
    static std::unique_ptr<ColumnBuilder> create(ValueType type, std::uint64_t records,
                                                 const std::string& name);

    std::size_t blocks() const;
    /// Records of a block.
    std::size_t size(std::size_t block) const;
    /// Takes the values of a block, and may use them up.
    virtual void put(std::size_t block, BlockValues& values) = 0;
    /// Where a block of whole numbers may be written as bytes up to mostByte; null where the type
    /// has none. Either putBytes() or put() follows.
    virtual std::uint8_t* bytes(std::size_t /*block*/) { return nullptr; }
    virtual void putBytes(std::size_t /*block*/) {}
    static constexpr std::uint8_t mostByte = mostInRun;

    /// After all blocks were put: begins the next step of joining them, which has so many parts,
    /// each for one call of join() in any thread. 0 where nothing is left to do; else it is called
    /// again when the step is done.
    virtual std::size_t nextStep() = 0;
    virtual void join(std::size_t /*part*/) {}
    /// The column; called once, at the end.
    virtual std::shared_ptr<const storage::Column> take(std::uint8_t decimals) = 0;

protected:
    ColumnBuilder(ValueType type, std::uint64_t records) {
        info_.type = type;
        info_.records = records;
    }
    storage::ColumnInfo info_;
};

} // namespace kelx::execution
