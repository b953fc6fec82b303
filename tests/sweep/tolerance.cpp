#include "sweep/tolerance.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
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

using Operations = std::array<std::string_view, 3>;

struct Tolerance
{
    std::string_view method;
    Operations operations;
    Answer answer;
    unsigned call = 0; ///< the only call of the operation that it is about; 0: all
};

using enum Answer;

constexpr Tolerance kRefusals[] = {
    // A client that cannot be opened yet is opened by the next method.
    {"Get", {"WlanOpenHandle"}, asEver},

    // Questions for yes or no have no code for not knowing.
    {"GetWlanIsLink", {"WlanOpenHandle", "WlanEnumInterfaces"}, nothingTold},
    {"WiFiIsConnected", {"WlanOpenHandle", "WlanEnumInterfaces"}, nothingTold},
    {"WiFiIsDisconnected", {"WlanOpenHandle", "WlanEnumInterfaces"}, nothingTold},
    {"IsWiFiDisappear", {"WlanOpenHandle", "WlanQueryInterface", "WlanGetNetworkBssList"}, nothingTold},
    {"PhyRadioIsOn", {"WlanOpenHandle", "WlanQueryInterface"}, nothingTold},
    {"PhyRadioTurnedOff", {"WlanOpenHandle", "WlanQueryInterface"}, nothingTold},
    {"SpecialSoftAP", {"WlanOpenHandle", "WlanEnumInterfaces", "WlanQueryInterface"}, nothingTold},
    {"IsSurpportAoAc", {"CallNtPowerInformation"}, nothingTold},
    {"IsWow64", {"GetModuleHandleA", "GetProcAddress"}, nothingTold},
    {"GetPrivileges", {"OpenProcessToken", "LookupPrivilegeValueA", "AdjustTokenPrivileges"}, nothingTold},
    {"ForceComputerSleep", {"SetSuspendState"}, nothingTold},
    {"UnicodeToAnsi", {"WideCharToMultiByte"}, nothingTold},
    {"CreateProcRunExe", {"GetModuleFileNameA", "CreateProcessA"}, nothingTold},
    {"ReasonCode2String", {"WideCharToMultiByte"}, nothingTold},

    // Numbers without a code: 0, or the weakest signal.
    {"GetSSID", {"MultiByteToWideChar", "WideCharToMultiByte"}, nothingTold},
    {"WideCharToChar", {"WideCharToMultiByte"}, noneAndEmptyText},
    {"GetLastWakeTime", {"CallNtPowerInformation"}, nothingTold},
    {"GetLastSleepTime", {"CallNtPowerInformation"}, nothingTold},
    {"GetSystemPowerPolicy", {"CallNtPowerInformation"}, asEverAlone, 1}, // the second question is the one that decides
    {"GetWiFiRSSI", {"WlanGetAvailableNetworkList"}, noSignal},
    {"GetWlanInterfaceDesc", {"WlanOpenHandle", "WlanEnumInterfaces", "WideCharToMultiByte"}, noText},
    {"GetAppPath", {"GetModuleFileNameA"}, noText},

    // Lists go on with the next network.
    {"GetMatchAPList", {"WlanGetNetworkBssList"}, fewer},
    {"GetMatchAPCount", {"WlanGetNetworkBssList", "WlanGetProfile"}, fewer},
    {"GetConnectableAPList", {"WlanGetNetworkBssList", "WlanGetProfile"}, fewer},
    {"GetMatchBSSID", {"FileTimeToSystemTime"}, asEver},
    {"ConnectBestAP", {"WlanGetProfile"}, asEver},
    {"GetSoftAPList", {"MultiByteToWideChar"}, asEver},
    {"GetAvailableNetwork", {"WlanEnumInterfaces", "StringFromGUID2"}, asEver},
    {"GetNetworkBss", {"WlanEnumInterfaces", "StringFromGUID2"}, asEver},

    // Walks: those of the ranked candidates need a request that is accepted, the others report success without one.
    {"AutoConnectEx", {"WlanConnect"}, asEverAlone},
    {"AutoConnect", {"WlanConnect"}, asEver},
    {"AutoSwitch", {"WlanConnect"}, asEver},
    {"ResetWiFiRadio", {"WlanSetInterface"}, asEver},

    // What is of no weight beside the rest of the answer.
    {"GetCurrentSSID", {"MultiByteToWideChar", "WideCharToMultiByte"}, withoutText},
    {"GetCurrentLinkInfo", {"MultiByteToWideChar", "WideCharToMultiByte"}, withoutText},
    {"GetPowerSetting", {"WlanQueryAutoConfigParameter"}, nothingTold},
    {"ReasonCode2String", {"WlanReasonCodeToString"}, emptyText},
    {"GetPowerScheme", {"PowerEnumerate"}, asEver},
    {"IsPowerHibernateAllowed", {"IsPwrHibernateAllowed", "IsPwrShutdownAllowed", "IsPwrSuspendAllowed"}, asEver},
    {"IsPowerHibernateAllowed", {"IsSystemResumeAutomatic"}, nothingTold},
    {"CreateProcRunExe", {"WaitForSingleObject"}, asEver},
    {"OpenUrl", {"InternetSetOptionA"}, asEver},

    // Lenient: only the last step decides.
    {"EnablePriviledge", {"OpenProcessToken", "LookupPrivilegeValueA"}, asEver},
    {"EnablePriviledge", {"AdjustTokenPrivileges", "GetLastError"}, nothingTold},
};

/// Where an empty list is no failure.
constexpr Tolerance kEmptyLists[] = {
    {"GetWiFiAdapterCount", {"WlanEnumInterfaces"}, nothingTold},
    {"GetWlanIsLink", {"WlanEnumInterfaces"}, nothingTold},
    {"WiFiIsConnected", {"WlanEnumInterfaces"}, nothingTold},
    {"WiFiIsDisconnected", {"WlanEnumInterfaces"}, nothingTold},
    {"SpecialSoftAP", {"WlanEnumInterfaces"}, nothingTold},
    {"SmartConnecting", {"WlanEnumInterfaces"}, nothingTold},
    {"SetCurrentWiFiToLast", {"WlanEnumInterfaces"}, nothingTold},
    {"GetWlanInterfaceDesc", {"WlanEnumInterfaces"}, noText},

    {"GetAvailableNetworkCount", {"WlanGetAvailableNetworkList"}, nothingTold},
    {"GetNetworkBssCount", {"WlanGetNetworkBssList"}, nothingTold},
    {"GetProfileCount", {"WlanGetProfileList"}, nothingTold},
    {"GetCurrentWiFi", {"WlanGetNetworkBssList"}, nothingTold},
    {"IsWiFiDisappear", {"WlanGetNetworkBssList"}, yes},
    {"GetWiFiRSSI", {"WlanGetAvailableNetworkList"}, noSignal},
    {"GetSoftAPList", {"WlanGetAvailableNetworkList"}, asEver}, // no name can be converted as it is asked for
    {"GetMatchAPList", {"WlanGetNetworkBssList"}, fewer},
    {"GetMatchAPCount", {"WlanGetNetworkBssList"}, fewer},
    {"GetConnectableAPList", {"WlanGetNetworkBssList"}, fewer},

    // Listings say so in their traces only; where there is no profile, there is none to be moved.
    {"GetAvailableNetwork", {"WlanEnumInterfaces", "WlanGetAvailableNetworkList"}, asEver},
    {"GetNetworkBss", {"WlanEnumInterfaces", "WlanGetNetworkBssList"}, asEver},
    {"ResetProfilePosition", {"WlanGetProfileList"}, nothingTold},
    {"SetProfilePosition", {"WlanGetProfileList"}, nothingTold},
    {"SetCurrentWiFiToLast", {"WlanGetProfileList"}, asEver}, // the connection is asked for all the same
};

using host::Cause;

/// The causes that one method has for the refusal of operations which the cause does not name.
struct OtherCause
{
    std::string_view method;
    Operations operations;
    Cause cause;
};

constexpr OtherCause kOtherCauses[] = {
    // Whether a profile connects automatically, and which network it is for, is then not known: it is no candidate.
    {"ConnectBestAP", {"WlanGetProfile"}, Cause::noCandidate},
    {"ConnectAutoMode", {"WlanGetProfile", "MultiByteToWideChar"}, Cause::noCandidate},

    {"GetAvailableNetwork", {"WlanGetAvailableNetworkList"}, Cause::someAdapterRefused},
    {"GetNetworkBss", {"WlanGetNetworkBssList"}, Cause::someAdapterRefused},

    // The two kinds of power schemes have operations of their own.
    {"SetPowerScheme", {"GetActivePwrScheme"}, Cause::noActiveScheme},
    {"ResetPowerScheme", {"GetActivePwrScheme"}, Cause::noActiveScheme},
    {"GetPowerScheme", {"PowerGetActiveScheme"}, Cause::noActiveScheme},
    {"SetPowerScheme", {"SetActivePwrScheme"}, Cause::schemeNotActivated},
    {"ResetPowerScheme", {"SetActivePwrScheme"}, Cause::schemeNotActivated},
    {"GetPowerScheme", {"PowerSetActiveScheme"}, Cause::schemeNotActivated},
};

/// What methods report for want of entries in a list.
const std::map<std::string_view, std::set<Cause>> kWants = {
    {"WlanEnumInterfaces", {Cause::noAdapter, Cause::noSuchInterface, Cause::noSuchDescription}},
    {"WlanGetProfileList", {Cause::noProfile, Cause::profileNotFound, Cause::nothingMatches, Cause::nothingBetter}},
    {"WlanGetAvailableNetworkList",
     {Cause::networkListEmpty, Cause::ssidNotVisible, Cause::networkNotListed, Cause::profileNotInView,
      Cause::nothingMatches, Cause::nothingBetter}},
    {"WlanGetNetworkBssList",
     {Cause::bssListEmpty, Cause::noBssInView, Cause::firstBssListEmpty, Cause::laterBssListEmpty,
      Cause::accessPointNotJoined, Cause::savedNotInView}},
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
        return tolerance.method == method.Name() && Contains(tolerance.operations, failure.operation) &&
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
        return kWants.at(failure.operation).contains(cause);
    const char* const operation = host::Describe(cause).operation;
    if (operation != nullptr && operation == failure.operation)
        return true;
    return std::any_of(std::begin(kOtherCauses), std::end(kOtherCauses),
                       [&](const OtherCause& other) {
                           return other.method == method.Name() && Contains(other.operations, failure.operation) &&
                                  other.cause == cause;
                       });
}

std::vector<std::string> OutputsOfFailure(const Method& method, const Failure& failure, const Outcome& outcome)
{
    constexpr std::array<std::string_view, 3> emptyTheirList = {"GetMatchAPList", "GetMatchAPCount",
                                                                "GetConnectableAPList"};
    constexpr std::array<std::string_view, 2> tellTheError = {"Rescan", "TurnOnSoftwareRadio"};
    std::string output = methods::kUntouched;
    if (Contains(emptyTheirList, method.Name()))
        output = "0 entries";
    const unsigned long error = failure.fault.error;
    if (Contains(tellTheError, method.Name()))
        output = methods::BytesText(&error, sizeof(error));
    return std::vector<std::string>(outcome.outputs.size(), output);
}

} // namespace calvix::test::sweep
