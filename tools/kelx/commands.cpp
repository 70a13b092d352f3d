// SPDX-License-Identifier: Apache-2.0
#include "commands.h"

#include "catalog/names.h"
#include "catalog/type_names.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace kelx::tool {

bool hasExtension(const std::filesystem::path& file, const std::string& extension) {
    return catalog::sameName(file.extension().string(), extension);
}

void requireExtension(const std::string& option, const std::filesystem::path& file,
                      const std::vector<std::string>& extensions) {
    if (std::any_of(extensions.begin(), extensions.end(),
                    [&](const std::string& one) { return hasExtension(file, one); }))
        return;
    std::string all;
    for (const std::string& extension : extensions)
        all += (all.empty() ? "" : " or ") + extension;
    throw CLI::ValidationError(option, "\"" + file.string() + "\" does not end in " + all);
}

std::string valueTypeName(storage::ValueType type) {
    return catalog::lowerCase(catalog::typeName(type));
}

std::string counted(std::uint64_t count, const std::string& one) {
    return std::to_string(count) + ' ' + one + (count == 1 ? "" : "s");
}

} // namespace kelx::tool
