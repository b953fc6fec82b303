#pragma once

#include "simulation/machine.h"

#include <chrono>
#include <mutex>

namespace calvix::simulation
{

/// Lets simulated time pass while a program waits, and then gives the service the time to deliver its notifications.
/// For operations that do not hold the machine's mutex.
inline void PassTime(Machine& machine, std::chrono::milliseconds duration)
{
    {
        const std::lock_guard lock(machine.mutex);
        machine.time.Advance(duration);
    }
    // The limit is real time. It passes only when a callback waits for something that the waiting program holds.
    machine.notifier.WaitUntilIdle(std::chrono::seconds(1));
}

} // namespace calvix::simulation
