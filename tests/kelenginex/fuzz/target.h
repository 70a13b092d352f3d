// SPDX-License-Identifier: GPL-3.0-or-later
// A fuzz target's input as a file, in a folder of its own that goes with the process.
#pragma once

#include "consume.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace kelx::testing {

class InputFile {
public:
    InputFile() {
        std::string name = (std::filesystem::temp_directory_path() / "kelx-fuzz-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr)
            std::abort();
        folder_ = name;
    }
    ~InputFile() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    std::filesystem::path write(const std::string& bytes) const {
        const auto file = folder_ / "input";
        writeBytes(file, bytes);
        return file;
    }

private:
    std::filesystem::path folder_;
};

inline const InputFile& inputFile() {
    static const InputFile file;
    return file;
}

inline std::string inputBytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace kelx::testing
