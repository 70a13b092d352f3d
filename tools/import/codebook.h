// SPDX-License-Identifier: Apache-2.0
// What the columns of a set of CSV files mean.
#pragma once

#include "catalog/model.h"
#include "import/located_error.h"
#include "storage/column.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kelx::tools {

enum class FieldRole { Value, Key, ParentKey, Weight, Label };
enum class CodeMeaning { Valid, Missing, NotApplicable };

/// A labelled code of a field.
struct CodeEntry {
    std::string code; ///< as the field's values are written
    std::string label;
    CodeMeaning meaning = CodeMeaning::Valid;
};

/// Numbers that become one code.
struct Recode {
    double lowest = 0;
    double highest = 0;
    double code = 0;
};

/// A column of a level's file.
struct FieldPlan {
    std::string name; ///< in capitals
    std::string label;
    FieldRole role = FieldRole::Value;
    storage::ValueType type = storage::ValueType::Integer;
    bool coded = false; ///< values without a label are worth a word
    int width = 0;      ///< characters of a text: exact for keys and codes, else the most; 0: any
    bool loose = false; ///< no text needs to have exactly its width
    int impliedDecimals = 0; ///< digits behind the point where a real is written without one
    std::vector<CodeEntry> codes;
    std::vector<catalog::Range> ranges;
    std::vector<Recode> recodes;
    Place place;

    bool exactWidth() const { return width > 0 && !loose && (coded || role == FieldRole::Key); }
};

/// A level, that is an entity and its file.
struct LevelPlan {
    std::string name; ///< in capitals
    std::string label;
    std::vector<FieldPlan> fields;
    Place place; ///< of its first row

    const FieldPlan* find(const std::string& name) const;
    const FieldPlan* withRole(FieldRole role) const; ///< the first such
};

/// A whole codebook.
struct Codebook {
    std::string file;
    std::vector<LevelPlan> levels;
    std::optional<std::string> root; ///< the level that a row of type "root" names

    const LevelPlan* find(const std::string& name) const;
};

/// Reads a CSV file with the columns level, field, type, code, label, is_missing. A row without a
/// field describes its level, a row without a code its field. Throws LocatedError.
Codebook readCodebook(const std::filesystem::path& file);

} // namespace kelx::tools
