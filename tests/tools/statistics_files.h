// SPDX-License-Identifier: GPL-3.0-or-later
// Files of statistics packages, written for tests.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kelx::test {

struct StatisticsVariable {
    std::string name, label;
    bool isText = false;
    std::vector<std::pair<double, std::string>> labels;
    std::vector<std::pair<double, double>> missing; ///< ranges; of .sav files only
    std::vector<std::optional<double>> numbers;     ///< no value: system missing
    std::vector<std::string> texts;
    std::string format;
    char tagAt0 = 0; ///< a letter for the first value; of .dta files only
};

/// The extension tells the kind: .sav, .zsav, .dta, .sas7bdat. The weight is a variable's name.
/// A .sav can be packed, value by value.
void writeStatistics(const std::filesystem::path& file,
                     const std::vector<StatisticsVariable>& variables,
                     const std::string& weight = "", bool packed = false);
/// A .sas7bcat with one set of labels.
void writeFormats(const std::filesystem::path& file, const std::string& set,
                  const std::vector<std::pair<double, std::string>>& labels);

} // namespace kelx::test
