#include "model/plain_service.h"

#include "support/test_worlds.h"

namespace calvix::test
{

namespace
{

std::string BytesOf(const DOT11_MAC_ADDRESS& address)
{
    return {reinterpret_cast<const char*>(&address[0]), 6};
}

} // namespace

DWORD PlainService::Open()
{
    if (m_world.clientIsOpen)
        return 0;
    m_events.push_back({.operation = "WlanOpenHandle", .number = 2});
    return m_world.FailureOf("WlanOpenHandle");
}

DWORD PlainService::Adapters(std::vector<int>& adapters)
{
    m_events.push_back({.operation = "WlanEnumInterfaces"});
    if (const DWORD error = m_world.FailureOf("WlanEnumInterfaces"))
        return error;
    for (std::size_t number = 0; number < m_world.scenario.adapters.size(); ++number)
        adapters.push_back(static_cast<int>(number));
    return 0;
}

DWORD PlainService::Profiles(int adapter, std::vector<std::wstring>& names)
{
    m_events.push_back({.operation = "WlanGetProfileList", .adapter = adapter});
    if (const DWORD error = m_world.FailureOf("WlanGetProfileList"))
        return error;
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    if (const DWORD error = m_service.WlanGetProfileList(m_client, &AdapterGuid(adapter), nullptr, &list))
        return error;
    for (DWORD i = 0; i < list->dwNumberOfItems; ++i)
        names.emplace_back((list->ProfileInfo + i)->strProfileName);
    m_service.WlanFreeMemory(list);
    return 0;
}

DWORD PlainService::Networks(int adapter, std::vector<Network>& networks)
{
    m_events.push_back({.operation = "WlanGetAvailableNetworkList", .adapter = adapter});
    if (const DWORD error = m_world.FailureOf("WlanGetAvailableNetworkList"))
        return error;
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (const DWORD error = m_service.WlanGetAvailableNetworkList(m_client, &AdapterGuid(adapter), 0, nullptr, &list))
        return error;
    for (DWORD i = 0; i < list->dwNumberOfItems; ++i)
    {
        const WLAN_AVAILABLE_NETWORK& network = *(list->Network + i);
        const bool isUntagged = m_world.untaggedProfiles.count(network.strProfileName) != 0;
        networks.push_back({isUntagged ? L"" : network.strProfileName, BytesOf(network.dot11Ssid), network.dot11BssType,
                            network.bSecurityEnabled != FALSE, network.wlanSignalQuality});
    }
    m_service.WlanFreeMemory(list);
    return 0;
}

DWORD PlainService::Entries(
    int adapter, const std::string& ssid, unsigned bssType, bool secured, std::vector<Heard>& entries)
{
    m_events.push_back({.operation = "WlanGetNetworkBssList",
                        .adapter = adapter,
                        .ssid = ssid,
                        .number = bssType,
                        .secured = secured});
    if (m_world.failingSsids.count(ssid) != 0)
        return 31;
    WLAN_BSS_LIST* list = nullptr;
    const DOT11_SSID wanted = MakeSsid(m_world.silentSsids.count(ssid) != 0 ? "nobody" : ssid);
    if (const DWORD error = m_service.WlanGetNetworkBssList(m_client, &AdapterGuid(adapter), &wanted,
                                                            static_cast<DOT11_BSS_TYPE>(bssType),
                                                            secured ? TRUE : FALSE, nullptr, &list))
        return error;
    for (DWORD i = 0; i < list->dwNumberOfItems; ++i)
    {
        const WLAN_BSS_ENTRY& entry = *(list->wlanBssEntries + i);
        entries.push_back(
            {BytesOf(entry.dot11Ssid), BytesOf(entry.dot11Bssid), entry.ulChCenterFrequency, entry.uLinkQuality});
    }
    m_service.WlanFreeMemory(list);
    return 0;
}

DWORD PlainService::Connection(int adapter, Link& link)
{
    constexpr unsigned currentConnection = 7;
    m_events.push_back({.operation = "WlanQueryInterface", .adapter = adapter, .number = currentConnection});
    if (const DWORD error = m_world.FailureOf("WlanQueryInterface"))
        return error;
    DWORD size = sizeof(WLAN_CONNECTION_ATTRIBUTES);
    PVOID data = nullptr;
    if (const DWORD error = m_service.WlanQueryInterface(m_client, &AdapterGuid(adapter),
                                                         static_cast<WLAN_INTF_OPCODE>(currentConnection), nullptr,
                                                         &size, &data, nullptr))
        return error;
    const auto& record = *static_cast<const WLAN_CONNECTION_ATTRIBUTES*>(data);
    const WLAN_ASSOCIATION_ATTRIBUTES& association = record.wlanAssociationAttributes;
    link = {record.strProfileName,         BytesOf(association.dot11Ssid),
            association.dot11BssType,      BytesOf(association.dot11Bssid),
            association.wlanSignalQuality, record.wlanSecurityAttributes.bSecurityEnabled != FALSE};
    m_service.WlanFreeMemory(data);
    return 0;
}

DWORD PlainService::ProfileText(int adapter, const std::wstring& name, std::wstring& xml)
{
    m_events.push_back({.operation = "WlanGetProfile", .adapter = adapter, .profile = name, .number = 4});
    if (m_world.unreadableProfiles.count(name) != 0)
        return 5;
    wchar_t* text = nullptr;
    DWORD flags = 4;
    DWORD access = 0x20001;
    if (const DWORD error =
            m_service.WlanGetProfile(m_client, &AdapterGuid(adapter), name.c_str(), nullptr, &text, &flags, &access))
        return error;
    xml = text;
    m_service.WlanFreeMemory(text);
    return 0;
}

DWORD PlainService::Move(int adapter, const std::wstring& name, std::size_t position)
{
    m_events.push_back({.operation = "WlanSetProfilePosition",
                        .adapter = adapter,
                        .profile = name,
                        .number = static_cast<unsigned>(position)});
    return m_world.FailureOf("WlanSetProfilePosition");
}

DWORD PlainService::Connect(int adapter, const std::wstring& profile, unsigned bssType, const std::string& bssid)
{
    m_events.push_back(
        {.operation = "WlanConnect", .adapter = adapter, .profile = profile, .number = bssType, .bssid = bssid});
    return m_world.AnswerToRequest(++m_requests, !profile.empty());
}

} // namespace calvix::test
