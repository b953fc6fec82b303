#pragma once

#include "platform/operation.h"
#include "platform/records/system_records.h"

namespace calvix::platform
{

/// Waiting, and the calendar form of the service's time stamps.
struct Clock
{
    Operation<void(DWORD milliseconds)> Sleep;
    Operation<BOOL(const FILETIME* fileTime, SYSTEMTIME* systemTime)> FileTimeToSystemTime;
};

} // namespace calvix::platform
