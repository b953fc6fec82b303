// Texts on computers with different active code pages. Everything else about texts is in tests/platform.
#include "system_fixture.h"

namespace calvix::simulation::text_test
{

TEST(ActiveCodePage, IsTheScenarios)
{
    const struct
    {
        std::uint32_t codePage;
        const char* bytes;
        const wchar_t* text;
    } cases[] = {{1252, "\x80\xE9", L"\u20AC\u00E9"},
                 {932, "\x93\x8C", L"\u6771"},
                 {936, "\xB6\xAB\x80", L"\u4E1C\u20AC"},
                 {65001, "\xE6\x9D\xB1", L"\u6771"}};
    for (const auto& each : cases)
    {
        Scenario scenario;
        scenario.codePage = each.codePage;
        Computer computer(scenario);
        wchar_t text[8] = {};
        EXPECT_GT(computer.text().MultiByteToWideChar(CP_ACP, 0, each.bytes, -1, text, 8), 0) << each.codePage;
        EXPECT_STREQ(text, each.text) << each.codePage;
    }
}

using ActiveUtf8 = SystemTest;

TEST_F(ActiveUtf8, HasNoDefaultCharacterEither)
{
    scenario.codePage = 65001;
    char bytes[4] = {};
    BOOL used = FALSE;
    EXPECT_EQ(Machine().text().WideCharToMultiByte(CP_ACP, 0, L"a", 1, bytes, 4, nullptr, &used), 0);
    EXPECT_EQ(LastError(), ERROR_INVALID_PARAMETER);
}

} // namespace calvix::simulation::text_test
