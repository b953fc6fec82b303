#include "support/library_test.h"
#include "support/strict_copy_guard.h"

namespace calvix::test::text_conversion_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr const wchar_t* kTokyo = L"\u6771\u4EAC";

struct Conversion
{
    std::uint32_t codePage;
    std::wstring wide;
    std::string narrow;
};

/// Texts that their code page has.
const std::vector<Conversion>& FaithfulConversions()
{
    static const std::vector<Conversion> conversions = {
        {1252, L"HomeNet", "HomeNet"},     {1252, L"", ""},          {1252, L"Caf\u00E9 \u20AC", "Caf\xE9 \x80"},
        {932, kTokyo, "\x93\x8C\x8B\x9E"}, {932, L"\uFF71", "\xB1"}, {936, L"\u4E1C\u4EAC", "\xB6\xAB\xBE\xA9"}};
    return conversions;
}

} // namespace

class TextConversionTest : public LibraryTest
{
protected:
    /// A destination of the size that UnicodeToAnsi takes it to have.
    struct Room
    {
        Room() { std::fill(std::begin(bytes), std::end(bytes), '#'); }
        char bytes[1024];
    };

    Room m_room;
};

// --- UnicodeToAnsi ----------------------------------------------------------------------------------------------

TEST_F(TextConversionTest, UnicodeToAnsiIsOneConversion)
{
    EXPECT_TRUE(manager().UnicodeToAnsi(L"HomeNet", m_room.bytes));
    EXPECT_STREQ("HomeNet", m_room.bytes);
    EXPECT_THAT(callLines(),
                ElementsAre("WideCharToMultiByte(codePage=0, flags=0, source=\"HomeNet\", sourceLength=-1, "
                            "destination=non-null, destinationLength=1024, defaultCharacter=\"\", "
                            "usedDefaultCharacter=non-null)"));
    EXPECT_THAT(traced(), IsEmpty());
}

TEST_F(TextConversionTest, UnicodeToAnsiWritesTheActiveCodePage)
{
    for (const Conversion& each : FaithfulConversions())
    {
        UseScenario(ScenarioInCodePage(each.codePage));
        EXPECT_TRUE(manager().UnicodeToAnsi(each.wide.c_str(), m_room.bytes)) << each.codePage;
        EXPECT_EQ(each.narrow, m_room.bytes) << each.codePage;
    }
}

// Kept on purpose: what the code page lacks becomes a terminator, and the text ends there.
TEST_F(TextConversionTest, UnicodeToAnsiEndsAtACharacterThatTheCodePageLacks)
{
    EXPECT_TRUE(manager().UnicodeToAnsi(L"A\u6771B", m_room.bytes));
    EXPECT_EQ(std::string("A\0B\0#", 5), std::string(m_room.bytes, 5));
    EXPECT_TRUE(manager().UnicodeToAnsi(kTokyo, m_room.bytes));
    EXPECT_STREQ("", m_room.bytes);
    UseScenario(ScenarioInCodePage(932));
    EXPECT_TRUE(manager().UnicodeToAnsi(L"\u6771\u0E01", m_room.bytes));
    EXPECT_STREQ("\x93\x8C", m_room.bytes);
}

// With UTF-8 as the active code page the platform takes no default character and refuses the conversion.
TEST_F(TextConversionTest, UnicodeToAnsiIsRefusedUnderUtf8)
{
    UseScenario(ScenarioInCodePage(65001));
    EXPECT_FALSE(manager().UnicodeToAnsi(L"HomeNet", m_room.bytes));
    EXPECT_EQ('#', m_room.bytes[0]);
    EXPECT_THAT(traced(), IsEmpty());
}

TEST_F(TextConversionTest, UnicodeToAnsiFillsTheStatedCapacity)
{
    const std::wstring longest(1023, L'x');
    EXPECT_TRUE(manager().UnicodeToAnsi(longest.c_str(), m_room.bytes));
    EXPECT_EQ(std::string(1023, 'x'), m_room.bytes);
    EXPECT_FALSE(manager().UnicodeToAnsi((longest + L'x').c_str(), m_room.bytes));
}

TEST_F(TextConversionTest, UnicodeToAnsiWithoutATextOrADestinationFails)
{
    EXPECT_FALSE(manager().UnicodeToAnsi(nullptr, m_room.bytes));
    EXPECT_EQ('#', m_room.bytes[0]);
    EXPECT_FALSE(manager().UnicodeToAnsi(L"HomeNet", nullptr));
}

// --- WideCharToChar ---------------------------------------------------------------------------------------------

TEST_F(TextConversionTest, WideCharToCharAsksForTheSizeAndConverts)
{
    EXPECT_EQ(8, manager().WideCharToChar(L"HomeNet", m_room.bytes, 1024));
    EXPECT_STREQ("HomeNet", m_room.bytes);
    EXPECT_EQ('#', m_room.bytes[8]);
    EXPECT_THAT(callLines(),
                ElementsAre("WideCharToMultiByte(codePage=0, flags=0, source=\"HomeNet\", sourceLength=-1, "
                            "destination=null, destinationLength=0, defaultCharacter=null, usedDefaultCharacter=null)",
                            "WideCharToMultiByte(codePage=0, flags=0, source=\"HomeNet\", sourceLength=-1, "
                            "destination=non-null, destinationLength=8, defaultCharacter=null, "
                            "usedDefaultCharacter=null)"));
    EXPECT_THAT(traced(), IsEmpty());
}

TEST_F(TextConversionTest, WideCharToCharWritesTheActiveCodePage)
{
    std::vector<Conversion> conversions = FaithfulConversions();
    conversions.push_back({65001, kTokyo, "\xE6\x9D\xB1\xE4\xBA\xAC"});
    conversions.push_back({1252, L"A\u6771B", "A?B"}); // what the code page lacks is replaced
    for (const Conversion& each : conversions)
    {
        UseScenario(ScenarioInCodePage(each.codePage));
        EXPECT_EQ(static_cast<int>(each.narrow.size()) + 1,
                  manager().WideCharToChar(each.wide.c_str(), m_room.bytes, 1024))
            << each.codePage;
        EXPECT_EQ(each.narrow, m_room.bytes) << each.codePage;
    }
}

TEST_F(TextConversionTest, WideCharToCharTakesTextOfAnyLength)
{
    const std::wstring text(3000, L'x');
    std::string room(3001, '#');
    EXPECT_EQ(3001, manager().WideCharToChar(text.c_str(), room.data(), 3001));
    EXPECT_EQ(std::string(3000, 'x'), room.c_str());
}

TEST_F(TextConversionTest, WideCharToCharNeedsRoomForTheTerminator)
{
    EXPECT_EQ(5, manager().WideCharToChar(L"Home", m_room.bytes, 5));
    EXPECT_STREQ("Home", m_room.bytes);
    for (const int capacity : {4, 1, 0, -1})
        ExpectFatal([&] { manager().WideCharToChar(L"Cafe", m_room.bytes, capacity); },
                    "WideCharToChar: the destination is too small");
    ExpectFatal([&] { manager().WideCharToChar(L"Cafe", nullptr, 5); }, "WideCharToChar: null destination");
    EXPECT_STREQ("Home", m_room.bytes) << "nothing is written then";
}

TEST_F(TextConversionTest, WideCharToCharCountsBytesNotCharacters)
{
    UseScenario(ScenarioInCodePage(932));
    EXPECT_EQ(5, manager().WideCharToChar(kTokyo, m_room.bytes, 5));
    ExpectFatal([&] { manager().WideCharToChar(kTokyo, m_room.bytes, 4); }, "too small");
}

TEST_F(TextConversionTest, WideCharToCharGivesZeroWhenTheConversionFails)
{
    for (const unsigned failingCall : {1u, 2u})
    {
        SCOPED_TRACE(failingCall);
        ClearFailures();
        FailOn("WideCharToMultiByte", 1113, failingCall);
        Room room;
        EXPECT_EQ(0, manager().WideCharToChar(L"HomeNet", room.bytes, 1024));
        EXPECT_GE(InjectedFailures(), 1u);
        EXPECT_STREQ("", room.bytes);
        EXPECT_THAT(traced(), IsEmpty());
    }
    ClearFailures();
    EXPECT_EQ(0, manager().WideCharToChar(nullptr, m_room.bytes, 1024));
    EXPECT_STREQ("", m_room.bytes);
}

} // namespace calvix::test::text_conversion_test
