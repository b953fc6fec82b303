#include "import/captured_air.h"

#include "forms/address_text.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;

/// Whether one access point is listed twice, by two adapters or with and without its name.
bool IsSame(const AccessPoint& known, const AccessPoint& again)
{
    const bool isNamedOtherwise = !known.ssid.empty() && !again.ssid.empty() && known.ssid != again.ssid;
    return !isNamedOtherwise && known.frequencyKhz == again.frequencyKhz &&
           known.authentication == again.authentication && known.encryption == again.encryption;
}

void Merge(AccessPoint& known, const AccessPoint& again)
{
    const std::int32_t rssi = std::max(known.rssi, again.rssi);
    const bool hidden = known.hidden || again.hidden;
    if (known.ssid.empty())
        known = again;
    known.rssi = rssi;
    known.hidden = hidden;
}

/// A locally administered address that no access point of the air has.
simulation::MacAddress FreeAddress(std::vector<AccessPoint>& air, simulation::MacAddress address)
{
    address[0] |= 0x02;
    while (FindAccessPoint(air, address) != nullptr)
        address[4] = static_cast<std::uint8_t>(address[4] + (++address[5] == 0 ? 1 : 0));
    return address;
}

} // namespace

AccessPoint* FindAccessPoint(std::vector<AccessPoint>& air, const simulation::MacAddress& address)
{
    const auto found = std::find_if(air.begin(), air.end(),
                                    [&](const AccessPoint& accessPoint) { return accessPoint.bssid == address; });
    return found == air.end() ? nullptr : &*found;
}

std::vector<AccessPoint> AirOf(const std::vector<AccessPoint>& listed, MadeScenario& made)
{
    std::vector<AccessPoint> air;
    for (AccessPoint heard : listed)
    {
        AccessPoint* const known = FindAccessPoint(air, heard.bssid);
        const std::string address = "the access point " + forms::AddressText(heard.bssid);
        if (known != nullptr && IsSame(*known, heard))
        {
            Merge(*known, heard);
            made.Warn(address + " is listed more than once; the scenario has it once, with its best signal");
            continue;
        }
        if (known != nullptr)
        {
            heard.bssid = FreeAddress(air, heard.bssid);
            made.Warn(address +
                      " is listed again with another name, channel or security; that one has the invented address " +
                      forms::AddressText(heard.bssid));
        }
        air.push_back(std::move(heard));
    }
    return air;
}

} // namespace calvix::host
