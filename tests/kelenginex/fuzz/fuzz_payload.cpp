// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the payload of the binary form of a dictionary: read or refused with a message; what
// was read can be written and read again.
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
        return catalog::parsePayload(text, "/fuzz/input");
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
    const std::string written = catalog::writePayload(*dictionary);
    const auto again = readOrRefuse(written);
    if (again == nullptr || catalog::writePayload(*again) != written) {
        std::abort();
    }
    return 0;
}
