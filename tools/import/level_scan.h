// SPDX-License-Identifier: Apache-2.0
// The first reading of a level's file: everything is checked, nothing is written.
#pragma once

#include "import/codebook.h"
#include "import/csv_source.h"
#include "import/faults.h"
#include "import/key_index.h"
#include "import/typed_value.h"

#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace kelx::tools {

/// A level's file with its columns matched to its fields.
class LevelFile {
public:
    /// Reads the header. Throws LocatedError where columns and fields do not match.
    LevelFile(const std::filesystem::path& file, const LevelPlan& plan, const Codebook& book,
              Faults& faults, const BytesRead& onRead, std::optional<char> separator);

    bool next(); ///< the next record, with as many fields as the header
    /// A value that does not fit is a fault, and blank where that is tolerated.
    TypedValue value(std::size_t column) const;
    std::string text(std::size_t column) const { return std::string(csv_.value(column).text); }
    [[noreturn]] void fail(std::size_t column, const std::string& text) const {
        throw csv_.faultAt(column, text);
    }
    const std::string& name() const { return csv_.name(); }
    std::uint64_t faultyValues(std::size_t column) const { return faulty_[column]; }
    std::uint64_t faultyRows() const { return faultyRows_; }
    const std::vector<const FieldPlan*>& columns() const { return columns_; }
    /// Columns of the parent keys, in the order of the codebook, from the top down.
    const std::vector<std::size_t>& parentKeys() const { return parentKeys_; }
    std::optional<std::size_t> keyColumn() const { return keyColumn_; }

private:
    void bindColumns(const LevelPlan& plan);

    CsvSource csv_;
    Faults& faults_;
    mutable std::vector<std::uint64_t> faulty_; ///< values of each column
    std::uint64_t faultyRows_ = 0;
    std::vector<const FieldPlan*> columns_;
    std::vector<std::size_t> parentKeys_;
    std::optional<std::size_t> keyColumn_;
};

/// A level after the first reading.
class LevelScan {
public:
    /// Where a level stands among the others. The chain has the levels above it that have a file,
    /// from the top down; they outlive this.
    struct Position {
        std::vector<const LevelScan*> chain;
        bool isRoot = false;
    };

    LevelScan(const std::filesystem::path& file, const LevelPlan& plan, const Codebook& book,
              Position position, Faults& faults, const BytesRead& onRead,
              std::optional<char> separator = {});

    const LevelPlan& plan() const { return plan_; }
    const std::filesystem::path& file() const { return file_; }
    std::optional<char> separator() const { return separator_; }
    std::uint64_t records() const { return records_; }
    const std::vector<ColumnSummary>& columns() const { return columns_; }
    /// Number of records under each record of the level above (or under the root).
    const std::vector<std::uint64_t>& childCounts() const { return childCounts_; }
    /// Row of the file for each record; empty where the rows lie in the right order already.
    const std::vector<std::uint64_t>& order() const { return order_; }
    /// Rows that were left out for their faults, ascending.
    const std::vector<std::uint64_t>& leftOut() const { return leftOut_; }
    std::uint64_t orphans() const { return orphans_; }
    std::uint64_t duplicates() const { return duplicates_; }
    std::uint64_t faultyRows() const { return faultyRows_; }

private:
    void readRow(const LevelFile& level);
    void noteValue(ColumnSummary& summary, const LevelFile& level, std::size_t column);
    bool hasLabel(const ColumnSummary& summary, const TypedValue& value, std::size_t column) const;
    void noteKey(const LevelFile& level, std::uint64_t parent);
    bool place(const LevelFile& level, std::uint64_t& parent);
    std::uint64_t parentOf(const LevelFile& level);
    std::uint64_t lookUpParent(const LevelFile& level) const;
    std::optional<std::int64_t> keyNumber(std::string_view text) const;
    static constexpr std::uint64_t ambiguous = std::numeric_limits<std::uint64_t>::max();
    std::optional<std::uint64_t> rowWithKey(const LevelFile& child, std::size_t column,
                                            std::int64_t key) const;
    void collectLabels(const FieldPlan& field);
    void checkParentKeys(const LevelFile& level) const;
    void arrange();

    const LevelPlan& plan_;
    const std::string bookName_;
    std::filesystem::path file_;
    std::optional<char> separator_;
    Position position_;
    Faults& faults_;
    std::uint64_t records_ = 0;
    std::uint64_t rows_ = 0;
    std::uint64_t orphans_ = 0, duplicates_ = 0, faultyRows_ = 0;
    std::vector<std::uint64_t> leftOut_;
    std::vector<ColumnSummary> columns_;
    struct Labels {
        std::vector<std::int64_t> integers; ///< ascending
        std::unordered_set<std::string> texts;
    };
    std::vector<Labels> labels_; ///< labelled codes, of coded columns
    KeyIndex keys_;
    TextNumbers keyTexts_;
    std::vector<std::uint64_t> parents_; ///< of each row, while reading
    std::vector<std::uint64_t> childCounts_;
    std::vector<std::uint64_t> order_;
    std::vector<std::uint64_t> recordOfRow_; ///< empty as order_
    /// Rows by their key alone, once a level below asks so; `ambiguous` for repeated ones.
    mutable std::unordered_map<std::int64_t, std::uint64_t> rowByKey_;
    std::vector<std::string> lastParentKey_;
    std::uint64_t lastParent_ = 0;
    bool lastParentKnown_ = false;
};

} // namespace kelx::tools
