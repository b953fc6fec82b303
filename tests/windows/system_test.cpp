// The smaller facilities: services, tokens, time, debugger output, power, internet.

#include "platform/platform.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace
{

using calvix::platform::clock;
using calvix::platform::debugger;
using calvix::platform::errors;
using calvix::platform::internet;
using calvix::platform::power;
using calvix::platform::processes;
using calvix::platform::security;
using calvix::platform::services;

/// Text sent to the debugger reaches a process that has none as an exception, which is caught here.
std::string g_seenByDebugger;

LONG CALLBACK CatchDebuggerOutput(EXCEPTION_POINTERS* pointers)
{
    constexpr DWORD kDebuggerText = 0x40010006;
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (record.ExceptionCode == kDebuggerText && record.NumberParameters >= 2)
        g_seenByDebugger += reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    return EXCEPTION_CONTINUE_SEARCH;
}

TEST(WindowsDebuggerOutput, ReachesTheDebugger)
{
    void* const handler = ::AddVectoredExceptionHandler(1, &CatchDebuggerOutput);
    g_seenByDebugger.clear();
    debugger().OutputDebugStringA("one line");
    debugger().OutputDebugStringA("\n");
    ::RemoveVectoredExceptionHandler(handler);
    EXPECT_EQ(g_seenByDebugger, "one line\n");
}

TEST(WindowsLastError, IsTheCallingThreads)
{
    ::SetLastError(ERROR_BUSY);
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_BUSY));
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_BUSY)) << "asking changes nothing";
}

TEST(WindowsServiceControl, OpensTheManagerAndMissesAnUnknownService)
{
    const SC_HANDLE manager = services().OpenSCManagerA(nullptr, nullptr, SC_MANAGER_CONNECT);
    ASSERT_NE(manager, nullptr) << errors().GetLastError();
    EXPECT_EQ(services().OpenServiceA(manager, "CalvixNoSuchService", SERVICE_QUERY_STATUS), nullptr);
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_SERVICE_DOES_NOT_EXIST));
    EXPECT_TRUE(services().CloseServiceHandle(manager));
}

TEST(WindowsServiceControl, RejectsAHandleThatIsNone)
{
    SERVICE_STATUS status{};
    EXPECT_FALSE(services().QueryServiceStatus(nullptr, &status));
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
    EXPECT_FALSE(services().StartServiceA(nullptr, 0, nullptr));
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
}

TEST(WindowsSecurity, AdjustsAPrivilegeOfThisProcess)
{
    HANDLE token = nullptr;
    ASSERT_TRUE(
        security().OpenProcessToken(processes().GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token));
    TOKEN_PRIVILEGES wanted{};
    wanted.PrivilegeCount = 1;
    ASSERT_TRUE(security().LookupPrivilegeValueA(nullptr, "SeChangeNotifyPrivilege", &wanted.Privileges[0].Luid));
    EXPECT_EQ(wanted.Privileges[0].Luid.LowPart, 23U) << "well-known, the same on every Windows";
    wanted.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    EXPECT_TRUE(security().AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr));
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_SUCCESS)) << "everybody holds this privilege";
    EXPECT_TRUE(processes().CloseHandle(token));
}

TEST(WindowsSecurity, ReportsAnUnknownPrivilege)
{
    LUID luid{};
    EXPECT_FALSE(security().LookupPrivilegeValueA(nullptr, "CalvixNoSuchPrivilege", &luid));
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_NO_SUCH_PRIVILEGE));
}

TEST(WindowsClock, ConvertsAFileTime)
{
    constexpr FILETIME kUnixEpoch = {0xD53E8000, 0x019DB1DE};
    SYSTEMTIME time{};
    ASSERT_TRUE(clock().FileTimeToSystemTime(&kUnixEpoch, &time));
    EXPECT_EQ(time.wYear, 1970);
    EXPECT_EQ(time.wMonth, 1);
    EXPECT_EQ(time.wDay, 1);
    EXPECT_EQ(time.wHour, 0);
}

TEST(WindowsClock, WaitsAtLeastAsLongAsAsked)
{
    clock().Sleep(0);
    constexpr DWORD kWait = 30;
    // The tick counter moves in steps of up to 16 ms.
    constexpr DWORD kTick = 16;
    const ULONGLONG start = ::GetTickCount64();
    clock().Sleep(kWait);
    EXPECT_GE(::GetTickCount64() - start, kWait - kTick);
}

TEST(WindowsPower, KnowsWhatThePowerHardwareCan)
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    EXPECT_EQ(power().CallNtPowerInformation(SystemPowerCapabilities, nullptr, 0, &capabilities, sizeof capabilities),
              0);
    EXPECT_LT(power().CallNtPowerInformation(SystemPowerCapabilities, nullptr, 0, &capabilities, 1), 0)
        << "the buffer is too small";
}

/// A computer may lack this export (Wine 8 does), and where it is there, no computer has this scheme: it fails either
/// way, and changes nothing.
TEST(WindowsPower, SettingOfAnUnknownSchemeIsAFailedCall)
{
    constexpr GUID kNobodysScheme = {0xcafe0001, 0x0002, 0x0003, {4, 5, 6, 7, 8, 9, 10, 11}};
    const DWORD error = power().PowerWriteACValueIndex(nullptr, &kNobodysScheme, &calvix::power_guid::sleep_subgroup,
                                                       &calvix::power_guid::standby_timeout, 0);
    EXPECT_NE(error, static_cast<DWORD>(ERROR_SUCCESS));
    if (::GetProcAddress(::GetModuleHandleW(L"powrprof.dll"), "PowerWriteACValueIndex") == nullptr)
    {
        EXPECT_EQ(error, static_cast<DWORD>(ERROR_PROC_NOT_FOUND));
    }
}

TEST(WindowsInternet, ReportsAnOptionThatDoesNotExist)
{
    DWORD value = 0;
    EXPECT_FALSE(internet().InternetSetOptionA(nullptr, 0xFFFFFF, &value, sizeof value));
    EXPECT_NE(errors().GetLastError(), static_cast<DWORD>(ERROR_SUCCESS));
}

} // namespace
