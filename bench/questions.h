// SPDX-License-Identifier: Apache-2.0
// Eight questions that a census is asked every day, and how the engine answers them.
#pragma once

#include "catalog/model.h"
#include "language/bound.h"
#include "output/run.h"

#include <map>
#include <string>
#include <vector>

namespace kelx::bench {

/// Figures by their codes, "3|1"; "MV" and "NA" for the markers. Totals are left out.
using Answer = std::map<std::string, double>;

struct Question {
    const char* name;
    const char* program;
};

const std::vector<Question>& questions();

/// A question made ready to be asked again and again. Throws std::runtime_error with what the
/// engine says where it cannot answer.
class EngineQuestion {
public:
    EngineQuestion(catalog::Dictionary& dictionary, const Question& question);

    /// Makes the tables, laid out as for any output.
    void run(unsigned threads);
    /// Of the last run.
    Answer answer() const;

private:
    catalog::Dictionary& dictionary_;
    language::BoundProgram program_;
    output::TablesOfRun last_;
};

/// Throws std::runtime_error naming the first figure that differs by more than rounding.
void compare(const Answer& engine, const Answer& limit);

} // namespace kelx::bench
