#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <random>
#include <string>

namespace calvix::test::soak
{

using Count = unsigned long long;

/// What the process holds, counted while it does nothing.
struct Holdings
{
    Count residentKilobytes = 0;
    Count heapBlocks = 0;
    Count handles = 0; ///< the operating system's: open files, or everything that has a handle
    Count threads = 0;
};

/// Where the program lives: how time passes there, what happens by itself, and what can be found out about the process.
class Surroundings
{
public:
    using Duration = std::chrono::milliseconds;

    virtual ~Surroundings() = default;

    /// Simulated time since the beginning.
    virtual Duration Now() const = 0;
    /// Lets simulated time pass and hands out the notifications.
    virtual void Pass(Duration duration) = 0;

    /// Whether power, processes and the internet are simulated, too, and a pause of the library costs no real time.
    virtual bool SimulateEverything() const = 0;
    /// Something that the program has not asked for: a switch, a service that stops. What happened before is over.
    virtual void Trouble(std::mt19937_64& random) = 0;
    /// The end of all trouble.
    virtual void Calm() = 0;

    /// The end of the program's day: it lets go of the library, as far as it can take it up again in the same process.
    /// What it, or the computer, should not hold any more: a line each.
    virtual std::string EndOfDay() = 0;
    virtual Holdings Measure() = 0;
};

/// The surroundings of this build, in a scenario given as a scenario file's text.
std::unique_ptr<Surroundings> MakeSurroundings(const std::string& scenario);

} // namespace calvix::test::soak
