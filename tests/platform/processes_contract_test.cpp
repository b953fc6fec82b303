#include "provider.h"

#include <string>
#include <vector>

namespace calvix::test::processes_contract_test
{

namespace
{

constexpr DWORD kSynchronize = 0x00100000;

// DETACHED_PROCESS. Where a process is to have a console, Wine starts a server for it, and that one stays for good when the
// process is ended while the server still starts.
constexpr DWORD kWithoutConsole = 0x00000008;

/// Processes made of programs that each kind of computer has: one that ends by itself, and one that has to be ended.
class ProcessesContract : public PlatformContract
{
protected:
    void SetUp() override
    {
        if (!IsSimulation())
            return;
        simulation::Scenario scenario;
        scenario.programs = {{"C:\\windows\\system32\\cmd.exe", 1000, 3},
                             {"C:\\windows\\system32\\endless.exe", {}, 0}};
        Simulate(scenario);
    }

    platform::Processes& Processes() { return System().processes(); }

    static std::string Shell() { return "C:\\windows\\system32\\cmd.exe"; }

    /// A command line that runs until it is ended: the command interpreter has to count without end.
    std::string Endless() const { return IsSimulation() ? "endless.exe" : "cmd.exe /c for /l %i in (1,0,2) do @rem"; }

    BOOL Create(const char* application, const char* commandLine, PROCESS_INFORMATION& started)
    {
        STARTUPINFOA startup{};
        startup.cb = sizeof startup;
        std::string line = commandLine != nullptr ? commandLine : "";
        return Processes().CreateProcessA(application, commandLine != nullptr ? line.data() : nullptr, nullptr, nullptr,
                                          FALSE, kWithoutConsole, nullptr, nullptr, &startup, &started);
    }

    DWORD ErrorOfCreating(const char* application, const char* commandLine)
    {
        PROCESS_INFORMATION started{};
        return ErrorOf([&] { return Create(application, commandLine, started); });
    }

    PROCESS_INFORMATION Start(const std::string& commandLine)
    {
        PROCESS_INFORMATION started{};
        EXPECT_TRUE(Create(nullptr, commandLine.c_str(), started)) << commandLine << ' ' << LastError();
        return started;
    }

    /// Waits for the process's end and closes its handles.
    void Finish(const PROCESS_INFORMATION& started)
    {
        EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, INFINITE), Error(WAIT_OBJECT_0));
        Close(started.hThread);
        Close(started.hProcess);
    }

    /// The same for one that would not end by itself.
    void EndAndFinish(const PROCESS_INFORMATION& started)
    {
        EXPECT_TRUE(Processes().TerminateProcess(started.hProcess, 1)) << LastError();
        Finish(started);
    }

    void Close(HANDLE handle) { EXPECT_TRUE(Processes().CloseHandle(handle)) << LastError(); }

    /// The last error of a wait, which must fail.
    DWORD ErrorOfWaiting(HANDLE handle)
    {
        return ErrorOf([&] { return Processes().WaitForSingleObject(handle, 0) != Error(WAIT_FAILED); });
    }

    /// A number that no handle has.
    static HANDLE NobodysHandle() { return reinterpret_cast<HANDLE>(UINT_PTR{0x00BADBAC}); }

    /// The program's own path, for which there is always room.
    std::string Path(HMODULE module = nullptr)
    {
        std::vector<char> room(1024, '#');
        const DWORD length = Processes().GetModuleFileNameA(module, room.data(), 1024);
        EXPECT_GT(length, 0u) << LastError();
        EXPECT_EQ(room[length], '\0');
        return {room.data(), length};
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, ProcessesContract, testing::ValuesIn(Providers()), ProviderName);

// Which program is started.

TEST_P(ProcessesContract, ACommandLineNamesItsProgram)
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

TEST_P(ProcessesContract, AnApplicationIsNotSearchedFor)
{
    PROCESS_INFORMATION started{};
    EXPECT_TRUE(Create(Shell().c_str(), "anything /c exit 3", started)) << LastError();
    Finish(started);
    EXPECT_EQ(ErrorOfCreating("cmd.exe", "cmd.exe /c exit 3"), Error(ERROR_FILE_NOT_FOUND))
        << "the current folder is not the system's";
}

TEST_P(ProcessesContract, AnApplicationNeedsNoCommandLine)
{
    if (!IsSimulation())
        GTEST_SKIP() << "a command interpreter without a command would wait for one";
    PROCESS_INFORMATION started{};
    EXPECT_TRUE(Create(Shell().c_str(), nullptr, started)) << LastError();
    Finish(started);
}

TEST_P(ProcessesContract, MissingProgramsAreMissed)
{
    EXPECT_EQ(ErrorOfCreating(nullptr, "calvix-no-such-program.exe"), Error(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ErrorOfCreating(nullptr, "calvix-no-such-program /c"), Error(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ErrorOfCreating(nullptr, "\"C:\\windows\\calvix-no-such-program.exe\""), Error(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ErrorOfCreating("C:\\windows\\calvix-no-such-program.exe", nullptr), Error(ERROR_FILE_NOT_FOUND));
}

TEST_P(ProcessesContract, SomethingHasToBeNamed)
{
    if (!IsSimulation())
        GTEST_SKIP() << "Wine looks into the missing command line, and Windows promises no answer";
    EXPECT_EQ(ErrorOfCreating(nullptr, nullptr), Error(ERROR_INVALID_PARAMETER));
}

// Waiting for processes and ending them.

TEST_P(ProcessesContract, AProcessHasTwoHandlesAndTwoNumbers)
{
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    EXPECT_NE(started.hProcess, nullptr);
    EXPECT_NE(started.hThread, nullptr);
    EXPECT_NE(started.hProcess, started.hThread);
    EXPECT_NE(started.dwProcessId, 0u);
    EXPECT_NE(started.dwThreadId, 0u);
    EXPECT_NE(started.dwProcessId, started.dwThreadId);
    Finish(started);
}

TEST_P(ProcessesContract, WhatHasEndedNeedsNoWaiting)
{
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    for (const HANDLE handle : {started.hProcess, started.hThread, started.hProcess})
        EXPECT_EQ(Processes().WaitForSingleObject(handle, INFINITE), Error(WAIT_OBJECT_0));
    for (const HANDLE handle : {started.hProcess, started.hThread})
        EXPECT_EQ(Processes().WaitForSingleObject(handle, 0), Error(WAIT_OBJECT_0));
    Finish(started);
}

TEST_P(ProcessesContract, WhatRunsIsNotWaitedForLongerThanAsked)
{
    const PROCESS_INFORMATION started = Start(Endless());
    LeaveUnlikelyError();
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, 0), Error(WAIT_TIMEOUT));
    EXPECT_EQ(Processes().WaitForSingleObject(started.hThread, 1), Error(WAIT_TIMEOUT));
    EXPECT_EQ(Processes().WaitForSingleObject(Processes().GetCurrentProcess(), 0), Error(WAIT_TIMEOUT));
    EXPECT_EQ(LastError(), kUnlikelyError) << "running out of time is no failure";
    EndAndFinish(started);
}

TEST_P(ProcessesContract, WaitingTakesAHandle)
{
    EXPECT_EQ(ErrorOfWaiting(nullptr), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOfWaiting(NobodysHandle()), Error(ERROR_INVALID_HANDLE));
}

TEST_P(ProcessesContract, AProcessOutlivesItsHandles)
{
    const PROCESS_INFORMATION started = Start(Endless());
    const HANDLE opened = Processes().OpenProcess(PROCESS_TERMINATE | kSynchronize, FALSE, started.dwProcessId);
    if (opened == nullptr)
    {
        EndAndFinish(started);
        FAIL();
    }
    Close(started.hThread);
    Close(started.hProcess);
    EXPECT_EQ(Processes().WaitForSingleObject(opened, 0), Error(WAIT_TIMEOUT));
    EXPECT_TRUE(Processes().TerminateProcess(opened, 17));
    EXPECT_EQ(Processes().WaitForSingleObject(opened, INFINITE), Error(WAIT_OBJECT_0));
    Close(opened);
}

TEST_P(ProcessesContract, AHandleIsGoodForWhatItWasOpenedForOnly)
{
    const PROCESS_INFORMATION started = Start(Endless());
    const HANDLE waiting = Processes().OpenProcess(kSynchronize, FALSE, started.dwProcessId);
    EXPECT_EQ(Processes().WaitForSingleObject(waiting, 0), Error(WAIT_TIMEOUT));
    EXPECT_EQ(ErrorOf([&] { return Processes().TerminateProcess(waiting, 1); }), Error(ERROR_ACCESS_DENIED));
    const HANDLE ending = Processes().OpenProcess(PROCESS_TERMINATE, FALSE, started.dwProcessId);
    EXPECT_EQ(ErrorOfWaiting(ending), Error(ERROR_ACCESS_DENIED));
    EXPECT_TRUE(Processes().TerminateProcess(ending, 1));
    Close(waiting);
    Close(ending);
    Finish(started);
}

TEST_P(ProcessesContract, WhatHasEndedCannotBeEnded)
{
    if (IsWine())
        GTEST_SKIP() << "Wine ends a process as often as one likes";
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, INFINITE), Error(WAIT_OBJECT_0));
    EXPECT_EQ(ErrorOf([&] { return Processes().TerminateProcess(started.hProcess, 1); }), Error(ERROR_ACCESS_DENIED));
    Finish(started);
}

TEST_P(ProcessesContract, AnEndedProcessIsThereAsLongAsItsHandles)
{
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    EXPECT_EQ(Processes().WaitForSingleObject(started.hProcess, INFINITE), Error(WAIT_OBJECT_0));
    const HANDLE opened = Processes().OpenProcess(kSynchronize, FALSE, started.dwProcessId);
    EXPECT_NE(opened, nullptr) << LastError();
    Close(opened);
    Finish(started);
}

TEST_P(ProcessesContract, NumbersWithoutAProcessAreNotFound)
{
    for (const DWORD id : {Error(0), Error(0x7FFFFFFC)})
        EXPECT_EQ(ErrorOf([&] { return Processes().OpenProcess(kSynchronize, FALSE, id); }),
                  Error(ERROR_INVALID_PARAMETER))
            << id;
}

TEST_P(ProcessesContract, NullIsNoHandle)
{
    EXPECT_EQ(ErrorOf([&] { return Processes().TerminateProcess(nullptr, 1); }), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Processes().CloseHandle(nullptr); }), Error(ERROR_INVALID_HANDLE));
    EXPECT_EQ(ErrorOf([&] { return Processes().CloseHandle(NobodysHandle()); }), Error(ERROR_INVALID_HANDLE));
}

TEST_P(ProcessesContract, TheOwnProcessHasAHandleThatNeedsNoClosing)
{
    const HANDLE own = Processes().GetCurrentProcess();
    EXPECT_EQ(own, reinterpret_cast<HANDLE>(~UINT_PTR{0}));
    EXPECT_TRUE(Processes().CloseHandle(own)) << "and takes it";
    EXPECT_EQ(Processes().WaitForSingleObject(own, 0), Error(WAIT_TIMEOUT));
}

// Modules.

TEST_P(ProcessesContract, ThePathIsWhole)
{
    const std::string path = Path();
    EXPECT_EQ(path.substr(1, 2), ":\\") << path;
    EXPECT_TRUE(path.ends_with(".exe")) << path;
}

TEST_P(ProcessesContract, APathNeedsRoomForItsTerminator)
{
    const std::string path = Path();
    const auto length = static_cast<DWORD>(path.size());
    std::vector<char> room(path.size() + 2, '#');
    EXPECT_EQ(Processes().GetModuleFileNameA(nullptr, room.data(), length + 1), length);
    EXPECT_STREQ(room.data(), path.c_str());
    EXPECT_EQ(room.back(), '#');
}

TEST_P(ProcessesContract, WithTooLittleRoomAPathIsCutAndTerminated)
{
    const std::string path = Path();
    for (const DWORD size : {static_cast<DWORD>(path.size()), Error(4), Error(1)})
    {
        std::vector<char> room(path.size() + 2, '#');
        LeaveUnlikelyError();
        EXPECT_EQ(Processes().GetModuleFileNameA(nullptr, room.data(), size), size);
        EXPECT_EQ(LastError(), Error(ERROR_INSUFFICIENT_BUFFER));
        // Wine uses the last place for the path, as Windows XP did.
        const std::string kept = path.substr(0, size - 1) + OrOnWine('\0', path[size - 1]);
        EXPECT_EQ(std::string(room.data(), size), kept);
        EXPECT_EQ(room[size], '#');
    }
}

TEST_P(ProcessesContract, WithoutRoomNothingIsWritten)
{
    char untouched = '#';
    EXPECT_EQ(Processes().GetModuleFileNameA(nullptr, &untouched, 0), 0u);
    EXPECT_EQ(untouched, '#');
}

TEST_P(ProcessesContract, ModulesAreFoundByName)
{
    const HMODULE kernel = Processes().GetModuleHandleA("kernel32.dll");
    ASSERT_NE(kernel, nullptr) << LastError();
    EXPECT_EQ(Processes().GetModuleHandleA("KERNEL32.DLL"), kernel);
    EXPECT_EQ(Processes().GetModuleHandleA("kernel32"), kernel) << "the extension may be left out";
    const std::string path = Path(kernel);
    EXPECT_NE(path.find("\\"), std::string::npos);
    EXPECT_TRUE(path.ends_with("ernel32.dll") || path.ends_with("ERNEL32.DLL")) << path;
}

TEST_P(ProcessesContract, TheProgramIsAModuleToo)
{
    const HMODULE program = Processes().GetModuleHandleA(nullptr);
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(Path(program), Path());
}

TEST_P(ProcessesContract, UnknownModulesAreMissed)
{
    for (const char* name : {"calvix-no-such-library.dll", "calvix-no-such-library", "kernel32.exe"})
        EXPECT_EQ(ErrorOf([&] { return Processes().GetModuleHandleA(name); }), Error(ERROR_MOD_NOT_FOUND)) << name;
    std::vector<char> room(1024);
    const auto nobodys = reinterpret_cast<HMODULE>(UINT_PTR{0x10000});
    EXPECT_EQ(ErrorOf([&] { return Processes().GetModuleFileNameA(nobodys, room.data(), 1024); }),
              Error(ERROR_MOD_NOT_FOUND));
}

TEST_P(ProcessesContract, UnknownFunctionsAreMissed)
{
    const HMODULE kernel = Processes().GetModuleHandleA("kernel32.dll");
    for (const char* name : {"CalvixNoSuchExport", "isWow64process", ""})
        EXPECT_EQ(ErrorOf([&] { return Processes().GetProcAddress(kernel, name); }), Error(ERROR_PROC_NOT_FOUND))
            << name;
}

/// The one function that is asked for in this way.
TEST_P(ProcessesContract, AFunctionCanBeCalledByItsAddress)
{
    using IsWow64 = BOOL(WINAPI*)(HANDLE, BOOL*);
    const HMODULE kernel = Processes().GetModuleHandleA("kernel32.dll");
    const FARPROC address = Processes().GetProcAddress(kernel, "IsWow64Process");
    ASSERT_NE(address, nullptr) << LastError();
    // The cast through void(*)() shows the compiler that the change of the function's type is intended.
    const auto isWow64 = reinterpret_cast<IsWow64>(reinterpret_cast<void (*)()>(address));
    BOOL answer = 7;
    EXPECT_TRUE(isWow64(Processes().GetCurrentProcess(), &answer));
    EXPECT_EQ(answer, FALSE) << "this is a 64-bit program";
}

} // namespace

} // namespace calvix::test::processes_contract_test
