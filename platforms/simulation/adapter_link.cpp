// The events of an adapter's connection while it is up.
#include "simulation/adapter.h"
#include "simulation/timetable.h"

#include <calvix/platform_records.h>

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

namespace
{

// Drivers look after a connection all the time; once a second is often enough to be believed.
constexpr std::chrono::seconds linkWatchInterval{1};

template <typename Range>
auto FindBssid(Range& accessPoints, const MacAddress& bssid)
{
    return std::find_if(accessPoints.begin(), accessPoints.end(),
                        [&bssid](const AccessPoint& accessPoint) { return accessPoint.bssid == bssid; });
}

} // namespace

void Adapter::StartLinkWatch()
{
    m_around.time.Schedule(linkWatchInterval,
                           [this]
                           {
                               WatchLink();
                               StartLinkWatch();
                           });
}

// An access point that goes off the air by its timetable takes the connection with it, unless another one of the
// network is in reach. One that is taken out of the airspace is missed by scans: see NoticeLostLink.
void Adapter::WatchLink()
{
    const auto found = m_link ? FindBssid(m_around.air, m_link->accessPoint.bssid) : m_around.air.end();
    if (found == m_around.air.end())
        return;
    if (const auto rssi = SignalAt(*found, m_around.time.Now()))
    {
        MeasureLink(*rssi);
    }
    else if (!Roam())
    {
        LoseLink();
        if (HasAutoConfiguration() && m_around.serviceRunning)
            StartScan();
    }
}

void Adapter::MeasureLink(std::int32_t rssi)
{
    m_link->accessPoint.rssi = rssi;
    const ULONG quality = SignalQuality(rssi);
    if (std::exchange(m_link->reportedQuality, quality) != quality)
        Notify(WLAN_NOTIFICATION_SOURCE_MSM, wlan_notification_msm_signal_quality_change, RecordBytes(quality));
}

// There is no access point left to notify.
void Adapter::LoseLink()
{
    const Link link = std::move(*m_link);
    m_link.reset();
    m_state = wlan_interface_state_disconnected;
    constexpr DWORD reason = WLAN_REASON_CODE_DRIVER_DISCONNECTED;
    NotifyMedia(wlan_notification_msm_disconnected, link.request, link.accessPoint.bssid, reason);
    NotifyConnection(wlan_notification_acm_disconnected, link.request, reason);
}

/// How strong the connection's access point is now, or nothing while it is off the air.
std::optional<std::int32_t> Adapter::LinkSignal() const
{
    const auto found = FindBssid(m_around.air, m_link->accessPoint.bssid);
    return found != m_around.air.end() ? SignalAt(*found, m_around.time.Now()) : std::nullopt;
}

const std::vector<HeardBss>& Adapter::Heard()
{
    if (const auto signal = m_link ? LinkSignal() : std::nullopt)
    {
        m_link->accessPoint.rssi = *signal;
        HearLink();
    }
    return m_heard;
}

// Associating gives the adapter all facts about its access point: it is heard from then on, as strong as it is and with
// its SSID though it be hidden. Chosen: the entry's time stamp stays that of the scan that found it.
void Adapter::HearLink()
{
    if (!m_link || m_link->missedByLastScan)
        return;
    const AccessPoint& accessPoint = m_link->accessPoint;
    const auto known =
        std::find_if(m_heard.begin(), m_heard.end(),
                     [&accessPoint](const HeardBss& bss) { return bss.accessPoint.bssid == accessPoint.bssid; });
    std::vector<HeardBss> heard = Listen({accessPoint}, accessPoint.ssid, m_around.time.Now());
    if (known == m_heard.end())
    {
        m_heard.push_back(std::move(heard.front()));
        return;
    }
    heard.front().heardAt = known->heardAt;
    *known = std::move(heard.front());
}

// Chosen: a connection outlives one scan that does not hear its access point, so that "connected, but gone from the
// air" can be seen, and ends with the second.
void Adapter::NoticeLostLink()
{
    if (!m_link)
        return;
    const auto signal = LinkSignal();
    if (signal)
    {
        MeasureLink(*signal);
    }
    else if (m_link->missedByLastScan)
    {
        if (!Roam())
            LoseLink();
        return;
    }
    m_link->missedByLastScan = !signal;
}

} // namespace calvix::simulation
