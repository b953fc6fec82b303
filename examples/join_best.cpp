// Scans, asks for the best network that has an automatic profile, and waits until it is connected.

#include <calvix/explain.h>
#include <calvix/wireless_manage.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

namespace
{

// What the service reported about the adapter.
struct News
{
    GUID adapter;
    std::atomic<bool> scanEnded{false};
    std::atomic<bool> connectionEnded{false};
    std::atomic<unsigned long> reason{0};
};

// Called on a thread of the service: it only takes note.
void WINAPI TakeNote(PWLAN_NOTIFICATION_DATA data, PVOID context)
{
    News& news = *static_cast<News*>(context);
    if (data->InterfaceGuid != news.adapter)
        return;
    if (data->NotificationCode == wlan_notification_acm_scan_complete ||
        data->NotificationCode == wlan_notification_acm_scan_fail)
        news.scanEnded = true;
    if (data->NotificationCode == wlan_notification_acm_connection_complete)
    {
        news.reason = static_cast<const WLAN_CONNECTION_NOTIFICATION_DATA*>(data->pData)->wlanReasonCode;
        news.connectionEnded = true;
    }
}

bool WaitFor(const std::atomic<bool>& happened)
{
    for (int tenths = 0; !happened && tenths < 150; ++tenths)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    return happened;
}

// False for a failure, which it prints.
bool Succeeded(const char* method, long long result)
{
    const calvix::Explanation explanation = calvix::Explain(method, result);
    if (explanation.failure)
        std::printf("%s\nto do: %s\n", explanation.meaning.c_str(), explanation.advice.c_str());
    return !explanation.failure;
}

bool JoinBest(CWirelessManage& manager, News& news)
{
    unsigned long error = 0;
    if (Succeeded("Rescan", manager.Rescan(&news.adapter, error)) && !WaitFor(news.scanEnded))
        std::printf("no scan within 15 seconds: going by what is known\n");
    news.connectionEnded = false; // of a connection that the service made by itself
    if (!Succeeded("ConnectBestAP", manager.ConnectBestAP(&news.adapter)))
        return false;
    if (!WaitFor(news.connectionEnded))
    {
        std::printf("no connection within 15 seconds\n");
        return false;
    }
    const bool connected = news.reason == WLAN_REASON_CODE_SUCCESS;
    char text[256] = "";
    if (connected)
        manager.GetCurrentSSID(text, sizeof(text));
    else
        manager.ReasonCode2String(news.reason, text, sizeof(text));
    std::printf("%s %s\n", connected ? "joined" : "not connected:", text);
    return connected;
}

} // namespace

int main()
{
    CWirelessManage& manager = *CWirelessManage::Get();
    std::vector<WLAN_INTERFACE_INFO> adapters;
    bool connected = false;
    if (Succeeded("GetWlanInterface", manager.GetWlanInterface(&adapters)))
    {
        News news{.adapter = adapters.front().InterfaceGuid};
        connected =
            Succeeded("RegisterNotification", manager.RegisterNotification(TakeNote, &news)) && JoinBest(manager, news);
        manager.UnRegisterNotification(TakeNote, &news);
    }
    CWirelessManage::Delete();
    return connected ? 0 : 1;
}
