#pragma once

#include "platform/internet.h"
#include "simulation/machine.h"

namespace calvix::simulation
{

/// The internet connection, which does not depend on the wireless adapters: there may be a cable. No handle is ever given
/// out, so every option is the whole process's.
class SimulatedInternet final
{
public:
    /// `machine` outlives this object.
    explicit SimulatedInternet(Machine& machine) : m_machine(machine) {}

    BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize);
    BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved);

private:
    BOOL Fail(DWORD error);

    Machine& m_machine;
    DWORD m_connectTimeout = 60'000; ///< chosen: that of a program which has not set one
};

} // namespace calvix::simulation
