// SPDX-License-Identifier: Apache-2.0
#include "plan/plan.h"

#include "language/message_table.h"
#include "language/names.h"
#include "language/text.h"
#include "plan/same_expression.h"
#include "plan/selection.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <tuple>

namespace kelx::plan {
namespace {

using language::ExpressionPtr;
using language::RunSettings;
using language::TableCommand;

/// Makes passes of the tables in their order.
class Planner {
public:
    explicit Planner(language::Messages& messages) : messages_(messages) {}

    void add(std::size_t index, const TableCommand& command) {
        PlannedTable table{index, &command, dimensionsOf(command)};
        passFor(*command.unit, command).tables.push_back(std::move(table));
    }
    Plan take() { return std::move(plan_); }

private:
    static bool hasDimensions(language::TableKind kind) {
        return kind == language::TableKind::Frequency ||
               (kind >= language::TableKind::Average && kind <= language::TableKind::Gini);
    }

    static std::vector<ExpressionPtr> dimensionsOf(const TableCommand& command) {
        std::vector<ExpressionPtr> result = command.dimensions;
        const Entity* area = command.settings->areaBreak;
        if (area == nullptr || command.isHidden || !hasDimensions(command.kind))
            return result;
        const bool isThere = !result.empty() &&
                             result.front()->operation == language::Operation::CompoundCode &&
                             result.front()->codeEntity == area;
        if (!isThere) {
            auto code = std::make_shared<language::Expression>();
            code->operation = language::Operation::CompoundCode;
            code->type = language::ValueType::String;
            code->entity = code->codeEntity = area;
            code->text = "CMPCODE(" + area->name + ")";
            result.insert(result.begin(), code);
        }
        return result;
    }

    Pass& passFor(const Entity& unit, const TableCommand& command) {
        const RunSettings& settings = *command.settings;
        Pass pass{&unit, rangesFor(unit, command), {}, {}};
        if (settings.selection && settings.selection->expression && !isByRanges(unit, settings))
            pass.filters.push_back(settings.selection->expression);
        if (settings.filter)
            pass.filters.push_back(settings.filter);
        for (Pass& other : plan_.passes) {
            if (isSame(pass, other))
                return other;
        }
        plan_.passes.push_back(std::move(pass));
        return plan_.passes.back();
    }

    static bool isSame(const Pass& a, const Pass& b) {
        if (a.unit != b.unit || a.ranges != b.ranges || a.filters.size() != b.filters.size())
            return false;
        for (std::size_t i = 0; i < a.filters.size(); ++i) {
            if (!sameExpression(a.filters[i].get(), b.filters[i].get()))
                return false;
        }
        return true;
    }

    RecordRanges rangesFor(const Entity& unit, const TableCommand& command) {
        const RunSettings& settings = *command.settings;
        if (!settings.selection)
            return joined({{0, unit.records()}});
        const SelectedAreas& areas = areasOf(settings); // also tells of unknown ones
        if (settings.selection->areas.empty() && !isByRanges(unit, settings))
            return joined({{0, unit.records()}});
        return recordsUnder(areas, unit);
    }

    /// A condition that only chooses areas is as good as a list of them where the unit lies in all
    /// of these.
    bool isByRanges(const Entity& unit, const RunSettings& settings) {
        const language::Expression* condition = settings.selection->expression.get();
        const auto& found = areasOf(settings).records;
        return condition != nullptr && isChoiceOfAreas(*condition) &&
               std::all_of(found.begin(), found.end(),
                           [&](const auto& entry) { return entry.first->isAncestorOf(unit); });
    }

    const SelectedAreas& areasOf(const RunSettings& settings) {
        const auto known = areas_.find(&settings);
        if (known != areas_.end())
            return known->second;
        const language::AreaSelection& selection = *settings.selection;
        SelectedAreas found =
            findAreas(selection.expression ? areasNamedBy(*selection.expression) : selection.areas);
        for (const auto& [area, similar] : found.unknown) {
            const auto& at = area.position;
            if (!told_.emplace(at.source, at.line, at.column, area.code).second)
                continue; // other settings have the same selection
            const std::string hint =
                similar.empty() ? "" : language::didYouMean(language::inQuotes(similar));
            messages_.add(language::makeMessage(language::Warning::UnknownArea, area.position,
                                                {area.entity->name, area.code, hint}));
        }
        return areas_.emplace(&settings, std::move(found)).first->second;
    }

    language::Messages& messages_;
    Plan plan_;
    std::map<const RunSettings*, SelectedAreas> areas_;
    std::set<std::tuple<std::size_t, std::int64_t, std::int64_t, std::string>>
        told_; ///< unknown areas
};

} // namespace

Plan makePlan(const language::BoundProgram& program, language::Messages& messages) {
    Planner planner(messages);
    for (std::size_t i = 0; i < program.tables.size(); ++i) {
        if (program.tables[i].isNeeded && program.tables[i].unit != nullptr)
            planner.add(i, program.tables[i]);
    }
    return planner.take();
}

} // namespace kelx::plan
