#include "simulation/interface_answers.h"
#include "simulation/wlan_service.h"

#include <cstring>
#include <optional>

namespace calvix::simulation
{

namespace
{

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

bool CanBeSet(WLAN_INTF_OPCODE opcode)
{
    switch (static_cast<unsigned int>(opcode))
    {
    case wlan_intf_opcode_autoconf_enabled:
    case wlan_intf_opcode_background_scan_enabled:
    case wlan_intf_opcode_media_streaming_mode:
    case wlan_intf_opcode_radio_state:
    case wlan_intf_opcode_bss_type:
    case wlan_intf_opcode_current_operation_mode:
        return true;
    default:
        return false;
    }
}

BOOL Boolean(bool value)
{
    return value ? TRUE : FALSE;
}

// An ordinary station, as every adapter has been called since the interface knows other modes.
constexpr ULONG extensibleStation = 4;
constexpr ULONG networkMonitor = 0x80000000;

// The opcode's number: some SDKs lack it.
constexpr unsigned int managementFrameProtection = 16;

// Chosen, for what is the same on every simulated adapter: the mode of a station, safe mode supported but not certified,
// management frames protected where asked for, no hosted network.
std::optional<InterfaceAnswer> Answer(Blocks& blocks, const Adapter& adapter, WLAN_INTF_OPCODE opcode)
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
        return AnswerChannel(blocks, adapter);
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
        return AnswerRssi(blocks, adapter);
    default:
        return std::nullopt;
    }
}

std::optional<bool> ReadBoolean(DWORD size, const void* data)
{
    BOOL value = FALSE;
    if (size != sizeof(value))
        return std::nullopt;
    std::memcpy(&value, data, sizeof(value));
    return value != FALSE;
}

template <void (Adapter::*set)(bool)>
DWORD SetSwitch(Adapter& adapter, DWORD size, const void* data)
{
    const auto value = ReadBoolean(size, data);
    if (!value)
        return ERROR_INVALID_PARAMETER;
    (adapter.*set)(*value);
    return ERROR_SUCCESS;
}

// Only a connected adapter takes this setting.
DWORD SetBackgroundScan(Adapter& adapter, DWORD size, const void* data)
{
    const auto value = ReadBoolean(size, data);
    if (!value)
        return ERROR_INVALID_PARAMETER;
    if (!IsConnected(adapter))
        return ERROR_INVALID_STATE;
    adapter.SetBackgroundScan(*value);
    return ERROR_SUCCESS;
}

DWORD SetBssType(Adapter& adapter, DWORD size, const void* data)
{
    DOT11_BSS_TYPE type{};
    if (size != sizeof(type))
        return ERROR_INVALID_PARAMETER;
    std::memcpy(&type, data, sizeof(type));
    if (type < dot11_BSS_type_infrastructure || type > dot11_BSS_type_any)
        return ERROR_INVALID_PARAMETER;
    adapter.SetBssType(type);
    return ERROR_SUCCESS;
}

// There is no adapter that could listen to everybody's frames.
DWORD SetOperationMode(DWORD size, const void* data)
{
    ULONG mode = 0;
    if (size != sizeof(mode))
        return ERROR_INVALID_PARAMETER;
    std::memcpy(&mode, data, sizeof(mode));
    if (mode == networkMonitor)
        return ERROR_NOT_SUPPORTED;
    return mode == extensibleStation ? ERROR_SUCCESS : ERROR_INVALID_PARAMETER;
}

// Only the software switch can be thrown; what the record says of the hardware is not looked at.
DWORD SetRadio(Adapter& adapter, DWORD size, const void* data)
{
    WLAN_PHY_RADIO_STATE state{};
    if (size != sizeof(state))
        return ERROR_INVALID_PARAMETER;
    std::memcpy(&state, data, sizeof(state));
    const bool isOn = state.dot11SoftwareRadioState == dot11_radio_state_on;
    const bool isOff = state.dot11SoftwareRadioState == dot11_radio_state_off;
    if (state.dwPhyIndex >= adapter.Phys().size() || (!isOn && !isOff))
        return ERROR_INVALID_PARAMETER;
    const RadioSwitch hardware = adapter.Phys()[state.dwPhyIndex].hardware;
    adapter.SetRadio(state.dwPhyIndex, isOn ? RadioSwitch::on : RadioSwitch::off, hardware);
    return ERROR_SUCCESS;
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
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanQueryInterface", client, {interfaceGuid, dataSize, data}, reserved))
        return error;
    const Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        return ERROR_INVALID_PARAMETER;
    // Of the queries only this one would reveal where the computer is.
    if (opcode == wlan_intf_opcode_current_connection && !m_machine.locationConsent)
        return ERROR_ACCESS_DENIED;
    if (NeedsConnection(opcode) && !IsConnected(*adapter))
        return ERROR_INVALID_STATE;
    const auto answer = Answer(m_machine.wlanBlocks, *adapter, opcode);
    if (!answer)
        return ERROR_NOT_SUPPORTED;
    *data = answer->data;
    *dataSize = static_cast<DWORD>(answer->size);
    if (valueType != nullptr)
        *valueType = CanBeSet(opcode) ? wlan_opcode_value_type_set_by_user : wlan_opcode_value_type_query_only;
    return ERROR_SUCCESS;
}

DWORD SimulatedWlanService::WlanSetInterface(
    HANDLE client, const GUID* interfaceGuid, WLAN_INTF_OPCODE opcode, DWORD dataSize, const void* data, PVOID reserved)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanSetInterface", client, {interfaceGuid, data}, reserved))
        return error;
    Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr || !CanBeSet(opcode))
        return ERROR_INVALID_PARAMETER;
    switch (static_cast<unsigned int>(opcode))
    {
    case wlan_intf_opcode_autoconf_enabled:
        return SetSwitch<&Adapter::SetAutoConfiguration>(*adapter, dataSize, data);
    case wlan_intf_opcode_background_scan_enabled:
        return SetBackgroundScan(*adapter, dataSize, data);
    case wlan_intf_opcode_radio_state:
        return SetRadio(*adapter, dataSize, data);
    case wlan_intf_opcode_media_streaming_mode:
        return SetSwitch<&Adapter::SetMediaStreaming>(*adapter, dataSize, data);
    case wlan_intf_opcode_bss_type:
        return SetBssType(*adapter, dataSize, data);
    default:
        return SetOperationMode(dataSize, data);
    }
}

DWORD SimulatedWlanService::WlanGetInterfaceCapability(HANDLE client,
                                                       const GUID* interfaceGuid,
                                                       PVOID reserved,
                                                       WLAN_INTERFACE_CAPABILITY** capability)
{
    const std::lock_guard lock(m_machine.mutex);
    if (const DWORD error = Check("WlanGetInterfaceCapability", client, {interfaceGuid, capability}, reserved))
        return error;
    const Adapter* const adapter = m_machine.FindAdapter(*interfaceGuid);
    if (adapter == nullptr)
        return ERROR_INVALID_PARAMETER;
    *capability = MakeCapability(m_machine.wlanBlocks, *adapter);
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
