#include "cli_test.h"

#include <nlohmann/json.hpp>

namespace calvix::test::radio_settings_test
{
namespace
{

using nlohmann::json;
using simulation::RadioSwitch;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class RadioCommands : public CliTest
{
protected:
    /// An adapter with one PHY, connected to HomeNet: its radio is off when that PHY is.
    static simulation::Scenario OnePhyWorld()
    {
        simulation::Scenario world = RichWorld();
        world.adapters[0].phys = {{}};
        return world;
    }
};
class SettingsCommand : public CliTest
{
};
class IhvCommand : public CliTest
{
};
class ListCommands : public CliTest
{
};

TEST_F(RadioCommands, StatusShowsBothSwitches)
{
    EXPECT_EQ("Radio:            on\nSoftware switch:  on\nHardware switch:  on\n",
              RunOn(RichWorld(), {"radio", "status"}).out);
    simulation::Scenario world = OnePhyWorld();
    world.adapters[0].phys[0].hardware = RadioSwitch::off;
    const json radio = json::parse(RunOn(world, {"radio", "status", "--json"}).out)["radio"];
    EXPECT_EQ(json({{"on", false}, {"software", "on"}, {"hardware", "off"}}), radio);
}

TEST_F(RadioCommands, OffAndOnThrowTheSoftwareSwitch)
{
    const std::string saved = PathFor("saved.json");
    const Outcome off = RunOn(OnePhyWorld(), {"radio", "off", "--save", saved});
    EXPECT_EQ(kSuccess, off.exitCode);
    EXPECT_THAT(off.out, StartsWith("Radio:            off\nSoftware switch:  off\n"));
    EXPECT_EQ(RadioSwitch::off, simulation::LoadScenario(saved).adapters[0].phys[0].software);
    const Outcome on = Run({"radio", "on", "--scenario", saved});
    EXPECT_EQ(kSuccess, on.exitCode);
    EXPECT_THAT(on.out, StartsWith("Radio:            on\n"));
}

TEST_F(RadioCommands, OnNamesTheHardwareSwitch)
{
    simulation::Scenario world = OnePhyWorld();
    world.adapters[0].phys[0] = {.software = RadioSwitch::off, .hardware = RadioSwitch::off};
    for (const char* command : {"on", "reset", "restart"})
    {
        const Outcome outcome = RunOn(world, {"radio", command});
        EXPECT_EQ(kFailed, outcome.exitCode) << command;
        EXPECT_THAT(outcome.err, HasSubstr("the radio is still off: its hardware switch is off")) << command;
    }
}

TEST_F(RadioCommands, ResetLeavesTheRadioOn)
{
    const Outcome outcome = RunOn(OnePhyWorld(), {"radio", "reset"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.out, StartsWith("Radio:            on\n"));
}

TEST_F(RadioCommands, RestartWaitsUntilTheConnectionIsBack)
{
    const std::string saved = PathFor("saved.json");
    const Outcome outcome = RunOn(OnePhyWorld(), {"radio", "restart", "--save", saved});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    const simulation::Scenario after = simulation::LoadScenario(saved);
    ASSERT_TRUE(after.adapters[0].connection.has_value());
    EXPECT_EQ("HomeNet", after.adapters[0].connection->profile);
}

TEST_F(RadioCommands, RestartSaysThatTheConnectionDidNotComeBack)
{
    const Outcome outcome = RunOn(OnePhyWorld(), {"radio", "restart", "--timeout", "1"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the radio is on again, but the connection by \"HomeNet\" did not come back "
                                       "within 1 second"));
}

TEST_F(RadioCommands, RestartWaitsForNoConnectionThatWillNotCome)
{
    simulation::Scenario world = OnePhyWorld();
    world.adapters[0].autoConfiguration = false;
    EXPECT_EQ(kSuccess, RunOn(world, {"radio", "restart", "--timeout", "1"}).exitCode);
    EXPECT_EQ(kSuccess, RunOn(DisconnectedWorld(), {"radio", "restart", "--interface", "2"}).exitCode);
}

TEST_F(RadioCommands, RestartOfOneOfSeveralPhysKeepsTheConnection)
{
    const Outcome outcome = RunOn(RichWorld(), {"radio", "restart", "--timeout", "1"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
}

TEST_F(RadioCommands, RestartShowsProgress)
{
    EXPECT_THAT(RunOn(OnePhyWorld(), {"radio", "restart"}, {.isTerminal = true}).err,
                HasSubstr("The radio is on, waiting for the connection"));
}

TEST_F(SettingsCommand, ShowsThem)
{
    simulation::Scenario world = RichWorld();
    world.powerSetting = wlan_power_setting_maximum_saving;
    world.adapters[0].autoConfiguration = false;
    EXPECT_EQ("Power saving:          wlan_power_setting_maximum_saving\n"
              "Automatic connection:  off\n"
              "Background scan:       on\n"
              "Safe mode:             supported\n",
              RunOn(world, {"settings"}).out);
}

TEST_F(SettingsCommand, SwitchesOn)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].autoConfiguration = false;
    world.adapters[0].backgroundScan = false;
    const json before = json::parse(RunOn(world, {"settings", "--json"}).out)["settings"];
    EXPECT_EQ(false, before["automaticConnection"]);
    EXPECT_EQ(false, before["backgroundScan"]);
    const json after =
        json::parse(RunOn(world, {"settings", "--enable-auto", "--enable-background-scan", "--json"}).out)["settings"];
    EXPECT_EQ(true, after["automaticConnection"]);
    EXPECT_EQ(true, after["backgroundScan"]);
}

TEST_F(SettingsCommand, BackgroundScanNeedsAConnection)
{
    const Outcome outcome = RunOn(DisconnectedWorld(), {"settings", "--enable-background-scan"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("EnableBackgroundScan returned 5023."));
}

TEST_F(IhvCommand, PrintsTheAnswer)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].ihv[{0x01, 0xA2}] = {{0xCA, 0xFE}, 0};
    world.adapters[0].ihv[{0x01, 0x00, 0x00}] = {{0x01, 0x02, 0x03}, 0};
    EXPECT_EQ("CAFE\n", RunOn(world, {"ihv", "01 a2"}).out);
    EXPECT_EQ("010203\n", RunOn(world, {"ihv", "01", "--size", "3"}).out);
    const json ihv = json::parse(RunOn(world, {"ihv", "01A2", "--grant", "--json"}).out)["ihv"];
    EXPECT_EQ(json({{"request", "01A2"}, {"answer", "CAFE"}}), ihv);
}

TEST_F(IhvCommand, SaysWhatTheDriverRefuses)
{
    const Outcome outcome = RunOn(RichWorld(), {"ihv", "FF"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("WlanIhvControl (not supported, 50)"));
}

TEST_F(IhvCommand, GrantingTakesAnAdministrator)
{
    simulation::Scenario world = RichWorld();
    world.administrator = false;
    const Outcome outcome = RunOn(world, {"ihv", "FF", "--grant"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("SetIhvSecuritySettings returned 5."));
    EXPECT_THAT(outcome.err, HasSubstr("administrator"));
}

TEST_F(IhvCommand, TakesOnlyPairsOfDigits)
{
    for (const char* request : {"1", "0g", ""})
        EXPECT_EQ(kBadInput, RunOn(RichWorld(), {"ihv", request}).exitCode) << request;
}

TEST_F(ListCommands, PrintTheListingsOfTheLibrary)
{
    const Outcome networks = RunOn(RichWorld(), {"list", "networks"});
    EXPECT_EQ(kSuccess, networks.exitCode);
    EXPECT_THAT(networks.out, StartsWith("Num Entries: 2\n"));
    EXPECT_THAT(networks.out, HasSubstr("Interface Description[0]: Wireless Adapter A\n"));
    EXPECT_EQ("", networks.err);
    EXPECT_THAT(RunOn(RichWorld(), {"list", "bss"}).out, HasSubstr("BSSID[0]:\t 02:11:00:00:24:06\n"));
}

TEST_F(ListCommands, SpeakJson)
{
    const json listing = json::parse(RunOn(RichWorld(), {"list", "bss", "--json"}).out);
    EXPECT_EQ("  Num Entries: 2", listing["lines"][0]);
}

TEST_F(ListCommands, ReportAnAdapterThatCannotBeListed)
{
    simulation::Scenario world = RichWorld();
    world.locationConsent = false;
    const Outcome outcome = RunOn(world, {"list", "networks"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.out, HasSubstr("Num Entries: 2\n"));
    EXPECT_THAT(outcome.err, HasSubstr("an adapter could not be listed"));
}

TEST_F(ListCommands, SoftApsAreRecognisedByTheirMarker)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].profiles.push_back(MakeProfile("LC#1"));
    world.adapters[0].connection = {{"LC#1", std::nullopt}};
    world.accessPoints.push_back(MakeAccessPoint("LC#1", {0x02, 0x77, 0, 0, 0, 1}, 2412000, -40));
    const json softAps = json::parse(RunOn(world, {"softap", "--json"}).out);
    EXPECT_EQ(true, softAps["connectedToSoftAp"]);
    EXPECT_TRUE(softAps["softAps"].is_array());
    EXPECT_EQ(false, json::parse(RunOn(RichWorld(), {"softap", "--json"}).out)["connectedToSoftAp"]);
}

} // namespace
} // namespace calvix::test::radio_settings_test
