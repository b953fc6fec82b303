#include "support/test_worlds.h"
#include "sweep/method_call.h"

namespace calvix::test::sweep
{

using Manager = CWirelessManage;

namespace
{

void WINAPI IgnoreNotification(PWLAN_NOTIFICATION_DATA, PVOID) {}

void Register(Manager& manager)
{
    manager.RegisterNotification(IgnoreNotification, nullptr);
}

Outcome ListAdapters(Manager& manager)
{
    OutputList<WLAN_INTERFACE_INFO> adapters;
    return Told(manager.GetWlanInterface(&adapters.value), adapters);
}

Outcome FindAdapter(Manager& manager)
{
    Output<GUID> guid;
    return Told(manager.GetWlanInterfaceGuid(kAdapterADescription, guid.value), guid);
}

Outcome AskBothSwitches(Manager& manager)
{
    Output<unsigned int> software;
    Output<unsigned int> hardware;
    return Told(manager.PhyRadioIsOn2(&kAdapterA, software.value, hardware.value), software, hardware);
}

Outcome SwitchOn(Manager& manager)
{
    Output<unsigned long> error;
    return Told(manager.TurnOnSoftwareRadio(&kAdapterA, error.value), error);
}

Outcome AskPowerSetting(Manager& manager)
{
    Output<unsigned long> level;
    return Told(manager.GetPowerSetting(level.value), level);
}

Outcome AskDriver(Manager& manager)
{
    TextOutput<16> buffer;
    Output<unsigned long> returned;
    return Told(manager.IhvControl(&kAdapterA, buffer.value.data(), sizeof(buffer.value), returned.value), buffer,
                returned);
}

Outcome Restart(Manager& manager)
{
    manager.RestartWiFiRadio(&kAdapterA);
    return Nothing();
}

Outcome Assign(Manager& manager)
{
    const Manager& other = manager;
    return Told(&(manager = other) == &manager);
}

Outcome Zero(Manager& manager)
{
    manager.__autoclassinit2(sizeof(manager));
    return Nothing();
}

Outcome StartService(Manager& manager)
{
    manager.CheckAutoConfig();
    return Nothing();
}

Outcome Delete(Manager&)
{
    Manager::Delete();
    return Nothing();
}

std::vector<MethodCall> ManagerMethods()
{
    return {
        {"Get()", [](Manager& m) { return Told(Manager::Get() == &m); }},
        {"Delete()", Delete, nullptr, false},
        {"operator=(CWirelessManage const&)", Assign},
        {"__autoclassinit2(unsigned long long)", Zero},
        {"CheckAutoConfig()", StartService},
        {"GetWlanStatus(GUID const*)", [](Manager& m) { return Told(m.GetWlanStatus(&kAdapterA)); }},
        {"GetWlanIsLink(GUID const*)", [](Manager& m) { return Told(m.GetWlanIsLink(&kAdapterA)); }},
        {"GetWlanInterfaceState(unsigned long)", [](Manager& m) { return Told(m.GetWlanInterfaceState(1)); }},
        {"GetWlanInterfaceGuid(wchar_t const*, GUID&)", FindAdapter},
        {"GUID2String(GUID const&)", [](Manager& m) { return Told(m.GUID2String(kAdapterA)); }},
        {"GetWlanInterfaceDesc(GUID const*)", [](Manager& m) { return Told(m.GetWlanInterfaceDesc(&kAdapterA)); }},
        {"GetWiFiAdapterCount()", [](Manager& m) { return Told(m.GetWiFiAdapterCount()); }},
        {"GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>*)", ListAdapters},
        {"RegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)",
         [](Manager& m) { return Told(m.RegisterNotification(IgnoreNotification, nullptr)); }},
        {"UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)",
         [](Manager& m) { return Told(m.UnRegisterNotification(IgnoreNotification, nullptr)); }, Register, false},
    };
}

std::vector<MethodCall> SettingMethods()
{
    return {
        {"PhyRadioIsOn(GUID const*)", [](Manager& m) { return Told(m.PhyRadioIsOn(&kAdapterA)); }},
        {"PhyRadioIsOn2(GUID const*)", [](Manager& m) { return Told(m.PhyRadioIsOn2(&kAdapterA)); }},
        {"PhyRadioIsOn2(GUID const*, unsigned int&, unsigned int&)", AskBothSwitches},
        {"PhyRadioTurnedOff(GUID const*)", [](Manager& m) { return Told(m.PhyRadioTurnedOff(&kAdapterA)); }},
        {"PhyRadioTurnedOff2(GUID const*)", [](Manager& m) { return Told(m.PhyRadioTurnedOff2(&kAdapterA)); }},
        {"SupportedSafeMode(GUID const*)", [](Manager& m) { return Told(m.SupportedSafeMode(&kAdapterA)); }},
        {"RadioTurnOn(GUID const*)", [](Manager& m) { return Told(m.RadioTurnOn(&kAdapterA)); }},
        {"TurnOnSoftwareRadio(GUID const*)", [](Manager& m) { return Told(m.TurnOnSoftwareRadio(&kAdapterA)); }},
        {"TurnOnSoftwareRadio(GUID const*, unsigned long&)", SwitchOn},
        {"RadioTurnOff(GUID const*)", [](Manager& m) { return Told(m.RadioTurnOff(&kAdapterA)); }},
        {"ResetWiFiRadio(GUID const*)", [](Manager& m) { return Told(m.ResetWiFiRadio(&kAdapterA)); }},
        {"RestartWiFiRadio(GUID const*)", Restart},
        {"EnableAutoCfg(GUID const*)", [](Manager& m) { return Told(m.EnableAutoCfg(&kAdapterA)); }},
        {"EnableBackgroundScan(GUID const*)", [](Manager& m) { return Told(m.EnableBackgroundScan(&kAdapterA)); }},
        {"GetPowerSetting(unsigned long&)", AskPowerSetting},
        {"SetPowerSetting(unsigned long)", [](Manager& m) { return Told(m.SetPowerSetting(3)); }},
        {"GetPowerSettingStr(unsigned long)", [](Manager& m) { return Told(m.GetPowerSettingStr(2)); }},
        {"SetIhvSecuritySettings()", [](Manager& m) { return Told(m.SetIhvSecuritySettings()); }},
        {"IhvControl(GUID const*, void*, unsigned long, unsigned long&)", AskDriver},
    };
}

} // namespace

std::vector<MethodCall> ServiceMethods()
{
    std::vector<MethodCall> methods = ManagerMethods();
    const std::vector<MethodCall> settings = SettingMethods();
    methods.insert(methods.end(), settings.begin(), settings.end());
    return methods;
}

} // namespace calvix::test::sweep
