// SPDX-License-Identifier: Apache-2.0
// How long work tells how far it is, and hears that it should end.
#pragma once

#include <cstdint>
#include <functional>

namespace kelx::tools {

/// Called now and then with what is done and all there is to do. What it throws ends the work,
/// which then leaves nothing behind.
using Progress = std::function<void(std::uint64_t done, std::uint64_t all)>;

/// Called after each piece of a file with its bytes; may throw as Progress may.
using BytesRead = std::function<void(std::uint64_t bytes)>;

} // namespace kelx::tools
