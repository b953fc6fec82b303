#include "dropin/real_time.h"

#include <exception>
#include <thread>

namespace calvix::dropin
{

namespace
{

constexpr std::chrono::milliseconds tick{10};

} // namespace

RealTime::RealTime(simulation::Computer& computer, unsigned int speed)
    : m_computer(computer), m_speed(speed), m_start(RealClock::now())
{
}

void RealTime::CatchUp()
{
    using std::chrono::duration_cast;
    const std::lock_guard lock(m_mutex);
    // In microseconds the highest speed lasts for years; nanoseconds would overflow after a day.
    const auto elapsed = duration_cast<std::chrono::microseconds>(RealClock::now() - m_start);
    const auto due = duration_cast<std::chrono::milliseconds>(elapsed * m_speed);
    if (due > m_passed)
    {
        m_computer.Advance(due - m_passed);
        m_passed = due;
    }
}

void RealTime::KeepGoing()
{
    std::thread(
        [this]
        {
            for (;;)
            {
                std::this_thread::sleep_for(tick);
                try
                {
                    CatchUp();
                }
                catch (const std::exception&)
                {
                    // There was no memory. What is still due is tried again at the next tick.
                }
            }
        })
        .detach();
}

} // namespace calvix::dropin
