// The reference's examples: access points of stored networks, automatic connection, roaming.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void GetMatchAPList(CWirelessManage& manager, const GUID& adapter)
{
    std::vector<WLAN_BSS_ENTRY> entries;
    if (manager.GetMatchAPList(&adapter, &entries) > 0)
        std::printf("the first is heard at %ld dBm\n", static_cast<long>(entries.front().lRssi));
}

void GetConnectableAPList(CWirelessManage& manager, const GUID& adapter)
{
    wchar_t wanted[] = L"Guests"; // counts though it is manual
    std::vector<WLAN_BSS_ENTRY> entries;
    const int found = manager.GetConnectableAPList(&adapter, wanted, &entries);
    std::printf("%d access points\n", found < 0 ? 0 : found);
}

void GetConnectableAPListOfFirst(CWirelessManage& manager)
{
    wchar_t none[] = L"";
    std::vector<WLAN_BSS_ENTRY> entries;
    if (manager.GetConnectableAPList(none, &entries) == -4)
        std::printf("no adapter\n");
}

void GetMatchAPCount(CWirelessManage& manager, const GUID& adapter)
{
    std::vector<std::wstring> names;
    manager.GetMatchAPCount(&adapter, &names, 1);
    for (const std::wstring& name : names)
        std::printf("%ls\n", name.c_str());
}

void GetMatchAPCountAndName(CWirelessManage& manager, const GUID& adapter)
{
    std::vector<std::wstring> names;
    if (manager.GetMatchAPCount(&adapter, &names, L"Guests", 1) > 0)
        std::printf("somewhere to go\n");
}

void GetMatchBSSID(CWirelessManage& manager, const GUID& adapter)
{
    if (const int code = manager.GetMatchBSSID(&adapter); code != -1)
        std::printf("the last problem: %d\n", code);
}

void ConnectBestAPWithoutSome(CWirelessManage& manager, const GUID& adapter, const WLAN_BSS_ENTRY& failed)
{
    std::vector<WLAN_BSS_ENTRY> excluded = {failed};
    if (manager.ConnectBestAP(&adapter, &excluded, L"Guests") == -9)
        std::printf("nothing else is in view\n");
}

void ConnectBestAPWithoutNetworks(CWirelessManage& manager, const GUID& adapter, const WLAN_BSS_ENTRY& failed)
{
    std::vector<WLAN_BSS_ENTRY> excluded = {failed};
    if (const int code = manager.ConnectBestAP(&adapter, &excluded); code != 0)
        std::printf("nothing joined (ConnectBestAP: %d)\n", code);
}

void ConnectBestAPWithoutProfile(CWirelessManage& manager, const GUID& adapter)
{
    if (const int code = manager.ConnectBestAP(&adapter, L"Guests"); code != 0)
        std::printf("nothing joined (ConnectBestAP: %d)\n", code);
}

void ConnectBestAP(CWirelessManage& manager, const GUID& adapter)
{
    const int code = manager.ConnectBestAP(&adapter);
    std::printf("%s\n", code == 0 ? "requested" : code == -12 ? "all refused" : "nothing to request");
}

void AutoConnect(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.AutoConnect(&adapter) == -9)
        std::printf("no stored network is in view\n");
}

void AutoConnectEx(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.AutoConnectEx(&adapter) == -12)
        std::printf("all refused\n");
}

void AutoSwitch(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.AutoSwitch(&adapter) == -3)
        std::printf("not connected, so there is nothing to switch from\n");
}

void SmartSwitch(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.SmartSwitch(&adapter) == 1004) // ERROR_INVALID_FLAGS
        std::printf("the platform does not convert SSIDs this way\n");
}

void SmartConnecting(CWirelessManage& manager)
{
    char profile[128] = "";
    if (manager.SmartConnecting(nullptr, profile) == 0 && *profile != '\0')
        std::printf("asked for %s\n", profile);
}

void ConnectAutoMode(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.ConnectAutoMode(&adapter) == -9)
        manager.ConnectBestAP(&adapter); // looks at automatic profiles only as well, and works on Windows
}

void PreRoaming(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.PreRoaming(&adapter) == 0)
        std::printf("a better access point is in view\n");
}

void Roaming(CWirelessManage& manager, const GUID& adapter)
{
    const int code = manager.Roaming(&adapter);
    if (code != 0 && code != -5 && code != -8) // good enough, already there
        std::printf("not roaming (Roaming: %d)\n", code);
}

} // namespace reference
