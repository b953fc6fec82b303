#pragma once

#include "operations/bound.h"
#include "platform/platform.h"
#include "simulation/machine.h"

#include <chrono>
#include <memory>
#include <mutex>
#include <vector>

namespace calvix::simulation
{

using operations::CallsTo;

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
    virtual ~Facility() = default;

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

/// What does the operations of a platform, and lives as long as they do.
using Parts = std::vector<std::unique_ptr<Facility>>;

template <typename Part>
Part& AddPart(Machine& machine, Parts& parts)
{
    parts.push_back(std::make_unique<Part>(machine));
    return static_cast<Part&>(*parts.back());
}

/// Each makes one facility and gives its operations; it is in the file of its name.
platform::ServiceControl MakeServiceControl(Machine& machine, Parts& parts);
platform::Power MakePower(Machine& machine, Parts& parts);
platform::Security MakeSecurity(Machine& machine, Parts& parts);
platform::Processes MakeProcesses(Machine& machine, Parts& parts);
platform::Internet MakeInternet(Machine& machine, Parts& parts);
platform::Text MakeText(Machine& machine, Parts& parts);
platform::Clock MakeClock(Machine& machine, Parts& parts);
platform::DebuggerOutput MakeDebuggerOutput(Machine& machine, Parts& parts);

} // namespace calvix::simulation
