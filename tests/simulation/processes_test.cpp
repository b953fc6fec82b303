// Processes, waiting for them, and modules, beyond what every computer does: see tests/platform.
#include "system_fixture.h"

#include <chrono>

namespace calvix::simulation::processes_test
{

using std::chrono::milliseconds;

class ProcessTest : public SystemTest
{
protected:
    ProcessTest()
    {
        scenario.programPath = "C:\\Tools\\host.exe";
        scenario.programs = {{"C:\\Tools\\report.exe", 10'000, 3},
                             {"C:\\Windows\\System32\\ping.exe", 500},
                             {"C:\\Program Files\\Big Tool\\big tool.exe", 700},
                             {"C:\\Tools\\daemon.exe", std::nullopt}};
        scenario.processes = {{40, "C:\\Windows\\notepad.exe"},
                              {44, "C:\\Windows\\System32\\svchost.exe", std::nullopt, 0, true},
                              {48, "C:\\Tools\\report.exe", 2000, 9}};
    }

    BOOL Create(const char* application, const char* commandLine = nullptr)
    {
        STARTUPINFOA startup{};
        startup.cb = sizeof(startup);
        std::string line = commandLine != nullptr ? commandLine : "";
        return Processes().CreateProcessA(application, commandLine != nullptr ? line.data() : nullptr, nullptr, nullptr,
                                          FALSE, 0, nullptr, nullptr, &startup, &started);
    }

    void CloseStarted()
    {
        EXPECT_TRUE(Processes().CloseHandle(started.hThread));
        EXPECT_TRUE(Processes().CloseHandle(started.hProcess));
    }

    /// What a command line starts, empty: nothing.
    std::string StartedBy(const char* commandLine)
    {
        const std::size_t before = Machine().RunningProcesses().size();
        if (!Create(nullptr, commandLine))
        {
            EXPECT_EQ(LastError(), ERROR_FILE_NOT_FOUND) << commandLine;
            EXPECT_EQ(Machine().RunningProcesses().size(), before);
            return "";
        }
        CloseStarted();
        return Machine().RunningProcesses().back().path;
    }

    PROCESS_INFORMATION started{};
};

TEST_F(ProcessTest, AProgramIsStartedByItsPath)
{
    EXPECT_TRUE(Create("c:\\tools\\REPORT.exe"));
    const RunningProcess running = Machine().RunningProcesses().back();
    EXPECT_EQ(running.id, started.dwProcessId);
    EXPECT_EQ(running.path, "C:\\Tools\\report.exe");
    EXPECT_EQ(running.milliseconds, 10'000u);
    EXPECT_NE(started.hProcess, started.hThread);
    EXPECT_EQ(Machine().Audit().openHandles, 2u);
    CloseStarted();
    EXPECT_EQ(Machine().RunningProcesses().size(), 4u);
}

TEST_F(ProcessTest, APathIsNotSearchedFor)
{
    for (const char* path : {"report.exe", "C:\\Tools\\report", "C:\\Tools\\none.exe", ""})
        EXPECT_EQ(ErrorOf(Create(path)), ERROR_FILE_NOT_FOUND) << path;
}

TEST_F(ProcessTest, ACommandLineNamesItsProgramFirst)
{
    const struct
    {
        const char* line;
        const char* path;
    } cases[] = {
        {"  report /quick now", "C:\\Tools\\report.exe"},
        {"ping 127.0.0.1", "C:\\Windows\\System32\\ping.exe"},
        {"\"C:\\Program Files\\Big Tool\\big tool.exe\" x", "C:\\Program Files\\Big Tool\\big tool.exe"},
        {"C:\\Program Files\\Big Tool\\big tool x y", "C:\\Program Files\\Big Tool\\big tool.exe"},
        {"", ""},
        {"\"report.exe now\"", ""},
        {"C:\\Elsewhere\\report.exe", ""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(StartedBy(each.line), each.path) << each.line;
}

TEST_F(ProcessTest, StartingNeedsItsRecords)
{
    STARTUPINFOA startup{};
    const auto create = [&](STARTUPINFOA* how, PROCESS_INFORMATION* information)
    {
        return ErrorOf(Processes().CreateProcessA("C:\\Tools\\report.exe", nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                                                  nullptr, how, information));
    };
    EXPECT_EQ(create(nullptr, &started), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(create(&startup, nullptr), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Machine().RunningProcesses().size(), 3u);
}

TEST_F(ProcessTest, PathsAreInTheComputersCodePage)
{
    scenario.programs.push_back({"C:\\B\xC3\xBCro\\\xC3\xBC.exe"});
    scenario.programPath = "C:\\B\xC3\xBCro\\host.exe";
    EXPECT_TRUE(Create("C:\\B\xFCro\\\xFC.exe"));
    CloseStarted();
    EXPECT_EQ(StartedBy("\xFC"), "C:\\B\xC3\xBCro\\\xC3\xBC.exe");
    char path[32] = {};
    EXPECT_EQ(Processes().GetModuleFileNameA(nullptr, path, sizeof(path)), 16u);
    EXPECT_STREQ(path, "C:\\B\xFCro\\host.exe");
}

TEST_F(ProcessTest, WaitingLetsTheProcesssTimePass)
{
    EXPECT_TRUE(Create("C:\\Tools\\report.exe"));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, 4000), WAIT_TIMEOUT);
    EXPECT_EQ(Machine().Now(), milliseconds(4000));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hThread, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(Machine().Now(), milliseconds(10'000));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, INFINITE), WAIT_OBJECT_0);
    EXPECT_EQ(Machine().Now(), milliseconds(10'000));
    CloseStarted();
}

TEST_F(ProcessTest, AWaitThatEndsWithTheProcessDoesNotTimeOut)
{
    EXPECT_TRUE(Create("C:\\Tools\\report.exe"));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, 10'000), WAIT_OBJECT_0);
    CloseStarted();
}

TEST_F(ProcessTest, WaitingForEverForWhatNeverEndsIsADefect)
{
    EXPECT_TRUE(Create("C:\\Tools\\daemon.exe"));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, 1000), WAIT_TIMEOUT);
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, INFINITE), WAIT_FAILED);
    EXPECT_EQ(LastError(), 1131u);
    EXPECT_EQ(Processes().WaitForSingleObject(Processes().GetCurrentProcess(), INFINITE), WAIT_FAILED);
    EXPECT_EQ(Processes().WaitForSingleObject(Processes().GetCurrentProcess(), 1000), WAIT_TIMEOUT);
    const std::string line = "WaitForSingleObject: would never return";
    EXPECT_EQ(Defects(), (std::vector<std::string>{line, line}));
    CloseStarted();
}

TEST_F(ProcessTest, AnEndedProcessIsGoneWithItsLastHandle)
{
    const HANDLE process = Processes().OpenProcess(PROCESS_TERMINATE, TRUE, 40);
    EXPECT_TRUE(Processes().TerminateProcess(process, 7));
    EXPECT_EQ(Machine().RunningProcesses().front().id, 44u);
    EXPECT_TRUE(Processes().CloseHandle(process));
    EXPECT_EQ(ErrorOf(Processes().OpenProcess(PROCESS_TERMINATE, FALSE, 40)), ERROR_INVALID_PARAMETER);
}

TEST_F(ProcessTest, AProgramThatEndsItselfIsADefect)
{
    EXPECT_FALSE(Processes().TerminateProcess(Processes().GetCurrentProcess(), 0));
    EXPECT_EQ(Defects(), (std::vector<std::string>{"TerminateProcess: the program ends itself"}));
}

TEST_F(ProcessTest, TheDebugPrivilegeOpensThemAll)
{
    scenario.privileges = {{"SeDebugPrivilege", false}};
    EXPECT_EQ(ErrorOf(Processes().OpenProcess(PROCESS_TERMINATE, FALSE, 44)), ERROR_ACCESS_DENIED);
    EXPECT_EQ(Adjust("SeDebugPrivilege", true), ERROR_SUCCESS);
    const HANDLE process = Processes().OpenProcess(PROCESS_TERMINATE, FALSE, 44);
    EXPECT_NE(process, nullptr);
    EXPECT_TRUE(Processes().CloseHandle(process));
}

TEST_F(ProcessTest, ProcessesEndByThemselves)
{
    Machine().Advance(milliseconds(1999));
    EXPECT_EQ(Machine().RunningProcesses().back().milliseconds, 1u);
    Machine().Advance(milliseconds(1));
    EXPECT_EQ(Machine().RunningProcesses().size(), 2u);
    EXPECT_EQ(Processes().OpenProcess(PROCESS_TERMINATE, FALSE, 48), nullptr);
}

TEST_F(ProcessTest, AClosedHandleIsADefect)
{
    EXPECT_TRUE(Create("C:\\Tools\\report.exe"));
    CloseStarted();
    EXPECT_FALSE(Processes().CloseHandle(started.hProcess));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, 0), WAIT_FAILED);
    EXPECT_EQ(Defects(), (std::vector<std::string>{"CloseHandle: use of closed process handle",
                                                   "WaitForSingleObject: use of closed process handle"}));
}

TEST_F(ProcessTest, ModulesHaveTheirPaths)
{
    char path[64];
    EXPECT_NE(Processes().GetModuleFileNameA(Processes().GetModuleHandleA("kernel32"), path, sizeof(path)), 0u);
    EXPECT_STREQ(path, "C:\\Windows\\System32\\kernel32.dll");
    EXPECT_NE(Processes().GetModuleFileNameA(nullptr, path, sizeof(path)), 0u);
    EXPECT_STREQ(path, "C:\\Tools\\host.exe");
    EXPECT_EQ(ErrorOf(Processes().GetModuleFileNameA(nullptr, path, 0)), ERROR_INSUFFICIENT_BUFFER);
}

class Wow64Test : public ProcessTest
{
protected:
    FARPROC Find() { return Processes().GetProcAddress(Processes().GetModuleHandleA("kernel32"), "IsWow64Process"); }

    /// What the function says, called as programs call it.
    BOOL Answer(BOOL& answer)
    {
        using IsWow64ProcessFunction = BOOL(WINAPI*)(HANDLE, BOOL*);
        const auto function = reinterpret_cast<IsWow64ProcessFunction>(reinterpret_cast<void (*)()>(Find()));
        return function(Processes().GetCurrentProcess(), &answer);
    }
};

TEST_F(Wow64Test, AnEmulatedProcessLearnsThatItIs)
{
    scenario.wow64 = true;
    BOOL answer = FALSE;
    EXPECT_TRUE(Answer(answer));
    EXPECT_TRUE(answer);
}

TEST_F(Wow64Test, APlatformWithoutTheFunctionDoesNotFindIt)
{
    scenario.wow64.reset();
    EXPECT_EQ(ErrorOf(Find()), ERROR_PROC_NOT_FOUND);
}

TEST_F(Wow64Test, OtherFunctionsAreNotFound)
{
    const HMODULE kernel = Processes().GetModuleHandleA("kernel32");
    EXPECT_EQ(Processes().GetProcAddress(kernel, reinterpret_cast<const char*>(UINT_PTR{7})), nullptr);
    EXPECT_EQ(Processes().GetProcAddress(kernel, nullptr), nullptr);
    EXPECT_EQ(Processes().GetProcAddress(nullptr, "IsWow64Process"), nullptr);
    EXPECT_EQ(LastError(), ERROR_PROC_NOT_FOUND);
}

} // namespace calvix::simulation::processes_test
