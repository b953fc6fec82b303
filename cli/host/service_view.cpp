#include "host/service_view.h"

#include "core/wlan_records.h"
#include "explain/failure_words.h"
#include "platform/platform.h"

#include <algorithm>

namespace calvix::host
{

using platform::wlan;

namespace
{

void Require(const char* operation, DWORD error)
{
    if (error != 0)
        throw ServiceFailure(operation, static_cast<std::uint32_t>(error));
}

/// The information elements follow the entries of the list; each entry has the distance from itself to them.
std::vector<std::uint8_t> ElementsOf(const WLAN_BSS_LIST& list, const WLAN_BSS_ENTRY& entry)
{
    const auto* const listBytes = reinterpret_cast<const std::uint8_t*>(&list);
    const auto* const entryBytes = reinterpret_cast<const std::uint8_t*>(&entry);
    const auto entryAt = static_cast<std::size_t>(entryBytes - listBytes);
    const std::size_t begin = entryAt + entry.ulIeOffset;
    if (begin > list.dwTotalSize || entry.ulIeSize > list.dwTotalSize - begin)
        return {};
    return {listBytes + begin, listBytes + begin + entry.ulIeSize};
}

/// Asks about an adapter.
template <typename Record>
DWORD Query(HANDLE client, const GUID* adapter, WLAN_INTF_OPCODE opcode, WlanMemory<Record>& answer)
{
    DWORD size = sizeof(Record);
    PVOID data = nullptr;
    const DWORD error = wlan().WlanQueryInterface(client, adapter, opcode, nullptr, &size, &data, nullptr);
    answer.Take(data);
    return error;
}

template <typename List>
auto CopyOf(const List& list)
{
    const auto items = Items(*list);
    return std::vector(items.begin(), items.end());
}

} // namespace

ServiceView::ServiceView()
{
    DWORD version = 0;
    Require("WlanOpenHandle", wlan().WlanOpenHandle(2, nullptr, &version, &m_client));
}

ServiceView::~ServiceView()
{
    wlan().WlanCloseHandle(m_client, nullptr);
}

std::vector<WLAN_PROFILE_INFO> ServiceView::Profiles(const GUID* adapter)
{
    ProfileList list;
    Require("WlanGetProfileList", wlan().WlanGetProfileList(m_client, adapter, nullptr, list.Receive()));
    return CopyOf(list);
}

std::vector<WLAN_AVAILABLE_NETWORK> ServiceView::Networks(const GUID* adapter)
{
    NetworkList list;
    Require("WlanGetAvailableNetworkList",
            wlan().WlanGetAvailableNetworkList(m_client, adapter, 0, nullptr, list.Receive()));
    return CopyOf(list);
}

std::vector<HeardAccessPoint> ServiceView::AccessPoints(const GUID* adapter)
{
    BssList list;
    Require("WlanGetNetworkBssList", wlan().WlanGetNetworkBssList(m_client, adapter, nullptr, dot11_BSS_type_any, FALSE,
                                                                  nullptr, list.Receive()));
    std::vector<HeardAccessPoint> heard;
    for (const WLAN_BSS_ENTRY& entry : Items(*list))
        heard.push_back({entry, ElementsOf(*list, entry)});
    return heard;
}

void ServiceView::AccessPointsOf(const GUID* adapter, const WLAN_AVAILABLE_NETWORK& network, BssList& list)
{
    Require("WlanGetNetworkBssList",
            wlan().WlanGetNetworkBssList(m_client, adapter, &network.dot11Ssid, network.dot11BssType,
                                         network.bSecurityEnabled, nullptr, list.Receive()));
}

std::optional<WLAN_CONNECTION_ATTRIBUTES> ServiceView::Connection(const GUID* adapter)
{
    ConnectionAttributes attributes;
    const DWORD error = Query(m_client, adapter, wlan_intf_opcode_current_connection, attributes);
    if (error == ERROR_INVALID_STATE)
        return std::nullopt;
    Require("WlanQueryInterface", error);
    return *attributes;
}

std::optional<bool> ServiceView::IsEnabled(const GUID* adapter, WLAN_INTF_OPCODE opcode)
{
    WlanMemory<BOOL> enabled;
    if (Query(m_client, adapter, opcode, enabled) != 0)
        return std::nullopt;
    return *enabled != FALSE;
}

std::vector<WLAN_PHY_RADIO_STATE> ServiceView::Radios(const GUID* adapter)
{
    WlanMemory<WLAN_RADIO_STATE> radio;
    if (Query(m_client, adapter, wlan_intf_opcode_radio_state, radio) != 0)
        return {};
    const WLAN_PHY_RADIO_STATE* const first = radio->PhyRadioState;
    return {first, first + (std::min)(radio->dwNumberOfPhys, DWORD{WLAN_MAX_PHY_INDEX})};
}

std::wstring ServiceView::ProfileDocument(const GUID* adapter, const wchar_t* name)
{
    ProfileText xml;
    Require("WlanGetProfile", wlan().WlanGetProfile(m_client, adapter, name, nullptr, xml.Receive(), nullptr, nullptr));
    return xml.get();
}

} // namespace calvix::host
