// SPDX-License-Identifier: Apache-2.0
#include "storage/change_journal.h"

#include "storage/atomic_file.h"
#include "storage/error.h"
#include "storage/leftovers.h"
#include "storage/posix_io.h"

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace kelx::storage {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view head("kelx journal 1\n");
constexpr std::string_view tail("end\n");
constexpr std::uintmax_t mostBytes = std::uintmax_t{64} << 20;

fs::path journalIn(const fs::path& folder) {
    return folder / ".kelx-journal";
}

[[noreturn]] void failDamaged(const fs::path& journal) {
    throw FileError(journal, "is damaged: it should tell what a program that was stopped still had "
                             "to do; take the database from a copy");
}

std::string contentOf(const fs::path& journal) {
    std::error_code fault;
    const auto size = fs::file_size(journal, fault);
    if (fault || size > mostBytes)
        failDamaged(journal);
    std::ifstream in(journal, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The text up to the next zero.
std::string_view takeName(std::string_view& text, const fs::path& journal) {
    const std::size_t end = text.find('\0');
    if (end == std::string_view::npos)
        failDamaged(journal);
    const std::string_view name = text.substr(0, end);
    text.remove_prefix(end + 1);
    return name;
}

/// A name alone leads out of no folder.
std::string_view takeFileName(std::string_view& text, const fs::path& journal) {
    const std::string_view name = takeName(text, journal);
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string_view::npos)
        failDamaged(journal);
    return name;
}

std::uint64_t takeNumber(std::string_view& text, const fs::path& journal) {
    const std::string_view digits = takeName(text, journal);
    std::uint64_t number = 0;
    const auto [stop, fault] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (fault != std::errc() || stop != digits.data() + digits.size())
        failDamaged(journal);
    return number;
}

/// A move, and the number by which the system knows the file under either name.
struct JournalMove : StagedMove {
    std::uint64_t number;
};

std::uint64_t numberOf(const fs::path& file) {
    struct stat status {};
    return ::lstat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode) ? status.st_ino : 0;
}

/// Nothing moves but a temporary file of ours, to another name in its own folder.
std::vector<JournalMove> readJournal(const fs::path& folder) {
    const fs::path journal = journalIn(folder);
    const std::string content = contentOf(journal);
    std::string_view text = content;
    if (!text.starts_with(head) || !text.ends_with(tail) || text.size() < head.size() + tail.size())
        failDamaged(journal);
    text.remove_prefix(head.size());
    text.remove_suffix(tail.size());
    std::vector<JournalMove> moves;
    while (!text.empty()) {
        const fs::path part = takeName(text, journal);
        const std::string_view staged = takeFileName(text, journal);
        const std::string_view file = takeFileName(text, journal);
        if (!isTemporaryName(staged) || part.is_absolute())
            failDamaged(journal);
        const fs::path place = folder / part;
        moves.push_back({{place / staged, place / file}, takeNumber(text, journal)});
    }
    return moves;
}

constexpr const char* stopped = "a program was stopped while it changed the database, which ";

bool isMoved(const JournalMove& move) {
    return numberOf(move.staged) == 0;
}

/// A file that has gone may only have gone to its name.
void requirePossible(const JournalMove& move) {
    if (isMoved(move) && numberOf(move.file) != move.number)
        throw FileError(move.file, std::string(stopped) +
                                       "cannot be finished since a file of it is gone; take the "
                                       "database from a copy");
}

void finish(const JournalMove& move) {
    if (isMoved(move))
        return;
    requireReplaceable(move.file);
    if (::rename(move.staged.c_str(), move.file.c_str()) != 0)
        failWithErrno(move.file, std::string(stopped) + "cannot be finished");
    syncFolderOf(move.file);
}

} // namespace

void writeJournal(const fs::path& folder, const std::vector<StagedMove>& moves) {
    AtomicFile out(journalIn(folder));
    out.write(head);
    const fs::path base = realFile(folder / ".kelx-journal").parent_path();
    for (const StagedMove& move : moves) {
        const fs::path place = realFile(move.file).parent_path();
        for (const std::string& part :
             {place.lexically_relative(base).string(), move.staged.filename().string(),
              move.file.filename().string(), std::to_string(numberOf(move.staged))}) {
            out.write(part);
            out.write(std::string_view("\0", 1));
        }
    }
    out.write(tail);
    out.commit();
}

void removeJournal(const fs::path& folder) {
    ::unlink(journalIn(folder).c_str());
}

bool hasJournal(const fs::path& folder) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(journalIn(folder), ignored));
}

void finishChange(const fs::path& folder) {
    if (!hasJournal(folder))
        return;
    const std::vector<JournalMove> moves = readJournal(folder);
    for (const JournalMove& move : moves)
        requirePossible(move);
    for (const JournalMove& move : moves)
        finish(move);
    removeJournal(folder);
}

} // namespace kelx::storage
