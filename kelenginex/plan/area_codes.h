// SPDX-License-Identifier: Apache-2.0
// Codes of areas as texts: a record's own code and the compound code down from the top.
#pragma once

#include "plan/hierarchy.h"
#include "storage/number_text.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kelx::plan {

/// One value of a variable as text: integers plain, reals shortest, blanks empty. Keeps its
/// scratch, so one for each thread.
class ValueText {
public:
    explicit ValueText(const catalog::Variable& variable);
    std::string at(std::uint64_t record);

private:
    std::shared_ptr<const storage::Column> column_;
    storage::ColumnScratch scratch_;
};

using storage::numberText;

/// An own code as it stands in compound codes: without the blanks around it.
std::string trimmedCode(std::string_view code);

/// Compound codes of an entity's records: own codes of the entities below the root, from the top
/// down, joined without separator. An entity without a code variable adds nothing.
class CompoundCodes {
public:
    explicit CompoundCodes(const Entity& entity);
    std::string at(std::uint64_t record);

private:
    struct Level {
        std::unique_ptr<ValueText> code; ///< null where the entity has none
        std::shared_ptr<const storage::PointerFile> pointers;
    };
    std::vector<Level> levels_; ///< from the entity upwards, without the root
};

} // namespace kelx::plan
