#include "cli_test.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <functional>

namespace calvix::test::inventory_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class AdaptersCommand : public CliTest
{
};
class NetworksCommand : public CliTest
{
};
class BssCommand : public CliTest
{
};
class ScanCommand : public CliTest
{
};

TEST_F(AdaptersCommand, ListsAll)
{
    const Outcome outcome = RunOn(RichWorld(), {"adapters"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_EQ("#  Description         State         GUID\n"
              "1  Wireless Adapter A  connected     {A0000001-0001-4001-8001-00000000000A}\n"
              "2  Wireless Adapter B  disconnected  {B0000002-0002-4002-8002-00000000000B}\n",
              outcome.out);
    EXPECT_EQ("", outcome.err);
}

TEST_F(AdaptersCommand, SpeaksJson)
{
    const json adapters = json::parse(RunOn(RichWorld(), {"adapters", "--json"}).out)["adapters"];
    ASSERT_EQ(2u, adapters.size());
    EXPECT_EQ(json({{"number", 1},
                    {"guid", kAdapterAText},
                    {"description", "Wireless Adapter A"},
                    {"state", 1},
                    {"stateText", "connected"}}),
              adapters[0]);
}

TEST_F(AdaptersCommand, EscapesDescriptionsThatTheTerminalWouldObey)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].description = "Radio \x1B[31m\u202E";
    for (const char* command : {"adapters", "status"})
        EXPECT_THAT(RunOn(world, {command}).out, HasSubstr("Radio \\x1B[31m\\xE2\\x80\\xAE")) << command;
    EXPECT_THAT(RunOn(world, {"status"}).err, HasSubstr("Radio \\x1B[31m\\xE2\\x80\\xAE"));
    const std::string file = FileWith("named.json", simulation::WriteScenario(world));
    EXPECT_EQ("none\n1\tRadio \\x1B[31m\\xE2\\x80\\xAE\n2\tWireless Adapter B\n",
              Run({"complete", "--", "status", "--scenario", file, "--interface"}).out);
}

TEST_F(AdaptersCommand, SaysWhenThereIsNone)
{
    const Outcome outcome = RunOn(NoAdapterWorld(), {"adapters"});
    EXPECT_EQ(kUnavailable, outcome.exitCode);
    EXPECT_EQ("", outcome.out);
    EXPECT_EQ("calvix: the computer has no wireless adapter.\n"
              "  Result: GetWlanInterface returned -3.\n"
              "  What to do: plug one in, or enable it and its driver in the device manager.\n",
              outcome.err);
}

TEST_F(AdaptersCommand, SaysWhenTheServiceIsStopped)
{
    simulation::Scenario world = RichWorld();
    world.serviceRunning = false;
    const Outcome outcome = RunOn(world, {"adapters"});
    EXPECT_EQ(kUnavailable, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("refused WlanOpenHandle (the WLAN service is not running, 1062)"));
    EXPECT_THAT(outcome.err, HasSubstr("GetWlanInterface returned -1"));
    EXPECT_THAT(outcome.err, HasSubstr("sc start WlanSvc"));
}

TEST_F(NetworksCommand, ListsOneLineForEachNetworkAndProfile)
{
    const Outcome outcome = RunOn(RichWorld(), {"networks", "--interface", "2"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, StartsWith("SSID "));
    EXPECT_THAT(outcome.out, HasSubstr("CafeNet    ##..         50  open             1  CafeNet\n"));
    EXPECT_THAT(outcome.out, HasSubstr("HomeNet5G  ####         84  WPA3-SAE/CCMP    1\n"));
    EXPECT_THAT(outcome.out, HasSubstr("(hidden) "));
    EXPECT_THAT(outcome.out, Not(HasSubstr("\x1b[")));
}

TEST_F(NetworksCommand, MarksTheConnectedOne)
{
    EXPECT_THAT(RunOn(RichWorld(), {"networks"}).out, HasSubstr("HomeNet    connected\n"));
    EXPECT_THAT(RunOn(DisconnectedWorld(), {"networks"}).out, Not(HasSubstr("connected")));
}

TEST_F(NetworksCommand, SpeaksJson)
{
    const json networks = json::parse(RunOn(RichWorld(), {"networks", "--json"}).out)["networks"];
    json home;
    for (const json& network : networks)
        if (network["ssid"] == "HomeNet")
            home = network;
    EXPECT_EQ("486F6D654E6574", home["ssidHex"]);
    EXPECT_EQ("HomeNet", home["profile"]);
    EXPECT_EQ(100, home["quality"]);
    EXPECT_EQ(3, home["accessPoints"]);
    EXPECT_EQ("infrastructure", home["bssType"]);
    EXPECT_EQ("WPA2-PSK/CCMP", home["security"]);
    EXPECT_EQ(true, home["connected"]);
    EXPECT_EQ(true, home["connectable"]);
    EXPECT_TRUE(home["reason"].is_null());
}

TEST_F(NetworksCommand, EscapesSsidsThatAreNoText)
{
    simulation::Scenario world = DisconnectedWorld();
    world.accessPoints = {MakeAccessPoint("Caf\xE9", kCafeNet, 2412000, -60)};
    EXPECT_THAT(RunOn(world, {"networks"}).out, HasSubstr("Caf\\xE9 "));
    const json networks = json::parse(RunOn(world, {"networks", "--json"}).out)["networks"];
    EXPECT_EQ("Caf\\xE9", networks[0]["ssid"]);
    EXPECT_EQ("436166E9", networks[0]["ssidHex"]);
}

TEST_F(NetworksCommand, SaysWhenNothingIsInView)
{
    const Outcome outcome = RunOn(SilentWorld(), {"networks"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_EQ("No network is in view. Scan with: calvix scan\n", outcome.out);
    EXPECT_EQ(json::parse(R"({"networks": []})"), json::parse(RunOn(SilentWorld(), {"networks", "--json"}).out));
}

TEST_F(NetworksCommand, NamesTheMissingConsent)
{
    simulation::Scenario world = RichWorld();
    world.locationConsent = false;
    const Outcome outcome = RunOn(world, {"networks", "--interface", "1"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_EQ("", outcome.out);
    EXPECT_EQ(
        "calvix: the list of visible networks could not be fetched: the WLAN service refused "
        "WlanGetAvailableNetworkList (access denied, 5).\n"
        "  Result: GetAvailableNetworkCount returned -5.\n"
        "  What to do: allow location access for desktop apps (Settings, Privacy & security, Location): switch on "
        "\"Location services\", \"Let apps access your location\" and \"Let desktop apps access your location\". "
        "Windows 11 24H2 and later ask for it; start ms-settings:privacy-location opens the page.\n",
        outcome.err);
}

TEST_F(NetworksCommand, PutsTheFailureIntoTheJson)
{
    simulation::Scenario world = RichWorld();
    world.locationConsent = false;
    const Outcome outcome = RunOn(world, {"networks", "--json"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    const json error = json::parse(outcome.out)["error"];
    EXPECT_EQ(1, error["exitCode"]);
    EXPECT_EQ("GetAvailableNetworkCount", error["method"]);
    EXPECT_EQ(-5, error["code"]);
    EXPECT_EQ("WlanGetAvailableNetworkList", error["operation"]);
    EXPECT_EQ(5, error["platformError"]);
    EXPECT_THAT(error["advice"].get<std::string>(), HasSubstr("location access"));
}

TEST_F(NetworksCommand, NamesTheRadioThatIsOff)
{
    simulation::Scenario world = DisconnectedWorld();
    for (simulation::PhyDescription& phy : world.adapters[0].phys)
        phy.software = simulation::RadioSwitch::off;
    const Outcome outcome = RunOn(world, {"networks"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the radio is off, 0x80342002"));
    EXPECT_THAT(outcome.err, HasSubstr("switch the radio on"));
}

TEST_F(BssCommand, ListsEveryAccessPoint)
{
    simulation::Scenario world = RichWorld();
    world.accessPoints[2].channelWidth = 160;
    const Outcome outcome = RunOn(world, {"bss"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(
        outcome.out,
        StartsWith(
            "BSSID              SSID       Signal  dBm  Channel  Band     PHY         Width  Security       Note\n"
            "02:11:00:00:24:06  HomeNet    ####    -50        6  2.4 GHz  802.11n    20 MHz  WPA2-PSK/CCMP  "
            "connected\n"
            "02:55:00:00:50:2C  HomeNet5G  ####    -58       44  5 GHz    802.11ax   20 MHz  WPA3-SAE/CCMP\n"));
    EXPECT_THAT(outcome.out, HasSubstr("-70        1  6 GHz    802.11ax  160 MHz  WPA2-PSK/CCMP\n"));
    EXPECT_THAT(outcome.out, HasSubstr("02:33:00:00:24:0B  (hidden)   ###.    -68       11  2.4 GHz"));
}

TEST_F(BssCommand, SpeaksJson)
{
    simulation::Scenario world = RichWorld();
    world.accessPoints[2].channelWidth = 160;
    const json list = json::parse(RunOn(world, {"bss", "--json"}).out)["accessPoints"];
    ASSERT_EQ(8u, list.size());
    const auto point =
        std::find_if(list.begin(), list.end(), [](const json& one) { return one["bssid"] == "02:11:00:00:60:01"; });
    ASSERT_NE(list.end(), point);
    EXPECT_EQ(-70, (*point)["rssi"]);
    EXPECT_EQ(5955000, (*point)["frequencyKhz"]);
    EXPECT_EQ("6 GHz", (*point)["band"]);
    EXPECT_EQ(1, (*point)["channel"]);
    EXPECT_EQ("802.11ax", (*point)["phy"]);
    EXPECT_EQ(160, (*point)["widthMhz"]);
    EXPECT_EQ("WPA2-PSK/CCMP", (*point)["security"]);
    EXPECT_EQ(false, (*point)["inUse"]);
    EXPECT_EQ(true, list[0]["inUse"]);
}

/// The values of a member in the order of a command's list.
std::vector<json> InOrder(const Outcome& outcome, const char* list, const char* member)
{
    std::vector<json> values;
    const json printed = json::parse(outcome.out);
    for (const json& one : printed[list])
        values.push_back(one[member]);
    return values;
}

TEST_F(BssCommand, SortsByWhatIsAskedFor)
{
    const auto sorted = [&](const char* order, const char* member) {
        return InOrder(RunOn(RichWorld(), {"bss", "--json", "--sort", order}), "accessPoints", member);
    };
    EXPECT_TRUE(std::ranges::is_sorted(sorted("channel", "frequencyKhz")));
    EXPECT_TRUE(std::ranges::is_sorted(sorted("name", "ssid")));
    EXPECT_TRUE(std::ranges::is_sorted(sorted("signal", "rssi"), std::greater()));
    EXPECT_EQ(sorted("signal", "bssid"), InOrder(RunOn(RichWorld(), {"bss", "--json"}), "accessPoints", "bssid"));
}

TEST_F(NetworksCommand, SortsByWhatIsAskedFor)
{
    const auto sorted = [&](const char* order, const char* member) {
        return InOrder(RunOn(RichWorld(), {"networks", "--json", "--sort", order}), "networks", member);
    };
    EXPECT_TRUE(std::ranges::is_sorted(sorted("name", "ssid")));
    EXPECT_TRUE(std::ranges::is_sorted(sorted("signal", "quality"), std::greater()));
    EXPECT_EQ(kBadInput, RunOn(RichWorld(), {"networks", "--sort", "channel"}).exitCode);
}

TEST_F(ScanCommand, WaitsUntilTheListHasCome)
{
    const Outcome outcome = RunOn(RichWorld(), {"scan"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, HasSubstr(": 8 access points in view.\n"));
}

TEST_F(ScanCommand, SpeaksJson)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].scanMilliseconds = 2500;
    const json scan = json::parse(RunOn(world, {"scan", "--json"}).out)["scan"];
    EXPECT_EQ(true, scan["completed"]);
    EXPECT_EQ(8, scan["accessPoints"]);
    EXPECT_EQ(2500, scan["milliseconds"]);
}

TEST_F(ScanCommand, EndsInSilenceToo)
{
    const Outcome outcome = RunOn(SilentWorld(), {"scan"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, HasSubstr("0 access points in view"));
}

TEST_F(ScanCommand, GivesUpAfterTheTimeout)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].scanMilliseconds = 3900;
    const Outcome outcome = RunOn(world, {"scan", "--timeout", "2"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the scan timed out after 2 seconds"));
    EXPECT_THAT(outcome.err, HasSubstr("--timeout"));
}

TEST_F(ScanCommand, SaysWhatWasRefused)
{
    simulation::Scenario world = RichWorld();
    world.locationConsent = false;
    const Outcome outcome = RunOn(world, {"scan"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the scan was refused: the WLAN service refused WlanScan (access denied, 5)"));
    EXPECT_THAT(outcome.err, HasSubstr("Rescan returned -4"));
}

} // namespace
} // namespace calvix::test::inventory_test
