// SPDX-License-Identifier: Apache-2.0
#include "language/uses.h"

#include <unordered_set>

namespace kelx::language {

namespace {

class Uses {
public:
    void add(const Expression& expression) {
        if (expression.variable != nullptr)
            variables_.insert(expression.variable);
        for (const auto& argument : expression.arguments)
            add(*argument);
    }
    void add(const ExpressionPtr& expression) {
        // Settings and lists share expressions between many tables.
        if (expression != nullptr && seen_.insert(expression.get()).second)
            add(*expression);
    }
    void add(const std::vector<ExpressionPtr>& expressions) {
        for (const ExpressionPtr& expression : expressions)
            add(expression);
    }
    void add(const std::optional<Aggregate>& aggregate) {
        if (!aggregate)
            return;
        add(aggregate->value);
        add(aggregate->weight);
        add(aggregate->filters);
    }
    void add(const RunSettings& settings) {
        add(settings.filter);
        if (settings.selection)
            add(settings.selection->expression);
    }
    void add(const TableCommand& table) {
        add(table.dimensions);
        add(table.measure);
        for (const ListColumn& column : table.columns)
            add(column.variable);
        add(table.operation);
        add(table.filter);
        add(table.weight);
        add(table.tally);
        add(*table.settings);
    }
    void add(const Definition& definition) {
        add(definition.value);
        add(definition.numerator);
        add(definition.denominator);
        add(definition.filters);
    }
    bool has(const Variable* variable) const { return variables_.contains(variable); }

private:
    std::unordered_set<const Variable*> variables_;
    std::unordered_set<const Expression*> seen_;
};

} // namespace

void markUsed(BoundProgram& program) {
    Uses uses;
    for (const TableCommand& table : program.tables) {
        if (table.isNeeded)
            uses.add(table);
    }
    // A definition takes from those before it only.
    for (auto definition = program.definitions.rbegin(); definition != program.definitions.rend();
         ++definition) {
        definition->used = definition->save.has_value() || uses.has(definition->variable.get());
        if (definition->used)
            uses.add(*definition);
    }
}

} // namespace kelx::language
