// A program that can be tested on any computer: what it decides is apart from its main function.

#include <calvix/wireless_manage.h>

#include <cstdio>

std::string Status(CWirelessManage& manager)
{
    std::vector<WLAN_INTERFACE_INFO> adapters;
    const long listed = manager.GetWlanInterface(&adapters);
    if (listed != 0)
        return listed == -3 ? "no adapter" : "no WLAN service";
    const GUID& adapter = adapters.front().InterfaceGuid;
    if (manager.PhyRadioIsOn2(&adapter) == 0)
        return "radio off";
    if (manager.GetAvailableNetworkCount(&adapter) < 0)
        return "networks cannot be seen";
    return manager.GetWlanIsLink(&adapter) ? "connected" : "not connected";
}

int main()
{
    std::printf("%s\n", Status(*CWirelessManage::Get()).c_str());
    CWirelessManage::Delete();
}
