// The reference's examples: access points of stored networks, automatic connection, roaming.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::automatic_examples
{

void Matching(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetMatchAPList]
    std::vector<WLAN_BSS_ENTRY> entries;
    if (manager.GetMatchAPList(&adapter, &entries) > 0)
        std::printf("the first is heard at %ld dBm\n", static_cast<long>(entries.front().lRssi));
    //! [GetMatchAPList]
}

void Connectable(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetConnectableAPList]
    wchar_t wanted[] = L"Guests"; // counts though it is manual
    std::vector<WLAN_BSS_ENTRY> entries;
    const int found = manager.GetConnectableAPList(&adapter, wanted, &entries);
    std::printf("%d access points\n", found < 0 ? 0 : found);
    //! [GetConnectableAPList]
}

void ConnectableOfFirst(CWirelessManage& manager)
{
    //! [GetConnectableAPList, first adapter]
    wchar_t none[] = L"";
    std::vector<WLAN_BSS_ENTRY> entries;
    if (manager.GetConnectableAPList(none, &entries) == -4)
        std::printf("no adapter\n");
    //! [GetConnectableAPList, first adapter]
}

void Names(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetMatchAPCount]
    std::vector<std::wstring> names;
    manager.GetMatchAPCount(&adapter, &names, 1);
    for (const std::wstring& name : names)
        std::printf("%ls\n", name.c_str());
    //! [GetMatchAPCount]
}

void NamesAndOne(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetMatchAPCount, with a name]
    std::vector<std::wstring> names;
    if (manager.GetMatchAPCount(&adapter, &names, L"Guests", 1) > 0)
        std::printf("somewhere to go\n");
    //! [GetMatchAPCount, with a name]
}

void Drift(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetMatchBSSID]
    if (const int code = manager.GetMatchBSSID(&adapter); code != -1)
        std::printf("the last problem: %d\n", code);
    //! [GetMatchBSSID]
}

void BestButForSome(CWirelessManage& manager, const GUID& adapter, const WLAN_BSS_ENTRY& failed)
{
    //! [ConnectBestAP, without some]
    std::vector<WLAN_BSS_ENTRY> excluded = {failed};
    if (manager.ConnectBestAP(&adapter, &excluded, L"Guests") == -9)
        std::printf("nothing else is in view\n");
    //! [ConnectBestAP, without some]
}

void BestButForNetworks(CWirelessManage& manager, const GUID& adapter, const WLAN_BSS_ENTRY& failed)
{
    //! [ConnectBestAP, without networks]
    std::vector<WLAN_BSS_ENTRY> excluded = {failed};
    if (const int code = manager.ConnectBestAP(&adapter, &excluded); code != 0)
        std::printf("nothing joined (ConnectBestAP: %d)\n", code);
    //! [ConnectBestAP, without networks]
}

void BestButForProfile(CWirelessManage& manager, const GUID& adapter)
{
    //! [ConnectBestAP, without a profile]
    if (const int code = manager.ConnectBestAP(&adapter, L"Guests"); code != 0)
        std::printf("nothing joined (ConnectBestAP: %d)\n", code);
    //! [ConnectBestAP, without a profile]
}

void Best(CWirelessManage& manager, const GUID& adapter)
{
    //! [ConnectBestAP]
    const int code = manager.ConnectBestAP(&adapter);
    std::printf("%s\n", code == 0 ? "requested" : code == -12 ? "all refused" : "nothing to request");
    //! [ConnectBestAP]
}

void InOrder(CWirelessManage& manager, const GUID& adapter)
{
    //! [AutoConnect]
    if (manager.AutoConnect(&adapter) == -9)
        std::printf("no stored network is in view\n");
    //! [AutoConnect]
}

void Ranked(CWirelessManage& manager, const GUID& adapter)
{
    //! [AutoConnectEx]
    if (manager.AutoConnectEx(&adapter) == -12)
        std::printf("all refused\n");
    //! [AutoConnectEx]
}

void Elsewhere(CWirelessManage& manager, const GUID& adapter)
{
    //! [AutoSwitch]
    if (manager.AutoSwitch(&adapter) == -3)
        std::printf("not connected, so there is nothing to switch from\n");
    //! [AutoSwitch]
}

void Better(CWirelessManage& manager, const GUID& adapter)
{
    //! [SmartSwitch]
    if (manager.SmartSwitch(&adapter) == 1004) // ERROR_INVALID_FLAGS
        std::printf("the platform does not convert SSIDs this way\n");
    //! [SmartSwitch]
}

void FirstInView(CWirelessManage& manager)
{
    //! [SmartConnecting]
    char profile[128] = "";
    if (manager.SmartConnecting(nullptr, profile) == 0 && *profile != '\0')
        std::printf("asked for %s\n", profile);
    //! [SmartConnecting]
}

void AutomaticOnly(CWirelessManage& manager, const GUID& adapter)
{
    //! [ConnectAutoMode]
    if (manager.ConnectAutoMode(&adapter) == -9)
        manager.ConnectBestAP(&adapter); // looks at automatic profiles only as well, and works on Windows
    //! [ConnectAutoMode]
}

void WouldRoam(CWirelessManage& manager, const GUID& adapter)
{
    //! [PreRoaming]
    if (manager.PreRoaming(&adapter) == 0)
        std::printf("a better access point is in view\n");
    //! [PreRoaming]
}

void Roam(CWirelessManage& manager, const GUID& adapter)
{
    //! [Roaming]
    const int code = manager.Roaming(&adapter);
    if (code != 0 && code != -5 && code != -8) // good enough, already there
        std::printf("not roaming (Roaming: %d)\n", code);
    //! [Roaming]
}

} // namespace reference::automatic_examples
