// SPDX-License-Identifier: Apache-2.0
// Conversions of boundary values that do not depend on the locale.
#pragma once

#include "KelTypes.h"

#include <string>

namespace kelx::boundary {

/// Integers plain, doubles in shortest round-trip fixed notation, texts as they are.
std::string toText(const TKelVariant& value);
double toDouble(const TKelVariant& value);        ///< 0 for text without number
std::int64_t toInteger(const TKelVariant& value); ///< truncated, saturated

} // namespace kelx::boundary
