// How an adapter's connections are made and ended.
#include "simulation/adapter.h"
#include "simulation/service_records.h"
#include "simulation/timetable.h"

#include <calvix/platform_records.h>

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

namespace
{

// Chosen: below this strength, in dBm, an access point is heard but cannot be associated with.
constexpr std::int32_t faintest = -90;

// Chosen: how many access points of a network the service tries before it gives the network up.
constexpr std::size_t mostAttempts = 3;

bool Contains(const std::vector<MacAddress>& addresses, const MacAddress& address)
{
    return std::find(addresses.begin(), addresses.end(), address) != addresses.end();
}

// A hidden network answers only those who ask for it by name.
bool Fits(const ConnectionRequest& request, const AccessPoint& accessPoint)
{
    const ProfileDocument& profile = request.profile->document;
    return accessPoint.ssid == profile.ssid && accessPoint.bssType == static_cast<std::uint32_t>(profile.bssType) &&
           SuiteFromNames(accessPoint.authentication, accessPoint.encryption) == profile.security &&
           (!accessPoint.hidden || profile.hidden || request.hiddenNetwork) &&
           (request.desiredBssids.empty() || Contains(request.desiredBssids, accessPoint.bssid));
}

// Keys are compared only if both sides have one.
bool IsWrongKey(const ProfileDocument& profile, const AccessPoint& accessPoint)
{
    return IsSecured(profile.security) && !profile.key.empty() && !accessPoint.key.empty() &&
           profile.key != accessPoint.key;
}

// Chosen: the service cannot ask a user for a key.
bool LacksKey(const ConnectionRequest& request, const AccessPoint& accessPoint)
{
    return request.HasTemporaryProfile() && request.profile->document.key.empty() && !accessPoint.key.empty();
}

/// What the records of both modules have in common.
template <typename Record>
Record MakeRecord(const ConnectionRequest& request, DWORD reason)
{
    const ProfileDocument& profile = request.profile->document;
    Record record{};
    record.wlanConnectionMode = request.mode;
    CopyText(profile.name, record.strProfileName);
    record.dot11Ssid = MakeSsid(profile.ssid);
    record.dot11BssType = profile.bssType;
    record.bSecurityEnabled = IsSecured(profile.security) ? TRUE : FALSE;
    record.wlanReasonCode = reason;
    return record;
}

} // namespace

// Connecting looks for the network anew, so that an access point counts before any scan has heard it.
const AccessPoint* Adapter::FindAccessPoint(const ConnectionRequest& request,
                                            const std::vector<MacAddress>& except) const
{
    const AccessPoint* strongest = nullptr;
    std::int32_t strongestSignal = 0;
    for (const AccessPoint& accessPoint : m_around.air)
    {
        const auto signal = SignalAt(accessPoint, m_around.time.Now());
        const bool isStronger = signal && (strongest == nullptr || *signal > strongestSignal);
        if (isStronger && Fits(request, accessPoint) && !Contains(except, accessPoint.bssid))
        {
            strongest = &accessPoint;
            strongestSignal = *signal;
        }
    }
    return strongest;
}

// The access point that is being tried; one that came onto the air since the attempt began will do, too.
const AccessPoint* Adapter::FindTarget() const
{
    ConnectionRequest request = m_attempt->request;
    if (m_attempt->target)
        request.desiredBssids = {*m_attempt->target};
    return FindAccessPoint(request, m_attempt->failed);
}

void Adapter::Connect(ConnectionRequest request)
{
    Disconnect();
    Begin(std::move(request));
}

void Adapter::Begin(ConnectionRequest request)
{
    m_attempt = Attempt{std::move(request), std::nullopt, {}};
    NotifyConnection(wlan_notification_acm_connection_start, m_attempt->request, WLAN_REASON_CODE_SUCCESS);
    StartAttempt();
}

void Adapter::StartAttempt()
{
    const AccessPoint* const accessPoint = FindAccessPoint(m_attempt->request, m_attempt->failed);
    m_attempt->target = accessPoint != nullptr ? std::optional(accessPoint->bssid) : std::nullopt;
    m_state = wlan_interface_state_associating;
    if (accessPoint != nullptr)
        NotifyMedia(wlan_notification_msm_associating, m_attempt->request, accessPoint->bssid);
    m_connectEvent = m_around.time.Schedule(std::chrono::milliseconds(m_description.connectMilliseconds / 2),
                                            [this] { Authenticate(); });
}

// Chosen: half of the time goes into associating, half into authenticating; an open network, and one that does not
// answer or is out of range, spends all of it associating.
void Adapter::Authenticate()
{
    const AccessPoint* const target = FindTarget();
    if (target != nullptr && target->answers && SignalAt(*target, m_around.time.Now()) >= faintest)
    {
        NotifyMedia(wlan_notification_msm_associated, m_attempt->request, target->bssid);
        if (IsSecured(m_attempt->request.profile->document.security))
        {
            m_state = wlan_interface_state_authenticating;
            NotifyMedia(wlan_notification_msm_authenticating, m_attempt->request, target->bssid);
        }
    }
    const std::uint32_t rest = m_description.connectMilliseconds - m_description.connectMilliseconds / 2;
    m_connectEvent = m_around.time.Schedule(std::chrono::milliseconds(rest), [this] { FinishAttempt(); });
}

DWORD Adapter::Outcome(const AccessPoint* target) const
{
    if (target == nullptr)
        return m_attempt->target ? WLAN_REASON_CODE_NO_VISIBLE_AP : WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE;
    if (SignalAt(*target, m_around.time.Now()) < faintest)
        return WLAN_REASON_CODE_NO_VISIBLE_AP;
    if (!target->answers)
        return WLAN_REASON_CODE_ASSOCIATION_TIMEOUT;
    if (LacksKey(m_attempt->request, *target))
        return WLAN_REASON_CODE_MSMSEC_UI_REQUEST_FAILURE;
    const bool isWrongKey = IsWrongKey(m_attempt->request.profile->document, *target);
    return isWrongKey ? WLAN_REASON_CODE_MSMSEC_PSK_MISMATCH_SUSPECTED : WLAN_REASON_CODE_SUCCESS;
}

void Adapter::FinishAttempt()
{
    const AccessPoint* const target = FindTarget();
    const DWORD reason = Outcome(target);
    if (reason != WLAN_REASON_CODE_SUCCESS)
    {
        Fail(reason);
        return;
    }
    const ConnectionRequest request = m_attempt->request;
    NotifyMedia(wlan_notification_msm_connected, request, target->bssid);
    Establish(*target);
    m_triedInVain.clear();
    NotifyConnection(wlan_notification_acm_connection_complete, request, WLAN_REASON_CODE_SUCCESS);
}

void Adapter::Establish(const AccessPoint& accessPoint)
{
    m_link = Link{std::move(m_attempt->request), *AsHeard(accessPoint, m_around.time.Now())};
    m_link->reportedQuality = SignalQuality(m_link->accessPoint.rssi);
    m_attempt.reset();
    m_state = wlan_interface_state_connected;
    m_wantsConnection = true;
    HearLink();
}

// Chosen: after a failure the service goes on to the next strongest access point of the network, and gives up when
// there is none left or enough have failed.
void Adapter::Fail(DWORD reason)
{
    if (m_attempt->target)
    {
        NotifyMedia(wlan_notification_msm_disconnected, m_attempt->request, *m_attempt->target, reason);
        m_attempt->failed.push_back(*m_attempt->target);
    }
    NotifyConnection(wlan_notification_acm_connection_attempt_fail, m_attempt->request, reason);
    const bool isEnough = !m_attempt->target || m_attempt->failed.size() >= mostAttempts;
    if (!isEnough && FindAccessPoint(m_attempt->request, m_attempt->failed) != nullptr)
    {
        StartAttempt();
        return;
    }
    GiveUp(reason);
    ConnectByItself();
}

void Adapter::GiveUp(DWORD reason)
{
    m_around.time.Cancel(m_connectEvent);
    const ConnectionRequest request = std::move(m_attempt->request);
    m_attempt.reset();
    m_state = wlan_interface_state_disconnected;
    m_triedInVain.insert(request.profile->document.name);
    NotifyConnection(wlan_notification_acm_connection_complete, request, reason);
}

void Adapter::Disconnect()
{
    TakeDown(WLAN_REASON_CODE_USER_CANCELLED);
    m_wantsConnection = false;
}

void Adapter::TakeDown(DWORD reason)
{
    if (m_attempt)
        GiveUp(reason);
    if (m_link)
    {
        const Link link = std::move(*m_link);
        NotifyConnection(wlan_notification_acm_disconnecting, link.request, reason);
        NotifyMedia(wlan_notification_msm_disassociating, link.request, link.accessPoint.bssid, reason);
        m_link.reset();
        NotifyMedia(wlan_notification_msm_disconnected, link.request, link.accessPoint.bssid, reason);
        NotifyConnection(wlan_notification_acm_disconnected, link.request, reason);
    }
    m_state = wlan_interface_state_disconnected;
}

void Adapter::NotifyConnection(DWORD code, const ConnectionRequest& request, DWORD reason) const
{
    Notify(WLAN_NOTIFICATION_SOURCE_ACM, code,
           RecordBytes(MakeRecord<WLAN_CONNECTION_NOTIFICATION_DATA>(request, reason)));
}

void Adapter::NotifyMedia(DWORD code, const ConnectionRequest& request, const MacAddress& bssid, DWORD reason) const
{
    auto record = MakeRecord<WLAN_MSM_NOTIFICATION_DATA>(request, reason);
    std::copy(bssid.begin(), bssid.end(), record.dot11MacAddr);
    Notify(WLAN_NOTIFICATION_SOURCE_MSM, code, RecordBytes(record));
}

// Chosen: the service makes up for connections that were lost, not for those that were never made, and not for one that
// somebody ended or replaced. It takes the first profile, in preference order, that allows it and whose network was
// heard; one that fails is left alone until the next scan.
void Adapter::ConnectByItself()
{
    if (!m_wantsConnection || m_link || m_attempt || !HasAutoConfiguration() || !m_around.serviceRunning)
        return;
    for (const auto& profile : m_profiles.InOrder())
    {
        ConnectionRequest request{profile, {}, false, wlan_connection_mode_auto};
        const bool isHeard = std::any_of(m_heard.begin(), m_heard.end(),
                                         [&](const HeardBss& bss) { return Fits(request, bss.accessPoint); });
        if (profile->document.automatic && isHeard && m_triedInVain.count(profile->document.name) == 0)
        {
            Begin(std::move(request));
            return;
        }
    }
    if (!m_triedInVain.empty())
        Notify(WLAN_NOTIFICATION_SOURCE_ACM, wlan_notification_acm_profiles_exhausted);
}

// Only an access point that answers, and takes the profile's key, is worth moving to.
bool Adapter::Roam()
{
    std::vector<MacAddress> except{m_link->accessPoint.bssid};
    for (;;)
    {
        const AccessPoint* const next = FindAccessPoint(m_link->request, except);
        if (next == nullptr || SignalAt(*next, m_around.time.Now()) < faintest)
            return false;
        if (!next->answers || IsWrongKey(m_link->Profile(), *next))
        {
            except.push_back(next->bssid);
            continue;
        }
        NotifyMedia(wlan_notification_msm_roaming_start, m_link->request, m_link->accessPoint.bssid);
        m_link->accessPoint = *AsHeard(*next, m_around.time.Now());
        m_link->missedByLastScan = false;
        NotifyMedia(wlan_notification_msm_roaming_end, m_link->request, next->bssid);
        NotifyMedia(wlan_notification_msm_connected, m_link->request, next->bssid);
        HearLink();
        return true;
    }
}

} // namespace calvix::simulation
