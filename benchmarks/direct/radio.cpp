#include "direct/hand_written.h"

#include <cstring>

namespace calvix::benchmarks
{

using platform::wlan;

namespace
{

template <typename Record>
DWORD Query(HANDLE client, const GUID* adapter, WLAN_INTF_OPCODE opcode, Record*& record)
{
    DWORD size = sizeof(Record);
    PVOID data = nullptr;
    const DWORD error = wlan().WlanQueryInterface(client, adapter, opcode, nullptr, &size, &data, nullptr);
    record = static_cast<Record*>(data);
    return error;
}

DWORD SwitchRadio(HANDLE client, const GUID* adapter, DOT11_RADIO_STATE state)
{
    WLAN_PHY_RADIO_STATE phy{};
    phy.dot11SoftwareRadioState = state;
    return wlan().WlanSetInterface(client, adapter, wlan_intf_opcode_radio_state, sizeof(phy), &phy, nullptr);
}

DWORD Enable(HANDLE client, const GUID* adapter, WLAN_INTF_OPCODE opcode)
{
    const BOOL enabled = TRUE;
    return wlan().WlanSetInterface(client, adapter, opcode, sizeof(enabled), &enabled, nullptr);
}

} // namespace

long HandWritten::PhyRadioIsOn2(const GUID* adapter, unsigned int& software, unsigned int& hardware)
{
    WLAN_RADIO_STATE* radio = nullptr;
    if (!Ready() || Query(client, adapter, wlan_intf_opcode_radio_state, radio) != 0)
        return -4;
    long result = -5;
    if (radio->dwNumberOfPhys != 0)
    {
        software = radio->PhyRadioState[0].dot11SoftwareRadioState;
        hardware = radio->PhyRadioState[0].dot11HardwareRadioState;
        result = software != dot11_radio_state_off && hardware != dot11_radio_state_off;
    }
    wlan().WlanFreeMemory(radio);
    return result;
}

long HandWritten::PhyRadioIsOn2(const GUID* adapter)
{
    unsigned int software = 0;
    unsigned int hardware = 0;
    return PhyRadioIsOn2(adapter, software, hardware);
}

int HandWritten::PhyRadioIsOn(const GUID* adapter)
{
    return PhyRadioIsOn2(adapter) == 1 ? 1 : 0;
}

int HandWritten::PhyRadioTurnedOff(const GUID* adapter)
{
    return PhyRadioIsOn2(adapter) == 0 ? 1 : 0;
}

long HandWritten::PhyRadioTurnedOff2(const GUID* adapter)
{
    const long on = PhyRadioIsOn2(adapter);
    return on < 0 ? on : 1 - on;
}

int HandWritten::SupportedSafeMode(const GUID* adapter)
{
    BOOL* supported = nullptr;
    if (!Ready() || Query(client, adapter, wlan_intf_opcode_supported_safe_mode, supported) != 0)
        return -5;
    const int result = *supported;
    wlan().WlanFreeMemory(supported);
    return result;
}

int HandWritten::RadioTurnOn(const GUID* adapter)
{
    return Ready() && SwitchRadio(client, adapter, dot11_radio_state_on) == 0 ? 0 : -4;
}

int HandWritten::TurnOnSoftwareRadio(const GUID* adapter)
{
    return Ready() && SwitchRadio(client, adapter, dot11_radio_state_on) == 0 ? 0 : -4;
}

int HandWritten::TurnOnSoftwareRadio(const GUID* adapter, unsigned long& error)
{
    if (!Ready())
        return -1;
    const DWORD refused = SwitchRadio(client, adapter, dot11_radio_state_on);
    if (refused == 0)
        return 0;
    error = refused;
    return -4;
}

int HandWritten::RadioTurnOff(const GUID* adapter)
{
    return Ready() && SwitchRadio(client, adapter, dot11_radio_state_off) == 0 ? 0 : -4;
}

int HandWritten::ResetWiFiRadio(const GUID* adapter)
{
    if (!Ready())
        return -1;
    SwitchRadio(client, adapter, dot11_radio_state_off);
    platform::clock().Sleep(500);
    SwitchRadio(client, adapter, dot11_radio_state_on);
    return 0;
}

void HandWritten::RestartWiFiRadio(const GUID* adapter)
{
    RadioTurnOff(adapter);
    for (int poll = 0; poll < 10 && PhyRadioTurnedOff(adapter) == 0; ++poll)
        platform::clock().Sleep(1000);
    RadioTurnOn(adapter);
    for (int poll = 0; poll < 10 && PhyRadioIsOn(adapter) == 0; ++poll)
        platform::clock().Sleep(1000);
}

int HandWritten::EnableAutoCfg(const GUID* adapter)
{
    return Ready() ? static_cast<int>(Enable(client, adapter, wlan_intf_opcode_autoconf_enabled)) : -1;
}

int HandWritten::EnableBackgroundScan(const GUID* adapter)
{
    return Ready() ? static_cast<int>(Enable(client, adapter, wlan_intf_opcode_background_scan_enabled)) : -1;
}

int HandWritten::GetPowerSetting(unsigned long& level)
{
    DWORD size = sizeof(WLAN_POWER_SETTING);
    PVOID data = nullptr;
    if (!Ready() || wlan().WlanQueryAutoConfigParameter(client, wlan_autoconf_opcode_power_setting, nullptr, &size,
                                                        &data, nullptr) != 0)
        return -1;
    level = *static_cast<WLAN_POWER_SETTING*>(data);
    wlan().WlanFreeMemory(data);
    return 0;
}

int HandWritten::SetPowerSetting(unsigned long)
{
    return 0;
}

char* HandWritten::GetPowerSettingStr(unsigned long level)
{
    static const char* const names[] = {"wlan_power_setting_no_saving", "wlan_power_setting_low_saving",
                                        "wlan_power_setting_medium_saving", "wlan_power_setting_maximum_saving"};
    std::strcpy(m_powerSetting, level < 4 ? names[level] : "wlan_power_setting_invalid");
    return m_powerSetting;
}

unsigned long HandWritten::SetIhvSecuritySettings()
{
    if (!Ready())
        return 1;
    return wlan().WlanSetSecuritySettings(client, wlan_secure_ihv_control,
                                          L"O:SYG:SYD:(A;;CCRC;;;BU)(A;;CCDCWPSDRCWD;;;BU)(A;;CCRC;;;NO)"
                                          L"(A;;CCDCWPSDRCWD;;;NO)(A;;CCRC;;;BA)(A;;CCDCWPSDRCWD;;;BA)(D;;FA;;;WD)");
}

unsigned long HandWritten::IhvControl(const GUID* adapter, void* buffer, unsigned long size, unsigned long& returned)
{
    if (!Ready())
        return 1;
    return wlan().WlanIhvControl(client, adapter, wlan_ihv_control_type_driver, size, buffer, size, buffer, &returned);
}

} // namespace calvix::benchmarks
