// SPDX-License-Identifier: Apache-2.0
// What the reader and the writer of the binary form's payload share.
#pragma once

#include "catalog/model.h"

#include <string>

namespace kelx::catalog {

constexpr const char* payloadFormat = "kelvora dictionary";
constexpr int payloadVersion = 1;

/// A variable as one JSON object, as it stands in the payload.
std::string describeVariable(const Variable& variable);

} // namespace kelx::catalog
