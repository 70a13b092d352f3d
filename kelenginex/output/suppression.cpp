// SPDX-License-Identifier: Apache-2.0
#include "output/suppression.h"

#include "output/hidden_boxes.h"
#include "output/hidden_cycles.h"
#include "output/table_lines.h"

#include <algorithm>

namespace kelx::output {
namespace {

constexpr std::size_t mostOfCycles = 2; ///< dimensions in which a figure lies on so many lines

/// What is known of the hidden rows of a line.
struct HiddenOfLine {
    std::size_t rows = 0;
    std::uint64_t valid = 0;   ///< rows of valid categories
    std::uint64_t records = 0; ///< of those
    bool total = false;
    std::uint32_t fewest = TableLines::none; ///< visible row of the fewest records
};

class Suppressor {
public:
    Suppressor(RowTable& table, std::uint64_t least, execution::Progress& progress)
        : table_(table), least_(least), progress_(progress), lines_(table, progress) {}

    void complete() {
        if (lines_.dimensions() <= mostOfCycles)
            completeWith(HiddenCycles(table_, lines_, progress_));
        else
            completeWith(HiddenBoxes(table_, lines_, progress_));
    }

private:
    template <class Shapes>
    void completeWith(Shapes shapes) {
        do {
            while (completeLines())
                progress_.checkNow();
        } while (shapes.close());
    }

    bool completeLines() {
        bool any = false;
        for (std::size_t d = 0; d < lines_.dimensions(); ++d) {
            for (std::size_t number = 0; number < lines_.count(d); ++number)
                any = completeLine(d, lines_.line(d, number)) || any;
        }
        return any;
    }

    bool completeLine(std::size_t d, TableLines::Line line) {
        bool any = false;
        for (;;) {
            const HiddenOfLine hidden = hiddenOf(d, line);
            if (hidden.fewest == TableLines::none || isEnough(hidden))
                return any;
            table_.hidden[hidden.fewest] = 1;
            any = true;
        }
    }

    /// Every category that stands in a table has a record at least, so the smallest sum that the
    /// visible rows could leave would tell each of them.
    bool isEnough(const HiddenOfLine& hidden) const {
        if (hidden.rows == 0)
            return true;
        if (hidden.rows == 1 && lines_.dimensions() <= mostOfCycles)
            return false;
        return hidden.total || hidden.valid == 0 ||
               hidden.records >= std::max(least_, hidden.valid + 1);
    }

    HiddenOfLine hiddenOf(std::size_t d, TableLines::Line line) {
        HiddenOfLine result;
        for (const std::uint32_t row : line) {
            progress_.check();
            if (!table_.isHidden(row)) {
                if (result.fewest == TableLines::none ||
                    table_.records[row] < table_.records[result.fewest])
                    result.fewest = row;
                continue;
            }
            ++result.rows;
            result.total = result.total || lines_.isTotal(d, row);
            if (!lines_.isTotal(d, row)) {
                ++result.valid;
                result.records += table_.records[row];
            }
        }
        return result;
    }

    RowTable& table_;
    std::uint64_t least_;
    execution::Progress& progress_;
    TableLines lines_;
};

void hideSmall(RowTable& table, std::uint64_t least) {
    if (table.hidden.empty())
        table.hidden.assign(table.rows(), 0);
    for (std::size_t row = 0; row < table.rows(); ++row) {
        if (table.records[row] > 0 && table.records[row] < least)
            table.hidden[row] = 1;
    }
}

} // namespace

void suppress(RowTable& table, int least, execution::Progress& progress) {
    const auto wanted = static_cast<std::uint64_t>(std::max(least, 0));
    hideSmall(table, wanted);
    if (table.suppressed() == 0) {
        table.hidden.clear();
        return;
    }
    Suppressor(table, wanted, progress).complete();
    for (const auto& figures : table.figures) {
        for (std::size_t row = 0; row < figures->size(); ++row) {
            if (table.hidden[row] != 0)
                (*figures)[row] = std::monostate();
        }
    }
}

} // namespace kelx::output
