// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/atomic_file.h"
#include "storage/staged_files.h"
#include "storage_fixture.h"

#include <fstream>
#include <sys/stat.h>

namespace kelx::testing {

using StagedFilesTest = StorageTest;
using ::testing::HasSubstr;
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
