#pragma once

#include "platform/internet.h"
#include "simulation/facility.h"

namespace calvix::simulation
{

/// The internet connection, which does not depend on the wireless adapters: there may be a cable. No handle is ever given
/// out, so every option is the whole process's.
class SimulatedInternet final : Facility
{
public:
    using Facility::Facility;

    BOOL InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize);
    BOOL InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved);

private:
    DWORD m_connectTimeout = 60'000; ///< chosen: that of a program which has not set one
};

} // namespace calvix::simulation
