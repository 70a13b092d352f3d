// SPDX-License-Identifier: Apache-2.0
// Works out the figures of tables cell by cell.
#include "output/joining.h"
#include "output/layout.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

namespace kelx::output {
namespace {

using language::Expression;
using language::Operation;

std::optional<double> real(const Figure& figure) {
    if (const auto* integer = std::get_if<std::int64_t>(&figure))
        return static_cast<double>(*integer);
    if (const auto* value = std::get_if<double>(&figure))
        return *value;
    return std::nullopt;
}

/// What cannot be told as a number is blank.
Figure finite(double value) {
    return std::isfinite(value) ? Figure(value) : Figure();
}

Figure integerResult(Operation operation, std::int64_t a, std::int64_t b) {
    std::int64_t result = 0;
    const bool tooLarge = operation == Operation::Add ? __builtin_add_overflow(a, b, &result)
                          : operation == Operation::Subtract
                              ? __builtin_sub_overflow(a, b, &result)
                              : __builtin_mul_overflow(a, b, &result);
    return tooLarge ? Figure() : Figure(result);
}

Figure calculated(Operation operation, const Figure& a, const Figure& b) {
    const auto* integerA = std::get_if<std::int64_t>(&a);
    const auto* integerB = std::get_if<std::int64_t>(&b);
    if (integerA != nullptr && integerB != nullptr && operation != Operation::Divide)
        return integerResult(operation, *integerA, *integerB);
    const auto x = real(a);
    const auto y = real(b);
    if (!x || !y)
        return {};
    switch (operation) {
    case Operation::Add:
        return finite(*x + *y);
    case Operation::Subtract:
        return finite(*x - *y);
    case Operation::Multiply:
        return finite(*x * *y);
    default:
        return *y == 0 ? Figure() : finite(*x / *y);
    }
}

Figure negated(const Figure& figure) {
    return calculated(Operation::Subtract, Figure(std::int64_t{0}), figure);
}

Figure figureOf(const language::Constant& constant) {
    if (const auto* integer = std::get_if<std::int64_t>(&constant))
        return *integer;
    if (const auto* value = std::get_if<double>(&constant))
        return *value;
    return {};
}

/// The value of an expression over one figure of each table.
template <class FigureOfTable>
Figure evaluated(const Expression& expression, const FigureOfTable& figureOfTable) {
    const auto argument = [&](std::size_t i) {
        return evaluated(*expression.arguments.at(i), figureOfTable);
    };
    switch (expression.operation) {
    case Operation::Constant:
        return figureOf(expression.constant);
    case Operation::TableFigure:
        return figureOfTable(expression.table);
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
        return calculated(expression.operation, argument(0), argument(1));
    case Operation::Negate:
        return negated(argument(0));
    default:
        throw std::logic_error("\"" + expression.text + "\" in a TABOP");
    }
}

/// Goes through the rows of all operands at once, in the order of the joined places.
class Operator {
public:
    Operator(const language::TableCommand& command, const FindRows& tables,
             execution::Progress& progress)
        : command_(command), progress_(progress) {
        for (const std::size_t number : command.operands) {
            if (slots_.emplace(number, operands_.size()).second)
                operands_.push_back(&tables(number));
        }
        if (operands_.empty())
            throw std::logic_error("the table " + command.name + " has no operands");
        checkShapes();
        next_.resize(operands_.size());
    }

    RowTable make() {
        start();
        while (findNext()) {
            progress_.check();
            addRow();
        }
        finish();
        return std::move(result_);
    }

private:
    void checkShapes() const {
        const RowTable& first = *operands_.front();
        for (const RowTable* other : operands_) {
            if (other->dimensions.size() != first.dimensions.size() ||
                other->figures.size() != first.figures.size())
                throw std::runtime_error("The tables " + first.command->name + " and " +
                                         other->command->name + " of " + command_.name +
                                         " have different shapes.");
        }
    }

    void start() {
        const RowTable& first = *operands_.front();
        result_.command = &command_;
        result_.variables = first.variables;
        result_.figureNames = first.figureNames;
        for (std::size_t d = 0; d < first.dimensions.size(); ++d) {
            joined_.push_back(joinDimension(operands_, d));
            result_.dimensions.push_back(joined_[d].dimension);
            result_.valid.push_back(joined_[d].valid);
            result_.places.push_back(std::make_shared<Column::Numbers>());
        }
        for (std::size_t f = 0; f < first.figures.size(); ++f)
            result_.figures.push_back(std::make_shared<Column::Figures>());
        result_.none = evaluated(*command_.operation, [&](std::size_t table) {
            return operands_[slots_.at(table)]->none;
        });
    }

    bool isAtEnd(std::size_t operand) const { return next_[operand] == operands_[operand]->rows(); }
    std::uint32_t placeOf(std::size_t operand, std::size_t d) const {
        return joined_[d].places[operand][operands_[operand]->place(d, next_[operand])];
    }
    /// -1, 0, 1: where the operand's next row lies to the place.
    int comparedToPlace(std::size_t operand) const {
        for (std::size_t d = 0; d < place_.size(); ++d) {
            const std::uint32_t own = placeOf(operand, d);
            if (own != place_[d])
                return own < place_[d] ? -1 : 1;
        }
        return 0;
    }

    /// Sets the place of the next row; false at the end.
    bool findNext() {
        bool any = false;
        for (std::size_t i = 0; i < operands_.size(); ++i) {
            if (isAtEnd(i) || (any && comparedToPlace(i) >= 0))
                continue;
            place_.resize(joined_.size());
            for (std::size_t d = 0; d < joined_.size(); ++d)
                place_[d] = placeOf(i, d);
            any = true;
        }
        return any;
    }

    void addRow() {
        std::vector<bool> has(operands_.size());
        std::uint64_t records = 0;
        bool hidden = false;
        for (std::size_t i = 0; i < operands_.size(); ++i) {
            has[i] = !isAtEnd(i) && comparedToPlace(i) == 0;
            if (!has[i])
                continue;
            const std::uint64_t own = operands_[i]->records[next_[i]];
            records = records == 0 ? own : own == 0 ? records : std::min(records, own);
            hidden = hidden || operands_[i]->isHidden(next_[i]);
        }
        for (std::size_t f = 0; f < result_.figures.size(); ++f)
            result_.figures[f]->push_back(
                evaluated(*command_.operation, [&](std::size_t table) -> Figure {
                    const std::size_t i = slots_.at(table);
                    return has[i] ? (*operands_[i]->figures[f])[next_[i]] : operands_[i]->none;
                }));
        for (std::size_t d = 0; d < place_.size(); ++d)
            result_.places[d]->push_back(place_[d]);
        result_.records.push_back(records);
        result_.hidden.push_back(hidden ? 1 : 0);
        for (std::size_t i = 0; i < operands_.size(); ++i)
            next_[i] += has[i] ? 1 : 0;
    }

    void finish() {
        if (result_.suppressed() == 0)
            result_.hidden.clear();
    }

    const language::TableCommand& command_;
    execution::Progress& progress_;
    std::vector<const RowTable*> operands_;
    std::map<std::size_t, std::size_t> slots_; ///< of tables among the operands
    std::vector<JoinedDimension> joined_;
    std::vector<std::size_t> next_; ///< row of each operand
    std::vector<std::uint32_t> place_;
    RowTable result_;
};

} // namespace

RowTable operated(const language::TableCommand& command, const FindRows& tables,
                  execution::Progress& progress) {
    const double start = progress.seconds();
    RowTable result = Operator(command, tables, progress).make();
    result.seconds = progress.seconds() - start;
    return result;
}

} // namespace kelx::output
