#include "cli_test.h"
#include <calvix/platform_records.h>

#include <nlohmann/json.hpp>

namespace calvix::test::connecting_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Commands that ask for a connection and wait for its outcome.
class ConnectingCommands : public CliTest
{
protected:
    /// RichWorld whose service connects nothing by itself.
    static simulation::Scenario QuietWorld()
    {
        simulation::Scenario world = DisconnectedWorld();
        for (simulation::AdapterDescription& adapter : world.adapters)
            adapter.autoConfiguration = false;
        return world;
    }

    static simulation::Scenario ConnectedQuietWorld()
    {
        simulation::Scenario world = RichWorld();
        world.adapters[0].autoConfiguration = false;
        return world;
    }

    static simulation::AccessPoint& AccessPointOf(simulation::Scenario& world, const simulation::MacAddress& bssid)
    {
        for (simulation::AccessPoint& accessPoint : world.accessPoints)
            if (accessPoint.bssid == bssid)
                return accessPoint;
        ADD_FAILURE() << "no such access point";
        return world.accessPoints.front();
    }

    static std::string ProfileIn(const Outcome& outcome)
    {
        const json status = json::parse(outcome.out);
        const bool connected = status.contains("connection") && status["connection"].is_object();
        return connected ? status["connection"]["profile"].get<std::string>() : "none: " + outcome.err;
    }
};

TEST_F(ConnectingCommands, ConnectWaitsAndShowsTheConnection)
{
    const Outcome outcome = RunOn(QuietWorld(), {"connect", "OfficeNet", "--interface", "1"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.out, StartsWith("Connected by \"OfficeNet\".\n\nAdapter:"));
    EXPECT_THAT(outcome.out, HasSubstr("BSSID:          02:22:00:00:50:95\n"));
    EXPECT_EQ("", outcome.err);
    EXPECT_EQ("OfficeNet", ProfileIn(RunOn(QuietWorld(), {"connect", "OfficeNet", "--json"})));
}

TEST_F(ConnectingCommands, ConnectReplacesTheConnection)
{
    EXPECT_EQ("OfficeNet", ProfileIn(RunOn(ConnectedQuietWorld(), {"connect", "OfficeNet", "--json"})));
}

TEST_F(ConnectingCommands, ConnectSaysThatTheNetworkIsNotInView)
{
    const Outcome outcome = RunOn(QuietWorld(), {"connect", "GoneNet", "--interface", "1"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_EQ("calvix: the network of the profile \"GoneNet\" is not in view.\n  Result: LinkProfile returned -2.\n"
              "  What to do: scan first; check the profile's name, upper and lower case included.\n",
              outcome.err);
}

TEST_F(ConnectingCommands, ConnectSuggestsTheProfileThatWasMeant)
{
    EXPECT_EQ("calvix: there is no profile \"officenet\".\n  Result: LinkProfile returned -2.\n"
              "  What to do: did you mean OfficeNet? If not, list the profiles: calvix profiles list.\n",
              RunOn(QuietWorld(), {"connect", "officenet", "--interface", "1"}).err);
    EXPECT_THAT(RunOn(QuietWorld(), {"connect", "qqqq"}).err, HasSubstr("What to do: list the profiles"));
}

TEST_F(ConnectingCommands, ErrorNumbersAreShownAsTheSystemWritesThem)
{
    simulation::Scenario world = QuietWorld();
    for (simulation::PhyDescription& phy : world.adapters[0].phys)
        phy.software = simulation::RadioSwitch::off;
    EXPECT_THAT(RunOn(world, {"connect", "OfficeNet"}).err,
                HasSubstr("Result: LinkProfile returned -2144067582 (the radio is off, 0x80342002).\n"));
}

TEST_F(ConnectingCommands, AWrongKeyIsNamedInBothWordings)
{
    simulation::Scenario world = QuietWorld();
    AccessPointOf(world, kOfficeNet).key = "another passphrase";
    const Outcome outcome = RunOn(world, {"connect", "OfficeNet"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the connection by \"OfficeNet\" was not made: the passphrase in the profile is "
                                       "most likely wrong. The service says: "));
    EXPECT_THAT(outcome.err, HasSubstr("What to do: store the profile again with the right passphrase.\n"));
    const json error = json::parse(RunOn(world, {"connect", "OfficeNet", "--json"}).out)["error"];
    EXPECT_EQ(WLAN_REASON_CODE_MSMSEC_PSK_MISMATCH_SUSPECTED, error["reasonCode"]);
    EXPECT_THAT(outcome.err, HasSubstr(error["reason"].get<std::string>()));
}

TEST_F(ConnectingCommands, AnAccessPointThatDoesNotReplyIsNamed)
{
    simulation::Scenario world = QuietWorld();
    AccessPointOf(world, kOfficeNet).answers = false;
    const Outcome outcome = RunOn(world, {"connect", "OfficeNet"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the access point does not reply. The service says: "));
}

TEST_F(ConnectingCommands, ATimeoutIsAFailure)
{
    simulation::Scenario world = QuietWorld();
    world.adapters[0].connectMilliseconds = 9000;
    const Outcome outcome = RunOn(world, {"connect", "OfficeNet", "--timeout", "2"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("was accepted, but the connection was not made within 2 seconds"));
    EXPECT_EQ(kSuccess, RunOn(world, {"connect", "OfficeNet", "--timeout", "10"}).exitCode);
}

TEST_F(ConnectingCommands, DisconnectWaitsUntilTheConnectionIsDown)
{
    const Outcome outcome = RunOn(ConnectedQuietWorld(), {"disconnect"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, HasSubstr("State:    disconnected\n"));
    EXPECT_EQ(kSuccess, RunOn(QuietWorld(), {"disconnect"}).exitCode) << "nothing to do";
}

TEST_F(ConnectingCommands, ReconnectGoesToTheBestAccessPoint)
{
    simulation::Scenario world = ConnectedQuietWorld();
    world.adapters[0].connection = {{"HomeNet", kHomeNet5}};
    const json status = json::parse(RunOn(world, {"reconnect", "--json"}).out);
    EXPECT_EQ("02:11:00:00:24:06", status["connection"]["bssid"]);
}

TEST_F(ConnectingCommands, ReconnectKnowsOtherWaysBack)
{
    for (const char* method : {"access-point", "network", "profile"})
    {
        const Outcome outcome = RunOn(ConnectedQuietWorld(), {"reconnect", "--method", method, "--json"});
        EXPECT_EQ(kSuccess, outcome.exitCode) << method << outcome.err;
        EXPECT_EQ("HomeNet", ProfileIn(outcome)) << method;
    }
}

TEST_F(ConnectingCommands, ReconnectToTheNetworkNeedsAnAutomaticProfile)
{
    simulation::Scenario world = ConnectedQuietWorld();
    world.adapters[0].connection = {{"OfficeNet", std::nullopt}};
    const Outcome outcome = RunOn(world, {"reconnect", "--method", "network"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("RecoverConnetionAttributes returned -99."));
    EXPECT_EQ("OfficeNet", ProfileIn(RunOn(world, {"reconnect", "--json"})));
}

TEST_F(ConnectingCommands, ReconnectAndResetNeedAConnection)
{
    EXPECT_THAT(RunOn(QuietWorld(), {"reconnect"}).err, HasSubstr("GetCurrentConnection returned -4."));
    EXPECT_THAT(RunOn(QuietWorld(), {"reset"}).err, HasSubstr("ResetConnection returned -4."));
}

TEST_F(ConnectingCommands, ResetMakesTheConnectionAgain)
{
    const Outcome outcome = RunOn(ConnectedQuietWorld(), {"reset", "--json"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_EQ("HomeNet", ProfileIn(outcome));
}

TEST_F(ConnectingCommands, AutoKnowsSeveralWays)
{
    simulation::Scenario world = QuietWorld();
    world.adapters[0].profiles = {MakeProfile("OfficeNet", "manual"), MakeProfile("HomeNet")};
    EXPECT_EQ("OfficeNet", ProfileIn(RunOn(world, {"auto", "--json"}))) << "the first profile in view";
    EXPECT_EQ("OfficeNet", ProfileIn(RunOn(world, {"auto", "--method", "connect", "--json"})));
    EXPECT_EQ("OfficeNet", ProfileIn(RunOn(world, {"auto", "--method", "smart", "--json"})));
    EXPECT_EQ("OfficeNet", ProfileIn(RunOn(world, {"auto", "--method", "ranked", "--json"}))) << "the lowest score";
}

TEST_F(ConnectingCommands, TwoWaysFailWhereThePlatformRefusesTheirConversion)
{
    // The simulated computer refuses the conversion flags of these methods, as Windows does.
    EXPECT_THAT(RunOn(QuietWorld(), {"auto", "--method", "mode"}).err, HasSubstr("ConnectAutoMode returned -9."));
    const Outcome outcome = RunOn(ConnectedQuietWorld(), {"switch", "--method", "smart"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("invalid flags, 1004"));
    EXPECT_THAT(outcome.err, HasSubstr("What to do: choose another method"));
}

TEST_F(ConnectingCommands, AutoWorksOnTheChosenAdapter)
{
    const json status = json::parse(RunOn(QuietWorld(), {"auto", "--interface", "2", "--json"}).out);
    EXPECT_EQ("Wireless Adapter B", status["adapter"]["description"]);
    EXPECT_EQ("CafeNet", status["connection"]["profile"]);
    const Outcome smart = RunOn(QuietWorld(), {"auto", "--method", "smart", "--interface", "2"});
    EXPECT_EQ(kBadInput, smart.exitCode);
    EXPECT_THAT(smart.err, HasSubstr("the first adapter only"));
}

TEST_F(ConnectingCommands, AutoPassesFailuresOn)
{
    EXPECT_THAT(RunOn(NoProfileWorld(), {"auto"}).err, HasSubstr("AutoConnect returned -5."));
    EXPECT_THAT(RunOn(SilentWorld(), {"auto"}).err, HasSubstr("AutoConnect returned -7."));
    EXPECT_EQ(kUnavailable, RunOn(NoAdapterWorld(), {"auto"}).exitCode);
}

TEST_F(ConnectingCommands, SwitchPutsTheProfileLastAndTakesAnother)
{
    const std::string saved = PathFor("saved.json");
    simulation::Scenario world = ConnectedQuietWorld();
    const Outcome outcome = RunOn(world, {"switch", "--save", saved, "--json"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    const simulation::Scenario after = simulation::LoadScenario(saved);
    EXPECT_THAT(after.adapters[0].profiles.back().xml, HasSubstr("<name>HomeNet</name>"));
}

TEST_F(ConnectingCommands, ProgressIsForTerminalsAndVanishes)
{
    const Outcome outcome = RunOn(QuietWorld(), {"connect", "OfficeNet"}, {.isTerminal = true});
    EXPECT_THAT(outcome.err, HasSubstr("Requested \"OfficeNet\", waiting for the connection 1."));
    EXPECT_THAT(outcome.err, ::testing::EndsWith(" \r"));
    EXPECT_THAT(RunOn(QuietWorld(), {"connect", "OfficeNet", "--json"}, {.isTerminal = true}).err,
                Not(HasSubstr("Asked")));
}

} // namespace
} // namespace calvix::test::connecting_test
