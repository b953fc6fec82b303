#include "support/contract_table.h"
#include "unit/call_lines.h"

namespace calvix::test::scan_test
{

using ::testing::ElementsAre;

namespace
{

class ScanTest : public LibraryTest
{
};

/// Rescan(GUID, dwError) that has to store the error.
long long RescanStoring(CWirelessManage& manager, unsigned long error)
{
    unsigned long stored = 77;
    const int code = manager.Rescan(&kAdapterA, stored);
    EXPECT_EQ(error, stored);
    return code;
}

} // namespace

TEST_F(ScanTest, AsksTheNamedAdapterForAWholeScan)
{
    unsigned long error = 77;
    EXPECT_EQ(0, manager().Rescan(&kAdapterB, error));
    EXPECT_EQ(77u, error) << "success leaves the error alone";
    EXPECT_THAT(callLines(), ElementsAre("WlanScan(client=1, interface=" + std::string(kAdapterBText) +
                                         ", ssid=null, ieData=null, reserved=null)"));
    ExpectSilence();
}

TEST_F(ScanTest, WithoutAnInterfaceAsksTheFirstAdapterOnly)
{
    EXPECT_EQ(0, manager().Rescan());
    EXPECT_THAT(callLines(),
                ElementsAre(InterfacesLine(), CallForA("WlanScan", "ssid=null, ieData=null, reserved=null"), kRelease));
    ExpectSilence();
}

TEST_F(ScanTest, ReturnsBeforeTheScanIsDone)
{
    computer().air().clear();
    EXPECT_EQ(0, manager().Rescan());
    EXPECT_EQ(std::chrono::milliseconds(0), computer().Now());
    EXPECT_EQ(8, manager().GetNetworkBssCount()) << "still what the scan before heard";

    Advance(std::chrono::seconds(4));
    EXPECT_EQ(0, manager().GetNetworkBssCount());
}

TEST_F(ScanTest, StoresTheErrorOfEachFailure)
{
    constexpr unsigned kPowerState = 2150899714;
    const auto storing = [](auto& m) { return RescanStoring(m, kPowerState); };
    for (const std::string operation : {"WlanOpenHandle", "WlanScan"})
        CheckFailure(*this, {.method = "Rescan(guid)",
                             .call = storing,
                             .failingOperation = operation,
                             .expected = operation == "WlanScan" ? -4 : -1,
                             .traced = {operation + " failed with error: 2150899714"},
                             .error = kPowerState});
}

TEST_F(ScanTest, PassesOnWhatTheServiceSays)
{
    computer().SetLocationConsent(false);
    unsigned long error = 0;
    EXPECT_EQ(-4, manager().Rescan(&kAdapterA, error));
    EXPECT_EQ(5u, error) << "access denied, for want of location consent";

    EXPECT_EQ(-4, manager().Rescan(&kNoAdapter, error));
    EXPECT_EQ(87u, error) << "there is no such interface";

    EXPECT_EQ(-4, manager().Rescan(nullptr, error));
    EXPECT_EQ(87u, error) << "a null interface is refused by the service";
    EXPECT_EQ("WlanScan failed with error: 87", sharedTrace());
}

TEST_F(ScanTest, DoesNotGoOnToTheSecondAdapterWhenTheFirstRefuses)
{
    FailOn("WlanScan", 5);
    EXPECT_EQ(-4, manager().Rescan());
    EXPECT_EQ(1u, callCount("WlanScan"));
    EXPECT_EQ(kAdapterAText, call("WlanScan")["interface"]);
}

} // namespace calvix::test::scan_test
