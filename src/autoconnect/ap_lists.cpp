#include <calvix/wireless_manage.h>

#include "autoconnect/profile_network_match.h"
#include "core/memory.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"

using namespace calvix;

namespace
{

constexpr ProfileAndNetworkCodes kApListCodes{
    .notOpened = -2, .profilesFailed = -5, .noProfile = -6, .networksFailed = -7, .noNetwork = -8};

void Append(std::vector<WLAN_BSS_ENTRY>& list, const WLAN_PROFILE_INFO&, const WLAN_BSS_LIST& entries, Trace&)
{
    const auto items = Items(entries);
    list.insert(list.end(), items.begin(), items.end());
}

void Append(std::vector<std::wstring>& names,
            const WLAN_PROFILE_INFO& profile,
            const WLAN_BSS_LIST& entries,
            Trace& trace)
{
    if (entries.dwNumberOfItems == 0)
        trace.Line("No BSS: %d", -10);
    else
        names.emplace_back(FixedText(profile.strProfileName));
}

/// Walks every pair of a stored profile and a network that carries its name, in profile order, then network order. For
/// the pairs that `counts(profile)` lets through, appends the network's BSS entries, or the name, to `list`, which is
/// empty before. A network whose BSS query fails is passed over. The length of the list, or a code: it is empty then.
template <typename List, typename Counts>
int CollectMatches(HANDLE& client, const GUID* interfaceGuid, List& list, Trace& trace, Counts counts)
{
    ProfilesAndNetworks lists;
    if (const int code = MatchProfilesAndNetworks(client, interfaceGuid, lists, trace, kApListCodes))
        return code;
    const auto collect = [&]
    {
        for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
        {
            for (const WLAN_AVAILABLE_NETWORK* network : lists.networksByProfile.Of(profile))
            {
                BssList entries;
                if (counts(profile) && ListNetworkBss(client, interfaceGuid, *network, entries, trace) == 0)
                    Append(list, profile, *entries, trace);
            }
        }
    };
    if (OutOfMemoryIn(collect))
    {
        list.clear();
        return kApListCodes.networksFailed;
    }
    return static_cast<int>(list.size());
}

const auto everyProfile = [](const WLAN_PROFILE_INFO&) { return true; };

} // namespace

int CWirelessManage::GetMatchAPList(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pList)
{
    if (pList == nullptr)
        return -13;
    LocalTrace<128> trace;
    pList->clear();
    return CollectMatches(hClient, pInterfaceGuid, *pList, trace, everyProfile);
}

int CWirelessManage::GetConnectableAPList(const GUID* pInterfaceGuid, wchar_t* name, std::vector<WLAN_BSS_ENTRY>* pList)
{
    if (pList == nullptr)
        return -13;
    pList->clear();
    if (name == nullptr)
        return -14;
    LocalTrace<128> trace;
    const auto namedOrAutomatic = [=, this](const WLAN_PROFILE_INFO& profile)
    {
        return FixedText(profile.strProfileName) == name ||
               IsAutoConnMode2(pInterfaceGuid, TerminatedName(profile.strProfileName)) == 1;
    };
    return CollectMatches(hClient, pInterfaceGuid, *pList, trace, namedOrAutomatic);
}

int CWirelessManage::GetConnectableAPList(wchar_t* name, std::vector<WLAN_BSS_ENTRY>* pList)
{
    if (pList == nullptr)
        return -13;
    pList->clear();
    if (name == nullptr)
        return -14;
    LocalTrace<128> trace;
    InterfaceList interfaces;
    if (const int code = ListInterfaces(hClient, interfaces, trace,
                                        {.notOpened = -2, .enumerationFailed = -3, .none = -4, .noneText = nullptr}))
    {
        if (code == -4)
            trace.Line("No valid WLAN adapter: %u", static_cast<unsigned>(code));
        return code;
    }
    return GetConnectableAPList(&interfaces->InterfaceInfo[0].InterfaceGuid, name, pList);
}

int CWirelessManage::GetMatchAPCount(const GUID* pInterfaceGuid, std::vector<std::wstring>* pNames, int mode)
{
    return GetMatchAPCount(pInterfaceGuid, pNames, nullptr, mode);
}

int CWirelessManage::GetMatchAPCount(const GUID* pInterfaceGuid,
                                     std::vector<std::wstring>* pNames,
                                     const wchar_t* name,
                                     int mode)
{
    if (pNames == nullptr)
        return -13;
    LocalTrace<128> trace;
    pNames->clear();
    const auto counts = [=, this](const WLAN_PROFILE_INFO& profile)
    {
        if (mode != 1 || (name != nullptr && FixedText(profile.strProfileName) == name))
            return true;
        return IsAutoConnMode2(pInterfaceGuid, TerminatedName(profile.strProfileName)) == 1;
    };
    return CollectMatches(hClient, pInterfaceGuid, *pNames, trace, counts);
}

int CWirelessManage::GetConnectableNetworkCount(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ProfilesAndNetworks lists;
    if (const int code = MatchProfilesAndNetworks(hClient, pInterfaceGuid, lists, trace, kApListCodes))
        return code;
    int pairs = 0;
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
        for ([[maybe_unused]] const WLAN_AVAILABLE_NETWORK* network : lists.networksByProfile.Of(profile))
            ++pairs;
    return pairs;
}
