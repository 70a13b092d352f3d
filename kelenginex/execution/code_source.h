// SPDX-License-Identifier: Apache-2.0
// The codes of a table's dimension, one for each record that is counted.
#pragma once

#include "execution/frames.h"
#include "language/bound.h"
#include "storage/column.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

/// What a dimension's codes are.
struct CodeDomain {
    storage::Physical physical = storage::Physical::Code8;
    std::uint64_t lowest = 0;
    std::uint64_t size = 1; ///< codes from lowest on; a blank is counted as number `size`
};

/// A variable's codes, or the record numbers of an area's entity, spread to the unit's records.
/// One for each thread.
class CodeSource {
public:
    /// Throws std::runtime_error where the expression is neither a variable nor a compound code.
    explicit CodeSource(const language::Expression& expression);

    const CodeDomain& domain() const { return domain_; }
    bool isReal() const { return domain_.physical == storage::Physical::Real64; }
    /// Codes of the current frame of the base, in the domain's physical form; reals are doubles.
    const void* codes(Frames& frames);
    /// The same as numbers that tell values apart: blanks are all ones, both zeros are one. A
    /// column's own code for NA stays what it is, here and in codes().
    void numbers(Frames& frames, std::vector<std::uint64_t>& out);

private:
    const void* own(const Frame& frame);

    const Entity* entity_;
    std::shared_ptr<const storage::Column> column_; ///< null: record numbers
    CodeDomain domain_;
    storage::ColumnScratch scratch_;
    std::vector<std::uint64_t> recordNumbers_;
    std::vector<std::byte> spread_;
    std::uint64_t serial_ = 0;
    const void* current_ = nullptr;
};

} // namespace kelx::execution
