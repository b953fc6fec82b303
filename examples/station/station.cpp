#include "station.h"

#include <calvix/explain.h>

#include <atomic>

namespace
{

constexpr std::chrono::milliseconds kStep(100);
constexpr std::chrono::milliseconds kLimit(15000);

// What the service reported about an adapter. Callbacks run on a thread of the service, and only take note.
struct News
{
    GUID adapter;
    std::atomic<bool> scanEnded{false};
    std::atomic<bool> connectionEnded{false};
    std::atomic<unsigned long> reason{0};
};

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

bool WaitFor(const std::atomic<bool>& happened, const Pause& pause)
{
    for (std::chrono::milliseconds waited(0); !happened && waited < kLimit; waited += kStep)
        pause(kStep);
    return happened;
}

// False for a failure, which it reports.
bool Succeeded(const char* method, long long result, std::ostream& out)
{
    const calvix::Explanation explanation = calvix::Explain(method, result);
    if (explanation.failure)
        out << explanation.meaning << "\nto do: " << explanation.advice << '\n';
    return !explanation.failure;
}

void ListNetworks(CWirelessManage& manager, const GUID& adapter, std::ostream& out)
{
    std::vector<WLAN_BSS_ENTRY> entries;
    if (!Succeeded("GetMatchAPList", manager.GetMatchAPList(&adapter, &entries), out))
        return;
    for (const WLAN_BSS_ENTRY& entry : entries)
    {
        char ssid[64];
        manager.GetSSID(&entry.dot11Ssid, ssid, sizeof(ssid));
        out << ssid << ' ' << manager.GetSignalStrength(static_cast<int>(entry.lRssi)) << "%\n";
    }
}

void Scan(CWirelessManage& manager, const News& news, std::ostream& out, const Pause& pause)
{
    unsigned long error = 0;
    if (Succeeded("Rescan", manager.Rescan(&news.adapter, error), out) && !WaitFor(news.scanEnded, pause))
        out << "the scan takes too long\n";
}

bool Connect(CWirelessManage& manager, News& news, std::ostream& out, const Pause& pause)
{
    news.connectionEnded = false; // of a connection that the service made by itself
    if (!Succeeded("ConnectBestAP", manager.ConnectBestAP(&news.adapter), out))
        return false;
    if (!WaitFor(news.connectionEnded, pause))
    {
        out << "no connection within " << kLimit.count() / 1000 << " seconds\n";
        return false;
    }
    if (news.reason != WLAN_REASON_CODE_SUCCESS)
    {
        char text[256] = "";
        manager.ReasonCode2String(news.reason, text, sizeof(text));
        out << "not connected: " << text << '\n';
        return false;
    }
    char ssid[64] = "";
    if (!Succeeded("GetCurrentSSID", manager.GetCurrentSSID(ssid, sizeof(ssid)), out))
        return false;
    out << "joined " << ssid << '\n';
    return true;
}

} // namespace

bool JoinBestNetwork(CWirelessManage& manager, std::ostream& out, const Pause& pause)
{
    std::vector<WLAN_INTERFACE_INFO> adapters;
    if (!Succeeded("GetWlanInterface", manager.GetWlanInterface(&adapters), out))
        return false;
    News news{.adapter = adapters.front().InterfaceGuid};
    if (!Succeeded("RegisterNotification", manager.RegisterNotification(TakeNote, &news), out))
        return false;
    Scan(manager, news, out, pause);
    ListNetworks(manager, news.adapter, out);
    const bool connected = Connect(manager, news, out, pause);
    manager.UnRegisterNotification(TakeNote, &news);
    return connected;
}
