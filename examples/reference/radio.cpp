// The reference's examples: radio and settings.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void PhyRadioIsOn(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.PhyRadioIsOn(&adapter) == 1)
        std::printf("the radio is on\n");
}

void PhyRadioIsOn2(CWirelessManage& manager, const GUID& adapter)
{
    const long on = manager.PhyRadioIsOn2(&adapter);
    std::printf("%s\n", on == 1 ? "on" : on == 0 ? "off" : "not known");
}

void PhyRadioIsOn2WithSwitches(CWirelessManage& manager, const GUID& adapter)
{
    unsigned int software = 0;
    unsigned int hardware = 0;
    if (manager.PhyRadioIsOn2(&adapter, software, hardware) == 0 && hardware == dot11_radio_state_off)
        std::printf("look for the switch on the case\n");
}

void PhyRadioTurnedOff(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.PhyRadioTurnedOff(&adapter) == 1)
        std::printf("the radio is off\n");
}

void PhyRadioTurnedOff2(CWirelessManage& manager, const GUID& adapter)
{
    const long off = manager.PhyRadioTurnedOff2(&adapter);
    std::printf("%s\n", off == 1 ? "off" : off == 0 ? "on" : "not known");
}

void SupportedSafeMode(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.SupportedSafeMode(&adapter) > 0)
        std::printf("supports safe mode\n");
}

void RadioTurnOn(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.RadioTurnOn(&adapter) == -4)
        std::printf("refused\n");
}

void TurnOnSoftwareRadio(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.TurnOnSoftwareRadio(&adapter) == -4)
        std::printf("refused\n");
}

void TurnOnSoftwareRadioWithError(CWirelessManage& manager, const GUID& adapter)
{
    unsigned long error = 0;
    if (manager.TurnOnSoftwareRadio(&adapter, error) != 0)
        std::printf("refused: error %lu\n", error);
}

void RadioTurnOff(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.RadioTurnOff(&adapter) == -4)
        std::printf("refused\n");
}

void ResetWiFiRadio(CWirelessManage& manager, const GUID& adapter)
{
    manager.ResetWiFiRadio(&adapter);
    if (manager.PhyRadioIsOn(&adapter) != 1)
        std::printf("the radio did not come back\n");
}

void RestartWiFiRadio(CWirelessManage& manager, const GUID& adapter)
{
    manager.RestartWiFiRadio(&adapter);
    if (manager.PhyRadioIsOn(&adapter) != 1)
        std::printf("the radio did not come back\n");
}

void EnableAutoCfg(CWirelessManage& manager, const GUID& adapter)
{
    if (const int error = manager.EnableAutoCfg(&adapter); error != 0)
        std::printf("refused: error %d\n", error);
}

void EnableBackgroundScan(CWirelessManage& manager, const GUID& adapter)
{
    if (const int error = manager.EnableBackgroundScan(&adapter); error != 0)
        std::printf("refused: error %d\n", error);
}

void GetPowerSetting(CWirelessManage& manager)
{
    unsigned long level = wlan_power_setting_invalid;
    if (manager.GetPowerSetting(level) == 0 && level != wlan_power_setting_invalid)
        std::printf("level %lu\n", level);
}

void SetPowerSetting(CWirelessManage& manager)
{
    manager.SetPowerSetting(wlan_power_setting_low_saving); // changes nothing
}

void GetPowerSettingStr(CWirelessManage& manager)
{
    std::printf("%s\n", manager.GetPowerSettingStr(wlan_power_setting_low_saving)); // wlan_power_setting_low_saving
}

void SetIhvSecuritySettings(CWirelessManage& manager)
{
    if (manager.SetIhvSecuritySettings() == 5) // ERROR_ACCESS_DENIED
        std::printf("run this once as administrator\n");
}

void IhvControl(CWirelessManage& manager, const GUID& adapter)
{
    unsigned char message[64] = {0x01}; // laid out as the driver wants it
    unsigned long returned = 0;
    if (manager.IhvControl(&adapter, message, sizeof(message), returned) == 0)
        std::printf("the driver answers %lu bytes\n", returned);
}

} // namespace reference
