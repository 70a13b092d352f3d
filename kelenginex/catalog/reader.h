// SPDX-License-Identifier: Apache-2.0
// Opens and saves dictionaries, whatever their form.
#pragma once

#include "catalog/model.h"
#include "storage/staged_files.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace kelx::catalog {

/// What only a user can answer while a dictionary opens. Both may throw to refuse, which ends the
/// load.
struct Questions {
    std::function<std::string(const std::string& dbName)> password;
    std::function<std::string(const std::string& dbName)> dataFolder;
};

/// Reads a .kxdb or .dicx file. Throws storage::FileError or std::runtime_error with a text for the
/// user. Where no data file at all is found, asks once for the data folder.
std::unique_ptr<Dictionary> readDictionary(const std::filesystem::path& file,
                                           const Questions& questions);
/// The same dictionary as its file holds it by now, without asking: a password that was given holds
/// good. Throws storage::FileError.
std::unique_ptr<Dictionary> readAgain(const Dictionary& earlier);
/// Writes the form that the extension tells, .kxdb where it tells none; atomically. File names
/// that are relative are rewritten where the folder changes, so that they go on to mean the same.
void saveDictionary(Dictionary& dictionary, const std::filesystem::path& file);

/// Writes a dictionary to its own file, staged; it is then as saved. It must stay in its folder,
/// which the caller has locked: the files are to appear together even where the process is killed.
void stageDictionary(const Dictionary& dictionary, storage::StagedFiles& files);

// The two forms by themselves.
std::unique_ptr<Dictionary> parseDicx(const std::string& xml, const std::filesystem::path& file);
std::string writeDicx(const Dictionary& dictionary);
std::unique_ptr<Dictionary> parsePayload(const std::string& payload,
                                         const std::filesystem::path& file);
std::string writePayload(const Dictionary& dictionary);

} // namespace kelx::catalog
