// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/atomic_file.h"
#include "storage/change_journal.h"
#include "storage/folder_lock.h"
#include "storage/leftovers.h"
#include "storage/staged_files.h"
#include "storage_fixture.h"

#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelx::testing {

using StagedFilesTest = StorageTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

namespace {

void write(const std::filesystem::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

std::string read(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace

TEST_F(StagedFilesTest, AppearTogether) {
    write(path("a"), "old a");
    ::chmod(path("a").c_str(), 0640);
    {
        StagedFiles files;
        write(files.stage(path("a")), "new a");
        write(files.stage(path("b")), "new b");
        EXPECT_EQ(read(path("a")), "old a");
        EXPECT_FALSE(std::filesystem::exists(path("b")));
        files.publish();
    }
    EXPECT_EQ(read(path("a")), "new a");
    EXPECT_EQ(read(path("b")), "new b");
    struct stat mode {};
    ::stat(path("a").c_str(), &mode);
    EXPECT_EQ(mode.st_mode & 0777, 0640u);
    EXPECT_THAT(names(), UnorderedElementsAre("a", "b"));
}

TEST_F(StagedFilesTest, GoAwayUnpublished) {
    write(path("a"), "old");
    {
        StagedFiles files;
        write(files.stage(path("a")), "new");
        write(files.stage(path("b")), "new");
    }
    EXPECT_EQ(read(path("a")), "old");
    EXPECT_THAT(names(), UnorderedElementsAre("a"));
}

TEST_F(StagedFilesTest, OneThatCannotHaveItsNameGivesTheOthersBack) {
    write(path("a"), "old a");
    {
        StagedFiles files;
        write(files.stage(path("a")), "new a");
        write(files.stage(path("b")), "new b");
        write(files.stage(path("c")), "new c");
        std::filesystem::create_directories(path("c") / "inside");
        EXPECT_THROW(files.publish(), FileError);
        EXPECT_EQ(read(path("a")), "old a");
        EXPECT_FALSE(std::filesystem::exists(path("b")));
    }
    EXPECT_EQ(read(path("a")), "old a");
    EXPECT_THAT(names(), UnorderedElementsAre("a", "c"));
}

TEST_F(StagedFilesTest, AFileWithoutASecondNameIsNotLost) {
    write(path("a"), "old a");
    StagedFiles files;
    const auto staged = files.stage(path("a"));
    write(staged, "new a");
    write(staged.string() + ".old", "in the way"); // so that the old file cannot be kept
    write(files.stage(path("c")), "new c");
    std::filesystem::create_directories(path("c") / "inside");
    EXPECT_THROW(files.publish(), FileError);
    EXPECT_EQ(read(path("a")), "new a");
}

TEST_F(StagedFilesTest, FaultsNameTheFileThatIsMeant) {
    StagedFiles files;
    try {
        files.write(path("a"), [](const std::filesystem::path& staged) {
            throw FileError(staged, "is full");
        });
        FAIL() << "no fault";
    } catch (const FileError& fault) {
        EXPECT_EQ(fault.what(), path("a").string() + ": is full");
    }
}

TEST_F(StagedFilesTest, FaultsOfADescriptionNameItsOwnFile) {
    StagedFiles files;
    try {
        files.write(path("a"), [&](const std::filesystem::path& staged) {
            files.add(staged.string() + ".desc", path("a.desc"));
            throw FileError(staged.string() + ".desc", "is full");
        });
        FAIL() << "no fault";
    } catch (const FileError& fault) {
        EXPECT_EQ(fault.what(), path("a.desc").string() + ": is full");
    }
}

TEST_F(StagedFilesTest, OnlyRegularFilesAreReplaced) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("pipe", path("link"));
    StagedFiles files;
    EXPECT_THAT(faultOf([&] { files.stage(path("pipe")); }), HasSubstr("no regular file"));
    EXPECT_THAT(faultOf([&] { files.stage(path("link")); }), HasSubstr("no regular file"));
    EXPECT_THAT(faultOf([&] { AtomicFile file(path("link")); }), HasSubstr("no regular file"));
    write(files.stage(path("late")), "new");
    ASSERT_EQ(::mkfifo(path("late").c_str(), 0600), 0);
    EXPECT_THAT(faultOf([&] { files.publish(); }), HasSubstr("no regular file"));
    EXPECT_TRUE(std::filesystem::is_fifo(path("pipe")));
    EXPECT_TRUE(std::filesystem::is_fifo(path("late")));
}

TEST_F(StagedFilesTest, OnePlaceTakesOneFile) {
    std::filesystem::create_symlink("c", path("to_c")); // which is not there
    std::filesystem::create_symlink(".", path("here"));
    StagedFiles files;
    write(files.stage(path("c")), "first");
    for (const char* name : {"c", "to_c", "here/c", "here/to_c"})
        EXPECT_THAT(faultOf([&] { files.stage(path(name)); }), HasSubstr("twice")) << name;
    write(files.stage(path("d")), "other");
    files.publish();
    EXPECT_EQ(read(path("c")), "first");
    EXPECT_THAT(names(), UnorderedElementsAre("c", "d", "to_c", "here"));
}

/// Ends a process in the middle of a change, after so many files have their names.
class KilledChange : public StorageTest {
protected:
    void changeKilledAfter(int renames) {
        for (const char* name : {"a", "b", "sub/c"})
            write(path(name), "old");
        const pid_t child = ::fork();
        if (child == 0) {
            StagedFiles files;
            for (const char* name : {"a", "b", "sub/c", "new"})
                files.write(path(name), [](const std::filesystem::path& staged) {
                    AtomicFile out(staged);
                    out.write(std::string_view("new"));
                    out.commit();
                });
            files.keepJournal(path("a").parent_path());
            files.publish([&] {
                if (--renames == 0)
                    ::_exit(0);
            });
            ::_exit(1);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
    }
    void expectNew() const {
        for (const char* name : {"a", "b", "sub/c", "new"})
            EXPECT_EQ(read(path(name)), "new") << name;
    }
};

TEST_F(KilledChange, IsFinishedByWhoLocksTheFolder) {
    std::filesystem::create_directory(path("sub"));
    for (int renames = 1; renames <= 4; ++renames) {
        SCOPED_TRACE(renames);
        std::filesystem::remove(path("new"));
        changeKilledAfter(renames);
        EXPECT_EQ(read(path("new")), renames == 4 ? "new" : "");
        EXPECT_FALSE(leftoversIn(path("a").parent_path()).empty());
        const FolderLock lock(path("a"), {});
        expectNew();
        EXPECT_THAT(names(), UnorderedElementsAre("a", "b", "new", "sub"));
    }
}

TEST_F(KilledChange, IsFinishedByWhoReads) {
    std::filesystem::create_directory(path("sub"));
    changeKilledAfter(2);
    awaitWholeFolderOf(path("a"));
    expectNew();
}

TEST_F(KilledChange, IsNotFinishedWhereAFolderIsInTheWay) {
    std::filesystem::create_directory(path("sub"));
    changeKilledAfter(1);
    std::filesystem::remove(path("b"));
    std::filesystem::create_directory(path("b"));
    EXPECT_THAT(faultOf([&] { awaitWholeFolderOf(path("a")); }), HasSubstr("b: "));
    std::filesystem::remove(path("b"));
    awaitWholeFolderOf(path("a"));
    expectNew();
}

TEST_F(KilledChange, IsNotTakenForDoneWhereItsFilesAreGone) {
    std::filesystem::create_directory(path("sub"));
    changeKilledAfter(1);
    removeLeftovers(path("sub")); // by who knows nothing of the journal beside
    EXPECT_THAT(faultOf([&] { awaitWholeFolderOf(path("a")); }), HasSubstr("is gone"));
    EXPECT_EQ(read(path("b")), "old");
}

TEST_F(KilledChange, IsLeftToAProcessThatHoldsTheFolder) {
    std::filesystem::create_directory(path("sub"));
    const FolderLock lock(path("a"), {});
    changeKilledAfter(1);
    EXPECT_THAT(faultOf([&] { awaitWholeFolderOf(path("a")); }), HasSubstr("is being changed"));
    EXPECT_EQ(read(path("b")), "old");
}

TEST_F(StagedFilesTest, AJournalMovesTemporaryFilesInTheirFolderAlone) {
    using namespace std::string_literals;
    std::filesystem::create_directory(path("sub"));
    const auto folder = path("a").parent_path();
    write(path("victim"), "old");
    write(path("file"), "theirs");
    write(path(".kelx-1-x.tmp"), "theirs");
    for (const std::string& bad :
         {"kelx journal 1\n"s + ".\0file\0victim\0001\0"s + "end\n",
          "kelx journal 1\n"s + "sub\0../.kelx-1-x.tmp\0victim\0001\0"s + "end\n",
          "kelx journal 1\n"s + "sub\0.kelx-1-x.tmp\0../victim\0001\0"s + "end\n",
          "kelx journal 1\n"s + ".\0.kelx-1-x.tmp\0victim\0001"s + "end\n",
          "kelx journal 1\n"s + ".\0.kelx-1-x.tmp\0victim\0x1\0"s + "end\n",
          "kelx journal 1\n"s + folder.string() + "\0.kelx-1-x.tmp\0victim\0001\0"s + "end\n", ""s,
          "kelx journal 1\n"s}) {
        write(path(".kelx-journal"), bad);
        EXPECT_THAT(faultOf([&] { finishChange(folder); }), HasSubstr("damaged")) << bad;
    }
    write(path(".kelx-journal"),
          "kelx journal 1\n"s + "sub\0.kelx-1-x.tmp\0victim\0001\0"s + "end\n");
    EXPECT_THAT(faultOf([&] { finishChange(folder); }), HasSubstr("is gone")); // no such file there
    EXPECT_EQ(read(path("victim")), "old");
    EXPECT_FALSE(std::filesystem::exists(path("sub") / "victim"));
}

TEST_F(StagedFilesTest, WhatIsInUseIsNotLeftBehind) {
    const auto folder = path("a").parent_path();
    int gone = 0;
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    ASSERT_EQ(::waitpid(child, &gone, 0), child);
    const std::string old = ".kelx-" + std::to_string(child) + "-abc.tmp";
    for (const std::string& name :
         {old, old + ".desc", old + ".old", std::string(".kelx-x.tmp"), old + ".kbf", "data" + old})
        write(path(name), "x");
    StagedFiles files;
    const auto staged = files.stage(path("a"));
    EXPECT_THAT(leftoversIn(folder),
                ElementsAre(path(old), path(old + ".desc"), path(old + ".old")));
    {
        const int held = ::open(path(old).c_str(), O_RDONLY);
        ASSERT_EQ(::flock(held, LOCK_EX), 0); // as a process elsewhere does
        EXPECT_THAT(leftoversIn(folder), IsEmpty());
        ::close(held);
    }
    const FolderLock lock(path("a"), {});
    EXPECT_TRUE(std::filesystem::exists(staged));
    EXPECT_THAT(names(), UnorderedElementsAre(staged.filename().string(), ".kelx-x.tmp",
                                              old + ".kbf", "data" + old));
}

TEST_F(StagedFilesTest, ALinkIsFollowed) {
    write(path("real"), "old");
    std::filesystem::create_symlink(path("real"), path("link"));
    StagedFiles files;
    write(files.stage(path("link")), "new");
    files.publish();
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    EXPECT_EQ(read(path("real")), "new");
}

TEST_F(StagedFilesTest, ALinkToNothingYetIsFollowed) {
    std::filesystem::create_directory(path("sub"));
    std::filesystem::create_symlink("sub/later", path("link"));
    StagedFiles files;
    write(files.stage(path("link")), "new");
    files.publish();
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    EXPECT_EQ(read(path("sub") / "later"), "new");
}

} // namespace kelx::testing
