#pragma once

#include "platform/debugger_output.h"

#include <string>
#include <vector>

namespace calvix::simulation
{

/// A debugger that stores its output, one element per call.
class SimulatedDebuggerOutput final
{
public:
    /// `lines` receives the texts; it outlives this object.
    explicit SimulatedDebuggerOutput(std::vector<std::string>& lines) : m_lines(lines) {}

    /// A null text says nothing and is not kept.
    void OutputDebugStringA(const char* text)
    {
        if (text != nullptr)
            m_lines.emplace_back(text);
    }

private:
    std::vector<std::string>& m_lines;
};

} // namespace calvix::simulation
