// SPDX-License-Identifier: Apache-2.0
#include "output/hidden_cycles.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace kelx::output {

HiddenCycles::HiddenCycles(RowTable& table, const TableLines& lines, execution::Progress& progress)
    : table_(table), lines_(lines), progress_(progress) {
    std::size_t nodes = 1;
    for (std::size_t d = 0; d < lines.dimensions(); ++d)
        nodes += lines.count(d);
    part_.resize(nodes);
    tree_.resize(nodes);
}

HiddenCycles::Node HiddenCycles::nodeOf(std::size_t dimension, std::size_t row) const {
    if (dimension >= lines_.dimensions())
        return ground();
    const std::uint32_t line = lines_.numberOf(dimension, row);
    if (line == TableLines::none)
        return ground();
    return dimension == 0 ? line : line + static_cast<Node>(lines_.count(0));
}

bool HiddenCycles::close() {
    collectEdges();
    findParts();
    if (!countBridges())
        return false;
    hideBest();
    return true;
}

void HiddenCycles::collectEdges() {
    begins_.assign(part_.size() + 1, 0);
    const auto forEach = [&](const auto& take) {
        for (std::size_t row = 0; row < table_.rows(); ++row) {
            progress_.check();
            const Edge edge = edgeOf(row);
            if (!table_.isHidden(row) || edge.a == edge.b)
                continue;
            take(edge.a, row);
            take(edge.b, row);
        }
    };
    forEach([&](Node node, std::size_t) { ++begins_[node + 1]; });
    for (std::size_t node = 1; node < begins_.size(); ++node)
        begins_[node] += begins_[node - 1];
    edges_.resize(begins_.back());
    std::vector<std::size_t> at = begins_;
    forEach(
        [&](Node node, std::size_t row) { edges_[at[node]++] = static_cast<std::uint32_t>(row); });
}

void HiddenCycles::findParts() {
    found_.assign(part_.size(), 0);
    low_.assign(part_.size(), 0);
    parts_ = trees_ = founds_ = 0;
    for (Node node = 0; node < part_.size(); ++node) {
        if (found_[node] == 0)
            walk(node);
    }
}

/// Depth first, without recursion, as a chain may be as long as the table.
void HiddenCycles::walk(Node from) {
    const auto enter = [&](Node node, std::uint32_t edge) {
        found_[node] = low_[node] = ++founds_;
        tree_[node] = trees_;
        open_.push_back(node);
        steps_.push_back({node, edge, begins_[node]});
    };
    enter(from, TableLines::none);
    while (!steps_.empty()) {
        progress_.check();
        Step& step = steps_.back();
        if (step.next == begins_[step.node + 1]) {
            const Step done = step;
            steps_.pop_back();
            leave(done, steps_.empty() ? nullptr : &steps_.back());
            continue;
        }
        const std::uint32_t row = edges_[step.next++];
        if (row == step.edge)
            continue;
        const Edge edge = edgeOf(row);
        const Node other = edge.a == step.node ? edge.b : edge.a;
        if (found_[other] == 0)
            enter(other, row);
        else
            low_[step.node] = std::min(low_[step.node], found_[other]);
    }
    ++trees_;
}

void HiddenCycles::leave(const Step& step, const Step* before) {
    if (before != nullptr)
        low_[before->node] = std::min(low_[before->node], low_[step.node]);
    if (low_[step.node] != found_[step.node])
        return;
    Node node = 0;
    do { // all that was found from here on and is of no other part
        node = open_.back();
        open_.pop_back();
        part_[node] = parts_;
    } while (node != step.node);
    ++parts_;
}

bool HiddenCycles::countBridges() {
    bridges_.assign(parts_, 0);
    bool any = false;
    for (std::size_t row = 0; row < table_.rows(); ++row) {
        const Edge edge = edgeOf(row);
        if (!table_.isHidden(row) || part_[edge.a] == part_[edge.b])
            continue;
        ++bridges_[part_[edge.a]];
        ++bridges_[part_[edge.b]];
        any = true;
    }
    return any;
}

/// Each part that hangs on one bridge gets another way out: by the row of fewest records, if it
/// can be one that leads back into what it hangs on.
void HiddenCycles::hideBest() {
    using Cost = std::tuple<bool, std::uint64_t, std::uint32_t>;
    constexpr Cost nothing{true, UINT64_MAX, TableLines::none};
    std::vector<Cost> best(parts_, nothing);
    for (std::size_t row = 0; row < table_.rows(); ++row) {
        progress_.check();
        const Edge edge = edgeOf(row);
        if (table_.isHidden(row) || part_[edge.a] == part_[edge.b])
            continue;
        const Cost cost{tree_[edge.a] != tree_[edge.b], table_.records[row],
                        static_cast<std::uint32_t>(row)};
        for (const Node node : {edge.a, edge.b})
            best[part_[node]] = std::min(best[part_[node]], cost);
    }
    std::vector<bool> helped(parts_);
    helped[part_[ground()]] = true;
    for (std::uint32_t part = 0; part < parts_; ++part) {
        if (bridges_[part] != 1 || helped[part])
            continue;
        if (best[part] == nothing)
            throw std::logic_error("a hidden figure cannot be protected");
        const std::uint32_t row = std::get<2>(best[part]);
        table_.hidden[row] = 1;
        helped[part_[edgeOf(row).a]] = helped[part_[edgeOf(row).b]] = true;
    }
}

} // namespace kelx::output
