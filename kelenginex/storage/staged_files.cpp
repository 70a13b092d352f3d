// SPDX-License-Identifier: Apache-2.0
#include "storage/staged_files.h"

#include "storage/error.h"
#include "storage/posix_io.h"

#include <cstdio>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace kelx::storage {

namespace {

namespace fs = std::filesystem;

fs::path targetOf(const fs::path& file) {
    std::error_code ignored;
    if (!fs::is_symlink(file, ignored))
        return file;
    const auto target = fs::weakly_canonical(file, ignored);
    return ignored ? file : target;
}

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
    }
}

fs::path StagedFiles::stage(const fs::path& file) {
    const fs::path target = targetOf(file);
    const TemporaryFile created = createTemporaryBeside(target);
    add(created.name, target);
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0 && S_ISREG(old.st_mode))
        static_cast<void>(::fchmod(created.descriptor, old.st_mode & 07777));
    ::close(created.descriptor);
    return created.name;
}

void StagedFiles::add(const fs::path& staged, const fs::path& file) {
    entries_.push_back({staged, targetOf(file), {}, false});
}

void StagedFiles::publish() {
    for (Entry& entry : entries_) {
        keepOld(entry);
        if (::rename(entry.staged.c_str(), entry.file.c_str()) != 0) {
            const int why = errno;
            takeBack();
            errno = why;
            failWithErrno(entry.file, "cannot be written");
        }
        entry.published = true;
    }
    for (const Entry& entry : entries_)
        syncFolderOf(entry.file);
}

/// A file system without second names keeps nothing: a file is replaced there for good.
void StagedFiles::keepOld(Entry& entry) {
    const fs::path name = fs::path(entry.staged).concat(".old");
    if (::link(entry.file.c_str(), name.c_str()) == 0)
        entry.backup = name;
}

void StagedFiles::takeBack() {
    for (Entry& entry : entries_) {
        if (!entry.published)
            continue;
        if (entry.backup.empty())
            ::unlink(entry.file.c_str());
        else if (::rename(entry.backup.c_str(), entry.file.c_str()) == 0)
            entry.backup.clear();
    }
}

} // namespace kelx::storage
