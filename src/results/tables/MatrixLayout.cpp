// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/MatrixLayout.h"

#include "results/tables/CrossTable.h"

namespace {

enum Variable : std::size_t { OfBlocks, OfRows, OfColumns };

class Matrix {
public:
    Matrix(TKelOutput& output, const TableViewConfig& options, const TablePreferences& preferences)
        : table_(output, options, preferences),
          blocks_(arrangedColumns(table_.pivot().categories(OfBlocks), options)),
          width_(std::ssize(table_.columns())), parts_(table_.pivot().categories(OfRows).size()) {
        findParts();
    }

    bool fits() const {
        return CrossTable::fits(std::ssize(parts_), 1 + std::ssize(blocks_) * width_);
    }

    TableLayout layOut() {
        table_.addRowVariable(OfRows, layout_);
        for (const CrossColumn& block : blocks_)
            for (const CrossColumn& column : table_.columns())
                addColumn(block, column);
        if (width_ > 0 && !blocks_.empty())
            addHeader();
        addRows();
        return std::move(layout_);
    }

private:
    /// Rows of the pivot by category of the second variable.
    void findParts() {
        for (const std::uint32_t row : table_.rows())
            parts_[table_.pivot().categoryOf(row, OfRows)].push_back(row);
    }

    void addColumn(const CrossColumn& block, const CrossColumn& column) {
        const auto joined = [](const QString& a, const QString& b) { return a + " / " + b; };
        layout_.columnHeaders += joined(block.heading(), column.heading());
        layout_.columnNames += joined(block.name(), column.name());
        layout_.columnLabels += joined(block.label(), column.label());
        layout_.textColumns.push_back(false);
    }

    void addHeader() {
        HeaderRows& header = layout_.header;
        const auto width = static_cast<int>(width_);
        header.startRow();
        header.add(table_.heading(OfRows), 0, 1, 4);
        header.add(table_.heading(OfBlocks), 1, width * static_cast<int>(blocks_.size()));
        header.startRow();
        for (int i = 0; i < std::ssize(blocks_); ++i)
            header.add(blocks_[static_cast<std::size_t>(i)].heading(), 1 + i * width, width);
        header.startRow();
        for (int i = 0; i < std::ssize(blocks_); ++i)
            header.add(table_.heading(OfColumns), 1 + i * width, width);
        header.startRow();
        for (int i = 0; i < width * std::ssize(blocks_); ++i)
            header.add(table_.columns()[static_cast<std::size_t>(i % width)].heading(), 1 + i);
    }

    void addRows() {
        const auto& categories = table_.pivot().categories(OfRows);
        layout_.cells.reserve(std::ssize(parts_),
                              std::ssize(parts_) * (1 + std::ssize(blocks_) * width_));
        for (std::size_t category = 0; category < parts_.size(); ++category) {
            if (parts_[category].empty())
                continue;
            layout_.cells.startRow();
            layout_.cells.add(std::string_view(categories[category].rowText()));
            addFigures(parts_[category]);
        }
    }

    void addFigures(const std::vector<std::uint32_t>& rows) {
        std::vector<std::uint32_t> rowOfBlock(table_.pivot().categories(OfBlocks).size(),
                                              Pivot::none);
        for (const std::uint32_t row : rows)
            rowOfBlock[table_.pivot().categoryOf(row, OfBlocks)] = row;
        for (const CrossColumn& block : blocks_)
            table_.addFigures(rowOfBlock[block.number], layout_.cells);
    }

    CrossTable table_;
    std::vector<CrossColumn> blocks_;
    std::int64_t width_; ///< columns of a block
    std::vector<std::vector<std::uint32_t>> parts_;
    TableLayout layout_;
};

} // namespace

std::optional<TableLayout> matrixLayout(TKelOutput& output, const TableViewConfig& options,
                                        const TablePreferences& preferences) {
    Matrix matrix(output, options, preferences);
    return matrix.fits() ? std::optional(matrix.layOut()) : std::nullopt;
}
