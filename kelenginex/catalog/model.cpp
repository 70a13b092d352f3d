// SPDX-License-Identifier: Apache-2.0
#include "catalog/model.h"

#include "catalog/names.h"
#include "storage/error.h"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace kelx::catalog {

namespace {

namespace fs = std::filesystem;

fs::path resolved(const Dictionary* dictionary, const std::string& fileName) {
    return dictionary != nullptr ? dictionary->resolve(fileName) : fs::path(fileName);
}

bool isFile(const fs::path& file) {
    std::error_code ignored;
    return !file.empty() && fs::is_regular_file(file, ignored);
}

const Dictionary* dictionaryOf(const Variable& variable) {
    return variable.entity != nullptr ? variable.entity->dictionary : nullptr;
}

std::shared_ptr<const storage::Secret> keyOf(const Dictionary* dictionary) {
    return dictionary != nullptr ? dictionary->key : nullptr;
}

bool isRawFile(const fs::path& file) {
    return sameName(file.extension().string(), ".bin");
}

void checkRecords(const fs::path& file, const Entity& entity, std::uint64_t found) {
    const std::uint64_t expected = entity.records();
    if (found != expected) {
        throw storage::FileError(file, "holds " + std::to_string(found) + " records, but " +
                                           entity.name + " has " + std::to_string(expected));
    }
}

std::shared_ptr<const storage::Column> openColumn(const Variable& variable) {
    const fs::path file = variable.filePath();
    if (file.empty() || variable.entity == nullptr) {
        throw storage::FileError(variable.fullName(), "the variable has no data file");
    }
    if (isRawFile(file)) {
        if (!variable.raw) {
            throw storage::FileError(file, "nothing tells the type and size of its values");
        }
        return storage::openRawColumn(file, *variable.raw, variable.entity->records());
    }
    auto column = storage::Column::open(file, keyOf(variable.entity->dictionary));
    checkRecords(file, *variable.entity, column->info().records);
    return column;
}

/// Under a root of one record, any of the entity's columns tells the number of its records.
std::shared_ptr<const storage::PointerFile> pointersFromColumns(const Entity& entity) {
    for (const auto& variable : entity.variables) {
        const fs::path file = variable->filePath();
        if (isFile(file) && !isRawFile(file)) {
            const auto column = storage::Column::open(file, keyOf(entity.dictionary));
            return storage::PointerFile::single(column->info().records);
        }
    }
    return nullptr;
}

std::shared_ptr<const storage::PointerFile> openPointers(const Entity& entity) {
    if (!entity.fileName.empty()) {
        const fs::path file = entity.filePath();
        auto pointers = storage::PointerFile::open(file);
        if (pointers->parents() != entity.parent->records()) {
            throw storage::FileError(file, "groups the records of " + entity.name + " under " +
                                               std::to_string(pointers->parents()) +
                                               " records, but " + entity.parent->name + " has " +
                                               std::to_string(entity.parent->records()));
        }
        return pointers;
    }
    if (entity.parent->parent == nullptr) {
        if (auto pointers = pointersFromColumns(entity)) {
            return pointers;
        }
    }
    throw storage::FileError(entity.dictionary != nullptr ? entity.dictionary->file : fs::path(),
                             "entity " + entity.name + " has no pointer file");
}

void collect(Entity& entity, std::vector<Entity*>& into) {
    into.push_back(&entity);
    for (const auto& child : entity.children) {
        collect(*child, into);
    }
}

/// The element with that name, else the one with that alias.
template <typename Range>
auto findNamed(const Range& range, const std::string& name) -> decltype(&*range[0]) {
    for (const auto& element : range) {
        if (sameName(element->name, name)) {
            return &*element;
        }
    }
    for (const auto& element : range) {
        if (!element->alias.empty() && sameName(element->alias, name)) {
            return &*element;
        }
    }
    return nullptr;
}

} // namespace

bool Range::contains(double value) const {
    switch (kind) {
    case 1:
        return value > minimum && value < maximum;
    case 2:
        return value > minimum && value <= maximum;
    case 3:
        return value >= minimum && value < maximum;
    case 5:
        return value == minimum;
    case 6:
        return value <= maximum;
    case 7:
        return value < maximum;
    case 8:
        return value >= minimum;
    case 9:
        return value > minimum;
    case 10:
        return true;
    default:
        return value >= minimum && value <= maximum;
    }
}

std::string Variable::fullName() const {
    return entity != nullptr ? entity->name + "." + name : name;
}

const std::string* Variable::labelOf(const std::string& value) const {
    for (const auto& [code, text] : valueLabels) {
        if (code == value) {
            return &text;
        }
    }
    // "01" and "1.0" are the same number as "1", but not the same text.
    const auto number = type == ValueType::String ? std::nullopt : parseNumber(value);
    if (number) {
        for (const auto& [code, text] : valueLabels) {
            if (parseNumber(code) == number) {
                return &text;
            }
        }
    }
    return nullptr;
}

std::shared_ptr<const storage::Column> Variable::column() const {
    const std::lock_guard lock(mutex_);
    if (column_ == nullptr) {
        column_ = openColumn(*this);
    }
    return column_;
}

fs::path Variable::filePath() const {
    return resolved(dictionaryOf(*this), fileName);
}

bool Variable::fileFound() const {
    {
        const std::lock_guard lock(mutex_);
        if (column_ != nullptr) {
            return true;
        }
    }
    return isFile(filePath());
}

void Variable::setColumn(std::shared_ptr<const storage::Column> column) {
    const std::lock_guard lock(mutex_);
    column_ = std::move(column);
}

void Variable::closeColumn() {
    setColumn(nullptr);
}

void Variable::copyDescription(const Variable& from) {
    name = from.name;
    label = from.label;
    alias = from.alias;
    group = from.group;
    documentation = from.documentation;
    metadata = from.metadata;
    fileName = from.fileName;
    type = from.type;
    size = from.size;
    decimals = from.decimals;
    notapp = from.notapp;
    missing = from.missing;
    state = from.state;
    tag = from.tag;
    active = from.active;
    define = from.define;
    local = from.local;
    hidden = from.hidden;
    sensitive = from.sensitive;
    ranges = from.ranges;
    valueLabels = from.valueLabels;
    raw = from.raw;
    textField = from.textField;
}

Entity* Entity::addChild(std::unique_ptr<Entity> child) {
    child->parent = this;
    std::vector<Entity*> subtree;
    collect(*child, subtree);
    for (Entity* entity : subtree) {
        entity->dictionary = dictionary;
    }
    children.push_back(std::move(child));
    return children.back().get();
}

Variable* Entity::addVariable(std::unique_ptr<Variable> variable) {
    variable->entity = this;
    variables.push_back(std::move(variable));
    return variables.back().get();
}

Variable* Entity::findVariable(const std::string& nameOrAlias) const {
    return findNamed(variables, nameOrAlias);
}

bool Entity::isAncestorOf(const Entity& other) const {
    const Entity* entity = &other;
    while (entity != nullptr && entity != this) {
        entity = entity->parent;
    }
    return entity != nullptr;
}

bool Entity::hasCode() const {
    return codeVar != nullptr || (parent != nullptr && parent->hasCode());
}

int Entity::level() const {
    int level = 1;
    for (const Entity* entity = parent; entity != nullptr; entity = entity->parent) {
        ++level;
    }
    return level;
}

fs::path Entity::filePath() const {
    return resolved(dictionary, fileName);
}

std::shared_ptr<const storage::PointerFile> Entity::pointers() const {
    if (parent == nullptr) {
        return nullptr;
    }
    const std::lock_guard lock(mutex_);
    if (pointers_ == nullptr) {
        pointers_ = openPointers(*this);
    }
    return pointers_;
}

void Entity::closePointers() {
    const std::lock_guard lock(mutex_);
    pointers_ = nullptr;
}

std::uint64_t Entity::records() const {
    return parent == nullptr ? 1 : pointers()->children();
}

Entity* Dictionary::findEntity(const std::string& nameOrAlias) const {
    return findNamed(entities(), nameOrAlias);
}

std::vector<Entity*> Dictionary::entities() const {
    std::vector<Entity*> result;
    if (root != nullptr) {
        collect(*root, result);
    }
    return result;
}

fs::path Dictionary::resolve(const std::string& fileName) const {
    if (fileName.empty()) {
        return {};
    }
    std::string unified = fileName;
    std::replace(unified.begin(), unified.end(), '\\', '/');
    const fs::path& folder = dataFolder.empty() ? file.parent_path() : dataFolder;
    return (folder / unified).lexically_normal();
}

} // namespace kelx::catalog
