#pragma once

#include "host/computer_in_use.h"

#include <mutex>
#include <string>
#include <vector>

namespace calvix::host
{

/// A notification of the service's automatic configuration, as far as this program needs it.
struct Notice
{
    DWORD code = 0; ///< WLAN_NOTIFICATION_ACM
    GUID adapter{};
    bool ofConnection = false; ///< whether profile, ssid and reason are known
    std::wstring profile;
    DOT11_SSID ssid{};
    DWORD reason = 0; ///< also of a scan that failed
};

/// Receives notifications from its beginning to its end, through the library's registration. They come on a thread of
/// the service and wait here until they are taken.
class Notifications
{
public:
    /// A refused registration is a Failure.
    explicit Notifications(ComputerInUse& computer);
    ~Notifications();
    Notifications(const Notifications&) = delete;
    Notifications& operator=(const Notifications&) = delete;

    /// What came since it was last asked, in order.
    std::vector<Notice> Take();

private:
    static void WINAPI Receive(PWLAN_NOTIFICATION_DATA data, PVOID context);

    ComputerInUse& m_computer;
    std::mutex m_mutex;
    std::vector<Notice> m_waiting;
};

/// "connection complete"; an unknown number stays one.
std::string NotificationText(DWORD code);

} // namespace calvix::host
