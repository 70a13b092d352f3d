// SPDX-License-Identifier: Apache-2.0
// What an import tells in the end.
#pragma once

#include "import/import_report.h"

#include <filesystem>

namespace kelx::tool {

/// The report on standard output; as text, the first faults on standard error.
void printReport(const tools::ImportReport& report, const std::filesystem::path& database,
                 bool asJson);

} // namespace kelx::tool
