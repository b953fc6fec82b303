#include "import/captured_air.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;

void Merge(AccessPoint& known, const AccessPoint& again)
{
    const std::int32_t rssi = std::max(known.rssi, again.rssi);
    const bool hidden = known.hidden || again.hidden;
    if (known.ssid.empty())
        known = again;
    known.rssi = rssi;
    known.hidden = hidden;
}

} // namespace

AccessPoint* FindAccessPoint(std::vector<AccessPoint>& air, const simulation::MacAddress& address)
{
    const auto found = std::find_if(air.begin(), air.end(),
                                    [&](const AccessPoint& accessPoint) { return accessPoint.bssid == address; });
    return found == air.end() ? nullptr : &*found;
}

std::vector<AccessPoint> AirOf(const NetworksCapture& capture)
{
    std::vector<AccessPoint> air;
    for (const CapturedNetwork& network : capture.networks)
        for (const AccessPoint& heard : network.accessPoints)
        {
            if (AccessPoint* known = FindAccessPoint(air, heard.bssid))
                Merge(*known, heard);
            else
                air.push_back(heard);
        }
    return air;
}

} // namespace calvix::host
