#include "simulation/real_time.h"

#include <charconv>
#include <exception>
#include <stdexcept>

namespace calvix::simulation
{

namespace
{

constexpr unsigned int kHighestSpeed = 100'000;
constexpr std::chrono::milliseconds kTick{10};

} // namespace

unsigned int ReadSpeed(const std::string& text, const std::string& source)
{
    unsigned int speed = 1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), speed);
    const bool isWholeNumber = error == std::errc() && end == text.data() + text.size();
    if (!text.empty() && (!isWholeNumber || speed < 1 || speed > kHighestSpeed))
    {
        throw std::runtime_error(source + ": \"" + text + "\" is not a whole number from 1 to " +
                                 std::to_string(kHighestSpeed));
    }
    return speed;
}

RealTime::RealTime(Computer& computer, unsigned int speed)
    : m_computer(computer), m_speed(speed), m_start(RealClock::now())
{
}

RealTime::~RealTime()
{
    m_ending = true;
    if (m_thread.joinable())
        m_thread.join();
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
    m_thread = std::thread(&RealTime::Run, this);
}

void RealTime::Run()
{
    while (!m_ending)
    {
        std::this_thread::sleep_for(kTick);
        try
        {
            CatchUp();
        }
        catch (const std::exception&)
        {
            // There was no memory. What is still due is tried again at the next tick.
        }
    }
}

} // namespace calvix::simulation
