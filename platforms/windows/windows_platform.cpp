#include "platform/platform.h"

#include "windows/bound.h"

#include <objbase.h>

namespace calvix::windows
{

namespace
{

/// Absent on a Windows Server without the wireless feature: then every operation answers with ERROR_MOD_NOT_FOUND. Looked
/// for beside the program first: a simulation may replace the service there.
constinit const OptionalLibrary wlanapi(L"wlanapi.dll", LOAD_LIBRARY_SEARCH_APPLICATION_DIR);
/// Every Windows has it, but reduced ones do not have all of it, and an import that is missing would keep the program from
/// starting.
constinit const OptionalLibrary powrprof(L"powrprof.dll");
/// Large, brings others with it, and only the reachability probe needs it.
constinit const OptionalLibrary wininet(L"wininet.dll");
/// Every Windows has it, but it brings a dozen others, and only the listings write a GUID.
constinit const OptionalLibrary ole32(L"ole32.dll");

/// The legacy scheme texts are always wide, whatever text type the SDK's prototype takes in this build.
using WritePwrSchemeFunction = BOOLEAN(WINAPI*)(UINT*, const wchar_t*, const wchar_t*, POWER_POLICY*);

constexpr platform::WlanService kWlanService{
    .WlanOpenHandle = Exported<wlanapi, decltype(&::WlanOpenHandle), "WlanOpenHandle">(),
    .WlanCloseHandle = Exported<wlanapi, decltype(&::WlanCloseHandle), "WlanCloseHandle">(),
    .WlanEnumInterfaces = Exported<wlanapi, decltype(&::WlanEnumInterfaces), "WlanEnumInterfaces">(),
    .WlanScan = Exported<wlanapi, decltype(&::WlanScan), "WlanScan">(),
    .WlanGetAvailableNetworkList =
        Exported<wlanapi, decltype(&::WlanGetAvailableNetworkList), "WlanGetAvailableNetworkList">(),
    .WlanGetNetworkBssList = Exported<wlanapi, decltype(&::WlanGetNetworkBssList), "WlanGetNetworkBssList">(),
    .WlanQueryInterface = Exported<wlanapi, decltype(&::WlanQueryInterface), "WlanQueryInterface">(),
    .WlanSetInterface = Exported<wlanapi, decltype(&::WlanSetInterface), "WlanSetInterface">(),
    .WlanQueryAutoConfigParameter =
        Exported<wlanapi, decltype(&::WlanQueryAutoConfigParameter), "WlanQueryAutoConfigParameter">(),
    .WlanGetProfileList = Exported<wlanapi, decltype(&::WlanGetProfileList), "WlanGetProfileList">(),
    .WlanGetProfile = Exported<wlanapi, decltype(&::WlanGetProfile), "WlanGetProfile">(),
    .WlanSetProfile = Exported<wlanapi, decltype(&::WlanSetProfile), "WlanSetProfile">(),
    .WlanDeleteProfile = Exported<wlanapi, decltype(&::WlanDeleteProfile), "WlanDeleteProfile">(),
    .WlanSetProfilePosition = Exported<wlanapi, decltype(&::WlanSetProfilePosition), "WlanSetProfilePosition">(),
    .WlanConnect = Exported<wlanapi, decltype(&::WlanConnect), "WlanConnect">(),
    .WlanDisconnect = Exported<wlanapi, decltype(&::WlanDisconnect), "WlanDisconnect">(),
    .WlanRegisterNotification = Exported<wlanapi, decltype(&::WlanRegisterNotification), "WlanRegisterNotification">(),
    .WlanIhvControl = Exported<wlanapi, decltype(&::WlanIhvControl), "WlanIhvControl">(),
    .WlanSetSecuritySettings = Exported<wlanapi, decltype(&::WlanSetSecuritySettings), "WlanSetSecuritySettings">(),
    .WlanReasonCodeToString = Exported<wlanapi, decltype(&::WlanReasonCodeToString), "WlanReasonCodeToString">(),
    .WlanFreeMemory = Exported<wlanapi, decltype(&::WlanFreeMemory), "WlanFreeMemory">(),
};

constexpr platform::ServiceControl kServiceControl{
    .OpenSCManagerA = Imported([](auto... arguments) { return ::OpenSCManagerA(arguments...); }),
    .OpenServiceA = Imported([](auto... arguments) { return ::OpenServiceA(arguments...); }),
    .QueryServiceStatus = Imported([](auto... arguments) { return ::QueryServiceStatus(arguments...); }),
    .StartServiceA = Imported([](auto... arguments) { return ::StartServiceA(arguments...); }),
    .CloseServiceHandle = Imported([](auto... arguments) { return ::CloseServiceHandle(arguments...); }),
};

constexpr platform::Power kPower{
    .CallNtPowerInformation = Exported<powrprof, decltype(&::CallNtPowerInformation), "CallNtPowerInformation">(),
    .GetActivePwrScheme = Exported<powrprof, decltype(&::GetActivePwrScheme), "GetActivePwrScheme">(),
    .ReadPwrScheme = Exported<powrprof, decltype(&::ReadPwrScheme), "ReadPwrScheme">(),
    .WritePwrScheme = Exported<powrprof, WritePwrSchemeFunction, "WritePwrScheme">(),
    .SetActivePwrScheme = Exported<powrprof, decltype(&::SetActivePwrScheme), "SetActivePwrScheme">(),
    .PowerEnumerate = Exported<powrprof, decltype(&::PowerEnumerate), "PowerEnumerate">(),
    .PowerReadFriendlyName = Exported<powrprof, decltype(&::PowerReadFriendlyName), "PowerReadFriendlyName">(),
    .PowerGetActiveScheme = Exported<powrprof, decltype(&::PowerGetActiveScheme), "PowerGetActiveScheme">(),
    .PowerDuplicateScheme = Exported<powrprof, decltype(&::PowerDuplicateScheme), "PowerDuplicateScheme">(),
    .PowerWriteFriendlyName = Exported<powrprof, decltype(&::PowerWriteFriendlyName), "PowerWriteFriendlyName">(),
    .PowerWriteACValueIndex = Exported<powrprof, decltype(&::PowerWriteACValueIndex), "PowerWriteACValueIndex">(),
    .PowerSetActiveScheme = Exported<powrprof, decltype(&::PowerSetActiveScheme), "PowerSetActiveScheme">(),
    .IsPwrSuspendAllowed = Exported<powrprof, decltype(&::IsPwrSuspendAllowed), "IsPwrSuspendAllowed">(),
    .IsPwrHibernateAllowed = Exported<powrprof, decltype(&::IsPwrHibernateAllowed), "IsPwrHibernateAllowed">(),
    .IsPwrShutdownAllowed = Exported<powrprof, decltype(&::IsPwrShutdownAllowed), "IsPwrShutdownAllowed">(),
    .SetSuspendState = Exported<powrprof, decltype(&::SetSuspendState), "SetSuspendState">(),
    .IsSystemResumeAutomatic = Imported([](auto... arguments) { return ::IsSystemResumeAutomatic(arguments...); }),
    .LocalFree = Imported([](auto... arguments) { return ::LocalFree(arguments...); }),
};

constexpr platform::Security kSecurity{
    .OpenProcessToken = Imported([](auto... arguments) { return ::OpenProcessToken(arguments...); }),
    .LookupPrivilegeValueA = Imported([](auto... arguments) { return ::LookupPrivilegeValueA(arguments...); }),
    .AdjustTokenPrivileges = Imported([](auto... arguments) { return ::AdjustTokenPrivileges(arguments...); }),
};

constexpr platform::Processes kProcesses{
    .GetCurrentProcess = Imported([](auto... arguments) { return ::GetCurrentProcess(arguments...); }),
    .CreateProcessA = Imported([](auto... arguments) { return ::CreateProcessA(arguments...); }),
    .WaitForSingleObject = Imported([](auto... arguments) { return ::WaitForSingleObject(arguments...); }),
    .OpenProcess = Imported([](auto... arguments) { return ::OpenProcess(arguments...); }),
    .TerminateProcess = Imported([](auto... arguments) { return ::TerminateProcess(arguments...); }),
    .CloseHandle = Imported([](auto... arguments) { return ::CloseHandle(arguments...); }),
    .GetModuleFileNameA = Imported([](auto... arguments) { return ::GetModuleFileNameA(arguments...); }),
    .GetModuleHandleA = Imported([](auto... arguments) { return ::GetModuleHandleA(arguments...); }),
    .GetProcAddress = Imported([](auto... arguments) { return ::GetProcAddress(arguments...); }),
};

constexpr platform::Internet kInternet{
    .InternetSetOptionA = Exported<wininet, decltype(&::InternetSetOptionA), "InternetSetOptionA">(),
    .InternetCheckConnectionA = Exported<wininet, decltype(&::InternetCheckConnectionA), "InternetCheckConnectionA">(),
};

constexpr platform::Text kText{
    .MultiByteToWideChar = Imported([](auto... arguments) { return ::MultiByteToWideChar(arguments...); }),
    .WideCharToMultiByte = Imported([](auto... arguments) { return ::WideCharToMultiByte(arguments...); }),
    .StringFromGUID2 = Exported<ole32, decltype(&::StringFromGUID2), "StringFromGUID2">(),
};

constexpr platform::Clock kClock{
    .Sleep = Imported([](auto... arguments) { return ::Sleep(arguments...); }),
    .FileTimeToSystemTime = Imported([](auto... arguments) { return ::FileTimeToSystemTime(arguments...); }),
};

constexpr platform::DebuggerOutput kDebuggerOutput{
    .OutputDebugStringA = Imported([](auto... arguments) { return ::OutputDebugStringA(arguments...); }),
};

/// The calling thread's last error. Nothing in this provider changes it after an operation.
constexpr platform::LastError kLastError{
    .GetLastError = Imported([](auto... arguments) { return ::GetLastError(arguments...); }),
};

/// The operating system. It has no state of its own, so any number of threads may use it, and nothing to destroy: a host
/// may end its use of the library as late as in its own exit handlers.
constinit platform::Platform operatingSystem{kWlanService, kServiceControl, kPower, kSecurity,       kProcesses,
                                             kInternet,    kText,           kClock, kDebuggerOutput, kLastError};

} // namespace

} // namespace calvix::windows

namespace calvix::platform
{

Platform& DefaultPlatform()
{
    return windows::operatingSystem;
}

} // namespace calvix::platform
