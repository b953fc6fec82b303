#include "service/service_content.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <map>

namespace calvix::benchmarks
{

namespace
{

constexpr const wchar_t* kProfileXml = LR"(<?xml version="1.0"?>
<WLANProfile>
    <name>Network</name>
    <SSIDConfig>
        <SSID>
            <hex>4E6574776F726B</hex>
            <name>Network</name>
        </SSID>
    </SSIDConfig>
    <connectionType>ESS</connectionType>
    <connectionMode>auto</connectionMode>
    <MSM>
        <security>
            <authEncryption>
                <authentication>WPA2PSK</authentication>
                <encryption>AES</encryption>
                <useOneX>false</useOneX>
            </authEncryption>
            <sharedKey>
                <keyType>passPhrase</keyType>
                <protected>false</protected>
                <keyMaterial>a key of some length</keyMaterial>
            </sharedKey>
        </security>
    </MSM>
</WLANProfile>
)";

template <typename Record>
Block BlockOf(const Record* first, std::size_t count)
{
    const auto* const bytes = reinterpret_cast<const std::byte*>(first);
    return {bytes, bytes + count * sizeof(Record)};
}

/// A list record: the number of items at `countOffset`, the items from `offset` on.
template <typename Item>
Block ListOf(const std::vector<Item>& items, std::size_t countOffset, std::size_t offset)
{
    Block block(offset + items.size() * sizeof(Item));
    const DWORD count = static_cast<DWORD>(items.size());
    std::memcpy(block.data() + countOffset, &count, sizeof(count));
    std::memcpy(block.data() + offset, items.data(), items.size() * sizeof(Item));
    return block;
}

void SetSsid(DOT11_SSID& ssid, std::size_t index)
{
    const std::string text = "network-" + std::to_string(index);
    ssid.uSSIDLength = static_cast<ULONG>(text.size());
    std::copy(text.begin(), text.end(), ssid.ucSSID);
}

WLAN_INTERFACE_INFO Interface()
{
    WLAN_INTERFACE_INFO info{};
    constexpr wchar_t description[] = L"Wireless Adapter";
    std::copy(std::begin(description), std::end(description), info.strInterfaceDescription);
    info.isState = wlan_interface_state_connected;
    return info;
}

WLAN_PROFILE_INFO Profile(std::size_t index)
{
    WLAN_PROFILE_INFO profile{};
    const std::wstring name = ProfileName(index);
    std::copy(name.begin(), name.end(), profile.strProfileName);
    return profile;
}

/// The service leaves the profile name of a network without a stored profile empty.
WLAN_AVAILABLE_NETWORK Network(std::size_t index, const std::wstring& profileName, std::size_t accessPoints)
{
    WLAN_AVAILABLE_NETWORK network{};
    std::copy(profileName.begin(), profileName.end(), network.strProfileName);
    SetSsid(network.dot11Ssid, index);
    network.dot11BssType = dot11_BSS_type_infrastructure;
    network.uNumberOfBssids = static_cast<ULONG>(accessPoints);
    network.bNetworkConnectable = 1;
    network.wlanSignalQuality = static_cast<ULONG>(index * 37 % 100);
    network.bSecurityEnabled = 1;
    return network;
}

/// The one that the connection goes through comes first, and the others look better.
WLAN_BSS_ENTRY AccessPoint(std::size_t index)
{
    WLAN_BSS_ENTRY entry{};
    SetSsid(entry.dot11Ssid, index);
    entry.dot11Bssid[4] = static_cast<UCHAR>(index >> 8);
    entry.dot11Bssid[5] = static_cast<UCHAR>(index & 0xFF);
    entry.dot11BssType = dot11_BSS_type_infrastructure;
    entry.lRssi = -60;
    entry.uLinkQuality = index == 0 ? 50 : 70;
    entry.ulChCenterFrequency = index % 2 == 0 ? 2412000 : 5180000;
    return entry;
}

std::vector<WLAN_BSS_ENTRY> AccessPoints(const Shape& shape)
{
    std::vector<WLAN_BSS_ENTRY> entries;
    entries.reserve(shape.accessPoints);
    for (std::size_t index = 0; index < shape.accessPoints; ++index)
        entries.push_back(AccessPoint(index));
    return entries;
}

std::vector<WLAN_PROFILE_INFO> Profiles(const Shape& shape)
{
    std::vector<WLAN_PROFILE_INFO> profiles;
    profiles.reserve(shape.profiles);
    for (std::size_t index = 0; index < shape.profiles; ++index)
        profiles.push_back(Profile(index));
    return profiles;
}

std::vector<WLAN_AVAILABLE_NETWORK> Networks(const Shape& shape)
{
    std::vector<WLAN_AVAILABLE_NETWORK> networks;
    networks.reserve(shape.networks);
    const std::size_t distance = shape.networks / shape.matches;
    std::size_t matches = 0;
    for (std::size_t index = 0; index < shape.networks; ++index)
    {
        if (shape.lastOnly)
        {
            const bool last = index + 1 == shape.networks;
            networks.push_back(
                Network(index, last ? ProfileName(shape.profiles - 1) : std::wstring(), shape.accessPoints));
            continue;
        }
        const bool matching = index % distance == 0 && matches < shape.matches;
        networks.push_back(Network(index, matching ? ProfileName(matches++) : std::wstring(), shape.accessPoints));
    }
    return networks;
}

WLAN_CONNECTION_ATTRIBUTES Connection()
{
    WLAN_CONNECTION_ATTRIBUTES connection{};
    connection.isState = wlan_interface_state_connected;
    const std::wstring name = ProfileName(0);
    std::copy(name.begin(), name.end(), connection.strProfileName);
    SetSsid(connection.wlanAssociationAttributes.dot11Ssid, 0);
    connection.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_infrastructure;
    connection.wlanAssociationAttributes.wlanSignalQuality = 73;
    connection.wlanSecurityAttributes.bSecurityEnabled = TRUE;
    return connection;
}

WLAN_RADIO_STATE Radio()
{
    WLAN_RADIO_STATE radio{};
    radio.dwNumberOfPhys = 1;
    radio.PhyRadioState[0].dot11SoftwareRadioState = dot11_radio_state_on;
    radio.PhyRadioState[0].dot11HardwareRadioState = dot11_radio_state_on;
    return radio;
}

} // namespace

std::wstring ProfileName(std::size_t index)
{
    return L"Wireless network " + std::to_wstring(index);
}

std::wstring ProfileXml()
{
    return kProfileXml;
}

ServiceContent::ServiceContent(const Shape& shape)
    : interfaces(ListOf(std::vector{Interface()},
                        offsetof(WLAN_INTERFACE_INFO_LIST, dwNumberOfItems),
                        offsetof(WLAN_INTERFACE_INFO_LIST, InterfaceInfo))),
      profiles(ListOf(Profiles(shape),
                      offsetof(WLAN_PROFILE_INFO_LIST, dwNumberOfItems),
                      offsetof(WLAN_PROFILE_INFO_LIST, ProfileInfo))),
      networks(ListOf(Networks(shape),
                      offsetof(WLAN_AVAILABLE_NETWORK_LIST, dwNumberOfItems),
                      offsetof(WLAN_AVAILABLE_NETWORK_LIST, Network))),
      accessPoints(ListOf(
          AccessPoints(shape), offsetof(WLAN_BSS_LIST, dwNumberOfItems), offsetof(WLAN_BSS_LIST, wlanBssEntries))),
      profileXml(BlockOf(kProfileXml, std::wstring(kProfileXml).size() + 1))
{
    const WLAN_CONNECTION_ATTRIBUTES current = Connection();
    connection = BlockOf(&current, 1);
    const WLAN_RADIO_STATE on = Radio();
    radio = BlockOf(&on, 1);
    const WLAN_STATISTICS frames{};
    statistics = BlockOf(&frames, 1);
    const LONG rssi = -60;
    number = BlockOf(&rssi, 1);
    const WLAN_POWER_SETTING none = wlan_power_setting_no_saving;
    powerSetting = BlockOf(&none, 1);
}

const Block& ServiceContent::AnswerTo(WLAN_INTF_OPCODE opcode) const
{
    switch (opcode)
    {
    case wlan_intf_opcode_current_connection:
        return connection;
    case wlan_intf_opcode_radio_state:
        return radio;
    case wlan_intf_opcode_statistics:
        return statistics;
    default:
        return number;
    }
}

const ServiceContent& ContentOf(const Shape& shape)
{
    static std::map<Shape, ServiceContent> contents;
    return contents.try_emplace(shape, shape).first->second;
}

} // namespace calvix::benchmarks
