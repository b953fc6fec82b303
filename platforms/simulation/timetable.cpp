#include "simulation/timetable.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

std::chrono::milliseconds TimeOf(const SignalPoint& point)
{
    return std::chrono::milliseconds(point.at);
}

/// The first point that is still to come.
std::vector<SignalPoint>::const_iterator NextPoint(const AccessPoint& accessPoint, std::chrono::milliseconds now)
{
    return std::find_if(accessPoint.timetable.begin(), accessPoint.timetable.end(),
                        [now](const SignalPoint& point) { return TimeOf(point) > now; });
}

std::int32_t Between(const SignalPoint& from, const SignalPoint& to, std::chrono::milliseconds now)
{
    const std::int64_t passed = (now - TimeOf(from)).count();
    const std::int64_t whole = (TimeOf(to) - TimeOf(from)).count();
    return *from.rssi + static_cast<std::int32_t>((*to.rssi - *from.rssi) * passed / whole);
}

} // namespace

std::optional<std::int32_t> SignalAt(const AccessPoint& accessPoint, std::chrono::milliseconds now)
{
    const auto& timetable = accessPoint.timetable;
    if (timetable.empty())
        return accessPoint.rssi;
    const auto next = NextPoint(accessPoint, now);
    if (next == timetable.begin())
        return next->rssi;
    const SignalPoint& last = *(next - 1);
    const bool isChanging = next != timetable.end() && last.rssi && next->rssi;
    return isChanging ? Between(last, *next, now) : last.rssi;
}

std::optional<AccessPoint> AsHeard(const AccessPoint& accessPoint, std::chrono::milliseconds now)
{
    const auto rssi = SignalAt(accessPoint, now);
    if (!rssi)
        return std::nullopt;
    AccessPoint heard = accessPoint;
    heard.rssi = *rssi;
    heard.timetable.clear();
    return heard;
}

std::vector<SignalPoint> RestOfTimetable(const AccessPoint& accessPoint, std::chrono::milliseconds now)
{
    std::vector<SignalPoint> rest;
    const auto next = NextPoint(accessPoint, now);
    if (next != accessPoint.timetable.begin())
        rest.push_back({0, SignalAt(accessPoint, now)});
    for (auto point = next; point != accessPoint.timetable.end(); ++point)
        rest.push_back({static_cast<std::uint32_t>((TimeOf(*point) - now).count()), point->rssi});
    return rest;
}

} // namespace calvix::simulation
