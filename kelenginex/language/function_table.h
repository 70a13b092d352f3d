// SPDX-License-Identifier: Apache-2.0
// The functions of the language: what they take and give.
#pragma once

#include "storage/column.h"

#include <string>
#include <string_view>
#include <vector>

namespace kelx::language {

enum class Parameter {
    Number,
    Whole, ///< a whole number
    Text,
    Variable, ///< a variable by itself, not its value
    Entity,
};

struct FunctionEntry {
    const char* name; ///< in upper case
    std::vector<Parameter> parameters;
    storage::ValueType result; ///< None: the type of the first argument
    const char* form;          ///< as it is written
    const char* documentation; ///< one line for the reference
};

const std::vector<FunctionEntry>& functionTable();        ///< by name
const FunctionEntry* findFunction(std::string_view name); ///< in any case; null where there is none

} // namespace kelx::language
