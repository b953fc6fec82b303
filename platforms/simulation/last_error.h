#pragma once

#include "platform/last_error.h"
#include "simulation/last_error_cell.h"

namespace calvix::simulation
{

/// Answers with the cell that the computer's other facilities leave their errors in.
class SimulatedLastError final
{
public:
    /// `lastError` outlives this object.
    explicit SimulatedLastError(const LastErrorCell& lastError) : m_lastError(lastError) {}

    DWORD GetLastError() { return m_lastError; }

private:
    const LastErrorCell& m_lastError;
};

} // namespace calvix::simulation
