// SPDX-License-Identifier: Apache-2.0
// Files that a program writes to, kept apart from those that it lives on.
#pragma once

#include "catalog/data_files.h"
#include "language/messages.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace kelx::language {

class CheckerContext;

/// What a program reads may come after what it writes: tables' files are judged at its end.
class TargetFiles {
public:
    explicit TargetFiles(const catalog::Dictionary& dictionary) : dictionary_(dictionary) {}

    /// A program or a selection of the run.
    void read(const std::filesystem::path& file);
    /// A table's file, absolute.
    void written(const std::filesystem::path& file, Position position);
    /// Reports tables' files that cannot be written to.
    void report(CheckerContext& context) const;
    /// A data file that the variable of that full name is to be saved to; false where that cannot
    /// be, which is reported. A variable may replace its own data, but no other's.
    bool checkSave(const std::filesystem::path& file, const std::string& fullName,
                   Position position, CheckerContext& context);

private:
    struct Target {
        std::filesystem::path file;
        Position position;
        bool operator<(const Target& other) const {
            return std::tie(file, position.source, position.line, position.column) <
                   std::tie(other.file, other.position.source, other.position.line,
                            other.position.column);
        }
    };
    std::string problemOf(const std::filesystem::path& file,
                          const catalog::FileOwners& owners) const;

    const catalog::Dictionary& dictionary_;
    std::optional<catalog::FileOwners> owners_;
    std::set<std::filesystem::path> read_;
    std::set<Target> written_;
};

} // namespace kelx::language
