#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace calvix::test::profile_text_test
{

using ::testing::ElementsAre;

namespace
{

constexpr const char* kOpenFailed = "WlanOpenHandle failed with error: %u";
constexpr const char* kGetFailed = "WlanGetProfile failed with error: %u";
constexpr const char* kSetFailed = "WlanSetProfile failed with error: %u";

class ProfileTextTest : public LibraryTest
{
public:
    /// The XML of HomeNet's profile, with its key in plain text.
    std::string Xml() const { return world().adapters[0].profiles[0].xml; }
    std::wstring WideXml() const
    {
        const std::string xml = Xml();
        return {xml.begin(), xml.end()};
    }
};

class ProfileTextDeathTest : public ProfileTextTest
{
};

std::string ReadCall(const char* name)
{
    return std::string("WlanGetProfile(client=1, interface=") + kAdapterAText + ", name=\"" + name +
           "\", reserved=null, xml=non-null, flags=4, grantedAccess=131073)";
}

} // namespace

// --- GetProfile into wide characters ----------------------------------------------------------------------------

TEST_F(ProfileTextTest, WideTextIsReadWithItsKeyInPlainText)
{
    std::vector<wchar_t> text(1024, L'#');
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text.data(), 1024));
    EXPECT_EQ(WideXml(), text.data());
    EXPECT_NE(std::wstring::npos, std::wstring(text.data()).find(L"<keyMaterial>HomeNet key</keyMaterial>"));
    EXPECT_EQ(L'#', text[WideXml().size() + 1]) << "nothing is written past the terminator";
    EXPECT_THAT(callLines(), ElementsAre(ReadCall("HomeNet"), "WlanFreeMemory(memory=non-null)"));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
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

TEST_F(ProfileTextTest, NarrowTextIsTheWholeText)
{
    const std::string xml = Xml();
    std::vector<char> text(xml.size() + 2, '#');
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet", text.data(), static_cast<int>(xml.size()) + 1));
    EXPECT_EQ(xml, text.data());
    EXPECT_EQ('#', text.back());
    EXPECT_THAT(callLines(), ElementsAre(ReadCall("HomeNet"), "WlanFreeMemory(memory=non-null)"));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
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

TEST_F(ProfileTextDeathTest, NarrowTextIsNeverCut)
{
    char text[10];
    EXPECT_DEATH(manager().GetProfile(&kAdapterA, L"HomeNet", text, 10), "GetProfile");
}

// --- GetProfile as a question -----------------------------------------------------------------------------------

TEST_F(ProfileTextTest, WithoutABufferReadingIsATest)
{
    EXPECT_EQ(0, manager().GetProfile(&kAdapterA, L"HomeNet"));
    EXPECT_THAT(callLines(), ElementsAre(ReadCall("HomeNet"), "WlanFreeMemory(memory=non-null)"));
    EXPECT_TRUE(traced().empty());

    EXPECT_EQ(-4, manager().GetProfile(&kAdapterA, L"homenet"));
    EXPECT_EQ("WlanGetProfile failed with error: 1168", sharedTrace());
}

// --- Failures of reading ----------------------------------------------------------------------------------------

TEST_F(ProfileTextTest, ReadingFailures)
{
    const auto wide = [](CWirelessManage& m)
    {
        wchar_t text[] = L"untouched";
        const int result = m.GetProfile(&kAdapterA, L"HomeNet", text, 10);
        EXPECT_STREQ(L"untouched", text);
        return result;
    };
    const auto narrow = [](CWirelessManage& m)
    {
        char text[] = "untouched";
        const int result = m.GetProfile(&kAdapterA, L"HomeNet", text, 10);
        EXPECT_STREQ("untouched", text);
        return result;
    };
    const auto question = [](CWirelessManage& m) { return m.GetProfile(&kAdapterA, L"HomeNet"); };
    CheckFailures(*this,
                  {{"GetProfile(wide)", wide, "WlanOpenHandle", -1, {kOpenFailed}, TraceBuffer::local},
                   {"GetProfile(wide)", wide, "WlanGetProfile", -4, {kGetFailed}, TraceBuffer::local},
                   {"GetProfile(narrow)", narrow, "WlanOpenHandle", -1, {kOpenFailed}, TraceBuffer::local},
                   {"GetProfile(narrow)", narrow, "WlanGetProfile", -4, {kGetFailed}, TraceBuffer::local},
                   {"GetProfile(no buffer)", question, "WlanOpenHandle", -1, {kOpenFailed}, TraceBuffer::shared},
                   {"GetProfile(no buffer)", question, "WlanGetProfile", -4, {kGetFailed}, TraceBuffer::shared}});
}

TEST_F(ProfileTextTest, NullInputsAreTheServicesToRefuse)
{
    wchar_t wide[16] = {};
    char narrow[16] = {};
    EXPECT_EQ(-4, manager().GetProfile(nullptr, L"HomeNet"));
    EXPECT_EQ(-4, manager().GetProfile(&kAdapterA, nullptr));
    EXPECT_EQ(-4, manager().GetProfile(&kAdapterA, nullptr, wide, 16));
    EXPECT_EQ(-4, manager().GetProfile(nullptr, L"HomeNet", narrow, 16));
    EXPECT_THAT(traced(), ::testing::Each("WlanGetProfile failed with error: 87"));
}

TEST_F(ProfileTextTest, ANullWideBufferIsRefused)
{
    EXPECT_EQ(-13, manager().GetProfile(&kAdapterA, L"HomeNet", static_cast<wchar_t*>(nullptr), 16));
    EXPECT_TRUE(calls().empty());
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
    EditedAnswers edited;
    std::vector<unsigned> reasons;
    edited.service.reasonCodeOfSetProfile = [&](DWORD reason) { reasons.push_back(static_cast<unsigned>(reason)); };
    EXPECT_EQ(-4, manager().SetProfile(&kAdapterA, L"<no profile/>"));
    EXPECT_EQ(-4, manager().SetProfile(&kAdapterA, L"<no profile/>"));
    EXPECT_THAT(reasons, ElementsAre(0u, 0u));
    EXPECT_THAT(traced(),
                ElementsAre("WlanSetProfile failed with error: 1206", "WlanSetProfile failed with error: 1206"));
}

TEST_F(ProfileTextTest, SetProfileFailures)
{
    const auto call = [](CWirelessManage& m) { return m.SetProfile(&kAdapterA, L"<WLANProfile/>"); };
    const auto null = [](CWirelessManage& m) { return m.SetProfile(&kAdapterA, nullptr); };
    CheckFailures(*this, {{"SetProfile", call, "WlanOpenHandle", -1, {kOpenFailed}, TraceBuffer::local},
                          {"SetProfile", call, "WlanSetProfile", -4, {kSetFailed}, TraceBuffer::local},
                          {"SetProfile(null)", null, "", -4, {kSetFailed}, TraceBuffer::local, 87}});
}

// --- The client handle and cost ---------------------------------------------------------------------------------

} // namespace calvix::test::profile_text_test
