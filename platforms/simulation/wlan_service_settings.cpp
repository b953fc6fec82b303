#include "simulation/interface_answers.h"
#include "simulation/wlan_service.h"

#include <algorithm>
#include <cstring>

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

DWORD SimulatedWlanService::WlanGetInterfaceCapability(HANDLE client,
                                                       const GUID* interfaceGuid,
                                                       PVOID reserved,
                                                       WLAN_INTERFACE_CAPABILITY** capability)
{
    const Request request(m_machine, "WlanGetInterfaceCapability", client, interfaceGuid, {capability}, reserved);
    if (request.error != ERROR_SUCCESS)
        return request.error;
    *capability = MakeCapability(m_machine.wlanBlocks, *request.adapter);
    return ERROR_SUCCESS;
}

} // namespace calvix::simulation
