// SPDX-License-Identifier: Apache-2.0
// The dictionary of the made-up country.
#pragma once

#include "catalog/model.h"
#include "sample/country.h"
#include "storage/column_writer.h"

#include <memory>
#include <string>
#include <vector>

namespace kelx::tools {

/// Files relative to the dictionary's folder.
std::unique_ptr<catalog::Dictionary> makeSampleDictionary(const Country& country);

/// How the column of a variable of this dictionary is written: bounds of its codes known.
storage::ColumnPlan samplePlan(const catalog::Variable& variable, const Country& country);

/// Names of all data files of a dictionary.
std::vector<std::string> dataFileNames(const catalog::Dictionary& dictionary);

} // namespace kelx::tools
