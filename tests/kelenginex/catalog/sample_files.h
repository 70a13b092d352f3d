// SPDX-License-Identifier: GPL-3.0-or-later
// Small dictionaries with real data files for tests.
#pragma once

#include "catalog/model.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace kelx::test {

/// COUNTRY > PROVINCE (2) > PERSON (5), with every kind of variable and all that a dictionary can
/// say of one. Data files:
///   province.kpt  2 provinces under the country; person.kpt  3 and 2 persons
///   prov.kbf "01" "02", provname.kbf "North" "South"
///   sex.kbf 1 2 1 2 9 (9 missing), age.kbf 10 20 30 40 blank, income.kbf 1.5 2.5 3.5 4.5 5.5
///   weight.kbf 1 1 2 2 4, urban.kbf true false true false true
void writeSampleData(const std::filesystem::path& folder);
std::unique_ptr<catalog::Dictionary> sampleDictionary(const std::filesystem::path& file);

/// What a tree holds, as text, to compare two of them.
std::string described(const catalog::Dictionary& dictionary);

/// The message of what the function throws; empty where it throws nothing.
std::string thrownBy(const std::function<void()>& function);

} // namespace kelx::test
