#include "forms/channel.h"
#include "simulation/service_records.h"
#include "simulation/wlan_service.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace calvix::simulation
{

namespace
{

// The mode of an ordinary station, as every adapter has been called since the interface knows other modes.
constexpr ULONG extensibleStation = 4;

template <typename Record>
Record* NewAnswer(Blocks& blocks, std::size_t size = sizeof(Record))
{
    return NewRecord<Record>(blocks, size, "query result");
}

// Chosen: the best rate that each kind of PHY commonly reaches with two antennas, in kbit/s, and the worst of all
// for others.
ULONG LinkRate(std::uint32_t phyType)
{
    struct KindRate
    {
        std::uint32_t phyType;
        ULONG rate;
    };
    constexpr KindRate rates[] = {{dot11_phy_type_ofdm, 54'000},
                                  {dot11_phy_type_hrdsss, 11'000},
                                  {dot11_phy_type_erp, 54'000},
                                  {dot11_phy_type_ht, 144'400},
                                  {8, 866'700},
                                  {10, 1'201'000},
                                  {11, 2'882'400}};
    const auto* const found = std::find_if(std::begin(rates), std::end(rates),
                                           [phyType](const KindRate& entry) { return entry.phyType == phyType; });
    return found != std::end(rates) ? found->rate : 1'000;
}

WLAN_ASSOCIATION_ATTRIBUTES Association(const Adapter& adapter)
{
    const Link& link = *adapter.CurrentLink();
    WLAN_ASSOCIATION_ATTRIBUTES association{};
    association.dot11Ssid = MakeSsid(link.accessPoint.ssid);
    association.dot11BssType = static_cast<DOT11_BSS_TYPE>(link.accessPoint.bssType);
    std::copy(link.accessPoint.bssid.begin(), link.accessPoint.bssid.end(), association.dot11Bssid);
    association.dot11PhyType = static_cast<DOT11_PHY_TYPE>(link.accessPoint.phyType);
    association.uDot11PhyIndex = PhyIndex(adapter.Phys(), link.accessPoint.phyType);
    association.wlanSignalQuality = SignalQuality(adapter.LinkRssi());
    const ULONG common = LinkRate(link.accessPoint.phyType);
    association.ulRxRate = link.receiveKbps != 0 ? link.receiveKbps : common;
    association.ulTxRate = link.transmitKbps != 0 ? link.transmitKbps : common;
    return association;
}

InterfaceAnswer AnswerConnection(Blocks& blocks, const Adapter& adapter)
{
    const ProfileDocument& profile = adapter.CurrentLink()->Profile();
    auto* const answer = NewAnswer<WLAN_CONNECTION_ATTRIBUTES>(blocks);
    answer->isState = adapter.State();
    answer->wlanConnectionMode = adapter.CurrentLink()->request.mode;
    CopyText(profile.name, answer->strProfileName);
    answer->wlanAssociationAttributes = Association(adapter);
    answer->wlanSecurityAttributes.bSecurityEnabled = IsSecured(profile.security) ? TRUE : FALSE;
    answer->wlanSecurityAttributes.bOneXEnabled = UsesOneX(profile.security) ? TRUE : FALSE;
    answer->wlanSecurityAttributes.dot11AuthAlgorithm = profile.security.authentication;
    answer->wlanSecurityAttributes.dot11CipherAlgorithm = profile.security.encryption;
    return {answer, sizeof(*answer)};
}

// The record has room for the most PHYs that there can be, and is handed out whole.
InterfaceAnswer AnswerRadioState(Blocks& blocks, const Adapter& adapter)
{
    auto* const answer = NewAnswer<WLAN_RADIO_STATE>(blocks);
    for (const PhyDescription& phy : adapter.Phys())
    {
        answer->PhyRadioState[answer->dwNumberOfPhys] = RadioRecord(answer->dwNumberOfPhys, phy);
        ++answer->dwNumberOfPhys;
    }
    return {answer, sizeof(*answer)};
}

// Chosen: all frames are unicast, and all went through the first PHY.
InterfaceAnswer AnswerStatistics(Blocks& blocks, const Adapter& adapter)
{
    const std::size_t phys = std::max<std::size_t>(adapter.Phys().size(), 1);
    const std::size_t size = sizeof(WLAN_STATISTICS) + (phys - 1) * sizeof(WLAN_PHY_FRAME_STATISTICS);
    auto* const answer = NewAnswer<WLAN_STATISTICS>(blocks, size);
    const Statistics& counts = adapter.FrameCounts();
    answer->MacUcastCounters.ullTransmittedFrameCount = counts.transmitted;
    answer->MacUcastCounters.ullReceivedFrameCount = counts.received;
    answer->dwNumberOfPhys = static_cast<DWORD>(adapter.Phys().size());
    answer->PhyCounters[0].ullTransmittedFrameCount = counts.transmitted;
    answer->PhyCounters[0].ullReceivedFrameCount = counts.received;
    return {answer, size};
}

InterfaceAnswer AnswerSuites(Blocks& blocks, const std::vector<SecuritySuite>& suites)
{
    constexpr std::size_t header = offsetof(WLAN_AUTH_CIPHER_PAIR_LIST, pAuthCipherPairList);
    const std::size_t size = header + suites.size() * sizeof(DOT11_AUTH_CIPHER_PAIR);
    auto* const answer = NewAnswer<WLAN_AUTH_CIPHER_PAIR_LIST>(blocks, size);
    answer->dwNumberOfItems = static_cast<DWORD>(suites.size());
    // Some SDKs declare the pairs as one.
    auto* pair = reinterpret_cast<DOT11_AUTH_CIPHER_PAIR*>(reinterpret_cast<char*>(answer) + header);
    for (const SecuritySuite& suite : suites)
        *pair++ = {suite.authentication, suite.encryption};
    return {answer, size};
}

// Chosen: the world, which is written with two blanks and an X, and nothing else.
InterfaceAnswer AnswerCountries(Blocks& blocks)
{
    auto* const answer = NewAnswer<WLAN_COUNTRY_OR_REGION_STRING_LIST>(blocks);
    answer->dwNumberOfItems = 1;
    std::memcpy(answer->pCountryOrRegionStringList[0], "  X", sizeof(DOT11_COUNTRY_OR_REGION_STRING));
    return {answer, sizeof(*answer)};
}

BOOL Boolean(bool value)
{
    return value ? TRUE : FALSE;
}

// The opcode's number: some SDKs lack it.
constexpr unsigned int managementFrameProtection = 16;

// Chosen, for what is the same on every simulated adapter: the mode of a station, safe mode supported but not certified,
// management frames protected where asked for, no hosted network.
std::optional<InterfaceAnswer> AnswerInterface(Blocks& blocks, const Adapter& adapter, WLAN_INTF_OPCODE opcode)
{
    switch (static_cast<unsigned int>(opcode))
    {
    case wlan_intf_opcode_autoconf_enabled:
        return AnswerNumber(blocks, Boolean(adapter.HasAutoConfiguration()));
    case wlan_intf_opcode_background_scan_enabled:
        return AnswerNumber(blocks, Boolean(adapter.HasBackgroundScan()));
    case wlan_intf_opcode_radio_state:
        return AnswerRadioState(blocks, adapter);
    case wlan_intf_opcode_bss_type:
        return AnswerNumber(blocks, adapter.BssType());
    case wlan_intf_opcode_interface_state:
        return AnswerNumber(blocks, adapter.State());
    case wlan_intf_opcode_current_connection:
        return AnswerConnection(blocks, adapter);
    case wlan_intf_opcode_channel_number:
        return AnswerNumber(blocks,
                            static_cast<ULONG>(forms::ChannelNumber(adapter.CurrentLink()->accessPoint.frequencyKhz)));
    case wlan_intf_opcode_current_operation_mode:
        return AnswerNumber(blocks, extensibleStation);
    case wlan_intf_opcode_supported_infrastructure_auth_cipher_pairs:
        return AnswerSuites(blocks, SupportedSuites());
    case wlan_intf_opcode_supported_adhoc_auth_cipher_pairs:
        return AnswerSuites(blocks, {SecuritySuite{}});
    case wlan_intf_opcode_supported_country_or_region_string_list:
        return AnswerCountries(blocks);
    case wlan_intf_opcode_supported_safe_mode:
    case managementFrameProtection:
        return AnswerNumber(blocks, TRUE);
    case wlan_intf_opcode_media_streaming_mode:
        return AnswerNumber(blocks, Boolean(adapter.HasMediaStreaming()));
    case wlan_intf_opcode_certified_safe_mode:
    case wlan_intf_opcode_hosted_network_capable:
        return AnswerNumber(blocks, FALSE);
    case wlan_intf_opcode_statistics:
        return AnswerStatistics(blocks, adapter);
    case wlan_intf_opcode_rssi:
        return AnswerNumber(blocks, adapter.LinkRssi()); // the platform's LONG, which has 4 bytes
    default:
        return std::nullopt;
    }
}

// Chosen: a connection that is only just being made or given up does not count, unless a driver reports one that
// stands as such in passing.
bool IsConnected(const Adapter& adapter)
{
    return adapter.CurrentLink() != nullptr && adapter.State() != wlan_interface_state_disconnected &&
           adapter.State() != wlan_interface_state_not_ready;
}

bool NeedsConnection(WLAN_INTF_OPCODE opcode)
{
    return opcode == wlan_intf_opcode_current_connection || opcode == wlan_intf_opcode_rssi ||
           opcode == wlan_intf_opcode_channel_number;
}

constexpr ULONG networkMonitor = 0x80000000;

DWORD SetAutoConfiguration(Adapter& adapter, BOOL enabled)
{
    adapter.SetAutoConfiguration(enabled != FALSE);
    return ERROR_SUCCESS;
}

// Only a connected adapter takes this setting.
DWORD SetBackgroundScan(Adapter& adapter, BOOL enabled)
{
    if (!IsConnected(adapter))
        return ERROR_INVALID_STATE;
    adapter.SetBackgroundScan(enabled != FALSE);
    return ERROR_SUCCESS;
}

DWORD SetMediaStreaming(Adapter& adapter, BOOL enabled)
{
    adapter.SetMediaStreaming(enabled != FALSE);
    return ERROR_SUCCESS;
}

DWORD SetBssType(Adapter& adapter, DOT11_BSS_TYPE type)
{
    if (type < dot11_BSS_type_infrastructure || type > dot11_BSS_type_any)
        return ERROR_INVALID_PARAMETER;
    adapter.SetBssType(type);
    return ERROR_SUCCESS;
}

// There is no adapter that could listen to everybody's frames.
DWORD SetOperationMode(Adapter&, ULONG mode)
{
    if (mode == networkMonitor)
        return ERROR_NOT_SUPPORTED;
    return mode == extensibleStation ? ERROR_SUCCESS : ERROR_INVALID_PARAMETER;
}

// Only the software switch can be thrown; what the record says of the hardware is not looked at.
DWORD SetRadio(Adapter& adapter, WLAN_PHY_RADIO_STATE state)
{
    const bool isOn = state.dot11SoftwareRadioState == dot11_radio_state_on;
    const bool isOff = state.dot11SoftwareRadioState == dot11_radio_state_off;
    if (state.dwPhyIndex >= adapter.Phys().size() || (!isOn && !isOff))
        return ERROR_INVALID_PARAMETER;
    const RadioSwitch hardware = adapter.Phys()[state.dwPhyIndex].hardware;
    adapter.SetRadio(state.dwPhyIndex, isOn ? RadioSwitch::on : RadioSwitch::off, hardware);
    return ERROR_SUCCESS;
}

template <typename Value, DWORD (*set)(Adapter&, Value)>
DWORD SetFrom(Adapter& adapter, DWORD size, const void* data)
{
    Value value{};
    if (size != sizeof(value))
        return ERROR_INVALID_PARAMETER;
    std::memcpy(&value, data, sizeof(value));
    return set(adapter, value);
}

/// What programs can set.
struct Setting
{
    WLAN_INTF_OPCODE opcode;
    DWORD (*set)(Adapter& adapter, DWORD size, const void* data);
};

constexpr Setting settings[] = {
    {wlan_intf_opcode_autoconf_enabled, SetFrom<BOOL, SetAutoConfiguration>},
    {wlan_intf_opcode_background_scan_enabled, SetFrom<BOOL, SetBackgroundScan>},
    {wlan_intf_opcode_media_streaming_mode, SetFrom<BOOL, SetMediaStreaming>},
    {wlan_intf_opcode_radio_state, SetFrom<WLAN_PHY_RADIO_STATE, SetRadio>},
    {wlan_intf_opcode_bss_type, SetFrom<DOT11_BSS_TYPE, SetBssType>},
    {wlan_intf_opcode_current_operation_mode, SetFrom<ULONG, SetOperationMode>},
};

const Setting* FindSetting(WLAN_INTF_OPCODE opcode)
{
    const auto* const found = std::find_if(std::begin(settings), std::end(settings),
                                           [opcode](const Setting& setting) { return setting.opcode == opcode; });
    return found != std::end(settings) ? found : nullptr;
}

} // namespace

DWORD SimulatedWlanService::WlanQueryInterface(HANDLE client,
                                               const GUID* interfaceGuid,
                                               WLAN_INTF_OPCODE opcode,
                                               PVOID reserved,
                                               DWORD* dataSize,
                                               PVOID* data,
                                               WLAN_OPCODE_VALUE_TYPE* valueType)
{
    const Request request(m_machine, "WlanQueryInterface", client, interfaceGuid, {dataSize, data}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    // Of the queries only this one would reveal where the computer is.
    if (opcode == wlan_intf_opcode_current_connection && !m_machine.present.locationConsent)
        return ERROR_ACCESS_DENIED;
    if (NeedsConnection(opcode) && !IsConnected(*request.adapter))
        return ERROR_INVALID_STATE;
    const auto answer = AnswerInterface(m_machine.wlanBlocks, *request.adapter, opcode);
    if (!answer)
        return ERROR_NOT_SUPPORTED;
    *data = answer->data;
    *dataSize = static_cast<DWORD>(answer->size);
    if (valueType != nullptr)
        *valueType =
            FindSetting(opcode) != nullptr ? wlan_opcode_value_type_set_by_user : wlan_opcode_value_type_query_only;
    return ERROR_SUCCESS;
}

DWORD SimulatedWlanService::WlanSetInterface(
    HANDLE client, const GUID* interfaceGuid, WLAN_INTF_OPCODE opcode, DWORD dataSize, const void* data, PVOID reserved)
{
    const Request request(m_machine, "WlanSetInterface", client, interfaceGuid, {data}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    const Setting* const setting = FindSetting(opcode);
    return setting != nullptr ? setting->set(*request.adapter, dataSize, data) : ERROR_INVALID_PARAMETER;
}

// Chosen: an adapter with a driver of its own kind, which looks for one SSID and as many access points as are requested.
DWORD SimulatedWlanService::WlanGetInterfaceCapability(HANDLE client,
                                                       const GUID* interfaceGuid,
                                                       PVOID reserved,
                                                       WLAN_INTERFACE_CAPABILITY** capability)
{
    const Request request(m_machine, "WlanGetInterfaceCapability", client, interfaceGuid, {capability}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    auto* const record =
        NewRecord<WLAN_INTERFACE_CAPABILITY>(m_machine.wlanBlocks, sizeof(WLAN_INTERFACE_CAPABILITY), "capability");
    record->interfaceType = wlan_interface_type_native_802_11;
    record->bDot11DSupported = TRUE;
    record->dwMaxDesiredSsidListSize = 1;
    record->dwMaxDesiredBssidListSize = 32;
    for (const PhyDescription& phy : request.adapter->Phys())
        record->dot11PhyTypes[record->dwNumberOfSupportedPhys++] = static_cast<DOT11_PHY_TYPE>(phy.type);
    *capability = record;
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
