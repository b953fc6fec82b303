#include "platform/platform.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace
{

using calvix::platform::errors;
using calvix::platform::processes;

/// The command interpreter, started without a window.
PROCESS_INFORMATION Start(std::string commandLine)
{
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    EXPECT_TRUE(processes().CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                                           nullptr, nullptr, &startup, &started))
        << errors().GetLastError();
    return started;
}

DWORD ExitCodeOf(HANDLE process)
{
    DWORD code = STILL_ACTIVE;
    EXPECT_TRUE(::GetExitCodeProcess(process, &code));
    return code;
}

TEST(WindowsProcesses, NamesTheProgramAndItsModules)
{
    std::array<char, MAX_PATH> path{};
    const DWORD length = processes().GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
    ASSERT_GT(length, 0U);
    EXPECT_TRUE(std::string(path.data(), length).ends_with("calvix_windows_tests.exe")) << path.data();

    const HMODULE kernel = processes().GetModuleHandleA("kernel32.dll");
    ASSERT_NE(kernel, nullptr);
    EXPECT_NE(processes().GetProcAddress(kernel, "IsWow64Process"), nullptr);
    EXPECT_EQ(processes().GetProcAddress(kernel, "CalvixNoSuchExport"), nullptr);
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_PROC_NOT_FOUND));
    EXPECT_EQ(processes().GetModuleHandleA("calvix-no-such-library.dll"), nullptr);
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(WindowsProcesses, StartsAProcessAndWaitsForIt)
{
    const PROCESS_INFORMATION started = Start("cmd.exe /c exit 3");
    EXPECT_EQ(processes().WaitForSingleObject(started.hProcess, INFINITE), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_EQ(ExitCodeOf(started.hProcess), 3U);
    EXPECT_TRUE(processes().CloseHandle(started.hThread));
    EXPECT_TRUE(processes().CloseHandle(started.hProcess));
}

TEST(WindowsProcesses, TerminatesAProcessByItsId)
{
    // Counts without end.
    const PROCESS_INFORMATION started = Start("cmd.exe /c for /l %i in (1,0,2) do @rem");
    const HANDLE opened = processes().OpenProcess(PROCESS_TERMINATE, FALSE, started.dwProcessId);
    EXPECT_NE(opened, nullptr) << errors().GetLastError();
    EXPECT_TRUE(processes().TerminateProcess(opened, 17));
    // Ends it in any case, so that a failure above leaves nothing behind; an ended process keeps its exit code.
    ::TerminateProcess(started.hProcess, 1);
    EXPECT_EQ(processes().WaitForSingleObject(started.hProcess, INFINITE), static_cast<DWORD>(WAIT_OBJECT_0));
    EXPECT_EQ(ExitCodeOf(started.hProcess), 17U);
    for (const HANDLE handle : {opened, started.hThread, started.hProcess})
        EXPECT_TRUE(processes().CloseHandle(handle));
}

TEST(WindowsProcesses, ReportsAProgramThatDoesNotExist)
{
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    std::string commandLine = "calvix-no-such-program.exe";
    EXPECT_FALSE(processes().CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                            &startup, &started));
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

} // namespace
