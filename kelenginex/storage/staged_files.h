// SPDX-License-Identifier: Apache-2.0
// Several files that appear together or not at all.
#pragma once

#include "storage/error.h"

#include <filesystem>
#include <functional>
#include <vector>

namespace kelx::storage {

/// Files are written under names of their own beside those that they are to have. Without
/// publish() they go away. All functions throw FileError.
class StagedFiles {
public:
    StagedFiles() = default;
    ~StagedFiles();
    StagedFiles(const StagedFiles&) = delete;
    StagedFiles& operator=(const StagedFiles&) = delete;

    /// Where to write a file whose parts are complete and synced when they stand there. A link is
    /// followed; the file keeps the mode of one that it replaces. Refuses what is no regular file,
    /// and a second file for one place, whatever its name.
    std::filesystem::path stage(const std::filesystem::path& file);
    /// Stages a file and has it written; what goes wrong is told of the name that it is to have.
    void write(const std::filesystem::path& file,
               const std::function<void(const std::filesystem::path& staged)>& writer);
    /// A file whose staged name another writer has chosen.
    void add(const std::filesystem::path& staged, const std::filesystem::path& file);
    /// Gives all their names, in the order of their staging. Where one cannot have it, those that
    /// had their names before stand as they were; on a file system without second names for a file
    /// they stand as they are now, but are never lost.
    /// A journal goes before, where one is asked for. Calls afterEach each time that one has its
    /// name.
    void publish(const std::function<void()>& afterEach = {});
    /// The files belong together: where the process is killed halfway, who next locks or reads this
    /// folder finishes what is left. The caller has locked it.
    void keepJournal(const std::filesystem::path& folder) { journalFolder_ = folder; }

private:
    struct Entry {
        std::filesystem::path staged, file;
        std::filesystem::path real;   ///< file under its one name
        std::filesystem::path backup; ///< a second name of the file that was replaced
        bool isNew = false;           ///< there was no such file
        bool published = false;
        int held = -1; ///< descriptor of the staged file, locked
    };
    void hold(const std::filesystem::path& staged);
    void throwOfTarget(const FileError& error) const;
    void requireFree(const std::filesystem::path& target) const;
    static void keepOld(Entry& entry);
    void writeJournal() const;
    void publishAll(const std::function<void()>& afterEach);
    void takeBack();
    std::vector<Entry> entries_;
    std::filesystem::path journalFolder_;
};

} // namespace kelx::storage
