#include "end_to_end/news.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace calvix::test
{

namespace
{

constexpr std::chrono::minutes kAgainstHangs(10);

} // namespace

News::News()
{
    EXPECT_EQ(CWirelessManage::Get()->RegisterNotification(&News::Hear, this), 0);
}

News::~News()
{
    EXPECT_EQ(CWirelessManage::Get()->UnRegisterNotification(&News::Hear, this), 0);
}

std::size_t News::Count() const
{
    const std::lock_guard lock(m_mutex);
    return m_events.size();
}

std::optional<Event> News::Await(DWORD code, std::size_t from) const
{
    std::unique_lock lock(m_mutex);
    std::optional<Event> found;
    m_arrived.wait_for(lock, kAgainstHangs,
                       [&]
                       {
                           const auto begin = m_events.begin() + static_cast<std::ptrdiff_t>(from);
                           const auto event = std::find_if(begin, m_events.end(),
                                                           [code](const Event& each) { return each.code == code; });
                           found = event != m_events.end() ? std::optional(*event) : std::nullopt;
                           return found.has_value();
                       });
    return found;
}

std::vector<DWORD> News::Codes(std::size_t from) const
{
    const std::lock_guard lock(m_mutex);
    std::vector<DWORD> codes;
    for (std::size_t index = from; index < m_events.size(); ++index)
        codes.push_back(m_events[index].code);
    return codes;
}

void CALLBACK News::Hear(L2_NOTIFICATION_DATA* data, void* context)
{
    auto* const news = static_cast<News*>(context);
    Event event{data->NotificationCode, 0, L"", ::GetCurrentThreadId()};
    if (data->dwDataSize >= sizeof(WLAN_CONNECTION_NOTIFICATION_DATA))
    {
        const auto* const connection = static_cast<const WLAN_CONNECTION_NOTIFICATION_DATA*>(data->pData);
        event.reason = connection->wlanReasonCode;
        event.profile = connection->strProfileName;
    }
    const std::lock_guard lock(news->m_mutex);
    news->m_events.push_back(event);
    news->m_arrived.notify_all();
}

} // namespace calvix::test
