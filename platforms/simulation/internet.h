#pragma once

#include "platform/internet.h"
#include "simulation/last_error_cell.h"

namespace calvix::simulation
{

/// The internet connection: this part of the machine is not furnished yet. Every operation fails with
/// ERROR_CALL_NOT_IMPLEMENTED.
class SimulatedInternet final : public platform::Internet
{
public:
    /// `lastError` receives the reason of a failure; it outlives this object.
    explicit SimulatedInternet(LastErrorCell& lastError) : m_lastError(lastError) {}

    BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize) override;
    BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved) override;

private:
    BOOL Refuse();

    LastErrorCell& m_lastError;
};

} // namespace calvix::simulation
