#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

#include <string>
#include <vector>

namespace calvix::test::profile_xml_test
{

using ::testing::ElementsAre;

namespace
{

class ProfileXmlTest : public LibraryTest
{
public:
    int IsThisSsid(const std::wstring& xml, std::wstring ssid)
    {
        const std::wstring before = ssid;
        const int result = manager().IsThisSSID(xml.c_str(), ssid.data());
        EXPECT_EQ(before, ssid) << "the SSID is only read";
        return result;
    }

    int ModeOf(const std::wstring& xml) { return manager().IsAutoConnMode(xml.c_str()); }

    /// The mode of a stored profile whose text is `xml`.
    int StoredModeOf(const std::wstring& xml)
    {
        EditedAnswers edited;
        edited.service.SetProfileText(L"HomeNet", xml);
        return manager().IsAutoConnMode2(&kAdapterA, L"HomeNet");
    }
};

std::wstring InSsid(const std::wstring& content)
{
    return L"<WLANProfile><name>Profile</name><SSIDConfig><SSID>" + content +
           L"</SSID></SSIDConfig><connectionMode>auto</connectionMode></WLANProfile>";
}

std::wstring Mode(const std::wstring& text)
{
    return L"<WLANProfile><connectionMode>" + text + L"</connectionMode></WLANProfile>";
}

/// The connection mode of a text, as both methods judge it.
struct ModeRow
{
    std::wstring xml;
    int ofText;
    int ofStored;
};

const std::vector<ModeRow>& ModeRows()
{
    static const std::vector<ModeRow> rows = {
        {Mode(L"auto"), 1, 1},
        {L"<connectionMode>auto</connectionMode>", 1, 1},
        {Mode(L"manual"), 0, 0},
        {Mode(L"autoX"), 0, 0},
        {Mode(L"Xauto"), 0, 0},
        {Mode(L"Auto"), 0, 0},
        {Mode(L"AUTO"), 0, 0},
        {Mode(L" auto "), 0, 0},
        {Mode(L"aut"), 0, 0},
        {Mode(L"&#97;uto"), 0, 0},
        {Mode(L""), 0, 0},
        // What opens the element is not looked at: the text after the last '>' counts.
        {L"<anything>auto</connectionMode>", 1, 1},
        {L">auto</connectionMode>", 1, 1},
        {L"<connectionMode><b/>auto</connectionMode>", 1, 1},
        {L"<connectionMode>manual<!-- -->auto</connectionMode>", 1, 1},
        {L"<connectionMode>auto<!-- --></connectionMode>", 0, 0},
        // The first closing tag decides.
        {Mode(L"auto") + Mode(L"manual"), 1, 1},
        {Mode(L"manual") + Mode(L"auto"), 0, 0},
        {L"auto</connectionMode>" + Mode(L"auto"), 0, -6},
        // No opening.
        {L"</connectionMode>", 0, -6},
        {L"</connectionMode><connectionMode>auto", 0, -6},
        {L"auto</connectionMode>", 0, -6},
        // No closing tag, or not this very one.
        {L"", 0, -5},
        {L"auto", 0, -5},
        {L"<connectionMode>auto", 0, -5},
        {L"<connectionMode>auto</connectionmode>", 0, -5},
        {L"<connectionMode>auto</connectionMode >", 0, -5},
        {L"<connectionMode>auto</w:connectionMode>", 0, -5},
        {L"<connectionMode>auto</connectionMode", 0, -5},
    };
    return rows;
}

} // namespace

// --- IsThisSSID -------------------------------------------------------------------------------------------------

TEST_F(ProfileXmlTest, TheSsidsNameIsComparedExactly)
{
    const std::wstring xml = InSsid(L"<hex>486F6D654E6574</hex><name>HomeNet</name>");
    EXPECT_EQ(1, IsThisSsid(xml, L"HomeNet"));
    for (const wchar_t* other : {L"homenet", L"HomeNe", L"HomeNet5G", L" HomeNet", L"Profile", L""})
        EXPECT_EQ(0, IsThisSsid(xml, other)) << ::testing::PrintToString(std::wstring(other));
}

TEST_F(ProfileXmlTest, TheFirstNameAfterTheSsidTagIsTheSsids)
{
    const std::wstring twoNames = InSsid(L"<name>One</name><name>Two</name>");
    const std::wstring twoSsids = L"<SSID><name>One</name></SSID><SSID><name>Two</name></SSID>";
    const std::wstring stray = L"<SSID><hex>41</hex></SSID>stray</name>";
    const struct
    {
        std::wstring xml;
        std::wstring ssid;
        int expected;
    } rows[] = {
        // Case and white space matter, entities are not decoded, and an empty name is a name.
        {InSsid(L"<name>A</name>"), L"A", 1},
        {InSsid(L"<name>A</name>"), L"a", 0},
        {InSsid(L"<name> A </name>"), L"A", 0},
        {InSsid(L"<name> A </name>"), L" A ", 1},
        {InSsid(L"<name></name>"), L"", 1},
        {InSsid(L"<name>A&amp;B</name>"), L"A&amp;B", 1},
        {InSsid(L"<name>A&amp;B</name>"), L"A&B", 0},
        {twoNames, L"One", 1},
        {twoNames, L"Two", 0},
        {twoSsids, L"One", 1},
        {twoSsids, L"Two", 0},
        // Deliberate: the search does not end with the element.
        {L"<SSID><hex>41</hex></SSID><other><name>Later</name></other>", L"Later", 1},
        {stray, L"stray", 1},
        {stray, L"41", 0},
        // The SSID tag itself may be the one before the text, but names before it do not count.
        {L"<SSID>A</name>", L"A", 1},
        {L"<name>A</name><SSID></SSID>", L"A", 0},
        // No other tag than this very one.
        {L"<SSIDConfig><name>A</name></SSIDConfig>", L"A", 0},
        {L"<ssid><name>A</name></ssid>", L"A", 0},
        {L"<SSID ><name>A</name></SSID>", L"A", 0},
        {L"<SSID><name>A</Name></SSID>", L"A", 0},
        {L"<SSID><name>A", L"A", 0},
        {L"A", L"A", 0},
        {L"", L"A", 0},
        {L"", L"", 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.expected, IsThisSsid(row.xml, row.ssid)) << ::testing::PrintToString(row.xml);
    wchar_t ssid[] = L"A";
    EXPECT_EQ(0, manager().IsThisSSID(nullptr, ssid));
    EXPECT_EQ(0, manager().IsThisSSID(L"<SSID>A</name>", nullptr));
}

TEST_F(ProfileXmlTest, CharactersBeyondAsciiAndLongTextsAreCompared)
{
    const std::wstring name = L"Caf\u00E9 \u4E2D\u6587";
    EXPECT_EQ(1, IsThisSsid(InSsid(L"<name>" + name + L"</name>"), name));
    EXPECT_EQ(0, IsThisSsid(InSsid(L"<name>" + name + L"</name>"), L"Cafe \u4E2D\u6587"));

    const std::wstring filler = L"<filler>" + std::wstring(100000, L'x') + L"</filler>";
    EXPECT_EQ(1, IsThisSsid(filler + InSsid(L"<name>A</name>") + filler, L"A"));
    EXPECT_EQ(1, IsThisSsid(InSsid(L"<name>" + filler.substr(8, 90000) + L"</name>"), std::wstring(90000, L'x')));
}

// --- IsAutoConnMode and IsAutoConnMode2 -------------------------------------------------------------------------

TEST_F(ProfileXmlTest, ModeOfAText)
{
    for (const ModeRow& row : ModeRows())
        EXPECT_EQ(row.ofText, ModeOf(row.xml)) << ::testing::PrintToString(row.xml);
    EXPECT_EQ(0, manager().IsAutoConnMode(nullptr));
    EXPECT_TRUE(calls().empty());
    ExpectSilence();
}

// Deliberate: unlike a text in hand, a stored profile's damage has codes of its own.
TEST_F(ProfileXmlTest, ModeOfAStoredProfile)
{
    for (const ModeRow& row : ModeRows())
    {
        EXPECT_EQ(row.ofStored, StoredModeOf(row.xml)) << ::testing::PrintToString(row.xml);
        ExpectNothingHeld();
    }
    ExpectSilence();
}

TEST_F(ProfileXmlTest, ModesOfTheProfilesThatTheServiceKeeps)
{
    EXPECT_EQ(1, manager().IsAutoConnMode2(&kAdapterA, L"HomeNet"));
    EXPECT_EQ(0, manager().IsAutoConnMode2(&kAdapterA, L"OfficeNet"));
    EXPECT_EQ(1, manager().IsAutoConnMode2(&kAdapterA, L"HiddenNet"));
    EXPECT_EQ(0, manager().IsAutoConnMode2(&kAdapterB, L"CafeNet"));
    EXPECT_EQ(-4, manager().IsAutoConnMode2(&kAdapterB, L"HomeNet"));
}

TEST_F(ProfileXmlTest, AStoredProfileWithoutAModeIsReported)
{
    simulation::Scenario scenario = DisconnectedScenario();
    std::string& xml = scenario.adapters[0].profiles[0].xml;
    const std::string mode = "<connectionMode>auto</connectionMode>";
    ASSERT_NE(std::string::npos, xml.find(mode));
    xml.erase(xml.find(mode), mode.size());
    UseScenario(scenario);
    EXPECT_EQ(-5, manager().IsAutoConnMode2(&kAdapterA, L"HomeNet"));
    ExpectNothingHeld();
}

TEST_F(ProfileXmlTest, AStoredProfileIsReadWithItsKeyInPlainText)
{
    EXPECT_EQ(1, manager().IsAutoConnMode2(&kAdapterA, L"GoneNet"));
    EXPECT_THAT(callLines(), ElementsAre(ReadProfileLine("GoneNet"), kRelease));
}

} // namespace calvix::test::profile_xml_test
