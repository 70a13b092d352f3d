// SPDX-License-Identifier: Apache-2.0
// A dictionary and the files that it names: which are there, what they say of themselves, and how
// their names change with the dictionary's folder.
#pragma once

#include "catalog/model.h"

#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace kelx::catalog {

bool namesAnyFile(const Dictionary& dictionary);
bool findsAnyFile(const Dictionary& dictionary);

/// Takes types from the columns themselves and settles how .bin files are read: the checked
/// description beside a file wins over the dictionary, and is written where there is none. Throws
/// storage::FileError where a .bin file contradicts what is said of it.
void describeFromData(Dictionary& dictionary);

/// A file with its links followed, as far as it is there.
std::filesystem::path realFile(const std::filesystem::path& file);

/// Whose the files of a dictionary are.
class FileOwners {
public:
    explicit FileOwners(const Dictionary& dictionary);
    /// The full names of the variables, the names of the entities, or "the dictionary", that have
    /// a real file for their own; mostly one, and none for any other file.
    const std::vector<std::string>& of(const std::filesystem::path& realFile) const;

private:
    void add(const std::filesystem::path& file, const std::string& owner);
    std::map<std::filesystem::path, std::vector<std::string>> owners_;
};

/// Rewrites the relative file names of a dictionary for another data folder; takes that back when
/// it goes out of scope, unless keep() was called.
class FileNameMove {
public:
    FileNameMove(Dictionary& dictionary, const std::filesystem::path& newFolder);
    ~FileNameMove();
    FileNameMove(const FileNameMove&) = delete;
    FileNameMove& operator=(const FileNameMove&) = delete;
    void keep() { earlier_.clear(); }

private:
    void rewrite(const Dictionary& dictionary, std::string& name,
                 const std::filesystem::path& newFolder);

    std::vector<std::pair<std::string*, std::string>> earlier_;
};

} // namespace kelx::catalog
