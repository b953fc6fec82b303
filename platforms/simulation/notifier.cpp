#include "simulation/notifier.h"

#include <utility>

namespace calvix::simulation
{

Notifier::~Notifier()
{
    Stop();
}

Notifier::Replaced Notifier::Register(HANDLE client, const Registration& registration)
{
    const std::lock_guard lock(m_mutex);
    const auto known = m_clients.find(client);
    const Replaced replaced{known != m_clients.end() ? known->second.registration.sources : 0,
                            m_running == client ? m_delivery : 0};
    Discard(client);
    if (registration.sources == 0)
    {
        m_clients.erase(client);
        return replaced;
    }
    m_clients.insert_or_assign(client, Client{registration, {}});
    if (!m_thread.joinable() && !m_stopping)
        m_thread = std::thread([this] { Run(); });
    return replaced;
}

void Notifier::Discard(HANDLE client)
{
    std::erase_if(m_queue, [client](const Queued& queued) { return queued.client == client; });
    m_delivered.notify_all();
}

void Notifier::WaitFor(Delivery delivery)
{
    std::unique_lock lock(m_mutex);
    m_delivered.wait(lock, [this, delivery] { return m_running == nullptr || m_delivery != delivery; });
}

void Notifier::Post(const Notification& notification)
{
    const std::lock_guard lock(m_mutex);
    for (auto& [handle, client] : m_clients)
    {
        const bool isWanted = (client.registration.sources & notification.source) != 0;
        // No notification has source 0, so that the first one is never taken for a duplicate.
        const bool isIgnored = client.registration.ignoreDuplicates && client.last == notification;
        if (isWanted && !isIgnored)
        {
            client.last = notification;
            m_queue.push_back({handle, notification});
        }
    }
    m_news.notify_one();
}

void Notifier::WaitUntilIdle(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_mutex);
    if (m_thread.get_id() == std::this_thread::get_id())
        return; // it would wait for itself
    m_delivered.wait_for(lock, limit, [this] { return (m_queue.empty() && m_running == nullptr) || m_stopping; });
}

bool Notifier::IsServiceThread() const
{
    const std::lock_guard lock(m_mutex);
    return m_thread.get_id() == std::this_thread::get_id();
}

void Notifier::Stop()
{
    std::unique_lock lock(m_mutex);
    m_stopping = true;
    m_queue.clear();
    m_news.notify_one();
    std::thread thread = std::move(m_thread);
    lock.unlock();
    if (thread.joinable())
        thread.join();
}

void Notifier::Run()
{
    std::unique_lock lock(m_mutex);
    for (;;)
    {
        m_news.wait(lock, [this] { return m_stopping || !m_queue.empty(); });
        if (m_stopping)
            return;
        Queued next = std::move(m_queue.front());
        m_queue.pop_front();
        Deliver(std::move(next), lock);
    }
}

// The callback runs with nothing locked: it may call any operation.
void Notifier::Deliver(Queued next, std::unique_lock<std::mutex>& lock)
{
    const Registration registration = m_clients.at(next.client).registration;
    m_running = next.client;
    ++m_delivery;
    lock.unlock();
    Notification& notification = next.notification;
    L2_NOTIFICATION_DATA record{};
    record.NotificationSource = notification.source;
    record.NotificationCode = notification.code;
    record.InterfaceGuid = notification.interfaceGuid;
    record.dwDataSize = static_cast<DWORD>(notification.data.size());
    record.pData = notification.data.empty() ? nullptr : notification.data.data();
    registration.callback(&record, registration.context);
    lock.lock();
    m_running = nullptr;
    m_delivered.notify_all();
}

} // namespace calvix::simulation
