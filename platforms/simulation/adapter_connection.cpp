#include "simulation/adapter.h"

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

namespace
{

bool IsDesired(const ConnectionRequest& request, const MacAddress& bssid)
{
    const auto& desired = request.desiredBssids;
    return desired.empty() || std::find(desired.begin(), desired.end(), bssid) != desired.end();
}

// A hidden network answers only those who ask for it by name.
bool Fits(const ConnectionRequest& request, const AccessPoint& accessPoint)
{
    const ProfileDocument& profile = request.profile->document;
    return accessPoint.ssid == profile.ssid && accessPoint.bssType == static_cast<std::uint32_t>(profile.bssType) &&
           SuiteFromNames(accessPoint.authentication, accessPoint.encryption) == profile.security &&
           (!accessPoint.hidden || profile.hidden || request.hiddenNetwork) && IsDesired(request, accessPoint.bssid);
}

template <typename Range>
auto FindBssid(const Range& accessPoints, const MacAddress& bssid)
{
    return std::find_if(accessPoints.begin(), accessPoints.end(),
                        [&bssid](const AccessPoint& accessPoint) { return accessPoint.bssid == bssid; });
}

} // namespace

// Connecting looks for the network anew, so that an access point counts before any scan has heard it.
const AccessPoint* Adapter::FindAccessPoint(const ConnectionRequest& request) const
{
    const AccessPoint* strongest = nullptr;
    for (const AccessPoint& accessPoint : m_around.air)
    {
        const bool isStronger = strongest == nullptr || accessPoint.rssi > strongest->rssi;
        if (isStronger && Fits(request, accessPoint))
        {
            strongest = &accessPoint;
        }
    }
    return strongest;
}

void Adapter::Connect(ConnectionRequest request)
{
    Disconnect();
    m_request = std::move(request);
    m_state = wlan_interface_state_associating;
    m_connectEvent = m_around.time.Schedule(std::chrono::milliseconds(m_description.connectMilliseconds / 2),
                                            [this] { Authenticate(); });
}

// Chosen: half of the time goes into associating, half into authenticating; an open network, and one that is out of
// range, spends all of it associating.
void Adapter::Authenticate()
{
    if (IsSecured(m_request->profile->document.security) && FindAccessPoint(*m_request) != nullptr)
    {
        m_state = wlan_interface_state_authenticating;
    }
    const std::uint32_t rest = m_description.connectMilliseconds - m_description.connectMilliseconds / 2;
    m_connectEvent = m_around.time.Schedule(std::chrono::milliseconds(rest), [this] { FinishConnecting(); });
}

void Adapter::FinishConnecting()
{
    const AccessPoint* const accessPoint = FindAccessPoint(*m_request);
    if (accessPoint != nullptr)
    {
        m_link = Link{m_request->profile, *accessPoint};
    }
    m_state = accessPoint != nullptr ? wlan_interface_state_connected : wlan_interface_state_disconnected;
    m_request.reset();
    HearLink();
}

// Associating tells the adapter all about its access point: that is heard from then on, with its SSID though it be
// hidden.
void Adapter::HearLink()
{
    if (!m_link || m_link->missedByLastScan)
    {
        return;
    }
    const MacAddress& bssid = m_link->accessPoint.bssid;
    const auto known = std::find_if(m_heard.begin(), m_heard.end(),
                                    [&bssid](const HeardBss& bss) { return bss.accessPoint.bssid == bssid; });
    if (known != m_heard.end())
    {
        known->ssidHeard = true;
        return;
    }
    std::vector<HeardBss> heard = Listen({m_link->accessPoint}, m_link->accessPoint.ssid, m_around.time.Now());
    m_heard.push_back(std::move(heard.front()));
}

void Adapter::Disconnect()
{
    m_around.time.Cancel(m_connectEvent);
    m_request.reset();
    m_link.reset();
    m_state = wlan_interface_state_disconnected;
}

std::int32_t Adapter::LinkRssi() const
{
    const auto found = FindBssid(m_around.air, m_link->accessPoint.bssid);
    return found != m_around.air.end() ? found->rssi : m_link->accessPoint.rssi;
}

// Chosen: a connection outlives one scan that does not hear its access point, so that "connected, but gone from the
// air" can be seen, and ends with the second.
void Adapter::NoticeLostLink()
{
    if (!m_link)
    {
        return;
    }
    const bool isHeard = FindBssid(m_around.air, m_link->accessPoint.bssid) != m_around.air.end();
    if (!isHeard && m_link->missedByLastScan)
    {
        Disconnect();
        return;
    }
    m_link->missedByLastScan = !isHeard;
}

} // namespace calvix::simulation
