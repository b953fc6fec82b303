// Asks for a scan and prints what the service tells: watch_events [SECONDS], 60 unless told otherwise.

#include <calvix/explain.h>
#include <calvix/wireless_manage.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace
{

const char* Name(unsigned long code)
{
    switch (code)
    {
    case wlan_notification_acm_scan_complete:
        return "scan complete";
    case wlan_notification_acm_scan_fail:
        return "scan failed";
    case wlan_notification_acm_connection_start:
        return "connecting";
    case wlan_notification_acm_connection_complete:
        return "connection attempt ended";
    case wlan_notification_acm_disconnected:
        return "disconnected";
    case wlan_notification_acm_profile_change:
        return "profiles changed";
    default:
        return "notification";
    }
}

// Called on a thread of the service, one call after the other.
void WINAPI Print(PWLAN_NOTIFICATION_DATA news, PVOID)
{
    std::printf("%s (%lu)\n", Name(news->NotificationCode), news->NotificationCode);
    std::fflush(stdout);
}

int Watch(CWirelessManage& manager, std::chrono::seconds duration)
{
    if (const int error = manager.RegisterNotification(Print, nullptr); error != 0)
    {
        std::printf("nothing to watch: %s\n", calvix::Explain("RegisterNotification", error).meaning.c_str());
        return 1;
    }
    if (const int code = manager.Rescan(); code != 0)
        std::printf("no scan: %s\n", calvix::Explain("Rescan", code).meaning.c_str());
    std::this_thread::sleep_for(duration);
    manager.UnRegisterNotification(Print, nullptr);
    return 0;
}

} // namespace

int main(int count, char** arguments)
{
    const int result = Watch(*CWirelessManage::Get(), std::chrono::seconds(count > 1 ? std::atoi(arguments[1]) : 60));
    CWirelessManage::Delete();
    return result;
}
