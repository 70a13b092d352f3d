// SPDX-License-Identifier: Apache-2.0
// JSON answers on standard output.
#pragma once

#include <nlohmann/json_fwd.hpp>

namespace kelx::tool {

/// Indented; file names that are no UTF-8 come with replaced characters.
void printJson(const nlohmann::ordered_json& answer);

} // namespace kelx::tool
