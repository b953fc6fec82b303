#include "simulation/clock.h"

#include "platform/records/error_numbers.h"

#include <cstdint>

namespace calvix::simulation
{

namespace
{

constexpr std::uint64_t unitsPerMillisecond = 10'000;
constexpr std::uint64_t millisecondsPerMinute = 60'000;
constexpr std::uint64_t millisecondsPerHour = 60 * millisecondsPerMinute;
constexpr std::uint64_t millisecondsPerDay = 24 * millisecondsPerHour;
constexpr std::uint64_t latestTime = 0x7fffffffffffffff;

struct Date
{
    std::uint64_t year;
    std::uint64_t month;
    std::uint64_t day;
};

bool IsLeap(std::uint64_t year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

std::uint64_t DaysIn(std::uint64_t month, std::uint64_t year)
{
    constexpr std::uint64_t days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeap(year) ? 29 : days[month - 1];
}

// 1601 begins one of the calendar's cycles of 400 years, which all have equally many days.
Date DateOf(std::uint64_t daysSince1601)
{
    constexpr std::uint64_t daysPerCycle = 146'097;
    Date date{1601 + daysSince1601 / daysPerCycle * 400, 1, 1};
    std::uint64_t left = daysSince1601 % daysPerCycle;
    for (; left >= (IsLeap(date.year) ? 366u : 365u); ++date.year)
        left -= IsLeap(date.year) ? 366u : 365u;
    for (; left >= DaysIn(date.month, date.year); ++date.month)
        left -= DaysIn(date.month, date.year);
    date.day += left;
    return date;
}

} // namespace

void SimulatedClock::Sleep(DWORD milliseconds)
{
    m_time.Advance(std::chrono::milliseconds(static_cast<std::uint32_t>(milliseconds)));
}

BOOL SimulatedClock::FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime)
{
    if (fileTime == nullptr || systemTime == nullptr)
    {
        m_lastError = ERROR_INVALID_PARAMETER;
        return FALSE;
    }
    const std::uint64_t time =
        (static_cast<std::uint64_t>(static_cast<std::uint32_t>(fileTime->dwHighDateTime)) << 32) |
        static_cast<std::uint32_t>(fileTime->dwLowDateTime);
    if (time > latestTime)
    {
        m_lastError = ERROR_INVALID_PARAMETER;
        return FALSE;
    }
    const std::uint64_t milliseconds = time / unitsPerMillisecond;
    const std::uint64_t days = milliseconds / millisecondsPerDay;
    const std::uint64_t ofDay = milliseconds % millisecondsPerDay;
    const Date date = DateOf(days);
    systemTime->wYear = static_cast<WORD>(date.year);
    systemTime->wMonth = static_cast<WORD>(date.month);
    systemTime->wDay = static_cast<WORD>(date.day);
    systemTime->wDayOfWeek = static_cast<WORD>((days + 1) % 7); // 1601 began on a Monday
    systemTime->wHour = static_cast<WORD>(ofDay / millisecondsPerHour);
    systemTime->wMinute = static_cast<WORD>(ofDay / millisecondsPerMinute % 60);
    systemTime->wSecond = static_cast<WORD>(ofDay / 1000 % 60);
    systemTime->wMilliseconds = static_cast<WORD>(ofDay % 1000);
    return TRUE;
}

} // namespace calvix::simulation
