#include "cli_test.h"

#include <nlohmann/json.hpp>

namespace calvix::test::connection_test
{
namespace
{

using nlohmann::json;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class StatusCommand : public CliTest
{
};
class MatchCommand : public CliTest
{
};
class BestCommand : public CliTest
{
};

TEST_F(StatusCommand, ShowsTheConnection)
{
    const Outcome outcome = RunOn(RichWorld(), {"status"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, StartsWith("Adapter:        Wireless Adapter A\n"
                                        "State:          connected\n"
                                        "SSID:           HomeNet\n"
                                        "BSSID:          02:11:00:00:24:06\n"
                                        "Profile:        HomeNet\n"
                                        "Security:       WPA2-PSK/CCMP\n"
                                        "PHY:            802.11n\n"
                                        "Signal:         #### 100% (-50 dBm)\n"));
    EXPECT_THAT(outcome.out, EndsWith("Access points:  3 of this network in view\n"
                                      "Frames:         1234 sent, 56789 received\n"));
}

TEST_F(StatusCommand, SpeaksJson)
{
    const json status = json::parse(RunOn(RichWorld(), {"status", "--json"}).out);
    EXPECT_EQ("Wireless Adapter A", status["adapter"]["description"]);
    EXPECT_EQ("HomeNet", status["connection"]["profile"]);
    EXPECT_EQ("486F6D654E6574", status["connection"]["ssidHex"]);
    EXPECT_EQ(-50, status["connection"]["rssi"]);
    EXPECT_EQ(100, status["connection"]["quality"]);
    EXPECT_EQ(3, status["connection"]["accessPoints"]);
    EXPECT_EQ(1234, status["connection"]["framesSent"]);
    EXPECT_EQ(56789, status["connection"]["framesReceived"]);
}

TEST_F(StatusCommand, ShowsThatThereIsNoConnection)
{
    const json status = json::parse(RunOn(DisconnectedWorld(), {"status", "--json"}).out);
    EXPECT_EQ("disconnected", status["adapter"]["stateText"]);
    EXPECT_TRUE(status["connection"].is_null());
}

TEST_F(StatusCommand, NamesTheMissingConsent)
{
    simulation::Scenario world = RichWorld();
    world.locationConsent = false;
    const Outcome outcome = RunOn(world, {"status"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("WlanQueryInterface (access denied, 5)"));
    EXPECT_THAT(outcome.err, HasSubstr("location access"));
}

/// Two networks to choose from. The last of the list, which alone can earn the bonus, is the weaker one, on 5 GHz.
simulation::Scenario TwoCandidates()
{
    simulation::Scenario world = NoProfileWorld();
    world.adapters[0].profiles = {MakeProfile("Strong"), MakeProfile("Weak"), MakeProfile("ByHand", "manual")};
    world.accessPoints = {MakeAccessPoint("Strong", kHomeNet24, 2437000, -60),
                          MakeAccessPoint("ByHand", kOfficeNet, 2437000, -40),
                          MakeAccessPoint("Weak", kCafeNet, 5180000, -75)};
    return world;
}

TEST_F(MatchCommand, ShowsAccessPointsOfEveryStoredProfile)
{
    const Outcome outcome = RunOn(TwoCandidates(), {"match"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_EQ("3 networks with a stored profile in view: Strong, Weak, ByHand\n"
              "BSSID              SSID    Signal  dBm  Channel  Band     PHY\n"
              "02:11:00:00:24:06  Strong  ####    -60        6  2.4 GHz  802.11n\n"
              "02:66:00:00:24:01  Weak    ##..    -75       36  5 GHz    802.11n\n"
              "02:22:00:00:50:95  ByHand  ####    -40        6  2.4 GHz  802.11n\n",
              outcome.out);
}

TEST_F(MatchCommand, LeavesManualProfilesOut)
{
    const json match = json::parse(RunOn(RichWorld(), {"match", "--auto-only", "--json"}).out);
    EXPECT_EQ(json({"HomeNet"}), match["profiles"]);
    EXPECT_EQ(3u, match["accessPoints"].size());
}

TEST_F(MatchCommand, CountsTheNamedProfileInAnyMode)
{
    const json match = json::parse(RunOn(RichWorld(), {"match", "--profile", "OfficeNet", "--json"}).out);
    EXPECT_EQ(json({"HomeNet", "OfficeNet"}), match["profiles"]);
    EXPECT_EQ(4u, match["accessPoints"].size());
}

TEST_F(MatchCommand, FailsWithoutProfilesOrNetworks)
{
    const Outcome noProfile = RunOn(NoProfileWorld(), {"match"});
    EXPECT_EQ(kFailed, noProfile.exitCode);
    EXPECT_THAT(noProfile.err, HasSubstr("no profile is stored.\n  Result: GetMatchAPList returned -6.\n"));
    const Outcome noNetwork = RunOn(SilentWorld(), {"match", "--auto-only"});
    EXPECT_EQ(kFailed, noNetwork.exitCode);
    EXPECT_THAT(noNetwork.err, HasSubstr("no network is in view.\n  Result: GetConnectableAPList returned -8.\n"));
}

TEST_F(BestCommand, ShowsTheScoresAndJoinsTheLowest)
{
    const Outcome outcome = RunOn(TwoCandidates(), {"best", "--interface", "1"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.out, StartsWith("#  Profile  SSID    Quality  5 GHz APs  Bonus  Score  Outcome\n"
                                        "1  Weak     Weak         50          1    +10     60  joined\n"
                                        "2  Strong   Strong       80          0     +0     80  not tried\n"
                                        "\n"
                                        "Adapter:        Wireless Adapter A\n"
                                        "State:          connected\n"
                                        "SSID:           Weak\n"));
    EXPECT_EQ("", outcome.err);
}

TEST_F(BestCommand, SpeaksJson)
{
    const json best = json::parse(RunOn(TwoCandidates(), {"best", "--json"}).out);
    ASSERT_EQ(2u, best["candidates"].size());
    EXPECT_EQ(json({{"order", 1},
                    {"profile", "Weak"},
                    {"ssid", "Weak"},
                    {"ssidHex", "5765616B"},
                    {"quality", 50},
                    {"fiveGhz", 1},
                    {"bonus", 10},
                    {"score", 60},
                    {"outcome", "joined"},
                    {"error", nullptr}}),
              best["candidates"][0]);
    EXPECT_EQ("not tried", best["candidates"][1]["outcome"]);
    EXPECT_EQ("Weak", best["status"]["connection"]["profile"]);
}

TEST_F(BestCommand, LeavesAProfileOut)
{
    const json best = json::parse(RunOn(TwoCandidates(), {"best", "--exclude-profile", "Weak", "--json"}).out);
    ASSERT_EQ(1u, best["candidates"].size());
    EXPECT_EQ("Strong", best["status"]["connection"]["profile"]);
}

TEST_F(BestCommand, LeavesSsidsOut)
{
    // A longer SSID that begins with the network's rules it out too.
    const json best = json::parse(RunOn(TwoCandidates(), {"best", "--exclude-ssid", "Weaker", "--json"}).out);
    ASSERT_EQ(1u, best["candidates"].size());
    EXPECT_EQ("Strong", best["status"]["connection"]["profile"]);

    const Outcome none =
        RunOn(TwoCandidates(), {"best", "--exclude-ssid", "Weak", "--exclude-ssid", "Strong", "--json"});
    EXPECT_EQ(kFailed, none.exitCode);
    EXPECT_EQ(-9, json::parse(none.out)["error"]["code"]);
}

TEST_F(BestCommand, LeavesBothOut)
{
    const Outcome outcome = RunOn(TwoCandidates(), {"best", "--exclude-ssid", "Weak", "--exclude-profile", "Strong"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("no visible network can be chosen.\n  Result: ConnectBestAP returned -9.\n"));
}

TEST_F(BestCommand, TakesEscapedSsids)
{
    simulation::Scenario world = TwoCandidates();
    simulation::ProfileSettings settings;
    settings.name = "Bytes";
    settings.ssid = {'C', 'a', 'f', 0xE9};
    settings.key = "a passphrase";
    world.adapters[0].profiles = {{simulation::MakeProfileXml(settings)}};
    world.accessPoints = {MakeAccessPoint("Caf\xE9", kCafeNet, 2412000, -60)};
    EXPECT_EQ(kFailed, RunOn(world, {"best", "--exclude-ssid", "Caf\\xE9"}).exitCode);
    EXPECT_EQ(kSuccess, RunOn(world, {"best", "--exclude-ssid", "Caf\\xE8"}).exitCode);
}

TEST_F(BestCommand, SaysThatTheConnectionWasNeverMade)
{
    simulation::Scenario world = TwoCandidates();
    world.adapters[0].connectMilliseconds = 5000;
    const Outcome outcome = RunOn(world, {"best", "--timeout", "2"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.out, HasSubstr("60  accepted\n"));
    EXPECT_THAT(outcome.err, HasSubstr("the request for \"Weak\" was accepted, but the connection was not made within "
                                       "2 seconds"));
    const json error = json::parse(RunOn(world, {"best", "--timeout", "2", "--json"}).out);
    EXPECT_EQ("accepted", error["candidates"][0]["outcome"]);
    EXPECT_EQ(1, error["error"]["exitCode"]);
}

TEST_F(BestCommand, ConnectsOnlyOnceAndTracesOnlyThat)
{
    const Outcome outcome = RunOn(TwoCandidates(), {"best", "--trace"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.err, Not(HasSubstr("WlanConnect failed")));
}

TEST_F(BestCommand, PassesFailuresOfTheLibraryOn)
{
    EXPECT_THAT(RunOn(NoProfileWorld(), {"best"}).err, HasSubstr("ConnectBestAP returned -5."));
    EXPECT_THAT(RunOn(SilentWorld(), {"best"}).err, HasSubstr("ConnectBestAP returned -7."));
    simulation::Scenario world = TwoCandidates();
    world.locationConsent = false;
    EXPECT_THAT(RunOn(world, {"best"}).err, HasSubstr("ConnectBestAP returned -6."));
}

TEST_F(BestCommand, ShowsProgressOnATerminal)
{
    const Outcome outcome = RunOn(TwoCandidates(), {"best"}, {.isTerminal = true});
    EXPECT_THAT(outcome.err, HasSubstr("Requested \"Weak\", waiting for the connection"));
}

} // namespace
} // namespace calvix::test::connection_test
