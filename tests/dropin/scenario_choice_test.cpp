// Which scenario a program sees, by its environment and by what lies beside the DLL, and what it reports when there is
// none to see.

#include "dropin/child_process.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

namespace calvix::test::dropin_scenario_choice_test
{
namespace
{

const std::wstring programs = L"" CALVIX_DROPIN_PROGRAMS "/";
const std::wstring scenarios = L"" CALVIX_SOURCE_DIR "/scenarios/";
const std::wstring ownScenarios = L"" CALVIX_SOURCE_DIR "/tests/dropin/scenarios/";

constexpr char homeAdapter[] = "Calvix Simulated Wi-Fi 6E Adapter\r\n";
constexpr char invalidData[] = "error 13\r\n";

ProgramEnd NameAdapters(const Environment& environment)
{
    return RunProgram(programs + L"wlan_adapter_names.exe", environment);
}

struct Choice
{
    const char* name;
    const wchar_t* program;
    std::wstring scenario; ///< named in the environment, if any
    const char* output;
    unsigned long exitCode = 0;
};

const Choice kChoices[] = {
    {"the built-in home where nothing was chosen", L"wlan_adapter_names.exe", L"", homeAdapter},
    {"the file named in the environment", L"wlan_adapter_names.exe", scenarios + L"two-adapters.json",
     "Calvix Simulated Wi-Fi 5 Adapter\r\nCalvix Simulated USB Wi-Fi 7 Adapter\r\n"},
    {"the file beside the library", L"beside/wlan_adapter_names.exe", L"", "The Adapter of the File Beside\r\n"},
    {"rather the named file than the one beside", L"beside/wlan_adapter_names.exe", scenarios + L"home.json",
     homeAdapter},
    {"a service that is stopped answers as such", L"wlan_adapter_names.exe", scenarios + L"service-stopped.json",
     "error 1062\r\n", ERROR_SERVICE_NOT_ACTIVE},
};

TEST(DropinScenario, IsTheOneThatWasChosen)
{
    for (const Choice& choice : kChoices)
    {
        SCOPED_TRACE(choice.name);
        const ProgramEnd end = RunProgram(programs + choice.program, {{L"CALVIX_SCENARIO", choice.scenario}});
        EXPECT_EQ(end.exitCode, choice.exitCode);
        EXPECT_EQ(end.output, choice.output);
        EXPECT_EQ(end.errors, "");
    }
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

TEST(DropinScenario, MissingFileIsNamedOnStandardError)
{
    const ProgramEnd end = NameAdapters({{L"CALVIX_SCENARIO", L"Z:\\no\\such\\file.json"}});
    EXPECT_EQ(end.output, invalidData);
    EXPECT_EQ(end.errors, "wlanapi.dll of Calvix: Z:\\no\\such\\file.json: cannot be read\r\n");
}

TEST(DropinScenario, ProblemInAFileIsNamedWithItsPlace)
{
    const std::pair<const wchar_t*, std::vector<const char*>> problems[] = {
        {L"no-json.json", {"no-json.json: line 4"}},
        {L"wrong-value.json", {"wrong-value.json", "codePage"}},
        {L"unknown-profile.json", {"/adapters/0/connection/profile"}},
    };
    for (const auto& [file, named] : problems)
    {
        const ProgramEnd end = NameAdapters({{L"CALVIX_SCENARIO", ownScenarios + file}});
        EXPECT_EQ(end.output, invalidData);
        for (const char* const words : named)
            EXPECT_NE(end.errors.find(words), std::string::npos) << words << " is not in " << end.errors;
    }
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
