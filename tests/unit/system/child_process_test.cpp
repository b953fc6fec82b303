#include "support/changed_platform.h"
#include "support/library_test.h"

#include <cstring>

namespace calvix::test::child_process_test
{
namespace
{

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr unsigned long kRunning = 4242;
constexpr unsigned long kOther = 4343;
constexpr unsigned long kNoProcess = 9999;

const std::string kModuleName = "GetModuleFileNameA(module=null, fileName=non-null, size=512)";
const std::string kWait = "WaitForSingleObject(handle=1, milliseconds=4294967295)";

simulation::Scenario ToolBox()
{
    simulation::Scenario scenario = RichScenario();
    scenario.programPath = "C:\\Tools\\host.exe";
    scenario.programs = {{.path = "C:\\Tools\\worker.exe", .milliseconds = 10'000, .exitCode = 3},
                         {.path = "C:\\Windows\\elsewhere.exe", .milliseconds = 2'500}};
    scenario.processes = {{.id = kRunning, .path = "C:\\Tools\\running.exe"},
                          {.id = kOther, .path = "C:\\Tools\\other.exe"}};
    return scenario;
}

std::string Start(const std::string& application, const std::string& commandLine)
{
    return "CreateProcessA(application=" + application + ", commandLine=" + commandLine +
           ", processAttributes=null, threadAttributes=null, inheritHandles=false, creationFlags=0, environment=null, "
           "currentDirectory=null, startup={size=sizeof(STARTUPINFOA), flags=0, showWindow=0}, information=non-null)";
}

/// Text as the call log quotes it.
std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char character : text)
        quoted += character == '\\' || character == '"' ? std::string("\\") + character : std::string(1, character);
    return quoted + "\"";
}

class ChildProcessTest : public LibraryTest
{
public:
    ChildProcessTest() : LibraryTest(ToolBox()) {}

    void RunCommand(std::string commandLine) { manager().CreateProcRunCmd(commandLine.data()); }
    int RunProgram(std::string fileName) { return manager().CreateProcRunExe(fileName.data()); }

    std::vector<unsigned long> Running()
    {
        std::vector<unsigned long> ids;
        for (const simulation::RunningProcess& process : computer().RunningProcesses())
            ids.push_back(process.id);
        return ids;
    }
};

// --- CloseProcess ---

TEST_F(ChildProcessTest, AProcessIsEndedByItsIdentifier)
{
    ASSERT_THAT(Running(), ElementsAre(kRunning, kOther));
    manager().CloseProcess(kRunning);
    EXPECT_THAT(timeline(), ElementsAre("OpenProcess(access=1, inheritHandle=true, processId=4242)",
                                        "TerminateProcess(process=1, exitCode=0)", "CloseHandle(handle=1)"));
    EXPECT_THAT(Running(), ElementsAre(kOther));
    ExpectSilence();
}

// Deliberate: the handle that there is not goes on to the other calls, which refuse it.
TEST_F(ChildProcessTest, AProcessThatIsNotOpenedIsPassedOnAsNull)
{
    for (const bool injected : {false, true})
    {
        Restart();
        if (injected)
            FailOn("OpenProcess");
        manager().CloseProcess(injected ? kRunning : kNoProcess);
        EXPECT_EQ(injected ? 1u : 0u, InjectedFailures());
        EXPECT_THAT(calls(), ElementsAre("OpenProcess", "TerminateProcess", "CloseHandle"));
        EXPECT_EQ("null", call("TerminateProcess")["process"]);
        EXPECT_EQ("null", call("CloseHandle")["handle"]);
        EXPECT_THAT(Running(), ElementsAre(kRunning, kOther));
        ExpectSilence();
    }
}

TEST_F(ChildProcessTest, AProcessThatDoesNotEndIsLeftAlone)
{
    FailOn("TerminateProcess");
    manager().CloseProcess(kRunning);
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_EQ("1", call("CloseHandle")["handle"]);
    EXPECT_THAT(Running(), ElementsAre(kRunning, kOther));
    ExpectSilence();
}

// --- CreateProcRunCmd ---

TEST_F(ChildProcessTest, ACommandLineRunsToItsEnd)
{
    const std::string commandLine = "\"C:\\Windows\\elsewhere.exe\" /quiet";
    const auto began = computer().Now();
    RunCommand(commandLine);
    EXPECT_EQ(2'500ms, computer().Now() - began);
    EXPECT_THAT(timeline(), ElementsAre(Start("null", Quoted(commandLine)), kWait, "CloseHandle(handle=1)",
                                        "CloseHandle(handle=2)"));
    EXPECT_THAT(Running(), ElementsAre(kRunning, kOther));
    ExpectSilence();
}

TEST_F(ChildProcessTest, ACommandLineThatStartsNothingIsNotReported)
{
    const auto began = computer().Now();
    RunCommand("C:\\Tools\\missing.exe");
    EXPECT_THAT(calls(), ElementsAre("CreateProcessA"));
    EXPECT_EQ(began, computer().Now());
    ExpectSilence();
}

TEST_F(ChildProcessTest, NoCommandLineStartsNothing)
{
    manager().CreateProcRunCmd(nullptr);
    EXPECT_THAT(timeline(), IsEmpty());
    ExpectSilence();
}

// --- CreateProcRunExe ---

TEST_F(ChildProcessTest, AProgramBesideTheHostRunsToItsEnd)
{
    const auto began = computer().Now();
    EXPECT_EQ(1, RunProgram("worker.exe")) << "its exit code, 3, does not matter";
    EXPECT_EQ(10'000ms, computer().Now() - began);
    EXPECT_THAT(timeline(), ElementsAre(kModuleName, Start(Quoted("C:\\Tools\\worker.exe"), "null"), kWait,
                                        "CloseHandle(handle=1)", "CloseHandle(handle=2)"));
    EXPECT_THAT(Running(), ElementsAre(kRunning, kOther));
    ExpectSilence();
}

TEST_F(ChildProcessTest, TheFolderOfTheHostIsWrittenDownAgain)
{
    char(&path)[512] = ManagerInternals::AppPath(manager());
    std::strcpy(path, "C:\\Earlier\\");
    EXPECT_EQ(1, RunProgram("worker.exe"));
    EXPECT_STREQ("C:\\Tools\\", path);
}

TEST_F(ChildProcessTest, WithoutAFolderTheNameIsUsedAlone)
{
    FailOn("GetModuleFileNameA", 126);
    EXPECT_EQ(0, RunProgram("worker.exe"));
    EXPECT_EQ(1u, InjectedFailures());
    EXPECT_EQ(Quoted("worker.exe"), call("CreateProcessA")["application"]);
    ExpectSilence();
}

TEST_F(ChildProcessTest, ALongNameIsNotCut)
{
    const std::string name(2'000, 'n');
    EXPECT_EQ(0, RunProgram(name));
    EXPECT_EQ(Quoted("C:\\Tools\\" + name), call("CreateProcessA")["application"]);
}

TEST_F(ChildProcessTest, NoNameStartsNothing)
{
    EXPECT_EQ(0, manager().CreateProcRunExe(nullptr));
    EXPECT_THAT(timeline(), IsEmpty());
    ExpectSilence();
}

// --- both ---

// The end of the program is all that the wait is for; one that fails ends at once.
TEST_F(ChildProcessTest, AWaitThatFailsLeavesNothingOpen)
{
    FailOn("WaitForSingleObject", 6);
    EXPECT_EQ(1, RunProgram("worker.exe"));
    RunCommand("C:\\Windows\\elsewhere.exe");
    EXPECT_EQ(2u, InjectedFailures());
    EXPECT_EQ(4u, callCount("CloseHandle"));
    ExpectSilence();
}

TEST_F(ChildProcessTest, TheRecordsBeginAsZero)
{
    unsigned seen = 0;
    ChangedPlatform changed;
    changed.Before<&Processes::CreateProcessA>(
        [&seen](auto, auto, auto, auto, auto, auto, auto, auto, STARTUPINFOA* startup, PROCESS_INFORMATION* information)
        {
            STARTUPINFOA onlySize{};
            onlySize.cb = sizeof(onlySize);
            EXPECT_EQ(0, std::memcmp(&onlySize, startup, sizeof(onlySize)));
            const PROCESS_INFORMATION zero{};
            EXPECT_EQ(0, std::memcmp(&zero, information, sizeof(zero)));
            ++seen;
        });
    RunProgram("worker.exe");
    RunCommand("C:\\Windows\\elsewhere.exe");
    EXPECT_EQ(2u, seen);
}

} // namespace
} // namespace calvix::test::child_process_test
