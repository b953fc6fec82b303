// Scans, asks for the best network that has an automatic profile, and waits until the connection stands.

#include <calvix/explain.h>
#include <calvix/wireless_manage.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <functional>
#include <thread>

namespace
{

std::atomic<bool> scanned{false};

// Called on a thread of the service: it only takes note.
void WINAPI TakeNote(PWLAN_NOTIFICATION_DATA news, PVOID)
{
    if (news->NotificationCode == wlan_notification_acm_scan_complete)
        scanned = true;
}

// Scans and connections are asked for, and come about later.
bool WaitUntil(const std::function<bool()>& done)
{
    for (int tenths = 0; tenths < 150; ++tenths)
    {
        if (done())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
}

int JoinBest(CWirelessManage& manager, const GUID& adapter)
{
    manager.RegisterNotification(TakeNote, nullptr);
    unsigned long error = 0;
    if (manager.Rescan(&adapter, error) != 0 || !WaitUntil([] { return scanned.load(); }))
        std::printf("no scan (error %lu): going by what is known\n", error);
    manager.UnRegisterNotification(TakeNote, nullptr);

    //! [explain]
    if (const int code = manager.ConnectBestAP(&adapter); code != 0)
    {
        const calvix::Explanation failure = calvix::Explain("ConnectBestAP", code);
        std::printf("%s: %s\n", failure.meaning.c_str(), failure.advice.c_str());
        return 1;
    }
    //! [explain]
    char ssid[64] = "";
    if (!WaitUntil([&] { return manager.GetWlanIsLink(&adapter); }) || manager.GetCurrentSSID(ssid, sizeof(ssid)) != 0)
    {
        std::printf("the connection was not made\n");
        return 1;
    }
    std::printf("joined %s, signal quality %d%%\n", ssid, manager.GetSignalQuality(&adapter));
    return 0;
}

} // namespace

int main()
{
    CWirelessManage& manager = *CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    const long code = manager.GetWlanInterface(&adapters);
    if (code != 0)
        std::printf("%s\n", calvix::Explain("GetWlanInterface", code).meaning.c_str());
    const int result = code == 0 ? JoinBest(manager, adapters.front().InterfaceGuid) : 1;
    CWirelessManage::Delete();
    return result;
}
