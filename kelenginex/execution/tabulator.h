// SPDX-License-Identifier: Apache-2.0
// Puts the records of a step into the cells of one table.
#pragma once

#include "execution/node.h"
#include "execution/record_filter.h"
#include "execution/table_cells.h"
#include "execution/table_maker.h"
#include "execution/weights.h"
#include "plan/plan.h"
#include "plan/same_expression.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

/// Sources of codes that tables of a pass share.
class SourcePool {
public:
    CodeSource& of(const language::Expression& expression);

private:
    plan::ExpressionMap<std::unique_ptr<CodeSource>> sources_;
};

/// One for each table and thread. A record whose weight or tally is blank, MV or NA is not counted.
/// Dimensions of entities far above the unit hold for long stretches of a step: each stretch is
/// counted by the other dimensions alone, into the cells that belong to it.
class Tabulator final : public TablePart {
public:
    Tabulator(const plan::PlannedTable& table, const Entity& unit, NodePool& nodes,
              SourcePool& sources);

    const TableShape& shape() const { return shape_; }
    /// What a part's cells will take; 0 where they are hashed.
    static std::size_t bytesFor(const plan::PlannedTable& table, const Entity& unit);
    /// Gives all that was added away; false where it was ended.
    bool giveTo(TableCells& total, const GoOn& goOn);
    std::size_t mostAtOnce() const override;
    /// By the table's own filter.
    bool mayPass(const plan::RecordRange& records) const override {
        return !filter_ || filter_->mayPass(records);
    }
    void add(Frames& frames, const std::uint8_t* mask) override;

private:
    /// Records begin to end - 1 of a step, whose cells are counted from `cell` on.
    struct Stretch {
        std::size_t begin, end;
        std::size_t cell;
    };
    struct Dimension {
        CodeSource* source;
        std::uint32_t stride;
    };
    void sortDimensions();
    bool isOneByte() const;
    const std::uint8_t* ownMask(Frames& frames, const std::uint8_t* mask);
    void findStretches(Frames& frames);
    void addCell(const Dimension& dimension, Frames& frames);
    void addWithoutCodes(const std::uint8_t* mask);
    void addBytes(Frames& frames, const std::uint8_t* mask);
    void addSmall(Frames& frames, const std::uint8_t* mask);
    void addDense(Frames& frames, const std::uint8_t* mask);
    void addParts(Frames& frames, const std::uint8_t* mask);
    void addSums(Frames& frames, const std::uint8_t* mask);
    void addHashed(Frames& frames, const std::uint8_t* mask);
    template <class Index>
    void makeIndex(Frames& frames, std::vector<Index>& index);

    const language::TableCommand& command_;
    std::vector<CodeSource*> sources_;
    Weights weights_;
    TableShape shape_;
    TableCells cells_;
    std::vector<WeightParts> parts_;     ///< of all cells, and of one for what is left out
    std::size_t lanes_ = 1;              ///< parts of a cell, side by side
    std::vector<Dimension> close_, far_; ///< dimensions without and with long runs
    const Entity* lowestFar_ = nullptr;
    std::unique_ptr<RecordFilter> filter_;
    std::vector<Stretch> stretches_;
    std::vector<std::uint8_t> mask_, index8_;
    std::vector<std::uint32_t> index32_;
    std::vector<std::vector<std::uint64_t>> numbers_;
};

} // namespace kelx::execution
