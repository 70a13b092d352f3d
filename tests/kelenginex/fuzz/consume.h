// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzz targets and the mutation tests do with a file that may hold anything.
#pragma once

#include "storage/secret.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace kelx::testing {

/// Each opens the file and touches everything in it. True where it was accepted, false where it
/// was refused as a reader should; any other exception passes, and a broken promise aborts.
bool consumeColumn(const std::filesystem::path& file,
                   const std::shared_ptr<const storage::Secret>& key = {});
bool consumePointers(const std::filesystem::path& file);
bool consumeDictionary(const std::filesystem::path& file, const std::string& password);
bool consumeDescription(const std::filesystem::path& binFile);
/// The layout and the number of records are taken from the selector.
bool consumeRaw(const std::filesystem::path& file, std::uint64_t selector);

/// Makes the hashes of a mutated file fit again, so that the checks behind them are reached.
void repairHeader(std::string& bytes);
void repairColumn(std::string& bytes);
void repairPointers(std::string& bytes);
void repairDictionary(std::string& bytes);

void writeBytes(const std::filesystem::path& file, const std::string& bytes);
std::string readBytes(const std::filesystem::path& file);

} // namespace kelx::testing
