#include "without_wlan/method_case.h"

namespace calvix::test::every_method
{

namespace
{

void WINAPI IgnoreNotification(PWLAN_NOTIFICATION_DATA, PVOID) {}

std::string GetInterfaceList(CWirelessManage& manager)
{
    std::vector<WLAN_INTERFACE_INFO> adapters(2);
    const long code = manager.GetWlanInterface(&adapters);
    EXPECT_EQ(adapters.size(), 2U) << "the list was touched";
    return Said(code);
}

std::string FindInterface(CWirelessManage& manager)
{
    Untouched<GUID> guid;
    return Said(manager.GetWlanInterfaceGuid(L"Wireless adapter", *guid));
}

} // namespace

std::vector<MethodCase> FrameMethods()
{
    using Manager = CWirelessManage;
    const Answer nothing = testing::StrEq(kReturned);
    return {
        {"Get()", [](Manager& m) { return Said(Manager::Get() == &m); }, Is(1), Is(1)},
        {"operator=(CWirelessManage const&)",
         [](Manager& m)
         {
             const Manager& other = m;
             return Said(&(m = other) == &m);
         },
         Is(1), Is(1)},
        {"__autoclassinit2(unsigned long long)",
         [](Manager& m)
         {
             m.__autoclassinit2(0);
             return Said(kReturned);
         },
         nothing, nothing},
        {"CheckAutoConfig()",
         [](Manager& m)
         {
             m.CheckAutoConfig();
             return Said(kReturned);
         },
         nothing, nothing},
        {"GetWlanStatus(GUID const*)", [](Manager& m) { return Said(m.GetWlanStatus(&kAdapter)); }, Is(-2), Is(-4)},
        {"GetWlanIsLink(GUID const*)", [](Manager& m) { return Said(m.GetWlanIsLink(&kAdapter)); }, Is(0), Is(0)},
        {"GetWlanInterfaceState(unsigned long)", [](Manager& m) { return Said(m.GetWlanInterfaceState(1)); },
         testing::StrEq("connected"), testing::StrEq("connected")},
        {"GetWlanInterfaceGuid(wchar_t const*, GUID&)", FindInterface, Is(-1), Is(-3)},
        {"GUID2String(GUID const&)", [](Manager& m) { return Said(m.GUID2String(kAdapter)); },
         testing::StrEq("{CAFE0001-0002-0003-0405-060708090A0B}"),
         testing::StrEq("{CAFE0001-0002-0003-0405-060708090A0B}")},
        {"GetWlanInterfaceDesc(GUID const*)", [](Manager& m) { return Said(m.GetWlanInterfaceDesc(&kAdapter)); },
         testing::StrEq(""), testing::StrEq("")},
        {"GetWiFiAdapterCount()", [](Manager& m) { return Said(m.GetWiFiAdapterCount()); }, Is(-2), Is(0)},
        {"GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>*)", GetInterfaceList, Is(-1), Is(-3)},
        {"RegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)",
         [](Manager& m) { return Said(m.RegisterNotification(IgnoreNotification, nullptr)); }, Is(kNoLibrary),
         Is(kUnwritten)},
        {"UnRegisterNotification(WLAN_NOTIFICATION_CALLBACK, void*)",
         [](Manager& m) { return Said(m.UnRegisterNotification(IgnoreNotification, nullptr)); }, Is(kNoLibrary),
         Is(kUnwritten)},
        {"Delete()",
         [](Manager&)
         {
             Manager::Delete();
             return Said(kReturned);
         },
         nothing, nothing},
    };
}

} // namespace calvix::test::every_method
