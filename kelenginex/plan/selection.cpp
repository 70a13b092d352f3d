// SPDX-License-Identifier: Apache-2.0
#include "plan/selection.h"

#include "language/message_table.h"
#include "plan/area_codes.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace kelx::plan {
namespace {

/// Walks down to one entity, only through areas that begin a wanted code.
class AreaFinder {
public:
    AreaFinder(const Entity& entity, const std::set<std::string>& wanted) : wanted_(wanted) {
        for (const Entity* e = &entity; e != nullptr; e = e->parent)
            path_.insert(path_.begin(), Level{e, nullptr, e->pointers()});
        for (Level& level : path_) {
            if (level.entity->parent != nullptr && level.entity->codeVar != nullptr)
                level.code = std::make_unique<ValueText>(*level.entity->codeVar);
        }
    }

    RecordRanges find() {
        visit(0, 0, path_.front().entity->records(), {});
        std::sort(ranges_.begin(), ranges_.end(),
                  [](const RecordRange& a, const RecordRange& b) { return a.begin < b.begin; });
        return joined(ranges_);
    }
    const std::set<std::string>& found() const { return found_; }

private:
    struct Level {
        const Entity* entity;
        std::unique_ptr<ValueText> code;
        std::shared_ptr<const storage::PointerFile> pointers;
    };

    bool beginsWanted(const std::string& prefix) const {
        const auto next = wanted_.lower_bound(prefix);
        return next != wanted_.end() && next->starts_with(prefix);
    }

    void visit(std::size_t depth, std::uint64_t begin, std::uint64_t end,
               const std::string& prefix) {
        Level& level = path_[depth];
        for (std::uint64_t record = begin; record < end; ++record) {
            std::string code = prefix;
            if (level.code)
                code += trimmedCode(level.code->at(record));
            if (depth + 1 == path_.size())
                take(record, code);
            else if (beginsWanted(code))
                visit(depth + 1, path_[depth + 1].pointers->first(record),
                      path_[depth + 1].pointers->first(record + 1), code);
        }
    }

    void take(std::uint64_t record, const std::string& code) {
        if (!wanted_.contains(code))
            return;
        found_.insert(code);
        ranges_.push_back({record, record + 1});
    }

    const std::set<std::string>& wanted_;
    std::vector<Level> path_;
    std::set<std::string> found_;
    RecordRanges ranges_;
};

} // namespace

RecordRanges recordsOfAreas(const Entity& entity, const std::set<std::string>& codes) {
    return AreaFinder(entity, codes).find();
}

SelectedAreas findAreas(const language::AreaSelection& selection) {
    std::map<const Entity*, std::set<std::string>> wanted;
    for (const auto& area : selection.areas)
        wanted[area.entity].insert(area.code);
    SelectedAreas result;
    std::map<const Entity*, std::set<std::string>> found;
    for (const auto& [entity, codes] : wanted) {
        AreaFinder finder(*entity, codes);
        result.records[entity] = finder.find();
        found[entity] = finder.found();
    }
    for (const auto& area : selection.areas) {
        if (!found[area.entity].contains(area.code))
            result.unknown.push_back(area);
    }
    return result;
}

RecordRanges recordsUnder(const SelectedAreas& areas, const Entity& unit) {
    RecordRanges all;
    for (const auto& [entity, ranges] : areas.records) {
        if (!entity->isAncestorOf(unit))
            continue;
        const RecordRanges below = DescentPath(*entity, unit).descend(ranges);
        all.insert(all.end(), below.begin(), below.end());
    }
    std::sort(all.begin(), all.end(),
              [](const RecordRange& a, const RecordRange& b) { return a.begin < b.begin; });
    return joined(all);
}

RecordRanges Selections::recordsOf(const Entity& unit, const language::AreaSelection* selection) {
    if (selection == nullptr || selection->areas.empty())
        return joined({{0, unit.records()}});
    return recordsUnder(areasOf(*selection), unit);
}

const SelectedAreas& Selections::areasOf(const language::AreaSelection& selection) {
    const auto known = areas_.find(&selection);
    if (known != areas_.end())
        return known->second;
    SelectedAreas areas = findAreas(selection);
    for (const auto& area : areas.unknown)
        messages_.add(language::makeMessage(language::Warning::UnknownArea, area.position,
                                            {area.entity->name, area.code}));
    return areas_.emplace(&selection, std::move(areas)).first->second;
}

} // namespace kelx::plan
