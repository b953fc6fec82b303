// Once a second, moves to a better access point of the current network, or joins the best network where there is none:
// keep_best [ROUNDS [MILLISECONDS]], 60 rounds of 1000 ms unless told otherwise.

#include <calvix/explain.h>
#include <calvix/wireless_manage.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace
{

void Join(CWirelessManage& manager, const GUID& adapter)
{
    const int code = manager.ConnectBestAP(&adapter);
    std::printf("not connected: %s\n", calvix::Explain("ConnectBestAP", code).meaning.c_str());
}

void Roam(CWirelessManage& manager, const GUID& adapter)
{
    char ssid[64] = "";
    unsigned char address[6] = {};
    char addressText[18];
    manager.GetCurrentLinkInfo(&adapter, nullptr, nullptr, ssid, sizeof(ssid), reinterpret_cast<char*>(address));
    manager.FormMAC(address, addressText);
    const int quality = manager.GetSignalQuality(&adapter);
    const int code = manager.Roaming(&adapter);
    std::printf("%s, %s, %d%%: %s\n", ssid, addressText, quality, calvix::Explain("Roaming", code).meaning.c_str());
}

int Number(int count, char** arguments, int index, int otherwise)
{
    return index < count ? std::atoi(arguments[index]) : otherwise;
}

} // namespace

int main(int count, char** arguments)
{
    CWirelessManage& manager = *CWirelessManage::Get();
    const int rounds = Number(count, arguments, 1, 60);
    const std::chrono::milliseconds pause(Number(count, arguments, 2, 1000));
    std::vector<WLAN_INTERFACE_INFO> adapters;
    const long code = manager.GetWlanInterface(&adapters);
    if (code != 0)
        std::printf("%s\n", calvix::Explain("GetWlanInterface", code).meaning.c_str());
    for (int round = 0; code == 0 && round < rounds; ++round)
    {
        const GUID& adapter = adapters.front().InterfaceGuid;
        // While a connection is being made, the adapter is not disconnected any more.
        if (manager.WiFiIsDisconnected(&adapter) == 1)
            Join(manager, adapter);
        else
            Roam(manager, adapter);
        std::fflush(stdout);
        std::this_thread::sleep_for(pause);
    }
    CWirelessManage::Delete();
    return code == 0 ? 0 : 1;
}
