#include "simulation/heard_bss.h"

#include "simulation/timetable.h"

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

const Bytes& HeardBss::Ssid() const
{
    static const Bytes hidden;
    return ssidHeard ? accessPoint.ssid : hidden;
}

ULONG SignalQuality(std::int32_t rssi)
{
    return static_cast<ULONG>(2 * (std::clamp(rssi, -100, -50) + 100));
}

ULONG PhyIndex(const std::vector<PhyDescription>& phys, std::uint32_t phyType)
{
    const auto found =
        std::find_if(phys.begin(), phys.end(), [phyType](const PhyDescription& phy) { return phy.type == phyType; });
    return found == phys.end() ? 0 : static_cast<ULONG>(found - phys.begin());
}

std::vector<HeardBss>
Listen(const std::vector<AccessPoint>& air, const std::optional<Bytes>& asked, std::chrono::milliseconds now)
{
    std::vector<HeardBss> heard;
    heard.reserve(air.size());
    for (const AccessPoint& accessPoint : air)
    {
        auto audible = AsHeard(accessPoint, now);
        if (!audible)
            continue;
        const bool ssidHeard = !accessPoint.hidden || asked == accessPoint.ssid;
        const SecuritySuite security = SuiteFromNames(accessPoint.authentication, accessPoint.encryption);
        heard.push_back({std::move(*audible), security, ssidHeard, now});
    }
    return heard;
}

} // namespace calvix::simulation
