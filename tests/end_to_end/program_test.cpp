// The command-line host, which is a program like any other to the library beside it. scenarios/home.json.

#include "dropin/child_process.h"
#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <string>

namespace calvix::test::end_to_end_program_test
{
namespace
{

ProgramEnd RunCalvix(const std::wstring& arguments)
{
    return RunProgram((OwnFolder() / "calvix.exe").wstring(), {}, arguments);
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

TEST(Program, ReportsAProfileThatIsNotStored)
{
    const ProgramEnd end = RunCalvix(L"connect \"Nobody's\"");
    EXPECT_NE(end.exitCode, 0u);
    EXPECT_NE(end.errors, "");
}

// What it records of the system's WLAN library, the drop-in here, plays back without one: lists and notifications.
TEST(Program, ReplaysWhatItRecorded)
{
    const std::filesystem::path file = OwnFolder() / "session.jsonl";
    const std::wstring quoted = L'"' + file.wstring() + L'"';
    const std::pair<std::wstring, const char*> commands[] = {{L"networks --json", "Lindenhof Garden"},
                                                             {L"connect Lindenhof", "02:1A:50:10:00:01"}};
    for (const auto& [command, shown] : commands)
    {
        SCOPED_TRACE(testing::PrintToString(command));
        const ProgramEnd recorded = RunCalvix(command + L" --record " + quoted);
        const ProgramEnd replayed = RunCalvix(command + L" --replay " + quoted);
        EXPECT_EQ(recorded.exitCode, 0u) << recorded.errors;
        ExpectIn(recorded, shown);
        EXPECT_EQ(recorded.output, replayed.output);
        EXPECT_EQ(recorded.errors, replayed.errors);
        EXPECT_EQ(recorded.exitCode, replayed.exitCode);
    }
    std::filesystem::remove(file);
}

} // namespace
} // namespace calvix::test::end_to_end_program_test
