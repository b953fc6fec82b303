#include "simulation/facility.h"

#include "platform/records/error_numbers.h"

#include <cstdint>

namespace calvix::simulation
{

namespace
{

/// A clock that waits by letting simulated time pass at once.
class SimulatedClock final : public Facility
{
public:
    using Facility::Facility;

    void Sleep(DWORD milliseconds) { PassTime(std::chrono::milliseconds(static_cast<std::uint32_t>(milliseconds))); }

    BOOL FileTimeToSystemTime(const FILETIME* fileTime, SYSTEMTIME* systemTime)
    {
        using namespace std::chrono;
        using FileTimeUnits = duration<std::uint64_t, std::ratio<1, 10'000'000>>;
        constexpr std::uint64_t latest = 0x7fffffffffffffff;
        constexpr sys_days beginning = year{1601} / January / 1;

        if (fileTime == nullptr || systemTime == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        const std::uint64_t units =
            (static_cast<std::uint64_t>(static_cast<std::uint32_t>(fileTime->dwHighDateTime)) << 32) |
            static_cast<std::uint32_t>(fileTime->dwLowDateTime);
        if (units > latest)
            return Fail(ERROR_INVALID_PARAMETER);
        const auto sinceBeginning = duration_cast<milliseconds>(FileTimeUnits(units));
        const sys_days day = beginning + floor<days>(sinceBeginning);
        const year_month_day date(day);
        const hh_mm_ss time(sinceBeginning % days(1));
        systemTime->wYear = static_cast<WORD>(static_cast<int>(date.year()));
        systemTime->wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
        systemTime->wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
        systemTime->wDayOfWeek = static_cast<WORD>(weekday(day).c_encoding());
        systemTime->wHour = static_cast<WORD>(time.hours().count());
        systemTime->wMinute = static_cast<WORD>(time.minutes().count());
        systemTime->wSecond = static_cast<WORD>(time.seconds().count());
        systemTime->wMilliseconds = static_cast<WORD>(time.subseconds().count());
        return TRUE;
    }
};

} // namespace

platform::Clock MakeClock(Machine& machine, Parts& parts)
{
    auto& clock = AddPart<SimulatedClock>(machine, parts);
    return {
        .Sleep = CallsTo<&SimulatedClock::Sleep>(clock),
        .FileTimeToSystemTime = CallsTo<&SimulatedClock::FileTimeToSystemTime>(clock),
    };
}

} // namespace calvix::simulation
