#pragma once

#include "simulation/computer.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <string>
#include <thread>

namespace calvix::simulation
{

/// How many times as fast as real time simulated time is to pass: a whole number from 1 to 100000, 1 where the text is
/// empty. `source` is what messages call it. Throws std::runtime_error.
unsigned int ReadSpeed(const std::string& text, const std::string& source);

/// Makes simulated time follow real time. Any thread may call any member, notification callbacks included.
class RealTime
{
public:
    /// Simulated time passes `speed` times as fast as real time, from now on. `computer` outlives this object.
    RealTime(Computer& computer, unsigned int speed);
    /// Ends the thread that keeps going. Not for notification callbacks.
    ~RealTime();
    RealTime(const RealTime&) = delete;
    RealTime& operator=(const RealTime&) = delete;

    /// Lets the simulated time pass that has become due, so that the caller sees the computer as it is now.
    void CatchUp();

    /// Starts a thread that catches up all the time, for clients that wait for notifications. Call it once.
    void KeepGoing();

private:
    using RealClock = std::chrono::steady_clock;

    void Run();

    Computer& m_computer;
    const unsigned int m_speed;
    const RealClock::time_point m_start;
    std::mutex m_mutex;
    std::chrono::milliseconds m_passed{0}; ///< simulated time so far
    std::atomic<bool> m_ending{false};
    std::thread m_thread;
};

} // namespace calvix::simulation
