#include "station.h"

#include <calvix/testing/computer.h>
#include <calvix/testing/scenario.h>

#include <gtest/gtest.h>

#include <sstream>

namespace
{

using calvix::testing::Computer;
using calvix::testing::Scenario;

bool Join(Computer& computer, std::ostream& out)
{
    return JoinBestNetwork(computer.Manager(), out, [&](auto duration) { computer.Advance(duration); });
}

class StationTest : public ::testing::Test
{
protected:
    bool Join() { return ::Join(computer, out); }

    void ExpectNothingHeld()
    {
        CWirelessManage::Delete();
        EXPECT_TRUE(computer.Held().Nothing());
    }

    bool Said(const char* text) const { return out.str().find(text) != std::string::npos; }

    Computer computer;
    std::ostringstream out;
};

TEST_F(StationTest, JoinsTheBestNetwork)
{
    EXPECT_TRUE(Join());
    EXPECT_TRUE(Said("Lindenhof Garden 46%"));
    EXPECT_TRUE(Said("joined Lindenhof Garden"));
    EXPECT_EQ(1u, computer.CallCount("WlanConnect"));
    ExpectNothingHeld();
}

TEST_F(StationTest, SaysThatTheServiceIsStopped)
{
    computer.SetServiceRunning(false);
    EXPECT_FALSE(Join());
    EXPECT_TRUE(Said("could not be listed") || Said("could be opened"));
    EXPECT_EQ(0u, computer.CallCount("WlanConnect"));
}

TEST_F(StationTest, JoinsWithoutAScan)
{
    computer.Fail("WlanScan", 5);
    EXPECT_TRUE(Join());
    EXPECT_TRUE(Said("the scan was refused"));
    EXPECT_EQ(1u, computer.FailedCalls());
}

TEST_F(StationTest, SaysWhyNothingWasAskedFor)
{
    computer.Fail("WlanConnect", 5);
    EXPECT_FALSE(Join());
    EXPECT_TRUE(Said("the service refused to connect"));
    EXPECT_LT(0u, computer.FailedCalls());
    ExpectNothingHeld();
}

TEST_F(StationTest, GivesUpWhenTheCallbackIsRefused)
{
    computer.Fail("WlanRegisterNotification", 5);
    EXPECT_FALSE(Join());
    EXPECT_TRUE(Said("access denied, 5"));
    EXPECT_EQ(0u, computer.CallCount("WlanScan"));
    ExpectNothingHeld();
}

TEST(Station, SaysThatTheAccessPointDoesNotAnswer)
{
    Computer computer(Scenario().Adapter().Profile("Office").AccessPoint("Office", -50, R"("answers": false)").Text());
    std::ostringstream out;
    EXPECT_FALSE(Join(computer, out));
    EXPECT_NE(std::string::npos, out.str().find("not connected: ")) << out.str();
}

// Somebody else connects the same adapter before the host does, or the other one after it.
TEST(Station, IgnoresOtherConnections)
{
    for (const std::size_t requests : {0u, 1u})
    {
        const char* const fast = R"("connectMilliseconds": 200)";
        Scenario scenario;
        scenario.Adapter(fast).Profile("Office").Profile("Yard", R"("mode": "manual")");
        scenario.Adapter(fast).Profile("Yard");
        scenario.AccessPoint("Office", -50, R"("answers": false)").AccessPoint("Yard", -60);
        Computer computer(scenario.Text());
        std::vector<WLAN_INTERFACE_INFO> adapters;
        computer.Manager().GetWlanInterface(&adapters);
        const auto pause = [&](auto duration)
        {
            char profile[] = "Yard";
            if (computer.CallCount("WlanConnect") == requests)
                computer.Manager().LinkProfile(&adapters[requests].InterfaceGuid, profile);
            computer.Advance(duration);
        };
        std::ostringstream out;
        EXPECT_FALSE(JoinBestNetwork(computer.Manager(), out, pause));
        EXPECT_EQ(2u, computer.CallCount("WlanConnect"));
        EXPECT_NE(std::string::npos, out.str().find("not connected: ")) << out.str();
    }
}

TEST(Station, SaysThatThereIsNoAdapter)
{
    Computer computer(Scenario().Text());
    std::ostringstream out;
    EXPECT_FALSE(Join(computer, out));
    EXPECT_NE(std::string::npos, out.str().find("the computer has no wireless adapter")) << out.str();
}

} // namespace
