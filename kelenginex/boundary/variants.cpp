// SPDX-License-Identifier: Apache-2.0
#include "boundary/variants.h"

#include "catalog/names.h"
#include "storage/number_text.h"

#include <cmath>
#include <limits>

namespace kelx::boundary {

namespace {

std::int64_t truncated(double value) {
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= limit) {
        return std::numeric_limits<std::int64_t>::max();
    }
    return value < -limit ? std::numeric_limits<std::int64_t>::min()
                          : static_cast<std::int64_t>(value);
}

} // namespace

std::string toText(const TKelVariant& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*integer);
    }
    return storage::numberText(std::get<double>(value));
}

double toDouble(const TKelVariant& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return catalog::parseNumber(*text).value_or(0);
    }
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    return std::get<double>(value);
}

std::int64_t toInteger(const TKelVariant& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return *integer;
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (const auto exact = catalog::parseInteger(*text)) {
            return *exact;
        }
    }
    return truncated(toDouble(value));
}

} // namespace kelx::boundary
