// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as one form of a dictionary: read or refused with a message; what was read is written
// the same again and again.
#pragma once

#include "catalog/reader.h"
#include "storage/error.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace kelx::testing {

/// Parse: from a text and a file name to a dictionary. Write: the way back.
template <typename Parse, typename Write>
int fuzzDictionary(const std::uint8_t* bytes, std::size_t size, Parse parse, Write write) {
    const auto readOrRefuse = [&](const std::string& text) -> std::unique_ptr<catalog::Dictionary> {
        try {
            return parse(text, "/fuzz/input");
        } catch (const storage::FileError&) {
            return nullptr;
        }
    };
    const auto dictionary = readOrRefuse({reinterpret_cast<const char*>(bytes), size});
    if (dictionary == nullptr)
        return 0;
    const std::string written = write(*dictionary);
    const auto again = readOrRefuse(written);
    if (again == nullptr || write(*again) != written)
        std::abort();
    return 0;
}

} // namespace kelx::testing
