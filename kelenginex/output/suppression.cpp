// SPDX-License-Identifier: Apache-2.0
#include "output/suppression.h"

#include <algorithm>
#include <numeric>

namespace kelx::output {
namespace {

/// The lines of all dimensions.
class Lines {
public:
    Lines(RowTable& table, execution::Progress& progress)
        : table_(table), progress_(progress), orders_(table.places.size()) {
        for (std::size_t d = 0; d < orders_.size(); ++d)
            order(d);
    }

    /// Hides a second row where a line has only one; true where there was such a line.
    bool protect() {
        bool any = false;
        for (std::size_t d = 0; d < orders_.size(); ++d)
            any = protect(d) || any;
        return any;
    }

private:
    using Order = std::vector<std::uint32_t>;

    /// Rows that differ in dimension d alone come to stand side by side, in its order.
    void order(std::size_t d) {
        orders_[d].resize(table_.rows());
        std::iota(orders_[d].begin(), orders_[d].end(), 0U);
        if (d + 1 == orders_.size())
            return; // as the rows are
        std::sort(orders_[d].begin(), orders_[d].end(), [&](std::uint32_t a, std::uint32_t b) {
            progress_.check();
            for (std::size_t other = 0; other < orders_.size(); ++other) {
                if (other != d && table_.place(other, a) != table_.place(other, b))
                    return table_.place(other, a) < table_.place(other, b);
            }
            return table_.place(d, a) < table_.place(d, b);
        });
    }

    bool onOneLine(std::size_t d, std::uint32_t a, std::uint32_t b) const {
        for (std::size_t other = 0; other < orders_.size(); ++other) {
            if (other != d && table_.place(other, a) != table_.place(other, b))
                return false;
        }
        return true;
    }

    bool protect(std::size_t d) {
        const Order& order = orders_[d];
        bool any = false;
        for (std::size_t begin = 0; begin < order.size();) {
            progress_.check();
            std::size_t end = begin; // of the valid categories and their total
            while (end < order.size() && table_.place(d, order[end]) <= table_.valid[d] &&
                   onOneLine(d, order[begin], order[end]))
                ++end;
            any = protect(order, begin, end) || any;
            begin = std::max(end, begin + 1); // MV and NA stand on no line
        }
        return any;
    }

    bool protect(const Order& order, std::size_t begin, std::size_t end) {
        std::size_t hidden = 0;
        const std::uint32_t* fewest = nullptr;
        for (std::size_t i = begin; i < end; ++i) {
            if (table_.hidden[order[i]] != 0)
                ++hidden;
            else if (fewest == nullptr || table_.records[order[i]] < table_.records[*fewest])
                fewest = &order[i];
        }
        if (hidden != 1 || fewest == nullptr)
            return false;
        table_.hidden[*fewest] = 1;
        return true;
    }

    RowTable& table_;
    execution::Progress& progress_;
    std::vector<Order> orders_;
};

} // namespace

void suppress(RowTable& table, int least, execution::Progress& progress) {
    if (table.hidden.empty())
        table.hidden.assign(table.rows(), 0);
    for (std::size_t row = 0; row < table.rows(); ++row) {
        if (table.records[row] > 0 && least > 0 &&
            table.records[row] < static_cast<std::uint64_t>(least))
            table.hidden[row] = 1;
    }
    if (table.suppressed() == 0) {
        table.hidden.clear();
        return;
    }
    Lines lines(table, progress);
    while (lines.protect())
        progress.checkNow();
    for (const auto& figures : table.figures) {
        for (std::size_t row = 0; row < figures->size(); ++row) {
            if (table.hidden[row] != 0)
                (*figures)[row] = std::monostate();
        }
    }
}

} // namespace kelx::output
