#pragma once

#include "platform/clock.h"
#include "simulation/event_queue.h"
#include "simulation/last_error_cell.h"

namespace calvix::simulation
{

/// A clock that waits by letting simulated time pass at once.
class SimulatedClock final
{
public:
    /// `lastError` receives the reason of a failure; both outlive this object.
    SimulatedClock(LastErrorCell& lastError, EventQueue& time) : m_lastError(lastError), m_time(time) {}

    void Sleep(DWORD milliseconds);
    BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime);

private:
    LastErrorCell& m_lastError;
    EventQueue& m_time;
};

} // namespace calvix::simulation
