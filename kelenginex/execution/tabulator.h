// SPDX-License-Identifier: Apache-2.0
// Puts the records of a step into the cells of one table.
#pragma once

#include "execution/node.h"
#include "execution/record_filter.h"
#include "execution/table_cells.h"
#include "execution/table_maker.h"
#include "plan/plan.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace kelx::execution {

/// Sources of codes that tables of a pass share.
class SourcePool {
public:
    CodeSource& of(const language::Expression& expression);

private:
    std::vector<std::pair<const language::Expression*, std::unique_ptr<CodeSource>>> sources_;
};

/// One for each table and thread. A record whose weight or tally is blank, MV or NA is not counted.
class Tabulator final : public TablePart {
public:
    Tabulator(const plan::PlannedTable& table, const Entity& unit, NodePool& nodes,
              SourcePool& sources);

    const TableShape& shape() const { return shape_; }
    TableCells& cells() { return cells_; }
    /// By the table's own filter.
    bool mayPass(std::size_t block) const override { return !filter_ || filter_->mayPass(block); }
    void add(Frames& frames, const std::uint8_t* mask) override;

private:
    const std::uint8_t* ownMask(Frames& frames, const std::uint8_t* mask);
    Node* factor(const language::ExpressionPtr& expression, NodePool& nodes) const;
    const std::vector<std::uint32_t>& runEnds(Frames& frames);
    void findWeights(Frames& frames);
    void multiplyBy(Node& factor, Frames& frames);
    void dropInvalid(const Vector& values, Frames& frames);
    void addBytes(Frames& frames, const std::uint8_t* mask);
    void addSmall(Frames& frames, const std::uint8_t* mask);
    void addDense(Frames& frames, const std::uint8_t* mask);
    double* recordWeights(Frames& frames);
    void addSums(Frames& frames, const std::uint8_t* mask);
    void addHashed(Frames& frames, const std::uint8_t* mask);
    template <class Index>
    void makeIndex(Frames& frames, std::vector<Index>& index);

    const language::TableCommand& command_;
    const Entity* unit_;
    const Entity* weighted_; ///< whose records have the weights; null where one holds for all
    std::vector<CodeSource*> sources_;
    std::unique_ptr<RecordFilter> filter_;
    Node* weight_ = nullptr;
    Node* tally_ = nullptr;
    TableShape shape_;
    TableCells cells_;
    std::vector<std::uint8_t> mask_, index8_;
    std::vector<std::uint32_t> index32_, onlyEnd_;
    std::vector<double> weights_, spread_;
    std::vector<std::vector<std::uint64_t>> numbers_;
};

} // namespace kelx::execution
