// SPDX-License-Identifier: Apache-2.0
// The measured values of a table's cells, for figures that need them all.
#pragma once

#include "execution/discard.h"
#include "execution/value_states.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

namespace kelx::execution {

class Progress;

/// Values that lie side by side: a part of a column in place, or copies.
struct ValueStretch {
    const double* values = nullptr;
    const double* weights = nullptr; ///< null where nothing is weighted
    std::uint64_t count = 0;
};

/// A part of a cell's values, short enough to be worked on without looking up.
struct ValuePiece {
    std::uint32_t cell = 0;
    std::size_t stretch = 0; ///< where it begins, and how far inside
    std::uint64_t offset = 0;
    std::uint64_t count = 0;
};

/// What stands among the values without being one, beside NaN; NaN for none.
struct Exclusions {
    double missing = std::numeric_limits<double>::quiet_NaN();
    double notApplicable = std::numeric_limits<double>::quiet_NaN();

    bool excludes(double value) const {
        return value != value || value == missing || value == notApplicable;
    }
};

/// Values by cell. Cells are numbered by whoever fills it.
class ValueLists {
public:
    static constexpr std::uint64_t mostInPiece = 1U << 18;

    Exclusions exclusions;
    bool mayExclude = false; ///< else every value is one
    bool weighted = false;

    /// Behind the cell's earlier ones. Owner is kept as long as the lists.
    void add(std::uint32_t cell, const ValueStretch& stretch);
    void keep(std::shared_ptr<const void> owner) { owners_.push_back(std::move(owner)); }
    /// To be called once, when all is added. Throws Cancelled.
    void group(std::size_t cells, Progress& progress);

    std::size_t cells() const { return begins_.size() - 1; }
    /// Values of a cell, excluded ones too.
    std::uint64_t size(std::size_t cell) const { return sizes_[cell]; }
    /// All values, cell by cell. Where pieces end does not depend on the stretches.
    /// Throws Cancelled.
    LargeVector<ValuePiece> pieces(Progress& progress) const;
    /// use(values, weights, count) for the parts of a piece in their order, each at most so long.
    template <class Use>
    void forEach(const ValuePiece& piece, std::uint64_t longest, Use use) const {
        std::uint64_t left = piece.count;
        std::uint64_t offset = piece.offset;
        for (std::size_t i = piece.stretch; left > 0; ++i, offset = 0) {
            const ValueStretch& stretch = stretches_[i];
            while (offset < stretch.count && left > 0) {
                const std::uint64_t count = std::min({stretch.count - offset, left, longest});
                use(stretch.values + offset,
                    stretch.weights != nullptr ? stretch.weights + offset : nullptr,
                    static_cast<std::size_t>(count));
                offset += count;
                left -= count;
            }
        }
    }
    /// use(value, weight) for each valid value of a cell; the weight is 1 where there is none.
    template <class Use>
    void forEachValue(std::uint32_t cell, Use use) const {
        for (std::size_t i = begins_[cell]; i < begins_[cell + 1]; ++i) {
            const ValueStretch& stretch = stretches_[i];
            for (std::uint64_t k = 0; k < stretch.count; ++k) {
                if (!exclusions.excludes(stretch.values[k]))
                    use(stretch.values[k], stretch.weights != nullptr ? stretch.weights[k] : 1.0);
            }
        }
    }
    /// Values from here and there, to tell roughly how they are spread.
    std::vector<double> sample() const;

private:
    LargeVector<std::uint32_t> added_; ///< cell of each stretch, until grouped
    LargeVector<ValueStretch> stretches_;
    LargeVector<std::size_t> begins_{0};
    LargeVector<std::uint64_t> sizes_;
    std::vector<std::shared_ptr<const void>> owners_;
};

} // namespace kelx::execution
