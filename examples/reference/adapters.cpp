// The reference's examples: adapters.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void CheckAutoConfig(CWirelessManage& manager)
{
    manager.CheckAutoConfig();
    if (manager.GetWiFiAdapterCount() < 0)
        std::printf("the WLAN service does not run, or not yet\n");
}

void GetWlanStatus(CWirelessManage& manager, const GUID& adapter)
{
    const int state = manager.GetWlanStatus(&adapter);
    if (state == wlan_interface_state_disconnected)
        std::printf("free to connect\n");
    else if (state < 0)
        std::printf("no state (GetWlanStatus: %d)\n", state);
}

void GetWlanIsLink(CWirelessManage& manager, const GUID& adapter)
{
    if (manager.GetWlanIsLink(&adapter))
        std::printf("connected\n");
}

void GetWlanInterfaceState(CWirelessManage& manager, const WLAN_INTERFACE_INFO& adapter)
{
    std::printf("%s\n", manager.GetWlanInterfaceState(static_cast<unsigned long>(adapter.isState)));
}

void GetWlanInterfaceGuid(CWirelessManage& manager)
{
    GUID adapter{};
    if (manager.GetWlanInterfaceGuid(L"Calvix Simulated Wi-Fi 6E Adapter", adapter) == 0)
        std::printf("found: %s\n", manager.GUID2String(adapter));
}

void GUID2String(CWirelessManage& manager, const GUID& adapter)
{
    const std::string text = manager.GUID2String(adapter); // copied: the next call overwrites it
    std::printf("%s\n", text.c_str());
}

void GetWlanInterfaceDesc(CWirelessManage& manager, const GUID& adapter)
{
    const char* const description = manager.GetWlanInterfaceDesc(&adapter);
    std::printf("%s\n", *description != '\0' ? description : "no such adapter");
}

void GetWiFiAdapterCount(CWirelessManage& manager)
{
    const int count = manager.GetWiFiAdapterCount();
    if (count < 0)
        std::printf("not known (GetWiFiAdapterCount: %d)\n", count);
}

void GetWlanInterface(CWirelessManage& manager)
{
    std::vector<WLAN_INTERFACE_INFO> adapters;
    if (manager.GetWlanInterface(&adapters) == 0)
        for (const WLAN_INTERFACE_INFO& adapter : adapters)
            std::printf("%s\n", manager.GUID2String(adapter.InterfaceGuid));
}

} // namespace reference
