#pragma once

#include <chrono>
#include <cstdint>

namespace calvix::simulation
{

/// The platform's time, in 100 ns since the beginning of 1601, at a moment of simulated time. Every computer starts
/// on 1 January 2026 (chosen), so that what it does can be repeated exactly.
constexpr std::uint64_t HostTime(std::chrono::milliseconds now)
{
    constexpr std::uint64_t unitsPerMillisecond = 10'000;
    constexpr std::uint64_t unitsPerDay = 24ull * 60 * 60 * 1000 * unitsPerMillisecond;
    constexpr std::uint64_t daysFrom1601To1970 = 134'774;
    constexpr std::uint64_t daysFrom1970To2026 = 20'454;
    return (daysFrom1601To1970 + daysFrom1970To2026) * unitsPerDay +
           static_cast<std::uint64_t>(now.count()) * unitsPerMillisecond;
}

} // namespace calvix::simulation
