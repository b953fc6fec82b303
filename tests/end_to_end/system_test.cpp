// What has nothing to do with Wi-Fi: real processes, this process's real token, the computer's own power facts. Nothing
// here changes the computer. The scenario is that of a stopped service, to show that it does not matter.

#include "end_to_end/host.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace calvix::test::end_to_end_system_test
{
namespace
{

std::string OwnFolder()
{
    char path[512] = "";
    ::GetModuleFileNameA(nullptr, path, sizeof(path));
    const std::string text = path;
    return text.substr(0, text.rfind('\\') + 1);
}

std::string FileText(const std::string& path)
{
    std::ifstream file(path);
    std::string text;
    std::getline(file, text);
    return text;
}

bool HoldsPrivilege(const char* name, DWORD attribute)
{
    HANDLE token = nullptr;
    LUID luid{};
    BOOL isHeld = FALSE;
    if (::LookupPrivilegeValueA(nullptr, name, &luid) == FALSE ||
        ::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE)
        return false;
    DWORD size = 0;
    ::GetTokenInformation(token, TokenPrivileges, nullptr, 0, &size);
    std::vector<char> memory(size);
    if (::GetTokenInformation(token, TokenPrivileges, memory.data(), size, &size) != FALSE)
    {
        const auto* const held = reinterpret_cast<const TOKEN_PRIVILEGES*>(memory.data());
        for (DWORD index = 0; index < held->PrivilegeCount; ++index)
        {
            const LUID_AND_ATTRIBUTES& each = held->Privileges[index];
            const bool isThis = each.Luid.LowPart == luid.LowPart && each.Luid.HighPart == luid.HighPart;
            isHeld = isHeld || (isThis && (attribute == 0 || (each.Attributes & attribute) != 0));
        }
    }
    ::CloseHandle(token);
    return isHeld != FALSE;
}

/// A program that stays until it is ended.
class StayingProgram
{
public:
    StayingProgram()
    {
        const std::string event = "calvix companion of " + std::to_string(::GetCurrentProcessId());
        const HANDLE started = ::CreateEventA(nullptr, TRUE, FALSE, event.c_str());
        std::string commandLine = "\"" + OwnFolder() + "companion.exe\" --stay \"" + event + "\"";
        STARTUPINFOA startup{};
        startup.cb = sizeof(startup);
        EXPECT_TRUE(::CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                     &startup, &m_process));
        EXPECT_EQ(::WaitForSingleObject(started, againstHangs), WAIT_OBJECT_0);
        ::CloseHandle(started);
    }
    ~StayingProgram()
    {
        ::TerminateProcess(m_process.hProcess, 99);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    StayingProgram(const StayingProgram&) = delete;
    StayingProgram& operator=(const StayingProgram&) = delete;

    DWORD Id() const { return m_process.dwProcessId; }

    /// Its exit code, once it has ended.
    DWORD AwaitEnd() const
    {
        EXPECT_EQ(::WaitForSingleObject(m_process.hProcess, againstHangs), WAIT_OBJECT_0);
        DWORD exitCode = 0;
        ::GetExitCodeProcess(m_process.hProcess, &exitCode);
        return exitCode;
    }

private:
    static constexpr DWORD againstHangs = 600'000;

    PROCESS_INFORMATION m_process{};
};

TEST(System, OwnFolderIsThatOfTheProgram)
{
    EXPECT_EQ(Manager().GetAppPath(), OwnFolder());
    EXPECT_TRUE(std::filesystem::exists(std::string(Manager().GetAppPath()) + "wlanapi.dll"));
}

TEST(System, CommandLineRunsToItsEnd)
{
    const std::string left = OwnFolder() + "left by command line.txt";
    std::filesystem::remove(left);
    std::string commandLine = "\"" + OwnFolder() + "companion.exe\" --leave \"" + left + "\"";
    Manager().CreateProcRunCmd(commandLine.data());
    EXPECT_EQ(FileText(left), "done");
    std::filesystem::remove(left);
}

TEST(System, ProgramBesideTheHostRunsToItsEnd)
{
    const std::string left = OwnFolder() + "companion.ran";
    std::filesystem::remove(left);
    char name[] = "companion.exe";
    EXPECT_EQ(Manager().CreateProcRunExe(name), 1) << "with any exit code";
    EXPECT_EQ(FileText(left), "done");
    std::filesystem::remove(left);
}

TEST(System, ProgramThatIsNotBesideTheHostIsNotStarted)
{
    char name[] = "no-such-program.exe";
    EXPECT_EQ(Manager().CreateProcRunExe(name), 0);
}

TEST(System, ProcessIsEndedByItsId)
{
    const StayingProgram program;
    Manager().CloseProcess(program.Id());
    EXPECT_EQ(program.AwaitEnd(), 0u);
}

TEST(System, AProcessThatDoesNotExistIsIgnored)
{
    const StayingProgram bystander;
    Manager().CloseProcess(0xfffffff0);
    Manager().CloseProcess(bystander.Id());
    EXPECT_EQ(bystander.AwaitEnd(), 0u);
}

TEST(System, ShutdownPrivilegeIsEnabledInTheToken)
{
    EXPECT_TRUE(HoldsPrivilege("SeShutdownPrivilege", 0)) << "every user of a computer may switch it off";
    EXPECT_EQ(Manager().GetPrivileges(), 1);
    EXPECT_TRUE(HoldsPrivilege("SeShutdownPrivilege", SE_PRIVILEGE_ENABLED));
}

TEST(System, OtherPrivilegesByName)
{
    EXPECT_TRUE(Manager().EnablePriviledge("SeChangeNotifyPrivilege")) << "everybody holds it";
    EXPECT_TRUE(HoldsPrivilege("SeChangeNotifyPrivilege", SE_PRIVILEGE_ENABLED));
    EXPECT_TRUE(Manager().EnablePriviledge("SeNoSuchPrivilege")) << "no such privilege counts as enabled";
    EXPECT_FALSE(HoldsPrivilege("SeCreateTokenPrivilege", 0));
    EXPECT_FALSE(Manager().EnablePriviledge("SeCreateTokenPrivilege")) << "no account holds it";
}

TEST(System, ThisIsA64BitProcess)
{
    EXPECT_EQ(Manager().IsWow64(), 0);
}

TEST(System, PowerFactsAreThePlatformsOwn)
{
    SYSTEM_POWER_POLICY policy{};
    EXPECT_EQ(Manager().GetSystemPowerPolicy(),
              ::CallNtPowerInformation(SystemPowerPolicyDc, nullptr, 0, &policy, sizeof(policy)));
    unsigned long long lastWake = 0;
    ::CallNtPowerInformation(LastWakeTime, nullptr, 0, &lastWake, sizeof(lastWake));
    EXPECT_EQ(Manager().GetLastWakeTime(), lastWake);
    unsigned long long lastSleep = 0;
    ::CallNtPowerInformation(LastSleepTime, nullptr, 0, &lastSleep, sizeof(lastSleep));
    EXPECT_EQ(Manager().GetLastSleepTime(), lastSleep);
    EXPECT_EQ(Manager().IsPowerHibernateAllowed(), ::IsSystemResumeAutomatic());
    SYSTEM_POWER_CAPABILITIES capabilities{};
    ::CallNtPowerInformation(SystemPowerCapabilities, nullptr, 0, &capabilities, sizeof(capabilities));
    // The SDK of this compiler has no name for the byte.
    constexpr std::size_t alwaysOnAlwaysConnected = offsetof(SYSTEM_POWER_CAPABILITIES, FastSystemS4) + 3;
    EXPECT_EQ(Manager().IsSurpportAoAc(), reinterpret_cast<const BYTE*>(&capabilities)[alwaysOnAlwaysConnected]);
}

} // namespace
} // namespace calvix::test::end_to_end_system_test
