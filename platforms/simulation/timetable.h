#pragma once

#include "simulation/scenario.h"

#include <chrono>
#include <optional>
#include <vector>

namespace calvix::simulation
{

/// How strong an access point is at a moment of simulated time, or nothing while it is off the air. Its timetable, if
/// it has one, says so: the strength changes evenly from one point to the next; a point without a strength takes it off
/// the air until the next one; before the first point and after the last it stays as it is there.
std::optional<std::int32_t> SignalAt(const AccessPoint& accessPoint, std::chrono::milliseconds now);

/// The access point as it is heard now, without a timetable, or nothing while it is off the air.
std::optional<AccessPoint> AsHeard(const AccessPoint& accessPoint, std::chrono::milliseconds now);

/// The timetable for a computer that starts now: what is left of it, its times counted from now.
std::vector<SignalPoint> RestOfTimetable(const AccessPoint& accessPoint, std::chrono::milliseconds now);

} // namespace calvix::simulation
