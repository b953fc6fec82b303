#include "sweep/tolerance.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace calvix::test::sweep
{

namespace
{

/// What comes of a call that fails, where that is no failure of the method.
enum class Answer
{
    asEver,           ///< the same as when nothing fails
    asEverAlone,      ///< the same, as long as a later call of the operation succeeds
    withoutText,      ///< the same, but for the text that could not be converted, which is as it was
    nothingTold,      ///< 0, and all outputs are as they were: no, nothing, not known
    yes,              ///< 1
    emptyText,        ///< the same, with an empty text
    noneAndEmptyText, ///< 0, and an empty text
    fewer,            ///< what the calls give that succeed
    noSignal,         ///< the weakest signal there is
    noText            ///< an empty text, or null
};

struct Tolerance
{
    std::string_view method;
    std::string_view operation;
    Answer answer;
    unsigned call = 0; ///< the only call of the operation that it is about; 0: all
};

using enum Answer;

constexpr Tolerance kRefusals[] = {
    // A client that cannot be opened yet is opened by the next method.
    {"Get", "WlanOpenHandle", asEver},

    // Questions for yes or no have no code for not knowing.
    {"GetWlanIsLink", "WlanOpenHandle", nothingTold},
    {"GetWlanIsLink", "WlanEnumInterfaces", nothingTold},
    {"WiFiIsConnected", "WlanOpenHandle", nothingTold},
    {"WiFiIsConnected", "WlanEnumInterfaces", nothingTold},
    {"WiFiIsDisconnected", "WlanOpenHandle", nothingTold},
    {"WiFiIsDisconnected", "WlanEnumInterfaces", nothingTold},
    {"IsWiFiDisappear", "WlanOpenHandle", nothingTold},
    {"IsWiFiDisappear", "WlanQueryInterface", nothingTold},
    {"IsWiFiDisappear", "WlanGetNetworkBssList", nothingTold},
    {"PhyRadioIsOn", "WlanOpenHandle", nothingTold},
    {"PhyRadioIsOn", "WlanQueryInterface", nothingTold},
    {"PhyRadioTurnedOff", "WlanOpenHandle", nothingTold},
    {"PhyRadioTurnedOff", "WlanQueryInterface", nothingTold},
    {"SpecialSoftAP", "WlanOpenHandle", nothingTold},
    {"SpecialSoftAP", "WlanEnumInterfaces", nothingTold},
    {"SpecialSoftAP", "WlanQueryInterface", nothingTold},
    {"IsSurpportAoAc", "CallNtPowerInformation", nothingTold},
    {"IsWow64", "GetModuleHandleA", nothingTold},
    {"IsWow64", "GetProcAddress", nothingTold},
    {"GetPrivileges", "OpenProcessToken", nothingTold},
    {"GetPrivileges", "LookupPrivilegeValueA", nothingTold},
    {"GetPrivileges", "AdjustTokenPrivileges", nothingTold},
    {"ForceComputerSleep", "SetSuspendState", nothingTold},
    {"UnicodeToAnsi", "WideCharToMultiByte", nothingTold},
    {"CreateProcRunExe", "GetModuleFileNameA", nothingTold},
    {"CreateProcRunExe", "CreateProcessA", nothingTold},
    {"ReasonCode2String", "WideCharToMultiByte", nothingTold},

    // Numbers without a code: 0, or the weakest signal.
    {"GetSSID", "MultiByteToWideChar", nothingTold},
    {"GetSSID", "WideCharToMultiByte", nothingTold},
    {"WideCharToChar", "WideCharToMultiByte", noneAndEmptyText},
    {"GetLastWakeTime", "CallNtPowerInformation", nothingTold},
    {"GetLastSleepTime", "CallNtPowerInformation", nothingTold},
    {"GetSystemPowerPolicy", "CallNtPowerInformation", asEverAlone, 1}, // the second question is the one that decides
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
    {"GetMatchBSSID", "FileTimeToSystemTime", asEver},
    {"ConnectBestAP", "WlanGetProfile", asEver},
    {"GetSoftAPList", "MultiByteToWideChar", asEver},
    {"GetAvailableNetwork", "WlanEnumInterfaces", asEver},
    {"GetAvailableNetwork", "StringFromGUID2", asEver},
    {"GetNetworkBss", "WlanEnumInterfaces", asEver},
    {"GetNetworkBss", "StringFromGUID2", asEver},

    // Walks: those of the ranked candidates need a request that is accepted, the others report success without one.
    {"AutoConnectEx", "WlanConnect", asEverAlone},
    {"AutoConnect", "WlanConnect", asEver},
    {"AutoSwitch", "WlanConnect", asEver},
    {"ResetWiFiRadio", "WlanSetInterface", asEver},

    // What is of no weight beside the rest of the answer.
    {"GetCurrentSSID", "MultiByteToWideChar", withoutText},
    {"GetCurrentSSID", "WideCharToMultiByte", withoutText},
    {"GetCurrentLinkInfo", "MultiByteToWideChar", withoutText},
    {"GetCurrentLinkInfo", "WideCharToMultiByte", withoutText},
    {"GetPowerSetting", "WlanQueryAutoConfigParameter", nothingTold},
    {"ReasonCode2String", "WlanReasonCodeToString", emptyText},
    {"GetPowerScheme", "PowerEnumerate", asEver},
    {"IsPowerHibernateAllowed", "IsPwrHibernateAllowed", asEver},
    {"IsPowerHibernateAllowed", "IsPwrShutdownAllowed", asEver},
    {"IsPowerHibernateAllowed", "IsPwrSuspendAllowed", asEver},
    {"IsPowerHibernateAllowed", "IsSystemResumeAutomatic", nothingTold},
    {"CreateProcRunExe", "WaitForSingleObject", asEver},
    {"OpenUrl", "InternetSetOptionA", asEver},

    // Lenient: only the last step decides.
    {"EnablePriviledge", "OpenProcessToken", asEver},
    {"EnablePriviledge", "LookupPrivilegeValueA", asEver},
    {"EnablePriviledge", "AdjustTokenPrivileges", nothingTold},
    {"EnablePriviledge", "GetLastError", nothingTold},
};

/// Where an empty list is no failure.
constexpr Tolerance kEmptyLists[] = {
    {"GetWiFiAdapterCount", "WlanEnumInterfaces", nothingTold},
    {"GetWlanIsLink", "WlanEnumInterfaces", nothingTold},
    {"WiFiIsConnected", "WlanEnumInterfaces", nothingTold},
    {"WiFiIsDisconnected", "WlanEnumInterfaces", nothingTold},
    {"SpecialSoftAP", "WlanEnumInterfaces", nothingTold},
    {"SmartConnecting", "WlanEnumInterfaces", nothingTold},
    {"SetCurrentWiFiToLast", "WlanEnumInterfaces", nothingTold},
    {"GetWlanInterfaceDesc", "WlanEnumInterfaces", noText},

    {"GetAvailableNetworkCount", "WlanGetAvailableNetworkList", nothingTold},
    {"GetNetworkBssCount", "WlanGetNetworkBssList", nothingTold},
    {"GetProfileCount", "WlanGetProfileList", nothingTold},
    {"GetCurrentWiFi", "WlanGetNetworkBssList", nothingTold},
    {"IsWiFiDisappear", "WlanGetNetworkBssList", yes},
    {"GetWiFiRSSI", "WlanGetAvailableNetworkList", noSignal},
    {"GetSoftAPList", "WlanGetAvailableNetworkList", asEver}, // no name can be converted as it is asked for
    {"GetMatchAPList", "WlanGetNetworkBssList", fewer},
    {"GetMatchAPCount", "WlanGetNetworkBssList", fewer},
    {"GetConnectableAPList", "WlanGetNetworkBssList", fewer},

    // Listings say so in their traces only; where there is no profile, there is none to be moved.
    {"GetAvailableNetwork", "WlanEnumInterfaces", asEver},
    {"GetAvailableNetwork", "WlanGetAvailableNetworkList", asEver},
    {"GetNetworkBss", "WlanEnumInterfaces", asEver},
    {"GetNetworkBss", "WlanGetNetworkBssList", asEver},
    {"ResetProfilePosition", "WlanGetProfileList", nothingTold},
    {"SetProfilePosition", "WlanGetProfileList", nothingTold},
    {"SetCurrentWiFiToLast", "WlanGetProfileList", asEver}, // the connection is asked for all the same
};

/// The causes that one method has for the refusal of an operation which the cause does not name.
struct OtherCause
{
    std::string_view method;
    std::string_view operation;
    host::Cause cause;
};

constexpr OtherCause kOtherCauses[] = {
    // Whether a profile connects automatically, and which network it is for, is then not known: it is no candidate.
    {"ConnectBestAP", "WlanGetProfile", host::Cause::noCandidate},
    {"ConnectAutoMode", "WlanGetProfile", host::Cause::noCandidate},
    {"ConnectAutoMode", "MultiByteToWideChar", host::Cause::noCandidate},

    {"GetAvailableNetwork", "WlanGetAvailableNetworkList", host::Cause::someAdapterRefused},
    {"GetNetworkBss", "WlanGetNetworkBssList", host::Cause::someAdapterRefused},

    // The two kinds of power schemes have operations of their own.
    {"SetPowerScheme", "GetActivePwrScheme", host::Cause::noActiveScheme},
    {"ResetPowerScheme", "GetActivePwrScheme", host::Cause::noActiveScheme},
    {"GetPowerScheme", "PowerGetActiveScheme", host::Cause::noActiveScheme},
    {"SetPowerScheme", "SetActivePwrScheme", host::Cause::schemeNotActivated},
    {"ResetPowerScheme", "SetActivePwrScheme", host::Cause::schemeNotActivated},
    {"GetPowerScheme", "PowerSetActiveScheme", host::Cause::schemeNotActivated},
};

/// What methods report for want of entries in a list.
struct Want
{
    std::string_view list;
    host::Cause cause;
};

constexpr Want kWants[] = {
    {"WlanEnumInterfaces", host::Cause::noAdapter},
    {"WlanEnumInterfaces", host::Cause::noSuchInterface},
    {"WlanEnumInterfaces", host::Cause::noSuchDescription},

    {"WlanGetProfileList", host::Cause::noProfile},
    {"WlanGetProfileList", host::Cause::profileNotFound},
    {"WlanGetProfileList", host::Cause::nothingMatches},
    {"WlanGetProfileList", host::Cause::nothingBetter},

    {"WlanGetAvailableNetworkList", host::Cause::networkListEmpty},
    {"WlanGetAvailableNetworkList", host::Cause::ssidNotVisible},
    {"WlanGetAvailableNetworkList", host::Cause::networkNotListed},
    {"WlanGetAvailableNetworkList", host::Cause::profileNotInView},
    {"WlanGetAvailableNetworkList", host::Cause::nothingMatches},
    {"WlanGetAvailableNetworkList", host::Cause::nothingBetter},

    {"WlanGetNetworkBssList", host::Cause::bssListEmpty},
    {"WlanGetNetworkBssList", host::Cause::noBssInView},
    {"WlanGetNetworkBssList", host::Cause::firstBssListEmpty},
    {"WlanGetNetworkBssList", host::Cause::laterBssListEmpty},
    {"WlanGetNetworkBssList", host::Cause::accessPointNotJoined},
    {"WlanGetNetworkBssList", host::Cause::savedNotInView},
};

bool AreUntouched(const std::vector<std::string>& outputs)
{
    return std::all_of(outputs.begin(), outputs.end(),
                       [](const std::string& output) { return output == methods::kUntouched; });
}

/// As ever, but for exactly one output, which is as it was.
bool LacksOneOutput(const Outcome& outcome, const Outcome& asEver)
{
    std::size_t lacking = 0;
    for (std::size_t index = 0; index < outcome.outputs.size(); ++index)
    {
        if (outcome.outputs[index] == asEver.outputs[index])
            continue;
        if (outcome.outputs[index] != methods::kUntouched)
            return false;
        ++lacking;
    }
    return outcome.code == asEver.code && lacking == 1;
}

/// A terminator, and nothing else is written.
bool IsEmptyText(const std::string& output)
{
    return output.starts_with("00") && output.find_first_not_of("A5", 2) == std::string::npos;
}

/// How many access points, or networks with one, the calls list that do not fail. A profile is read, where it is, just
/// before the access points of its network are listed.
long long CountLeft(const Method& method, const Failure& failure, const Reference& reference)
{
    const bool countsNetworks = method.Name() == "GetMatchAPCount";
    unsigned number = 0;
    std::size_t list = 0;
    long long left = 0;
    bool isProfileUnread = false;
    for (const std::string& operation : reference.operations)
    {
        const bool fails = operation == failure.operation && failure.Concerns(++number);
        if (operation == "WlanGetProfile")
            isProfileUnread = fails;
        if (operation != "WlanGetNetworkBssList")
            continue;
        const unsigned entries = reference.bssEntries.at(list++);
        if (!fails && !isProfileUnread)
            left += countsNetworks ? (std::min)(entries, 1U) : entries;
        isProfileUnread = false;
    }
    return left;
}

bool IsFewer(const Outcome& outcome, long long left)
{
    return outcome.code == left && outcome.outputs.front().starts_with(std::to_string(left) + " entries");
}

bool Is(Answer answer, const Method& method, const Failure& failure, const Outcome& outcome, const Reference& reference)
{
    constexpr long long kWeakestSignal = -100;
    switch (answer)
    {
    case asEver:
        return outcome == reference.first;
    case asEverAlone:
        return failure.fault.times == 1 && outcome == reference.first;
    case withoutText:
        return LacksOneOutput(outcome, reference.first);
    case nothingTold:
        return outcome.code == 0 && AreUntouched(outcome.outputs);
    case yes:
        return outcome.code == 1 && AreUntouched(outcome.outputs);
    case emptyText:
        return outcome.code == reference.first.code && IsEmptyText(outcome.outputs.front());
    case noneAndEmptyText:
        return outcome.code == 0 && IsEmptyText(outcome.outputs.front());
    case fewer:
        return IsFewer(outcome, CountLeft(method, failure, reference));
    case noSignal:
        return outcome.code == kWeakestSignal;
    case noText:
        return outcome.text.empty() || outcome.text == "null";
    }
    return false;
}

} // namespace

bool IsTolerated(const Method& method, const Failure& failure, const Outcome& outcome, const Reference& reference)
{
    if (failure.IsRelease())
        return outcome == reference.first;
    const auto fits = [&](const Tolerance& tolerance)
    {
        return tolerance.method == method.Name() && tolerance.operation == failure.operation &&
               (tolerance.call == 0 || tolerance.call == failure.fault.fromCall) &&
               Is(tolerance.answer, method, failure, outcome, reference);
    };
    if (failure.way == Way::emptied)
        return std::any_of(std::begin(kEmptyLists), std::end(kEmptyLists), fits);
    return std::any_of(std::begin(kRefusals), std::end(kRefusals), fits);
}

bool CanCause(const Method& method, const Failure& failure, host::Cause cause)
{
    if (failure.way == Way::emptied)
        return std::any_of(std::begin(kWants), std::end(kWants),
                           [&](const Want& want) { return want.list == failure.operation && want.cause == cause; });
    const char* const operation = host::Describe(cause).operation;
    if (operation != nullptr && operation == failure.operation)
        return true;
    return std::any_of(std::begin(kOtherCauses), std::end(kOtherCauses),
                       [&](const OtherCause& other) {
                           return other.method == method.Name() && other.operation == failure.operation &&
                                  other.cause == cause;
                       });
}

std::vector<std::string> OutputsOfFailure(const Method& method, const Failure& failure, const Outcome& outcome)
{
    constexpr std::array<std::string_view, 3> kEmptyTheirList = {"GetMatchAPList", "GetMatchAPCount",
                                                                 "GetConnectableAPList"};
    constexpr std::array<std::string_view, 2> kTellTheError = {"Rescan", "TurnOnSoftwareRadio"};
    const std::string name = method.Name();
    std::string output = methods::kUntouched;
    if (std::find(kEmptyTheirList.begin(), kEmptyTheirList.end(), name) != kEmptyTheirList.end())
        output = "0 entries";
    const unsigned long error = failure.fault.error;
    if (std::find(kTellTheError.begin(), kTellTheError.end(), name) != kTellTheError.end())
        output = methods::BytesText(&error, sizeof(error));
    return std::vector<std::string>(outcome.outputs.size(), output);
}

} // namespace calvix::test::sweep
