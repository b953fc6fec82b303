// What changes connections, profiles, radios and who is told of it.

#include "soak/host.h"

namespace calvix::test::soak
{

namespace
{

void CALLBACK CountNotification(L2_NOTIFICATION_DATA*, void* context)
{
    ++static_cast<Host*>(context)->notifications;
}

void CALLBACK CountTwice(L2_NOTIFICATION_DATA*, void* context)
{
    static_cast<Host*>(context)->notifications += 2;
}

/// Registered where a callback is already, the new one takes its place.
void Register(Host& host)
{
    host.Manager().RegisterNotification(host.Below(2) == 0 ? CountNotification : CountTwice, &host);
}

void ScanWithError(Host& host)
{
    unsigned long error = 0;
    host.Manager().Rescan(host.Adapter(), error);
}

void SwitchOn(Host& host)
{
    unsigned long error = 0;
    host.Manager().TurnOnSoftwareRadio(host.Adapter(), error);
    host.Manager().TurnOnSoftwareRadio(host.Adapter());
}

void SwitchOffAndOn(Host& host)
{
    const GUID* const adapter = host.Adapter();
    host.Manager().RadioTurnOff(adapter);
    host.Manager().PhyRadioTurnedOff(adapter);
    host.Manager().RadioTurnOn(adapter);
}

/// A profile that is deleted comes back soon: the same habit stores it again.
void DeleteAndStore(Host& host)
{
    const std::wstring name = host.Name();
    const GUID* const adapter = host.Adapter();
    if (host.Below(2) == 0)
        host.Manager().DeleteProfile(adapter, name.c_str());
    else
        host.Manager().DeleteProfile(adapter, host.NarrowName().c_str());
    host.Manager().SetProfile(adapter, ProfileText(name, host.Below(4) != 0).c_str());
}

void StoreNonsense(Host& host)
{
    host.Manager().SetProfile(host.Adapter(), L"<WLANProfile><name>no end");
}

void Reorder(Host& host)
{
    host.Manager().ResetProfilePosition(host.Adapter(), host.NarrowName().c_str());
    host.Manager().SetProfilePosition(host.Adapter(), host.Name().c_str());
}

void Link(Host& host)
{
    std::string name = host.NarrowName();
    host.Manager().LinkProfile(host.Adapter(), name.data());
}

void GoBack(Host& host)
{
    host.Manager().Reconnect(host.Adapter(), &host.connection, 20);
    host.Manager().RecoverConnection(host.Adapter(), &host.connection);
}

void RememberNotified(Host& host)
{
    WLAN_CONNECTION_NOTIFICATION_DATA data{};
    data.dot11Ssid = host.Ssid();
    data.dot11BssType = dot11_BSS_type_infrastructure;
    const std::wstring name = host.Name();
    name.copy(data.strProfileName, name.size());
    host.Manager().SaveConnNotificationData(&data);
    host.Manager().Reconnect(host.Adapter(), &data, 20);
}

void JoinBestBut(Host& host)
{
    std::vector<WLAN_BSS_ENTRY> excluded(1);
    excluded[0].dot11Ssid = host.Ssid();
    const std::wstring name = host.Name();
    host.Manager().ConnectBestAP(host.Adapter(), &excluded, name.c_str());
    host.Manager().ConnectBestAP(host.Adapter(), &excluded);
    host.Manager().ConnectBestAP(host.Adapter(), name.c_str());
}

void JoinFirst(Host& host)
{
    char name[128];
    host.Manager().SmartConnecting(host.Adapter(), name);
}

} // namespace

std::vector<Habit> JoiningHabits()
{
    return {
        {"RegisterNotification", 4, Register},
        {"UnRegisterNotification", 2, [](Host& h) { h.Manager().UnRegisterNotification(CountNotification, &h); }},
        {"Rescan", 4, [](Host& h) { h.Manager().Rescan(); }},
        {"Rescan of an adapter", 4, ScanWithError},
        {"TurnOnSoftwareRadio", 2, SwitchOn},
        {"RadioTurnOff, RadioTurnOn", 2, SwitchOffAndOn},
        {"ResetWiFiRadio", 1, [](Host& h) { h.Manager().ResetWiFiRadio(h.Adapter()); }, Needs::patience},
        {"RestartWiFiRadio", 1, [](Host& h) { h.Manager().RestartWiFiRadio(h.Adapter()); }, Needs::patience},
        {"EnableAutoCfg", 1, [](Host& h) { h.Manager().EnableAutoCfg(h.Adapter()); }},
        {"EnableBackgroundScan", 1, [](Host& h) { h.Manager().EnableBackgroundScan(h.Adapter()); }},
        {"SetPowerSetting", 1, [](Host& h) { h.Manager().SetPowerSetting(h.Below(4)); }},
        {"SetIhvSecuritySettings", 1, [](Host& h) { h.Manager().SetIhvSecuritySettings(); }},
        {"DeleteProfile, SetProfile", 6, DeleteAndStore},
        {"SetProfile of no profile", 1, StoreNonsense},
        {"ResetProfilePosition, SetProfilePosition", 2, Reorder},
        {"LinkProfile", 3, Link},
        {"Disconnect", 5, [](Host& h) { h.Manager().Disconnect(h.Adapter()); }},
        {"Reconnect, RecoverConnection", 3, GoBack},
        {"ResetConnection", 3, [](Host& h) { h.Manager().ResetConnection(h.Adapter()); }},
        {"SetCurrentWiFiToLast", 2, [](Host& h) { h.Manager().SetCurrentWiFiToLast(); }},
        {"SaveCurrentConnectionAttributes", 3,
         [](Host& h) { h.Manager().SaveCurrentConnectionAttributes(h.Adapter()); }},
        {"RecoverConnetionAttributes", 2, [](Host& h) { h.Manager().RecoverConnetionAttributes(h.Adapter()); }},
        {"SaveConnNotificationData, Reconnect", 2, RememberNotified},
        {"RecoverConnNotificationData", 2, [](Host& h) { h.Manager().RecoverConnNotificationData(h.Adapter()); }},
        {"ConnectBestAP", 3, [](Host& h) { h.Manager().ConnectBestAP(h.Adapter()); }},
        {"ConnectBestAP but for some", 2, JoinBestBut},
        {"AutoConnect", 2, [](Host& h) { h.Manager().AutoConnect(h.Adapter()); }},
        {"AutoConnectEx", 2, [](Host& h) { h.Manager().AutoConnectEx(h.Adapter()); }},
        {"AutoSwitch", 2, [](Host& h) { h.Manager().AutoSwitch(h.Adapter()); }},
        {"SmartSwitch", 2, [](Host& h) { h.Manager().SmartSwitch(h.Adapter()); }},
        {"SmartConnecting", 2, JoinFirst},
        {"ConnectAutoMode", 2, [](Host& h) { h.Manager().ConnectAutoMode(h.Adapter()); }},
        {"Roaming", 6, [](Host& h) { h.Manager().Roaming(h.Adapter()); }},
    };
}

} // namespace calvix::test::soak
