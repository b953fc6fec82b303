#include "core/memory.h"

#include "support/library_test.h"

namespace calvix::test::wlan_memory_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WlanMemoryTest : public LibraryTest
{
protected:
    /// Has the service store a list.
    void Fill(InterfaceList& list)
    {
        ASSERT_EQ(0u, platform::wlan().WlanEnumInterfaces(ManagerInternals::Client(), nullptr, list.Receive()));
    }
};

TEST_F(WlanMemoryTest, IsReleasedAtTheEndOfItsScope)
{
    {
        InterfaceList list;
        Fill(list);
        EXPECT_EQ(2u, list->dwNumberOfItems);
        EXPECT_EQ(0u, callCount("WlanFreeMemory"));
    }
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanFreeMemory"));
    EXPECT_THAT(traced(), IsEmpty());
    ExpectNothingHeld();
}

TEST_F(WlanMemoryTest, TracesItsReleaseJustBeforeIt)
{
    {
        InterfaceList list("WlanFreeMemory(pIfList)");
        Fill(list);
        ClearCalls();
    }
    EXPECT_THAT(timeline(), ElementsAre("OutputDebugStringA(text=\"WlanFreeMemory(pIfList)\")",
                                        "OutputDebugStringA(text=\"\\x0A\")", "WlanFreeMemory(memory=non-null)"));
    EXPECT_TRUE(sharedTraceUntouched()) << "a release is no formatted line";
}

TEST_F(WlanMemoryTest, HoldingNothingReleasesAndTracesNothing)
{
    {
        InterfaceList list("WlanFreeMemory(pIfList)");
        list.Release();
    }
    EXPECT_THAT(timeline(), IsEmpty());
}

TEST_F(WlanMemoryTest, IsReleasedOnce)
{
    {
        InterfaceList list;
        Fill(list);
        list.Release();
        EXPECT_EQ(nullptr, list.get());
    }
    EXPECT_EQ(1u, callCount("WlanFreeMemory"));
}

TEST_F(WlanMemoryTest, ReceivingAgainReleasesWhatWasHeld)
{
    InterfaceList list;
    Fill(list);
    Fill(list);
    EXPECT_EQ(1u, callCount("WlanFreeMemory"));
    EXPECT_EQ(1u, computer().Audit().liveBlocks);
    list.Take(nullptr);
    ExpectNothingHeld();
}

} // namespace calvix::test::wlan_memory_test
