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

bool HasInterface(HANDLE& client, InterfaceList& list, Trace& trace)
{
    const GUID* first = nullptr;
    return FindFirstInterface(client, list, first, trace) == 0 && first != nullptr;
}

int FindFirstInterface(HANDLE& client, InterfaceList& list, const GUID*& first, Trace& trace)
{
    if (OpenClient(client, trace) != 0)
        return -1;
    if (const ErrorNumber error = EnumerateInterfaces(client, list, trace))
        return static_cast<int>(error);
    if (list->dwNumberOfItems == 0)
        trace.Message(kNoInterface);
    else
        first = &list->InterfaceInfo[0].InterfaceGuid;
    return 0;
}

ErrorNumber ListBss(HANDLE client,
                    const GUID* interfaceGuid,
                    const DOT11_SSID* ssid,
                    DOT11_BSS_TYPE bssType,
                    BOOL securityEnabled,
                    BssList& list,
                    Trace& trace)
{
    const DWORD error =
        wlan().WlanGetNetworkBssList(client, interfaceGuid, ssid, bssType, securityEnabled, nullptr, list.Receive());
    return Traced(trace, ErrorOf(error, list.get()), "WlanGetNetworkBssList failed with error: %u");
}

ErrorNumber ListConnectionBss(
    HANDLE client, const GUID* interfaceGuid, const WLAN_CONNECTION_ATTRIBUTES& connection, BssList& list, Trace& trace)
{
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection.wlanAssociationAttributes;
    return ListBss(client, interfaceGuid, &association.dot11Ssid, association.dot11BssType,
                   connection.wlanSecurityAttributes.bSecurityEnabled, list, trace);
}

ErrorNumber ListNetworkBss(
    HANDLE client, const GUID* interfaceGuid, const WLAN_AVAILABLE_NETWORK& network, BssList& list, Trace& trace)
{
    return ListBss(client, interfaceGuid, &network.dot11Ssid, network.dot11BssType, network.bSecurityEnabled, list,
                   trace);
}

ErrorNumber ListAllBss(HANDLE client, const GUID* interfaceGuid, BssList& list, Trace& trace)
{
    return ListBss(client, interfaceGuid, nullptr, dot11_BSS_type_any, FALSE, list, trace);
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

ErrorNumber ReadProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, ProfileText& xml, Trace& trace)
{
    DWORD flags = WLAN_PROFILE_GET_PLAINTEXT_KEY;
    DWORD access = WLAN_READ_ACCESS;
    const DWORD error = wlan().WlanGetProfile(client, interfaceGuid, name, nullptr, xml.Receive(), &flags, &access);
    return Traced(trace, ErrorOf(error, xml.get()), "WlanGetProfile failed with error: %u");
}

ErrorNumber MoveProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD place, Trace& trace)
{
    return Traced(trace, wlan().WlanSetProfilePosition(client, interfaceGuid, name, place, nullptr),
                  "WlanSetProfilePosition failed with error: %u");
}

} // namespace calvix
