// Which scenario a program sees, by its environment and by what lies beside the DLL, and what it reports when there is
// none to see.

#include "dropin/child_process.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace calvix::test::dropin_scenario_choice_test
{
namespace
{

const std::wstring programs = L"" CALVIX_DROPIN_PROGRAMS "/";
const std::wstring scenarios = L"" CALVIX_SOURCE_DIR "/scenarios/";
const std::wstring ownScenarios = L"" CALVIX_SOURCE_DIR "/tests/dropin/scenarios/";

constexpr char homeAdapter[] = "Calvix Simulated Wi-Fi 6E Adapter\r\n";
constexpr char adapterBeside[] = "The Adapter of the File Beside\r\n";
constexpr char invalidData[] = "error 13\r\n";

ProgramEnd NameAdapters(const Environment& environment)
{
    return RunProgram(programs + L"wlan_adapter_names.exe", environment);
}

TEST(DropinScenario, IsTheBuiltInHomeWhereNothingWasChosen)
{
    const ProgramEnd end = NameAdapters({});
    EXPECT_EQ(end.exitCode, 0u);
    EXPECT_EQ(end.output, homeAdapter);
    EXPECT_EQ(end.errors, "");
}

TEST(DropinScenario, IsTheFileNamedInTheEnvironment)
{
    const ProgramEnd end = NameAdapters({{L"CALVIX_SCENARIO", scenarios + L"two-adapters.json"}});
    EXPECT_EQ(end.exitCode, 0u);
    EXPECT_EQ(end.output, "Calvix Simulated Wi-Fi 5 Adapter\r\nCalvix Simulated USB Wi-Fi 7 Adapter\r\n");
}

TEST(DropinScenario, IsTheFileBesideTheLibrary)
{
    const ProgramEnd end = RunProgram(programs + L"beside/wlan_adapter_names.exe");
    EXPECT_EQ(end.exitCode, 0u);
    EXPECT_EQ(end.output, adapterBeside);
}

TEST(DropinScenario, IsRatherTheNamedFileThanTheOneBeside)
{
    const ProgramEnd end =
        RunProgram(programs + L"beside/wlan_adapter_names.exe", {{L"CALVIX_SCENARIO", scenarios + L"home.json"}});
    EXPECT_EQ(end.output, homeAdapter);
}

// A path that no narrow code page of this computer can write.
TEST(DropinScenario, MayHaveAnyNameAsItsPath)
{
    wchar_t folder[MAX_PATH];
    ASSERT_NE(::GetTempPathW(MAX_PATH, folder), 0u);
    const std::wstring path = std::wstring(folder) + L"calvix \u6f22\u5b57 \u0416 \U0001F4F6.json";
    ASSERT_TRUE(::CopyFileW((scenarios + L"no-adapter.json").c_str(), path.c_str(), FALSE));
    const ProgramEnd end = NameAdapters({{L"CALVIX_SCENARIO", path}});
    ::DeleteFileW(path.c_str());
    EXPECT_EQ(end.exitCode, 0u);
    EXPECT_EQ(end.output, "");
}

TEST(DropinScenario, ServiceThatIsStoppedAnswersAsSuch)
{
    const ProgramEnd end = NameAdapters({{L"CALVIX_SCENARIO", scenarios + L"service-stopped.json"}});
    EXPECT_EQ(end.exitCode, static_cast<unsigned long>(ERROR_SERVICE_NOT_ACTIVE));
    EXPECT_EQ(end.output, "error 1062\r\n");
}

TEST(DropinScenario, MissingFileIsNamedOnStandardError)
{
    const ProgramEnd end = NameAdapters({{L"CALVIX_SCENARIO", L"Z:\\no\\such\\file.json"}});
    EXPECT_EQ(end.output, invalidData);
    EXPECT_EQ(end.errors, "wlanapi.dll of Calvix: Z:\\no\\such\\file.json: cannot be read\r\n");
}

TEST(DropinScenario, ProblemInAFileIsNamedWithItsPlace)
{
    const ProgramEnd broken = NameAdapters({{L"CALVIX_SCENARIO", ownScenarios + L"no-json.json"}});
    EXPECT_EQ(broken.output, invalidData);
    EXPECT_NE(broken.errors.find("no-json.json: line 4"), std::string::npos) << broken.errors;

    const ProgramEnd wrong = NameAdapters({{L"CALVIX_SCENARIO", ownScenarios + L"wrong-value.json"}});
    EXPECT_EQ(wrong.output, invalidData);
    EXPECT_NE(wrong.errors.find("wrong-value.json"), std::string::npos) << wrong.errors;
    EXPECT_NE(wrong.errors.find("codePage"), std::string::npos) << wrong.errors;

    const ProgramEnd contradictory = NameAdapters({{L"CALVIX_SCENARIO", ownScenarios + L"unknown-profile.json"}});
    EXPECT_EQ(contradictory.output, invalidData);
    EXPECT_NE(contradictory.errors.find("/adapters/0/connection/profile"), std::string::npos) << contradictory.errors;
}

TEST(DropinScenario, SpeedMustBeANumber)
{
    for (const wchar_t* speed : {L"fast", L"0", L"-1", L"1.5", L"100001", L"2x"})
    {
        const ProgramEnd end = NameAdapters({{L"CALVIX_SPEED", speed}});
        EXPECT_EQ(end.output, invalidData);
        EXPECT_NE(end.errors.find("CALVIX_SPEED"), std::string::npos) << end.errors;
    }
    EXPECT_EQ(NameAdapters({{L"CALVIX_SPEED", L"100000"}}).output, homeAdapter);
}

} // namespace
} // namespace calvix::test::dropin_scenario_choice_test
