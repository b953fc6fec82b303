#pragma once

#include "simulation/machine.h"

#include <chrono>
#include <mutex>

namespace calvix::simulation
{

/// What an operation that failed returns: FALSE, 0 or null.
struct Failure
{
    template <typename Result>
    operator Result() const
    {
        return Result{};
    }
};

/// A facility of the simulated computer. Any thread may call its operations; each is done under the machine's mutex.
class Facility
{
public:
    /// `machine` outlives this object.
    explicit Facility(Machine& machine) : m_machine(machine) {}

protected:
    /// Leaves the last error.
    Failure Fail(DWORD error)
    {
        m_machine.lastError = error;
        return {};
    }

    /// Lets simulated time pass while a program waits, and then gives the service the time to deliver its notifications.
    /// For operations that do not hold the machine's mutex.
    void PassTime(std::chrono::milliseconds duration)
    {
        {
            const std::lock_guard lock(m_machine.mutex);
            m_machine.time.Advance(duration);
        }
        // The limit is real time. It passes only when a callback waits for something that the waiting program holds.
        m_machine.notifier.WaitUntilIdle(std::chrono::seconds(1));
    }

    Machine& m_machine;
};

} // namespace calvix::simulation
