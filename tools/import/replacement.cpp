// SPDX-License-Identifier: Apache-2.0
#include "import/replacement.h"

#include "catalog/names.h"
#include "storage/error.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>

namespace kelx::tools {

namespace fs = std::filesystem;

namespace {

/// The same for all ways to write a path.
fs::path realPath(const fs::path& file) {
    std::error_code fault;
    const fs::path real = fs::weakly_canonical(file, fault);
    return fault ? fs::absolute(file).lexically_normal() : real;
}

/// The data files that a dictionary names, or why it cannot be read.
struct Named {
    std::set<fs::path> files;
    std::string fault;
};

Named filesOf(const fs::path& dictionaryFile, const catalog::Questions& questions) {
    Named named;
    try {
        const auto dictionary = catalog::readDictionary(dictionaryFile, questions);
        const auto add = [&](const std::string& name, const fs::path& file) {
            if (!name.empty())
                named.files.insert(realPath(file));
        };
        for (const catalog::Entity* entity : dictionary->entities()) {
            add(entity->fileName, entity->filePath());
            for (const auto& variable : entity->variables)
                add(variable->fileName, variable->filePath());
        }
    } catch (const std::runtime_error& fault) {
        named.fault = fault.what();
    }
    return named;
}

bool isDictionary(const fs::path& file) {
    const std::string extension = catalog::lowerCase(file.extension().string());
    std::error_code ignored;
    return (extension == ".kxdb" || extension == ".dicx") && fs::is_regular_file(file, ignored);
}

/// What the other dictionaries in the folder name.
std::map<fs::path, Named> othersIn(const fs::path& folder, const fs::path& database,
                                   const catalog::Questions& questions) {
    std::map<fs::path, Named> others;
    std::error_code fault;
    for (fs::directory_iterator at(folder, fault), end; !fault && at != end; at.increment(fault))
        if (isDictionary(at->path()) && realPath(at->path()) != database)
            others[at->path()] = filesOf(at->path(), questions);
    return others;
}

void refuseWhatOthersName(const fs::path& file, const std::map<fs::path, Named>& others) {
    for (const auto& [other, named] : others) {
        if (named.files.contains(file))
            throw storage::FileError(file, "belongs to " + other.string() +
                                               " too and cannot be replaced; take another folder");
        if (!named.fault.empty())
            throw storage::FileError(file, "may belong to another database in the folder and "
                                           "cannot be replaced: " +
                                               named.fault);
    }
}

} // namespace

Replacement::Replacement(const fs::path& database, const std::vector<std::string>& dataFiles,
                         const catalog::Questions& questions) {
    std::error_code ignored;
    const fs::path old = realPath(database);
    const fs::path folder = old.parent_path();
    const Named named = fs::exists(old, ignored) ? filesOf(old, questions) : Named{};
    const std::map<fs::path, Named> others = othersIn(folder, old, {});
    std::set<fs::path> made;
    for (const std::string& name : dataFiles) {
        const fs::path file = realPath(folder / name);
        made.insert(file);
        if (!fs::exists(file, ignored))
            continue;
        if (!named.fault.empty())
            throw storage::FileError(file, "exists already, and whether it belongs to the database "
                                           "to be replaced is not known: " +
                                               named.fault);
        if (!named.files.contains(file))
            throw storage::FileError(
                file, "exists already and does not belong to the database to be replaced");
        refuseWhatOthersName(file, others);
    }
    for (const fs::path& file : named.files) {
        const bool isShared = std::any_of(others.begin(), others.end(), [&](const auto& other) {
            return !other.second.fault.empty() || other.second.files.contains(file);
        });
        if (!made.contains(file) && !isShared && file.parent_path() == folder)
            leftovers_.push_back(file);
    }
}

void Replacement::removeLeftovers() const {
    std::error_code ignored; // the new database is there, and whole without this
    for (const fs::path& file : leftovers_)
        fs::remove(file, ignored);
}

} // namespace kelx::tools
