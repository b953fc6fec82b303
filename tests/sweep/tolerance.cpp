#include "sweep/tolerance.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace calvix::test::sweep
{

namespace
{

/// What comes of a call that fails, where that is no failure of the method.
enum class Answer
{
    asEver,    ///< the same as when nothing fails
    untouched, ///< success as ever, but the outputs are as they were
    no,        ///< 0: no, nothing, not known
    fewer,     ///< what failed is missing in the count
    noSignal,  ///< the weakest signal there is
    noText     ///< an empty text, or null
};

struct Tolerance
{
    std::string_view method;
    std::string_view operation;
    Answer answer;
};

using enum Answer;

constexpr Tolerance kTolerances[] = {
    // A client that cannot be opened yet is opened by the next method.
    {"Get", "WlanOpenHandle", asEver},

    // Questions for yes or no have no code for not knowing.
    {"GetWlanIsLink", "WlanOpenHandle", no},
    {"GetWlanIsLink", "WlanEnumInterfaces", no},
    {"WiFiIsConnected", "WlanOpenHandle", no},
    {"WiFiIsConnected", "WlanEnumInterfaces", no},
    {"WiFiIsDisconnected", "WlanOpenHandle", no},
    {"WiFiIsDisconnected", "WlanEnumInterfaces", no},
    {"IsWiFiDisappear", "WlanOpenHandle", no},
    {"IsWiFiDisappear", "WlanQueryInterface", no},
    {"IsWiFiDisappear", "WlanGetNetworkBssList", no},
    {"PhyRadioIsOn", "WlanOpenHandle", no},
    {"PhyRadioIsOn", "WlanQueryInterface", no},
    {"PhyRadioTurnedOff", "WlanOpenHandle", no},
    {"PhyRadioTurnedOff", "WlanQueryInterface", no},
    {"SpecialSoftAP", "WlanOpenHandle", no},
    {"SpecialSoftAP", "WlanEnumInterfaces", no},
    {"SpecialSoftAP", "WlanQueryInterface", no},
    {"IsSurpportAoAc", "CallNtPowerInformation", no},
    {"IsWow64", "GetModuleHandleA", no},
    {"IsWow64", "GetProcAddress", no},
    {"GetPrivileges", "OpenProcessToken", no},
    {"GetPrivileges", "LookupPrivilegeValueA", no},
    {"GetPrivileges", "AdjustTokenPrivileges", no},
    {"ForceComputerSleep", "SetSuspendState", no},
    {"UnicodeToAnsi", "WideCharToMultiByte", no},
    {"CreateProcRunExe", "GetModuleFileNameA", no},
    {"CreateProcRunExe", "CreateProcessA", no},
    {"ReasonCode2String", "WideCharToMultiByte", no},

    // Numbers without a code: 0, or the weakest signal.
    {"GetSSID", "MultiByteToWideChar", no},
    {"GetSSID", "WideCharToMultiByte", no},
    {"WideCharToChar", "WideCharToMultiByte", no},
    {"GetLastWakeTime", "CallNtPowerInformation", no},
    {"GetLastSleepTime", "CallNtPowerInformation", no},
    {"GetSystemPowerPolicy", "CallNtPowerInformation", no},
    {"GetWiFiRSSI", "WlanGetAvailableNetworkList", noSignal},
    {"GetWlanInterfaceDesc", "WlanOpenHandle", noText},
    {"GetWlanInterfaceDesc", "WlanEnumInterfaces", noText},
    {"GetWlanInterfaceDesc", "WideCharToMultiByte", noText},
    {"GetAppPath", "GetModuleFileNameA", noText},

    // Lists go on with the next network.
    {"GetMatchAPList", "WlanGetNetworkBssList", fewer},
    {"GetMatchAPCount", "WlanGetNetworkBssList", fewer},
    {"GetMatchAPCount", "WlanGetProfile", fewer},
    {"GetConnectableAPList", "WlanGetNetworkBssList", fewer},
    {"GetConnectableAPList", "WlanGetProfile", fewer},
    {"ConnectBestAP", "WlanGetProfile", asEver},
    {"GetSoftAPList", "MultiByteToWideChar", asEver},
    {"GetAvailableNetwork", "WlanEnumInterfaces", asEver},
    {"GetAvailableNetwork", "StringFromGUID2", asEver},
    {"GetNetworkBss", "WlanEnumInterfaces", asEver},
    {"GetNetworkBss", "StringFromGUID2", asEver},

    // Walks that report success although requests were refused.
    {"AutoConnect", "WlanConnect", asEver},
    {"AutoConnectEx", "WlanConnect", asEver},
    {"AutoSwitch", "WlanConnect", asEver},
    {"ResetWiFiRadio", "WlanSetInterface", asEver},

    // What is of no weight beside the rest of the answer.
    {"GetCurrentSSID", "MultiByteToWideChar", asEver}, // where the record is asked for, too
    {"GetCurrentSSID", "WideCharToMultiByte", asEver},
    {"GetCurrentSSID", "MultiByteToWideChar", untouched},
    {"GetCurrentSSID", "WideCharToMultiByte", untouched},
    {"GetCurrentLinkInfo", "MultiByteToWideChar", asEver},
    {"GetCurrentLinkInfo", "WideCharToMultiByte", asEver},
    {"GetPowerSetting", "WlanQueryAutoConfigParameter", untouched},
    {"ReasonCode2String", "WlanReasonCodeToString", asEver},
    {"GetPowerScheme", "PowerEnumerate", asEver},
    {"IsPowerHibernateAllowed", "IsPwrHibernateAllowed", asEver},
    {"IsPowerHibernateAllowed", "IsPwrShutdownAllowed", asEver},
    {"IsPowerHibernateAllowed", "IsPwrSuspendAllowed", asEver},
    {"IsPowerHibernateAllowed", "IsSystemResumeAutomatic", no},
    {"CreateProcRunExe", "WaitForSingleObject", asEver},
    {"OpenUrl", "InternetSetOptionA", asEver},

    // Lenient: only the last step decides.
    {"EnablePriviledge", "OpenProcessToken", asEver},
    {"EnablePriviledge", "LookupPrivilegeValueA", asEver},
    {"EnablePriviledge", "AdjustTokenPrivileges", no},
    {"EnablePriviledge", "GetLastError", no},
};

constexpr std::array<std::string_view, 6> kWriteWhenFailing = {
    "GetMatchAPList", "GetMatchAPCount",     "GetConnectableAPList", // emptied before anything is asked
    "Rescan",         "TurnOnSoftwareRadio",                         // the error number is an output
    "WideCharToChar",                                                // zeroed before it is filled
};

bool Is(Answer answer, const Outcome& outcome, const Reference& reference)
{
    constexpr long long kWeakestSignal = -100;
    switch (answer)
    {
    case asEver:
        return outcome == reference.first;
    case untouched:
        return outcome.code == reference.first.code && !outcome.wroteOutput;
    case no:
        return outcome.code == 0;
    case fewer:
        return outcome.code >= 0 && outcome.code <= reference.first.code;
    case noSignal:
        return outcome.code == kWeakestSignal;
    case noText:
        return outcome.text.empty() || outcome.text == "null";
    }
    return false;
}

} // namespace

bool IsTolerated(const MethodCall& method, const Failure& failure, const Outcome& outcome, const Reference& reference)
{
    if (failure.IsRelease())
        return outcome == reference.first;
    return std::any_of(std::begin(kTolerances), std::end(kTolerances),
                       [&](const Tolerance& tolerance)
                       {
                           return tolerance.method == method.Name() && tolerance.operation == failure.operation &&
                                  Is(tolerance.answer, outcome, reference);
                       });
}

bool WritesWhenFailing(const MethodCall& method)
{
    return std::find(kWriteWhenFailing.begin(), kWriteWhenFailing.end(), method.Name()) != kWriteWhenFailing.end();
}

} // namespace calvix::test::sweep
