// The samples of the guides that are no programs of their own, run.

#include <calvix/testing/computer.h>
#include <calvix/testing/scenario.h>

#include <gtest/gtest.h>

namespace guides::choosing
{
int Join(CWirelessManage& manager, const GUID& adapter);
int JoinAnother(CWirelessManage& manager, const GUID& adapter, const DOT11_SSID& failed);
int StayWell(CWirelessManage& manager, const GUID& adapter);
} // namespace guides::choosing

namespace guides::with_calvix
{
int CountNetworks(CWirelessManage& manager, const GUID& adapter);
void PrintSsid(CWirelessManage& manager, const GUID& adapter);
bool SwitchOff(CWirelessManage& manager, const GUID& adapter);
} // namespace guides::with_calvix

namespace reference
{
void GetAvailableNetworkCount(CWirelessManage& manager, const GUID& adapter);
} // namespace reference

namespace
{

using calvix::testing::Scenario;

/// A computer that hears Office and, less well, Yard.
class GuideSamples : public ::testing::Test
{
protected:
    explicit GuideSamples(const std::string& profileFields = {})
        : computer(Scenario()
                       .Adapter()
                       .Profile("Office", profileFields)
                       .Profile("Yard", profileFields)
                       .AccessPoint("Office", -50)
                       .AccessPoint("Yard", -70)
                       .Text())
    {
        std::vector<WLAN_INTERFACE_INFO> adapters;
        EXPECT_EQ(0, manager.GetWlanInterface(&adapters));
        adapter = adapters.front().InterfaceGuid;
    }

    std::string NetworkAfterAWhile()
    {
        computer.Advance(std::chrono::seconds(5));
        char ssid[64] = "";
        EXPECT_EQ(0, manager.GetCurrentSSID(ssid, sizeof(ssid)));
        return ssid;
    }

    calvix::testing::Computer computer;
    CWirelessManage& manager = computer.Manager();
    GUID adapter{};
};

class GuideSamplesByHand : public GuideSamples
{
protected:
    GuideSamplesByHand() : GuideSamples(R"("mode": "manual")") {}
};

TEST_F(GuideSamples, JoinAnotherNetwork)
{
    EXPECT_EQ(0, guides::choosing::Join(manager, adapter));
    EXPECT_EQ("Yard", NetworkAfterAWhile());
    EXPECT_EQ(0, guides::choosing::JoinAnother(manager, adapter, {4, {'Y', 'a', 'r', 'd'}}));
    EXPECT_EQ("Office", NetworkAfterAWhile());
}

TEST_F(GuideSamplesByHand, JoinTheFirstNetwork)
{
    EXPECT_EQ(0, guides::choosing::Join(manager, adapter));
    EXPECT_EQ("Office", NetworkAfterAWhile());
}

TEST_F(GuideSamples, StayWell)
{
    EXPECT_EQ(0, guides::choosing::StayWell(manager, adapter));
    EXPECT_EQ("Yard", NetworkAfterAWhile());
    EXPECT_EQ(-8, guides::choosing::StayWell(manager, adapter));
}

TEST_F(GuideSamples, ReplaceCallsOfTheService)
{
    EXPECT_EQ(2, guides::with_calvix::CountNetworks(manager, adapter));
    EXPECT_EQ(0, manager.ConnectBestAP(&adapter));
    EXPECT_EQ("Yard", NetworkAfterAWhile());
    ::testing::internal::CaptureStdout();
    guides::with_calvix::PrintSsid(manager, adapter);
    reference::GetAvailableNetworkCount(manager, adapter);
    EXPECT_EQ("Yard\n2 networks\n", ::testing::internal::GetCapturedStdout());
    EXPECT_TRUE(guides::with_calvix::SwitchOff(manager, adapter));
    EXPECT_EQ(0, manager.PhyRadioIsOn2(&adapter));
}

} // namespace
