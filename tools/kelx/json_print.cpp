// SPDX-License-Identifier: Apache-2.0
#include "json_print.h"

#include <nlohmann/json.hpp>

#include <iostream>

namespace kelx::tool {

void printJson(const nlohmann::ordered_json& answer) {
    std::cout << answer.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
              << '\n';
}

} // namespace kelx::tool
