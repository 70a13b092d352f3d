// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/pointer_file.h"
#include "storage_fixture.h"

namespace kelx::testing {

using PointerTest = StorageTest;

TEST_F(PointerTest, ChildrenFollowTheirParents) {
    const std::vector<std::uint64_t> counts{2, 0, 0, 3, 1, 0};
    PointerWriter writer(path("a.kpt"));
    for (const auto count : counts)
        writer.addParent(count);
    writer.commit();
    const auto pointers = PointerFile::open(path("a.kpt"));
    EXPECT_FALSE(pointers->isWide());
    EXPECT_EQ(pointers->parents(), 6u);
    EXPECT_EQ(pointers->children(), 6u);
    const std::vector<std::uint64_t> first{0, 2, 2, 2, 5, 6, 6};
    for (std::size_t i = 0; i < first.size(); ++i)
        EXPECT_EQ(pointers->first(i), first[i]);
    const std::vector<std::uint64_t> parents{0, 0, 3, 3, 3, 4};
    for (std::size_t child = 0; child < parents.size(); ++child)
        EXPECT_EQ(pointers->parentOf(child), parents[child]);
    EXPECT_THROW(static_cast<void>(pointers->parentOf(6)), std::out_of_range);
}

TEST_F(PointerTest, WidensWhereFourBytesDoNotReach) {
    for (const std::uint64_t last : {294967295u, 294967296u}) { // 2^32 - 1 and 2^32 children
        PointerWriter writer(path("a.kpt"));
        for (int i = 0; i < 100000; ++i)
            writer.addParent(40000);
        writer.addParent(last);
        writer.commit();
        const auto pointers = PointerFile::open(path("a.kpt"));
        EXPECT_EQ(pointers->isWide(), last == 294967296u);
        EXPECT_EQ(pointers->children(), 4000000000u + last);
        EXPECT_EQ(pointers->first(77777), 77777u * std::uint64_t{40000});
        EXPECT_EQ(pointers->parentOf(4000000000u + last - 1), 100000u);
        EXPECT_EQ(pointers->parentOf(39999), 0u);
    }
    EXPECT_THAT(names(), ::testing::ElementsAre("a.kpt"));
}

TEST_F(PointerTest, EmptyOnesAndTheSingleParent) {
    PointerWriter(path("a.kpt")).commit();
    EXPECT_EQ(PointerFile::open(path("a.kpt"))->parents(), 0u);
    const auto single = PointerFile::single(12);
    EXPECT_EQ(single->parents(), 1u);
    EXPECT_EQ(single->first(1), 12u);
    EXPECT_EQ(single->parentOf(11), 0u);
    EXPECT_EQ(PointerFile::single(0)->children(), 0u);
}

TEST_F(PointerTest, RefusesTooManyChildrenAndLeavesNoTrace) {
    PointerWriter writer(path("a.kpt"));
    writer.addParent(std::uint64_t{1} << 40);
    EXPECT_THROW(writer.addParent(1), FileError);
    EXPECT_THROW(writer.addParent(~std::uint64_t{0}), FileError);
    EXPECT_FALSE(std::filesystem::exists(path("a.kpt")));
}

} // namespace kelx::testing
