// SPDX-License-Identifier: GPL-3.0-or-later
// Databases of cases: a folder with a codebook, a CSV file for each level, and what a codebook
// cannot say in extras.csv.
#pragma once

#include <filesystem>

namespace kelx::test {

/// Writes the database of the source folder as NAME.kxdb, NAME being the source's name, into
/// another folder, which is made. Throws what importing throws.
void makeCaseDatabase(const std::filesystem::path& source, const std::filesystem::path& folder);

} // namespace kelx::test
