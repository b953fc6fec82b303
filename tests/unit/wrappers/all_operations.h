#pragma once

#include "platform/platform.h"

#include <cstdint>
#include <functional>
#include <type_traits>
#include <vector>

namespace calvix::test
{

enum class Failing
{
    errorNumber,
    status,
    reasoned, ///< FALSE, null or no characters, and GetLastError
    never
};

/// Every operation of the platform, with null for whatever it takes; `call` gives the result as a number.
struct Operation
{
    const char* name;
    Failing failing;
    std::function<long long(platform::Platform&)> call;
};

template <typename Result>
long long AsNumber(Result result)
{
    if constexpr (std::is_pointer_v<Result>)
        return static_cast<long long>(reinterpret_cast<std::intptr_t>(result));
    else
        return static_cast<long long>(result);
}

inline std::vector<Operation> AllOperations()
{
    return {
        {"WlanOpenHandle", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.wlan().WlanOpenHandle({}, nullptr, nullptr, nullptr)); }},
        {"WlanCloseHandle", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.wlan().WlanCloseHandle(nullptr, nullptr)); }},
        {"WlanEnumInterfaces", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.wlan().WlanEnumInterfaces(nullptr, nullptr, nullptr)); }},
        {"WlanScan", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanScan(nullptr, nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanGetAvailableNetworkList", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanGetAvailableNetworkList(nullptr, nullptr, {}, nullptr, nullptr)); }},
        {"WlanGetNetworkBssList", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanGetNetworkBssList(nullptr, nullptr, nullptr, {}, {}, nullptr, nullptr)); }},
        {"WlanQueryInterface", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanQueryInterface(nullptr, nullptr, {}, nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanSetInterface", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanSetInterface(nullptr, nullptr, {}, {}, nullptr, nullptr)); }},
        {"WlanQueryAutoConfigParameter", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanQueryAutoConfigParameter(nullptr, {}, nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanGetProfileList", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanGetProfileList(nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanGetProfile", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanGetProfile(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanSetProfile", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanSetProfile(nullptr, nullptr, {}, nullptr, nullptr, {}, nullptr, nullptr)); }},
        {"WlanDeleteProfile", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanDeleteProfile(nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanSetProfilePosition", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanSetProfilePosition(nullptr, nullptr, nullptr, {}, nullptr)); }},
        {"WlanConnect", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.wlan().WlanConnect(nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanDisconnect", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.wlan().WlanDisconnect(nullptr, nullptr, nullptr)); }},
        {"WlanRegisterNotification", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanRegisterNotification(nullptr, {}, {}, nullptr, nullptr, nullptr, nullptr)); }},
        {"WlanIhvControl", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.wlan().WlanIhvControl(nullptr, nullptr, {}, {}, nullptr, {}, nullptr, nullptr)); }},
        {"WlanSetSecuritySettings", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.wlan().WlanSetSecuritySettings(nullptr, {}, nullptr)); }},
        {"WlanReasonCodeToString", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.wlan().WlanReasonCodeToString({}, {}, nullptr, nullptr)); }},
        {"WlanFreeMemory", Failing::never,
         [](platform::Platform& p)
         {
             p.wlan().WlanFreeMemory(nullptr);
             return 0LL;
         }},
        {"OpenSCManagerA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.services().OpenSCManagerA(nullptr, nullptr, {})); }},
        {"OpenServiceA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.services().OpenServiceA(nullptr, nullptr, {})); }},
        {"QueryServiceStatus", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.services().QueryServiceStatus(nullptr, nullptr)); }},
        {"StartServiceA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.services().StartServiceA(nullptr, {}, nullptr)); }},
        {"CloseServiceHandle", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.services().CloseServiceHandle(nullptr)); }},
        {"CallNtPowerInformation", Failing::status,
         [](platform::Platform& p)
         { return AsNumber(p.power().CallNtPowerInformation({}, nullptr, {}, nullptr, {})); }},
        {"GetActivePwrScheme", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().GetActivePwrScheme(nullptr)); }},
        {"ReadPwrScheme", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().ReadPwrScheme({}, nullptr)); }},
        {"WritePwrScheme", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().WritePwrScheme(nullptr, nullptr, nullptr, nullptr)); }},
        {"SetActivePwrScheme", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().SetActivePwrScheme({}, nullptr, nullptr)); }},
        {"PowerEnumerate", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.power().PowerEnumerate(nullptr, nullptr, nullptr, {}, {}, nullptr, nullptr)); }},
        {"PowerReadFriendlyName", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.power().PowerReadFriendlyName(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr)); }},
        {"PowerGetActiveScheme", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.power().PowerGetActiveScheme(nullptr, nullptr)); }},
        {"PowerDuplicateScheme", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.power().PowerDuplicateScheme(nullptr, nullptr, nullptr)); }},
        {"PowerWriteFriendlyName", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.power().PowerWriteFriendlyName(nullptr, nullptr, nullptr, nullptr, nullptr, {})); }},
        {"PowerWriteACValueIndex", Failing::errorNumber,
         [](platform::Platform& p)
         { return AsNumber(p.power().PowerWriteACValueIndex(nullptr, nullptr, nullptr, nullptr, {})); }},
        {"PowerSetActiveScheme", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.power().PowerSetActiveScheme(nullptr, nullptr)); }},
        {"IsPwrSuspendAllowed", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().IsPwrSuspendAllowed()); }},
        {"IsPwrHibernateAllowed", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().IsPwrHibernateAllowed()); }},
        {"IsPwrShutdownAllowed", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().IsPwrShutdownAllowed()); }},
        {"SetSuspendState", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().SetSuspendState({}, {}, {})); }},
        {"IsSystemResumeAutomatic", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.power().IsSystemResumeAutomatic()); }},
        {"LocalFree", Failing::never,
         [](platform::Platform& p)
         {
             p.power().LocalFree(nullptr);
             return 0LL;
         }},
        {"OpenProcessToken", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.security().OpenProcessToken(nullptr, {}, nullptr)); }},
        {"LookupPrivilegeValueA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.security().LookupPrivilegeValueA(nullptr, nullptr, nullptr)); }},
        {"AdjustTokenPrivileges", Failing::reasoned,
         [](platform::Platform& p)
         { return AsNumber(p.security().AdjustTokenPrivileges(nullptr, {}, nullptr, {}, nullptr, nullptr)); }},
        {"GetCurrentProcess", Failing::never,
         [](platform::Platform& p) { return AsNumber(p.processes().GetCurrentProcess()); }},
        {"CreateProcessA", Failing::reasoned,
         [](platform::Platform& p)
         {
             return AsNumber(p.processes().CreateProcessA(nullptr, nullptr, nullptr, nullptr, {}, {}, nullptr, nullptr,
                                                          nullptr, nullptr));
         }},
        {"WaitForSingleObject", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.processes().WaitForSingleObject(nullptr, {})); }},
        {"OpenProcess", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.processes().OpenProcess({}, {}, {})); }},
        {"TerminateProcess", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.processes().TerminateProcess(nullptr, {})); }},
        {"CloseHandle", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.processes().CloseHandle(nullptr)); }},
        {"GetModuleFileNameA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.processes().GetModuleFileNameA(nullptr, nullptr, {})); }},
        {"GetModuleHandleA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.processes().GetModuleHandleA(nullptr)); }},
        {"GetProcAddress", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.processes().GetProcAddress(nullptr, nullptr)); }},
        {"InternetSetOptionA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.internet().InternetSetOptionA(nullptr, {}, nullptr, {})); }},
        {"InternetCheckConnectionA", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.internet().InternetCheckConnectionA(nullptr, {}, {})); }},
        {"MultiByteToWideChar", Failing::reasoned,
         [](platform::Platform& p)
         { return AsNumber(p.text().MultiByteToWideChar({}, {}, nullptr, {}, nullptr, {})); }},
        {"WideCharToMultiByte", Failing::reasoned,
         [](platform::Platform& p)
         { return AsNumber(p.text().WideCharToMultiByte({}, {}, nullptr, {}, nullptr, {}, nullptr, nullptr)); }},
        {"StringFromGUID2", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.text().StringFromGUID2(GUID{}, nullptr, {})); }},
        {"Sleep", Failing::never,
         [](platform::Platform& p)
         {
             p.clock().Sleep({});
             return 0LL;
         }},
        {"FileTimeToSystemTime", Failing::reasoned,
         [](platform::Platform& p) { return AsNumber(p.clock().FileTimeToSystemTime(nullptr, nullptr)); }},
        {"OutputDebugStringA", Failing::never,
         [](platform::Platform& p)
         {
             p.debugger().OutputDebugStringA(nullptr);
             return 0LL;
         }},
        {"GetLastError", Failing::errorNumber,
         [](platform::Platform& p) { return AsNumber(p.errors().GetLastError()); }},
    };
}

} // namespace calvix::test
