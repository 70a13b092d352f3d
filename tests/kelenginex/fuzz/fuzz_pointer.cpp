// SPDX-License-Identifier: GPL-3.0-or-later
#include "target.h"

using namespace kelx::testing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto bytes = inputBytes(data, size);
    consumePointers(inputFile().write(bytes));
    repairPointers(bytes);
    consumePointers(inputFile().write(bytes));
    return 0;
}
