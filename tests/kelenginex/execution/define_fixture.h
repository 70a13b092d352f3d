// SPDX-License-Identifier: GPL-3.0-or-later
// Definitions built by hand, and what the columns made of them hold.
#pragma once

#include "execution/definitions.h"
#include "small_country.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kelx::test {

using language::Aggregate;
using language::Constant;
using language::Expression;
using language::ExpressionPtr;
using language::Operation;
using storage::ValueType;

using Part = std::unique_ptr<Expression>;
Part constant(Constant value);
Part variable(const catalog::Variable& variable);
/// Belongs to the lowest entity of its parts, unless told.
Part node(Operation operation, ValueType type, std::vector<Part> parts,
          const catalog::Entity* entity = nullptr);
template <class... Parts>
std::vector<Part> parts(Parts... each) {
    std::vector<Part> result;
    (result.push_back(std::move(each)), ...);
    return result;
}
/// A deep copy, to use as a part.
Part copyOf(const Expression& expression);

/// A program of definitions over a database.
class DefineProgram {
public:
    explicit DefineProgram(catalog::Dictionary& dictionary) : dictionary_(dictionary) {}

    /// The expression of a condition or a number over an entity, as the language reads it.
    ExpressionPtr condition(const std::string& text);
    ExpressionPtr number(const std::string& text);
    /// A definition that is used; its value or aggregates are still to be set.
    language::Definition& add(const std::string& entity, const std::string& name, ValueType type);
    language::Definition& add(const std::string& entity, const std::string& name, ValueType type,
                              ExpressionPtr value);
    language::Definition& add(const std::string& entity, const std::string& name, ValueType type,
                              Aggregate aggregate);
    Aggregate aggregate(Aggregate::Kind kind, const std::string& over,
                        const std::string& value = {}, const std::string& filter = {},
                        const std::string& weight = {});

    /// Makes all with 1 and 2 threads and several sizes of blocks; throws where bytes differ.
    void make();
    void makeOnce(const execution::RunOptions& options);
    /// Values as texts: "." for a blank, "NA" for what the column itself keeps as NA.
    static std::vector<std::string> valuesOf(const catalog::Variable& variable);
    std::vector<std::string> made(ValueType type, const std::string& entity, ExpressionPtr value);
    std::vector<std::string> made(ValueType type, const std::string& entity, Aggregate aggregate);

    /// The program with a frequency of a variable.
    language::BoundProgram& withFrequencyOf(const catalog::Variable& variable,
                                            ExpressionPtr filter = {});

    language::BoundProgram bound;

private:
    const language::TableCommand& compiledTable(const std::string& text);

    catalog::Dictionary& dictionary_;
    std::vector<std::unique_ptr<language::BoundProgram>> compiled_;
};

/// A list of values written with blanks between them.
std::vector<std::string> listed(const std::string& text);

} // namespace kelx::test
