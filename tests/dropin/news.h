#pragma once

#include <calvix/wlan_functions.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

/// The notifications of a program's callback, in order.
struct NewsItem
{
    DWORD code;
    DWORD reason; ///< of a connection; 0 for everything else
    std::thread::id thread;
};

class News
{
public:
    static void WINAPI Hear(PWLAN_NOTIFICATION_DATA data, PVOID context)
    {
        if (data->NotificationSource == WLAN_NOTIFICATION_SOURCE_ACM)
            static_cast<News*>(context)->Add(*data);
    }

    std::size_t Count()
    {
        const std::lock_guard lock(m_mutex);
        return m_items.size();
    }

    /// Waits for the first item of this code from `from` on. Against hangs only there is a limit, and then an item of
    /// code 0.
    NewsItem Await(DWORD code, std::size_t from)
    {
        std::unique_lock lock(m_mutex);
        NewsItem found{0, 0, {}};
        m_added.wait_for(lock, std::chrono::minutes(10),
                         [&]
                         {
                             for (; found.code != code && from < m_items.size(); ++from)
                                 found = m_items[from];
                             return found.code == code;
                         });
        return found.code == code ? found : NewsItem{0, 0, {}};
    }

private:
    void Add(const WLAN_NOTIFICATION_DATA& data)
    {
        NewsItem item{data.NotificationCode, 0, std::this_thread::get_id()};
        if (data.dwDataSize == sizeof(WLAN_CONNECTION_NOTIFICATION_DATA))
            item.reason = static_cast<const WLAN_CONNECTION_NOTIFICATION_DATA*>(data.pData)->wlanReasonCode;
        const std::lock_guard lock(m_mutex);
        m_items.push_back(item);
        m_added.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_added;
    std::vector<NewsItem> m_items;
};
