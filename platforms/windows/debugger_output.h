#pragma once

#include "platform/debugger_output.h"

namespace calvix::windows
{

/// The debugger's output window.
class DebuggerOutput final : public platform::DebuggerOutput
{
public:
    void OutputDebugStringA(const char* text) override;
};

} // namespace calvix::windows
