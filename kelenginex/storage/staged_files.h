// SPDX-License-Identifier: Apache-2.0
// Several files that appear together or not at all.
#pragma once

#include <filesystem>
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
    /// followed; the file keeps the mode of one that it replaces.
    std::filesystem::path stage(const std::filesystem::path& file);
    /// A file whose staged name another writer has chosen.
    void add(const std::filesystem::path& staged, const std::filesystem::path& file);
    /// Gives all their names. Where one cannot have it, those that had their names before stand
    /// as they were.
    void publish();

private:
    struct Entry {
        std::filesystem::path staged, file;
        std::filesystem::path backup; ///< a second name of the file that was replaced
        bool published = false;
    };
    static void keepOld(Entry& entry);
    void takeBack();
    std::vector<Entry> entries_;
};

} // namespace kelx::storage
