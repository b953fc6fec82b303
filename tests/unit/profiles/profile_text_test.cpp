#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"
#include "unit/call_lines.h"

#include <cstring>
#include <string>
#include <vector>

namespace calvix::test::profile_text_test
{

using ::testing::ElementsAre;

namespace
{

class ProfileTextTest : public LibraryTest
{
public:
    /// The XML of HomeNet's profile, with its key in plain text.
    std::string Xml() const { return scenario().adapters[0].profiles[0].xml; }
    std::wstring WideXml() const
    {
        const std::string xml = Xml();
        return {xml.begin(), xml.end()};
    }
};

} // namespace

// --- GetProfile into wide characters ----------------------------------------------------------------------------

TEST_F(ProfileTextTest, WideTextIsReadWithItsKeyInPlainText)
{
    std::vector<wchar_t> text(1024, L'#');
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text.data(), 1024));
    EXPECT_EQ(WideXml(), text.data());
    EXPECT_NE(std::wstring::npos, std::wstring(text.data()).find(L"<keyMaterial>HomeNet key</keyMaterial>"));
    EXPECT_EQ(L'#', text[WideXml().size() + 1]) << "nothing is written past the terminator";
    EXPECT_THAT(callLines(), ElementsAre(ReadProfileLine("HomeNet"), kRelease));
    ExpectSilence();
}

TEST_F(ProfileTextTest, WideTextIsCutToTheBuffer)
{
    const int whole = static_cast<int>(WideXml().size());
    for (const int capacity : {1, 2, 10, whole - 1, whole, whole + 1})
    {
        std::vector<wchar_t> text(static_cast<std::size_t>(whole) + 2, L'#');
        EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text.data(), capacity));
        EXPECT_EQ(WideXml().substr(0, static_cast<std::size_t>(capacity - 1)), text.data()) << capacity;
        EXPECT_EQ(L'#', text[static_cast<std::size_t>(capacity)]) << capacity;
    }
    EXPECT_TRUE(traced().empty());
}

TEST_F(ProfileTextTest, WithoutRoomNothingIsWritten)
{
    wchar_t text[] = {L'#', L'#'};
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text, 0));
    EXPECT_EQ(L'#', text[0]);
    EXPECT_EQ(1u, callCount("WlanGetProfile")) << "the profile is read all the same";
}

// Deliberate: a negative size still gets the terminator.
TEST_F(ProfileTextTest, ANegativeSizeGivesTheEmptyText)
{
    for (const int capacity : {-1, -1024})
    {
        wchar_t text[] = {L'#', L'#'};
        EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text, capacity));
        EXPECT_EQ(L'\0', text[0]);
        EXPECT_EQ(L'#', text[1]);
    }
}

// --- GetProfile into narrow characters --------------------------------------------------------------------------

TEST_F(ProfileTextTest, NoTextIsTakenWithNoRoomOnly)
{
    wchar_t* const none = nullptr;
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", none, 0));
    EXPECT_EQ(-13, manager().GetProfile(&kAdapterA, L"HomeNet", none, 1));
}

TEST_F(ProfileTextTest, NarrowTextIsTheWholeText)
{
    const std::string xml = Xml();
    std::vector<char> text(xml.size() + 2, '#');
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text.data(), static_cast<int>(xml.size()) + 1));
    EXPECT_EQ(xml, text.data());
    EXPECT_EQ('#', text.back());
    EXPECT_THAT(callLines(), ElementsAre(ReadProfileLine("HomeNet"), kRelease));
    ExpectSilence();
}

TEST_F(ProfileTextTest, NarrowTextHasAQuestionMarkForWhatTheLocaleLacks)
{
    EditedAnswers edited;
    edited.service.SetProfileText(L"HomeNet", L"<name>\u6771</name>");
    char text[64] = "####";
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text, sizeof(text)));
    EXPECT_STREQ("<name>?</name>", text);
}

// Deliberate: unlike wide text, narrow text is never cut.
TEST_F(ProfileTextTest, NarrowTextThatDoesNotFitEndsTheProcess)
{
    std::vector<char> text(2048, '#');
    for (const int capacity : {static_cast<int>(Xml().size()), 10, 1, 0, -1})
        ExpectFatal([&] { manager().GetProfile(&kAdapterA, L"HomeNet", text.data(), capacity); }, "GetProfile");
    EXPECT_EQ('#', text[0]) << "not even a part is written";
    ExpectFatal([&] { manager().GetProfile(&kAdapterA, L"HomeNet", static_cast<char*>(nullptr), 2048); }, "GetProfile");
}

// --- GetProfile as a question -----------------------------------------------------------------------------------

TEST_F(ProfileTextTest, WithoutABufferReadingIsATest)
{
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet"));
    EXPECT_THAT(callLines(), ElementsAre(ReadProfileLine("HomeNet"), kRelease));
    EXPECT_TRUE(traced().empty());

    EXPECT_EQ(-4, manager().GetProfile(&kAdapterA, L"homenet"));
    EXPECT_EQ("WlanGetProfile failed with error: 1168", sharedTrace());
}

// --- SetProfile -------------------------------------------------------------------------------------------------

TEST_F(ProfileTextTest, SetProfileStoresForAllUsersAndOverwrites)
{
    const simulation::StoredProfile profile = MakeProfile("NewNet");
    const std::wstring xml(profile.xml.begin(), profile.xml.end());
    EXPECT_EQ(0, manager().SetProfile(&kAdapterA, xml.c_str()));
    EXPECT_THAT(calls(), ElementsAre("WlanSetProfile"));
    const Call set = call("WlanSetProfile");
    EXPECT_EQ(kAdapterAText, set["interface"]);
    EXPECT_EQ("0", set["flags"]);
    EXPECT_EQ("null", set["allUserProfileSecurity"]);
    EXPECT_EQ("true", set["overwrite"]);
    EXPECT_EQ("null", set["reserved"]);
    EXPECT_EQ("non-null", set["reasonCode"]);
    EXPECT_TRUE(traced().empty());
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"NewNet"));
    EXPECT_EQ(6, manager().GetProfileCount(&kAdapterA));
}

TEST_F(ProfileTextTest, SetProfileReplacesTheProfileOfThatName)
{
    const simulation::StoredProfile profile = MakeProfile("HomeNet", "manual");
    const std::wstring xml(profile.xml.begin(), profile.xml.end());
    EXPECT_EQ(1, manager().IsAutoConnMode2(&kAdapterA, L"HomeNet"));
    EXPECT_EQ(0, manager().SetProfile(&kAdapterA, xml.c_str()));
    EXPECT_EQ(0, manager().IsAutoConnMode2(&kAdapterA, L"HomeNet"));
    EXPECT_EQ(5, manager().GetProfileCount(&kAdapterA));
}

TEST_F(ProfileTextTest, SetProfileHandsInAZeroReasonAndKeepsTheServicesToItself)
{
    ChangedPlatform changed;
    std::vector<unsigned> reasons;
    changed.Before<&WlanService::WlanSetProfile>([&](auto, auto, auto, auto, auto, auto, auto, DWORD* reason)
                                                 { reasons.push_back(static_cast<unsigned>(*reason)); });
    EXPECT_EQ(-4, manager().SetProfile(&kAdapterA, L"<no profile/>"));
    EXPECT_EQ(-4, manager().SetProfile(&kAdapterA, L"<no profile/>"));
    EXPECT_THAT(reasons, ElementsAre(0u, 0u));
    EXPECT_THAT(traced(),
                ElementsAre("WlanSetProfile failed with error: 1206", "WlanSetProfile failed with error: 1206"));
}

} // namespace calvix::test::profile_text_test
