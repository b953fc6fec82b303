#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

#include <cstddef>

namespace calvix::test::statistics_test
{

using ::testing::ElementsAre;

namespace
{

class StatisticsTest : public LibraryTest
{
};

} // namespace

// Hosts are compiled against this layout.
TEST(StatisticsRecordTest, IsFourCountersOf64BitsInThisOrder)
{
    EXPECT_EQ(32u, sizeof(_WIFI_TXRX_COUNT));
    EXPECT_EQ(0u, offsetof(_WIFI_TXRX_COUNT, ullTransmitted));
    EXPECT_EQ(8u, offsetof(_WIFI_TXRX_COUNT, ullSpare1));
    EXPECT_EQ(16u, offsetof(_WIFI_TXRX_COUNT, ullSpare2));
    EXPECT_EQ(24u, offsetof(_WIFI_TXRX_COUNT, ullReceived));
}

// Deliberate: the two spare counters keep what the caller put in.
TEST_F(StatisticsTest, WritesTheUnicastFramesOnly)
{
    _WIFI_TXRX_COUNT count{7, 7, 7, 7};
    EXPECT_EQ(0, manager().GetWlanStatistics(&kAdapterA, &count));
    EXPECT_EQ(1234u, count.ullTransmitted);
    EXPECT_EQ(7u, count.ullSpare1);
    EXPECT_EQ(7u, count.ullSpare2);
    EXPECT_EQ(56789u, count.ullReceived);
    EXPECT_THAT(callLines(), ElementsAre(QueryLine("statistics", "WLAN_STATISTICS"), kRelease));
    ExpectSilence();
}

TEST_F(StatisticsTest, ReadsTheUnicastCountersAmongAllOthers)
{
    const auto fill = [](WLAN_INTF_OPCODE, PVOID data, DWORD&)
    {
        auto& statistics = *static_cast<WLAN_STATISTICS*>(data);
        statistics.ullFourWayHandshakeFailures = 11;
        statistics.MacUcastCounters.ullTransmittedFrameCount = 0xFEDCBA9876543210;
        statistics.MacUcastCounters.ullReceivedFrameCount = 0x0123456789ABCDEF;
        statistics.MacMcastCounters.ullTransmittedFrameCount = 12;
        statistics.MacMcastCounters.ullReceivedFrameCount = 13;
        statistics.PhyCounters[0].ullTransmittedFrameCount = 14;
        statistics.PhyCounters[0].ullReceivedFrameCount = 15;
    };
    const EditedAnswers altered({.query = fill});
    _WIFI_TXRX_COUNT count{};
    EXPECT_EQ(0, manager().GetWlanStatistics(&kAdapterA, &count));
    EXPECT_EQ(0xFEDCBA9876543210, count.ullTransmitted);
    EXPECT_EQ(0x0123456789ABCDEFu, count.ullReceived);
    EXPECT_EQ(0u, count.ullSpare1);
    EXPECT_EQ(0u, count.ullSpare2);
}

TEST_F(StatisticsTest, NeedsNoConnection)
{
    _WIFI_TXRX_COUNT count{7, 7, 7, 7};
    EXPECT_EQ(0, manager().GetWlanStatistics(&kAdapterB, &count));
    EXPECT_EQ(0u, count.ullTransmitted);
    EXPECT_EQ(0u, count.ullReceived);
}

} // namespace calvix::test::statistics_test
