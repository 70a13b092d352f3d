// SPDX-License-Identifier: Apache-2.0
// Reads the areas that a selection file lists.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kelx::language {

/// A selection file as it stands: JSON with `label` and `selections`, each with `entity` and
/// `codes`.
struct SelectionFileContent {
    struct Group {
        std::string entity;
        std::vector<std::string> codes; ///< compound codes
    };
    std::string label;
    std::vector<Group> groups;
};

/// Throws std::runtime_error with what is wrong, to follow the words "The selection file X".
SelectionFileContent readSelectionFile(const std::filesystem::path& file);

} // namespace kelx::language
