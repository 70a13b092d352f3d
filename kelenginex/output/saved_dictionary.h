// SPDX-License-Identifier: Apache-2.0
// The dictionary's file, as a run changes it together with the columns that it saves.
#pragma once

#include "catalog/model.h"
#include "language/bound.h"
#include "storage/folder_lock.h"
#include "storage/pulse.h"
#include "storage/staged_files.h"

#include <memory>
#include <optional>

namespace kelx::output {

/// Which of the variables that a program saves are to join the file.
enum class Joined {
    All,
    Replaced ///< those whose data in the file's dictionary are written anew, which it must fit
};

/// Others may have saved variables since the dictionary was read: its file is read again, and they
/// wait until this ends.
class SavedDictionary {
public:
    /// Stages the file with the variables; nothing where none is to join. Throws
    /// storage::FileError, and what the pulse throws.
    void stage(const language::BoundProgram& program, const catalog::Dictionary& dictionary,
               Joined which, storage::StagedFiles& files, const storage::Pulse& pulse);
    /// What was staged; null where nothing was.
    const catalog::Dictionary* staged() const { return current_.get(); }

private:
    std::optional<storage::FolderLock> lock_;
    std::unique_ptr<catalog::Dictionary> current_;
};

} // namespace kelx::output
