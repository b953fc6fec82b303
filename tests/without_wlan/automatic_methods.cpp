#include "without_wlan/method_case.h"

namespace calvix::test::every_method
{

namespace
{

/// Calls a method with a list that holds something, which it empties before anything can fail.
template <typename Entry, typename Method>
std::string WithList(const Method& method)
{
    std::vector<Entry> list(2);
    const int code = method(&list);
    EXPECT_THAT(list, testing::SizeIs(0));
    return Said(code);
}

std::string ListConnectable(CWirelessManage& manager)
{
    wchar_t name[] = L"Home";
    return WithList<WLAN_BSS_ENTRY>([&](auto* list) { return manager.GetConnectableAPList(&kAdapter, name, list); });
}

std::string ListFirstConnectable(CWirelessManage& manager)
{
    wchar_t name[] = L"Home";
    return WithList<WLAN_BSS_ENTRY>([&](auto* list) { return manager.GetConnectableAPList(name, list); });
}

std::string JoinOtherThan(CWirelessManage& manager)
{
    std::vector<WLAN_BSS_ENTRY> excluded(1);
    return Said(manager.ConnectBestAP(&kAdapter, &excluded));
}

std::string JoinOtherThanBoth(CWirelessManage& manager)
{
    std::vector<WLAN_BSS_ENTRY> excluded(1);
    return Said(manager.ConnectBestAP(&kAdapter, &excluded, L"Home"));
}

std::string JoinFirstMatch(CWirelessManage& manager)
{
    Untouched<char[128]> profileName;
    return Said(manager.SmartConnecting(&kAdapter, *profileName));
}

} // namespace

std::vector<MethodCase> AutomaticMethods()
{
    using Manager = CWirelessManage;
    return {
        {"GetMatchAPList(GUID const*, std::vector<WLAN_BSS_ENTRY>*)",
         [](Manager& m)
         { return WithList<WLAN_BSS_ENTRY>([&](auto* list) { return m.GetMatchAPList(&kAdapter, list); }); },
         Is(-2), Is(-5)},
        {"GetConnectableAPList(GUID const*, wchar_t*, std::vector<WLAN_BSS_ENTRY>*)", ListConnectable, Is(-2), Is(-5)},
        {"GetConnectableAPList(wchar_t*, std::vector<WLAN_BSS_ENTRY>*)", ListFirstConnectable, Is(-2), Is(-4)},
        {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, int)",
         [](Manager& m)
         { return WithList<std::wstring>([&](auto* list) { return m.GetMatchAPCount(&kAdapter, list, 1); }); },
         Is(-2), Is(-5)},
        {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, wchar_t const*, int)",
         [](Manager& m)
         { return WithList<std::wstring>([&](auto* list) { return m.GetMatchAPCount(&kAdapter, list, L"Home", 1); }); },
         Is(-2), Is(-5)},
        {"GetMatchBSSID(GUID const*)", [](Manager& m) { return Said(m.GetMatchBSSID(&kAdapter)); }, Is(-2), Is(-5)},
        {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*, wchar_t const*)", JoinOtherThanBoth, Is(-1), Is(-4)},
        {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*)", JoinOtherThan, Is(-1), Is(-4)},
        {"ConnectBestAP(GUID const*, wchar_t const*)",
         [](Manager& m) { return Said(m.ConnectBestAP(&kAdapter, L"Home")); }, Is(-1), Is(-4)},
        {"ConnectBestAP(GUID const*)", [](Manager& m) { return Said(m.ConnectBestAP(&kAdapter)); }, Is(-1), Is(-4)},
        {"AutoConnect(GUID const*)", [](Manager& m) { return Said(m.AutoConnect(&kAdapter)); }, Is(-1), Is(-4)},
        {"AutoConnectEx(GUID const*)", [](Manager& m) { return Said(m.AutoConnectEx(&kAdapter)); }, Is(-1), Is(-4)},
        {"AutoSwitch(GUID const*)", [](Manager& m) { return Said(m.AutoSwitch(&kAdapter)); }, Is(-1), Is(-3)},
        {"SmartSwitch(GUID const*)", [](Manager& m) { return Said(m.SmartSwitch(&kAdapter)); }, Is(-1),
         AnErrorNumber()},
        {"SmartConnecting(GUID const*, char*)", JoinFirstMatch, Is(-1), Is(0)},
        {"ConnectAutoMode(GUID const*)", [](Manager& m) { return Said(m.ConnectAutoMode(&kAdapter)); }, Is(-1), Is(-4)},
        {"PreRoaming(GUID const*)", [](Manager& m) { return Said(m.PreRoaming(&kAdapter)); }, Is(-1), Is(-4)},
        {"Roaming(GUID const*)", [](Manager& m) { return Said(m.Roaming(&kAdapter)); }, Is(-1), Is(-4)},
    };
}

} // namespace calvix::test::every_method
