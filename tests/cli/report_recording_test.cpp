#include "cli_test.h"

#include <nlohmann/json.hpp>

#include <regex>
#include <set>

namespace calvix::test::report_recording_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kRecordedWalk = CALVIX_SOURCE_DIR "/scenarios/office-walk.json";
constexpr const char* kRecordedOffice = CALVIX_SOURCE_DIR "/scenarios/office.json";
constexpr const char* kTwoAdapters = CALVIX_SOURCE_DIR "/scenarios/two-adapters.json";

std::size_t CountOf(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// Every access point that the lists of a recording name.
std::set<std::string> BssidsIn(const std::string& recording)
{
    static const std::regex entry("\"uPhyId\":[0-9]+,\"dot11Bssid\":\"([0-9A-F:]+)\"");
    std::set<std::string> bssids;
    for (std::sregex_iterator at(recording.begin(), recording.end(), entry), end; at != end; ++at)
        bssids.insert((*at)[1]);
    return bssids;
}

std::set<std::string> BssidsOf(const json& points)
{
    std::set<std::string> bssids;
    for (const json& point : points)
        bssids.insert(point["bssid"]);
    return bssids;
}

class ReportRecording : public CliTest
{
protected:
    /// Records a command and returns the recording's path.
    std::string Recorded(std::vector<std::string> command)
    {
        const std::string path = PathFor("session.jsonl");
        command.insert(command.end(), {"--record", path});
        Run(command);
        return path;
    }
    Outcome PageOf(const std::string& recording, const std::vector<std::string>& more = {})
    {
        std::vector<std::string> command = {"report", "-o", "-", "--recording", recording};
        command.insert(command.end(), more.begin(), more.end());
        return Run(command);
    }
    json DataOf(const std::string& recording, const std::vector<std::string>& more = {})
    {
        std::vector<std::string> options = {"--json"};
        options.insert(options.end(), more.begin(), more.end());
        const Outcome outcome = PageOf(recording, options);
        EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
        return json::parse(outcome.out);
    }
    std::string Session(const std::string& lines) const
    {
        return FileWith("written.jsonl", "{\"calvixRecording\":1,\"simulated\":false,\"anonymised\":false}\n" + lines);
    }
};

TEST_F(ReportRecording, TheWalkHasItsRoamsAndEveryAccessPoint)
{
    const std::string recording = Recorded({"watch", "--roam", "1", "--for", "240", "--scenario", kRecordedWalk});
    const Outcome page = PageOf(recording);
    EXPECT_EQ(kSuccess, page.exitCode) << page.err;
    const json data = DataOf(recording);
    ASSERT_EQ(2u, data["events"].size());
    EXPECT_EQ(74, data["events"][0]["second"]) << "when it was requested, as watch shows it";
    EXPECT_EQ("02:B8:00:11:00:02", data["events"][0]["from"]);
    EXPECT_EQ("02:B8:00:12:00:02", data["events"][0]["to"]);
    EXPECT_EQ("02:B8:00:13:00:02", data["events"][1]["to"]);
    EXPECT_EQ(2u, CountOf(page.out, "<path class=\"mark\""));
    EXPECT_EQ(240, data["samples"].back()["second"]) << "what the waits add up to";
    const std::set<std::string> recorded = BssidsIn(Content(recording));
    EXPECT_EQ(3u, recorded.size());
    EXPECT_EQ(recorded, BssidsOf(data["accessPoints"]));
    for (const std::string& bssid : recorded)
        EXPECT_EQ(1u, CountOf(page.out, "<td class=\"mono\">" + bssid + "</td>")) << bssid;
    EXPECT_THAT(page.out, HasSubstr("from the recording session.jsonl, of a simulated computer"));
    EXPECT_THAT(page.out, Not(HasSubstr(recording))) << "the folders are private";
    EXPECT_THAT(page.out, HasSubstr("Access points of other networks: the session listed only those of"));
    EXPECT_THAT(page.out, HasSubstr("The access points at the end: they were listed last at second 147 of 240."));
    EXPECT_EQ(page.out, PageOf(recording).out) << "each time";
}

TEST_F(ReportRecording, AListOfAccessPointsGivesThePictureThatTheComputerGives)
{
    const std::string recording = Recorded({"channels", "--scenario", kRecordedOffice});
    json of = DataOf(recording)["accessPoints"];
    json live = json::parse(Run({"report", "-o", "-", "--json", "--scenario", kRecordedOffice}).out)["accessPoints"];
    ASSERT_EQ(13u, of.size());
    for (json& point : live)
        point["inUse"] = false; // the session did not ask for the connection
    EXPECT_EQ(live, of);
    const std::string page = PageOf(recording).out;
    EXPECT_EQ(13u, CountOf(page, "<g class=\"ap "));
    for (const char* const sentence :
         {"The connection: the session did not query it.", "The stored profiles: the session did not list them.",
          "The signal over time: the session read it only once.",
          "<p>Not shown: they decide by the computer's answers"})
        EXPECT_THAT(page, HasSubstr(sentence));
    EXPECT_EQ(2u, CountOf(page, "<p>Not recorded.</p>")) << "the connection and the profiles";
    EXPECT_THAT(page, Not(HasSubstr("No profile is stored")));
    EXPECT_THAT(page, Not(HasSubstr("id=\"signal\"")));
}

TEST_F(ReportRecording, AnonymisedOnesHaveNoNamesAndAllElse)
{
    const std::string recording =
        Recorded({"watch", "--roam", "1", "--for", "240", "--scenario", kRecordedWalk, "--anonymise"});
    const json data = DataOf(recording);
    EXPECT_EQ(2u, data["events"].size());
    EXPECT_EQ(3u, data["accessPoints"].size());
    EXPECT_EQ("WPA2-PSK/CCMP", data["accessPoints"][0]["security"]);
    const std::string page = PageOf(recording).out;
    EXPECT_THAT(page, Not(HasSubstr("Brightwater")));
    EXPECT_THAT(page, HasSubstr("with invented names"));
}

TEST_F(ReportRecording, NamesArePutInAsText)
{
    simulation::Scenario world = SilentWorld();
    world.accessPoints.push_back(MakeAccessPoint("</script><img src=x onerror=a()>", {2, 0, 0, 0, 0, 1}, 2437000, -50));
    world.adapters[0].description = "<iframe src=y>";
    const std::string file = FileWith("world.json", simulation::WriteScenario(world));
    for (const char* const command : {"bss", "networks"})
    {
        const std::string page = PageOf(Recorded({command, "--scenario", file})).out;
        EXPECT_EQ(2u, CountOf(page, "<script")) << command;
        EXPECT_EQ(0u, CountOf(page, "<img") + CountOf(page, "<iframe")) << command;
        EXPECT_THAT(page, HasSubstr("&lt;/script&gt;&lt;img src=x onerror=a()&gt;")) << command;
    }
}

TEST_F(ReportRecording, WithoutAListOfAccessPointsThePageSaysSo)
{
    const std::string recording = Recorded({"networks", "--scenario", kRecordedOffice});
    const std::string page = PageOf(recording).out;
    EXPECT_THAT(page, HasSubstr("The access points: the session did not list them. Its list of networks has "));
    EXPECT_THAT(page, HasSubstr("\xe2\x80\x9c"
                                "Brightwater Staff\xe2\x80\x9d"));
    EXPECT_THAT(page, HasSubstr("The access points in view were not recorded."));
    EXPECT_THAT(page, Not(HasSubstr("No access point is in view")));
    EXPECT_EQ(0u, DataOf(recording)["accessPoints"].size());
}

TEST_F(ReportRecording, ProfilesHaveTheirOrderAndModes)
{
    const std::string recording = Recorded({"profiles", "list", "--scenario", kRecordedOffice});
    const json live = json::parse(Run({"profiles", "list", "--json", "--scenario", kRecordedOffice}).out)["profiles"];
    ASSERT_FALSE(live.empty());
    EXPECT_EQ(live, DataOf(recording)["profiles"]);
}

TEST_F(ReportRecording, RecordedRefusalsAreShownAndAreNotFailures)
{
    simulation::Scenario world = RichWorld();
    world.locationConsent = false;
    const std::string file = FileWith("world.json", simulation::WriteScenario(world));
    const Outcome page = PageOf(Recorded({"bss", "--scenario", file}));
    EXPECT_EQ(kSuccess, page.exitCode) << page.err;
    EXPECT_THAT(page.out,
                HasSubstr("<b>The access points:</b> the WLAN service refused WlanGetNetworkBssList (access denied"));
}

TEST_F(ReportRecording, OneAdapterIsShown)
{
    const std::string recording = Recorded({"bss", "--interface", "2", "--scenario", kTwoAdapters});
    const json data = DataOf(recording);
    EXPECT_EQ(2u, data["adapters"].size());
    EXPECT_EQ(BssidsIn(Content(recording)), BssidsOf(data["accessPoints"])) << "the one that was listed";
    EXPECT_EQ(0u, DataOf(recording, {"--interface", "1"})["accessPoints"].size());
    const std::string second = data["adapters"][1]["guid"];
    EXPECT_EQ(data, DataOf(recording, {"--interface", second}));
    EXPECT_EQ(kBadInput, PageOf(recording, {"--interface", "3"}).exitCode);
}

constexpr const char* kOneAdapter = R"("{5CA1AB1E-0001-4000-8000-00CA1F1C0001}")";

std::string ListOf(const std::string& bssid, int rssi)
{
    return std::string(R"({"call":"WlanGetNetworkBssList","in":{"client":1,"interface":)") + kOneAdapter +
           R"(,"ssid":null,"bssType":3,"securityEnabled":0},"out":{"result":0,"list":[{"dot11Ssid":"Pier","uPhyId":0,)"
           R"("dot11Bssid":")" +
           bssid + R"(","dot11BssType":1,"dot11BssPhyType":7,"lRssi":)" + std::to_string(rssi) +
           R"(,"uLinkQuality":60,"bInRegDomain":1,"usBeaconPeriod":100,"ullTimestamp":0,"ullHostTimestamp":0,)"
           R"("usCapabilityInformation":1,"ulChCenterFrequency":2437000,"uRateSetLength":0,"usRateSet":[],)"
           R"("informationElements":{"bytes":""}}],"block":1}})"
           "\n";
}

TEST_F(ReportRecording, ALossThatOnlyTheServiceReportedIsMarked)
{
    const std::string recording = Session(
        ListOf("02:00:00:00:00:01", -50) + R"({"call":"WlanConnect","in":{"client":1,"interface":)" + kOneAdapter +
        R"(,"mode":0,"profile":"Pier","ssid":null,"bssids":[{"address":"02:00:00:00:00:01"}],"bssType":1,"flags":0},)"
        R"("out":{"result":0}})"
        "\n"
        R"({"notification":{"client":1,"source":8,"code":21,"interface":)" +
        kOneAdapter +
        R"(,"bytes":{"bytes":""}}})"
        "\n"
        R"({"call":"Sleep","in":{"milliseconds":2500},"out":{}})"
        "\n"
        R"({"notification":{"client":1,"source":8,"code":10,"interface":)" +
        kOneAdapter +
        R"(,"data":{"wlanConnectionMode":0,"strProfileName":"Pier","dot11Ssid":"Pier","dot11BssType":1,)"
        R"("bSecurityEnabled":0,"wlanReasonCode":0,"dwFlags":0}}})"
        "\n"
        R"({"call":"Sleep","in":{"milliseconds":8500},"out":{}})"
        "\n"
        R"({"notification":{"client":1,"source":8,"code":21,"interface":)" +
        kOneAdapter +
        R"(,"bytes":{"bytes":""}}})"
        "\n" +
        ListOf("02:00:00:00:00:02", -70) + "{\"end\":9}\n");
    const json data = DataOf(recording);
    const json events = {{{"second", 2}, {"from", nullptr}, {"to", "02:00:00:00:00:01"}},
                         {{"second", 11}, {"from", "02:00:00:00:00:01"}, {"to", nullptr}}};
    EXPECT_EQ(events, data["events"]);
    ASSERT_EQ(2u, data["accessPoints"].size());
    EXPECT_EQ("02:00:00:00:00:02", data["accessPoints"][0]["bssid"]);
    EXPECT_EQ(false, data["accessPoints"][1]["inView"]) << "the last list does not have it";
    EXPECT_EQ(nullptr, data["status"]["connection"]);
    EXPECT_EQ(json::array(), data["adapters"]);
}

TEST_F(ReportRecording, DamageIsReportedWithItsLine)
{
    constexpr const char* header = "{\"calvixRecording\":1,\"simulated\":false,\"anonymised\":false}\n";
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"", ":1: this is not a recording: the file is empty"},
        {"<html>\n", ":1: this is not a recording: its first line is not a header"},
        {"{\"calvixRecording\":99,\"simulated\":false,\"anonymised\":false}\n", ":1: the recording has version 99"},
        {std::string(header) + "{\"call\":\"Sl", ":2: the recording ends in the middle of this line"},
        {std::string(header) + "{}\n", ":2: this line is damaged"},
        {std::string(header) + ListOf("02:00:00:00:00", -50) + "{\"end\":2}\n",
         ":2: the recording is damaged: in WlanGetNetworkBssList, \"dot11Bssid\" is not an address"},
        {std::string(header) + "{\"call\":\"Sleep\",\"in\":{\"milliseconds\":-1},\"out\":{}}\n{\"end\":2}\n",
         ":2: the recording is damaged: in Sleep, \"milliseconds\""},
        {std::string(header) + "{\"notification\":{\"client\":1}}\n{\"end\":2}\n",
         ":2: the recording is damaged: in the notification, \"source\""}};
    for (const auto& [content, message] : rows)
    {
        const std::string file = FileWith("damaged.jsonl", content);
        const Outcome outcome = PageOf(file);
        EXPECT_EQ(kBadInput, outcome.exitCode) << content;
        EXPECT_THAT(outcome.err, HasSubstr(file + message));
        EXPECT_EQ("", outcome.out);
    }
    EXPECT_EQ(kBadInput, PageOf(PathFor("nowhere.jsonl")).exitCode);
}

TEST_F(ReportRecording, AnIncompleteRecordingIsShown)
{
    const Outcome outcome = PageOf(Session(ListOf("02:00:00:00:00:01", -50)));
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("written.jsonl:2: the recording ends after this line"));
    EXPECT_THAT(outcome.out, HasSubstr("<td class=\"mono\">02:00:00:00:00:01</td>"));
    EXPECT_THAT(outcome.out, HasSubstr("The end of the session: the recording ends after line 2."));
}

TEST_F(ReportRecording, ExcludesWhatTheRecordingHasDecided)
{
    const std::string recording = Session("{\"end\":1}\n");
    EXPECT_EQ(kSuccess, PageOf(recording).exitCode);
    const std::vector<std::vector<std::string>> rows = {{"--for", "5"},
                                                        {"--roam", "1"},
                                                        {"--scenario", kRecordedOffice},
                                                        {"--record", PathFor("other.jsonl")},
                                                        {"--save", PathFor("saved.json")},
                                                        {"--replay", recording}};
    for (const std::vector<std::string>& more : rows)
    {
        const Outcome outcome = PageOf(recording, more);
        EXPECT_EQ(kBadInput, outcome.exitCode) << more.front();
        EXPECT_THAT(outcome.err, HasSubstr("--recording excludes " + more.front()));
        EXPECT_EQ("", outcome.out);
    }
}

} // namespace
} // namespace calvix::test::report_recording_test
