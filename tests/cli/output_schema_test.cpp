// Every command's JSON against the published schema, successes and failures.

#include "cli_test.h"

#include "commands/commands.h"
#include "support/json_schema.h"

#include <nlohmann/json.hpp>

#include <set>
#include <sstream>

namespace calvix::test::output_schema_test
{
namespace
{

using nlohmann::json;

struct Row
{
    const char* definition;
    const char* path; ///< "profiles list"
    std::vector<std::string> arguments;
    const char* scenario = "home";
};

const std::vector<Row>& Rows()
{
    static const std::vector<Row> rows{
        {"doctor", "doctor", {}, "office-walk"},
        {"adapters", "adapters", {}, "two-adapters"},
        {"adapters", "adapters", {}, "laptop"},
        {"networks", "networks", {}, "airport"},
        {"networks", "networks", {}, "office"},
        {"networks", "networks", {"--scan"}, "laptop"},
        {"bss", "bss", {}, "airport"},
        {"bss", "bss", {"--interface", "2"}, "two-adapters"},
        {"channels", "channels", {}, "airport"},
        {"scan", "scan", {}},
        {"profiles-list", "profiles list", {}, "airport"},
        {"profiles-show", "profiles show", {"Lindenhof"}},
        {"profiles-change", "profiles add", {"FILE"}},
        {"profiles-change", "profiles delete", {"Lindenhof"}},
        {"profiles-change", "profiles move", {"Lindenhof", "--to", "last"}},
        {"status", "status", {}},
        {"status", "status", {}, "office"},
        {"status", "connect", {"Lindenhof"}},
        {"status", "disconnect", {}, "office-walk"},
        {"status", "reset", {}, "office-walk"},
        {"status", "reconnect", {}, "office-walk"},
        {"status", "auto", {}},
        {"status", "switch", {"--interface", "2"}, "two-adapters"},
        {"roam", "roam", {}, "office-walk"},
        {"roam", "roam", {"--dry-run"}, "office-walk"},
        {"watch", "watch", {"--for", "80", "--roam", "1"}, "office-walk"},
        {"watch", "watch", {"--for", "5"}},
        {"watch", "roam", {"--every", "1", "--for", "3"}, "office-walk"},
        {"radio", "radio status", {}},
        {"radio", "radio on", {}},
        {"radio", "radio off", {}},
        {"radio", "radio reset", {}},
        {"radio", "radio restart", {}},
        {"settings", "settings", {}},
        {"power", "power status", {}, "laptop"},
        {"power", "power keep-awake", {"--for", "1", "--yes"}},
        {"power", "power restore", {"--yes"}},
        {"power", "power saver", {"--yes"}, "laptop"},
        {"power", "power sleep", {"--yes"}},
        {"power-privilege", "power privilege", {"SeShutdownPrivilege"}},
        {"run", "run", {"--exe", "survey.exe"}, "laptop"},
        {"run", "run", {"--kill", "3160"}, "laptop"},
        {"online", "online", {}},
        {"list", "list networks", {}},
        {"list", "list bss", {}},
        {"softap", "softap", {}},
        {"match", "match", {}},
        {"best", "best", {}},
        {"explain", "explain", {}},
        {"explain", "explain", {"ConnectBestAP"}},
        {"explain", "explain", {"ConnectBestAP", "-9"}},
        {"import", "capture", {"-o", "OUTPUT"}, "office-walk"},
        {"import", "import", {"FILE-OF-NETWORKS", "-o", "OUTPUT"}},
        {"report", "report", {"-o", "OUTPUT", "--for", "3"}, "office-walk"},
        {"completion", "completion", {"bash"}},
        {"manual", "manual", {}},
        {"failure", "doctor", {}, "two-adapters"},
        {"failure", "networks", {}, "consent-denied"},
        {"failure", "status", {}, "service-stopped"},
        {"failure", "adapters", {}, "no-adapter"},
        {"failure", "connect", {"Nowhere"}},
        {"failure", "best", {}, "radio-off"},
        {"failure", "power sleep", {}},
        {"failure", "explain", {"NoSuchMethod"}},
        {"failure", "scan", {"--timout", "5"}},
        {"failure", "frobnicate", {}},
        {"failure", "report", {"-o", "OUTPUT"}, "consent-denied"},
    };
    return rows;
}

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.path;
    for (const std::string& argument : row.arguments)
        *out << ' ' << argument;
    *out << " in " << row.scenario;
}

/// Members may be added for users, but not without the schema.
void ForbidUnknownMembers(json& schema)
{
    if (schema.is_object() && schema.contains("properties") && !schema.contains("additionalProperties"))
        schema["additionalProperties"] = false;
    if (schema.is_structured())
        for (json& part : schema)
            ForbidUnknownMembers(part);
}

class OutputSchema : public CliTest
{
protected:
    static const json& Document()
    {
        static const json document = []
        {
            json read = json::parse(Content(CALVIX_SOURCE_DIR "/docs/output.schema.json"));
            for (json& definition : read["definitions"])
                ForbidUnknownMembers(definition);
            return read;
        }();
        return document;
    }

    /// Where the value is not what the definition says, empty where it is.
    static std::string ProblemOf(const json& value, const std::string& definition)
    {
        return SchemaProblem(Document(), Document()["definitions"].at(definition), value);
    }

    std::vector<std::string> CommandLine(const Row& row)
    {
        std::vector<std::string> words;
        std::istringstream path(row.path);
        for (std::string word; path >> word;)
            words.push_back(word);
        for (const std::string& argument : row.arguments)
            if (argument == "OUTPUT")
                words.push_back(PathFor("output"));
            else if (argument == "FILE")
                words.push_back(CALVIX_SOURCE_DIR "/tests/data/captures/home/profiles/Wi-Fi-Attic.xml");
            else if (argument == "FILE-OF-NETWORKS")
                words.push_back(CALVIX_SOURCE_DIR "/tests/data/captures/home/networks.txt");
            else
                words.push_back(argument);
        words.insert(words.end(),
                     {"--json", "--scenario", CALVIX_SOURCE_DIR "/scenarios/" + std::string(row.scenario) + ".json"});
        return words;
    }
};

/// Live commands print an object a line.
std::vector<json> ObjectsOf(const Row& row, const std::string& text)
{
    if (std::string(row.definition) != "watch")
        return {json::parse(text)};
    std::vector<json> objects;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        objects.push_back(json::parse(line));
    return objects;
}

TEST_F(OutputSchema, DescribesWhatEveryCommandPrints)
{
    for (const Row& row : Rows())
    {
        SCOPED_TRACE(::testing::PrintToString(row));
        const Outcome outcome = Run(CommandLine(row));
        EXPECT_EQ(std::string(row.definition) != "failure", outcome.exitCode == kSuccess) << outcome.err;
        ASSERT_NE("", outcome.out);
        const std::vector<json> objects = ObjectsOf(row, outcome.out);
        std::set<std::string> seen;
        for (const json& object : objects)
        {
            // One of each kind is enough.
            const std::string kind = object.contains("event") ? object["event"].get<std::string>() : "";
            if (!seen.insert(kind + (object.value("connected", false) ? "+" : "")).second)
                continue;
            EXPECT_EQ("", ProblemOf(object, row.definition)) << object.dump(2);
        }
    }
}

TEST_F(OutputSchema, LeavesNoCommandOut)
{
    // The driver's answer is below. Help is text, and what scripts ask for is no JSON.
    std::set<std::string> checked{"ihv", "help"};
    for (const Row& row : Rows())
        checked.insert(row.path);
    for (const host::Command& command : host::AllCommands().commands)
        EXPECT_TRUE(command.hidden || checked.count(command.path) == 1) << command.path;
}

TEST_F(OutputSchema, DescribesTheAnswerOfADriver)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[0].ihv[{0x01, 0, 0, 0}] = {{0xAB, 0xCD}, 0};
    EXPECT_EQ("", ProblemOf(json::parse(RunOn(scenario, {"ihv", "01", "--size", "4", "--json"}).out), "ihv"));
}

TEST_F(OutputSchema, RefusesWhatItDoesNotDescribe)
{
    EXPECT_NE("", ProblemOf(json::parse(R"({"online": "yes"})"), "online"));
    EXPECT_NE("", ProblemOf(json::parse(R"({"online": true, "more": 1})"), "online"));
    EXPECT_NE("", ProblemOf(json::parse(R"({})"), "online"));
}

} // namespace
} // namespace calvix::test::output_schema_test
