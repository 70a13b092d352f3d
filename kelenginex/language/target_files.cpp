// SPDX-License-Identifier: Apache-2.0
#include "language/target_files.h"

#include "catalog/names.h"
#include "language/checker_context.h"
#include "language/table_json.h"
#include "language/text.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

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

bool hasFolder(const fs::path& real) {
    std::error_code ignored;
    return fs::is_directory(real.parent_path(), ignored);
}

/// What stands in the way of any file there.
std::string placeProblemOf(const fs::path& real) {
    std::error_code ignored;
    const fs::file_status status = fs::status(real, ignored);
    if (fs::is_directory(status))
        return "it is a folder";
    if (fs::exists(status) && !fs::is_regular_file(status))
        return "it is no regular file";
    return hasFolder(real) ? std::string() : "there is no folder " + real.parent_path().string();
}

} // namespace

void TargetFiles::read(const fs::path& file) {
    read_.insert(catalog::realFile(file));
}

void TargetFiles::written(const fs::path& file, Form form, bool overwrite, Position position) {
    written_.push_back({file, form, overwrite, position});
}

void TargetFiles::report(CheckerContext& context) const {
    if (written_.empty())
        return;
    const catalog::FileOwners owners(dictionary_);
    std::map<fs::path, Form> forms;
    std::set<std::pair<std::string, std::string>> told; // tables of one command share a place
    for (const Target& target : written_) {
        const bool movable = target.form != Form::Json && context.options().hasResultsFolder;
        const std::string problem = problemOf(target, owners, forms, movable);
        const Position& at = target.position;
        const std::string place = std::to_string(at.source) + ' ' + std::to_string(at.line) + ' ' +
                                  std::to_string(at.column);
        const fs::path real = catalog::realFile(target.file);
        if ((problem.empty() && hasFolder(real)) ||
            !told.insert({target.file.string(), place}).second)
            continue;
        if (problem.empty())
            context.report(Warning::OutfileFolder, at, {real.parent_path().string()});
        else
            context.report(Error::TargetFile, at, {target.file.string(), problem});
    }
}

std::string TargetFiles::problemOf(const Target& target, const catalog::FileOwners& owners,
                                   std::map<fs::path, Form>& forms, bool movable) const {
    const fs::path real = catalog::realFile(target.file);
    std::error_code ignored;
    if (std::string problem = keptProblemOf(target.file, real, owners); !problem.empty())
        return problem;
    if (std::string problem = placeProblemOf(real);
        !problem.empty() && (hasFolder(real) || !movable))
        return problem;
    if (forms.emplace(real, target.form).first->second != target.form)
        return "another table goes to the same file in another form";
    if (target.form == Form::Json && !target.overwrite && fs::exists(real, ignored) &&
        !isTableJson(real))
        return "it is no table that was written before; write OVERWRITE behind OUTFILE JSON to "
               "replace it";
    return {};
}

std::string TargetFiles::keptProblemOf(const fs::path& file, const fs::path& real,
                                       const catalog::FileOwners& owners) const {
    if (const auto& owned = owners.of(real); !owned.empty())
        return "it belongs to the database, as a file of " + owned.front();
    if (read_.contains(real))
        return "the run reads it";
    if (real.filename().string().starts_with(".kelx-"))
        return "names that begin with .kelx- are those of files under way";
    if (isKept(file) || isKept(real))
        return "a name that ends in " + endingOf(isKept(file) ? file : real) +
               " is that of data or of a program";
    return {};
}

std::string TargetFiles::saveProblemOf(const fs::path& file, const std::string& fullName) {
    if (!owners_)
        owners_.emplace(dictionary_);
    const fs::path real = catalog::realFile(file);
    for (const fs::path& each : {real, fs::path(real).concat(".desc")}) {
        for (const std::string& owner : owners_->of(each)) {
            if (!catalog::sameName(owner, fullName))
                return "it holds the data of " + owner;
        }
    }
    if (endingOf(real) != endingOf(file))
        return "it is a link to " + real.string();
    if (dictionary_.key && endingOf(real) == ".bin")
        return "it would not be protected as its database is, which a .kbf file is";
    return placeProblemOf(real);
}

bool TargetFiles::checkSave(const fs::path& file, const std::string& fullName, Position position,
                            CheckerContext& context) {
    const std::string problem = saveProblemOf(file, fullName);
    if (!problem.empty())
        context.report(Error::TargetFile, position, {file.string(), problem});
    return problem.empty();
}

} // namespace kelx::language
