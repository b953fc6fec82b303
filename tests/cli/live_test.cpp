#include "cli_test.h"

#include "testing/manager_internals.h"

#include <nlohmann/json.hpp>

#include <map>
#include <sstream>

namespace calvix::test::live_test
{
namespace
{

using nlohmann::json;
using ::testing::EndsWith;
using ::testing::HasSubstr;

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
    const Outcome outcome = RunOn(DisconnectedScenario(), {"watch"});
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
    const std::string file = FileWith("scenario.json", simulation::WriteScenario(RichScenario()));
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
