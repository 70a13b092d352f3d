// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    return kelx::testing::fuzzDictionary(bytes, size, kelx::catalog::parseDicx,
                                         kelx::catalog::writeDicx);
}
