#include "without_wlan/method_case.h"

namespace calvix::test::every_method
{

namespace
{

constexpr wchar_t kXml[] = L"<WLANProfile><name>Home</name><SSIDConfig><SSID><name>Home</name></SSID></SSIDConfig>"
                           L"<connectionMode>auto</connectionMode></WLANProfile>";

std::string ReadWide(CWirelessManage& manager)
{
    Untouched<wchar_t[64]> xml;
    return Said(manager.GetProfile(&kAdapter, L"Home", *xml, 64));
}

std::string ReadNarrow(CWirelessManage& manager)
{
    Untouched<char[64]> xml;
    return Said(manager.GetProfile(&kAdapter, L"Home", *xml, 64));
}

std::string CompareSsid(CWirelessManage& manager)
{
    wchar_t ssid[] = L"Home";
    return Said(manager.IsThisSSID(kXml, ssid));
}

} // namespace

std::vector<MethodCase> ProfileMethods()
{
    using Manager = CWirelessManage;
    return {
        {"GetWlanProfile(GUID const*, char const*)",
         [](Manager& m) { return Said(m.GetWlanProfile(&kAdapter, "Home")); }, Is(kNoLibrary), AnErrorNumber()},
        {"DeleteProfile(GUID const*, char const*)", [](Manager& m) { return Said(m.DeleteProfile(&kAdapter, "Home")); },
         Is(-1), Is(-4)},
        {"DeleteProfile(GUID const*, wchar_t const*)",
         [](Manager& m) { return Said(m.DeleteProfile(&kAdapter, L"Home")); }, Is(-1), Is(-4)},
        {"ResetProfilePosition(GUID const*, char const*)",
         [](Manager& m) { return Said(m.ResetProfilePosition(&kAdapter, "Home")); }, Is(-1), AnErrorNumber()},
        {"SetProfilePosition(GUID const*, wchar_t const*)",
         [](Manager& m) { return Said(m.SetProfilePosition(&kAdapter, L"Home")); }, Is(-1), AnErrorNumber()},
        {"GetProfileCount(GUID const*)", [](Manager& m) { return Said(m.GetProfileCount(&kAdapter)); }, Is(-1), Is(-4)},
        {"GetProfile(GUID const*, wchar_t const*, wchar_t*, int)", ReadWide, Is(-1), Is(-4)},
        {"GetProfile(GUID const*, wchar_t const*, char*, int)", ReadNarrow, Is(-1), Is(-4)},
        {"GetProfile(GUID const*, wchar_t const*)", [](Manager& m) { return Said(m.GetProfile(&kAdapter, L"Home")); },
         Is(-1), Is(-4)},
        {"SetProfile(GUID const*, wchar_t const*)", [](Manager& m) { return Said(m.SetProfile(&kAdapter, kXml)); },
         Is(-1), Is(-4)},
        {"IsThisSSID(wchar_t const*, wchar_t*)", CompareSsid, Is(1), Is(1)},
        {"IsAutoConnMode(wchar_t const*)", [](Manager& m) { return Said(m.IsAutoConnMode(kXml)); }, Is(1), Is(1)},
        {"IsAutoConnMode2(GUID const*, wchar_t const*)",
         [](Manager& m) { return Said(m.IsAutoConnMode2(&kAdapter, L"Home")); }, Is(-1), Is(-4)},
    };
}

} // namespace calvix::test::every_method
