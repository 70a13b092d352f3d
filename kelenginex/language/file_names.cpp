// SPDX-License-Identifier: Apache-2.0
#include "language/file_names.h"

#include <algorithm>

namespace kelx::language {

std::filesystem::path absoluteFile(std::string name, const std::filesystem::path& folder) {
    std::replace(name.begin(), name.end(), '\\', '/');
    const std::filesystem::path base = folder.empty() ? std::filesystem::path(".") : folder;
    return std::filesystem::absolute(base / std::filesystem::path(name)).lexically_normal();
}

} // namespace kelx::language
