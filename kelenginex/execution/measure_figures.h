// SPDX-License-Identifier: Apache-2.0
// From what is known of a row's values to the figures of its measure.
#pragma once

#include "execution/result.h"
#include "execution/sum.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

namespace kelx::execution {

/// Sums of whole numbers are exact.
__extension__ using Wide = __int128;

/// What can be put together from parts of the values without the values themselves.
struct Totals {
    Sum sum;        ///< of weight times value; of reals without weight too
    Wide whole = 0; ///< of whole numbers without weight
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -std::numeric_limits<double>::infinity();
    std::int64_t lowestWhole = std::numeric_limits<std::int64_t>::max();
    std::int64_t highestWhole = std::numeric_limits<std::int64_t>::min();

    void join(const Totals& other);
};

/// What a measure asks for.
struct MeasureForm {
    language::TableKind kind = language::TableKind::Average;
    std::size_t parts = 2; ///< of quantiles; the median parts the values in 2
    bool whole = false;    ///< values are whole numbers or truth values
    bool weighted = false;

    explicit MeasureForm(const language::TableCommand& command);
    std::size_t figures() const;
    bool wantsTotals() const;    ///< sum, mean, minimum or maximum
    bool wantsQuantiles() const; ///< the median among them
    bool wantsSquares() const { return kind == language::TableKind::Stats; }
    bool wantsGini() const { return kind == language::TableKind::Gini; }
};

/// All that the figures of a row are made of; only what the form wants needs to be there.
struct RowValues {
    std::uint64_t records = 0;
    Sum weight; ///< where weighted
    Totals totals;
    double squares = 0;                ///< sum of weight times squared distance from the mean
    std::span<const double> quantiles; ///< NaN for none
    double gini = std::numeric_limits<double>::quiet_NaN();

    double cases(const MeasureForm& form) const;
    /// NaN where there is none.
    double mean(const MeasureForm& form) const;
};

/// Writes form.figures() figures.
void writeFigures(const MeasureForm& form, const RowValues& row, Figure* figures);

/// Where quantile i of so many parts lies among n > 0 ascending values, counted from 0: between
/// value `below` and the next one.
struct QuantilePlace {
    std::uint64_t below = 0;
    double share = 0;

    QuantilePlace(std::uint64_t n, std::size_t i, std::size_t parts);
    double between(double low, double high) const;
};

/// The running weight that weighted quantile i has reached. It is a little less than the exact one:
/// three weights of 0.1 reach a third with the first, which no sum of binary fractions says.
inline double quantileWeight(double all, std::size_t i, std::size_t parts) {
    constexpr double tolerance = 1e-12;
    return all * (static_cast<double>(i) / static_cast<double>(parts)) * (1 - tolerance);
}

} // namespace kelx::execution
