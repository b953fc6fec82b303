#include <calvix/testing/computer.h>
#include <calvix/testing/scenario.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

using calvix::testing::Call;
using calvix::testing::Computer;
using calvix::testing::Scenario;
using ::testing::HasSubstr;

/// The adapter of the built-in home.
constexpr GUID kAdapter = {0x5CA1AB1E, 0x0001, 0x4000, {0x80, 0x00, 0x00, 0xCA, 0x1F, 0x1C, 0x00, 0x01}};

TEST(TestingComputer, IsFreshForEachTest)
{
    for (int round = 0; round < 2; ++round)
    {
        Computer computer;
        EXPECT_FALSE(computer.Manager().GetWlanIsLink(&kAdapter));
        EXPECT_EQ(0, computer.Manager().ConnectBestAP(&kAdapter));
        computer.Advance(std::chrono::seconds(20));
        EXPECT_EQ(std::chrono::seconds(20), computer.Now());
        EXPECT_EQ(1, computer.Manager().WiFiIsConnected(&kAdapter));
    }
}

TEST(TestingComputer, KeepsTheCallsWithTheirArguments)
{
    Computer computer;
    computer.Manager();
    computer.ForgetCalls();
    EXPECT_EQ(0, computer.Manager().Rescan());
    EXPECT_EQ(1u, computer.CallCount("WlanScan"));
    for (const Call& call : computer.Calls())
        if (call.operation == "WlanScan")
        {
            EXPECT_EQ("{5CA1AB1E-0001-4000-8000-00CA1F1C0001}", call.arguments.at("interface"));
            EXPECT_THAT(call.line, HasSubstr("WlanScan(client=1, interface={5CA1AB1E-0001-4000-8000-00CA1F1C0001}"));
        }
}

TEST(TestingComputer, MakesTheCallsFailThatAreNamed)
{
    Computer computer;
    computer.Fail("WlanScan", 2150899714UL, 2, 1);
    EXPECT_EQ(0, computer.Manager().Rescan());
    EXPECT_EQ(0u, computer.FailedCalls());
    EXPECT_EQ(-4, computer.Manager().Rescan());
    EXPECT_EQ(1u, computer.FailedCalls());
    EXPECT_EQ(0, computer.Manager().Rescan());
    computer.Fail("WlanEnumInterfaces", 5);
    EXPECT_EQ(-2, computer.Manager().Rescan());
    computer.StopFailing();
    EXPECT_EQ(0, computer.Manager().Rescan());
    EXPECT_THROW(computer.Fail("WlanScam", 5), std::invalid_argument);
}

TEST(TestingComputer, AsksWhichCallsAreToFail)
{
    Computer computer;
    computer.FailWhen(
        [&](const Call& call) -> std::optional<unsigned long>
        {
            if (call.operation == "WlanScan")
                computer.SetServiceRunning(false);
            if (call["interface"] == "null")
                return 87;
            return std::nullopt;
        });
    unsigned long error = 0;
    EXPECT_EQ(-4, computer.Manager().Rescan(nullptr, error));
    EXPECT_EQ(87u, error);
    EXPECT_EQ(1u, computer.FailedCalls());
    EXPECT_EQ(-2, computer.Manager().Rescan()) << "the service was stopped at the first scan";
}

TEST(TestingComputer, CountsWhatIsHeld)
{
    Computer computer;
    EXPECT_TRUE(computer.Held().Nothing());
    computer.Manager();
    EXPECT_EQ(1u, computer.Held().clients);
    EXPECT_FALSE(computer.Held().Nothing());
    CWirelessManage::Delete();
    EXPECT_TRUE(computer.Held().Nothing());
    EXPECT_EQ(0, computer.Manager().Rescan()) << "the next manager opens a client of its own";
}

TEST(TestingComputer, ChangesWhileItRuns)
{
    Computer computer;
    CWirelessManage& manager = computer.Manager();
    computer.SetRadio(0, false);
    EXPECT_FALSE(manager.PhyRadioIsOn2(&kAdapter));
    computer.SetRadio(0, true);
    EXPECT_TRUE(manager.PhyRadioIsOn2(&kAdapter));
    computer.SetLocationConsent(false);
    EXPECT_EQ(-5, manager.GetAvailableNetworkCount(&kAdapter));
    computer.SetServiceRunning(false);
    EXPECT_EQ(-2, manager.Rescan());
}

TEST(TestingScenario, DescribesAComputer)
{
    Scenario scenario(R"("codePage": 65001)");
    scenario.Adapter().Profile("Say \"hi\"").Profile("Yard", R"("mode": "manual")");
    scenario.Adapter(R"("description": "The other one")");
    scenario.AccessPoint("Yard", -70, R"("band": "5", "channel": 36)").AccessPoint("Caf\xC3\xA9", -50);
    Computer computer(scenario.Text());
    std::vector<WLAN_INTERFACE_INFO> adapters;
    EXPECT_EQ(0, computer.Manager().GetWlanInterface(&adapters));
    ASSERT_EQ(2u, adapters.size());
    EXPECT_EQ(std::wstring(L"The other one"), adapters[1].strInterfaceDescription);
    EXPECT_EQ(0, computer.Manager().GetProfile(&adapters[0].InterfaceGuid, L"Say \"hi\""));
    EXPECT_EQ(0, computer.Manager().IsAutoConnMode2(&adapters[0].InterfaceGuid, L"Yard"));
    EXPECT_EQ(0, computer.Manager().GetProfileCount(&adapters[1].InterfaceGuid));
    EXPECT_EQ(2, computer.Manager().GetNetworkBssCount());
    EXPECT_THROW(Scenario("\"codePage\""), std::exception);
    EXPECT_THROW(Scenario().Profile("Yard"), std::exception) << "of no adapter";
}

TEST(TestingComputer, RefusesAScenarioThatCannotBeUsed)
{
    EXPECT_THROW(Computer("{ \"adapter\": [] }"), std::exception);
    EXPECT_THROW(Computer::FromFile("no-such-file.json"), std::exception);
}

} // namespace
