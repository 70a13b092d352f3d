// SPDX-License-Identifier: Apache-2.0
// What a caller is told where memory does not suffice.
#pragma once

#include <new>
#include <stdexcept>

namespace kelx::boundary {

/// Calls a function; its std::bad_alloc becomes a std::runtime_error with a text for the user.
template <typename Function>
auto withinMemory(Function function) {
    try {
        return function();
    } catch (const std::bad_alloc&) {
        throw std::runtime_error("There is not enough memory for this. Take fewer tables or "
                                 "variables at once, or close other programs.");
    }
}

} // namespace kelx::boundary
