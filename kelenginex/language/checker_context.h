// SPDX-License-Identifier: Apache-2.0
// What all checks of one program share.
#pragma once

#include "catalog/model.h"
#include "language/compile.h"
#include "language/message_table.h"
#include "language/names.h"
#include "language/target_files.h"

#include <initializer_list>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace kelx::language {

class CheckerContext {
public:
    CheckerContext(std::string_view program, const catalog::Dictionary& dictionary, Names& names,
                   const CompileOptions& options, Messages& messages)
        : program_(program), dictionary_(dictionary), names_(names), options_(options),
          messages_(messages), files_(dictionary) {}

    const catalog::Dictionary& dictionary() const { return dictionary_; }
    const Names& names() const { return names_; }
    const CompileOptions& options() const { return options_; }
    Messages& messages() { return messages_; }
    std::string_view program() const { return program_; }
    TargetFiles& files() { return files_; }

    /// The text that is checked, and the folder that it names files from.
    struct Place {
        std::string_view program;
        std::filesystem::path folder;
    };
    /// Goes to another text; gives where it was.
    Place moveTo(Place place);

    template <typename Code>
    void report(Code code, Position position, std::initializer_list<std::string> values = {}) {
        messages_.add(makeMessage(code, position, values));
    }
    bool wantsHints() const { return messages_.wantsHints(); }

    /// Counts what the program keeps in several copies. False where that is too much, which is
    /// reported once.
    bool mayKeep(std::size_t bytes, Position position);

    /// Adds a variable that the program makes to the names. It must live on.
    void define(const catalog::Variable& variable);
    void noteTable(const std::string& name) { names_.noteTable(name); }
    /// True the first time that it is asked about both together.
    bool isNew(std::shared_ptr<const void> clause, const catalog::Entity& unit) {
        return told_.emplace(std::move(clause), &unit).second;
    }

    /// The variable whose DEFINE is being checked; empty texts for none.
    void setDefining(const std::string& entity, const std::string& name);
    bool isDefining(const std::string& entity, const std::string& name) const;
    void expectDefining() { expectName(definingEntity_, definingName_); }

    /// A name that a faulty command makes; its use is no further fault.
    void expectName(const std::string& entity, const std::string& name);
    bool isExpected(const std::string& entity, const std::string& name) const;

    /// False where the variable's data cannot be used, which is reported once.
    bool checkData(const catalog::Variable& variable, Position position);
    /// The type of a variable; where the dictionary names none, the data's own.
    ValueType typeOf(const catalog::Variable& variable) const;

private:
    std::string_view program_;
    const catalog::Dictionary& dictionary_;
    Names& names_;
    CompileOptions options_;
    Messages& messages_;
    TargetFiles files_;
    std::size_t kept_ = 0; ///< bytes
    std::set<std::string> expected_;
    std::string definingEntity_, definingName_; ///< in lower case
    std::unordered_map<const catalog::Variable*, bool> checked_;
    std::set<std::pair<std::shared_ptr<const void>, const catalog::Entity*>> told_;
};

} // namespace kelx::language
