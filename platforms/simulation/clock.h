#pragma once

#include "platform/clock.h"
#include "simulation/facility.h"

namespace calvix::simulation
{

/// A clock that waits by letting simulated time pass at once.
class SimulatedClock final : Facility
{
public:
    using Facility::Facility;

    void Sleep(DWORD milliseconds);
    BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime);
};

} // namespace calvix::simulation
