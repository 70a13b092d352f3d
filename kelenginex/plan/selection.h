// SPDX-License-Identifier: Apache-2.0
// From the areas that a run is about to ranges of records.
#pragma once

#include "language/bound.h"
#include "plan/hierarchy.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace kelx::plan {

/// Areas found, by entity, and codes that no record has.
struct SelectedAreas {
    std::map<const Entity*, RecordRanges> records;
    std::vector<language::AreaSelection::Area> unknown;
};

/// The records of an entity with one of the compound codes.
RecordRanges recordsOfAreas(const Entity& entity, const std::set<std::string>& codes);

/// Finds the records with the listed compound codes, going only into areas whose code begins one.
SelectedAreas findAreas(const language::AreaSelection& selection);

/// Records of the unit whose ancestor (or which themselves) are among the areas. Areas of entities
/// that are not above or at the unit select nothing.
RecordRanges recordsUnder(const SelectedAreas& areas, const Entity& unit);

/// What the selections of a program leave of entities' records, each selection's areas being looked
/// up once. Codes that no area has are warnings.
class Selections {
public:
    explicit Selections(language::Messages& messages) : messages_(messages) {}

    /// All records where the selection is null or lists no areas. Throws storage::FileError where
    /// codes or pointers cannot be read.
    RecordRanges recordsOf(const Entity& unit, const language::AreaSelection* selection);

private:
    const SelectedAreas& areasOf(const language::AreaSelection& selection);

    language::Messages& messages_;
    std::map<const language::AreaSelection*, SelectedAreas> areas_;
};

} // namespace kelx::plan
