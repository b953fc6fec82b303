#pragma once

#include "import/made_scenario.h"

namespace calvix::host
{

/// The access points that an adapter hears now; none if the service refuses the list. Their security is that of the
/// service's list of networks.
std::vector<simulation::AccessPoint> HeardAir(Host& host, const GUID& adapter, MadeScenario& made);

/// Makes timetables of what is heard at several moments.
class AirMovement
{
public:
    /// What is heard so many milliseconds after the beginning; the moments must be in order.
    void Hear(std::uint32_t milliseconds, std::vector<simulation::AccessPoint> heard);

    /// Everything that was heard. An access point that changed has a timetable.
    std::vector<simulation::AccessPoint> Finish();

private:
    std::vector<simulation::AccessPoint> m_air;
};

} // namespace calvix::host
