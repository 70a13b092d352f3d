// SPDX-License-Identifier: Apache-2.0
#include "output/table_lines.h"

#include <algorithm>

namespace kelx::output {

TableLines::TableLines(const RowTable& table, execution::Progress& progress)
    : table_(table), all_(table.places.size()) {
    for (std::size_t d = 0; d < all_.size(); ++d) {
        order(d, progress);
        split(d, progress);
    }
}

TableLines::Line TableLines::line(std::size_t dimension, std::size_t number) const {
    const Direction& direction = all_[dimension];
    return Line(direction.rows)
        .subspan(direction.begins[number], direction.begins[number + 1] - direction.begins[number]);
}

std::uint32_t TableLines::neighbour(std::size_t dimension, std::size_t row,
                                    std::uint32_t place) const {
    const Line members = line(dimension, numberOf(dimension, row));
    const auto found = std::lower_bound(members.begin(), members.end(), place,
                                        [&](std::uint32_t member, std::uint32_t wanted) {
                                            return table_.place(dimension, member) < wanted;
                                        });
    return found != members.end() && table_.place(dimension, *found) == place ? *found : none;
}

/// Rows of one line come to stand side by side.
void TableLines::order(std::size_t dimension, execution::Progress& progress) {
    std::vector<std::uint32_t>& rows = all_[dimension].rows;
    for (std::size_t row = 0; row < table_.rows(); ++row) {
        if (table_.place(dimension, row) <= table_.valid[dimension])
            rows.push_back(static_cast<std::uint32_t>(row));
    }
    if (dimension + 1 == all_.size())
        return; // as the rows are
    std::sort(rows.begin(), rows.end(), [&](std::uint32_t a, std::uint32_t b) {
        progress.check();
        for (std::size_t other = 0; other < all_.size(); ++other) {
            if (other != dimension && table_.place(other, a) != table_.place(other, b))
                return table_.place(other, a) < table_.place(other, b);
        }
        return table_.place(dimension, a) < table_.place(dimension, b);
    });
}

void TableLines::split(std::size_t dimension, execution::Progress& progress) {
    Direction& direction = all_[dimension];
    direction.numbers.assign(table_.rows(), none);
    for (std::size_t i = 0; i < direction.rows.size(); ++i) {
        progress.check();
        if (i == 0 || !onOneLine(dimension, direction.rows[i - 1], direction.rows[i]))
            direction.begins.push_back(static_cast<std::uint32_t>(i));
        direction.numbers[direction.rows[i]] =
            static_cast<std::uint32_t>(direction.begins.size() - 1);
    }
    direction.begins.push_back(static_cast<std::uint32_t>(direction.rows.size()));
}

bool TableLines::onOneLine(std::size_t dimension, std::uint32_t a, std::uint32_t b) const {
    for (std::size_t other = 0; other < all_.size(); ++other) {
        if (other != dimension && table_.place(other, a) != table_.place(other, b))
            return false;
    }
    return true;
}

} // namespace kelx::output
