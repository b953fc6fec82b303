// The reference's examples: profiles.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void GetWlanProfile(CWirelessManage& manager, const GUID& adapter)
{
    const int result = manager.GetWlanProfile(&adapter, "Office");
    std::printf("%s\n", result == 0 ? "stored" : result == -1 ? "not stored" : "not known");
}

void DeleteProfileNarrow(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.DeleteProfile(&adapter, "Guests") != 0)
        std::printf("not deleted\n");
}

void DeleteProfileWide(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.DeleteProfile(&adapter, L"Guests") != 0)
        std::printf("not deleted\n");
}

void ResetProfilePosition(CWirelessManage& manager, const GUID& adapter)
{
    if (const int error = manager.ResetProfilePosition(&adapter, "Office"); error != 0)
        std::printf("not moved: %d\n", error);
}

void SetProfilePosition(CWirelessManage& manager, const GUID& adapter)
{
    if (const int error = manager.SetProfilePosition(&adapter, L"Guests"); error != 0)
        std::printf("not moved: %d\n", error);
}

void GetProfileCount(CWirelessManage& manager, const GUID& adapter)
{
    if (const int profiles = manager.GetProfileCount(&adapter); profiles >= 0)
        std::printf("%d profiles\n", profiles);
}

void GetProfileWide(CWirelessManage& manager, const GUID& adapter)
{
    std::vector<wchar_t> xml(32768);
    if (manager.GetProfile(&adapter, L"Office", xml.data(), static_cast<int>(xml.size())) == 0)
        std::printf("connects automatically: %d\n", manager.IsAutoConnMode(xml.data()));
}

void GetProfileNarrow(CWirelessManage& manager, const GUID& adapter)
{
    std::vector<char> xml(65536);
    if (manager.GetProfile(&adapter, L"Office", xml.data(), static_cast<int>(xml.size())) == 0)
        std::printf("%s\n", xml.data());
}

void GetProfileTest(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.GetProfile(&adapter, L"Office") == 0)
        std::printf("can be read\n");
}

void SetProfile(CWirelessManage& manager, const GUID& adapter, const std::wstring& document)
{
    if (const int code = manager.SetProfile(&adapter, document.c_str()); code != 0)
        std::printf("not stored (SetProfile: %d)\n", code);
}

void IsThisSSID(CWirelessManage& manager, const std::wstring& document)
{
    wchar_t ssid[] = L"Office";
    if (manager.IsThisSSID(document.c_str(), ssid) == 1)
        std::printf("the document is for this network\n");
}

void IsAutoConnMode(CWirelessManage& manager, const std::wstring& document)
{
    if (manager.IsAutoConnMode(document.c_str()) == 1)
        std::printf("connects automatically\n");
}

void IsAutoConnMode2(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.IsAutoConnMode2(&adapter, L"Office") == 1)
        std::printf("connects automatically\n");
}

} // namespace reference
