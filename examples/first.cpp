#include <calvix/wireless_manage.h>

#include <cstdio>

int main()
{
    CWirelessManage& manager = *CWirelessManage::Get();
    std::printf("%d adapters, %d access points in view\n", manager.GetWiFiAdapterCount(), manager.GetNetworkBssCount());
    CWirelessManage::Delete();
}
