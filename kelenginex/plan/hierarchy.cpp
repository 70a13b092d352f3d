// SPDX-License-Identifier: Apache-2.0
#include "plan/hierarchy.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::plan {

std::uint64_t recordCount(const RecordRanges& ranges) {
    std::uint64_t count = 0;
    for (const RecordRange& range : ranges)
        count += range.end - range.begin;
    return count;
}

DescentPath::DescentPath(const Entity& from, const Entity& to) {
    for (const Entity* entity = &to; entity != &from; entity = entity->parent) {
        if (entity->parent == nullptr)
            throw std::logic_error(to.name + " is not below " + from.name);
        files_.push_back(entity->pointers());
    }
    std::reverse(files_.begin(), files_.end());
}

std::uint64_t DescentPath::first(std::uint64_t record) const {
    for (const auto& file : files_)
        record = file->first(record);
    return record;
}

std::uint64_t DescentPath::above(std::uint64_t record) const {
    for (auto file = files_.rbegin(); file != files_.rend(); ++file)
        record = (*file)->parentOf(record);
    return record;
}

std::uint64_t DescentPath::above(std::uint64_t record, std::uint64_t guess) const {
    if (files_.empty())
        return record;
    const std::uint64_t end = files_.front()->parents();
    for (std::uint64_t upper = guess; upper < end && upper < guess + 2; ++upper) {
        if (first(upper) <= record && record < first(upper + 1))
            return upper;
    }
    return above(record);
}

RecordRanges DescentPath::descend(const RecordRanges& ranges) const {
    RecordRanges result;
    result.reserve(ranges.size());
    for (const RecordRange& range : ranges)
        result.push_back({first(range.begin), first(range.end)});
    return joined(result);
}

RecordRanges within(const RecordRanges& ranges, const RecordRange& range) {
    RecordRanges result;
    auto next = std::partition_point(ranges.begin(), ranges.end(),
                                     [&](const auto& own) { return own.end <= range.begin; });
    for (; next != ranges.end() && next->begin < range.end; ++next)
        result.push_back({std::max(next->begin, range.begin), std::min(next->end, range.end)});
    return result;
}

RecordRanges joined(const RecordRanges& ranges) {
    RecordRanges result;
    for (const RecordRange& range : ranges) {
        if (range.begin >= range.end)
            continue;
        if (!result.empty() && range.begin <= result.back().end)
            result.back().end = std::max(result.back().end, range.end);
        else
            result.push_back(range);
    }
    return result;
}

} // namespace kelx::plan
