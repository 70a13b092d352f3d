// SPDX-License-Identifier: GPL-3.0-or-later
// A fuzz target's input as a file, in a folder of its own that goes with the process.
#pragma once

#include "consume.h"
#include "support/temporary_folder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace kelx::testing {

class InputFile {
public:
    std::filesystem::path write(const std::string& bytes) const {
        const auto file = folder_ / "input";
        writeBytes(file, bytes);
        return file;
    }

private:
    test::TemporaryFolder folder_;
};

inline const InputFile& inputFile() {
    static const InputFile file;
    return file;
}

inline std::string inputBytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// What a reader says of any input, be it what it will.
inline void promise(bool kept, const char* what) {
    if (kept)
        return;
    std::fprintf(stderr, "a reader broke its promise: %s\n", what);
    std::abort();
}

} // namespace kelx::testing
