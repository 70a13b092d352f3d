// SPDX-License-Identifier: GPL-3.0-or-later
// A small census in memory, and short words for compiling against it.
#pragma once

#include "catalog/model.h"
#include "language/compile.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace kelx::language {

/// NATION > PROVINCE > DISTRICT > HOUSEHOLD > PERSON, and DEATH beside PERSON. Each data file holds
/// one byte, so that it is found; the file of PERSON.LOST does not exist.
class Census {
public:
    Census();

    catalog::Dictionary dictionary;
    CompileOptions options;
    Messages messages; ///< of the last compile

    BoundProgram compile(const std::string& program);
    catalog::Entity& entity(const std::string& name) { return *dictionary.findEntity(name); }
    catalog::Variable& variable(const std::string& entityName, const std::string& name) {
        return *entity(entityName).findVariable(name);
    }
    catalog::Variable& add(const std::string& entityName, const std::string& name, ValueType type);
    std::filesystem::path write(const std::string& file, const std::string& content) const {
        return folder_.write(file, content);
    }

private:
    test::TemporaryFolder folder_;
};

/// "KEL_E_UNKNOWN_VARIABLE 1:6", one line a message, by place.
std::string located(const Messages& messages);
/// The same with the texts.
std::string told(const Messages& messages);
/// An expression with all parentheses, (a OR (b AND c)).
std::string shape(const Expression& expression);
/// "PERSON.OLD BOOLEAN: (PERSON.AGE > 64)", "DISTRICT.N INTEGER: COUNT PERSON filter PERSON.WORKS".
std::string shape(const Definition& definition);
std::string definitions(const BoundProgram& program); ///< one line for each
/// "FREQ_1 PERSON: PERSON.SEX BY PERSON.AGE weight HOUSEHOLD.WEIGHT", one line a table.
std::string summary(const BoundProgram& program);

} // namespace kelx::language
