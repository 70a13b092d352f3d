// SPDX-License-Identifier: GPL-3.0-or-later
#include "target.h"

#include <cstring>

using namespace kelx::testing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::uint32_t selector = 0;
    if (size < sizeof(selector))
        return 0;
    std::memcpy(&selector, data, sizeof(selector));
    consumeRaw(inputFile().write(inputBytes(data + 4, size - 4)), selector);
    return 0;
}
