#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

#include <cwchar>

namespace calvix::test::soft_ap_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using Names = std::vector<std::string>;

const Names kBefore = {"from", "before"};

/// A platform whose conversions take the flags that Windows refuses beside UTF-8, and in this direction.
constexpr ConversionEdits kLenient = {.takesAllFlagsForUtf8 = true, .takesAllFlagsForNarrow = true};

/// An airspace of these SSIDs, the strongest first, without any profile.
simulation::Scenario ScenarioOf(const std::vector<std::string>& ssids)
{
    simulation::Scenario scenario = NoProfileScenario();
    scenario.accessPoints.clear();
    for (const std::string& ssid : ssids)
    {
        const auto number = static_cast<std::uint8_t>(scenario.accessPoints.size());
        scenario.accessPoints.push_back(MakeAccessPoint(ssid, {2, 0, 0, 0, 0, number}, 2412000, -50 - number));
    }
    return scenario;
}

class SoftApTest : public LibraryTest
{
public:
    Names List()
    {
        Names names = kBefore;
        EXPECT_EQ(0, manager().GetSoftAPList(&kAdapterA, &names));
        return names;
    }

    Names LenientList(const std::vector<std::string>& ssids)
    {
        UseScenario(ScenarioOf(ssids));
        EditedAnswers edited;
        edited.conversion = kLenient;
        return List();
    }
};

/// The current connection, made through a profile of this name.
AnswerChanges WithProfileName(const std::wstring& name)
{
    const auto change = [name](WLAN_INTF_OPCODE opcode, PVOID data, DWORD&)
    {
        ASSERT_EQ(wlan_intf_opcode_current_connection, opcode);
        auto& connection = *static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data);
        ASSERT_LE(name.size(), std::size(connection.strProfileName));
        std::wmemset(connection.strProfileName, L'\0', std::size(connection.strProfileName));
        name.copy(connection.strProfileName, name.size());
    };
    return {.query = change};
}

} // namespace

// --- GetSoftAPList ---

// Deliberate: Windows refuses these flags beside UTF-8, so that every conversion fails there and nothing is listed.
TEST_F(SoftApTest, NothingIsListedWhereTheFlagsAreRefused)
{
    UseScenario(ScenarioOf({"MyLC#Net", "LC#"}));
    EXPECT_THAT(List(), IsEmpty()) << "what was in the vector is gone all the same";
    EXPECT_THAT(calls(), ElementsAre("WlanGetAvailableNetworkList", "MultiByteToWideChar", "MultiByteToWideChar",
                                     "WlanFreeMemory"));
    EXPECT_EQ(NetworksLine(), callLines()[0]);
    EXPECT_EQ("MultiByteToWideChar(codePage=65001, flags=9, source=\"MyLC#Net\", sourceLength=-1, "
              "destination=non-null, destinationLength=256)",
              callLines()[1]);

    EditedAnswers edited;
    edited.conversion.takesAllFlagsForUtf8 = true;
    EXPECT_THAT(List(), IsEmpty()) << "nor does the narrow code page take them";
    EXPECT_EQ("WideCharToMultiByte(codePage=0, flags=9, source=\"MyLC#Net\", sourceLength=-1, destination=non-null, "
              "destinationLength=128, defaultCharacter=null, usedDefaultCharacter=null)",
              call("WideCharToMultiByte").line);
    ExpectSilence();
}

TEST_F(SoftApTest, ListsTheSsidsThatHoldTheMarkerInListOrder)
{
    const std::string full = std::string(29, 'x') + "LC#";
    EXPECT_THAT(LenientList({"MyLC#Net", "HomeNet", "LC#", full, "LC#LC#"}),
                ElementsAre("MyLC#Net", "LC#", full, "LC#LC#"));
    EXPECT_THAT(LenientList({}), IsEmpty());
}

TEST_F(SoftApTest, TheMarkerIsThreeCharactersAndCaseSensitive)
{
    EXPECT_THAT(LenientList({"lc#net", "Lc#", "LC", "LC-#", "L", "#CL", "LC #"}), IsEmpty());
}

TEST_F(SoftApTest, EmptyingTheVectorKeepsItsRoom)
{
    UseScenario(ScenarioOf({"LC#"}));
    Names names = kBefore;
    names.reserve(100);
    const std::size_t room = names.capacity();
    EXPECT_EQ(0, manager().GetSoftAPList(&kAdapterA, &names));
    EXPECT_THAT(names, IsEmpty());
    EXPECT_EQ(room, names.capacity());

    EditedAnswers edited;
    edited.conversion = kLenient;
    EXPECT_EQ(0, manager().GetSoftAPList(&kAdapterA, &names));
    EXPECT_THAT(names, ElementsAre("LC#"));
    EXPECT_EQ(room, names.capacity());
}

TEST_F(SoftApTest, TheSsidEndsAtItsFirstZeroByte)
{
    EXPECT_THAT(LenientList({std::string("LC\0#", 4), std::string("LC#\0Net", 7), std::string("\0LC#", 4)}),
                ElementsAre("LC#"));

    EditedAnswers edited;
    edited.conversion = kLenient;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        DOT11_SSID& ssid = list.Network[0].dot11Ssid;
        ssid = MakeSsid("NetLC#");
        ssid.uSSIDLength = 2;
    };
    EXPECT_THAT(List(), ElementsAre("NetLC#", "LC#")) << "the stated length is not used";
}

TEST_F(SoftApTest, OneNameForEachEntry)
{
    UseScenario(ScenarioOf({"MyLC#Net", "LC#Two"}));
    EditedAnswers edited;
    edited.conversion = kLenient;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        ASSERT_EQ(2u, list.dwNumberOfItems);
        list.Network[1].dot11Ssid = list.Network[0].dot11Ssid;
    };
    EXPECT_THAT(List(), ElementsAre("MyLC#Net", "MyLC#Net"));
}

// The names come in the active code page; what it lacks is replaced, what is no UTF-8 is passed over.
TEST_F(SoftApTest, NamesAreInTheActiveCodePage)
{
    EXPECT_THAT(LenientList({"LC#\xC3\xA9", "LC#\xE2\x98\x83", "LC#\xFF"}), ElementsAre("LC#\xE9", "LC#?"));
}

TEST_F(SoftApTest, ANameThatCannotBeConvertedIsPassedOver)
{
    UseScenario(ScenarioOf({"LC#One", "LC#Two", "LC#Three"}));
    EditedAnswers edited;
    edited.conversion = kLenient;
    FailOn("MultiByteToWideChar", 1113, 1, 1);
    FailOn("WideCharToMultiByte", 1113, 2, 1);
    EXPECT_THAT(List(), ElementsAre("LC#Two")) << "neither the first, not widened, nor the third, not narrowed";
    EXPECT_EQ(3u, callCount("MultiByteToWideChar"));
    EXPECT_EQ(2u, callCount("WideCharToMultiByte"));
    EXPECT_THAT(traced(), IsEmpty());
}

// --- SpecialSoftAP ---

TEST_F(SoftApTest, TheProfileNameDecides)
{
    struct
    {
        const wchar_t* name;
        bool special;
    } const rows[] = {{L"Office-LC#2", true}, {L"LC#", true}, {L"xLC#", true}, {L"LC#x", true},  {L"HomeNet", false},
                      {L"lc#net", false},     {L"LC", false}, {L"", false},    {L"L C#", false}, {L"LC\u266F", false}};
    for (const auto& row : rows)
    {
        const EditedAnswers altered(WithProfileName(row.name));
        EXPECT_EQ(row.special, manager().SpecialSoftAP()) << ::testing::PrintToString(std::wstring(row.name));
    }
}

TEST_F(SoftApTest, TheNameEndsAtItsTerminatorOrWithTheRecord)
{
    {
        const EditedAnswers altered(WithProfileName(std::wstring(L"LC\0LC#", 6)));
        EXPECT_FALSE(manager().SpecialSoftAP());
    }
    const EditedAnswers altered(WithProfileName(std::wstring(253, L'x') + L"LC#"));
    EXPECT_TRUE(manager().SpecialSoftAP()) << "256 characters and no terminator";
}

TEST_F(SoftApTest, TheSsidDoesNotDecide)
{
    const auto change = [](WLAN_INTF_OPCODE, PVOID data, DWORD&)
    { static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data)->wlanAssociationAttributes.dot11Ssid = MakeSsid("MyLC#Net"); };
    const EditedAnswers altered({.query = change});
    EXPECT_FALSE(manager().SpecialSoftAP());
}

TEST_F(SoftApTest, TheFirstInterfaceIsAsked)
{
    EXPECT_FALSE(manager().SpecialSoftAP());
    EXPECT_THAT(callLines(), ElementsAre(InterfacesLine(), ConnectionQuery(), kRelease, kRelease));
    ExpectSilence();
}

} // namespace calvix::test::soft_ap_test
