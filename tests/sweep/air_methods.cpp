#include "support/test_worlds.h"
#include "sweep/method_call.h"

namespace calvix::test::sweep
{

using Manager = CWirelessManage;

namespace
{

Outcome RescanWithError(Manager& manager)
{
    Output<unsigned long> error;
    return Told(manager.Rescan(&kAdapterA, error.value), error);
}

Outcome LookForNetwork(Manager& manager)
{
    DOT11_SSID ssid = MakeSsid("OfficeNet");
    return Told(manager.GetAP(&kAdapterA, &ssid));
}

Outcome AskReason(Manager& manager)
{
    DOT11_SSID ssid = MakeSsid("OfficeNet");
    Output<int> connectable;
    Output<unsigned long> reason;
    return Told(manager.GetNotConnectableReason(&kAdapterA, &ssid, dot11_BSS_type_infrastructure, connectable.value,
                                                reason.value),
                connectable, reason);
}

Outcome AskRssi(Manager& manager)
{
    Output<int> rssi;
    return Told(manager.GetRssi(&kAdapterA, rssi.value), rssi);
}

Outcome AskCurrentRssi(Manager& manager)
{
    Output<int> rssi;
    return Told(manager.GetCurrentRSSI(&kAdapterA, rssi.value), rssi);
}

Outcome EstimateRssi(Manager& manager)
{
    DOT11_SSID ssid = MakeSsid("OfficeNet");
    return Told(manager.GetWiFiRSSI(&kAdapterA, ssid));
}

Outcome ListSoftAccessPoints(Manager& manager)
{
    OutputList<std::string> names;
    return Told(manager.GetSoftAPList(&kAdapterA, &names.value), names);
}

Outcome AskReasonText(Manager& manager)
{
    TextOutput<64> text;
    return Told(manager.ReasonCode2String(0, text.value.data(), sizeof(text.value)), text);
}

template <typename Entry, typename Method>
Outcome WithList(const Method& method)
{
    OutputList<Entry> list;
    return Told(method(&list.value), list);
}

Outcome ListMatching(Manager& manager)
{
    return WithList<WLAN_BSS_ENTRY>([&](auto* list) { return manager.GetMatchAPList(&kAdapterA, list); });
}

Outcome ListConnectable(Manager& manager)
{
    wchar_t name[] = L"OfficeNet";
    return WithList<WLAN_BSS_ENTRY>([&](auto* list) { return manager.GetConnectableAPList(&kAdapterA, name, list); });
}

Outcome ListFirstConnectable(Manager& manager)
{
    wchar_t name[] = L"OfficeNet";
    return WithList<WLAN_BSS_ENTRY>([&](auto* list) { return manager.GetConnectableAPList(name, list); });
}

Outcome CountMatching(Manager& manager)
{
    return WithList<std::wstring>([&](auto* list) { return manager.GetMatchAPCount(&kAdapterA, list, 1); });
}

Outcome CountOthers(Manager& manager)
{
    return WithList<std::wstring>([&](auto* list)
                                  { return manager.GetMatchAPCount(&kAdapterA, list, L"OfficeNet", 1); });
}

std::vector<MethodCall> SignalMethods()
{
    return {
        {"GetChannel(unsigned long)", [](Manager& m) { return Told(m.GetChannel(5180000)); }},
        {"GetSignalStrength(int)", [](Manager& m) { return Told(m.GetSignalStrength(-75)); }},
        {"GetRssi(GUID const*, int&)", AskRssi},
        {"GetCurrentRSSI(GUID const*, int&)", AskCurrentRssi},
        {"GetWiFiRSSI(GUID const*, DOT11_SSID&)", EstimateRssi},
        {"GetSignalQuality(GUID const*)", [](Manager& m) { return Told(m.GetSignalQuality(&kAdapterA)); }},
    };
}

std::vector<MethodCall> ListMethods()
{
    return {
        {"Rescan(GUID const*, unsigned long&)", RescanWithError},
        {"Rescan()", [](Manager& m) { return Told(m.Rescan()); }},
        {"GetAvailableNetworkCount(GUID const*)",
         [](Manager& m) { return Told(m.GetAvailableNetworkCount(&kAdapterA)); }},
        {"GetNetworkBssCount()", [](Manager& m) { return Told(m.GetNetworkBssCount()); }},
        {"GetConnectableNetworkCount(GUID const*)",
         [](Manager& m) { return Told(m.GetConnectableNetworkCount(&kAdapterA)); }},
        {"GetAP(GUID const*, DOT11_SSID*)", LookForNetwork},
        {"GetNotConnectableReason(GUID const*, DOT11_SSID*, unsigned long, int&, unsigned long&)", AskReason},
        {"IsWiFiDisappear(GUID const*)", [](Manager& m) { return Told(m.IsWiFiDisappear(&kAdapterA)); }},
        {"GetCurrentBSS()", [](Manager& m) { return Told(m.GetCurrentBSS()); }},
        {"GetSoftAPList(GUID const*, std::vector<std::string>*)", ListSoftAccessPoints},
        {"SpecialSoftAP()", [](Manager& m) { return Told(m.SpecialSoftAP()); }},
        {"GetAvailableNetwork()", [](Manager& m) { return Told(m.GetAvailableNetwork()); }},
        {"GetNetworkBss()", [](Manager& m) { return Told(m.GetNetworkBss()); }},
        {"ReasonCode2String(unsigned long, char*, int)", AskReasonText},
        {"GetMatchAPList(GUID const*, std::vector<WLAN_BSS_ENTRY>*)", ListMatching},
        {"GetConnectableAPList(GUID const*, wchar_t*, std::vector<WLAN_BSS_ENTRY>*)", ListConnectable},
        {"GetConnectableAPList(wchar_t*, std::vector<WLAN_BSS_ENTRY>*)", ListFirstConnectable},
        {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, int)", CountMatching},
        {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, wchar_t const*, int)", CountOthers},
        {"GetMatchBSSID(GUID const*)", [](Manager& m) { return Told(m.GetMatchBSSID(&kAdapterA)); }},
    };
}

} // namespace

std::vector<MethodCall> AirMethods()
{
    std::vector<MethodCall> methods = ListMethods();
    const std::vector<MethodCall> signals = SignalMethods();
    methods.insert(methods.end(), signals.begin(), signals.end());
    return methods;
}

} // namespace calvix::test::sweep
