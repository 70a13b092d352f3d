// SPDX-License-Identifier: Apache-2.0
// Finds what can be worked out of a table of one or two dimensions although it is hidden.
#pragma once

#include "output/table_lines.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::output {

/// The lines as nodes and the rows as edges between the two lines that they lie on; what lies on
/// one line or none goes to a ground that adds up to nothing known. A hidden figure can be raised
/// where others on a cycle of hidden edges are lowered and raised in turn, so those that are no
/// part of any cycle, the bridges, are what the visible figures tell.
class HiddenCycles {
public:
    /// The table has at most two dimensions. Both must outlive it.
    HiddenCycles(RowTable& table, const TableLines& lines, execution::Progress& progress);

    /// Hides rows so that bridges become parts of cycles; false where there is no bridge. More
    /// bridges may be left, or new ones made.
    bool close();

private:
    using Node = std::uint32_t;
    struct Edge {
        Node a = 0, b = 0;
    };
    /// Where a walk stands in a node.
    struct Step {
        Node node;
        std::uint32_t edge; ///< by which it came: a row
        std::size_t next;   ///< among the node's edges
    };

    Node ground() const { return static_cast<Node>(part_.size() - 1); }
    Node nodeOf(std::size_t dimension, std::size_t row) const;
    Edge edgeOf(std::size_t row) const { return {nodeOf(0, row), nodeOf(1, row)}; }
    void collectEdges();
    void findParts();
    void walk(Node from);
    void leave(const Step& step, const Step* before);
    bool countBridges();
    void hideBest();

    RowTable& table_;
    const TableLines& lines_;
    execution::Progress& progress_;
    std::vector<std::size_t> begins_;  ///< of each node's edges
    std::vector<std::uint32_t> edges_; ///< rows, by node
    std::vector<std::uint32_t> found_; ///< order in which the walk found a node, from 1
    std::vector<std::uint32_t> low_;   ///< earliest node in reach without the edge it came by
    std::vector<Node> open_;           ///< found, of no part yet
    std::vector<Step> steps_;
    std::vector<std::uint32_t> part_;    ///< of each node: what holds together without its bridges
    std::vector<std::uint32_t> tree_;    ///< of each node: what hangs together
    std::vector<std::uint32_t> bridges_; ///< of each part
    std::uint32_t parts_ = 0, trees_ = 0, founds_ = 0;
};

} // namespace kelx::output
