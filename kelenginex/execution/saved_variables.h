// SPDX-License-Identifier: Apache-2.0
// Variables of a program that are to stay: from their columns to files.
#pragma once

#include "execution/progress.h"
#include "language/bound.h"
#include "language/messages.h"
#include "storage/staged_files.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelx::execution {

/// Those of one run. Unless it comes to settle(), they are described as before when this ends. All
/// functions throw storage::FileError.
class SavedVariables {
public:
    /// Finds what a program must not do before any work is done.
    explicit SavedVariables(const language::BoundProgram& program);
    ~SavedVariables();
    SavedVariables(const SavedVariables&) = delete;
    SavedVariables& operator=(const SavedVariables&) = delete;

    /// Records to write, over all variables.
    std::uint64_t records() const;
    /// Stages the columns, and describes the variables as they stand in their files. The progress
    /// gets what is written, in records. Throws Cancelled.
    void write(storage::StagedFiles& files, language::Messages& messages, Progress& progress);
    /// Looks again whether no file is in the way, as others may have written meanwhile.
    void checkFiles() const;
    /// The files have their names: from now on the variables' data are those in them.
    void settle();

private:
    struct Description {
        catalog::Variable* variable;
        std::string fileName;
        storage::ValueType type;
        int size;
        std::optional<double> notapp;
        std::optional<storage::RawLayout> raw;
    };
    void keepDescriptions();

    std::vector<const language::Definition*> definitions_;
    std::vector<Description> before_;
};

} // namespace kelx::execution
