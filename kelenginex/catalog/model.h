// SPDX-License-Identifier: Apache-2.0
// A dictionary in memory: entities, variables and where their data are. Plain values; the boundary
// wraps them and the language reads them.
#pragma once

#include "storage/column.h"
#include "storage/pointer_file.h"
#include "storage/raw_column.h"
#include "storage/secret.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kelx::catalog {

using storage::ValueType;
struct Dictionary;
struct Entity;

/// A range of valid values; kinds 1 to 10 as in .dicx files (4 is closed at both ends).
struct Range {
    int kind = 4;
    double minimum = 0;
    double maximum = 0;

    bool contains(double value) const;
};

/// Where a variable stands in the lines of a text that its dictionary describes.
struct TextField {
    std::string recordType;   ///< of the lines that have it; empty where all are alike
    std::optional<int> turn;  ///< its number among the fields of a line
    std::optional<int> start; ///< its first character, from 1
};

/// A variable of an entity.
struct Variable {
    Entity* entity = nullptr;
    std::string name, label, alias, group, documentation, metadata;
    std::string fileName; ///< as written, relative to the data folder; ends in .kbf or .bin
    ValueType type = ValueType::None;
    int size = 0;
    std::optional<int> decimals;
    std::optional<double> notapp, missing; ///< codes, also of text variables that hold numbers
    int state = 1;
    int tag = -1;
    bool active = true;
    bool define = false; ///< made by a DEFINE of the running program
    bool local = false;  ///< made by a program
    bool hidden = false; ///< kept for dictionaries that mark it so; has no effect of its own
    std::optional<int> sensitive;
    std::vector<Range> ranges;
    std::vector<std::pair<std::string, std::string>> valueLabels; ///< value, label
    std::optional<storage::RawLayout> raw; ///< of a .bin file, as the dictionary says
    std::optional<TextField> textField;    ///< of a .dicx that describes a text; never written

    /// ENTITY.VARIABLE, as the command language writes it.
    std::string fullName() const;
    /// Label of a value, null where it has none.
    const std::string* labelOf(const std::string& value) const;
    /// The data; opened at the first call and kept. Throws storage::FileError. Safe to call from
    /// several threads.
    std::shared_ptr<const storage::Column> column() const;
    std::filesystem::path filePath() const; ///< fileName resolved against the data folder
    bool fileFound() const;
    /// Takes values from here instead of the file (variables that a program makes).
    void setColumn(std::shared_ptr<const storage::Column> column);
    void closeColumn(); ///< the next column() opens the file anew
    /// Takes over everything but the entity and the open data.
    void copyDescription(const Variable& from);

private:
    mutable std::shared_ptr<const storage::Column> column_;
    mutable std::mutex mutex_;
};

/// An entity of the hierarchy. The root has one record.
struct Entity {
    Dictionary* dictionary = nullptr;
    Entity* parent = nullptr;
    std::string name, label, alias, documentation, metadata;
    std::string fileName; ///< the .kpt file that groups its records under the parent's; none: root
    bool selectable = false;
    bool isVirtual = false;
    bool active = true;
    bool hidden = false; ///< kept for dictionaries that mark it so; has no effect of its own
    int tag = -1;
    std::optional<int> sensitive;
    Variable* codeVar = nullptr;
    Variable* labelVar = nullptr;
    Variable* weightVar = nullptr;
    std::vector<std::unique_ptr<Variable>> variables;
    std::vector<std::unique_ptr<Entity>> children;

    Entity* addChild(std::unique_ptr<Entity> child);           ///< sets its parent and dictionary
    Variable* addVariable(std::unique_ptr<Variable> variable); ///< sets its entity
    Variable* findVariable(const std::string& nameOrAlias) const; ///< in any case
    bool isAncestorOf(const Entity& other) const;                 ///< true for itself too
    bool hasCode() const; ///< true where it or an entity above has a code variable
    int level() const;    ///< 1 for the root
    std::filesystem::path filePath() const;
    /// Offsets of this entity's records under the parent's; null for the root. Opened at the first
    /// call and kept. Throws storage::FileError.
    std::shared_ptr<const storage::PointerFile> pointers() const;
    void closePointers();          ///< the next pointers() opens the file anew
    std::uint64_t records() const; ///< 1 for the root

private:
    mutable std::shared_ptr<const storage::PointerFile> pointers_;
    mutable std::mutex mutex_;
};

/// A whole database.
struct Dictionary {
    std::string name, label, author, created, updated;
    std::string typeType = "DICTIONARY";
    std::filesystem::path file;       ///< the dictionary file, absolute
    std::filesystem::path dataFolder; ///< relative file names resolve against it
    std::unique_ptr<Entity> root;
    std::shared_ptr<const storage::Secret> key; ///< of a protected database
    bool dirty = false;

    Entity* findEntity(const std::string& nameOrAlias) const; ///< in any case
    std::vector<Entity*> entities() const;                    ///< pre-order
    /// fileName against the data folder; backslashes count as separators.
    std::filesystem::path resolve(const std::string& fileName) const;
};

} // namespace kelx::catalog
