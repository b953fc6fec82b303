#pragma once

namespace calvix::platform
{

/// The debugger's output window, where trace lines go.
class DebuggerOutput
{
public:
    virtual ~DebuggerOutput() = default;

    virtual void OutputDebugStringA(const char* text) = 0;
};

} // namespace calvix::platform
