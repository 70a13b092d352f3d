// SPDX-License-Identifier: Apache-2.0
#include "plan/plan.h"

#include "plan/same_expression.h"

#include <utility>

namespace kelx::plan {
namespace {

using language::ExpressionPtr;
using language::RunSettings;
using language::TableCommand;

/// Makes passes of the tables in their order.
class Planner {
public:
    explicit Planner(Selections& selections) : selections_(selections) {}

    void add(std::size_t index, const TableCommand& command) {
        selections_.checkFilter(command.settings->filter, "universal filter");
        selections_.checkFilter(command.filter, "filter");
        PlannedTable table{index, &command, dimensionsOf(command)};
        passFor(*command.unit, command).tables.push_back(std::move(table));
    }
    Plan take() { return std::move(plan_); }

private:
    static std::vector<ExpressionPtr> dimensionsOf(const TableCommand& command) {
        std::vector<ExpressionPtr> result = command.dimensions;
        const Entity* area = language::areaBreakOf(command);
        if (area == nullptr)
            return result;
        const bool isThere = !result.empty() &&
                             result.front()->operation == language::Operation::CompoundCode &&
                             result.front()->codeEntity == area;
        if (!isThere) {
            auto code = std::make_shared<language::Expression>();
            code->operation = language::Operation::CompoundCode;
            code->type = language::ValueType::String;
            code->entity = code->codeEntity = area;
            code->text = area->name + ".CMPCODE"; // its variable's name, which heads the areas
            result.insert(result.begin(), code);
        }
        return result;
    }

    Pass& passFor(const Entity& unit, const TableCommand& command) {
        const RunSettings& settings = *command.settings;
        const auto* selection = settings.selection ? &*settings.selection : nullptr;
        Pass pass{&unit, selections_.recordsOf(unit, selection), {}, {}};
        if (selection != nullptr && selection->expression &&
            !selections_.isByRanges(unit, *selection))
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

    Selections& selections_;
    Plan plan_;
};

/// What the run asks of gathered records stands among the filters too.
std::string nameOf(const ExpressionPtr& filter, const RunSettings* settings) {
    if (settings != nullptr && filter == settings->filter)
        return "universal filter";
    const bool selects =
        settings != nullptr && settings->selection && filter == settings->selection->expression;
    return selects ? "selection" : "filter";
}

void checkFilters(const language::Definition& definition, Selections& selections) {
    const auto check = [&](const std::vector<ExpressionPtr>& filters) {
        for (const ExpressionPtr& filter : filters)
            selections.checkFilter(filter, nameOf(filter, definition.settings.get()));
    };
    check(definition.filters);
    for (const auto* aggregate : {&definition.numerator, &definition.denominator}) {
        if (*aggregate)
            check((*aggregate)->filters);
    }
}

} // namespace

Plan makePlan(const language::BoundProgram& program, Selections& selections) {
    Planner planner(selections);
    for (std::size_t i = 0; i < program.tables.size(); ++i) {
        if (program.tables[i].isNeeded && program.tables[i].unit != nullptr)
            planner.add(i, program.tables[i]);
    }
    for (const language::Definition& definition : program.definitions) {
        if (definition.used)
            checkFilters(definition, selections);
    }
    return planner.take();
}

} // namespace kelx::plan
