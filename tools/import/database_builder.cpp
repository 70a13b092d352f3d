// SPDX-License-Identifier: Apache-2.0
#include "import/database_builder.h"

#include "catalog/reader.h"
#include "import/replacement.h"
#include "import/staging.h"
#include "import/values.h"
#include "storage/folder_lock.h"

#include <optional>

namespace kelx::tools {

using storage::ValueType;
namespace fs = std::filesystem;

DatabaseBuilder::DatabaseBuilder(const ImportTarget& target, const std::string& rootName,
                                 const std::string& rootLabel)
    : target_(target) {
    dictionary_.name = target.database.stem().string();
    dictionary_.label = rootLabel.empty() ? dictionary_.name : rootLabel;
    dictionary_.key = target.key;
    dictionary_.root = std::make_unique<catalog::Entity>();
    dictionary_.root->dictionary = &dictionary_;
    dictionary_.root->name = rootName;
    dictionary_.root->label = rootLabel.empty() ? rootName : rootLabel;
}

catalog::Entity& DatabaseBuilder::addEntity(catalog::Entity& parent, const LevelPlan& level,
                                            bool selectable) {
    auto entity = std::make_unique<catalog::Entity>();
    entity->name = level.name;
    entity->label = level.label.empty() ? level.name : level.label;
    entity->fileName = dataFile(level.name, ".kpt");
    entity->selectable = selectable;
    return *parent.addChild(std::move(entity));
}

catalog::Variable& DatabaseBuilder::addVariable(catalog::Entity& entity, const FieldPlan& field,
                                                int decimals) {
    auto made = std::make_unique<catalog::Variable>();
    made->name = field.name;
    made->label = field.label;
    made->fileName = dataFile(entity.name + "_" + field.name, ".kbf");
    made->type = field.type;
    made->size = field.width;
    made->ranges = field.ranges;
    if (field.type == ValueType::Real)
        made->decimals = decimals;
    for (const CodeEntry& entry : field.codes) {
        if (!entry.label.empty())
            made->valueLabels.emplace_back(entry.code, entry.label);
        if (entry.meaning == CodeMeaning::Missing)
            made->missing = parseReal(entry.code);
        if (entry.meaning == CodeMeaning::NotApplicable)
            made->notapp = parseReal(entry.code);
    }
    catalog::Variable* variable = entity.addVariable(std::move(made));
    if (field.role == FieldRole::Key)
        entity.codeVar = variable;
    if (field.role == FieldRole::Label)
        entity.labelVar = variable;
    if (field.role == FieldRole::Weight)
        entity.weightVar = variable;
    return *variable;
}

/// A file name that no other one of this database has, in any case.
std::string DatabaseBuilder::dataFile(const std::string& stem, const std::string& extension) {
    std::string name = stem + extension;
    for (int n = 2; !stems_.insert(upperCase(name)).second; ++n)
        name = std::string(stem).append("_").append(std::to_string(n)).append(extension);
    files_.insert(name);
    return name;
}

void DatabaseBuilder::write(const std::function<void(const fs::path& folder)>& writeData) {
    const std::string own = target_.database.filename().string();
    std::vector<std::string> names(files_.begin(), files_.end());
    std::optional<Replacement> replaced;
    if (target_.overwrite)
        replaced.emplace(target_.database, names, target_.questions);
    names.push_back(own); // last: the database is there once its data are
    Staging staging(target_.database, names, target_.overwrite);
    dictionary_.file = staging.folder() / own;
    dictionary_.dataFolder = staging.folder();
    writeData(staging.folder());
    catalog::saveDictionary(dictionary_, dictionary_.file);
    const storage::FolderLock lock(target_.database, {}); // programs that run may be saving
    staging.publish();
    if (replaced)
        replaced->removeLeftovers();
}

} // namespace kelx::tools
