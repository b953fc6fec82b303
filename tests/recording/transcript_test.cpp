// Every family of commands, recorded on a simulated computer and played back without it.

#include "cli/cli_test.h"

#include <regex>

namespace calvix::test::transcript_test
{
namespace
{

struct Session
{
    const char* name;
    const char* scenario; ///< in scenarios/
    std::vector<std::string> arguments;
    const char* answer = "";
};

void PrintTo(const Session& session, std::ostream* stream)
{
    *stream << session.name;
}

class Transcript : public CliTest, public ::testing::WithParamInterface<Session>
{
};

/// Recordings have no keys, so neither has what a replay shows.
std::string WithoutKeys(const std::string& text)
{
    static const std::regex key("(<keyMaterial>)[^<]*|(&lt;keyMaterial&gt;)[^&]*");
    return std::regex_replace(text, key, "$1$2********");
}

TEST_P(Transcript, ReplaysToTheSameResults)
{
    const Session& session = GetParam();
    Answer(session.answer);
    const std::string file = PathFor("session.jsonl");
    std::vector<std::string> recorded = session.arguments;
    recorded.insert(recorded.end(), {"--record", file, "--scenario",
                                     std::string(CALVIX_SOURCE_DIR "/scenarios/") + session.scenario + ".json"});
    std::vector<std::string> replayed = session.arguments;
    replayed.insert(replayed.end(), {"--replay", file});

    const Outcome first = Run(recorded);
    const Outcome second = Run(replayed);

    EXPECT_EQ(WithoutKeys(first.out), second.out);
    EXPECT_EQ(WithoutKeys(first.err), second.err);
    EXPECT_EQ(first.exitCode, second.exitCode);
    EXPECT_NE(first.out + first.err, "");
}

const Session kSessions[] = {
    {"Adapters", "two-adapters", {"adapters"}},
    {"NoAdapter", "no-adapter", {"adapters"}},
    {"ServiceStopped", "service-stopped", {"networks"}},
    {"ConsentDenied", "consent-denied", {"networks"}},
    {"RadioOff", "radio-off", {"scan"}},
    {"Networks", "airport", {"networks", "--json"}},
    {"NetworksTraced", "home", {"networks", "--trace"}},
    {"AccessPoints", "home", {"bss", "--json"}},
    {"AccessPointsOfSecond", "two-adapters", {"bss", "--interface", "2"}},
    {"Scan", "home", {"scan"}},
    {"Profiles", "home", {"profiles", "list", "--json"}},
    {"ProfileText", "home", {"profiles", "show", "Lindenhof"}},
    {"ProfileDeleted", "home", {"profiles", "delete", "Lindenhof"}},
    {"ProfileUnknown", "home", {"profiles", "delete", "Nobody's"}},
    {"ProfileMoved", "home", {"profiles", "move", "Lindenhof", "--to", "1"}},
    {"Status", "home", {"status", "--json"}},
    {"Connect", "home", {"connect", "Lindenhof"}},
    {"Disconnect", "home", {"disconnect", "--json"}},
    {"Reconnect", "home", {"reconnect", "--json"}},
    {"Automatic", "automatic", {"auto", "--method", "ranked", "--json"}},
    {"Switch", "automatic", {"switch", "--json"}},
    {"Best", "airport", {"best", "--json"}},
    {"Match", "home", {"match", "--json"}},
    {"Roam", "office", {"roam", "--json"}},
    {"RoamAndAgain", "office-walk", {"roam", "--every", "1", "--for", "90"}},
    {"Watch", "train", {"watch", "--for", "60"}},
    {"Radio", "home", {"radio", "restart"}},
    {"Settings", "laptop", {"settings", "--json"}},
    {"Vendor", "home", {"ihv", "FF", "--grant"}},
    {"SoftAccessPoints", "home", {"softap", "--json"}},
    {"ListNetworks", "home", {"list", "networks"}},
    {"ListAccessPoints", "home", {"list", "bss"}},
    {"Power", "laptop", {"power", "status"}},
    {"KeepAwake", "laptop", {"power", "keep-awake", "--for", "3"}, "yes\n"},
    {"KeepAwakeNot", "laptop", {"power", "keep-awake"}, "no\n"},
    {"Saver", "laptop", {"power", "saver", "--yes"}},
    {"Sleep", "laptop", {"power", "sleep", "--yes"}},
    {"Privilege", "laptop", {"power", "privilege", "SeShutdownPrivilege"}},
    {"Online", "airport-hotspot", {"online"}},
    {"RunUnknown", "home", {"run", "nothing.exe"}},
    {"Kill", "laptop", {"run", "--kill", "4711"}},
};

INSTANTIATE_TEST_SUITE_P(Commands,
                         Transcript,
                         ::testing::ValuesIn(kSessions),
                         [](const auto& session) { return std::string(session.param.name); });

TEST_F(Transcript, OfASimulatedComputerCanBeSavedToo)
{
    const std::string saved = PathFor("after.json");
    const std::string file = PathFor("session.jsonl");
    const Outcome outcome =
        RunOn(RichScenario(), {"profiles", "delete", "GoneNet", "--record", file, "--save", saved, "--json"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(Content(saved), ::testing::HasSubstr("OfficeNet"));
    const Outcome replayed = Run({"profiles", "delete", "GoneNet", "--replay", file, "--json"});
    EXPECT_EQ(outcome.out, replayed.out);
    EXPECT_EQ(kSuccess, replayed.exitCode) << replayed.err;
}

TEST_F(Transcript, IsIndifferentToTracing)
{
    const std::string file = PathFor("session.jsonl");
    RunOn(RichScenario(), {"networks", "--record", file});
    const Outcome traced = Run({"networks", "--trace", "--replay", file});
    EXPECT_EQ(kSuccess, traced.exitCode) << traced.err;
    RunOn(RichScenario(), {"networks", "--trace", "--record", file});
    EXPECT_EQ(kSuccess, Run({"networks", "--replay", file}).exitCode);
}

TEST_F(Transcript, NeedsOptionsThatGoTogether)
{
    const std::string file = FileWith("session.jsonl", "");
    for (const std::vector<std::string>& wrong : {std::vector<std::string>{"networks", "--anonymise"},
                                                  {"networks", "--replay", file, "--anonymise"},
                                                  {"networks", "--replay", file, "--scenario", file},
                                                  {"--replay", file, "networks", "--record", PathFor("other.jsonl")},
                                                  {"networks", "--replay", file, "--save", PathFor("other.json")},
                                                  {"networks", "--replay", PathFor("none.jsonl")},
                                                  {"networks", "--record", PathFor("no folder/session.jsonl")},
                                                  {"explain", "--record", PathFor("other.jsonl")},
                                                  {"explain", "--replay", file}})
    {
        const Outcome outcome = Run(wrong);
        EXPECT_EQ(kBadInput, outcome.exitCode) << ::testing::PrintToString(wrong);
        EXPECT_NE("", outcome.err);
    }
}

} // namespace
} // namespace calvix::test::transcript_test
