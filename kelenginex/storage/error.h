// SPDX-License-Identifier: Apache-2.0
// Faults of files: always with the file's name and what is wrong with it.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace kelx::storage {

/// A file that is missing, damaged, or of a kind that this version does not read.
class FileError : public std::runtime_error {
public:
    FileError(const std::filesystem::path& file, const std::string& problem)
        : std::runtime_error(file.string() + ": " + problem), file_(file) {}
    const std::filesystem::path& file() const { return file_; }

private:
    std::filesystem::path file_;
};

} // namespace kelx::storage
