#pragma once

#include <calvix/wlan_functions.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

/// A notification of the service, as far as the tests need it.
struct NewsItem
{
    DWORD code = 0;       ///< WLAN_NOTIFICATION_ACM
    DWORD reason = 0;     ///< of a connection
    std::wstring profile; ///< likewise
    std::thread::id thread;
};

/// The notifications of a program's callback, in order.
class News
{
public:
    static void WINAPI Hear(PWLAN_NOTIFICATION_DATA data, PVOID context)
    {
        if (data->NotificationSource == WLAN_NOTIFICATION_SOURCE_ACM)
            static_cast<News*>(context)->Add(*data);
    }

    /// How many there were so far: a point from which to wait.
    std::size_t Count() const
    {
        const std::lock_guard lock(m_mutex);
        return m_items.size();
    }

    /// The codes of all.
    std::vector<DWORD> Codes() const
    {
        const std::lock_guard lock(m_mutex);
        std::vector<DWORD> codes;
        for (const NewsItem& item : m_items)
            codes.push_back(item.code);
        return codes;
    }

    /// Waits for the first item of this code from `from` on. Against hangs only there is a limit, and then there is none.
    std::optional<NewsItem> Await(DWORD code, std::size_t from) const
    {
        std::unique_lock lock(m_mutex);
        std::optional<NewsItem> found;
        m_added.wait_for(lock, std::chrono::minutes(10),
                         [&]
                         {
                             for (; !found && from < m_items.size(); ++from)
                                 if (m_items[from].code == code)
                                     found = m_items[from];
                             return found.has_value();
                         });
        return found;
    }

private:
    void Add(const WLAN_NOTIFICATION_DATA& data)
    {
        NewsItem item{data.NotificationCode, 0, L"", std::this_thread::get_id()};
        if (data.dwDataSize >= sizeof(WLAN_CONNECTION_NOTIFICATION_DATA))
        {
            const auto* const connection = static_cast<const WLAN_CONNECTION_NOTIFICATION_DATA*>(data.pData);
            item.reason = connection->wlanReasonCode;
            item.profile = connection->strProfileName;
        }
        const std::lock_guard lock(m_mutex);
        m_items.push_back(item);
        m_added.notify_all();
    }

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_added;
    std::vector<NewsItem> m_items;
};
