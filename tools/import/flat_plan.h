// SPDX-License-Identifier: Apache-2.0
// How the rows of one file are records of several levels.
#pragma once

#include "import/row_source.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace kelx::tools {

constexpr std::size_t noLevel = std::numeric_limits<std::size_t>::max();

/// A level of a flat file. The fields of its plan stand in the order of `fields`.
struct FlatLevel {
    LevelPlan plan;
    std::size_t parent = noLevel;
    std::optional<std::size_t> key;    ///< the field that tells its records apart
    bool integerKey = false;           ///< known to be a whole number
    std::vector<std::size_t> below;    ///< all levels under it
    std::vector<std::size_t> fields{}; ///< known once the levels of all fields are
};

struct FlatPlan {
    std::vector<FlatLevel> levels; ///< each after the one that it lies under
    /// For each kind of row the levels that it has records of, from the top down, each lying
    /// under the one before.
    std::vector<std::vector<std::size_t>> shapes;
    std::vector<std::size_t> levelOf; ///< of each field; noLevel until it is found

    /// Settles parents' descendants; the levels' parents are set.
    void linkLevels();
    /// Fills the levels' plans from the fields.
    void assignFields(const std::vector<SourceField>& fields);
};

/// A level as the user names it.
struct LevelWish {
    std::string name;
    std::string key;      ///< field; may be empty for the lowest level
    std::string labelled; ///< field with the names of its records; may be empty
};
/// Reads "PROVINCE:CODE:NAME,PERSON". Throws std::runtime_error with what is wrong.
std::vector<LevelWish> parseLevels(const std::string& text);

/// The plan for a file whose rows are all alike, under levels that lie one under the other. Roles
/// of keys and labels are set in the fields. Throws std::runtime_error.
FlatPlan chainPlan(const std::vector<LevelWish>& wishes, std::vector<SourceField>& fields);

/// The field with that name, in any case. Throws std::runtime_error where there is none.
std::size_t fieldNamed(const std::vector<SourceField>& fields, const std::string& name);

} // namespace kelx::tools
