// A captured computer beside the one that it was captured from.

#include "cli_test.h"

#include "simulation/timetable.h"
#include "support/edited_answers.h"
#include "testing/computer_internals.h"

#include <cstdlib>
#include <filesystem>
#include <memory>

namespace calvix::test::capture_test
{
namespace
{

using simulation::AccessPoint;
using simulation::Scenario;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

std::vector<std::string> Gallery()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(CALVIX_SOURCE_DIR "/scenarios"))
        names.push_back(entry.path().stem().string());
    return names;
}

std::string GalleryPath(const std::string& name)
{
    return CALVIX_SOURCE_DIR "/scenarios/" + name + ".json";
}

std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

class CaptureCommand : public CliTest
{
protected:
    std::string Captured() const { return PathFor("captured.json"); }
    Scenario Loaded() const { return simulation::LoadScenario(Captured()); }

    Outcome Capture(const std::string& scenario, const std::vector<std::string>& options = {})
    {
        std::vector<std::string> arguments{"capture", "-o", Captured(), "--scenario", scenario};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return Run(arguments);
    }

    /// A computer in place of a scenario file, so that a test can change its answers.
    void Use(const Scenario& scenario) { m_computer = calvix::testing::ComputerInternals::Make(scenario); }

    void Fail(const char* operation, DWORD error) { m_computer->Fail(operation, error); }

    void TearDown() override { EXPECT_TRUE(m_computer == nullptr || m_computer->Held().Nothing()); }

    Outcome CaptureIt(const std::string& seconds = "0") { return Run({"capture", "-o", Captured(), "--for", seconds}); }

    AccessPoint CapturedPoint(const simulation::MacAddress& bssid) const
    {
        const Scenario loaded = Loaded();
        for (const AccessPoint& point : loaded.accessPoints)
            if (point.bssid == bssid)
                return point;
        ADD_FAILURE() << "the access point is missing";
        return {};
    }

private:
    std::unique_ptr<calvix::testing::Computer> m_computer;
};

class CapturedGallery : public CaptureCommand, public ::testing::WithParamInterface<std::string>
{
protected:
    /// Everything that a command asks of a scenario's computer, and is answered. A captured profile has a protected key.
    std::string SessionOf(std::vector<std::string> command, const std::string& scenario)
    {
        const std::string file = PathFor("session.jsonl");
        command.insert(command.end(), {"--scenario", scenario, "--record", file});
        const int exitCode = Run(command).exitCode;
        return Replaced(Content(file), "<protected>false<", "<protected>true<") + std::to_string(exitCode);
    }
};

TEST_P(CapturedGallery, AnswersEveryQuestionAsTheOriginal)
{
    const std::string original = GalleryPath(GetParam());
    const Outcome outcome = Capture(original);
    ASSERT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    // Without location consent the connection is unknown, so a report makes fewer queries.
    const bool consent = GetParam() != "consent-denied";
    for (const char* adapter : {"1", "2"})
        for (std::vector<std::string> command :
             {consent ? std::vector<std::string>{"report", "-o", PathFor("page")} : std::vector<std::string>{"bss"},
              {"doctor"},
              {"radio", "status"},
              {"settings"},
              {"power", "status"}})
        {
            SCOPED_TRACE(command.front() + " of adapter " + adapter);
            command.insert(command.end(), {"--interface", adapter});
            const std::string expected = SessionOf(command, original);
            EXPECT_EQ(consent ? expected : Replaced(expected, R"("isState":1)", R"("isState":4)"),
                      SessionOf(command, Captured()));
        }
}

INSTANTIATE_TEST_SUITE_P(Scenarios, CapturedGallery, ::testing::ValuesIn(Gallery()));

TEST_F(CaptureCommand, ReportsWhatItWroteAsImportDoes)
{
    EXPECT_EQ("Adapters       1\nAccess points  10 (2 hidden)\nNetworks       9\nProfiles       3\nWritten to     " +
                  Captured() + "\n",
              Capture(GalleryPath("airport")).out);
}

TEST_F(CaptureCommand, TakesTheAdapterThatIsNamed)
{
    Capture(GalleryPath("two-adapters"), {"--interface", "2"});
    ASSERT_EQ(1u, Loaded().adapters.size());
    EXPECT_EQ("Calvix Simulated USB Wi-Fi 7 Adapter", Loaded().adapters[0].description);
}

/// For how many of the first 240 seconds only one of the two is on the air; their signals never differ by more than 2 dB.
int SecondsApart(const AccessPoint& original, const AccessPoint& captured)
{
    int apart = 0;
    for (int second = 0; second <= 240; ++second)
    {
        const auto before = simulation::SignalAt(original, std::chrono::seconds(second));
        const auto after = simulation::SignalAt(captured, std::chrono::seconds(second));
        apart += before.has_value() != after.has_value();
        if (before && after)
            EXPECT_LE(std::abs(*before - *after), 2) << "at " << second;
    }
    return apart;
}

TEST_F(CaptureCommand, FollowsTheAir)
{
    for (const char* name : {"office-walk", "train", "home"})
    {
        SCOPED_TRACE(name);
        EXPECT_EQ(kSuccess, Capture(GalleryPath(name), {"--for", "240"}).exitCode);
        const Scenario original = simulation::LoadScenario(GalleryPath(name));
        ASSERT_EQ(original.accessPoints.size(), Loaded().accessPoints.size());
        // An access point comes and goes with the scan that notices it, one in four seconds.
        for (const AccessPoint& point : original.accessPoints)
        {
            const AccessPoint captured = CapturedPoint(point.bssid);
            EXPECT_LE(SecondsApart(point, captured), 8);
            EXPECT_EQ(point.timetable.empty(), captured.timetable.empty());
        }
    }
}

TEST_F(CaptureCommand, FollowsWhereNoScanIsAccepted)
{
    Use(RichScenario());
    Fail("WlanScan", ERROR_BUSY);
    EXPECT_EQ(kSuccess, CaptureIt("6").exitCode);
    EXPECT_EQ(RichScenario().accessPoints.size(), Loaded().accessPoints.size());
}

TEST_F(CaptureCommand, PutsInventedNamesInPlaceOfRealOnes)
{
    const std::string office = GalleryPath("office");
    EXPECT_EQ(kSuccess, Capture(office, {"--anonymise"}).exitCode);
    const std::string text = Content(Captured());
    for (const char* real : {"Brightwater", "427269676874", "Kestrel", "Workshop", "02:b8", "5CA1AB1E", "Calvix Sim"})
        EXPECT_THAT(text, Not(HasSubstr(real)));
    EXPECT_EQ(Run({"channels", "--json", "--scenario", office}).out,
              Run({"channels", "--json", "--scenario", Captured()}).out)
        << "widths and signals are as they were";
    ASSERT_TRUE(Loaded().adapters[0].connection);
    EXPECT_THAT(Run({"best", "--json", "--scenario", Captured()}).out, HasSubstr(R"("outcome": "joined")"));
}

TEST_F(CaptureCommand, LeavesOutProfilesThatTheSimulatedComputerRejects)
{
    Use(RichScenario());
    ChangedPlatform changed;
    changed.After<&WlanService::WlanGetProfile>(
        [](DWORD, HANDLE, const GUID*, const wchar_t*, PVOID, wchar_t** xml, DWORD*, DWORD*) { **xml = L'?'; });
    EXPECT_THAT(CaptureIt().err,
                HasSubstr("warning: the profile \"HomeNet\" is left out: the simulated computer rejects it: "));
}

TEST_F(CaptureCommand, FailsWhereThereIsNoWlan)
{
    Use(RichScenario());
    Fail("WlanOpenHandle", ERROR_MOD_NOT_FOUND);
    EXPECT_EQ(kUnavailable, CaptureIt().exitCode);
    EXPECT_FALSE(std::filesystem::exists(Captured()));
}

TEST_F(CaptureCommand, LeavesOutAConnectionWhoseAccessPointIsNotListed)
{
    Use(RichScenario());
    const EditedAnswers altered({.bss = [](WLAN_BSS_LIST& list) { list.dwNumberOfItems = 0; }});
    EXPECT_THAT(CaptureIt().err,
                HasSubstr("the connection to \"HomeNet\" is left out: its access point is not listed\n"));
    EXPECT_FALSE(Loaded().adapters[0].connection);
}

TEST_F(CaptureCommand, AHiddenNetworkHasTheNameThatItsConnectionKnows)
{
    Scenario scenario = RichScenario();
    scenario.adapters[0].connection = simulation::Connection{"HiddenNet", kHiddenNet, 300'000, 200'000};
    const auto hide = [](WLAN_BSS_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
            if (std::equal(kHiddenNet.begin(), kHiddenNet.end(), list.wlanBssEntries[i].dot11Bssid))
                list.wlanBssEntries[i].dot11Ssid = {};
    };
    Use(scenario);
    const EditedAnswers altered({.bss = hide});
    EXPECT_THAT(CaptureIt().err, IsEmpty());
    const AccessPoint named = CapturedPoint(kHiddenNet);
    EXPECT_TRUE(named.hidden);
    EXPECT_EQ("HiddenNet", std::string(named.ssid.begin(), named.ssid.end()));
    EXPECT_EQ(scenario.adapters[0].connection, Loaded().adapters[0].connection);
}

TEST_F(CaptureCommand, DistinguishesNetworksOfOneNameByTheirElements)
{
    Scenario scenario = NoProfileScenario();
    for (AccessPoint& point : scenario.accessPoints)
        if (point.bssid == kHomeNet5)
            point.authentication = "WPA3SAE";
    RunOn(scenario, {"capture", "-o", Captured()});
    EXPECT_EQ("WPA3SAE", CapturedPoint(kHomeNet5).authentication);
    EXPECT_EQ("WPA2PSK", CapturedPoint(kHomeNet24).authentication);
    EXPECT_EQ("WPA2PSK", CapturedPoint(kHomeNet6).authentication);
}

TEST_F(CaptureCommand, NamesTheNearestSecurityOfTheServicesNumbers)
{
    const auto number = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
        {
            auto& network = list.Network[i];
            if (network.dot11Ssid.ucSSID[0] == 'O')
                network.dot11DefaultAuthAlgorithm = static_cast<DOT11_AUTH_ALGORITHM>(0x80000001U);
            else if (network.dot11Ssid.ucSSID[0] == 'H')
                network.dot11DefaultCipherAlgorithm = static_cast<DOT11_CIPHER_ALGORITHM>(5);
        }
    };
    Use(NoProfileScenario());
    const EditedAnswers altered({.networks = number});
    const Outcome outcome = CaptureIt();
    EXPECT_EQ("WPA2PSK", CapturedPoint(kOfficeNet).authentication);
    EXPECT_EQ("WEP", CapturedPoint(kHomeNet24).encryption);
    EXPECT_THAT(outcome.err, HasSubstr("of 02:22:00:00:50:95; the scenario has WPA2PSK or AES in its place\n"));
}

} // namespace
} // namespace calvix::test::capture_test
