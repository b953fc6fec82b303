// The samples of a guide, each without the class and with it: equal results on the same computer.

#include <calvix/wireless_manage.h>
#include <calvix/wlan_functions.h>

#include <cstdio>

namespace guides::wlan_api
{
int CountNetworks(const GUID& adapter);
void PrintSsid(HANDLE client, const GUID& adapter);
bool SwitchOff(HANDLE client, const GUID& adapter);
} // namespace guides::wlan_api

namespace guides::with_calvix
{
int CountNetworks(CWirelessManage& manager, const GUID& adapter);
void PrintSsid(CWirelessManage& manager, const GUID& adapter);
bool SwitchOff(CWirelessManage& manager, const GUID& adapter);
} // namespace guides::with_calvix

int main()
{
    CWirelessManage& manager = *CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    HANDLE client = nullptr;
    DWORD version = 0;
    if (manager.GetWlanInterface(&adapters) != 0 || WlanOpenHandle(2, nullptr, &version, &client) != ERROR_SUCCESS)
        return 1;
    const GUID& adapter = adapters.front().InterfaceGuid;
    std::printf("%d %d\n", guides::wlan_api::CountNetworks(adapter),
                guides::with_calvix::CountNetworks(manager, adapter));
    guides::wlan_api::PrintSsid(client, adapter);
    guides::with_calvix::PrintSsid(manager, adapter);
    std::printf("%d", guides::wlan_api::SwitchOff(client, adapter));
    std::printf(" %d\n", guides::with_calvix::SwitchOff(manager, adapter));
    WlanCloseHandle(client, nullptr);
    CWirelessManage::Delete();
}
