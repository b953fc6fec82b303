#include "import/heard_access_point.h"

#include "import/capture_text.h"

#include <algorithm>

namespace calvix::host
{

void AddHeard(NetworksCapture& capture, const simulation::AccessPoint& accessPoint)
{
    const std::string ssid(accessPoint.ssid.begin(), accessPoint.ssid.end());
    const auto network = std::find_if(capture.networks.begin(), capture.networks.end(),
                                      [&](const CapturedNetwork& known) { return known.ssid == ssid; });
    if (network != capture.networks.end())
        network->accessPoints.push_back(accessPoint);
    else
        capture.networks.push_back({ssid, {accessPoint}});
}

void AddConnection(NetworksCapture& capture, const simulation::AccessPoint& accessPoint)
{
    const std::string ssid(accessPoint.ssid.begin(), accessPoint.ssid.end());
    if (!ssid.empty())
        capture.connections.push_back({ssid, ssid, true, accessPoint});
}

std::uint32_t OldPhyType(std::uint32_t frequencyKhz, double highestRate)
{
    constexpr std::uint32_t kDsssAtHighRate = 5;
    constexpr std::uint32_t kOfdm = 4;
    constexpr std::uint32_t kErp = 6;
    constexpr std::uint32_t kDmg = 9;
    if (frequencyKhz >= 45000000)
        return kDmg;
    if (frequencyKhz >= 3000000)
        return kOfdm;
    return highestRate > 11 ? kErp : kDsssAtHighRate;
}

std::uint32_t FrequencyFromMegahertz(std::string_view text)
{
    // Newer versions of iw print a fraction, which is zero for every channel of these bands.
    const int megahertz = WholeNumber(text.substr(0, text.find('.')));
    return megahertz >= 2400 && megahertz <= 71000 ? static_cast<std::uint32_t>(megahertz) * 1000 : 0;
}

} // namespace calvix::host
