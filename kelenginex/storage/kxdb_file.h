// SPDX-License-Identifier: Apache-2.0
// The container of a binary dictionary: a compressed, checked and perhaps protected payload.
#pragma once

#include "storage/secret.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kelx::storage {

/// What a .kxdb file holds.
struct KxdbContent {
    std::string payload;               ///< the dictionary, in the form that the catalog writes
    std::shared_ptr<const Secret> key; ///< null for an unprotected database
};

/// Asks for the password of a protected file; may throw to refuse.
using PasswordPrompt = std::function<std::string()>;

/// Throws FileError on damage and std::runtime_error "Wrong password." on a wrong one. The prompt
/// is called at most once, and only for a protected file.
KxdbContent readKxdb(const std::filesystem::path& file, const PasswordPrompt& prompt);
/// The same with a key that was derived before, null for none. Throws FileError where the file is
/// protected otherwise.
KxdbContent readKxdbAgain(const std::filesystem::path& file,
                          const std::shared_ptr<const Secret>& key);
/// Writes atomically; protected where content.key is set.
void writeKxdb(const std::filesystem::path& file, const KxdbContent& content);

} // namespace kelx::storage
