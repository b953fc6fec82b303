#include "simulation/blocks.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#ifdef CALVIX_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace calvix::simulation::blocks_test
{

using Defects = std::vector<std::string>;

class BlocksTest : public ::testing::Test
{
protected:
    Defects defects;
    Blocks blocks{defects};
};

TEST_F(BlocksTest, AreZeroedAndCounted)
{
    auto* const block = static_cast<unsigned char*>(blocks.Allocate(100, "list"));
    EXPECT_EQ(std::vector<unsigned char>(block, block + 100), std::vector<unsigned char>(100, 0));
    EXPECT_EQ(blocks.CountLive(), 1u);
    blocks.Free(block);
    EXPECT_EQ(blocks.CountLive(), 0u);
    EXPECT_EQ(defects, Defects{});
}

TEST_F(BlocksTest, NoticeAWriteAfterFreeOnce)
{
    auto* const block = static_cast<char*>(blocks.Allocate(64, "BSS list"));
    blocks.Free(block);
    blocks.CheckFreed();
    EXPECT_EQ(defects, Defects{});
#ifdef CALVIX_ADDRESS_SANITIZER
    __asan_unpoison_memory_region(block, 64); // the write is to get as far as the check
#endif
    std::memset(block + 63, 1, 1);
    blocks.CheckFreed();
    blocks.CheckFreed();
    EXPECT_EQ(defects, Defects{"write into freed BSS list"});
}

#ifdef CALVIX_ADDRESS_SANITIZER
TEST_F(BlocksTest, FreedBlocksAndWhatFollowsABlockCannotBeTouchedUnderTheSanitizer)
{
    auto* const freed = static_cast<char*>(blocks.Allocate(24, "list"));
    auto* const live = static_cast<char*>(blocks.Allocate(24, "list"));
    blocks.Free(freed);
    EXPECT_TRUE(__asan_address_is_poisoned(freed));
    EXPECT_TRUE(__asan_address_is_poisoned(freed + 23));
    EXPECT_FALSE(__asan_address_is_poisoned(live + 23));
    EXPECT_TRUE(__asan_address_is_poisoned(live + 24));
}
#endif

TEST_F(BlocksTest, FreedOnesAreKeptWithinBounds)
{
    void* const oldest = blocks.Allocate(8, "oldest");
    blocks.Free(oldest);
    for (int count = 0; count < 5000; ++count)
        blocks.Free(blocks.Allocate(8, "list"));
    // The oldest is forgotten by now, so that its address is a foreign pointer, or was even given out anew.
    void* const youngest = blocks.Allocate(8, "youngest");
    blocks.Free(youngest);
    blocks.Free(youngest);
    EXPECT_EQ(defects, Defects{"double free of youngest"});
}

} // namespace calvix::simulation::blocks_test
