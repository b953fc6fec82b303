#include "support/edited_answers.h"
#include "support/library_test.h"

namespace calvix::test::adapters_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// Adapter B goes by adapter A's GUID as well.
void DuplicateGuid(WLAN_INTERFACE_INFO_LIST& list)
{
    list.InterfaceInfo[1].InterfaceGuid = list.InterfaceInfo[0].InterfaceGuid;
}

simulation::Scenario DescriptionScenario(const std::string& description, std::uint32_t codePage = 1252)
{
    simulation::Scenario scenario = RichScenario();
    scenario.codePage = codePage;
    scenario.adapters[0].description = description;
    return scenario;
}

/// GetWlanInterfaceGuid, which leaves the GUID alone unless it succeeds.
long long FindGuid(CWirelessManage& manager, const wchar_t* description)
{
    GUID guid = kNoAdapter;
    const long code = manager.GetWlanInterfaceGuid(description, guid);
    EXPECT_EQ(code != 0, guid == kNoAdapter);
    return code;
}

} // namespace

class AdaptersTest : public LibraryTest
{
};

TEST_F(AdaptersTest, AnUnknownAdapterIsNotTraced)
{
    EXPECT_EQ(-1, manager().GetWlanStatus(&kNoAdapter));
    EXPECT_FALSE(manager().GetWlanIsLink(&kNoAdapter));
    EXPECT_EQ(-4, FindGuid(manager(), L"Wireless Adapter C"));
    EXPECT_STREQ("", manager().GetWlanInterfaceDesc(&kNoAdapter));
    ExpectSilence();
}

// --- GetWlanStatus and GetWlanIsLink ----------------------------------------------------------------------------

TEST_F(AdaptersTest, StatusIsTheAdaptersState)
{
    EXPECT_EQ(1, manager().GetWlanStatus(&kAdapterA));
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanFreeMemory"));
    EXPECT_EQ("WlanEnumInterfaces(client=1, reserved=null, list=non-null)", callLines().front());
    ExpectSilence();
    EXPECT_EQ(4, manager().GetWlanStatus(&kAdapterB));
}

TEST_F(AdaptersTest, OnlyStateOneIsALink)
{
    for (int state = 0; state <= 8; ++state)
    {
        computer().SetInterfaceState(1, static_cast<WLAN_INTERFACE_STATE>(state));
        EXPECT_EQ(state, manager().GetWlanStatus(&kAdapterB));
        EXPECT_EQ(state == 1, manager().GetWlanIsLink(&kAdapterB)) << state;
    }
    EXPECT_FALSE(manager().GetWlanIsLink(&kNoAdapter));
}

TEST_F(AdaptersTest, AllSixteenBytesOfTheGuidCount)
{
    for (std::size_t place = 0; place < sizeof(GUID); ++place)
    {
        GUID almost = kAdapterA;
        reinterpret_cast<unsigned char*>(&almost)[place] ^= 0x01;
        EXPECT_EQ(-1, manager().GetWlanStatus(&almost)) << place;
    }
}

// Kept on purpose: the walk does not end at a match.
TEST_F(AdaptersTest, WithDuplicatesTheLastStateWins)
{
    EditedAnswers edited;
    edited.service.interfaces = DuplicateGuid;
    computer().SetInterfaceState(1, wlan_interface_state_discovering);
    EXPECT_EQ(6, manager().GetWlanStatus(&kAdapterA));
    computer().SetInterfaceState(1, wlan_interface_state_not_ready);
    EXPECT_EQ(0, manager().GetWlanStatus(&kAdapterA));
}

TEST_F(AdaptersTest, NoGuidIsNoAdapters)
{
    EXPECT_EQ(-1, manager().GetWlanStatus(nullptr));
    EXPECT_FALSE(manager().GetWlanIsLink(nullptr));
    EXPECT_STREQ("", manager().GetWlanInterfaceDesc(nullptr));
}

// Deliberate: the first description stays, and be it of one character.
TEST_F(AdaptersTest, AShortDescriptionIsKeptToo)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[0].description = "W";
    UseScenario(scenario);
    EXPECT_STREQ("W", manager().GetWlanInterfaceDesc(&kAdapterA));
    ClearCalls();
    EXPECT_STREQ("W", manager().GetWlanInterfaceDesc(&kAdapterB));
    EXPECT_THAT(calls(), IsEmpty());
}

// --- GetWlanInterfaceGuid ---------------------------------------------------------------------------------------

TEST_F(AdaptersTest, TheDescriptionFindsTheGuid)
{
    GUID guid{};
    EXPECT_EQ(0, manager().GetWlanInterfaceGuid(kAdapterBDescription, guid));
    EXPECT_EQ(kAdapterB, guid);
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanFreeMemory"));
    ExpectSilence();
}

TEST_F(AdaptersTest, TheDescriptionIsComparedExactly)
{
    for (const wchar_t* const description : {L"wireless adapter a", L"Wireless Adapter", L"Wireless Adapter A ",
                                             L" Wireless Adapter A", L"Wireless Adapter AB", L""})
        EXPECT_EQ(-4, FindGuid(manager(), description)) << std::string(description, description + wcslen(description));
    EXPECT_EQ(-4, FindGuid(manager(), nullptr));
}

TEST_F(AdaptersTest, TheFirstEqualDescriptionWins)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[1].description = scenario.adapters[0].description;
    UseScenario(scenario);
    GUID guid{};
    EXPECT_EQ(0, manager().GetWlanInterfaceGuid(kAdapterADescription, guid));
    EXPECT_EQ(kAdapterA, guid);
}

// --- GetWlanInterfaceDesc ---------------------------------------------------------------------------------------

TEST_F(AdaptersTest, TheGuidFindsTheDescription)
{
    char* const description = manager().GetWlanInterfaceDesc(&kAdapterA);
    EXPECT_STREQ("Wireless Adapter A", description);
    EXPECT_EQ(ManagerInternals::InterfaceDesc(manager()), description) << "the text is the object's own";
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WideCharToMultiByte", "WlanFreeMemory"));
    EXPECT_THAT(traced(), ElementsAre("Wlan Interface Describe: Wireless Adapter A"));
    EXPECT_TRUE(sharedTraceUntouched());
}

// Kept on purpose: once a description is known, every later call gets it.
TEST_F(AdaptersTest, TheFirstDescriptionIsKeptForEveryAdapter)
{
    char* const first = manager().GetWlanInterfaceDesc(&kAdapterA);
    ClearCalls();
    for (const GUID* const guid : {&kAdapterB, &kNoAdapter})
    {
        EXPECT_EQ(first, manager().GetWlanInterfaceDesc(guid));
        EXPECT_STREQ("Wireless Adapter A", first);
    }
    EXPECT_THAT(timeline(), IsEmpty());
}

TEST_F(AdaptersTest, NotFindingADescriptionIsNotKept)
{
    EXPECT_STREQ("", manager().GetWlanInterfaceDesc(&kNoAdapter));
    EXPECT_THAT(traced(), IsEmpty());
    EXPECT_STREQ("Wireless Adapter B", manager().GetWlanInterfaceDesc(&kAdapterB));
}

// Kept on purpose: the walk does not end at a match.
TEST_F(AdaptersTest, WithDuplicatesTheLastDescriptionWins)
{
    EditedAnswers edited;
    edited.service.interfaces = DuplicateGuid;
    EXPECT_STREQ("Wireless Adapter B", manager().GetWlanInterfaceDesc(&kAdapterA));
    EXPECT_THAT(traced(), ElementsAre("Wlan Interface Describe: Wireless Adapter A",
                                      "Wlan Interface Describe: Wireless Adapter B"));
    EXPECT_EQ(2u, callCount("WideCharToMultiByte"));
}

TEST_F(AdaptersTest, TheLongestDescriptionFitsTextAndTrace)
{
    const std::string longest(255, 'D');
    UseScenario(DescriptionScenario(longest));
    EXPECT_EQ(longest, manager().GetWlanInterfaceDesc(&kAdapterA));
    EXPECT_THAT(traced(), ElementsAre("Wlan Interface Describe: " + longest));
}

TEST_F(AdaptersTest, TheDescriptionIsInTheActiveCodePage)
{
    UseScenario(DescriptionScenario("Caf\xC3\xA9 \xE6\x9D\xB1 adapter"));
    EXPECT_STREQ("Caf\xE9 ", manager().GetWlanInterfaceDesc(&kAdapterA)) << "a character that it lacks ends the text";
    UseScenario(DescriptionScenario("\xE6\x9D\xB1 adapter", 932));
    EXPECT_STREQ("\x93\x8C adapter", manager().GetWlanInterfaceDesc(&kAdapterA));
}

TEST_F(AdaptersTest, ADescriptionLongerThanItsTextStaysInsideIt)
{
    std::string description;
    for (int i = 0; i < 200; ++i)
        description += "\xE6\x9D\xB1"; // two bytes each in the Japanese code page
    UseScenario(DescriptionScenario(description, 932));
    const std::string text = manager().GetWlanInterfaceDesc(&kAdapterA);
    EXPECT_EQ(255u, text.size());
    EXPECT_EQ("\x93\x8C\x93\x8C", text.substr(0, 4));
    EXPECT_STREQ("", ManagerInternals::PowerSetting(manager())) << "its neighbour is left alone";
}

TEST_F(AdaptersTest, ADescriptionMayFillItsArray)
{
    EditedAnswers edited;
    edited.service.interfaces = [](WLAN_INTERFACE_INFO_LIST& list)
    {
        std::fill(std::begin(list.InterfaceInfo[1].strInterfaceDescription),
                  std::end(list.InterfaceInfo[1].strInterfaceDescription), L'D');
    };
    EXPECT_EQ(std::string(255, 'D'), manager().GetWlanInterfaceDesc(&kAdapterB));
    EXPECT_EQ(0, FindGuid(manager(), std::wstring(256, L'D').c_str()));
    EXPECT_EQ(-4, FindGuid(manager(), std::wstring(255, L'D').c_str()));
}

// --- GetWiFiAdapterCount ----------------------------------------------------------------------------------------

TEST_F(AdaptersTest, CountsTheAdapters)
{
    EXPECT_EQ(2, manager().GetWiFiAdapterCount());
    EXPECT_THAT(timeline(), ElementsAre("WlanEnumInterfaces(client=1, reserved=null, list=non-null)",
                                        "OutputDebugStringA(text=\"WlanFreeMemory(pIfList)\")",
                                        "OutputDebugStringA(text=\"\\x0A\")", "WlanFreeMemory(memory=non-null)"))
        << "the release is traced just before it is made";
    EXPECT_TRUE(sharedTraceUntouched());
}

// --- GetWlanInterface -------------------------------------------------------------------------------------------

TEST_F(AdaptersTest, ListsTheAdaptersInOrder)
{
    std::vector<WLAN_INTERFACE_INFO> list(5);
    EXPECT_EQ(0, manager().GetWlanInterface(&list));
    ASSERT_EQ(2u, list.size()) << "what the vector held before is gone";
    EXPECT_EQ(kAdapterA, list[0].InterfaceGuid);
    EXPECT_STREQ(kAdapterADescription, list[0].strInterfaceDescription);
    EXPECT_EQ(wlan_interface_state_connected, list[0].isState);
    EXPECT_EQ(kAdapterB, list[1].InterfaceGuid);
    EXPECT_STREQ(kAdapterBDescription, list[1].strInterfaceDescription);
    EXPECT_EQ(wlan_interface_state_disconnected, list[1].isState);
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanFreeMemory"));
    EXPECT_THAT(traced(), IsEmpty());
}

} // namespace calvix::test::adapters_test
