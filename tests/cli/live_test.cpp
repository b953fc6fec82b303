#include "cli_test.h"

#include "testing/manager_internals.h"

#include <nlohmann/json.hpp>

#include <csignal>
#include <map>
#include <sstream>

namespace calvix::test::live_test
{
namespace
{

using nlohmann::json;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kOfficeWalk = CALVIX_SOURCE_DIR "/scenarios/office-walk.json";
constexpr const char* kTrain = CALVIX_SOURCE_DIR "/scenarios/train.json";

/// Every line as the JSON object that it has to be.
std::vector<json> Objects(const std::string& text)
{
    std::vector<json> objects;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        objects.push_back(json::parse(line));
    return objects;
}

std::vector<json> EventsNamed(const std::string& text, const std::string& event)
{
    std::vector<json> found;
    for (const json& object : Objects(text))
        if (object["event"] == event)
            found.push_back(object);
    return found;
}

/// A text that presses Ctrl-C at the first flush after its first line.
class InterruptingText : public std::stringbuf
{
protected:
    int sync() override
    {
        if (!m_pressed && str().find('\n') != std::string::npos)
        {
            m_pressed = true;
            std::raise(SIGINT);
        }
        return std::stringbuf::sync();
    }

private:
    bool m_pressed = false;
};

class RoamCommand : public CliTest
{
};
class WatchCommand : public CliTest
{
};
class CtrlC : public CliTest
{
};

TEST_F(RoamCommand, TheOfficeWalkRoamsTwice)
{
    const Outcome outcome = Run({"roam", "--every", "1", "--for", "240", "--json", "--scenario", kOfficeWalk});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    std::map<std::string, int> decisions;
    for (const json& roam : EventsNamed(outcome.out, "roam"))
        ++decisions[roam["decision"]];
    EXPECT_EQ(2, decisions["roam"]);
    EXPECT_EQ(240, decisions["roam"] + decisions["stay"] + decisions["none"]) << "one decision a second";
    const std::vector<json> moves = EventsNamed(outcome.out, "moved");
    ASSERT_EQ(2u, moves.size());
    EXPECT_EQ("02:B8:00:12:00:02", moves[0]["to"]);
    EXPECT_EQ("02:B8:00:13:00:02", moves[1]["to"]);
}

TEST_F(RoamCommand, SaysInTextWhatItDecides)
{
    const Outcome outcome = Run({"roam", "--every", "1", "--for", "240", "--scenario", kOfficeWalk});
    EXPECT_THAT(outcome.out, HasSubstr(" s  stay: the signal is good enough to stay\n"));
    EXPECT_THAT(outcome.out, HasSubstr(" s  roam: from 02:B8:00:11:00:02 to 02:B8:00:12:00:02\n"));
    EXPECT_THAT(outcome.out, HasSubstr(" s  moved from 02:B8:00:12:00:02 to 02:B8:00:13:00:02\n"));
    EXPECT_THAT(outcome.out, EndsWith("Moved 2 times in 240 seconds.\n"));
}

/// Connected to the weaker of two access points.
simulation::Scenario WorthRoaming()
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].connection = {{"HomeNet", kHomeNet6}};
    return world;
}

TEST_F(RoamCommand, MovesAndWaits)
{
    const json roam = json::parse(RunOn(WorthRoaming(), {"roam", "--json"}).out);
    EXPECT_EQ("roam", roam["roam"]["decision"]);
    EXPECT_EQ(0, roam["roam"]["code"]);
    EXPECT_EQ("02:11:00:00:60:01", roam["roam"]["from"]);
    EXPECT_EQ("02:11:00:00:24:06", roam["roam"]["to"]);
    EXPECT_EQ("02:11:00:00:24:06", roam["status"]["connection"]["bssid"]);
}

TEST_F(RoamCommand, DryRunDecidesOnly)
{
    const Outcome outcome = RunOn(WorthRoaming(), {"roam", "--dry-run"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, StartsWith("Would move from 02:11:00:00:60:01 to 02:11:00:00:24:06.\n"));
    EXPECT_THAT(outcome.out, HasSubstr("BSSID:          02:11:00:00:60:01\n"));
    EXPECT_THAT(RunOn(WorthRoaming(), {"roam", "--dry-run", "--trace"}).err, Not(HasSubstr("WlanConnect failed")));
}

TEST_F(RoamCommand, StayingIsASuccess)
{
    const Outcome outcome = RunOn(RichWorld(), {"roam"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, StartsWith("Stays at 02:11:00:00:24:06: the signal is good enough to stay.\n"));
    EXPECT_EQ("stay", json::parse(RunOn(RichWorld(), {"roam", "--dry-run", "--json"}).out)["roam"]["decision"]);
}

TEST_F(RoamCommand, NeedsAConnection)
{
    const Outcome outcome = RunOn(DisconnectedWorld(), {"roam"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("Roaming returned -4."));
    EXPECT_THAT(RunOn(DisconnectedWorld(), {"roam", "--dry-run"}).err, HasSubstr("PreRoaming returned -4."));
}

TEST_F(RoamCommand, ForGoesWithEvery)
{
    EXPECT_EQ(kBadInput, RunOn(RichWorld(), {"roam", "--for", "10"}).exitCode);
}

TEST_F(WatchCommand, ShowsTheTwoRoamsOfTheOfficeWalk)
{
    const Outcome outcome = Run({"watch", "--roam", "1", "--for", "240", "--scenario", kOfficeWalk});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_THAT(outcome.out, StartsWith("    0.0 s  #### 100%  -45 dBm  Brightwater Staff  02:B8:00:11:00:02\n"));
    EXPECT_THAT(outcome.out, HasSubstr(" s  connection start: Brightwater Staff\n"));
    EXPECT_THAT(outcome.out, HasSubstr(" s  connection complete: Brightwater Staff\n"));
    EXPECT_THAT(outcome.out, EndsWith("Moved 2 times in 240 seconds.\n"));
}

TEST_F(WatchCommand, ShowsTheTrainsNetworkVanishAndComeBack)
{
    const Outcome outcome = Run({"watch", "--for", "190", "--json", "--scenario", kTrain});
    std::vector<std::string> names;
    for (const json& notice : EventsNamed(outcome.out, "notification"))
        names.push_back(notice["name"]);
    EXPECT_THAT(names, ::testing::IsSupersetOf({"disconnected", "connection start", "connection complete"}));
    std::size_t samples = 0;
    bool wasAway = false;
    for (const json& signal : EventsNamed(outcome.out, "signal"))
    {
        ++samples;
        wasAway = wasAway || !signal["connected"].get<bool>();
    }
    EXPECT_EQ(191u, samples) << "one at the beginning and one a second";
    EXPECT_TRUE(wasAway);
}

TEST_F(WatchCommand, NamesTheReasonOfALoss)
{
    const Outcome outcome = Run({"watch", "--for", "60", "--json", "--scenario", kTrain});
    bool told = false;
    for (const json& notice : EventsNamed(outcome.out, "notification"))
    {
        if (notice["name"] != "disconnected")
            continue;
        told = true;
        EXPECT_NE(0, notice["reasonCode"]);
        EXPECT_TRUE(notice["reason"].is_string());
        EXPECT_EQ("Night Express", notice["profile"]);
    }
    EXPECT_TRUE(told);
}

TEST_F(WatchCommand, DrawsOneLineOnATerminal)
{
    const Outcome outcome =
        Run({"watch", "--for", "5", "--speed", "1000000", "--scenario", kOfficeWalk}, {.isTerminal = true});
    EXPECT_THAT(outcome.out, HasSubstr("▂▄▆█ 100%  -45 dBm  Brightwater Staff  █"));
    EXPECT_THAT(outcome.out, HasSubstr("\r"));
    EXPECT_THAT(outcome.out, HasSubstr("  ██████\nMoved 0 times in 5 seconds.\n")) << "six samples drawn";
}

TEST_F(WatchCommand, TakesAMinuteOfASimulatedComputer)
{
    const Outcome outcome = RunOn(DisconnectedWorld(), {"watch"});
    EXPECT_THAT(outcome.out, EndsWith("Moved 0 times in 60 seconds.\n"));
}

TEST_F(CtrlC, EndsAWatchAsASuccess)
{
    ManagerInternals::Reset();
    std::istringstream noInput;
    InterruptingText buffer;
    std::ostream out(&buffer);
    std::ostringstream err;
    EXPECT_EQ(kSuccess, host::Run({"watch", "--for", "200", "--scenario", kOfficeWalk}, noInput, out, err, {}));
    EXPECT_THAT(buffer.str(), EndsWith("Moved 0 times in 0 seconds.\n"));
    EXPECT_EQ("", err.str());
}

TEST_F(CtrlC, EndsAWaitAsAFailure)
{
    const std::string file = FileWith("world.json", simulation::WriteScenario(RichWorld()));
    ManagerInternals::Reset();
    std::istringstream noInput;
    std::ostringstream out;
    InterruptingText buffer;
    std::ostream err(&buffer);
    // The trace line of the registration is the first line, the progress after it flushes.
    EXPECT_EQ(kFailed, host::Run({"scan", "--trace", "--scenario", file}, noInput, out, err, {.isTerminal = true}));
    EXPECT_THAT(buffer.str(), HasSubstr("calvix: interrupted.\n"));
    EXPECT_THAT(buffer.str(), HasSubstr("WlanUnRegisterNotification: 0")) << "left cleanly";
}

} // namespace
} // namespace calvix::test::live_test
