#include "station.h"

#include <calvix/testing/computer.h>

#include <gtest/gtest.h>

#include <sstream>

namespace
{

class StationTest : public ::testing::Test
{
protected:
    bool Join()
    {
        return JoinBestNetwork(computer.Manager(), out, [this](auto duration) { computer.Advance(duration); });
    }

    void ExpectNothingHeld()
    {
        CWirelessManage::Delete();
        EXPECT_TRUE(computer.Held().Nothing());
    }

    bool Said(const char* text) const { return out.str().find(text) != std::string::npos; }

    calvix::testing::Computer computer;
    std::ostringstream out;
};

//! [joins]
TEST_F(StationTest, JoinsTheBestNetwork)
{
    EXPECT_TRUE(Join());
    EXPECT_TRUE(Said("Lindenhof Garden 46%"));
    EXPECT_TRUE(Said("joined Lindenhof Garden"));
    EXPECT_EQ(1u, computer.CallCount("WlanConnect"));
    ExpectNothingHeld();
}
//! [joins]

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

//! [fails]
TEST_F(StationTest, SaysWhyNothingWasAskedFor)
{
    computer.Fail("WlanConnect", 5);
    EXPECT_FALSE(Join());
    EXPECT_TRUE(Said("the service refused to connect"));
    EXPECT_LT(0u, computer.FailedCalls());
    ExpectNothingHeld();
}
//! [fails]

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
    calvix::testing::Computer computer(R"({
        "adapters": [{ "guid": "{5CA1AB1E-0042-4000-8000-00CA1F1C0042}", "description": "Test adapter",
                       "address": "02:ca:1f:00:00:42", "profiles": [{ "name": "Office", "key": "correct horse" }] }],
        "accessPoints": [{ "ssid": "Office", "bssid": "02:00:00:00:00:01", "band": "5", "channel": 36,
                           "rssi": -50, "answers": false }] })");
    std::ostringstream out;
    EXPECT_FALSE(JoinBestNetwork(computer.Manager(), out, [&](auto duration) { computer.Advance(duration); }));
    EXPECT_NE(std::string::npos, out.str().find("not connected: ")) << out.str();
}

TEST(Station, SaysThatThereIsNoAdapter)
{
    calvix::testing::Computer computer("{}");
    std::ostringstream out;
    EXPECT_FALSE(JoinBestNetwork(computer.Manager(), out, [&](auto duration) { computer.Advance(duration); }));
    EXPECT_NE(std::string::npos, out.str().find("the computer has no wireless adapter")) << out.str();
}

} // namespace
