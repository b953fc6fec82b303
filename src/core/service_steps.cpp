#include "core/service_steps.h"

namespace calvix
{

using platform::wlan;

namespace
{

constexpr DWORD kNoHiddenOrAdHocProfiles = 0;

ErrorNumber Traced(Trace& trace, DWORD error, const char* format)
{
    trace.Failed(error, format);
    return static_cast<ErrorNumber>(error);
}

} // namespace

ErrorNumber OpenNewClient(HANDLE& client, Trace& trace, const char* failureText)
{
    DWORD negotiatedVersion = 0;
    return Traced(trace, wlan().WlanOpenHandle(kClientVersion, nullptr, &negotiatedVersion, &client), failureText);
}

ErrorNumber EnumerateInterfaces(HANDLE client, InterfaceList& list, Trace& trace)
{
    const DWORD error = wlan().WlanEnumInterfaces(client, nullptr, list.Receive());
    return Traced(trace, ErrorOf(error, list.get()), "WlanEnumInterfaces failed with error: %u");
}

int ListInterfaces(HANDLE& client, InterfaceList& list, Trace& trace, const InterfaceListCodes& codes)
{
    if (OpenClient(client, trace) != 0)
        return codes.notOpened;
    if (EnumerateInterfaces(client, list, trace) != 0)
        return codes.enumerationFailed;
    if (list->dwNumberOfItems == 0)
    {
        if (codes.noneText != nullptr)
            trace.Message(codes.noneText);
        return codes.none;
    }
    return 0;
}

ErrorNumber ListConnectionBss(
    HANDLE client, const GUID* interfaceGuid, const WLAN_CONNECTION_ATTRIBUTES& connection, BssList& list, Trace& trace)
{
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection.wlanAssociationAttributes;
    const DWORD error =
        wlan().WlanGetNetworkBssList(client, interfaceGuid, &association.dot11Ssid, association.dot11BssType,
                                     connection.wlanSecurityAttributes.bSecurityEnabled, nullptr, list.Receive());
    return Traced(trace, ErrorOf(error, list.get()), "WlanGetNetworkBssList failed with error: %u");
}

ErrorNumber ListNetworkBss(
    HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, BssList& list, Trace& trace)
{
    const DWORD error = wlan().WlanGetNetworkBssList(client, interfaceGuid, &network.dot11Ssid, network.dot11BssType,
                                                     network.bSecurityEnabled, nullptr, list.Receive());
    return Traced(trace, ErrorOf(error, list.get()), "WlanGetNetworkBssList failed with error: %u");
}

ErrorNumber ListAllBss(HANDLE client, const GUID* interfaceGuid, BssList& list, Trace& trace)
{
    const DWORD error = wlan().WlanGetNetworkBssList(client, interfaceGuid, nullptr, dot11_BSS_type_any, FALSE, nullptr,
                                                     list.Receive());
    return Traced(trace, ErrorOf(error, list.get()), "WlanGetNetworkBssList failed with error: %u");
}

ErrorNumber ListAvailableNetworks(HANDLE client, const GUID* interfaceGuid, NetworkList& list, Trace& trace)
{
    const DWORD error =
        wlan().WlanGetAvailableNetworkList(client, interfaceGuid, kNoHiddenOrAdHocProfiles, nullptr, list.Receive());
    return Traced(trace, ErrorOf(error, list.get()), "WlanGetAvailableNetworkList failed with error: %u");
}

ErrorNumber ListProfiles(HANDLE client, const GUID* interfaceGuid, ProfileList& list, Trace& trace)
{
    const DWORD error = wlan().WlanGetProfileList(client, interfaceGuid, nullptr, list.Receive());
    return Traced(trace, ErrorOf(error, list.get()), "WlanGetProfileList failed with error: %u");
}

int ListProfilesAndNetworks(HANDLE& client,
                            const GUID* interfaceGuid,
                            ProfilesAndNetworks& lists,
                            Trace& trace,
                            const ProfileAndNetworkCodes& codes)
{
    if (OpenClient(client, trace) != 0)
        return codes.notOpened;
    if (ListProfiles(client, interfaceGuid, lists.profiles, trace) != 0)
        return codes.profilesFailed;
    if (lists.profiles->dwNumberOfItems == 0)
    {
        trace.Line(codes.noProfileText, codes.noProfile);
        return codes.noProfile;
    }
    if (ListAvailableNetworks(client, interfaceGuid, lists.networks, trace) != 0)
        return codes.networksFailed;
    if (lists.networks->dwNumberOfItems == 0)
    {
        trace.Line(codes.noNetworkText, codes.noNetwork);
        return codes.noNetwork;
    }
    return 0;
}

} // namespace calvix
