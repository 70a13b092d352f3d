// SPDX-License-Identifier: Apache-2.0
// What the reader and the writer of the binary form's payload share.
#pragma once

namespace kelx::catalog {

constexpr const char* payloadFormat = "kelvora dictionary";
constexpr int payloadVersion = 1;

} // namespace kelx::catalog
