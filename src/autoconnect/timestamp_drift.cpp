#include <calvix/wireless_manage.h>

#include "autoconnect/profile_network_match.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"
#include "text/conversion.h"

#include <algorithm>
#include <cstdint>

using namespace calvix;

namespace
{

constexpr ProfileAndNetworkCodes kDriftCodes{.notOpened = -2,
                                             .profilesFailed = -5,
                                             .noProfile = -6,
                                             .networksFailed = -7,
                                             .noNetwork = -8,
                                             .noProfileText = "No network profile: %d",
                                             .noNetworkText = "No available network: %d"};

/// Calendar time of an entry's host time stamp; false when it has none.
bool HostTime(const WLAN_BSS_ENTRY& entry, SYSTEMTIME& time)
{
    FILETIME stamp{};
    stamp.dwLowDateTime = static_cast<std::uint32_t>(entry.ullHostTimestamp);
    stamp.dwHighDateTime = static_cast<std::uint32_t>(entry.ullHostTimestamp >> 32);
    return platform::clock().FileTimeToSystemTime(&stamp, &time) != FALSE;
}

/// Deliberate: 16-bit arithmetic over the time of day, so that a step back or across midnight wraps.
std::uint16_t SecondsBetween(const SYSTEMTIME& earlier, const SYSTEMTIME& later)
{
    return static_cast<std::uint16_t>((later.wHour - earlier.wHour) * 3600 + (later.wMinute - earlier.wMinute) * 60 +
                                      (later.wSecond - earlier.wSecond));
}

bool SameAddress(const WLAN_BSS_ENTRY& left, const WLAN_BSS_ENTRY& right)
{
    return std::equal(std::begin(left.dot11Bssid), std::end(left.dot11Bssid), std::begin(right.dot11Bssid));
}

void TraceOffsets(const WLAN_BSS_LIST& first, const WLAN_BSS_LIST& second, Trace& trace)
{
    for (const WLAN_BSS_ENTRY& before : Items(first))
    {
        SYSTEMTIME earlier{};
        if (!HostTime(before, earlier))
            continue;
        for (const WLAN_BSS_ENTRY& after : Items(second))
        {
            SYSTEMTIME later{};
            if (SameAddress(before, after) && HostTime(after, later))
                trace.Line("ullHostTimestamp offset(%u sec)", static_cast<unsigned>(SecondsBetween(earlier, later)));
        }
    }
}

/// Follows the time stamps of one network for three seconds. `result` takes the code of a problem.
void TraceDrift(
    HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, Trace& trace, int& result)
{
    BssList first;
    if (ListNetworkBss(client, interfaceGuid, network, first, trace) != 0)
    {
        result = -9;
        return;
    }
    if (first->dwNumberOfItems == 0)
    {
        first.Release();
        result = -10;
        trace.Line("No BSS: %d", result);
        return;
    }
    for (int pass = 0; pass < 3; ++pass)
    {
        platform::clock().Sleep(1000);
        BssList second;
        if (ListNetworkBss(client, interfaceGuid, network, second, trace) != 0)
        {
            result = -11;
            continue;
        }
        if (second->dwNumberOfItems == 0)
        {
            second.Release();
            result = -12;
            trace.Line("No BSS2: %d", result);
            continue;
        }
        TraceOffsets(*first, *second, trace);
    }
}

} // namespace

int CWirelessManage::GetMatchBSSID(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ProfilesAndNetworks lists;
    if (const int code = MatchProfilesAndNetworks(hClient, pInterfaceGuid, lists, trace, kDriftCodes))
        return code;

    // Deliberate: -1 even when all went well; the result is informational, what counts is the trace.
    int result = -1;
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        const NarrowText name(FixedText(profile.strProfileName));
        trace.Line("ProfileName(%s)", name.c_str());
        for (const WLAN_AVAILABLE_NETWORK* network : lists.networksByProfile.Of(profile))
        {
            trace.Line("Available Network(%s)", name.c_str());
            TraceDrift(hClient, pInterfaceGuid, *network, trace, result);
        }
    }
    return result;
}
