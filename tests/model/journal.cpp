#include "model/journal.h"

#include "support/manager_internals.h"
#include "support/test_worlds.h"

namespace calvix::test
{

namespace
{

bool IsForOne(const DOT11_BSSID_LIST& list)
{
    return list.Header.Type == 0x80 && list.Header.Revision == 1 && list.Header.Size == sizeof(list) &&
           list.uNumOfEntries == 1 && list.uTotalNumOfEntries == 1;
}

} // namespace

void JournalService::Clear()
{
    m_events.clear();
    m_requests = 0;
}

Event& JournalService::Note(std::string_view operation, HANDLE client, const GUID* interfaceGuid, PVOID reserved)
{
    Event event{operation};
    if (interfaceGuid != nullptr)
        event.adapter = AdapterNumber(*interfaceGuid);
    if (client == nullptr || client != ManagerInternals::Client())
        event.oddity += "client ";
    if (reserved != nullptr)
        event.oddity += "reserved ";
    m_events.push_back(std::move(event));
    return m_events.back();
}

DWORD JournalService::WlanOpenHandle(DWORD clientVersion, PVOID reserved, DWORD* negotiatedVersion, HANDLE* client)
{
    Event event{"WlanOpenHandle"};
    event.number = static_cast<unsigned>(clientVersion);
    event.oddity = reserved != nullptr ? "reserved " : "";
    m_events.push_back(event);
    if (const DWORD error = m_world.FailureOf("WlanOpenHandle"))
        return error;
    return m_service.WlanOpenHandle(clientVersion, reserved, negotiatedVersion, client);
}

DWORD JournalService::WlanEnumInterfaces(HANDLE client, PVOID reserved, WLAN_INTERFACE_INFO_LIST** list)
{
    Note("WlanEnumInterfaces", client, nullptr, reserved);
    if (const DWORD error = m_world.FailureOf("WlanEnumInterfaces"))
        return error;
    return m_service.WlanEnumInterfaces(client, reserved, list);
}

DWORD JournalService::WlanGetAvailableNetworkList(
    HANDLE client, const GUID* interfaceGuid, DWORD flags, PVOID reserved, WLAN_AVAILABLE_NETWORK_LIST** list)
{
    Note("WlanGetAvailableNetworkList", client, interfaceGuid, reserved).number = static_cast<unsigned>(flags);
    if (const DWORD error = m_world.FailureOf("WlanGetAvailableNetworkList"))
        return error;
    const DWORD error = m_service.WlanGetAvailableNetworkList(client, interfaceGuid, flags, reserved, list);
    for (DWORD i = 0; error == 0 && i < (*list)->dwNumberOfItems; ++i)
    {
        WLAN_AVAILABLE_NETWORK& network = *((*list)->Network + i);
        if (m_world.untaggedProfiles.count(network.strProfileName) != 0)
            network.strProfileName[0] = L'\0';
    }
    return error;
}

DWORD JournalService::WlanGetNetworkBssList(HANDLE client,
                                            const GUID* interfaceGuid,
                                            const DOT11_SSID* ssid,
                                            DOT11_BSS_TYPE bssType,
                                            BOOL securityEnabled,
                                            PVOID reserved,
                                            WLAN_BSS_LIST** list)
{
    Event& event = Note("WlanGetNetworkBssList", client, interfaceGuid, reserved);
    event.ssid = BytesOf(*ssid);
    event.number = bssType;
    event.secured = securityEnabled != FALSE;
    if (m_world.failingSsids.count(event.ssid) != 0)
        return 31;
    const DOT11_SSID unheard = MakeSsid("nobody");
    const DOT11_SSID& wanted = m_world.silentSsids.count(event.ssid) != 0 ? unheard : *ssid;
    return m_service.WlanGetNetworkBssList(client, interfaceGuid, &wanted, bssType, securityEnabled, reserved, list);
}

DWORD JournalService::WlanQueryInterface(HANDLE client,
                                         const GUID* interfaceGuid,
                                         WLAN_INTF_OPCODE opcode,
                                         PVOID reserved,
                                         DWORD* dataSize,
                                         PVOID* data,
                                         WLAN_OPCODE_VALUE_TYPE* valueType)
{
    Event& event = Note("WlanQueryInterface", client, interfaceGuid, reserved);
    event.number = static_cast<unsigned>(opcode);
    if (*dataSize != sizeof(WLAN_CONNECTION_ATTRIBUTES) || valueType != nullptr)
        event.oddity += "size or value type ";
    if (const DWORD error = m_world.FailureOf("WlanQueryInterface"))
        return error;
    return m_service.WlanQueryInterface(client, interfaceGuid, opcode, reserved, dataSize, data, valueType);
}

DWORD JournalService::WlanGetProfileList(HANDLE client,
                                         const GUID* interfaceGuid,
                                         PVOID reserved,
                                         WLAN_PROFILE_INFO_LIST** list)
{
    Note("WlanGetProfileList", client, interfaceGuid, reserved);
    if (const DWORD error = m_world.FailureOf("WlanGetProfileList"))
        return error;
    return m_service.WlanGetProfileList(client, interfaceGuid, reserved, list);
}

DWORD JournalService::WlanGetProfile(HANDLE client,
                                     const GUID* interfaceGuid,
                                     const wchar_t* name,
                                     PVOID reserved,
                                     wchar_t** xml,
                                     DWORD* flags,
                                     DWORD* grantedAccess)
{
    Event& event = Note("WlanGetProfile", client, interfaceGuid, reserved);
    event.profile = name;
    event.number = static_cast<unsigned>(*flags);
    if (*grantedAccess != 0x20001)
        event.oddity += "access ";
    if (m_world.unreadableProfiles.count(name) != 0)
        return 5;
    return m_service.WlanGetProfile(client, interfaceGuid, name, reserved, xml, flags, grantedAccess);
}

DWORD JournalService::WlanSetProfilePosition(
    HANDLE client, const GUID* interfaceGuid, const wchar_t* name, DWORD position, PVOID reserved)
{
    Event& event = Note("WlanSetProfilePosition", client, interfaceGuid, reserved);
    event.profile = name;
    event.number = static_cast<unsigned>(position);
    return m_world.FailureOf("WlanSetProfilePosition");
}

DWORD JournalService::WlanConnect(HANDLE client,
                                  const GUID* interfaceGuid,
                                  const WLAN_CONNECTION_PARAMETERS* parameters,
                                  PVOID reserved)
{
    Event& event = Note("WlanConnect", client, interfaceGuid, reserved);
    event.profile = parameters->strProfile;
    event.number = parameters->dot11BssType;
    if (parameters->wlanConnectionMode != 0 || parameters->pDot11Ssid != nullptr || parameters->dwFlags != 0)
        event.oddity += "mode, SSID or flags ";
    if (const DOT11_BSSID_LIST* const desired = parameters->pDesiredBssidList)
    {
        event.bssid.assign(reinterpret_cast<const char*>(desired->BSSIDs[0]), 6);
        event.oddity += IsForOne(*desired) ? "" : "desired list ";
    }
    return m_world.AnswerToRequest(++m_requests, !event.profile.empty());
}

int WorldText::MultiByteToWideChar(
    UINT codePage, DWORD flags, const char* source, int sourceLength, wchar_t* destination, int destinationLength)
{
    constexpr UINT utf8 = 65001;
    constexpr DWORD precomposed = 1;
    const DWORD taken = codePage == utf8 && m_world.convertsUtf8 ? flags & ~precomposed : flags;
    return m_inner.MultiByteToWideChar(codePage, taken, source, sourceLength, destination, destinationLength);
}

} // namespace calvix::test
