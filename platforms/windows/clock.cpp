#include "windows/clock.h"

namespace calvix::windows
{

void Clock::Sleep(DWORD milliseconds)
{
    ::Sleep(milliseconds);
}

BOOL Clock::FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime)
{
    return ::FileTimeToSystemTime(fileTime, systemTime);
}

} // namespace calvix::windows
