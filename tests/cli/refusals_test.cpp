// The program on a platform that was put in place beforehand, whose operations are made to fail one by one.

#include "cli_test.h"

#include "platform/platform.h"
#include "support/changed_platform.h"

#include <calvix/testing/computer.h>
#include <nlohmann/json.hpp>

namespace calvix::test::refusals_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::StartsWith;

simulation::Scenario TwoCandidates()
{
    simulation::Scenario scenario = NoProfileScenario();
    scenario.adapters[0].profiles = {MakeProfile("Strong"), MakeProfile("Weak")};
    scenario.accessPoints = {MakeAccessPoint("Strong", kHomeNet24, 2437000, -60),
                             MakeAccessPoint("Weak", kCafeNet, 2412000, -75)};
    return scenario;
}

class Refusals : public CliTest
{
protected:
    /// After any refusal, nothing may remain allocated.
    void TearDown() override
    {
        EXPECT_TRUE(m_computer.Held().Nothing());
        EXPECT_EQ(m_platform, platform::g_pReplacement.load()) << "the program did not put back what it found";
    }

    calvix::testing::Computer m_computer{simulation::WriteScenario(TwoCandidates())};
    const platform::Platform* const m_platform = platform::g_pReplacement;
};

TEST_F(Refusals, BestAsksForTheNextCandidate)
{
    m_computer.Fail("WlanConnect", 5, 1, 1);
    const Outcome outcome = Run({"best"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.out,
                StartsWith("#  Profile  SSID    Quality  5 GHz APs  Bonus  Score  Outcome\n"
                           "1  Weak     Weak         50          0     +0     50  refused (access denied, 5)\n"
                           "2  Strong   Strong       80          0     +0     80  joined\n"));
    EXPECT_EQ(2u, m_computer.CallCount("WlanConnect"));
}

TEST_F(Refusals, BestNeverAsksMoreThanTheLibraryDoes)
{
    EXPECT_EQ(kSuccess, Run({"best"}).exitCode);
    EXPECT_EQ(1u, m_computer.CallCount("WlanConnect"));
}

/// Both profiles have the name of the first, and so have the networks.
TEST_F(Refusals, BestShowsACandidateForEachTimeItsProfileIsStored)
{
    ChangedPlatform changed;
    changed.After<&WlanService::WlanGetProfileList>(
        [](DWORD, HANDLE, const GUID*, PVOID, WLAN_PROFILE_INFO_LIST** list)
        { std::wcscpy((*list)->ProfileInfo[1].strProfileName, L"Strong"); });
    changed.After<&WlanService::WlanGetAvailableNetworkList>(
        [](DWORD, HANDLE, const GUID*, DWORD, PVOID, WLAN_AVAILABLE_NETWORK_LIST** list)
        {
            for (DWORD i = 0; i < (*list)->dwNumberOfItems; ++i)
                std::wcscpy((*list)->Network[i].strProfileName, L"Strong");
        });
    m_computer.Fail("WlanConnect", 5);
    const Outcome outcome = Run({"best"});
    EXPECT_EQ(4u, m_computer.CallCount("WlanConnect"));
    EXPECT_THAT(outcome.out,
                StartsWith("#  Profile  SSID    Quality  5 GHz APs  Bonus  Score  Outcome\n"
                           "1  Strong   Weak         50          0     +0     50  refused (access denied, 5)\n"
                           "2  Strong   Weak         50          0     +0     50  refused (access denied, 5)\n"
                           "3  Strong   Strong       80          0     +0     80  refused (access denied, 5)\n"
                           "4  Strong   Strong       80          0     +0     80  refused (access denied, 5)\n"));
}

TEST_F(Refusals, StatusLeavesOutWhatTheDriverDoesNotReport)
{
    ASSERT_EQ(kSuccess, Run({"best"}).exitCode);
    m_computer.FailWhen(
        [](const calvix::testing::Call& call) -> std::optional<unsigned long>
        {
            const bool isRssi = call.operation == "WlanQueryInterface" && call["opcode"] != "7" &&
                                call["opcode"].find("current_connection") == std::string_view::npos;
            return isRssi ? std::optional<unsigned long>(50) : std::nullopt;
        });
    const Outcome outcome = Run({"status", "--json"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    const json connection = json::parse(outcome.out)["connection"];
    EXPECT_EQ("Weak", connection["profile"]);
    EXPECT_TRUE(connection["rssi"].is_null());
    EXPECT_TRUE(connection["framesSent"].is_null());
    EXPECT_EQ(1, connection["accessPoints"]);
}

} // namespace
} // namespace calvix::test::refusals_test
