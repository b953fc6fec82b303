#pragma once

#include "simulation/computer.h"

#include <chrono>
#include <mutex>

namespace calvix::dropin
{

/// Makes simulated time follow real time. Any thread may call any member, notification callbacks included.
class RealTime
{
public:
    /// Simulated time passes `speed` times as fast as real time, from now on. `computer` outlives this object.
    RealTime(simulation::Computer& computer, unsigned int speed);
    RealTime(const RealTime&) = delete;
    RealTime& operator=(const RealTime&) = delete;

    /// Lets the simulated time pass that has become due, so that the caller sees the computer as it is now.
    void CatchUp();

    /// Starts a thread that catches up all the time, for those who wait to be told. It never ends: this object, too,
    /// must live as long as the process.
    void KeepGoing();

private:
    using RealClock = std::chrono::steady_clock;

    simulation::Computer& m_computer;
    const unsigned int m_speed;
    const RealClock::time_point m_start;
    std::mutex m_mutex;
    std::chrono::milliseconds m_passed{0}; ///< simulated time so far
};

} // namespace calvix::dropin
