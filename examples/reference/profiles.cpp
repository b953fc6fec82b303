// The reference's examples: profiles.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::profile_examples
{

void Has(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetWlanProfile]
    const int result = manager.GetWlanProfile(&adapter, "Office");
    std::printf("%s\n", result == 0 ? "stored" : result == -1 ? "not stored" : "not known");
    //! [GetWlanProfile]
}

void DeleteNarrow(CWirelessManage& manager, const GUID& adapter)
{
    //! [DeleteProfile, narrow]
    if (manager.DeleteProfile(&adapter, "Guests") != 0)
        std::printf("not deleted\n");
    //! [DeleteProfile, narrow]
}

void DeleteWide(CWirelessManage& manager, const GUID& adapter)
{
    //! [DeleteProfile, wide]
    if (manager.DeleteProfile(&adapter, L"Guests") != 0)
        std::printf("not deleted\n");
    //! [DeleteProfile, wide]
}

void MoveToSecond(CWirelessManage& manager, const GUID& adapter)
{
    //! [ResetProfilePosition]
    if (const int error = manager.ResetProfilePosition(&adapter, "Office"); error != 0)
        std::printf("not moved: %d\n", error);
    //! [ResetProfilePosition]
}

void MoveToLast(CWirelessManage& manager, const GUID& adapter)
{
    //! [SetProfilePosition]
    if (const int error = manager.SetProfilePosition(&adapter, L"Guests"); error != 0)
        std::printf("not moved: %d\n", error);
    //! [SetProfilePosition]
}

void Count(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetProfileCount]
    if (const int profiles = manager.GetProfileCount(&adapter); profiles >= 0)
        std::printf("%d profiles\n", profiles);
    //! [GetProfileCount]
}

void ReadWide(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetProfile, wide]
    std::vector<wchar_t> xml(32768);
    if (manager.GetProfile(&adapter, L"Office", xml.data(), static_cast<int>(xml.size())) == 0)
        std::printf("connects automatically: %d\n", manager.IsAutoConnMode(xml.data()));
    //! [GetProfile, wide]
}

void ReadNarrow(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetProfile, narrow]
    std::vector<char> xml(65536);
    if (manager.GetProfile(&adapter, L"Office", xml.data(), static_cast<int>(xml.size())) == 0)
        std::printf("%s\n", xml.data());
    //! [GetProfile, narrow]
}

void Readable(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetProfile, test]
    if (manager.GetProfile(&adapter, L"Office") == 0)
        std::printf("can be read\n");
    //! [GetProfile, test]
}

void Store(CWirelessManage& manager, const GUID& adapter, const std::wstring& document)
{
    //! [SetProfile]
    if (const int code = manager.SetProfile(&adapter, document.c_str()); code != 0)
        std::printf("not stored (SetProfile: %d)\n", code);
    //! [SetProfile]
}

void ForNetwork(CWirelessManage& manager, const std::wstring& document)
{
    //! [IsThisSSID]
    wchar_t ssid[] = L"Office";
    if (manager.IsThisSSID(document.c_str(), ssid) == 1)
        std::printf("the document is for this network\n");
    //! [IsThisSSID]
}

void Automatic(CWirelessManage& manager, const std::wstring& document)
{
    //! [IsAutoConnMode]
    if (manager.IsAutoConnMode(document.c_str()) == 1)
        std::printf("connects automatically\n");
    //! [IsAutoConnMode]
}

void StoredAutomatic(CWirelessManage& manager, const GUID& adapter)
{
    //! [IsAutoConnMode2]
    if (manager.IsAutoConnMode2(&adapter, L"Office") == 1)
        std::printf("connects automatically\n");
    //! [IsAutoConnMode2]
}

} // namespace reference::profile_examples
