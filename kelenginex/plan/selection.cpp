// SPDX-License-Identifier: Apache-2.0
#include "plan/selection.h"

#include "catalog/names.h"
#include "language/message_table.h"
#include "language/names.h"
#include "language/text.h"
#include "plan/area_codes.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace kelx::plan {
namespace {

using language::Expression;
using language::Operation;

enum class Case { Exact, Any };

/// Walks down to one entity, only through areas that begin a wanted code.
class AreaFinder {
public:
    /// For any case the wanted codes are in lower case.
    AreaFinder(const Entity& entity, const std::set<std::string>& wanted, Case letters)
        : wanted_(wanted), letters_(letters) {
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
    /// Wanted codes, and how the data write them.
    const std::map<std::string, std::string>& found() const { return found_; }

private:
    struct Level {
        const Entity* entity;
        std::unique_ptr<ValueText> code;
        std::shared_ptr<const storage::PointerFile> pointers;
    };

    std::string keyOf(const std::string& code) const {
        return letters_ == Case::Any ? catalog::lowerCase(code) : code;
    }

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
            else if (beginsWanted(keyOf(code)))
                visit(depth + 1, path_[depth + 1].pointers->first(record),
                      path_[depth + 1].pointers->first(record + 1), code);
        }
    }

    void take(std::uint64_t record, const std::string& code) {
        const std::string key = keyOf(code);
        if (!wanted_.contains(key))
            return;
        found_.emplace(key, code);
        ranges_.push_back({record, record + 1});
    }

    const std::set<std::string>& wanted_;
    Case letters_;
    std::vector<Level> path_;
    std::map<std::string, std::string> found_;
    RecordRanges ranges_;
};

using WantedCodes = std::map<const Entity*, std::set<std::string>>;

/// The codes that differ from the unknown ones in the case of letters only.
void findSimilar(std::vector<SelectedAreas::Unknown>& unknown) {
    WantedCodes wanted;
    for (const auto& entry : unknown)
        wanted[entry.area.entity].insert(catalog::lowerCase(entry.area.code));
    for (const auto& [entity, codes] : wanted) {
        AreaFinder finder(*entity, codes, Case::Any);
        finder.find();
        for (auto& entry : unknown) {
            const auto found = finder.found().find(catalog::lowerCase(entry.area.code));
            if (entry.area.entity == entity && found != finder.found().end())
                entry.similar = found->second;
        }
    }
}

/// ENTITY = "code", either way round: the entity's side; null for anything else.
const Expression* comparedEntity(const Expression& comparison) {
    const auto& sides = comparison.arguments;
    for (const std::size_t side : {0, 1}) {
        const bool code = sides[side]->operation == Operation::CompoundCode;
        if (code && sides[1 - side]->operation == Operation::Constant)
            return sides[side].get();
    }
    return nullptr;
}

/// The code of an interval of one text; null for any other.
const std::string* onlyText(const language::Interval& interval) {
    if (!interval.low || interval.low != interval.high)
        return nullptr;
    return std::get_if<std::string>(&*interval.low);
}

/// Null where the condition does not compare an entity with codes.
const Expression* areaEntity(const Expression& condition) {
    if (condition.operation == Operation::Equal)
        return comparedEntity(condition);
    const bool codes = condition.operation == Operation::In &&
                       condition.arguments[0]->operation == Operation::CompoundCode &&
                       std::all_of(condition.intervals.begin(), condition.intervals.end(),
                                   [](const auto& interval) { return onlyText(interval); });
    return codes ? condition.arguments[0].get() : nullptr;
}

std::vector<std::string> codesOf(const Expression& condition) {
    std::vector<std::string> codes;
    for (const language::Interval& interval : condition.intervals)
        codes.push_back(*onlyText(interval));
    for (const auto& side : condition.arguments) {
        if (const auto* text = std::get_if<std::string>(&side->constant);
            text != nullptr && side->operation == Operation::Constant)
            codes.push_back(*text);
    }
    return codes;
}

} // namespace

std::vector<AreaSelection::Area> areasNamedBy(const Expression& condition) {
    std::vector<AreaSelection::Area> areas;
    if (const Expression* entity = areaEntity(condition)) {
        for (std::string& code : codesOf(condition))
            areas.push_back({entity->codeEntity, std::move(code), condition.position});
        return areas;
    }
    if (condition.operation != Operation::And && condition.operation != Operation::Or &&
        condition.operation != Operation::Not)
        return areas;
    for (const auto& part : condition.arguments) {
        for (AreaSelection::Area& area : areasNamedBy(*part))
            areas.push_back(std::move(area));
    }
    return areas;
}

bool isChoiceOfAreas(const Expression& condition) {
    if (condition.operation != Operation::Or)
        return areaEntity(condition) != nullptr;
    return std::all_of(condition.arguments.begin(), condition.arguments.end(),
                       [](const auto& part) { return isChoiceOfAreas(*part); });
}

RecordRanges recordsOfAreas(const Entity& entity, const std::set<std::string>& codes) {
    return AreaFinder(entity, codes, Case::Exact).find();
}

SelectedAreas findAreas(const std::vector<AreaSelection::Area>& areas) {
    WantedCodes wanted;
    for (const auto& area : areas)
        wanted[area.entity].insert(area.code);
    SelectedAreas result;
    for (const auto& [entity, codes] : wanted) {
        AreaFinder finder(*entity, codes, Case::Exact);
        result.records[entity] = finder.find();
        for (const auto& area : areas) {
            if (area.entity == entity && !finder.found().contains(area.code))
                result.unknown.push_back({area, {}});
        }
    }
    findSimilar(result.unknown);
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

RecordRanges Selections::recordsOf(const Entity& unit, const AreaSelection* selection) {
    if (selection == nullptr)
        return joined({{0, unit.records()}});
    const SelectedAreas& areas = areasOf(*selection); // also tells of unknown ones
    if (selection->areas.empty() && !isByRanges(unit, *selection))
        return joined({{0, unit.records()}});
    return recordsUnder(areas, unit);
}

bool Selections::isByRanges(const Entity& unit, const AreaSelection& selection) {
    const Expression* condition = selection.expression.get();
    const auto& found = areasOf(selection).records;
    return condition != nullptr && isChoiceOfAreas(*condition) &&
           std::all_of(found.begin(), found.end(),
                       [&](const auto& entry) { return entry.first->isAncestorOf(unit); });
}

const SelectedAreas& Selections::areasOf(const AreaSelection& selection) {
    const auto known = areas_.find(&selection);
    if (known != areas_.end())
        return known->second;
    SelectedAreas found =
        findAreas(selection.expression ? areasNamedBy(*selection.expression) : selection.areas);
    for (const SelectedAreas::Unknown& unknown : found.unknown)
        tellOf(unknown, "selection lists");
    return areas_.emplace(&selection, std::move(found)).first->second;
}

void Selections::checkFilter(const language::ExpressionPtr& filter, const std::string& what) {
    if (filter == nullptr || !filters_.insert(filter).second)
        return;
    for (const SelectedAreas::Unknown& unknown : findAreas(areasNamedBy(*filter)).unknown)
        tellOf(unknown, what + " names");
}

void Selections::tellOf(const SelectedAreas::Unknown& unknown, const std::string& names) {
    const auto& [area, similar] = unknown;
    const auto& at = area.position;
    if (!told_.emplace(at.source, at.line, at.column, area.code).second)
        return; // other settings have the same selection
    const std::string hint =
        similar.empty() ? "" : language::didYouMean(language::inQuotes(similar));
    messages_.add(language::makeMessage(language::Warning::UnknownArea, at,
                                        {area.entity->name, area.code, hint, names}));
}

} // namespace kelx::plan
