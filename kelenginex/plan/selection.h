// SPDX-License-Identifier: Apache-2.0
// From the areas that a run is about to ranges of records.
#pragma once

#include "language/bound.h"
#include "plan/hierarchy.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace kelx::plan {

using language::AreaSelection;

/// Areas found, by entity, and codes that no record has.
struct SelectedAreas {
    struct Unknown {
        AreaSelection::Area area;
        std::string similar; ///< a code that differs in the case of letters only; may be empty
    };
    std::map<const Entity*, RecordRanges> records;
    std::vector<Unknown> unknown;
};

/// The records of an entity with one of the compound codes.
RecordRanges recordsOfAreas(const Entity& entity, const std::set<std::string>& codes);

/// Finds the records with the listed compound codes, going only into areas whose code begins one.
SelectedAreas findAreas(const std::vector<AreaSelection::Area>& areas);

/// The areas that a condition names: ENTITY = "code", also with IN, within AND, OR and NOT.
std::vector<AreaSelection::Area> areasNamedBy(const language::Expression& condition);
/// True where the condition is nothing but a choice of the areas that it names.
bool isChoiceOfAreas(const language::Expression& condition);

/// Records of the unit whose ancestor (or which themselves) are among the areas. Areas of entities
/// that are not above or at the unit select nothing.
RecordRanges recordsUnder(const SelectedAreas& areas, const Entity& unit);

/// What the selections of a program leave of entities' records, each selection's areas being looked
/// up once. Codes that no area has are warnings.
class Selections {
public:
    explicit Selections(language::Messages& messages) : messages_(messages) {}

    /// All records where the selection is null, or does not choose by areas alone. Throws
    /// storage::FileError where codes or pointers cannot be read.
    RecordRanges recordsOf(const Entity& unit, const AreaSelection* selection);

    /// True for a condition that recordsOf() fulfils: one that only chooses areas is as good as a
    /// list of them where the unit lies in all of these.
    bool isByRanges(const Entity& unit, const AreaSelection& selection);
    /// Warns of areas that a filter names and that there are not; `what` is "filter" or the like.
    void checkFilter(const language::ExpressionPtr& filter, const std::string& what);

private:
    const SelectedAreas& areasOf(const AreaSelection& selection);
    void tellOf(const SelectedAreas::Unknown& unknown, const std::string& names);

    language::Messages& messages_;
    std::map<const AreaSelection*, SelectedAreas> areas_;
    std::set<language::ExpressionPtr> filters_; ///< checked
    std::set<std::tuple<std::size_t, std::int64_t, std::int64_t, std::string>>
        told_; ///< unknown areas
};

} // namespace kelx::plan
