#pragma once

#include <calvix/platform_records.h>

#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace calvix::simulation
{

/// A client's callback that writes down its notifications: "acm 10", then the reason if it is not 0.
class NotificationRecorder
{
public:
    static void WINAPI Callback(L2_NOTIFICATION_DATA* data, PVOID context)
    {
        static_cast<NotificationRecorder*>(context)->Record(*data);
    }

    /// The notifications so far; begins anew.
    std::vector<std::string> Take()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_lines, {});
    }

private:
    void Record(const L2_NOTIFICATION_DATA& data)
    {
        const bool isAcm = data.NotificationSource == WLAN_NOTIFICATION_SOURCE_ACM;
        std::string line = (isAcm ? "acm " : "msm ") + std::to_string(data.NotificationCode);
        const DWORD reason =
            isAcm ? Reason<WLAN_CONNECTION_NOTIFICATION_DATA>(data) : Reason<WLAN_MSM_NOTIFICATION_DATA>(data);
        const std::lock_guard lock(m_mutex);
        m_lines.push_back(reason == 0 ? line : line + " reason " + std::to_string(reason));
    }

    template <typename Data>
    static DWORD Reason(const L2_NOTIFICATION_DATA& data)
    {
        return data.dwDataSize == sizeof(Data) ? static_cast<const Data*>(data.pData)->wlanReasonCode : 0;
    }

    std::mutex m_mutex;
    std::vector<std::string> m_lines;
};

} // namespace calvix::simulation
