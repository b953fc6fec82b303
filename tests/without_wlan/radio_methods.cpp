#include "without_wlan/library_sleep.h"
#include "without_wlan/method_case.h"

namespace calvix::test::every_method
{

namespace
{

std::string AskBothSwitches(CWirelessManage& manager)
{
    Untouched<unsigned int> software;
    Untouched<unsigned int> hardware;
    return Said(manager.PhyRadioIsOn2(&kAdapter, *software, *hardware));
}

std::string TurnOnWithError(CWirelessManage& manager)
{
    unsigned long error = 0;
    const int code = manager.TurnOnSoftwareRadio(&kAdapter, error);
    EXPECT_THAT(Said(error), AnErrorNumber());
    return Said(code);
}

std::string ResetRadio(CWirelessManage& manager)
{
    const LibrarySleep sleep;
    const int code = manager.ResetWiFiRadio(&kAdapter);
    EXPECT_EQ(sleep.Milliseconds(), code == 0 ? 500U : 0U);
    return Said(code);
}

/// The radio reports neither state, so each is waited for as long as the library ever waits.
std::string RestartRadio(CWirelessManage& manager)
{
    const LibrarySleep sleep;
    manager.RestartWiFiRadio(&kAdapter);
    return Said(sleep.Milliseconds());
}

std::string AskPowerSetting(CWirelessManage& manager)
{
    Untouched<unsigned long> level;
    return Said(manager.GetPowerSetting(*level));
}

std::string AskDriver(CWirelessManage& manager)
{
    Untouched<char[16]> buffer;
    Untouched<unsigned long> bytesReturned;
    return Said(manager.IhvControl(&kAdapter, *buffer, sizeof(*buffer), *bytesReturned));
}

} // namespace

std::vector<MethodCase> RadioMethods()
{
    using Manager = CWirelessManage;
    const Answer mediumSaving = testing::StrEq("wlan_power_setting_medium_saving");
    return {
        {"PhyRadioIsOn(GUID const*)", [](Manager& m) { return Said(m.PhyRadioIsOn(&kAdapter)); }, Is(0), Is(0)},
        {"PhyRadioIsOn2(GUID const*)", [](Manager& m) { return Said(m.PhyRadioIsOn2(&kAdapter)); }, Is(-1), Is(-4)},
        {"PhyRadioIsOn2(GUID const*, unsigned int&, unsigned int&)", AskBothSwitches, Is(-1), Is(-4)},
        {"PhyRadioTurnedOff(GUID const*)", [](Manager& m) { return Said(m.PhyRadioTurnedOff(&kAdapter)); }, Is(0),
         Is(0)},
        {"PhyRadioTurnedOff2(GUID const*)", [](Manager& m) { return Said(m.PhyRadioTurnedOff2(&kAdapter)); }, Is(-1),
         Is(-4)},
        {"SupportedSafeMode(GUID const*)", [](Manager& m) { return Said(m.SupportedSafeMode(&kAdapter)); }, Is(-2),
         Is(-5)},
        {"RadioTurnOn(GUID const*)", [](Manager& m) { return Said(m.RadioTurnOn(&kAdapter)); }, Is(-1), Is(-4)},
        {"TurnOnSoftwareRadio(GUID const*)", [](Manager& m) { return Said(m.TurnOnSoftwareRadio(&kAdapter)); }, Is(-1),
         Is(-4)},
        {"TurnOnSoftwareRadio(GUID const*, unsigned long&)", TurnOnWithError, Is(-1), Is(-4)},
        {"RadioTurnOff(GUID const*)", [](Manager& m) { return Said(m.RadioTurnOff(&kAdapter)); }, Is(-1), Is(-4)},
        {"ResetWiFiRadio(GUID const*)", ResetRadio, Is(-1), Is(0)},
        {"RestartWiFiRadio(GUID const*)", RestartRadio, Is(20000), Is(20000)},
        {"EnableAutoCfg(GUID const*)", [](Manager& m) { return Said(m.EnableAutoCfg(&kAdapter)); }, Is(kNoLibrary),
         AnErrorNumber()},
        {"EnableBackgroundScan(GUID const*)", [](Manager& m) { return Said(m.EnableBackgroundScan(&kAdapter)); },
         Is(kNoLibrary), AnErrorNumber()},
        {"GetPowerSetting(unsigned long&)", AskPowerSetting, Is(kNoLibrary), Is(0)},
        {"SetPowerSetting(unsigned long)", [](Manager& m) { return Said(m.SetPowerSetting(3)); }, Is(0), Is(0)},
        {"GetPowerSettingStr(unsigned long)", [](Manager& m) { return Said(m.GetPowerSettingStr(2)); }, mediumSaving,
         mediumSaving},
        {"SetIhvSecuritySettings()", [](Manager& m) { return Said(m.SetIhvSecuritySettings()); }, Is(kNoLibrary),
         AnErrorNumber()},
        {"IhvControl(GUID const*, void*, unsigned long, unsigned long&)", AskDriver, Is(kNoLibrary), AnErrorNumber()},
    };
}

} // namespace calvix::test::every_method
