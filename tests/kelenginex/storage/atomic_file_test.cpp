// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/atomic_file.h"
#include "storage_fixture.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelx::testing {

using AtomicFileTest = StorageTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

namespace {

/// Runs f in a process of its own and returns how that ended.
template <class F>
int statusOfChild(F f) {
    const pid_t child = ::fork();
    if (child == 0) {
        f();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

} // namespace

TEST_F(AtomicFileTest, AppearsCompleteAtCommit) {
    AtomicFile out(path("a"));
    out.write("0123456789");
    out.write(std::string(600000, 'x'));
    out.writeAt(2, std::as_bytes(std::span("AB", 2)));
    EXPECT_EQ(out.size(), 600010u);
    EXPECT_FALSE(std::filesystem::exists(path("a")));
    out.commit();
    EXPECT_EQ(readBytes(path("a")), "01AB456789" + std::string(600000, 'x'));
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(AtomicFileTest, WithoutCommitLeavesTheOldFileAndNoTrace) {
    writeBytes(path("a"), "old");
    {
        AtomicFile out(path("a"));
        out.write("new");
        out.flush();
        EXPECT_EQ(readBytes(out.temporaryName()), "new");
    }
    EXPECT_EQ(readBytes(path("a")), "old");
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(AtomicFileTest, KilledProcessLeavesTheOldFile) {
    writeIntegers(path("a.kbf"), {1, 2, 3});
    const auto before = readBytes(path("a.kbf"));
    const int status = statusOfChild([&] {
        const auto writer = ColumnWriter::create(path("a.kbf"), {ValueType::Real, 0, {}, {}, {}});
        for (int i = 0; i < 200000; ++i)
            writer->addReal(i);
        ::raise(SIGKILL);
    });
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(readBytes(path("a.kbf")), before);
}

TEST_F(AtomicFileTest, FullDiskIsAnErrorAndLeavesTheOldFile) {
    writeBytes(path("a.kbf"), "old");
    const int status = statusOfChild([&] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{100000, 100000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        bool refused = false;
        try {
            const auto writer =
                ColumnWriter::create(path("a.kbf"), {ValueType::Real, 0, {}, {}, {}});
            for (int i = 0; i < 200000; ++i)
                writer->addReal(i);
            writer->commit();
        } catch (const FileError&) {
            refused = true;
        }
        ::_exit(refused ? 7 : 0);
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 7);
    EXPECT_EQ(readBytes(path("a.kbf")), "old");
    EXPECT_THAT(names(), ElementsAre("a.kbf"));
}

TEST_F(AtomicFileTest, KeepsPermissionsAndFollowsLinks) {
    writeBytes(path("real"), "old");
    ::chmod(path("real").c_str(), 0640);
    std::filesystem::create_symlink("real", path("link"));
    AtomicFile out(path("link"));
    out.write("new");
    out.commit();
    EXPECT_EQ(readBytes(path("real")), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    struct stat status {};
    ::stat(path("real").c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777u, 0640u);
}

TEST_F(AtomicFileTest, NamesTheFileThatCannotBeWritten) {
    EXPECT_THAT(faultOf([&] { AtomicFile out(path("none") / "a"); }), HasSubstr("none/a: cannot"));
    std::filesystem::create_directory(path("folder"));
    EXPECT_THAT(faultOf([&] {
                    AtomicFile out(path("folder"));
                    out.commit();
                }),
                HasSubstr("it is a folder"));
    AtomicFile out(path("a"));
    out.write("abc");
    EXPECT_THROW(out.writeAt(2, std::as_bytes(std::span("xx", 2))), FileError);
}

TEST_F(AtomicFileTest, ReplacedColumnStaysReadableForThoseWhoHaveItOpen) {
    writeIntegers(path("a.kbf"), {1, 2, 3});
    const auto old = Column::open(path("a.kbf"));
    writeIntegers(path("a.kbf"), Integers(100000, 7));
    EXPECT_EQ(readIntegers(*old), (Integers{1, 2, 3}));
    EXPECT_EQ(Column::open(path("a.kbf"))->info().records, 100000u);
    EXPECT_THAT(names(), UnorderedElementsAre("a.kbf"));
}

} // namespace kelx::testing
