#include "by_hand.h"

#include "core/memory.h"
#include "core/wlan_records.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

namespace calvix::benchmarks
{

using platform::wlan;

namespace
{

template <typename Record>
bool Query(HANDLE client, const GUID* adapter, WLAN_INTF_OPCODE opcode, WlanMemory<Record>& block)
{
    DWORD size = sizeof(Record);
    return wlan().WlanQueryInterface(client, adapter, opcode, nullptr, &size, reinterpret_cast<PVOID*>(block.Receive()),
                                     nullptr) == 0;
}

bool ReadXml(HANDLE client, const GUID* adapter, const wchar_t* name, ProfileText& xml)
{
    DWORD flags = WLAN_PROFILE_GET_PLAINTEXT_KEY;
    DWORD access = 0;
    return wlan().WlanGetProfile(client, adapter, name, nullptr, xml.Receive(), &flags, &access) == 0;
}

bool ReadEntries(HANDLE client, const GUID* adapter, const WLAN_AVAILABLE_NETWORK& network, BssList& entries)
{
    return wlan().WlanGetNetworkBssList(client, adapter, &network.dot11Ssid, network.dot11BssType,
                                        network.bSecurityEnabled, nullptr, entries.Receive()) == 0;
}

/// The stored profiles and the networks in view.
struct Lists
{
    Lists(HANDLE client, const GUID* adapter)
        : complete(wlan().WlanGetProfileList(client, adapter, nullptr, profiles.Receive()) == 0 &&
                   wlan().WlanGetAvailableNetworkList(client, adapter, 0, nullptr, networks.Receive()) == 0)
    {
    }

    /// Every network that carries a profile's name.
    template <typename Visit>
    void VisitMatches(Visit visit) const
    {
        for (const WLAN_PROFILE_INFO& profile : Items(*profiles))
            for (DWORD index = 0; index < networks->dwNumberOfItems; ++index)
                if (std::wcscmp(profile.strProfileName, networks->Network[index].strProfileName) == 0)
                    visit(profile.strProfileName, networks->Network[index]);
    }

    ProfileList profiles;
    NetworkList networks;
    bool complete;
};

bool IsAutomatic(HANDLE client, const GUID* adapter, const wchar_t* name)
{
    ProfileText xml;
    return ReadXml(client, adapter, name, xml) && std::wcsstr(xml.get(), L"<connectionMode>auto<") != nullptr;
}

/// Networks with an access point above 2.4 GHz win by ten.
void PreferFiveGigahertz(std::vector<WLAN_AVAILABLE_NETWORK*>& candidates, const WLAN_BSS_LIST& entries)
{
    constexpr ULONG kAbove24GigahertzKhz = 2'500'000;
    for (WLAN_AVAILABLE_NETWORK* const candidate : candidates)
        for (const WLAN_BSS_ENTRY& entry : Items(entries))
        {
            const bool same =
                std::memcmp(entry.dot11Ssid.ucSSID, candidate->dot11Ssid.ucSSID, entry.dot11Ssid.uSSIDLength) == 0;
            if (same && entry.ulChCenterFrequency > kAbove24GigahertzKhz)
                candidate->wlanSignalQuality = (std::min)(candidate->wlanSignalQuality + 10, 100UL);
        }
}

} // namespace

ByHand::ByHand()
{
    DWORD version = 0;
    wlan().WlanOpenHandle(2, nullptr, &version, &m_client);
}

ByHand::~ByHand()
{
    wlan().WlanCloseHandle(m_client, nullptr);
}

int ByHand::GetWlanStatus(const GUID* adapter)
{
    InterfaceList list;
    if (wlan().WlanEnumInterfaces(m_client, nullptr, list.Receive()) != 0)
        return -1;
    for (const WLAN_INTERFACE_INFO& info : Items(*list))
        if (SameInterface(info.InterfaceGuid, adapter))
            return static_cast<int>(info.isState);
    return -1;
}

int ByHand::PhyRadioIsOn(const GUID* adapter)
{
    WlanMemory<WLAN_RADIO_STATE> state;
    if (!Query(m_client, adapter, wlan_intf_opcode_radio_state, state) || state->dwNumberOfPhys == 0)
        return 0;
    const WLAN_PHY_RADIO_STATE& first = state->PhyRadioState[0];
    const bool on =
        first.dot11SoftwareRadioState == dot11_radio_state_on && first.dot11HardwareRadioState == dot11_radio_state_on;
    return on ? 1 : 0;
}

int ByHand::GetRssi(const GUID* adapter, int& rssi)
{
    WlanMemory<LONG> value;
    if (!Query(m_client, adapter, wlan_intf_opcode_rssi, value))
        return -4;
    rssi = static_cast<int>(*value);
    return 0;
}

int ByHand::GetSignalQuality(const GUID* adapter)
{
    ConnectionAttributes connection;
    if (!Query(m_client, adapter, wlan_intf_opcode_current_connection, connection))
        return -4;
    return static_cast<int>(connection->wlanAssociationAttributes.wlanSignalQuality);
}

int ByHand::GetCurrentConnection(const GUID* adapter, WLAN_CONNECTION_ATTRIBUTES* attributes)
{
    ConnectionAttributes connection;
    if (!Query(m_client, adapter, wlan_intf_opcode_current_connection, connection))
        return -4;
    *attributes = *connection;
    return 0;
}

int ByHand::Rescan(const GUID* adapter, unsigned long& error)
{
    error = wlan().WlanScan(m_client, adapter, nullptr, nullptr, nullptr);
    return error == 0 ? 0 : -4;
}

int ByHand::GetAvailableNetworkCount(const GUID* adapter)
{
    NetworkList list;
    if (wlan().WlanGetAvailableNetworkList(m_client, adapter, 0, nullptr, list.Receive()) != 0)
        return -5;
    return static_cast<int>(list->dwNumberOfItems);
}

int ByHand::GetNetworkBssCount()
{
    InterfaceList adapters;
    BssList entries;
    if (wlan().WlanEnumInterfaces(m_client, nullptr, adapters.Receive()) != 0 || adapters->dwNumberOfItems == 0 ||
        wlan().WlanGetNetworkBssList(m_client, &adapters->InterfaceInfo[0].InterfaceGuid, nullptr, dot11_BSS_type_any,
                                     FALSE, nullptr, entries.Receive()) != 0)
        return -4;
    return static_cast<int>(entries->dwNumberOfItems);
}

int ByHand::GetProfile(const GUID* adapter, const wchar_t* name, wchar_t* xml, int capacity)
{
    ProfileText document;
    if (!ReadXml(m_client, adapter, name, document))
        return -4;
    const std::size_t length = (std::min)(std::wcslen(document.get()), static_cast<std::size_t>(capacity) - 1);
    std::wmemcpy(xml, document.get(), length);
    xml[length] = L'\0';
    return 0;
}

int ByHand::GetConnectableNetworkCount(const GUID* adapter)
{
    const Lists lists(m_client, adapter);
    if (!lists.complete)
        return -5;
    int count = 0;
    lists.VisitMatches([&](const wchar_t*, const WLAN_AVAILABLE_NETWORK&) { ++count; });
    return count;
}

int ByHand::GetMatchAPList(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* list)
{
    list->clear();
    const Lists lists(m_client, adapter);
    if (!lists.complete)
        return -5;
    lists.VisitMatches(
        [&](const wchar_t*, const WLAN_AVAILABLE_NETWORK& network)
        {
            BssList entries;
            if (ReadEntries(m_client, adapter, network, entries))
                list->insert(list->end(), entries->wlanBssEntries, entries->wlanBssEntries + entries->dwNumberOfItems);
        });
    return static_cast<int>(list->size());
}

int ByHand::ConnectBestAP(const GUID* adapter)
{
    const Lists lists(m_client, adapter);
    if (!lists.complete)
        return -4;
    std::vector<WLAN_AVAILABLE_NETWORK*> candidates;
    lists.VisitMatches(
        [&](const wchar_t* profile, WLAN_AVAILABLE_NETWORK& network)
        {
            if (IsAutomatic(m_client, adapter, profile))
                candidates.push_back(&network);
        });
    BssList entries;
    if (candidates.empty() ||
        !ReadEntries(m_client, adapter, lists.networks->Network[lists.networks->dwNumberOfItems - 1], entries))
        return -10;
    PreferFiveGigahertz(candidates, *entries);
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const WLAN_AVAILABLE_NETWORK* left, const WLAN_AVAILABLE_NETWORK* right)
                     { return left->wlanSignalQuality < right->wlanSignalQuality; });
    for (const WLAN_AVAILABLE_NETWORK* const candidate : candidates)
    {
        WLAN_CONNECTION_PARAMETERS parameters{};
        parameters.strProfile = candidate->strProfileName;
        parameters.dot11BssType = candidate->dot11BssType;
        if (wlan().WlanConnect(m_client, adapter, &parameters, nullptr) == 0)
            return 0;
    }
    return -12;
}

} // namespace calvix::benchmarks
