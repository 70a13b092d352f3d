// SPDX-License-Identifier: Apache-2.0
// Tells which records of which levels each row of a flat file begins.
#pragma once

#include "import/faults.h"
#include "import/flat_plan.h"

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

namespace kelx::tools {

/// Rows of one record must stand together: a key that differs from the row before begins a new
/// record, and one that was there before under the same parent is a duplicate. Memory is bounded
/// by the number of records under one parent.
class RowSplitter {
public:
    /// All outlive this. While the levels of some fields are still to be found, a row whose key is
    /// blank at a lower level is not looked at further.
    RowSplitter(RowSource& source, const FlatPlan& plan, Faults& faults, bool levelsKnown);

    /// The next row that begins a record. Rows that begin none are faults.
    bool next();
    /// The levels of this kind of row.
    const std::vector<std::size_t>& levels() const { return plan_.shapes[source_.shape()]; }
    std::size_t firstNew() const { return firstNew_; } ///< place in levels() of the first new one
    std::size_t depth() const { return depth_; } ///< the row says nothing of levels from here on
    std::uint64_t orphans(std::size_t level) const { return states_[level].orphans; }
    std::uint64_t duplicates(std::size_t level) const { return states_[level].duplicates; }
    std::uint64_t faultyRows() const { return faultyRows_; }
    std::uint64_t rowsRead() const { return rowsRead_; }

private:
    struct State {
        bool open = false;
        bool current = false; ///< rows of other kinds may lie under it
        std::string key;
        std::unordered_set<std::string> keysOfParent;
        std::uint64_t orphans = 0, duplicates = 0;
    };

    bool split();
    void markCurrent();
    bool splitLevel(std::size_t place);
    void readKey(const SourceValue& key, bool isInteger);
    bool keyIsBlank(std::size_t place);
    bool isEmptyFrom(std::size_t place) const;
    bool begin(std::size_t place, const std::string& key);
    void close(std::size_t level);
    bool refuse(std::uint64_t& counter, std::size_t field, const std::string& text);

    RowSource& source_;
    const FlatPlan& plan_;
    Faults& faults_;
    std::vector<State> states_;
    bool levelsKnown_;
    bool wasRefused_ = false;
    std::size_t firstNew_ = 0, depth_ = 0;
    std::uint64_t faultyRows_ = 0, rowsRead_ = 0;
    std::string keyText_;
};

} // namespace kelx::tools
