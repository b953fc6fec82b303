#include <calvix/wireless_manage.h>

#include <cstdio>

int main()
{
    CWirelessManage* manager = CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    if (const long code = manager->GetWlanInterface(&adapters); code != 0)
        std::printf("GetWlanInterface: %ld (see: calvix explain GetWlanInterface %ld)\n", code, code);
    for (const WLAN_INTERFACE_INFO& adapter : adapters)
    {
        std::printf("%s: %d networks\n", manager->GUID2String(adapter.InterfaceGuid),
                    manager->GetAvailableNetworkCount(&adapter.InterfaceGuid));
    }
    CWirelessManage::Delete();
}
