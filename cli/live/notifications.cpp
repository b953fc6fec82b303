#include "live/notifications.h"

#include "core/wlan_records.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace calvix::host
{

namespace
{

constexpr DWORD kOfConnection[] = {wlan_notification_acm_connection_start, wlan_notification_acm_connection_complete,
                                   wlan_notification_acm_connection_attempt_fail, wlan_notification_acm_disconnecting,
                                   wlan_notification_acm_disconnected};

void AddConnection(const WLAN_NOTIFICATION_DATA& data, Notice& notice)
{
    WLAN_CONNECTION_NOTIFICATION_DATA connection{};
    // The profile's text is not always there, and is not needed.
    constexpr std::size_t needed = offsetof(WLAN_CONNECTION_NOTIFICATION_DATA, dwFlags);
    if (data.pData == nullptr || data.dwDataSize < needed)
        return;
    std::memcpy(&connection, data.pData, needed);
    notice.ofConnection = true;
    notice.profile = FixedText(connection.strProfileName);
    notice.ssid = connection.dot11Ssid;
    notice.reason = connection.wlanReasonCode;
}

void AddReason(const WLAN_NOTIFICATION_DATA& data, Notice& notice)
{
    if (data.pData != nullptr && data.dwDataSize >= sizeof(notice.reason))
        std::memcpy(&notice.reason, data.pData, sizeof(notice.reason));
}

} // namespace

Notifications::Notifications(ComputerInUse& computer) : m_computer(computer)
{
    computer.Require("RegisterNotification", computer.manager().RegisterNotification(&Notifications::Receive, this));
}

Notifications::~Notifications()
{
    m_computer.manager().UnRegisterNotification(&Notifications::Receive, this);
}

std::vector<Notice> Notifications::Take()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_waiting, {});
}

void WINAPI Notifications::Receive(PWLAN_NOTIFICATION_DATA data, PVOID context)
{
    if (data == nullptr || data->NotificationSource != WLAN_NOTIFICATION_SOURCE_ACM)
        return;
    Notice notice;
    notice.code = data->NotificationCode;
    notice.adapter = data->InterfaceGuid;
    if (std::ranges::find(kOfConnection, notice.code) != std::end(kOfConnection))
        AddConnection(*data, notice);
    else if (notice.code == wlan_notification_acm_scan_fail)
        AddReason(*data, notice);
    Notifications& self = *static_cast<Notifications*>(context);
    const std::lock_guard lock(self.m_mutex);
    self.m_waiting.push_back(std::move(notice));
}

std::string NotificationText(DWORD code)
{
    static constexpr const char* texts[] = {
        "",
        "automatic configuration enabled",
        "automatic configuration disabled",
        "background scan enabled",
        "background scan disabled",
        "BSS type changed",
        "power setting changed",
        "scan complete",
        "scan failed",
        "connection start",
        "connection complete",
        "connection attempt failed",
        "filter list changed",
        "adapter arrived",
        "adapter removed",
        "profiles changed",
        "profile renamed",
        "no profile left to try",
        "network not available",
        "network available",
        "disconnecting",
        "disconnected",
        "ad hoc network changed",
        "profile unblocked",
        "screen power changed",
        "profile blocked",
        "network list refreshed",
        "operational state changed",
    };
    if (code >= 1 && code < sizeof(texts) / sizeof(texts[0]))
        return texts[code];
    return "notification " + std::to_string(code);
}

} // namespace calvix::host
