// SPDX-License-Identifier: Apache-2.0
#include "language/files.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kelx::language {

std::filesystem::path resolvedFile(std::string name, const std::filesystem::path& folder) {
    std::replace(name.begin(), name.end(), '\\', '/');
    const std::filesystem::path base = folder.empty() ? "." : folder;
    return std::filesystem::absolute(base / std::filesystem::path(name)).lexically_normal();
}

std::string contentOf(const std::filesystem::path& file, std::uintmax_t most,
                      const char* tooLarge) {
    std::error_code fault;
    const auto status = std::filesystem::status(file, fault);
    if (fault || !std::filesystem::exists(status))
        throw std::runtime_error("does not exist");
    if (!std::filesystem::is_regular_file(status))
        throw std::runtime_error("is not a file");
    const std::uintmax_t size = std::filesystem::file_size(file, fault);
    if (fault || size > most)
        throw std::runtime_error(tooLarge);
    std::ifstream stream(file, std::ios::binary);
    std::string content(std::istreambuf_iterator<char>(stream), {});
    if (!stream.is_open() || stream.bad())
        throw std::runtime_error("cannot be read");
    return content;
}

} // namespace kelx::language
