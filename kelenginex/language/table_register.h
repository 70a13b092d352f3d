// SPDX-License-Identifier: Apache-2.0
// The tables of a program by their names, and what a table needs to know that is made of others.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kelx::language {

/// What a table is beside its command.
struct TableFacts {
    std::vector<const Variable*> dimensions;
    const Entity* areaBreak = nullptr; ///< in force: one more dimension before the others
    bool oneFigure = true;             ///< in each cell
    bool isKept = false;               ///< has OUTFILE, OUTGRAPH or SAVE
    bool isOperand = false;
    bool isColumn = false;
    bool ownWeight = false; ///< by a clause

    std::size_t dimension() const { return dimensions.size() + (areaBreak != nullptr ? 1 : 0); }
};

class TableRegister {
public:
    static constexpr std::size_t mostTables = 10000;
    static constexpr std::size_t mostColumns = 100000; ///< of all lists

    TableRegister(CheckerContext& context, BoundProgram& program)
        : context_(context), program_(program) {}

    /// The name of table `number` of the `count` that a command makes; a second table of a name is
    /// reported.
    std::string nameFor(const ast::Table& table, std::size_t number, std::size_t count);
    // False where there would be too many or too much, which is reported once for the program.
    bool hasRoom(std::size_t count, Position position);
    bool hasRoomFor(const TableCommand& command, Position position);
    bool hasRoomForColumn(Position position);
    void add(TableCommand command, TableFacts facts);
    /// The tables of a command with a fault: their use is no further fault.
    void expect(const ast::Table& table);

    /// By name, in any case, the last one where there are several.
    std::optional<std::size_t> find(const std::string& name) const;
    /// The tables that a list means which names one `times` times: as many in their order, those
    /// that no list has taken before first, or all times the only one of that name. Empty where
    /// that is not clear.
    std::vector<std::size_t> findAll(const std::string& name, std::size_t times) const;
    bool isExpected(const std::string& name) const;
    std::vector<std::string> names() const; ///< as written
    /// What else a name may mean: empty, or a sentence with a blank before it.
    std::string hintFor(const std::string& name) const;
    /// Reported where there is none.
    std::optional<std::size_t> findOrReport(const ast::Name& name);

    std::size_t size() const { return facts_.size(); }
    const TableCommand& table(std::size_t number) const { return program_.tables[number]; }
    const TableFacts& facts(std::size_t number) const { return facts_[number]; }
    void useAsColumn(std::size_t number);
    /// That several tables have one name was meant.
    void forgive(std::size_t number) { again_.erase(number); }
    void tellNames(); ///< of which a second table was made, at the end of the program
    void useAsOperand(std::size_t number);

private:
    std::string shortName(const std::string& kind);
    void settle(std::size_t number);

    CheckerContext& context_;
    BoundProgram& program_;
    std::vector<TableFacts> facts_;                          ///< of each table of the program
    std::map<std::string, std::vector<std::size_t>> byName_; ///< in lower case
    std::set<std::string> names_;                            ///< given, in lower case
    std::set<std::string> expected_;                         ///< in lower case
    struct NameAgain {
        std::string name;
        Position position;
    };
    std::map<std::size_t, NameAgain> again_;  ///< tables with a name that another has
    std::map<std::string, int> numbered_;     ///< of each kind
    std::map<std::string, std::size_t> made_; ///< tables of a named command that makes several
    std::size_t columns_ = 0;
    bool isFull_ = false;
};

} // namespace kelx::language
