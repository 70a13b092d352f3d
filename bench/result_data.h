// SPDX-License-Identifier: Apache-2.0
// A made-up database whose tables are as large as result tables get.
#pragma once

#include <filesystem>
#include <string>

namespace kelx::bench {

constexpr int resultAreas = 100000;
constexpr int resultCategories = 2000; ///< of each side of the crosstab; every cell is filled

/// COUNTRY > AREA > CASE. Areas have codes, names and 20 variables; a case falls into one cell of
/// CASE.ROW by CASE.COL and has one of 7 kinds. Returns the dictionary's path.
std::filesystem::path writeResultsDatabase(const std::filesystem::path& folder);

/// 30 columns: code, name, the variables, and the kinds of cases with their total.
std::string areaListProgram(int areas = resultAreas);
/// 2 000 by 2 000 categories, with totals.
std::string crosstabProgram();

} // namespace kelx::bench
