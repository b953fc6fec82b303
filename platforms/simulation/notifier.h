#pragma once

#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <unordered_map>

namespace calvix::simulation
{

/// The bytes of a record that goes with a notification.
template <typename Record>
Bytes RecordBytes(const Record& record)
{
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(&record);
    return Bytes(bytes, bytes + sizeof(record));
}

/// What the service sends its clients.
struct Notification
{
    DWORD source = 0;
    DWORD code = 0;
    GUID interfaceGuid{};
    Bytes data{}; ///< the record that goes with the code, or nothing

    bool operator==(const Notification&) const = default;
};

/// What a client wants to receive, and how.
struct Registration
{
    DWORD sources = 0;
    bool ignoreDuplicates = false;
    WLAN_NOTIFICATION_CALLBACK callback = nullptr;
    PVOID context = nullptr;
};

/// Notifies clients, on a thread of the service that starts with the first registration. Any thread may call
/// any member. The waiting ones must not be called with anything locked that a callback may want.
class Notifier
{
public:
    Notifier() = default;
    ~Notifier();
    Notifier(const Notifier&) = delete;
    Notifier& operator=(const Notifier&) = delete;

    /// Which call of a callback, of all there have been; 0 is none.
    using Delivery = std::uint64_t;

    /// What a registration has replaced.
    struct Replaced
    {
        DWORD sources = 0;
        Delivery running = 0; ///< the call of its callback that has not returned yet
    };

    /// Puts a registration in the place of the client's present one; without sources, ends it. What is still queued for
    /// the present one is discarded. A call of its callback may still be running: see WaitFor.
    Replaced Register(HANDLE client, const Registration& registration);

    /// Waits until that call has returned, and for no later one: news may come faster than they are delivered.
    void WaitFor(Delivery delivery);

    /// Queues a notification for every client that wants it.
    void Post(const Notification& notification);

    /// Waits until everything queued is delivered, at most for `limit` of real time.
    void WaitUntilIdle(std::chrono::milliseconds limit = std::chrono::hours(1));

    /// Whether the caller is inside a callback.
    bool IsServiceThread() const;

    /// Discards what is queued, waits for a callback that is running and ends the thread.
    void Stop();

private:
    struct Client
    {
        Registration registration;
        Notification last; ///< queued last, to find duplicates
    };
    struct Queued
    {
        HANDLE client;
        Notification notification;
    };

    void Run();
    void Deliver(Queued next, std::unique_lock<std::mutex>& lock);
    void Discard(HANDLE client);

    mutable std::mutex m_mutex;
    std::condition_variable m_news;      ///< there is something to do for the thread
    std::condition_variable m_delivered; ///< a callback has returned, or the queue was emptied
    std::unordered_map<HANDLE, Client> m_clients;
    std::deque<Queued> m_queue;
    HANDLE m_running = nullptr; ///< the client whose callback is running
    Delivery m_delivery = 0;    ///< the call that is running, or was the last
    bool m_stopping = false;
    std::thread m_thread;
};

} // namespace calvix::simulation
