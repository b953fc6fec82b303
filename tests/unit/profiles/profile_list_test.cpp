#include "support/library_test.h"
#include "support/strict_copy_guard.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"
#include "unit/profiles/profile_names.h"

#include <string>

namespace calvix::test::profile_list_test
{

using ::testing::ElementsAre;

namespace
{

std::wstring Wide(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

class ProfileListTest : public LibraryTest
{
public:
    std::vector<std::wstring> StoredNames() { return ProfileNames(*this); }

    /// A disconnected adapter A with these profiles, all of the network HomeNet.
    void UseProfiles(const std::vector<std::string>& names)
    {
        std::vector<simulation::StoredProfile> profiles;
        for (const std::string& name : names)
            profiles.push_back(ProfileFor(name, "HomeNet"));
        UseScenario(ScenarioOf(std::move(profiles), {}));
    }
};

} // namespace

// --- GetWlanProfile ---------------------------------------------------------------------------------------------

TEST_F(ProfileListTest, GetWlanProfileConvertsTheNameThenSearchesTheList)
{
    EXPECT_EQ(0, manager().GetWlanProfile(&kAdapterA, "GoneNet"));
    EXPECT_THAT(callLines(), ElementsAre(NameLine("GoneNet"), ProfilesLine(), kRelease));
    ExpectSilence();
}

TEST_F(ProfileListTest, GetWlanProfileFindsEveryProfileOfItsOwnInterfaceOnly)
{
    for (const char* name : {"HomeNet", "OfficeNet", "HiddenNet", "AdHocNet", "GoneNet"})
        EXPECT_EQ(0, manager().GetWlanProfile(&kAdapterA, name)) << name;
    EXPECT_EQ(-1, manager().GetWlanProfile(&kAdapterB, "HomeNet"));
    EXPECT_EQ(0, manager().GetWlanProfile(&kAdapterB, "CafeNet"));
}

TEST_F(ProfileListTest, GetWlanProfileComparesWholeNamesExactly)
{
    for (const char* name : {"homenet", "HOMENET", "HomeNe", "HomeNet ", "HomeNet5G", ""})
    {
        ClearCalls();
        EXPECT_EQ(-1, manager().GetWlanProfile(&kAdapterA, name)) << '"' << name << '"';
        EXPECT_TRUE(traced().empty());
        ExpectNothingHeld();
    }
}

TEST_F(ProfileListTest, GetWlanProfileOfAnEmptyListIsMinusOne)
{
    UseScenario(NoProfileScenario());
    EXPECT_EQ(-1, manager().GetWlanProfile(&kAdapterA, "HomeNet"));
    EXPECT_THAT(calls(), ElementsAre("MultiByteToWideChar", "WlanGetProfileList", "WlanFreeMemory"));
    EXPECT_TRUE(traced().empty());
}

TEST_F(ProfileListTest, GetWlanProfileReadsTheNameInTheActiveCodePage)
{
    UseProfiles({"Caf\xC3\xA9"});
    EXPECT_EQ(0, manager().GetWlanProfile(&kAdapterA, "Caf\xE9"));
    EXPECT_EQ(-1, manager().GetWlanProfile(&kAdapterA, "Cafe"));
}

// The precomposed flag is none that UTF-8 takes.
TEST_F(ProfileListTest, AnErrorFromEarlierIsNotTheNames)
{
    FailOn("GetLastError", 1113);
    EXPECT_EQ(0, manager().GetWlanProfile(&kAdapterA, "HomeNet"));
}

TEST_F(ProfileListTest, GetWlanProfileReportsTheRefusalOfAUtf8CodePage)
{
    UseScenario(ScenarioInCodePage(65001));
    EXPECT_EQ(1004, manager().GetWlanProfile(&kAdapterA, "HomeNet"));
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 1004"));
}

TEST_F(ProfileListTest, GetWlanProfileTakesNamesOfUpTo127Bytes)
{
    const std::string name(127, 'n');
    UseProfiles({name});
    EXPECT_EQ(0, manager().GetWlanProfile(&kAdapterA, name.c_str()));
}

TEST_F(ProfileListTest, GetWlanProfileEndsTheProcessOverAnUnusableName)
{
    const std::string name(128, 'n');
    ExpectFatal([&] { manager().GetWlanProfile(&kAdapterA, name.c_str()); }, "GetWlanProfile");
    ExpectFatal([&] { manager().GetWlanProfile(&kAdapterA, nullptr); }, "GetWlanProfile");
}

// --- GetProfileCount --------------------------------------------------------------------------------------------

TEST_F(ProfileListTest, GetProfileCountIsTheCountItself)
{
    EXPECT_EQ(5, manager().GetProfileCount(&kAdapterA));
    EXPECT_EQ(1, manager().GetProfileCount(&kAdapterB));
    EXPECT_THAT(calls(), ElementsAre("WlanGetProfileList", "WlanFreeMemory", "WlanGetProfileList", "WlanFreeMemory"));
    EXPECT_EQ("null", call("WlanGetProfileList")["reserved"]);
    EXPECT_TRUE(traced().empty());

    UseScenario(NoProfileScenario());
    EXPECT_EQ(0, manager().GetProfileCount(&kAdapterA));
    ExpectNothingHeld();
}

// --- Preference order -------------------------------------------------------------------------------------------

// Deliberate: the second place, never the first.
TEST_F(ProfileListTest, ResetProfilePositionMovesToTheSecondPlace)
{
    UseProfiles({"A", "B", "C"});
    EXPECT_EQ(0, manager().ResetProfilePosition(&kAdapterA, "C"));
    EXPECT_THAT(callLines(),
                ElementsAre(ProfilesLine(), NameLine("C"),
                            CallForA("WlanSetProfilePosition", "name=\"C\", position=1, reserved=null"), kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_THAT(StoredNames(), ElementsAre(L"A", L"C", L"B"));

    EXPECT_EQ(0, manager().ResetProfilePosition(&kAdapterA, "A"));
    EXPECT_THAT(StoredNames(), ElementsAre(L"C", L"A", L"B")) << "the first is moved down, too";
}

TEST_F(ProfileListTest, SetProfilePositionMovesToTheLastPlace)
{
    UseProfiles({"A", "B", "C"});
    EXPECT_EQ(0, manager().SetProfilePosition(&kAdapterA, L"A"));
    EXPECT_THAT(calls(), ElementsAre("WlanGetProfileList", "WlanSetProfilePosition", "WlanFreeMemory"));
    EXPECT_EQ("2", call("WlanSetProfilePosition")["position"]);
    EXPECT_EQ("\"A\"", call("WlanSetProfilePosition")["name"]);
    EXPECT_EQ("null", call("WlanSetProfilePosition")["reserved"]);
    EXPECT_TRUE(traced().empty());
    EXPECT_THAT(StoredNames(), ElementsAre(L"B", L"C", L"A"));
}

TEST_F(ProfileListTest, WithTwoProfilesBothPositionsAreTheLast)
{
    UseProfiles({"A", "B"});
    EXPECT_EQ(0, manager().ResetProfilePosition(&kAdapterA, "A"));
    EXPECT_THAT(StoredNames(), ElementsAre(L"B", L"A"));
    EXPECT_EQ(0, manager().SetProfilePosition(&kAdapterA, L"B"));
    EXPECT_THAT(StoredNames(), ElementsAre(L"A", L"B"));
}

TEST_F(ProfileListTest, FewerThanTwoProfilesHaveNoOrder)
{
    for (const std::vector<std::string>& names : {std::vector<std::string>{"A"}, std::vector<std::string>{}})
    {
        UseProfiles(names);
        EXPECT_EQ(0, manager().ResetProfilePosition(&kAdapterA, "\x81 no such name"));
        EXPECT_EQ(0, manager().SetProfilePosition(&kAdapterA, L"no such name"));
        EXPECT_THAT(calls(),
                    ElementsAre("WlanGetProfileList", "WlanFreeMemory", "WlanGetProfileList", "WlanFreeMemory"));
        EXPECT_TRUE(traced().empty());
    }
}

TEST_F(ProfileListTest, ResetProfilePositionTakesNamesOfUpTo255Characters)
{
    const std::string longest(255, 'n');
    UseProfiles({"A", "B", longest});
    EXPECT_EQ(0, manager().ResetProfilePosition(&kAdapterA, longest.c_str()));
    EXPECT_THAT(StoredNames(), ElementsAre(L"A", Wide(longest), L"B"));

    ClearCalls();
    EXPECT_EQ(122, manager().ResetProfilePosition(&kAdapterA, std::string(256, 'n').c_str()));
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 122"));
    EXPECT_EQ(0u, callCount("WlanSetProfilePosition"));
    ExpectNothingHeld();
}

// --- DeleteProfile ----------------------------------------------------------------------------------------------

TEST_F(ProfileListTest, DeleteProfileDeletesByNarrowOrWideName)
{
    EXPECT_EQ(0, manager().DeleteProfile(&kAdapterA, "OfficeNet"));
    EXPECT_EQ(0, manager().DeleteProfile(&kAdapterA, L"GoneNet"));
    EXPECT_THAT(callLines(), ElementsAre(CallForA("WlanDeleteProfile", "name=\"OfficeNet\", reserved=null"),
                                         CallForA("WlanDeleteProfile", "name=\"GoneNet\", reserved=null")));
    EXPECT_TRUE(traced().empty());
    EXPECT_THAT(StoredNames(), ElementsAre(L"HomeNet", L"HiddenNet", L"AdHocNet"));
}

// Deliberate: cut without notice, unlike the names of the other methods.
TEST_F(ProfileListTest, DeleteProfileCutsANarrowNameTo127Characters)
{
    const std::string kept(126, 'n');
    const std::string deleted(127, 'n');
    UseProfiles({kept, deleted});
    EXPECT_EQ(0, manager().DeleteProfile(&kAdapterA, std::string(200, 'n').c_str()));
    EXPECT_THAT(StoredNames(), ElementsAre(Wide(kept)));
    EXPECT_TRUE(traced().empty());
}

TEST_F(ProfileListTest, DeleteProfileTakesANarrowNameOf127CharactersWhole)
{
    const std::string name(127, 'n');
    UseProfiles({name});
    EXPECT_EQ(0, manager().DeleteProfile(&kAdapterA, name.c_str()));
    EXPECT_TRUE(StoredNames().empty());
}

TEST_F(ProfileListTest, DeleteProfilePassesAWideNameOnAsItIs)
{
    const std::string name(200, 'n');
    UseProfiles({name});
    EXPECT_EQ(0, manager().DeleteProfile(&kAdapterA, Wide(name).c_str()));
    EXPECT_TRUE(StoredNames().empty());
}

// The runtime's own widening in the C locale, not the code page's conversion.
TEST_F(ProfileListTest, DeleteProfileKeepsTheBytesOfANarrowName)
{
    manager().DeleteProfile(&kAdapterA, "Caf\xE9\x80");
    EXPECT_EQ("\"Caf\\u00E9\\u0080\"", call("WlanDeleteProfile")["name"]);
    EXPECT_EQ(0u, callCount("MultiByteToWideChar"));
}

} // namespace calvix::test::profile_list_test
