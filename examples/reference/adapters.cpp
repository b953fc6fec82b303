// The reference's examples: adapters.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::adapter_examples
{

void StartService(CWirelessManage& manager)
{
    //! [CheckAutoConfig]
    manager.CheckAutoConfig();
    if (manager.GetWiFiAdapterCount() < 0)
        std::printf("the WLAN service does not run, or not yet\n");
    //! [CheckAutoConfig]
}

void State(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetWlanStatus]
    const int state = manager.GetWlanStatus(&adapter);
    if (state == wlan_interface_state_disconnected)
        std::printf("free to connect\n");
    else if (state < 0)
        std::printf("no state (GetWlanStatus: %d)\n", state);
    //! [GetWlanStatus]
}

void Link(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetWlanIsLink]
    if (manager.GetWlanIsLink(&adapter))
        std::printf("connected\n");
    //! [GetWlanIsLink]
}

void StateText(CWirelessManage& manager, const WLAN_INTERFACE_INFO& adapter)
{
    //! [GetWlanInterfaceState]
    std::printf("%s\n", manager.GetWlanInterfaceState(static_cast<unsigned long>(adapter.isState)));
    //! [GetWlanInterfaceState]
}

void FindByDescription(CWirelessManage& manager)
{
    //! [GetWlanInterfaceGuid]
    GUID adapter{};
    if (manager.GetWlanInterfaceGuid(L"Calvix Simulated Wi-Fi 6E Adapter", adapter) == 0)
        std::printf("found: %s\n", manager.GUID2String(adapter));
    //! [GetWlanInterfaceGuid]
}

void GuidText(CWirelessManage& manager, const GUID& adapter)
{
    //! [GUID2String]
    const std::string text = manager.GUID2String(adapter); // copied: the next call overwrites it
    std::printf("%s\n", text.c_str());
    //! [GUID2String]
}

void Description(CWirelessManage& manager, const GUID& adapter)
{
    //! [GetWlanInterfaceDesc]
    const char* const description = manager.GetWlanInterfaceDesc(&adapter);
    std::printf("%s\n", *description != '\0' ? description : "no such adapter");
    //! [GetWlanInterfaceDesc]
}

void Count(CWirelessManage& manager)
{
    //! [GetWiFiAdapterCount]
    const int count = manager.GetWiFiAdapterCount();
    if (count < 0)
        std::printf("not known (GetWiFiAdapterCount: %d)\n", count);
    //! [GetWiFiAdapterCount]
}

void List(CWirelessManage& manager)
{
    //! [GetWlanInterface]
    std::vector<WLAN_INTERFACE_INFO> adapters;
    if (manager.GetWlanInterface(&adapters) == 0)
        for (const WLAN_INTERFACE_INFO& adapter : adapters)
            std::printf("%s\n", manager.GUID2String(adapter.InterfaceGuid));
    //! [GetWlanInterface]
}

} // namespace reference::adapter_examples
