#include "soak/host.h"

#include <algorithm>

namespace calvix::test::soak
{

namespace
{

using methods::Method;

std::wstring Wide(const std::string& text)
{
    return {text.begin(), text.end()};
}

void ListAdapters(Host& host)
{
    std::vector<WLAN_INTERFACE_INFO> list;
    if (host.Manager().GetWlanInterface(&list) != 0)
        return;
    host.adapters.clear();
    for (const WLAN_INTERFACE_INFO& info : list)
        host.adapters.push_back(info.InterfaceGuid);
}

void AskWhyNot(Host& host)
{
    DOT11_SSID ssid = host.Ssid();
    int connectable = 0;
    unsigned long reason = 0;
    host.Manager().GetNotConnectableReason(host.Adapter(), &ssid, 1, connectable, reason);
    char text[256];
    host.Manager().ReasonCode2String(reason, text, sizeof(text));
}

/// What is remembered is gone back to.
void RememberConnection(Host& host)
{
    WLAN_CONNECTION_ATTRIBUTES attributes{};
    if (host.Manager().GetCurrentConnection(&attributes) == 0)
        host.connection = attributes;
}

void RememberNotified(Host& host)
{
    host.connection = methods::ConnectionWith(host.Name());
    host.Call("SaveConnNotificationData");
    host.Call("Reconnect(GUID const*, WLAN_CONNECTION_NOTIFICATION_DATA*");
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
    const std::string name = host.Name();
    const GUID* const adapter = host.Adapter();
    if (host.Below(2) == 0)
        host.Manager().DeleteProfile(adapter, Wide(name).c_str());
    else
        host.Manager().DeleteProfile(adapter, name.c_str());
    host.Manager().SetProfile(adapter, Wide(methods::ProfileDocument(name, host.Below(4) != 0)).c_str());
}

void StoreNonsense(Host& host)
{
    host.Manager().SetProfile(host.Adapter(), L"<WLANProfile><name>no end");
}

void JoinBestBut(Host& host)
{
    std::vector<WLAN_BSS_ENTRY> excluded(1);
    excluded[0].dot11Ssid = host.Ssid();
    host.Manager().ConnectBestAP(host.Adapter(), &excluded, Wide(host.Name()).c_str());
    host.Manager().ConnectBestAP(host.Adapter(), &excluded);
}

/// A method that is called once by default, from what is called more often down to what no program calls by itself.
unsigned WeightOf(const Method& method)
{
    const std::pair<unsigned, std::vector<const char*>> weights[] = {
        {6, {"Roaming"}},
        {5, {"Disconnect"}},
        {4, {"RegisterNotification"}},
        {3,
         {"GetAvailableNetworkCount", "LinkProfile", "ResetConnection", "SaveCurrentConnectionAttributes", "Rescan",
          "ConnectBestAP(GUID const*)"}},
        {2,
         {"AutoConnect", "AutoConnectEx", "AutoSwitch", "SmartSwitch", "SmartConnecting", "ConnectAutoMode",
          "PreRoaming", "RecoverConnetionAttributes", "RecoverConnNotificationData", "SetCurrentWiFiToLast",
          "GetWlanStatus", "GetWlanIsLink", "GetNetworkBssCount", "GetConnectableNetworkCount", "GetAP",
          "IsWiFiDisappear", "GetSignalQuality", "UnRegisterNotification"}},
        // The evening deletes the manager, and other habits undo what they do.
        {0, {"Get", "Delete", "operator=", "__autoclassinit2", "DeleteProfile", "RadioTurnOff"}},
    };
    for (const auto& [weight, names] : weights)
        if (std::any_of(names.begin(), names.end(), [&](const char* name) { return method.Is(name); }))
            return weight;
    return 1;
}

Needs NeedsOf(const Method& method)
{
    const auto is = [&method](const char* name) { return method.Is(name); };
    constexpr const char* kSlow[] = {"GetMatchBSSID", "ResetWiFiRadio", "RestartWiFiRadio"};
    constexpr const char* kSimulated[] = {"CheckAutoConfig",  "ForceComputerSleep", "SetPowerScheme",
                                          "ResetPowerScheme", "GetPowerScheme",     "CreateProcRunCmd",
                                          "CreateProcRunExe", "CloseProcess",       "OpenUrl"};
    if (std::any_of(std::begin(kSlow), std::end(kSlow), is))
        return Needs::patience;
    return std::any_of(std::begin(kSimulated), std::end(kSimulated), is) ? Needs::simulatedComputer : Needs::nothing;
}

std::vector<Habit> MakeHabits()
{
    std::vector<Habit> habits = {
        {"list the adapters", 1, ListAdapters},
        {"ask why a network cannot be joined", 2, AskWhyNot},
        {"remember the connection", 4, RememberConnection},
        {"remember a notification's connection", 2, RememberNotified},
        {"switch the radio off and on", 2, SwitchOffAndOn},
        {"delete a profile and store it again", 6, DeleteAndStore},
        {"store what is no profile", 1, StoreNonsense},
        {"join the best but for some", 2, JoinBestBut},
    };
    for (const Method& method : methods::EveryMethod())
        if (const unsigned weight = WeightOf(method); weight != 0)
            habits.push_back(
                {method.declaration, weight, [&method](Host& host) { host.Call(method); }, NeedsOf(method)});
    return habits;
}

} // namespace

const std::vector<Habit>& Habits()
{
    static const std::vector<Habit> habits = MakeHabits();
    return habits;
}

void TidyUp(Host& host)
{
    host.Manager().UnRegisterNotification(nullptr, nullptr);
    for (const GUID& adapter : host.adapters)
    {
        host.Manager().RadioTurnOn(&adapter);
        for (const char* name : kOwnNetworks)
            host.Manager().DeleteProfile(&adapter, name);
    }
    if (host.adapters.empty())
        return;
    for (const char* name : kOwnNetworks)
        host.Manager().SetProfile(&host.adapters.front(), Wide(methods::ProfileDocument(name, true)).c_str());
}

} // namespace calvix::test::soak
