// SPDX-License-Identifier: Apache-2.0
#include "catalog/type_names.h"

#include <array>

namespace kelx::catalog {

namespace {

constexpr std::array names = {"NONE", "INTEGER", "REAL", "STRING", "BOOLEAN"};

} // namespace

const char* typeName(ValueType type) {
    const auto index = static_cast<std::size_t>(type);
    return index < names.size() ? names[index] : names[0];
}

std::optional<ValueType> typeFromName(const std::string& name) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (name == names[i]) {
            return static_cast<ValueType>(i);
        }
    }
    return std::nullopt;
}

bool isStored(const Variable& variable) {
    return !variable.define || !variable.fileName.empty();
}

} // namespace kelx::catalog
