// SPDX-License-Identifier: Apache-2.0
#include "boundary/areas.h"

#include "plan/area_codes.h"
#include "plan/hierarchy.h"
#include "plan/selection.h"
#include "storage/error.h"
#include "storage/utf8.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace kelx::boundary {

namespace {

using catalog::Entity;
using plan::RecordRanges;

std::int32_t saturated(std::uint64_t count) {
    constexpr auto most = std::numeric_limits<std::int32_t>::max();
    return count > std::uint64_t{most} ? most : static_cast<std::int32_t>(count);
}

void countChildren(const Entity& entity, const RecordRanges& records,
                   std::vector<EntityAreaCount>& into) {
    for (const auto& child : entity.children) {
        const RecordRanges below = plan::DescentPath(entity, *child).descend(records);
        into.push_back({child->name, saturated(plan::recordCount(below))});
        countChildren(*child, below, into);
    }
}

} // namespace

std::vector<EntityAreaCount> countBelow(const Entity& entity, const std::string& compoundCode) {
    std::vector<EntityAreaCount> counts;
    const RecordRanges records = plan::recordsOfAreas(entity, {compoundCode});
    if (!records.empty()) {
        countChildren(entity, records, counts);
    }
    return counts;
}

std::vector<AreaCodeRecord> codesBelow(const Entity& entity, const std::string& compoundCode,
                                       const Entity& child) {
    if (child.codeVar == nullptr) {
        return {};
    }
    const RecordRanges below =
        plan::DescentPath(entity, child).descend(plan::recordsOfAreas(entity, {compoundCode}));
    plan::ValueText code(*child.codeVar);
    std::optional<plan::ValueText> label;
    if (child.labelVar != nullptr) {
        label.emplace(*child.labelVar);
    }
    std::vector<AreaCodeRecord> result;
    for (const plan::RecordRange& range : below) {
        for (std::uint64_t record = range.begin; record < range.end; ++record) {
            result.push_back(
                {plan::trimmedCode(code.at(record)), label ? label->at(record) : std::string()});
        }
    }
    return result;
}

int codeWidth(const catalog::Variable& code) {
    try {
        const auto column = code.column();
        const storage::ColumnInfo& info = column->info();
        if (info.type == storage::ValueType::Integer) {
            const auto text = [&](std::uint64_t number) {
                return std::to_string(
                    static_cast<std::int64_t>(static_cast<std::uint64_t>(info.base) + number));
            };
            return static_cast<int>(std::max(text(info.minCode).size(), text(info.maxCode).size()));
        }
        if (code.size > 0) {
            return code.size;
        }
        std::size_t most = 0;
        for (std::uint64_t i = 0; i < column->textCount(); ++i) {
            most = std::max(most, storage::characterCount(plan::trimmedCode(column->text(i))));
        }
        return static_cast<int>(most);
    } catch (const storage::FileError&) {
        return code.size; // without its data, what the dictionary says is all there is
    }
}

} // namespace kelx::boundary
