#pragma once

#include "platform/clock.h"

namespace calvix::windows
{

/// Waiting and the calendar.
class Clock final : public platform::Clock
{
public:
    void Sleep(DWORD milliseconds) override;
    BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime) override;
};

} // namespace calvix::windows
