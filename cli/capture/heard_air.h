#pragma once

#include "host/service_view.h"
#include "import/made_scenario.h"

namespace calvix::host
{

/// The access points that an adapter hears now; none if the service refuses the list.
std::vector<HeardAccessPoint> ListHeard(Host& host, const GUID& adapter, MadeScenario& made);

/// The same as a scenario has them. Their security is that of the service's list of networks.
std::vector<simulation::AccessPoint>
DescribeAir(Host& host, const GUID& adapter, const std::vector<HeardAccessPoint>& heard, MadeScenario& made);

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
