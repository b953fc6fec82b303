#include "support/test_worlds.h"
#include "sweep/method_call.h"

namespace calvix::test::sweep
{

using Manager = CWirelessManage;

namespace
{

constexpr int kCapacity = 4096;

/// A profile document that the service takes.
const std::wstring& Document()
{
    const AllocationPause notTheMethods;
    static const std::string narrow = MakeProfile("NewNet").xml;
    static const std::wstring xml(narrow.begin(), narrow.end());
    return xml;
}

Outcome ReadWide(Manager& manager)
{
    Output<std::array<wchar_t, kCapacity>> xml;
    return Told(manager.GetProfile(&kAdapterA, L"OfficeNet", xml.value.data(), kCapacity), xml);
}

Outcome ReadNarrow(Manager& manager)
{
    TextOutput<kCapacity> xml;
    return Told(manager.GetProfile(&kAdapterA, L"OfficeNet", xml.value.data(), kCapacity), xml);
}

Outcome CompareSsid(Manager& manager)
{
    wchar_t ssid[] = L"NewNet";
    return Told(manager.IsThisSSID(Document().c_str(), ssid));
}

} // namespace

std::vector<MethodCall> ProfileMethods()
{
    return {
        {"GetWlanProfile(GUID const*, char const*)",
         [](Manager& m) { return Told(m.GetWlanProfile(&kAdapterA, "OfficeNet")); }},
        {"DeleteProfile(GUID const*, char const*)",
         [](Manager& m) { return Told(m.DeleteProfile(&kAdapterA, "OfficeNet")); }},
        {"DeleteProfile(GUID const*, wchar_t const*)",
         [](Manager& m) { return Told(m.DeleteProfile(&kAdapterA, L"OfficeNet")); }},
        {"ResetProfilePosition(GUID const*, char const*)",
         [](Manager& m) { return Told(m.ResetProfilePosition(&kAdapterA, "OfficeNet")); }},
        {"SetProfilePosition(GUID const*, wchar_t const*)",
         [](Manager& m) { return Told(m.SetProfilePosition(&kAdapterA, L"OfficeNet")); }},
        {"GetProfileCount(GUID const*)", [](Manager& m) { return Told(m.GetProfileCount(&kAdapterA)); }},
        {"GetProfile(GUID const*, wchar_t const*, wchar_t*, int)", ReadWide},
        {"GetProfile(GUID const*, wchar_t const*, char*, int)", ReadNarrow},
        {"GetProfile(GUID const*, wchar_t const*)",
         [](Manager& m) { return Told(m.GetProfile(&kAdapterA, L"OfficeNet")); }},
        {"SetProfile(GUID const*, wchar_t const*)",
         [](Manager& m) { return Told(m.SetProfile(&kAdapterA, Document().c_str())); }},
        {"IsThisSSID(wchar_t const*, wchar_t*)", CompareSsid},
        {"IsAutoConnMode(wchar_t const*)", [](Manager& m) { return Told(m.IsAutoConnMode(Document().c_str())); }},
        {"IsAutoConnMode2(GUID const*, wchar_t const*)",
         [](Manager& m) { return Told(m.IsAutoConnMode2(&kAdapterA, L"HomeNet")); }},
    };
}

} // namespace calvix::test::sweep
