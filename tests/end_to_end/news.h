#pragma once

#include <calvix/wireless_manage.h>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace calvix::test
{

/// A notification of the service, as far as these tests need it.
struct Event
{
    DWORD code = 0;       ///< WLAN_NOTIFICATION_ACM
    DWORD reason = 0;     ///< of an event about a connection
    std::wstring profile; ///< likewise
    DWORD thread = 0;     ///< on which it was delivered
};

/// All notifications since this object was made. It registers through the library, so there may be one
/// at a time.
class News
{
public:
    News();
    ~News();
    News(const News&) = delete;
    News& operator=(const News&) = delete;

    /// How many events there were so far: a point from which to wait.
    std::size_t Count() const;

    /// Waits for an event of this code that came after the first `from` ones, a minute at most; nothing if none came.
    std::optional<Event> Await(DWORD code, std::size_t from) const;

    /// The codes of those that came after the first `from` ones.
    std::vector<DWORD> Codes(std::size_t from) const;

private:
    static void CALLBACK Hear(L2_NOTIFICATION_DATA* data, void* context);

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_arrived;
    std::vector<Event> m_events;
};

} // namespace calvix::test
