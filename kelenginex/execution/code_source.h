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
    std::uint64_t size = 1;   ///< codes from lowest on; a blank is counted as number `size`
    bool mayBeBlank = true;   ///< else there is no such number
    bool hasLongRuns = false; ///< the same code holds for long stretches of the unit's records

    std::uint64_t numbers() const { return mayBeBlank ? size + 1 : size; }
};

/// A variable's codes, or the record numbers of an area's entity, spread to the unit's records.
/// One for each thread.
class CodeSource {
public:
    /// The expression is a variable, compound code or record number.
    explicit CodeSource(const language::Expression& expression);

    /// Whose records have the codes.
    const Entity& entity() const { return *entity_; }
    const CodeDomain& domain() const { return domain_; }
    bool isReal() const { return domain_.physical == storage::Physical::Real64; }
    /// Codes of the current frame of the base, in the domain's physical form; reals are doubles.
    const void* codes(Frames& frames) { return codes(frames, frames.base()); }
    /// The same for the frame of an entity between the own one and the base.
    const void* codes(Frames& frames, const Entity& at);
    /// The same as numbers that tell values apart: blanks are all ones, both zeros are one. A
    /// column's own code for NA stays what it is, here and in codes().
    void numbers(Frames& frames, std::vector<std::uint64_t>& out) {
        numbers(frames, frames.base(), out);
    }
    void numbers(Frames& frames, const Entity& at, std::vector<std::uint64_t>& out);

private:
    /// Codes for the records of an entity below.
    struct Spread {
        const Entity* at;
        std::vector<std::byte> bytes;
        std::uint64_t serial = 0;
    };
    const void* own(Frames& frames);
    const void* spread(Frames& frames, Spread& to);

    const Entity* entity_;
    std::shared_ptr<const storage::Column> column_; ///< null: record numbers
    CodeDomain domain_;
    storage::ColumnScratch scratch_;
    std::vector<std::uint64_t> recordNumbers_;
    std::vector<Spread> spread_;
    std::uint64_t serial_ = 0;
    const void* own_ = nullptr;
};

} // namespace kelx::execution
