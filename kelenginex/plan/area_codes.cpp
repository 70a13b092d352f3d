// SPDX-License-Identifier: Apache-2.0
#include "plan/area_codes.h"

#include <cstring>

namespace kelx::plan {
namespace {

std::uint64_t codeAt(const void* data, storage::Physical physical) {
    std::uint64_t code = 0; // codes lie little-endian in files and, on what we run on, in memory
    std::memcpy(&code, data, storage::physicalSize(physical));
    return code;
}

} // namespace

std::string trimmedCode(std::string_view code) {
    const auto first = code.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(code.substr(first, code.find_last_not_of(' ') - first + 1));
}

ValueText::ValueText(const catalog::Variable& variable) : column_(variable.column()) {}

std::string ValueText::at(std::uint64_t record) {
    const storage::ColumnInfo& info = column_->info();
    const void* data = column_->read(record, 1, scratch_);
    if (info.physical == storage::Physical::Real64) {
        double value = 0;
        std::memcpy(&value, data, sizeof value);
        return numberText(value);
    }
    const std::uint64_t code = codeAt(data, info.physical);
    if (code == storage::blankCode(info.physical) || info.naCode == code)
        return {};
    if (info.type == storage::ValueType::String)
        return std::string(column_->text(code));
    return std::to_string(static_cast<std::int64_t>(static_cast<std::uint64_t>(info.base) + code));
}

CompoundCodes::CompoundCodes(const Entity& entity) {
    for (const Entity* e = &entity; e->parent != nullptr; e = e->parent) {
        Level level;
        if (e->codeVar != nullptr)
            level.code = std::make_unique<ValueText>(*e->codeVar);
        level.pointers = e->pointers();
        levels_.push_back(std::move(level));
    }
}

std::string CompoundCodes::at(std::uint64_t record) {
    std::string result;
    for (std::size_t i = 0; i < levels_.size(); ++i) {
        if (levels_[i].code)
            result.insert(0, trimmedCode(levels_[i].code->at(record)));
        if (i + 1 < levels_.size())
            record = levels_[i].pointers->parentOf(record);
    }
    return result;
}

} // namespace kelx::plan
