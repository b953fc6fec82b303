#pragma once

#include "provider.h"

#include <string>

namespace calvix::test
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
};

} // namespace calvix::test
