// SPDX-License-Identifier: Apache-2.0
#include "boundary/areas.h"

#include "plan/area_codes.h"
#include "plan/hierarchy.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace kelx::boundary {

namespace {

using catalog::Entity;
using plan::RecordRange;
using plan::RecordRanges;

/// A record that the search has come to, and what of the code is left to match below it.
struct Step {
    std::uint64_t record = 0;
    std::string_view rest;
};

std::vector<const Entity*> pathTo(const Entity& entity) {
    std::vector<const Entity*> path;
    for (const Entity* at = &entity; at->parent != nullptr; at = at->parent) {
        path.insert(path.begin(), at);
    }
    return path;
}

/// The records of the next entity under those found, that go on with the code.
std::vector<Step> descend(const Entity& entity, const std::vector<Step>& above) {
    const auto pointers = entity.pointers();
    std::optional<plan::ValueText> code;
    if (entity.codeVar != nullptr) {
        code.emplace(*entity.codeVar);
    }
    std::vector<Step> found;
    for (const Step& step : above) {
        const std::uint64_t end = pointers->first(step.record + 1);
        for (std::uint64_t record = pointers->first(step.record); record < end; ++record) {
            const std::string own = code ? code->at(record) : std::string();
            if (step.rest.starts_with(own)) {
                found.push_back({record, step.rest.substr(own.size())});
            }
        }
    }
    return found;
}

/// The records of an entity with a compound code.
RecordRanges recordsOf(const Entity& entity, const std::string& compoundCode) {
    std::vector<Step> steps = {{0, compoundCode}};
    for (const Entity* level : pathTo(entity)) {
        steps = descend(*level, steps);
    }
    RecordRanges ranges;
    for (const Step& step : steps) {
        if (step.rest.empty()) {
            ranges.push_back({step.record, step.record + 1});
        }
    }
    return plan::joined(ranges);
}

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
    const RecordRanges records = recordsOf(entity, compoundCode);
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
        plan::DescentPath(entity, child).descend(recordsOf(entity, compoundCode));
    plan::ValueText code(*child.codeVar);
    std::optional<plan::ValueText> label;
    if (child.labelVar != nullptr) {
        label.emplace(*child.labelVar);
    }
    std::vector<AreaCodeRecord> result;
    for (const RecordRange& range : below) {
        for (std::uint64_t record = range.begin; record < range.end; ++record) {
            result.push_back({code.at(record), label ? label->at(record) : std::string()});
        }
    }
    return result;
}

} // namespace kelx::boundary
