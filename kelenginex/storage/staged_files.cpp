// SPDX-License-Identifier: Apache-2.0
#include "storage/staged_files.h"

#include "storage/change_journal.h"
#include "storage/posix_io.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelx::storage {

namespace {

namespace fs = std::filesystem;

void remove(fs::path& file) {
    if (!file.empty())
        ::unlink(file.c_str());
    file.clear();
}

} // namespace

StagedFiles::~StagedFiles() {
    for (Entry& entry : entries_) {
        if (!entry.published)
            remove(entry.staged);
        remove(entry.backup);
        if (entry.held >= 0)
            ::close(entry.held);
    }
}

fs::path StagedFiles::stage(const fs::path& file) {
    const fs::path target = targetOf(file);
    requireFree(target);
    const TemporaryFile created = createTemporaryBeside(target);
    add(created.name, target);
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0 && S_ISREG(old.st_mode))
        static_cast<void>(::fchmod(created.descriptor, old.st_mode & 07777));
    ::close(created.descriptor);
    return created.name;
}

void StagedFiles::write(const fs::path& file, const std::function<void(const fs::path&)>& writer) {
    const fs::path staged = stage(file);
    try {
        writer(staged);
        hold(staged);
    } catch (const FileError& error) {
        throwOfTarget(error);
        throw;
    }
}

/// So that no other process takes it for left behind. Descriptors are few, and there may be
/// thousands of files: those beyond are known by the number of their process alone.
void StagedFiles::hold(const fs::path& staged) {
    constexpr std::ptrdiff_t most = 200;
    const auto held = std::count_if(entries_.begin(), entries_.end(),
                                    [](const Entry& entry) { return entry.held >= 0; });
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& each) { return each.staged == staged; });
    if (held >= most || entry == entries_.end())
        return;
    entry->held = ::open(staged.c_str(), O_RDONLY | O_CLOEXEC);
    if (entry->held >= 0)
        static_cast<void>(::flock(entry->held, LOCK_EX | LOCK_NB));
}

/// The writer may have staged more files, such as a description.
void StagedFiles::throwOfTarget(const FileError& error) const {
    const std::string problem = error.what();
    for (const Entry& entry : entries_) {
        const std::string prefix = entry.staged.string() + ": ";
        if (problem.starts_with(prefix))
            throw FileError(entry.file, problem.substr(prefix.size()));
    }
}

void StagedFiles::add(const fs::path& staged, const fs::path& file) {
    const fs::path target = targetOf(file);
    requireFree(target);
    entries_.push_back({staged, target, realFile(target), {}, false, false, -1});
}

void StagedFiles::requireFree(const fs::path& target) const {
    requireReplaceable(target);
    const fs::path real = realFile(target);
    for (const Entry& entry : entries_) {
        if (entry.real == real)
            throw FileError(target, "would be written twice, the second time over the first");
    }
}

void StagedFiles::publish(const std::function<void()>& afterEach) {
    const bool isJournalled = !journalFolder_.empty() && entries_.size() > 1;
    if (isJournalled)
        writeJournal();
    try {
        publishAll(afterEach);
    } catch (...) {
        if (isJournalled)
            removeJournal(journalFolder_);
        takeBack();
        throw;
    }
    if (isJournalled)
        removeJournal(journalFolder_);
}

void StagedFiles::writeJournal() const {
    std::vector<StagedMove> moves;
    for (const Entry& entry : entries_)
        moves.push_back({entry.staged, entry.file});
    storage::writeJournal(journalFolder_, moves);
}

void StagedFiles::publishAll(const std::function<void()>& afterEach) {
    for (Entry& entry : entries_) {
        requireReplaceable(entry.file); // something may have come in between
        keepOld(entry);
        if (::rename(entry.staged.c_str(), entry.file.c_str()) != 0)
            failWithErrno(entry.file, "cannot be written");
        entry.published = true;
        if (afterEach)
            afterEach();
    }
    for (const Entry& entry : entries_)
        syncFolderOf(entry.file);
}

void StagedFiles::keepOld(Entry& entry) {
    const fs::path name = fs::path(entry.staged).concat(".old");
    if (::link(entry.file.c_str(), name.c_str()) == 0)
        entry.backup = name;
    else
        entry.isNew = errno == ENOENT;
}

void StagedFiles::takeBack() {
    for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
        if (!entry->published)
            continue;
        if (entry->isNew)
            ::unlink(entry->file.c_str());
        else if (!entry->backup.empty() &&
                 ::rename(entry->backup.c_str(), entry->file.c_str()) == 0)
            entry->backup.clear();
    }
}

} // namespace kelx::storage
