// SPDX-License-Identifier: Apache-2.0
// From rows to a table with its fields, and what a table says of itself.
#pragma once

#include "output/rows.h"
#include "output/sorting.h"
#include "output/table.h"

#include <string_view>

namespace kelx::output {

/// What is told of the records behind a table; a null is not told.
struct Circumstances {
    const catalog::Entity* unit = nullptr;
    std::string_view area;
    const language::RunSettings* run = nullptr; ///< its universal filter counts
    const language::Expression* filter = nullptr;
    const language::Expression* weight = nullptr;
    const language::Expression* tally = nullptr;

    explicit Circumstances(const language::TableCommand& command);
    /// Leaves out what the others have otherwise. Areas are told in any case.
    void keepCommon(const Circumstances& others);
    void tellIn(Table& table) const;
};

/// Name, area, filter and the like. The unit stays empty where the command has none.
Table described(const language::TableCommand& command, const catalog::Dictionary& dictionary);

/// Label, else name.
std::string headingOf(const catalog::Entity& entity);
/// Name and label of what is measured or listed.
TableVariable variableOf(const language::Expression& expression);
/// All names that a command may call a variable by.
void addNames(const TableVariable& variable, std::size_t column, SortGuide& guide);

/// Frequencies, counts, measures and what TABOP made.
Laid layRows(const RowTable& rows, const catalog::Dictionary& dictionary,
             execution::Progress& progress);
/// An area list or a view. The tables of its columns are found by their numbers.
using FindRows = std::function<const RowTable&(std::size_t table)>;
Laid layList(const language::TableCommand& command, execution::ListResult list,
             const FindRows& tables, const catalog::Dictionary& dictionary,
             execution::Progress& progress);
/// Tables side by side.
Laid layTablist(const language::TableCommand& command, const FindRows& tables,
                const catalog::Dictionary& dictionary, execution::Progress& progress);

/// TABOP: the figures of tables worked out row by row. Throws std::runtime_error where they are of
/// different shapes.
RowTable operated(const language::TableCommand& command, const FindRows& tables,
                  execution::Progress& progress);

} // namespace kelx::output
