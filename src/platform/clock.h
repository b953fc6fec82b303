#pragma once

#include "platform/records/time_records.h"

namespace calvix::platform
{

/// Waiting, and the calendar form of the service's time stamps.
class Clock
{
public:
    virtual ~Clock() = default;

    virtual void Sleep(DWORD milliseconds) = 0;
    virtual BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime) = 0;
};

} // namespace calvix::platform
