#pragma once

#include "platform/debugger_output.h"
#include "simulation/facility.h"

namespace calvix::simulation
{

/// A debugger that stores its output, one element per call.
class SimulatedDebuggerOutput final : Facility
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

} // namespace calvix::simulation
