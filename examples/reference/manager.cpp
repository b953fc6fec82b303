// The reference's examples: the manager and its notifications.

#include <calvix/wireless_manage.h>

#include <cstdio>

namespace reference::manager_examples
{

void Begin()
{
    //! [Get]
    CWirelessManage& manager = *CWirelessManage::Get();
    std::printf("%d adapters\n", manager.GetWiFiAdapterCount());
    //! [Get]
}

void End()
{
    //! [Delete]
    CWirelessManage::Delete(); // the last call of the program to the library
    //! [Delete]
}

void Assign(CWirelessManage& manager)
{
    //! [operator=]
    const CWirelessManage& same = *CWirelessManage::Get();
    manager = same; // there is one object, so this changes nothing
    //! [operator=]
}

void Zero(CWirelessManage& manager)
{
    //! [__autoclassinit2]
    manager.__autoclassinit2(0); // zeroes nothing, which is the one number that does no harm
    //! [__autoclassinit2]
}

//! [RegisterNotification]
// Called on a thread of the service: it only says what came.
void WINAPI TakeNote(PWLAN_NOTIFICATION_DATA news, PVOID)
{
    std::printf("notification %lu\n", news->NotificationCode);
}

void Listen(CWirelessManage& manager)
{
    if (const int error = manager.RegisterNotification(TakeNote, nullptr); error != 0)
        std::printf("no notifications: error %d\n", error);
}
//! [RegisterNotification]

void StopListening(CWirelessManage& manager)
{
    //! [UnRegisterNotification]
    manager.UnRegisterNotification(nullptr, nullptr); // no callback runs any more once this has returned
    //! [UnRegisterNotification]
}

} // namespace reference::manager_examples
