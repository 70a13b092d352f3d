// SPDX-License-Identifier: Apache-2.0
// Files that a program writes to, kept apart from those that it lives on.
#pragma once

#include "catalog/data_files.h"
#include "language/messages.h"

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kelx::language {

class CheckerContext;

/// What a program reads may come after what it writes: tables' files are judged at its end.
class TargetFiles {
public:
    explicit TargetFiles(const catalog::Dictionary& dictionary) : dictionary_(dictionary) {}

    /// A program or a selection of the run.
    void read(const std::filesystem::path& file);
    /// A table's file, absolute. Tables of one form may share a file.
    enum class Form { Json, Csv, Xlsx, Pdf };
    void written(const std::filesystem::path& file, Form form, bool overwrite, Position position);
    /// Reports tables' files that cannot be written to.
    void report(CheckerContext& context) const;
    /// A data file that the variable of that full name is to be saved to; false where that cannot
    /// be, which is reported. A variable may replace its own data, but no other's.
    bool checkSave(const std::filesystem::path& file, const std::string& fullName,
                   Position position, CheckerContext& context);

private:
    struct Target {
        std::filesystem::path file;
        Form form;
        bool overwrite;
        Position position;
    };
    /// A movable file may go without its folder.
    std::string problemOf(const Target& target, const catalog::FileOwners& owners,
                          std::map<std::filesystem::path, Form>& forms, bool movable) const;
    std::string keptProblemOf(const std::filesystem::path& file, const std::filesystem::path& real,
                              const catalog::FileOwners& owners) const;
    std::string saveProblemOf(const std::filesystem::path& file, const std::string& fullName);

    const catalog::Dictionary& dictionary_;
    std::optional<catalog::FileOwners> owners_;
    std::set<std::filesystem::path> read_;
    std::vector<Target> written_;
};

} // namespace kelx::language
