// SPDX-License-Identifier: Apache-2.0
#include "plan/area_codes.h"

#include "storage/stored_value.h"

#include <string_view>
#include <variant>

namespace kelx::plan {
std::string trimmedCode(std::string_view code) {
    const auto first = code.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(code.substr(first, code.find_last_not_of(' ') - first + 1));
}

ValueText::ValueText(const catalog::Variable& variable) : column_(variable.column()) {}

std::string ValueText::at(std::uint64_t record) {
    const void* data = column_->read(record, 1, scratch_);
    const auto value =
        storage::storedValue(*column_, storage::codeAt(data, 0, column_->info().physical));
    if (const auto* text = std::get_if<std::string_view>(&value))
        return std::string(*text);
    if (const auto* real = std::get_if<double>(&value))
        return numberText(*real);
    const auto* whole = std::get_if<std::int64_t>(&value);
    return whole != nullptr ? std::to_string(*whole) : std::string();
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
