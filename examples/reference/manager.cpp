// The reference's examples: the manager and its notifications.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference
{

void Get()
{
    CWirelessManage& manager = *CWirelessManage::Get();
    std::printf("%d adapters\n", manager.GetWiFiAdapterCount());
}

void Delete()
{
    CWirelessManage::Delete(); // the last call of the program to the library
}

void Assign(CWirelessManage& manager)
{
    const CWirelessManage& same = *CWirelessManage::Get();
    manager = same; // there is one object, so this changes nothing
}

void AutoClassInit(CWirelessManage& manager)
{
    manager.__autoclassinit2(0); // zeroes nothing, which is the one number that does no harm
}

void RegisterNotification(CWirelessManage& manager)
{
    // Called on a thread of the service: it only says what came.
    const WLAN_NOTIFICATION_CALLBACK takeNote = [](PWLAN_NOTIFICATION_DATA news, PVOID)
    { std::printf("notification %lu\n", news->NotificationCode); };
    if (const int error = manager.RegisterNotification(takeNote, nullptr); error != 0)
        std::printf("no notifications: error %d\n", error);
}

void UnRegisterNotification(CWirelessManage& manager)
{
    manager.UnRegisterNotification(nullptr, nullptr); // no callback runs any more once this has returned
}

} // namespace reference
