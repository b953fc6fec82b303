#include "simulation/facility.h"

namespace calvix::simulation
{

namespace
{

/// A debugger that stores its output, one element per call.
class SimulatedDebuggerOutput final : public Facility
{
public:
    using Facility::Facility;

    /// A null text says nothing and is not kept.
    void OutputDebugStringA(const char* text)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (text != nullptr)
            m_machine.debuggerLines.emplace_back(text);
    }
};

} // namespace

platform::DebuggerOutput MakeDebuggerOutput(Machine& machine, Parts& parts)
{
    auto& debugger = AddPart<SimulatedDebuggerOutput>(machine, parts);
    return {
        .OutputDebugStringA = CallsTo<&SimulatedDebuggerOutput::OutputDebugStringA>(debugger),
    };
}

} // namespace calvix::simulation
