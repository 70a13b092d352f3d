// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TotalsRow.h"

#include "results/tables/CellNumber.h"

#include <charconv>

namespace {

class ColumnSum {
public:
    void add(std::string_view text) {
        if (!isDigitsOnly(text)) {
            isSound_ = isSound_ && !readNumber(text);
            return;
        }
        std::int64_t number = 0;
        const auto end = text.data() + text.size();
        isSound_ = isSound_ && std::from_chars(text.data(), end, number).ec == std::errc() &&
                   !__builtin_add_overflow(sum_, number, &sum_);
    }
    std::string text() const {
        return isSound_ && sum_ != 0 ? std::to_string(sum_) + ".000000" : std::string();
    }

private:
    std::int64_t sum_ = 0;
    bool isSound_ = true; ///< the column has a sum
};

} // namespace

void addTotalsRow(CellTexts& cells, const std::vector<bool>& textColumns) {
    std::vector<ColumnSum> sums(textColumns.size());
    for (qsizetype row = 0; row < cells.rows(); ++row)
        for (std::size_t column = 1; column < sums.size(); ++column)
            if (!textColumns[column])
                sums[column].add(cells.at(row, static_cast<qsizetype>(column)));
    cells.startRow();
    cells.add(std::string_view("Total"));
    for (std::size_t column = 1; column < sums.size(); ++column)
        cells.add(sums[column].text());
}
