#pragma once

#include "platform/operation.h"

namespace calvix::platform
{

/// The debugger's output window, where trace lines go.
struct DebuggerOutput
{
    Operation<void(const char* text)> OutputDebugStringA;
};

} // namespace calvix::platform
