// SPDX-License-Identifier: Apache-2.0
// Measures made, their rows joined by hand, and what plain loops say.
#pragma once

#include "small_country.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kelx::test {

/// A measure as a program would ask for it.
struct MeasureQuestion {
    language::TableKind kind = language::TableKind::Average;
    std::string measure;
    std::string by;      ///< variables, with BY between them; none for one row
    std::string clauses; ///< FILTER and WEIGHT
    std::string settings;
    int parts = 4;
    std::string tally = {};
};

/// Compiled as a frequency, whose tally becomes the measure.
language::BoundProgram measureProgram(catalog::Dictionary& dictionary,
                                      const MeasureQuestion& question);

/// Figures of one row by its categories, "1|2"; "all" joins all cells, "even" every second one.
using MeasureRows = std::map<std::string, std::vector<execution::Figure>>;

/// With one setting of threads and blocks.
MeasureRows measureWith(catalog::Dictionary& dictionary, const MeasureQuestion& question,
                        const execution::RunOptions& options);
/// With 1 to 3 threads and the blocks; throws where any figure differs in a bit.
MeasureRows measure(catalog::Dictionary& dictionary, const MeasureQuestion& question,
                    const std::vector<std::size_t>& blocks = {1, 64, 65536});

/// A number; NaN for a blank.
double number(const execution::Figure& figure);

/// A valid value of a record that counts.
struct Case {
    double value = 0;
    double weight = 1;
};
/// The figures by their definitions, from cases in any order. NaN for none. A quantile has i of
/// parts.
struct Expected {
    explicit Expected(std::vector<Case> of, bool isWeighted);
    double cases() const;
    double sum() const;
    double mean() const { return sum() / cases(); }
    double quantile(int i, int parts) const;
    double variance() const;
    double gini() const;
    std::vector<double> stats() const; ///< in the order of Measured::figures()

    std::vector<Case> sorted;
    bool weighted;
};

} // namespace kelx::test
