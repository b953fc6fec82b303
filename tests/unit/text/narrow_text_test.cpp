// Wide names in narrow text: one rule for trace lines, listings, profiles and names handed out.

#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/small_scenarios.h"

#include <clocale>

namespace calvix::test::narrow_text_test
{

using ::testing::Contains;

namespace
{

/// The process's character set, as a host sets it, while this lives.
class CharacterSet
{
public:
    explicit CharacterSet(const char* name) : m_before(std::setlocale(LC_CTYPE, nullptr))
    {
        EXPECT_NE(nullptr, std::setlocale(LC_CTYPE, name)) << name;
    }
    CharacterSet(const CharacterSet&) = delete;
    CharacterSet& operator=(const CharacterSet&) = delete;
    ~CharacterSet() { std::setlocale(LC_CTYPE, m_before.c_str()); }

private:
    std::string m_before;
};

/// A character of Latin-1, one beyond it that code page 1252 has, and one that it lacks.
constexpr const char* kName = "Caf\xC3\xA9 \xE2\x82\xAC \xE6\x9D\xB1";
constexpr const wchar_t* kWideName = L"Caf\u00E9 \u20AC \u6771";

struct Narrowed
{
    const char* locale;
    const char* name;
};

// Where a process begins, and where a host has gone.
#if defined(_WIN32)
constexpr Narrowed kLocales[] = {{"C", "Caf\xE9 ? ?"}, {".1252", "Caf\xE9 \x80 ?"}};
#else
constexpr Narrowed kLocales[] = {{"C", "Caf? ? ?"}, {"C.UTF-8", kName}};
#endif

class NarrowTextTest : public LibraryTest
{
public:
    NarrowTextTest() : LibraryTest(ScenarioOf({ProfileFor(kName, "Net")}, {Heard("Net", 2412000, -50)})) {}
};

} // namespace

TEST_F(NarrowTextTest, TraceLinesAndListingsFollowTheLocale)
{
    for (const Narrowed& each : kLocales)
    {
        const CharacterSet locale(each.locale);
        ClearCalls();
        EXPECT_EQ(-1, manager().GetMatchBSSID(&kAdapterA));
        EXPECT_EQ(0, manager().GetAvailableNetwork());
        EXPECT_THAT(traced(), Contains("ProfileName(" + std::string(each.name) + ")")) << each.locale;
        EXPECT_THAT(traced(), Contains("Available Network(" + std::string(each.name) + ")")) << each.locale;
        EXPECT_THAT(traced(), Contains("  Profile Name[0]:  " + std::string(each.name))) << each.locale;
    }
}

TEST_F(NarrowTextTest, SmartConnectingFollowsTheLocale)
{
    for (const Narrowed& each : kLocales)
    {
        const CharacterSet locale(each.locale);
        char name[128] = "gone";
        EXPECT_EQ(0, manager().SmartConnecting(nullptr, name));
        EXPECT_STREQ(each.name, name) << each.locale;
    }
}

TEST_F(NarrowTextTest, NarrowProfilesFollowTheLocale)
{
    EditedAnswers edited;
    edited.service.SetProfileText(kWideName, std::wstring(L"<name>") + kWideName + L"</name>");
    for (const Narrowed& each : kLocales)
    {
        const CharacterSet locale(each.locale);
        char xml[64] = "gone";
        EXPECT_EQ(0, manager().GetProfile(&kAdapterA, kWideName, xml, sizeof xml));
        EXPECT_EQ("<name>" + std::string(each.name) + "</name>", xml) << each.locale;
    }
}

} // namespace calvix::test::narrow_text_test
