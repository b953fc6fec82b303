// Programs that differ from a recording, and damaged recordings.

#include "cli/cli_test.h"

namespace calvix::test::replay_trouble_test
{
namespace
{

using ::testing::AllOf;
using ::testing::HasSubstr;

constexpr int kDiffers = 5;

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

class ReplayTrouble : public CliTest
{
protected:
    ReplayTrouble() { RunOn(RichScenario(), {"profiles", "list", "--record", m_file}); }

    std::string Recorded() const { return Content(m_file); }
    std::string File() const { return m_file; }

    /// What the recorded command says to a recording of this content.
    Outcome ReplayOf(const std::string& content)
    {
        return Run({"profiles", "list", "--replay", FileWith("damaged.jsonl", content)});
    }

    void ExpectDamage(const std::string& content, const std::string& line, const std::string& what)
    {
        const Outcome outcome = ReplayOf(content);
        EXPECT_EQ(kBadInput, outcome.exitCode) << what;
        EXPECT_THAT(outcome.err, AllOf(HasSubstr("damaged.jsonl:" + line + ": "), HasSubstr(what)));
    }

    /// The number of the first line that contains this.
    static std::size_t LineWith(const std::vector<std::string>& lines, const std::string& text)
    {
        std::size_t number = 1;
        for (const std::string& line : lines)
        {
            if (line.find(text) != std::string::npos)
                return number;
            ++number;
        }
        ADD_FAILURE() << text << " is nowhere";
        return 1;
    }

private:
    std::string m_file = PathFor("session.jsonl");
};

TEST_F(ReplayTrouble, DiffersByAnotherCall)
{
    const Outcome outcome = Run({"networks", "--replay", File()});
    const std::string line = std::to_string(LineWith(LinesOf(Recorded()), "\"WlanGetProfileList\""));
    EXPECT_EQ(kDiffers, outcome.exitCode);
    EXPECT_THAT(outcome.err, AllOf(HasSubstr("session.jsonl:" + line + ": the program differs from the recording here"),
                                   HasSubstr("it calls WlanGetAvailableNetworkList {"),
                                   HasSubstr("the recording has WlanGetProfileList {")));
}

TEST_F(ReplayTrouble, DiffersByOtherArguments)
{
    const Outcome outcome = Run({"profiles", "list", "--interface", "2", "--replay", File(), "--json"});
    EXPECT_EQ(kDiffers, outcome.exitCode);
    EXPECT_THAT(outcome.err, AllOf(HasSubstr(std::string("it calls WlanGetProfileList {\"client\":1,\"interface\":\"") +
                                             kAdapterBText),
                                   HasSubstr(kAdapterAText)));
    EXPECT_THAT(outcome.out, HasSubstr("\"exitCode\": 5"));
}

TEST_F(ReplayTrouble, DiffersAtTheEndOfTheSession)
{
    RunOn(RichScenario(), {"watch", "--for", "1", "--record", File()});
    const Outcome longer = Run({"watch", "--for", "2", "--replay", File()});
    EXPECT_EQ(kDiffers, longer.exitCode);
    EXPECT_THAT(longer.err, HasSubstr("it calls Sleep {\"milliseconds\":100}; the recording has"));
    RunOn(RichScenario(), {"watch", "--for", "2", "--record", File()});
    const Outcome shorter = Run({"watch", "--for", "1", "--replay", File()});
    EXPECT_EQ(kDiffers, shorter.exitCode);
    EXPECT_THAT(shorter.err, HasSubstr("the recording has Sleep {\"milliseconds\":100}"));
}

TEST_F(ReplayTrouble, DiffersWhenRecordedCallsRemain)
{
    std::vector<std::string> lines = LinesOf(Recorded());
    const std::string more = R"({"call":"IsPwrSuspendAllowed","in":{},"out":{"result":1}})";
    lines.insert(lines.end() - 1, more);
    lines.back() = "{\"end\":" + std::to_string(lines.size() - 1) + "}";
    const Outcome outcome = ReplayOf(Joined(lines));
    EXPECT_EQ(kDiffers, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("it ends; the recording has IsPwrSuspendAllowed {}"));
}

TEST_F(ReplayTrouble, IsNotARecording)
{
    ExpectDamage("", "1", "the file is empty");
    ExpectDamage("Hello\n", "1", "this is not a recording");
    ExpectDamage("[1]\n", "1", "this is not a recording");
    ExpectDamage("{\"adapters\":[]}\n", "1", "this is not a recording");
    ExpectDamage("{\"calvixRecording\":\"1\"}\n", "1", "its version is not a number");
    ExpectDamage("{\"calvixRecording\":0}\n", "1", "its version is not a number");
    ExpectDamage("{\"calvixRecording\":1}\n", "1", "it does not describe the session");
    ExpectDamage("{\"calvixRecording\":2,\"simulated\":true,\"anonymised\":false}\n", "1", "has version 2");
    ExpectDamage("{\"calvixRecording\":1,\"simulated\":1,\"anonymised\":false}\n", "1", "it does not describe");
}

TEST_F(ReplayTrouble, IsADamagedLine)
{
    const std::vector<std::string> whole = LinesOf(Recorded());
    for (const char* damaged :
         {"", "{", "null", "7", "{}", "{\"call\":7,\"in\":{},\"out\":{}}", "{\"call\":\"Sleep\",\"out\":{}}",
          "{\"call\":\"Sleep\",\"in\":[],\"out\":{}}", "{\"notification\":1}", "{\"mark\":1}", "\xFF\xFE"})
    {
        std::vector<std::string> lines = whole;
        lines[2] = damaged;
        ExpectDamage(Joined(lines), "3", "this line is damaged");
    }
}

TEST_F(ReplayTrouble, IsABrokenOffRecording)
{
    const std::string whole = Recorded();
    const std::vector<std::string> lines = LinesOf(whole);
    const std::string count = std::to_string(lines.size());
    ExpectDamage(whole.substr(0, whole.size() - 2), count, "ends in the middle of this line");
    ExpectDamage(whole.substr(0, whole.find('\n') + 5), "2", "ends in the middle of this line");
    for (std::size_t kept = 1; kept < lines.size(); ++kept)
        ExpectDamage(Joined({lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(kept)}), std::to_string(kept),
                     "ends after this line");
}

TEST_F(ReplayTrouble, LacksLines)
{
    std::vector<std::string> lines = LinesOf(Recorded());
    const std::string count = std::to_string(lines.size());
    lines.push_back(lines[1]);
    ExpectDamage(Joined(lines), std::to_string(lines.size()), "this line follows its last one");
    lines = LinesOf(Recorded());
    lines.erase(lines.begin() + 1);
    ExpectDamage(Joined(lines), std::to_string(lines.size()), "lines were written before this one");
}

TEST_F(ReplayTrouble, IsADamagedField)
{
    const std::vector<std::string> whole = LinesOf(Recorded());
    const std::size_t at = LineWith(whole, "\"WlanEnumInterfaces\"");
    const auto damaged = [&](const std::string& from, const std::string& to)
    {
        std::vector<std::string> lines = whole;
        std::string& line = lines[at - 1];
        const std::size_t found = line.find(from);
        EXPECT_NE(found, std::string::npos) << from << " is not in " << line;
        line.replace(found, from.size(), to);
        return Joined(lines);
    };
    const std::string line = std::to_string(at);
    ExpectDamage(damaged("\"result\":0", "\"result\":\"0\""), line, "\"result\" is not a number that fits");
    ExpectDamage(damaged("\"result\":0", "\"result\":4294967296"), line, "\"result\" is not a number that fits");
    ExpectDamage(damaged("\"result\":0", "\"result\":-1"), line, "\"result\" is not a number that fits");
    ExpectDamage(damaged("\"result\":0", "\"resilt\":0"), line, "\"result\" is missing");
    ExpectDamage(damaged("\"list\":[", "\"list\":7,\"other\":["), line, "\"list\" is not a list");
    ExpectDamage(damaged("\"list\":[", "\"list\":[7,"), line, "\"list\" has an element that is not an object");
    ExpectDamage(damaged("\"isState\"", "\"isSlate\""), line, "\"isState\" is missing");
    ExpectDamage(damaged(kAdapterAText, "{A00}"), line, "\"InterfaceGuid\" is not a GUID");
    ExpectDamage(damaged("\"Wireless Adapter A\"", "{\"units\":\"XYZ\"}"), line,
                 "\"strInterfaceDescription\" is not a text");
    ExpectDamage(damaged("Wireless Adapter A", std::string(300, 'w')), line, "\"strInterfaceDescription\" is too long");
}

TEST_F(ReplayTrouble, IsADamagedNotification)
{
    RunOn(RichScenario(), {"scan", "--record", File()});
    std::vector<std::string> lines = LinesOf(Recorded());
    const std::size_t at = LineWith(lines, "\"notification\"");
    std::string& line = lines[at - 1];
    line.replace(line.find("\"code\""), 6, "\"cope\"");
    const Outcome outcome = Run({"scan", "--replay", FileWith("damaged.jsonl", Joined(lines))});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("damaged.jsonl:" + std::to_string(at) +
                                       ": the recording is damaged: in the notification, \"code\" is missing"));
}

} // namespace
} // namespace calvix::test::replay_trouble_test
