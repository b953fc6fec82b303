#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace calvix::simulation
{

/// Simulated time and what is going to happen in it. Only Advance moves the time.
class EventQueue
{
public:
    using Action = std::function<void()>;
    using EventId = std::uint64_t;

    std::chrono::milliseconds Now() const { return m_now; }

    /// Runs `action` when `after` has passed. What falls due at the same time runs in the order in which it was
    /// scheduled.
    EventId Schedule(std::chrono::milliseconds after, Action action);

    /// Takes an event out again; one that has run or was never scheduled is ignored.
    void Cancel(EventId event);

    /// Lets time pass and runs what falls due on the way, also what is scheduled meanwhile. Each action sees its
    /// own time.
    void Advance(std::chrono::milliseconds duration);

private:
    using Due = std::pair<std::chrono::milliseconds, EventId>;

    std::chrono::milliseconds m_now{0};
    EventId m_lastEvent = 0;
    std::map<Due, Action> m_events;
};

} // namespace calvix::simulation
