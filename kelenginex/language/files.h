// SPDX-License-Identifier: Apache-2.0
// Files that a program names.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace kelx::language {

/// An absolute path; a relative name is taken from the folder. Backslashes count as separators.
std::filesystem::path resolvedFile(std::string name, const std::filesystem::path& folder);

/// The bytes of a file. Throws std::runtime_error with what is wrong with it, to follow its name
/// ("does not exist"). `tooLarge` is what to say of a file of more than `most` bytes.
std::string contentOf(const std::filesystem::path& file, std::uintmax_t most, const char* tooLarge);

} // namespace kelx::language
