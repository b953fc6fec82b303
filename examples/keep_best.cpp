// Once a second, moves to a better access point of the current network, or joins the best network where there is none,
// and prints what has changed: keep_best [ROUNDS [MILLISECONDS]], 60 rounds of 1000 ms unless told otherwise.

#include <calvix/explain.h>
#include <calvix/wireless_manage.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace
{

std::string Join(CWirelessManage& manager, const GUID& adapter)
{
    return "not connected: " + calvix::Explain("ConnectBestAP", manager.ConnectBestAP(&adapter)).meaning;
}

std::string Roam(CWirelessManage& manager, const GUID& adapter)
{
    char ssid[64] = "";
    unsigned char address[6];
    char addressText[18];
    if (manager.GetCurrentLinkInfo(&adapter, nullptr, nullptr, ssid, sizeof(ssid), reinterpret_cast<char*>(address)) !=
        0)
        return "connecting";
    manager.FormMAC(address, addressText);
    return std::string(ssid) + ", " + addressText + ": " +
           calvix::Explain("Roaming", manager.Roaming(&adapter)).meaning;
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
    std::string last;
    for (int round = 0; code == 0 && round < rounds; ++round)
    {
        const GUID& adapter = adapters.front().InterfaceGuid;
        // While a connection is being made, the adapter is not disconnected any more.
        const bool disconnected = manager.WiFiIsDisconnected(&adapter) == 1;
        const std::string now = disconnected ? Join(manager, adapter) : Roam(manager, adapter);
        if (now != last)
            std::printf("%s\n", now.c_str());
        std::fflush(stdout);
        last = now;
        std::this_thread::sleep_for(pause);
    }
    CWirelessManage::Delete();
    return code == 0 ? 0 : 1;
}
