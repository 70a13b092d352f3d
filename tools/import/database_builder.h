// SPDX-License-Identifier: Apache-2.0
// Puts the dictionary of an import together and writes it with its data.
#pragma once

#include "catalog/model.h"
#include "import/codebook.h"
#include "import/import_report.h"

#include <functional>
#include <set>
#include <string>

namespace kelx::tools {

class DatabaseBuilder {
public:
    DatabaseBuilder(const ImportTarget& target, const std::string& rootName,
                    const std::string& rootLabel);

    catalog::Dictionary& dictionary() { return dictionary_; }
    catalog::Entity& root() { return *dictionary_.root; }
    /// An entity with the level's name, label and a pointer file.
    catalog::Entity& addEntity(catalog::Entity& parent, const LevelPlan& level, bool selectable);
    /// A variable with what the field says; the entity refers to it where the field has a role.
    catalog::Variable& addVariable(catalog::Entity& entity, const FieldPlan& field, int decimals);

    /// Calls for the data, for which it names a folder, and lets all files appear at once.
    void write(const std::function<void(const std::filesystem::path& folder)>& writeData);

private:
    std::string dataFile(const std::string& stem, const std::string& extension);

    const ImportTarget& target_;
    catalog::Dictionary dictionary_;
    std::set<std::string> files_, stems_;
};

} // namespace kelx::tools
