// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/CategoryReader.h"

#include "TKelDataset.h"

/// Records are mostly in order: the same category goes on, or the one comes that followed before.
std::uint32_t CategoryReader::categoryOf(std::int64_t record) {
    const std::string code = data_->stringValue(record, codeField_);
    const CategoryKind kind = kindOf(record, code);
    if (categories_.empty())
        return add(code, kind, record);
    if (isCategory(last_, code, kind))
        return last_;
    const std::uint32_t guess = following_[last_];
    const std::uint32_t found = isCategory(guess, code, kind) ? guess : find(code, kind, record);
    following_[last_] = found;
    return last_ = found;
}

/// Only the code of markers need be looked into: all of them have it.
CategoryKind CategoryReader::kindOf(std::int64_t record, const std::string& code) const {
    return code == "0" ? categoryKindOf(data_->stringValue(record, codeField_ + 2))
                       : CategoryKind::Valid;
}

bool CategoryReader::isCategory(std::uint32_t number, const std::string& code,
                                CategoryKind kind) const {
    const TableCategory& category = categories_[number];
    return category.kind == kind && category.code == code;
}

std::uint32_t CategoryReader::find(const std::string& code, CategoryKind kind,
                                   std::int64_t record) {
    if (kind != CategoryKind::Valid) {
        const auto& number = markers_.at(static_cast<std::size_t>(kind));
        return number ? *number : add(code, kind, record);
    }
    const auto found = numbers_.find(code);
    return found != numbers_.end() ? found->second : add(code, kind, record);
}

std::uint32_t CategoryReader::add(const std::string& code, CategoryKind kind, std::int64_t record) {
    const auto number = static_cast<std::uint32_t>(categories_.size());
    categories_.push_back({code, data_->stringValue(record, codeField_ + 1), kind});
    following_.push_back(number);
    if (kind == CategoryKind::Valid)
        numbers_.emplace(code, number);
    else
        markers_.at(static_cast<std::size_t>(kind)) = number;
    return number;
}
