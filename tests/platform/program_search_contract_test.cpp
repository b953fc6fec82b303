#include "processes_contract.h"

namespace calvix::test::program_search_contract_test
{

namespace
{

using ProgramSearchContract = ProcessesContract;

INSTANTIATE_TEST_SUITE_P(Platform, ProgramSearchContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(ProgramSearchContract, ACommandLineNamesItsProgram)
{
    const std::string lines[] = {"cmd.exe /c exit 3",
                                 "cmd /c exit 3",
                                 "CMD.EXE /c exit 3",
                                 Shell() + " /c exit 3",
                                 "\"" + Shell() + "\" /c exit 3",
                                 "\"cmd\" /c exit 3"};
    for (const std::string& line : lines)
    {
        SCOPED_TRACE(line);
        Finish(Start(line));
    }
}

TEST_P(ProgramSearchContract, AnApplicationIsNotSearchedFor)
{
    PROCESS_INFORMATION started{};
    EXPECT_TRUE(Create(Shell().c_str(), "anything /c exit 3", started)) << LastError();
    Finish(started);
    EXPECT_EQ(ErrorOfCreating("cmd.exe", "cmd.exe /c exit 3"), Error(ERROR_FILE_NOT_FOUND))
        << "the current folder is not the system's";
}

TEST_P(ProgramSearchContract, AnApplicationNeedsNoCommandLine)
{
    if (!IsSimulation())
        GTEST_SKIP() << "a command interpreter without a command would wait for one";
    PROCESS_INFORMATION started{};
    EXPECT_TRUE(Create(Shell().c_str(), nullptr, started)) << LastError();
    Finish(started);
}

TEST_P(ProgramSearchContract, MissingProgramsAreMissed)
{
    EXPECT_EQ(ErrorOfCreating(nullptr, "calvix-no-such-program.exe"), Error(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ErrorOfCreating(nullptr, "calvix-no-such-program /c"), Error(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ErrorOfCreating(nullptr, "\"C:\\windows\\calvix-no-such-program.exe\""), Error(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ErrorOfCreating("C:\\windows\\calvix-no-such-program.exe", nullptr), Error(ERROR_FILE_NOT_FOUND));
}

TEST_P(ProgramSearchContract, SomethingHasToBeNamed)
{
    if (!IsSimulation())
        GTEST_SKIP() << "Wine looks into the missing command line, and Windows promises no answer";
    EXPECT_EQ(ErrorOfCreating(nullptr, nullptr), Error(ERROR_INVALID_PARAMETER));
}

} // namespace

} // namespace calvix::test::program_search_contract_test
