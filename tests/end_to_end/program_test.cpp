// The command-line host, which is a program like any other to the library beside it. scenarios/home.json.

#include "dropin/child_process.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <string>

namespace calvix::test::end_to_end_program_test
{
namespace
{

ProgramEnd RunCalvix(const std::wstring& arguments)
{
    wchar_t path[1024] = L"";
    ::GetModuleFileNameW(nullptr, path, 1024);
    const std::wstring own = path;
    return RunProgram(own.substr(0, own.rfind(L'\\') + 1) + L"calvix.exe", {}, arguments);
}

void ExpectIn(const ProgramEnd& end, const char* text)
{
    EXPECT_NE(end.output.find(text), std::string::npos) << text << " is not in:\n" << end.output << end.errors;
}

TEST(Program, ListsNetworksOfTheScenario)
{
    const ProgramEnd end = RunCalvix(L"networks");
    EXPECT_EQ(end.exitCode, 0u) << end.errors;
    ExpectIn(end, "Lindenhof Garden");
    ExpectIn(end, "PrinterSetup-4711");
}

TEST(Program, ConnectsAndWaitsForTheConnection)
{
    const ProgramEnd end = RunCalvix(L"connect Lindenhof");
    EXPECT_EQ(end.exitCode, 0u) << end.errors;
    ExpectIn(end, "02:1A:50:10:00:01");
}

TEST(Program, ReportsAProfileThatIsNotStored)
{
    const ProgramEnd end = RunCalvix(L"connect \"Nobody's\"");
    EXPECT_NE(end.exitCode, 0u);
    EXPECT_NE(end.errors, "");
}

} // namespace
} // namespace calvix::test::end_to_end_program_test
