// SPDX-License-Identifier: Apache-2.0
#include "language/target_files.h"

#include "catalog/names.h"
#include "language/checker_context.h"
#include "language/text.h"

#include <algorithm>
#include <array>
#include <system_error>

namespace kelx::language {

namespace {

namespace fs = std::filesystem;

/// Endings of the files that a database or a program is made of.
constexpr std::array<std::string_view, 7> kept = {".kxdb", ".dicx", ".kbf", ".kpt",
                                                  ".bin",  ".desc", ".spc"};

std::string endingOf(const fs::path& file) {
    return lowerCase(file.extension().string());
}

bool isKept(const fs::path& file) {
    return std::find(kept.begin(), kept.end(), endingOf(file)) != kept.end();
}

std::string missingFolder(const fs::path& file) {
    std::error_code ignored;
    const fs::path folder = file.parent_path();
    return fs::is_directory(folder, ignored) ? std::string()
                                             : "there is no folder " + folder.string();
}

} // namespace

void TargetFiles::read(const fs::path& file) {
    read_.insert(catalog::realFile(file));
}

void TargetFiles::written(const fs::path& file, Position position) {
    written_.insert({file, position});
}

void TargetFiles::report(CheckerContext& context) const {
    if (written_.empty())
        return;
    const catalog::FileOwners owners(dictionary_);
    for (const auto& [file, position] : written_) {
        const std::string problem = problemOf(file, owners);
        if (!problem.empty())
            context.report(Error::TargetFile, position, {file.string(), problem});
    }
}

std::string TargetFiles::problemOf(const fs::path& file, const catalog::FileOwners& owners) const {
    const fs::path real = catalog::realFile(file);
    std::error_code ignored;
    if (const auto& owned = owners.of(real); !owned.empty())
        return "it belongs to the database, as a file of " + owned.front();
    if (read_.contains(real))
        return "the run reads it";
    if (isKept(file) || isKept(real))
        return "a name that ends in " + endingOf(isKept(file) ? file : real) +
               " is that of data or of a program";
    if (fs::is_directory(real, ignored))
        return "it is a folder";
    return missingFolder(real);
}

bool TargetFiles::checkSave(const fs::path& file, const std::string& fullName, Position position,
                            CheckerContext& context) {
    if (!owners_)
        owners_.emplace(dictionary_);
    const fs::path real = catalog::realFile(file);
    std::string problem;
    for (const fs::path& each : {real, fs::path(real).concat(".desc")}) {
        for (const std::string& owner : owners_->of(each)) {
            if (!catalog::sameName(owner, fullName))
                problem = "it holds the data of " + owner;
        }
    }
    if (problem.empty() && endingOf(real) != endingOf(file))
        problem = "it is a link to " + real.string();
    if (problem.empty())
        problem = missingFolder(real);
    if (!problem.empty())
        context.report(Error::TargetFile, position, {file.string(), problem});
    return problem.empty();
}

} // namespace kelx::language
