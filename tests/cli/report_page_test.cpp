#include "cli_test.h"

#include "output/failure.h"
#include "report/html_text.h"

#include <nlohmann/json.hpp>

#include <set>

namespace calvix::test::report_page_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kWalk = CALVIX_SOURCE_DIR "/scenarios/office-walk.json";
constexpr const char* kOffice = CALVIX_SOURCE_DIR "/scenarios/office.json";
constexpr const char* kAutomatic = CALVIX_SOURCE_DIR "/scenarios/automatic.json";

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// The text between the first `begin` and the next `end`.
std::string Between(const std::string& text, const std::string& begin, const std::string& end)
{
    const std::size_t from = text.find(begin);
    if (from == std::string::npos)
        return {};
    const std::size_t at = from + begin.size();
    return text.substr(at, text.find(end, at) - at);
}

json DataOf(const std::string& page)
{
    return json::parse(Between(page, "<script type=\"application/json\" id=\"data\">", "</script>"));
}

std::vector<std::string> With(std::vector<std::string> command, const std::vector<std::string>& more)
{
    command.insert(command.end(), more.begin(), more.end());
    return command;
}

class ReportPage : public CliTest
{
protected:
    /// The page that the command prints.
    std::string PageOn(const simulation::Scenario& scenario, int exitCode = kSuccess)
    {
        const Outcome outcome = RunOn(scenario, {"report", "-o", "-"});
        EXPECT_EQ(exitCode, outcome.exitCode) << outcome.err;
        return outcome.out;
    }
};

TEST_F(ReportPage, EveryAccessPointIsInTheDataTheChartAndTheTable)
{
    const std::string page = Run({"report", "-o", "-", "--scenario", kOffice}).out;
    const json list = json::parse(Run({"bss", "--json", "--scenario", kOffice}).out)["accessPoints"];
    ASSERT_EQ(13u, list.size());
    std::set<std::string> inData;
    const json data = DataOf(page);
    for (const json& point : data["accessPoints"])
        inData.insert(point["bssid"]);
    const std::string table = Between(page, "<tbody>", "</tbody>");
    for (const json& point : list)
    {
        const std::string bssid = point["bssid"];
        EXPECT_TRUE(inData.contains(bssid)) << bssid;
        EXPECT_EQ(1u, Count(table, "<td class=\"mono\">" + bssid + "</td>")) << bssid;
        EXPECT_EQ(1u, Count(page, "aria-label=\"" + point["ssid"].get<std::string>() + ", " + bssid + ", ")) << bssid;
    }
    EXPECT_EQ(13u, Count(page, "<g class=\"ap "));
    EXPECT_EQ(13u, Count(table, "<tr id=\"row-"));
    EXPECT_EQ(1u, Count(table, ">in use<"));
    EXPECT_EQ(1u, Count(page, " used\" id=\"arch-"));
}

TEST_F(ReportPage, NamesArePutInAsText)
{
    const std::vector<std::string> attacks = {"</script><img src=x onerror=a()>", "\"><svg onload=alert(1)>",
                                              "'--><!--<script>", "{{script}}", "<\xff\x01&lt;"};
    simulation::Scenario scenario = SilentScenario();
    std::uint8_t last = 1;
    for (const std::string& attack : attacks)
        scenario.accessPoints.push_back(MakeAccessPoint(attack.substr(0, 32), {2, 0, 0, 0, 0, last++}, 2437000, -50));
    simulation::ProfileSettings settings;
    settings.name = "<b onclick=x()>";
    settings.ssid = {'x'};
    scenario.adapters[0].profiles = {{simulation::MakeProfileXml(settings)}};
    scenario.adapters[0].description = "<iframe src=y>";
    const std::string file = FileWith("scenario.json", simulation::WriteScenario(scenario));
    const std::string page =
        Run({"report", "-o", "-", "--title", "</title><script>alert(1)</script>", "--scenario", file}).out;
    const std::string plain = PageOn(SilentScenario());
    for (const char* const tag :
         {"<script", "</script", "<img", "<svg onload", "<!--", "<iframe", "<b onclick", "</title"})
        EXPECT_EQ(Count(plain, tag), Count(page, tag)) << tag;
    EXPECT_EQ(Count(plain, "\"use strict\""), Count(page, "\"use strict\"")) << "what is put in is not filled in again";
    EXPECT_THAT(page, HasSubstr("&lt;/script&gt;&lt;img src=x onerror=a()&gt;"));
    EXPECT_THAT(page, HasSubstr("{{script}}"));
    EXPECT_EQ("</script><img src=x onerror=a()>", DataOf(page)["accessPoints"][0]["ssid"]);
    const std::string data = Between(page, "id=\"data\">", "</script>");
    for (const char c : data)
        ASSERT_TRUE(static_cast<unsigned char>(c) < 0x80 && c != '<' && c != '>' && c != '&');
}

TEST(HtmlText, EscapesWhatHasAMeaning)
{
    EXPECT_EQ("&lt;a href=&quot;x&quot; b=&apos;y&apos;&gt;&amp;amp;", host::EscapeHtml("<a href=\"x\" b='y'>&amp;"));
    EXPECT_EQ("a\xef\xbf\xbd b\xef\xbf\xbd", host::EscapeHtml(std::string("a\0\nb\x7f", 5)));
    EXPECT_EQ("1 {{b}} 2", host::FillTemplate("{{a}} 2", {{"a", "1 {{b}}"}, {"b", "never"}}));
    EXPECT_THROW(host::FillTemplate("{{c}}", {{"a", ""}}), std::logic_error);
}

TEST_F(ReportPage, NeedsNothingBesideItself)
{
    const std::string page = Run({"report", "-o", "-", "--scenario", kWalk, "--for", "20"}).out;
    EXPECT_EQ(0u, Count(page, "http:"));
    EXPECT_EQ(0u, Count(page, "https:"));
    EXPECT_EQ(0u, Count(page, "src=\""));
    EXPECT_EQ(0u, Count(page, "url("));
    EXPECT_EQ(0u, Count(page, "@import"));
    EXPECT_EQ(0u, Count(page, " style=\"")) << "the policy forbids it";
    EXPECT_THAT(page, HasSubstr("default-src 'none'"));
    const std::string nonce = Between(page, "style-src 'nonce-", "'");
    EXPECT_GE(nonce.size(), 10u);
    EXPECT_EQ(nonce, Between(page, "script-src 'nonce-", "'"));
    EXPECT_EQ(nonce, Between(page, "<style nonce=\"", "\""));
    EXPECT_EQ(nonce, Between(page, "<script nonce=\"", "\""));
    EXPECT_THAT(page, Not(HasSubstr("unsafe-inline")));
}

TEST_F(ReportPage, IsTheSameEachTime)
{
    const std::vector<std::string> command = {"report", "-o", "-", "--scenario", kWalk, "--for", "90", "--roam", "1"};
    const std::string page = Run(command).out;
    EXPECT_EQ(page, Run(command).out);
    EXPECT_THAT(page, HasSubstr("heard until 2026-01-01 00:0")) << "by the computer's clock";
}

TEST_F(ReportPage, IsBuiltForReadingAloud)
{
    const std::string page = Run({"report", "-o", "-", "--scenario", kOffice, "--title", "The third floor"}).out;
    EXPECT_THAT(page, HasSubstr("<html lang=\"en\">"));
    EXPECT_THAT(page, HasSubstr("<title>The third floor</title>"));
    for (const char* const part :
         {"<header>", "<main>", "<footer>", "<h1>", "<th scope=\"col\" data-sort=\"number\" aria-sort=\"descending\"",
          "<desc id=\"band-24-desc\">", "<desc id=\"band-5-desc\">", "<desc id=\"band-6-desc\">"})
        EXPECT_EQ(1u, Count(page, part)) << part;
    EXPECT_EQ(Count(page, "<table"), Count(page, "<caption>"));
    EXPECT_EQ(Count(page, "<section"), Count(page, "<section aria-labelledby="));
}

TEST_F(ReportPage, AnEmptyScenarioIsSaidToBeEmpty)
{
    const std::string page = PageOn(SilentScenario());
    EXPECT_EQ(0u, Count(page, "<g class=\"ap "));
    EXPECT_THAT(page, HasSubstr("No access point is in view."));
    EXPECT_EQ(2u, Count(page, "<text class=\"nothing\"")) << "in 2.4 and 5 GHz";
    EXPECT_EQ(1u, Count(page, "<p>No access point is heard in this band.</p>")) << "in 6 GHz";
    EXPECT_THAT(page, HasSubstr("There is no connection."));
    EXPECT_EQ(0u, DataOf(page)["accessPoints"].size());
}

TEST_F(ReportPage, SaysWhatIsMissingAndFails)
{
    simulation::Scenario scenario = RichScenario();
    scenario.locationConsent = false;
    const std::string page = PageOn(scenario, kFailed);
    EXPECT_THAT(page, HasSubstr("This picture is not complete"));
    EXPECT_THAT(page,
                HasSubstr("<b>The access points:</b> the WLAN service refused WlanGetNetworkBssList (access denied"));
    EXPECT_EQ(1u, Count(page, "allow location access for desktop apps (Settings, Privacy &amp; security, Location)"))
        << "once";
    EXPECT_THAT(page, HasSubstr("The access points in view are not known."));
    EXPECT_THAT(page, Not(HasSubstr("is heard in this band")));
    EXPECT_THAT(page, HasSubstr("<bdi>OfficeNet</bdi>")) << "the profiles are known all the same";
    EXPECT_THAT(PageOn(NoAdapterScenario(), kUnavailable), HasSubstr("the computer has no wireless adapter"));
}

TEST_F(ReportPage, ShowsWhatTheAutomaticMethodsWouldDoAndDoesNothing)
{
    const std::string saved = PathFor("after.json");
    const Outcome outcome = Run({"report", "--json", "-o", "-", "--scenario", kAutomatic, "--save", saved});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    std::map<std::string, json> asks;
    const json report = json::parse(outcome.out);
    for (const json& choice : report["choices"])
        asks[choice["method"]] = choice["asks"];
    const auto quoted = [](std::vector<std::string> names)
    {
        for (std::string& name : names)
            name = "\xe2\x80\x9c" + name + "\xe2\x80\x9d";
        return json(names);
    };
    EXPECT_EQ(quoted({"Market", "Harbour", "Pier"}), asks["ConnectBestAP"]);
    EXPECT_EQ(quoted({"Guesthouse", "Harbour", "Market", "Ferry", "Pier"}), asks["AutoConnect"]);
    EXPECT_EQ(quoted({"Ferry", "Guesthouse", "Market", "Harbour", "Pier"}), asks["AutoConnectEx"]);
    EXPECT_EQ(quoted({"Guesthouse"}), asks["SmartConnecting"]);
    EXPECT_EQ(quoted({"Guesthouse", "Harbour", "Market", "Ferry", "Pier"}), asks["AutoSwitch"]);
    EXPECT_EQ(json::array(), asks["ConnectAutoMode"]);
    EXPECT_EQ(json::array(), asks["SmartSwitch"]);
    ASSERT_EQ(1u, asks["Roaming"].size());
    EXPECT_THAT(asks["Roaming"][0].get<std::string>(), ::testing::EndsWith(":03"));
    EXPECT_EQ(asks["Roaming"], asks["Reconnect"]);
    EXPECT_EQ(simulation::WriteScenario(simulation::LoadScenario(kAutomatic)), Content(saved))
        << "profiles stay in their order, and the link stays";
}

TEST_F(ReportPage, MarksTheRoamsOfTheOfficeWalk)
{
    const std::string page = Run({"report", "-o", "-", "--scenario", kWalk, "--for", "240", "--roam", "1"}).out;
    const json data = DataOf(page);
    EXPECT_EQ(241u, data["samples"].size()) << "one at the beginning and one a second";
    ASSERT_EQ(2u, data["events"].size());
    EXPECT_EQ(74, data["events"][0]["second"]) << "when it was requested, as watch shows it";
    EXPECT_EQ("02:B8:00:11:00:02", data["events"][0]["from"]);
    EXPECT_EQ("02:B8:00:12:00:02", data["events"][0]["to"]);
    EXPECT_EQ("02:B8:00:13:00:02", data["events"][1]["to"]);
    EXPECT_EQ(2u, Count(page, "<line class=\"mark\""));
    EXPECT_THAT(page, HasSubstr("moved from 02:B8:00:11:00:02 to 02:B8:00:12:00:02"));
    EXPECT_EQ(1u, Count(page, ">gone<")) << "the first access point is out of reach at the end";
    EXPECT_EQ(241u, data["heard"]["02:B8:00:11:00:02"].size());
    EXPECT_EQ(kBadInput, Run({"report", "-o", "-", "--roam", "1", "--scenario", kWalk}).exitCode);
}

TEST_F(ReportPage, OfARecordedWalkIsTheSamePage)
{
    const std::string recording = PathFor("session.jsonl");
    const std::vector<std::string> walk = {"report", "-o", "-", "--for", "240", "--roam", "1"};
    const std::string page = Run(With(walk, {"--scenario", kWalk, "--record", recording})).out;
    const Outcome replayed = Run(With(walk, {"--replay", recording}));
    EXPECT_EQ(kSuccess, replayed.exitCode) << replayed.err;
    EXPECT_EQ(page, replayed.out);
}

TEST_F(ReportPage, OfAnotherCommandsRecordingIsNotWritten)
{
    const std::string recording = PathFor("session.jsonl");
    const std::string page = FileWith("air.html", "an earlier page");
    Run({"watch", "--for", "5", "--roam", "1", "--scenario", kWalk, "--record", recording});
    const Outcome outcome = Run({"report", "-o", page, "--for", "5", "--roam", "1", "--replay", recording});
    EXPECT_EQ(static_cast<int>(host::ExitCode::differs), outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("replay the recorded command with the same options"));
    EXPECT_EQ("", outcome.out);
    EXPECT_EQ("an earlier page", Content(page));
}

TEST_F(ReportPage, OfAnAnonymisedWalkHasNoNamesAndAllElse)
{
    const std::string recording = PathFor("session.jsonl");
    const std::vector<std::string> walk = {"report", "-o", "-", "--for", "240", "--roam", "1"};
    Run(With(walk, {"--scenario", kWalk, "--record", recording, "--anonymise"}));
    const std::string page = Run(With(walk, {"--replay", recording})).out;
    EXPECT_THAT(page, Not(HasSubstr("Brightwater")));
    const json data = DataOf(page);
    EXPECT_EQ(241u, data["samples"].size());
    EXPECT_EQ(2u, data["events"].size());
    EXPECT_EQ(4u, data["accessPoints"].size()) << "three in view, one gone";
    EXPECT_EQ("WPA2-PSK/CCMP", data["status"]["connection"]["security"]);
}

TEST_F(ReportPage, IsWrittenToAFile)
{
    const std::string file = PathFor("air.html");
    const Outcome outcome = Run({"report", "-o", file, "--scenario", kOffice});
    EXPECT_EQ("Wrote " + file + ": 13 access points. Open it in a browser.\n", outcome.out);
    EXPECT_EQ(Run({"report", "-o", "-", "--scenario", kOffice}).out, Content(file));
    EXPECT_EQ(kBadInput, Run({"report", "-o", PathFor("nowhere/air.html"), "--scenario", kOffice}).exitCode);
}

} // namespace
} // namespace calvix::test::report_page_test
