#include "simulation/event_queue.h"

namespace calvix::simulation
{

EventQueue::EventId EventQueue::Schedule(std::chrono::milliseconds after, Action action)
{
    ++m_lastEvent;
    m_events.emplace(Due(m_now + after, m_lastEvent), std::move(action));
    return m_lastEvent;
}

void EventQueue::Cancel(EventId event)
{
    std::erase_if(m_events, [event](const auto& entry) { return entry.first.second == event; });
}

void EventQueue::Advance(std::chrono::milliseconds duration)
{
    const auto end = m_now + duration;
    while (!m_events.empty() && m_events.begin()->first.first <= end)
    {
        const auto next = m_events.begin();
        m_now = next->first.first;
        const Action action = std::move(next->second);
        m_events.erase(next);
        action();
    }
    m_now = end;
}

} // namespace calvix::simulation
