// SPDX-License-Identifier: Apache-2.0
#include "import/column_texts.h"

#include "import/values.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace kelx::tools {

ColumnTexts::ColumnTexts(const catalog::Variable& variable) : column_(variable.column()) {}

const std::string& ColumnTexts::at(std::uint64_t record) {
    if (record == record_)
        return text_;
    if (record < blockBegin_ || record >= blockEnd_) {
        const std::uint64_t records = column_->info().records;
        if (record >= records)
            throw std::runtime_error("A column has fewer records than its entity.");
        blockBegin_ = record - record % storage::recordsPerBlock;
        blockEnd_ = std::min<std::uint64_t>(records, blockBegin_ + storage::recordsPerBlock);
        block_ =
            column_->read(blockBegin_, static_cast<std::size_t>(blockEnd_ - blockBegin_), scratch_);
    }
    format(static_cast<std::size_t>(record - blockBegin_));
    record_ = record;
    return text_;
}

void ColumnTexts::format(std::size_t index) {
    const storage::ColumnInfo& info = column_->info();
    const std::size_t size = storage::physicalSize(info.physical);
    const auto* bytes = static_cast<const std::byte*>(block_) + index * size;
    if (info.physical == storage::Physical::Real64) {
        double value = 0;
        std::memcpy(&value, bytes, sizeof value);
        text_ = std::isnan(value) ? std::string() : numberText(value);
        return;
    }
    std::uint64_t code = 0;
    std::memcpy(&code, bytes, size);
    if (code == storage::blankCode(info.physical))
        text_.clear();
    else if (info.type == storage::ValueType::String)
        text_ = column_->text(code);
    else
        text_ =
            integerText(static_cast<std::int64_t>(static_cast<std::uint64_t>(info.base) + code));
}

} // namespace kelx::tools
