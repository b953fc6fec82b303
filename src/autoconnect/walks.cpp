#include <calvix/wireless_manage.h>

#include "autoconnect/profile_network_match.h"
#include "connection/connect_request.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"
#include "text/conversion.h"

using namespace calvix;

namespace
{

constexpr ProfileAndNetworkCodes kWalkCodes{
    .notOpened = -1, .profilesFailed = -4, .noProfile = -5, .networksFailed = -6, .noNetwork = -7};

/// How a walk over profiles and networks ended.
enum class WalkEnd
{
    accepted, ///< a request was accepted
    refused,  ///< requests were made, none was accepted
    noMatch   ///< there was nothing to request
};

/// Asks for a connection to every network that carries a profile's name, in profile order, then network order, until a
/// request is accepted.
WalkEnd WalkProfiles(HANDLE client, const GUID* interfaceGuid, const ProfilesAndNetworks& lists, Trace& trace)
{
    WalkEnd end = WalkEnd::noMatch;
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        for (const WLAN_AVAILABLE_NETWORK* network : lists.networksByProfile.Of(profile))
        {
            if (RequestNetwork(client, interfaceGuid, *network, trace) == 0)
                return WalkEnd::accepted;
            end = WalkEnd::refused;
        }
    }
    return end;
}

/// The lists for a method that passes the platform's error numbers on; they may be empty.
ErrorNumber ListAndMatch(HANDLE client, const GUID* interfaceGuid, ProfilesAndNetworks& lists, Trace& trace)
{
    if (const ErrorNumber error = ListProfiles(client, interfaceGuid, lists.profiles, trace))
        return error;
    if (const ErrorNumber error = ListAvailableNetworks(client, interfaceGuid, lists.networks, trace))
        return error;
    return lists.networksByProfile.Take(*lists.networks);
}

constexpr unsigned long kLongestListedSsid = 64;

/// Whether the network is the profile's: tagged with its name, or of an SSID that reads like it.
bool IsTarget(const WLAN_AVAILABLE_NETWORK& network, std::wstring_view profileName)
{
    // Deliberate: a network whose SSID cannot be converted is passed over, also when its tag would match.
    wchar_t ssid[kSsidTextCapacity];
    if (!SsidAsProfileName(network.dot11Ssid, kLongestListedSsid, ssid))
        return false;
    return FixedText(network.strProfileName) == profileName || ssid == profileName;
}

constexpr unsigned long kLongestSwitchedSsid = 256;

} // namespace

int CWirelessManage::AutoConnect(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    ProfilesAndNetworks lists;
    if (const int code = MatchProfilesAndNetworks(hClient, pInterfaceGuid, lists, trace, kWalkCodes))
        return code;
    // Deliberate: a walk on which every request was refused reports success.
    return WalkProfiles(hClient, pInterfaceGuid, lists, trace) == WalkEnd::noMatch ? -9 : 0;
}

int CWirelessManage::ConnectAutoMode(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ProfilesAndNetworks lists;
    if (const int code = ListProfilesAndNetworks(hClient, pInterfaceGuid, lists, trace, kWalkCodes))
        return code;
    // Deliberate: a walk on which every request was refused reports success.
    WalkEnd end = WalkEnd::noMatch;
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        wchar_t xml[1024];
        if (GetProfile(pInterfaceGuid, TerminatedName(profile.strProfileName), xml, 1024) != 0 ||
            IsAutoConnMode(xml) == 0)
            continue;
        for (const WLAN_AVAILABLE_NETWORK& network : Items(*lists.networks))
        {
            if (!IsTarget(network, FixedText(profile.strProfileName)))
                continue;
            // Deliberate: by the network's own profile name, which is empty, and refused, where only the SSID matched.
            if (RequestNetwork(hClient, pInterfaceGuid, network, trace) == 0)
                return 0;
            end = WalkEnd::refused;
        }
    }
    return end == WalkEnd::noMatch ? -9 : 0;
}

int CWirelessManage::AutoSwitch(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ConnectionAttributes connection;
    ProfilesAndNetworks lists;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToProfileName, trace) != 0)
        return -3;
    if (ListProfiles(hClient, pInterfaceGuid, lists.profiles, trace) != 0)
        return -4;
    if (lists.profiles->dwNumberOfItems > 1)
    {
        const DWORD last = lists.profiles->dwNumberOfItems - 1;
        if (MoveProfile(hClient, pInterfaceGuid, TerminatedName(connection->strProfileName), last, trace) != 0)
            return -5;
    }
    if (ListAvailableNetworks(hClient, pInterfaceGuid, lists.networks, trace) != 0)
        return -6;
    if (lists.networksByProfile.Take(*lists.networks) != 0)
        return -6;
    // Deliberate: the walk follows the order from before the move, and a refused-only walk reports success.
    return WalkProfiles(hClient, pInterfaceGuid, lists, trace) == WalkEnd::noMatch ? -7 : 0;
}

int CWirelessManage::SmartSwitch(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ConnectionAttributes connection;
    ProfilesAndNetworks lists;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (const ErrorNumber error = QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToAssociation, trace))
        return static_cast<int>(error);
    const WLAN_ASSOCIATION_ATTRIBUTES& current = connection->wlanAssociationAttributes;
    wchar_t currentSsid[kSsidTextCapacity];
    if (!SsidAsProfileName(current.dot11Ssid, kLongestSwitchedSsid, currentSsid))
    {
        const DWORD error = platform::errors().GetLastError();
        trace.Line("Profile Name error: %u", static_cast<unsigned>(error));
        return static_cast<int>(error);
    }
    if (const ErrorNumber error = ListAndMatch(hClient, pInterfaceGuid, lists, trace))
        return static_cast<int>(error);
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        for (const WLAN_AVAILABLE_NETWORK* network : lists.networksByProfile.Of(profile))
        {
            // Deliberate: the profile's name is compared with the SSID, as profiles are named after their network.
            if (FixedText(network->strProfileName) != currentSsid &&
                current.wlanSignalQuality < network->wlanSignalQuality)
                return static_cast<int>(RequestNetwork(hClient, pInterfaceGuid, *network, trace));
        }
    }
    return -2;
}

int CWirelessManage::SmartConnecting(const GUID*, char* profileName)
{
    LocalTrace<128> trace;
    InterfaceList interfaces;
    ProfilesAndNetworks lists;
    const GUID* first = nullptr;
    if (const int code = FindFirstInterface(hClient, interfaces, first, trace); code != 0 || first == nullptr)
        return code;
    if (const ErrorNumber error = ListAndMatch(hClient, first, lists, trace))
        return static_cast<int>(error);
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        const NetworksByProfile::Matches networks = lists.networksByProfile.Of(profile);
        if (networks.empty())
            continue;
        const WLAN_AVAILABLE_NETWORK& network = *networks.front();
        const ErrorNumber error = RequestNetwork(hClient, first, network, trace);
        if (error == 0 && profileName != nullptr)
            NarrowInLocale(FixedText(network.strProfileName), profileName, 128);
        return static_cast<int>(error);
    }
    return -2;
}
