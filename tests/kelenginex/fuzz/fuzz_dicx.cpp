// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the XML form of a dictionary: read or refused with a message; what was read can
// be written and read again.
#include "catalog/reader.h"
#include "storage/error.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

using namespace kelx;

std::unique_ptr<catalog::Dictionary> readOrRefuse(const std::string& text) {
    try {
        return catalog::parseDicx(text, "/fuzz/input");
    } catch (const storage::FileError&) {
        return nullptr;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto dictionary = readOrRefuse({reinterpret_cast<const char*>(bytes), size});
    if (dictionary == nullptr) {
        return 0;
    }
    if (readOrRefuse(catalog::writeDicx(*dictionary)) == nullptr) {
        std::abort();
    }
    return 0;
}
