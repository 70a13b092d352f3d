// SPDX-License-Identifier: Apache-2.0
// Where the tables of a run are put together.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "output/layout.h"
#include "output/rows.h"
#include "output/table.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace kelx::output {

/// Takes results in any order, and makes each table as soon as all that it is made of is there.
/// What no table needs any more is released.
class Workshop {
public:
    Workshop(const language::BoundProgram& program, const catalog::Dictionary& dictionary);

    /// Throws std::runtime_error where a table cannot be laid out, and execution::Cancelled.
    void take(std::size_t index, execution::TableResult result, execution::Progress& progress);
    /// The outputs, in the program's order. All results must have been taken.
    std::vector<Table> finish(execution::Progress& progress);

private:
    using Command = language::TableCommand;

    const Command& command(std::size_t index) const { return program_.tables[index]; }
    bool canBeMade(std::size_t index) const;
    void makeAllThatCanBe(execution::Progress& progress);
    void make(std::size_t index, execution::Progress& progress);
    void keep(std::size_t index, RowTable rows, execution::Progress& progress);
    void show(std::size_t index, Laid laid, double seconds, execution::Progress& progress);
    void release(std::size_t index);
    FindRows findRows(const Command& reader, execution::Progress& progress);

    void findCircumstances();

    const language::BoundProgram& program_;
    const catalog::Dictionary& dictionary_;
    std::vector<std::vector<std::size_t>> sources_; ///< tables that each one is made of
    std::vector<std::size_t> readers_;              ///< tables that are still to be made of each
    std::vector<std::size_t> waiting_;              ///< not made yet, of those made of others
    std::vector<Circumstances> circumstances_;
    std::vector<bool> made_;
    std::vector<std::shared_ptr<RowTable>> rows_;
    std::vector<std::shared_ptr<execution::ListResult>> lists_; ///< waiting for their columns
    std::vector<double> listSeconds_;
    std::vector<std::optional<Table>> tables_;
    std::vector<std::shared_ptr<RowTable>> copies_; ///< of the table that is being made
};

} // namespace kelx::output
