// SPDX-License-Identifier: Apache-2.0
// The values of a column as texts, one after the other.
#pragma once

#include "catalog/model.h"
#include "storage/column.h"

#include <memory>
#include <string>

namespace kelx::tools {

/// Reads records in ascending order, block by block.
class ColumnTexts {
public:
    explicit ColumnTexts(const catalog::Variable& variable);
    /// Empty for a blank. Valid until the next call. Throws storage::FileError.
    const std::string& at(std::uint64_t record);

private:
    void format(std::size_t index);

    std::shared_ptr<const storage::Column> column_;
    storage::ColumnScratch scratch_;
    const void* block_ = nullptr;
    std::uint64_t blockBegin_ = 0, blockEnd_ = 0;
    std::uint64_t record_ = ~std::uint64_t{0};
    std::string text_;
};

} // namespace kelx::tools
