// SPDX-License-Identifier: Apache-2.0
// Numbers as text, the same in files, tables and messages and whatever the machine's language.
#pragma once

#include <string>

namespace kelx::storage {

/// The shortest text that reads back as the same number, in fixed notation: "0.00001", not
/// "1e-05". No minus before a zero; empty for what is not finite.
std::string numberText(double value);

} // namespace kelx::storage
