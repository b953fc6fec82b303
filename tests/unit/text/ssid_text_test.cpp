#include "support/library_test.h"
#include "support/strict_copy_guard.h"

namespace calvix::test::ssid_text_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// An SSID record whose stated length is not that of its bytes.
DOT11_SSID MakeSsidOfLength(const std::string& bytes, ULONG length)
{
    DOT11_SSID ssid = MakeSsid(bytes);
    ssid.uSSIDLength = length;
    return ssid;
}

} // namespace

class SsidTextTest : public LibraryTest
{
protected:
    SsidTextTest()
    {
        std::fill(std::begin(m_narrow), std::end(m_narrow), '#');
        std::fill(std::begin(m_wide), std::end(m_wide), L'#');
    }

    /// The SSID as narrow text, in ample room.
    std::string Narrow(const DOT11_SSID& ssid)
    {
        EXPECT_EQ(1, manager().GetSSID(&ssid, m_narrow, 128));
        return m_narrow;
    }

    std::wstring Wide(const DOT11_SSID& ssid)
    {
        EXPECT_EQ(1, manager().GetSSID(&ssid, m_wide, 128));
        return m_wide;
    }

    char m_narrow[128];
    wchar_t m_wide[128];
};

TEST_F(SsidTextTest, TheNarrowFormGoesThroughWideText)
{
    const DOT11_SSID ssid = MakeSsid("HomeNet");
    EXPECT_EQ(1, manager().GetSSID(&ssid, m_narrow, 128));
    EXPECT_STREQ("HomeNet", m_narrow);
    EXPECT_THAT(
        callLines(),
        ElementsAre("MultiByteToWideChar(codePage=65001, flags=0, source=\"HomeNet\", sourceLength=-1, "
                    "destination=non-null, destinationLength=128)",
                    "WideCharToMultiByte(codePage=0, flags=0, source=\"HomeNet\", sourceLength=-1, "
                    "destination=non-null, destinationLength=64, defaultCharacter=null, usedDefaultCharacter=null)"));
    EXPECT_THAT(traced(), IsEmpty());
}

TEST_F(SsidTextTest, TheWideFormIsOneConversion)
{
    const DOT11_SSID ssid = MakeSsid("HomeNet");
    EXPECT_EQ(1, manager().GetSSID(&ssid, m_wide, 128));
    EXPECT_STREQ(L"HomeNet", m_wide);
    EXPECT_THAT(callLines(),
                ElementsAre("MultiByteToWideChar(codePage=65001, flags=0, source=\"HomeNet\", sourceLength=-1, "
                            "destination=non-null, destinationLength=128)"));
    EXPECT_THAT(traced(), IsEmpty());
}

TEST_F(SsidTextTest, AnEmptySsidIsTheEmptyText)
{
    EXPECT_EQ("", Narrow(MakeSsid("")));
    EXPECT_EQ(L"", Wide(MakeSsid("")));
    EXPECT_EQ("", Narrow(MakeSsidOfLength("left over", 0))) << "only the stated length counts";
}

TEST_F(SsidTextTest, TheBytesAreTakenAsUtf8)
{
    const struct
    {
        std::uint32_t codePage;
        std::string ssid;
        std::string narrow;
        std::wstring wide;
    } cases[] = {
        {1252, "Caf\xC3\xA9", "Caf\xE9", L"Caf\u00E9"},
        {1252, "A\xE6\x9D\xB1Z", "A?Z", L"A\u6771Z"}, // the code page's own replacement
        {1252, "A\xFFZ", "A?Z", L"A\uFFFDZ"},         // ill-formed bytes are replaced
        {932, "\xE6\x9D\xB1\xE4\xBA\xAC", "\x93\x8C\x8B\x9E", L"\u6771\u4EAC"},
        {936, "\xE4\xB8\x9C\xE4\xBA\xAC", "\xB6\xAB\xBE\xA9", L"\u4E1C\u4EAC"},
        {65001, "\xE6\x9D\xB1 \xC3\xA9", "\xE6\x9D\xB1 \xC3\xA9", L"\u6771 \u00E9"},
        {65001, "\xF0\x9F\x93\xB6", "\xF0\x9F\x93\xB6", L"\U0001F4F6"},
    };
    for (const auto& each : cases)
    {
        UseScenario(ScenarioInCodePage(each.codePage));
        EXPECT_EQ(each.narrow, Narrow(MakeSsid(each.ssid))) << each.codePage;
        EXPECT_EQ(each.wide, Wide(MakeSsid(each.ssid))) << each.codePage;
    }
}

TEST_F(SsidTextTest, AZeroByteEndsTheText)
{
    const DOT11_SSID ssid = MakeSsid(std::string("Home\0Net", 8));
    EXPECT_EQ("Home", Narrow(ssid));
    EXPECT_EQ(L"Home", Wide(ssid));
}

TEST_F(SsidTextTest, AFullSsidIsTerminated)
{
    const std::string longest(32, 'S');
    EXPECT_EQ(longest, Narrow(MakeSsid(longest)));
    EXPECT_EQ(std::wstring(32, L'S'), Wide(MakeSsid(longest)));
}

// Lengths from 33 to 64 are let through, but the record holds no more than 32 bytes.
TEST_F(SsidTextTest, ALengthUpTo64IsLetThrough)
{
    const std::string longest(32, 'S');
    for (const ULONG length : {ULONG{33}, ULONG{64}})
    {
        EXPECT_EQ(longest, Narrow(MakeSsidOfLength(longest, length)));
        EXPECT_EQ(std::wstring(32, L'S'), Wide(MakeSsidOfLength(longest, length)));
    }
}

TEST_F(SsidTextTest, AGreaterLengthIsAFatalCallerError)
{
    for (const ULONG length : {ULONG{65}, ULONG{0xFFFFFFFF}})
    {
        const DOT11_SSID ssid = MakeSsidOfLength("HomeNet", length);
        ExpectFatal([&] { manager().GetSSID(&ssid, m_narrow, 128); }, "GetSSID: the SSID is longer than 64 bytes");
        ExpectFatal([&] { manager().GetSSID(&ssid, m_wide, 128); }, "GetSSID: the SSID is longer than 64 bytes");
    }
    EXPECT_EQ('#', m_narrow[0]);
    EXPECT_EQ(L'#', m_wide[0]);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(SsidTextTest, NoSsidIsAFatalCallerError)
{
    const DOT11_SSID* const none = nullptr;
    ExpectFatal([&] { manager().GetSSID(none, m_narrow, 128); }, "GetSSID: null SSID");
    ExpectFatal([&] { manager().GetSSID(none, m_wide, 128); }, "GetSSID: null SSID");
}

TEST_F(SsidTextTest, TheCapacityCutsSilently)
{
    const struct
    {
        int capacity;
        std::string room; // '.' is a terminator
    } cases[] = {{5, "Home.#####"}, {8, "HomeNet.##"}, {7, "HomeNe.###"},
                 {1, ".#########"}, {0, "##########"}, {-1, ".#########"}};
    const DOT11_SSID ssid = MakeSsid("HomeNet");
    for (const auto& each : cases)
    {
        std::string narrow(10, '#');
        EXPECT_EQ(1, manager().GetSSID(&ssid, narrow.data(), each.capacity)) << each.capacity;
        std::replace(narrow.begin(), narrow.end(), '\0', '.');
        EXPECT_EQ(each.room, narrow) << each.capacity;

        std::wstring wide(10, L'#');
        EXPECT_EQ(1, manager().GetSSID(&ssid, wide.data(), each.capacity)) << each.capacity;
        std::replace(wide.begin(), wide.end(), L'\0', L'.');
        EXPECT_EQ(std::wstring(each.room.begin(), each.room.end()), wide) << each.capacity;
    }
}

// Thirty-two replacement characters are 96 bytes of UTF-8, more than the 64 that the conversion has room for.
TEST_F(SsidTextTest, TextBeyond64NarrowBytesGivesZero)
{
    UseScenario(ScenarioInCodePage(65001));
    const DOT11_SSID ssid = MakeSsid(std::string(32, '\xFF'));
    EXPECT_EQ(0, manager().GetSSID(&ssid, m_narrow, 128));
    EXPECT_EQ('#', m_narrow[0]);
    EXPECT_EQ(std::wstring(32, L'\uFFFD'), Wide(ssid));
}

TEST_F(SsidTextTest, WithoutADestinationNothingIsWritten)
{
    const DOT11_SSID ssid = MakeSsid("HomeNet");
    EXPECT_EQ(1, manager().GetSSID(&ssid, static_cast<char*>(nullptr), 8));
    EXPECT_EQ(1, manager().GetSSID(&ssid, static_cast<wchar_t*>(nullptr), 8));
}

} // namespace calvix::test::ssid_text_test
