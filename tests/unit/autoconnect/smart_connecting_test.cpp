#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/requests.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace calvix::test::smart_connecting_test
{

using ::testing::ElementsAre;

namespace
{

class SmartConnectingTest : public LibraryTest
{
public:
    SmartConnectingTest()
        : LibraryTest(ScenarioOf({Profile("GoneNet"), Profile("First", "manual"), Profile("Second")},
                                 {Heard("Second", 2412000, -55), Heard("First", 2412000, -80)}))
    {
    }
};

} // namespace

TEST_F(SmartConnectingTest, RequestsTheFirstProfileInViewAndReturnsItsName)
{
    char name[128] = "marked";
    EXPECT_EQ(0, manager().SmartConnecting(&kAdapterA, name));
    EXPECT_STREQ("First", name);
    EXPECT_THAT(callLines(), ElementsAre(InterfacesLine(), ProfilesLine(), NetworksLine(), ConnectLine("First"),
                                         kRelease, kRelease, kRelease));
    ExpectSilence();
}

TEST_F(SmartConnectingTest, WorksOnTheFirstInterfaceWhicheverIsNamed)
{
    UseScenario(DisconnectedScenario());
    for (const GUID* interfaceGuid : {&kAdapterB, &kNoAdapter, static_cast<const GUID*>(nullptr)})
    {
        ClearCalls();
        char name[128] = {};
        EXPECT_EQ(0, manager().SmartConnecting(interfaceGuid, name));
        EXPECT_STREQ("HomeNet", name);
        EXPECT_EQ(ConnectLine("HomeNet"), call("WlanConnect").line);
    }
}

TEST_F(SmartConnectingTest, TheNameIsOptional)
{
    EXPECT_EQ(0, manager().SmartConnecting(&kAdapterA, nullptr));
    EXPECT_THAT(RequestedProfiles(*this), ElementsAre("First"));
}

TEST_F(SmartConnectingTest, TheNameIsCutToWhatTheTextHolds)
{
    for (const std::size_t length : {126u, 127u, 128u, 255u})
    {
        const std::string profile(length, 'n');
        UseScenario(ScenarioOf({ProfileFor(profile, "Net")}, {Heard("Net", 2412000, -50)}));
        char text[130];
        std::memset(text, '#', sizeof text);
        EXPECT_EQ(0, manager().SmartConnecting(&kAdapterA, text));
        const std::size_t kept = (std::min)(length, std::size_t{127});
        EXPECT_EQ(std::string(kept, 'n'), text);
        EXPECT_EQ(std::string(2, '#'), std::string(text + 128, 2)) << "no more than 128 bytes are written";
        EXPECT_THAT(RequestedProfiles(*this), ElementsAre(profile)) << "the request has the whole name";
    }
}

// The scan for a profile stops at its first match; no other network of that name is requested.
TEST_F(SmartConnectingTest, TheFirstNetworkOfTheProfileIsTaken)
{
    EditedAnswers edited;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        std::copy_n(L"First", 6, list.Network[0].strProfileName);
        list.Network[0].dot11BssType = dot11_BSS_type_independent;
    };
    EXPECT_EQ(87, manager().SmartConnecting(&kAdapterA, nullptr)) << "the profile is of another BSS type";
    EXPECT_EQ(1u, callCount("WlanConnect"));
    EXPECT_EQ(ConnectLine("First", "null", "independent"), call("WlanConnect").line);
}

} // namespace calvix::test::smart_connecting_test
