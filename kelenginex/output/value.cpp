// SPDX-License-Identifier: Apache-2.0
#include "output/table.h"

#include "plan/area_codes.h"

namespace kelx::output {

std::string toText(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value))
        return std::to_string(*integer);
    if (const auto* real = std::get_if<double>(&value))
        return plan::numberText(*real);
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    return {};
}

} // namespace kelx::output
