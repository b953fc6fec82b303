#include "without_wlan/method_case.h"

namespace calvix::test::every_method
{

namespace
{

std::string RescanWithError(CWirelessManage& manager)
{
    unsigned long error = 0;
    const int code = manager.Rescan(&kAdapter, error);
    EXPECT_THAT(Said(error), AnErrorNumber());
    return Said(code);
}

std::string LookForNetwork(CWirelessManage& manager)
{
    DOT11_SSID ssid = {4, {'H', 'o', 'm', 'e'}};
    return Said(manager.GetAP(&kAdapter, &ssid));
}

std::string AskReason(CWirelessManage& manager)
{
    DOT11_SSID ssid = {4, {'H', 'o', 'm', 'e'}};
    Untouched<int> connectable;
    Untouched<unsigned long> reason;
    return Said(
        manager.GetNotConnectableReason(&kAdapter, &ssid, dot11_BSS_type_infrastructure, *connectable, *reason));
}

std::string AskRssi(CWirelessManage& manager)
{
    Untouched<int> rssi;
    return Said(manager.GetRssi(&kAdapter, *rssi));
}

std::string AskCurrentRssi(CWirelessManage& manager)
{
    Untouched<int> rssi;
    return Said(manager.GetCurrentRSSI(&kAdapter, *rssi));
}

std::string EstimateRssi(CWirelessManage& manager)
{
    DOT11_SSID ssid = {4, {'H', 'o', 'm', 'e'}};
    return Said(manager.GetWiFiRSSI(&kAdapter, ssid));
}

std::string ListSoftAccessPoints(CWirelessManage& manager)
{
    std::vector<std::string> names = {"kept"};
    const int code = manager.GetSoftAPList(&kAdapter, &names);
    EXPECT_THAT(names, testing::ElementsAre("kept"));
    return Said(code);
}

/// A text that cannot be had is an empty one.
std::string AskReasonText(CWirelessManage& manager)
{
    char text[64] = "former";
    const bool filled = manager.ReasonCode2String(0, text, sizeof(text));
    EXPECT_STREQ(text, "");
    return Said(filled);
}

} // namespace

std::vector<MethodCase> InventoryMethods()
{
    using Manager = CWirelessManage;
    return {
        {"Rescan(GUID const*, unsigned long&)", RescanWithError, Is(-1), Is(-4)},
        {"Rescan()", [](Manager& m) { return Said(m.Rescan()); }, Is(-1), Is(-3)},
        {"GetAvailableNetworkCount(GUID const*)",
         [](Manager& m) { return Said(m.GetAvailableNetworkCount(&kAdapter)); }, Is(-2), Is(-5)},
        {"GetNetworkBssCount()", [](Manager& m) { return Said(m.GetNetworkBssCount()); }, Is(-2), Is(-4)},
        {"GetConnectableNetworkCount(GUID const*)",
         [](Manager& m) { return Said(m.GetConnectableNetworkCount(&kAdapter)); }, Is(-2), Is(-5)},
        {"GetAP(GUID const*, DOT11_SSID*)", LookForNetwork, Is(-1), Is(-3)},
        {"GetNotConnectableReason(GUID const*, DOT11_SSID*, unsigned long, int&, unsigned long&)", AskReason, Is(-1),
         Is(-4)},
        {"IsWiFiDisappear(GUID const*)", [](Manager& m) { return Said(m.IsWiFiDisappear(&kAdapter)); }, Is(0), Is(0)},
        {"GetCurrentBSS()", [](Manager& m) { return Said(m.GetCurrentBSS()); }, Is(-1), Is(-3)},
        {"GetChannel(unsigned long)", [](Manager& m) { return Said(m.GetChannel(5180000)); }, Is(36), Is(36)},
        {"GetSignalStrength(int)", [](Manager& m) { return Said(m.GetSignalStrength(-75)); }, Is(50), Is(50)},
        {"GetRssi(GUID const*, int&)", AskRssi, Is(-1), Is(-4)},
        {"GetCurrentRSSI(GUID const*, int&)", AskCurrentRssi, Is(-1), Is(-4)},
        {"GetWiFiRSSI(GUID const*, DOT11_SSID&)", EstimateRssi, Is(-1), Is(-100)},
        {"GetSignalQuality(GUID const*)", [](Manager& m) { return Said(m.GetSignalQuality(&kAdapter)); }, Is(-1),
         Is(-4)},
        {"GetSoftAPList(GUID const*, std::vector<std::string>*)", ListSoftAccessPoints, Is(-1), AnErrorNumber()},
        {"SpecialSoftAP()", [](Manager& m) { return Said(m.SpecialSoftAP()); }, Is(0), Is(0)},
        {"GetAvailableNetwork()", [](Manager& m) { return Said(m.GetAvailableNetwork()); }, Is(kNoLibrary), Is(0)},
        {"GetNetworkBss()", [](Manager& m) { return Said(m.GetNetworkBss()); }, Is(kNoLibrary), Is(0)},
        {"ReasonCode2String(unsigned long, char*, int)", AskReasonText, Is(1), Is(1)},
    };
}

} // namespace calvix::test::every_method
