// SPDX-License-Identifier: Apache-2.0
#include "catalog/data_files.h"

#include "catalog/names.h"
#include "storage/error.h"
#include "storage/posix_io.h"

#include <algorithm>
#include <system_error>

namespace kelx::catalog {

namespace {

namespace fs = std::filesystem;

bool isFile(const fs::path& file) {
    std::error_code ignored;
    return !file.empty() && fs::is_regular_file(file, ignored);
}

/// True where the predicate holds for one of the file names of entities and variables.
template <typename Predicate>
bool anyFileName(const Dictionary& dictionary, const Predicate& predicate) {
    const auto entities = dictionary.entities();
    return std::any_of(entities.begin(), entities.end(), [&](const Entity* entity) {
        return predicate(entity->fileName) ||
               std::any_of(entity->variables.begin(), entity->variables.end(),
                           [&](const auto& variable) { return predicate(variable->fileName); });
    });
}

void describeColumn(const Dictionary& dictionary, Variable& variable) {
    try {
        const auto info = storage::Column::open(variable.filePath(), dictionary.key)->info();
        variable.type = info.type;
        if (!variable.decimals && info.decimals > 0) {
            variable.decimals = info.decimals;
        }
    } catch (const storage::FileError&) {
        // A damaged column is reported when it is used; the others can be worked with.
    }
}

/// The number of the entity's records where its pointer files tell it.
std::optional<std::uint64_t> knownRecords(const Entity& entity) {
    try {
        return entity.records();
    } catch (const storage::FileError&) {
        return std::nullopt;
    }
}

void describeRaw(Variable& variable) {
    const fs::path file = variable.filePath();
    if (const auto description = storage::readRawDescription(file)) {
        variable.raw = description;
        variable.type = description->valueType;
        return;
    }
    const auto records = knownRecords(*variable.entity);
    if (!variable.raw || !records) {
        return;
    }
    storage::openRawColumn(file, *variable.raw, *records);
    variable.type = variable.raw->valueType;
    try {
        storage::writeRawDescription(file, *variable.raw, *records);
    } catch (const storage::FileError&) {
        // A folder that cannot be written to: the dictionary goes on to describe the file.
    }
}

void describe(const Dictionary& dictionary, Variable& variable) {
    if (!isFile(variable.filePath())) {
        return;
    }
    if (sameName(variable.filePath().extension().string(), ".bin")) {
        describeRaw(variable);
    } else {
        describeColumn(dictionary, variable);
    }
}

} // namespace

bool namesAnyFile(const Dictionary& dictionary) {
    return anyFileName(dictionary, [](const std::string& name) { return !name.empty(); });
}

bool findsAnyFile(const Dictionary& dictionary) {
    return anyFileName(dictionary,
                       [&](const std::string& name) { return isFile(dictionary.resolve(name)); });
}

void describeFromData(Dictionary& dictionary) {
    for (Entity* entity : dictionary.entities()) {
        for (const auto& variable : entity->variables) {
            describe(dictionary, *variable);
        }
    }
}

fs::path realFile(const fs::path& file) {
    return storage::realFile(file);
}

FileOwners::FileOwners(const Dictionary& dictionary) {
    add(dictionary.file, "the dictionary");
    for (const Entity* entity : dictionary.entities()) {
        if (!entity->fileName.empty()) {
            add(entity->filePath(), entity->name);
        }
        for (const auto& variable : entity->variables) {
            if (variable->fileName.empty()) {
                continue;
            }
            add(variable->filePath(), variable->fullName());
            if (sameName(variable->filePath().extension().string(), ".bin")) {
                add(variable->filePath().concat(".desc"), variable->fullName());
            }
        }
    }
}

const std::vector<std::string>& FileOwners::of(const fs::path& realFile) const {
    static const std::vector<std::string> none;
    const auto found = owners_.find(realFile);
    return found == owners_.end() ? none : found->second;
}

void FileOwners::add(const fs::path& file, const std::string& owner) {
    if (!file.empty()) {
        owners_[realFile(file)].push_back(owner);
    }
}

FileNameMove::FileNameMove(Dictionary& dictionary, const fs::path& newFolder) {
    if (dictionary.dataFolder.empty() ||
        (dictionary.dataFolder / "").lexically_normal() == (newFolder / "").lexically_normal()) {
        return;
    }
    for (Entity* entity : dictionary.entities()) {
        rewrite(dictionary, entity->fileName, newFolder);
        for (const auto& variable : entity->variables) {
            rewrite(dictionary, variable->fileName, newFolder);
        }
    }
}

FileNameMove::~FileNameMove() {
    for (auto& [name, text] : earlier_) {
        name->swap(text);
    }
}

void FileNameMove::rewrite(const Dictionary& dictionary, std::string& name,
                           const fs::path& newFolder) {
    const fs::path file = dictionary.resolve(name);
    std::string unified = name;
    std::replace(unified.begin(), unified.end(), '\\', '/');
    if (name.empty() || fs::path(unified).is_absolute()) {
        return;
    }
    // A caller may have rewritten the name for the new folder already.
    if (!isFile(file) && isFile(newFolder / unified)) {
        return;
    }
    earlier_.emplace_back(&name, name);
    name = file.lexically_relative(newFolder).generic_string();
}

} // namespace kelx::catalog
