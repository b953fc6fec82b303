// The reference's examples: radio and settings.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::radio_examples
{

void On(CWirelessManage& manager, const GUID& adapter)
{
    //! [PhyRadioIsOn]
    if (manager.PhyRadioIsOn(&adapter) == 1)
        std::printf("the radio is on\n");
    //! [PhyRadioIsOn]
}

void OnOrWhyNot(CWirelessManage& manager, const GUID& adapter)
{
    //! [PhyRadioIsOn2]
    const long on = manager.PhyRadioIsOn2(&adapter);
    std::printf("%s\n", on == 1 ? "on" : on == 0 ? "off" : "not known");
    //! [PhyRadioIsOn2]
}

void Switches(CWirelessManage& manager, const GUID& adapter)
{
    //! [PhyRadioIsOn2, with switches]
    unsigned int software = 0;
    unsigned int hardware = 0;
    if (manager.PhyRadioIsOn2(&adapter, software, hardware) == 0 && hardware == dot11_radio_state_off)
        std::printf("look for the switch on the case\n");
    //! [PhyRadioIsOn2, with switches]
}

void Off(CWirelessManage& manager, const GUID& adapter)
{
    //! [PhyRadioTurnedOff]
    if (manager.PhyRadioTurnedOff(&adapter) == 1)
        std::printf("the radio is off\n");
    //! [PhyRadioTurnedOff]
}

void OffOrWhyNot(CWirelessManage& manager, const GUID& adapter)
{
    //! [PhyRadioTurnedOff2]
    const long off = manager.PhyRadioTurnedOff2(&adapter);
    std::printf("%s\n", off == 1 ? "off" : off == 0 ? "on" : "not known");
    //! [PhyRadioTurnedOff2]
}

void SafeMode(CWirelessManage& manager, const GUID& adapter)
{
    //! [SupportedSafeMode]
    if (manager.SupportedSafeMode(&adapter) > 0)
        std::printf("supports safe mode\n");
    //! [SupportedSafeMode]
}

void TurnOn(CWirelessManage& manager, const GUID& adapter)
{
    //! [RadioTurnOn]
    if (manager.RadioTurnOn(&adapter) == -4)
        std::printf("refused\n");
    //! [RadioTurnOn]
}

void TurnOnByOtherName(CWirelessManage& manager, const GUID& adapter)
{
    //! [TurnOnSoftwareRadio]
    if (manager.TurnOnSoftwareRadio(&adapter) == -4)
        std::printf("refused\n");
    //! [TurnOnSoftwareRadio]
}

void TurnOnOrWhyNot(CWirelessManage& manager, const GUID& adapter)
{
    //! [TurnOnSoftwareRadio, with the error]
    unsigned long error = 0;
    if (manager.TurnOnSoftwareRadio(&adapter, error) != 0)
        std::printf("refused: error %lu\n", error);
    //! [TurnOnSoftwareRadio, with the error]
}

void TurnOff(CWirelessManage& manager, const GUID& adapter)
{
    //! [RadioTurnOff]
    if (manager.RadioTurnOff(&adapter) == -4)
        std::printf("refused\n");
    //! [RadioTurnOff]
}

void Reset(CWirelessManage& manager, const GUID& adapter)
{
    //! [ResetWiFiRadio]
    manager.ResetWiFiRadio(&adapter);
    if (manager.PhyRadioIsOn(&adapter) != 1)
        std::printf("the radio did not come back\n");
    //! [ResetWiFiRadio]
}

void Restart(CWirelessManage& manager, const GUID& adapter)
{
    //! [RestartWiFiRadio]
    manager.RestartWiFiRadio(&adapter);
    if (manager.PhyRadioIsOn(&adapter) != 1)
        std::printf("the radio did not come back\n");
    //! [RestartWiFiRadio]
}

void Automatic(CWirelessManage& manager, const GUID& adapter)
{
    //! [EnableAutoCfg]
    if (const int error = manager.EnableAutoCfg(&adapter); error != 0)
        std::printf("refused: error %d\n", error);
    //! [EnableAutoCfg]
}

void BackgroundScan(CWirelessManage& manager, const GUID& adapter)
{
    //! [EnableBackgroundScan]
    if (const int error = manager.EnableBackgroundScan(&adapter); error != 0)
        std::printf("refused: error %d\n", error);
    //! [EnableBackgroundScan]
}

void PowerLevel(CWirelessManage& manager)
{
    //! [GetPowerSetting]
    unsigned long level = wlan_power_setting_invalid;
    if (manager.GetPowerSetting(level) == 0 && level != wlan_power_setting_invalid)
        std::printf("level %lu\n", level);
    //! [GetPowerSetting]
}

void SetPowerLevel(CWirelessManage& manager)
{
    //! [SetPowerSetting]
    manager.SetPowerSetting(wlan_power_setting_low_saving); // changes nothing
    //! [SetPowerSetting]
}

void PowerLevelText(CWirelessManage& manager)
{
    //! [GetPowerSettingStr]
    std::printf("%s\n", manager.GetPowerSettingStr(wlan_power_setting_low_saving)); // wlan_power_setting_low_saving
    //! [GetPowerSettingStr]
}

void OpenDriver(CWirelessManage& manager)
{
    //! [SetIhvSecuritySettings]
    if (manager.SetIhvSecuritySettings() == 5) // ERROR_ACCESS_DENIED
        std::printf("run this once as administrator\n");
    //! [SetIhvSecuritySettings]
}

void AskDriver(CWirelessManage& manager, const GUID& adapter)
{
    //! [IhvControl]
    unsigned char message[64] = {0x01}; // laid out as the driver wants it
    unsigned long returned = 0;
    if (manager.IhvControl(&adapter, message, sizeof(message), returned) == 0)
        std::printf("the driver answers %lu bytes\n", returned);
    //! [IhvControl]
}

} // namespace reference::radio_examples
