#include "model/plain_service.h"

#include "support/test_scenarios.h"

#include <utility>

namespace calvix::test
{

namespace
{

template <typename Data, typename Ask>
const Answer<Data>& Once(std::optional<Answer<Data>>& known, Ask ask)
{
    if (!known)
        known = ask();
    return *known;
}

} // namespace

PlainService::PlainService(const Situation& situation, platform::WlanService& service)
    : m_situation(situation), m_service(service)
{
    DWORD version = 0;
    m_service.WlanOpenHandle(2, nullptr, &version, &m_client);
}

std::vector<Event> PlainService::TakeEvents()
{
    m_requests = 0;
    return std::exchange(m_events, {});
}

DWORD PlainService::Open()
{
    if (m_situation.clientIsOpen)
        return 0;
    m_events.push_back({.operation = "WlanOpenHandle", .number = 2});
    return m_situation.FailureOf("WlanOpenHandle");
}

Answer<std::vector<int>> PlainService::Adapters()
{
    m_events.push_back({.operation = "WlanEnumInterfaces"});
    Answer<std::vector<int>> answer{m_situation.FailureOf("WlanEnumInterfaces")};
    for (std::size_t number = 0; number < m_situation.scenario.adapters.size(); ++number)
        answer.data.push_back(static_cast<int>(number));
    return answer;
}

const Answer<std::vector<std::wstring>>& PlainService::Profiles(int adapter)
{
    m_events.push_back({.operation = "WlanGetProfileList", .adapter = adapter});
    return Once(m_profiles[adapter], [&] { return AskProfiles(AdapterGuid(adapter)); });
}

Answer<std::vector<std::wstring>> PlainService::AskProfiles(const GUID& adapter)
{
    if (const DWORD error = m_situation.FailureOf("WlanGetProfileList"))
        return {error};
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    if (const DWORD error = m_service.WlanGetProfileList(m_client, &adapter, nullptr, &list))
        return {error};
    Answer<std::vector<std::wstring>> answer;
    for (DWORD i = 0; i < list->dwNumberOfItems; ++i)
        answer.data.emplace_back((list->ProfileInfo + i)->strProfileName);
    m_service.WlanFreeMemory(list);
    return answer;
}

const Answer<std::vector<Network>>& PlainService::Networks(int adapter)
{
    m_events.push_back({.operation = "WlanGetAvailableNetworkList", .adapter = adapter});
    return Once(m_networks[adapter], [&] { return AskNetworks(AdapterGuid(adapter)); });
}

Answer<std::vector<Network>> PlainService::AskNetworks(const GUID& adapter)
{
    if (const DWORD error = m_situation.FailureOf("WlanGetAvailableNetworkList"))
        return {error};
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    if (const DWORD error = m_service.WlanGetAvailableNetworkList(m_client, &adapter, 0, nullptr, &list))
        return {error};
    Answer<std::vector<Network>> answer;
    for (DWORD i = 0; i < list->dwNumberOfItems; ++i)
    {
        const WLAN_AVAILABLE_NETWORK& network = *(list->Network + i);
        const bool isUntagged = m_situation.untaggedProfiles.count(network.strProfileName) != 0;
        answer.data.push_back({isUntagged ? L"" : network.strProfileName, BytesOf(network.dot11Ssid),
                               network.dot11BssType, network.bSecurityEnabled != FALSE, network.wlanSignalQuality});
    }
    m_service.WlanFreeMemory(list);
    return answer;
}

const Answer<std::vector<Heard>>&
PlainService::Entries(int adapter, const std::string& ssid, unsigned bssType, bool secured)
{
    m_events.push_back({.operation = "WlanGetNetworkBssList",
                        .adapter = adapter,
                        .ssid = ssid,
                        .number = bssType,
                        .secured = secured});
    return Once(m_entries[{adapter, ssid, bssType, secured}],
                [&] { return AskEntries(AdapterGuid(adapter), m_events.back()); });
}

Answer<std::vector<Heard>> PlainService::AskEntries(const GUID& adapter, const Event& question)
{
    if (m_situation.failingSsids.count(question.ssid) != 0)
        return {31};
    WLAN_BSS_LIST* list = nullptr;
    const DOT11_SSID wanted = MakeSsid(m_situation.silentSsids.count(question.ssid) != 0 ? "nobody" : question.ssid);
    if (const DWORD error =
            m_service.WlanGetNetworkBssList(m_client, &adapter, &wanted, static_cast<DOT11_BSS_TYPE>(question.number),
                                            question.secured ? TRUE : FALSE, nullptr, &list))
        return {error};
    Answer<std::vector<Heard>> answer;
    for (DWORD i = 0; i < list->dwNumberOfItems; ++i)
        answer.data.push_back(HeardIn(*(list->wlanBssEntries + i)));
    m_service.WlanFreeMemory(list);
    return answer;
}

const Answer<Link>& PlainService::Connection(int adapter)
{
    m_events.push_back({.operation = "WlanQueryInterface",
                        .adapter = adapter,
                        .number = static_cast<unsigned>(wlan_intf_opcode_current_connection)});
    return Once(m_connections[adapter], [&] { return AskConnection(AdapterGuid(adapter)); });
}

Answer<Link> PlainService::AskConnection(const GUID& adapter)
{
    if (const DWORD error = m_situation.FailureOf("WlanQueryInterface"))
        return {error};
    DWORD size = sizeof(WLAN_CONNECTION_ATTRIBUTES);
    PVOID data = nullptr;
    if (const DWORD error = m_service.WlanQueryInterface(m_client, &adapter, wlan_intf_opcode_current_connection,
                                                         nullptr, &size, &data, nullptr))
        return {error};
    const auto& record = *static_cast<const WLAN_CONNECTION_ATTRIBUTES*>(data);
    const WLAN_ASSOCIATION_ATTRIBUTES& association = record.wlanAssociationAttributes;
    const Answer<Link> answer{.data = {record.strProfileName, BytesOf(association.dot11Ssid), association.dot11BssType,
                                       BytesOf(association.dot11Bssid), association.wlanSignalQuality,
                                       record.wlanSecurityAttributes.bSecurityEnabled != FALSE}};
    m_service.WlanFreeMemory(data);
    return answer;
}

const Answer<std::wstring>& PlainService::ProfileText(int adapter, const std::wstring& name)
{
    m_events.push_back({.operation = "WlanGetProfile", .adapter = adapter, .profile = name, .number = 4});
    return Once(m_texts[{adapter, name}], [&] { return AskProfileText(AdapterGuid(adapter), name); });
}

Answer<std::wstring> PlainService::AskProfileText(const GUID& adapter, const std::wstring& name)
{
    if (m_situation.unreadableProfiles.count(name) != 0)
        return {5};
    wchar_t* text = nullptr;
    DWORD flags = 4;
    DWORD access = 0x20001;
    if (const DWORD error = m_service.WlanGetProfile(m_client, &adapter, name.c_str(), nullptr, &text, &flags, &access))
        return {error};
    const Answer<std::wstring> answer{.data = text};
    m_service.WlanFreeMemory(text);
    return answer;
}

DWORD PlainService::Move(int adapter, const std::wstring& name, std::size_t position)
{
    m_events.push_back({.operation = "WlanSetProfilePosition",
                        .adapter = adapter,
                        .profile = name,
                        .number = static_cast<unsigned>(position)});
    return m_situation.FailureOf("WlanSetProfilePosition");
}

DWORD PlainService::Connect(int adapter, const std::wstring& profile, unsigned bssType, const std::string& bssid)
{
    m_events.push_back(
        {.operation = "WlanConnect", .adapter = adapter, .profile = profile, .number = bssType, .bssid = bssid});
    return m_situation.AnswerToRequest(++m_requests, !profile.empty());
}

} // namespace calvix::test
