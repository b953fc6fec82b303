#include "capture/heard_air.h"

#include "capture/or_warn.h"
#include "host/service_view.h"
#include "import/captured_air.h"
#include "output/text_forms.h"
#include "output/words.h"
#include "report/beacon_elements.h"
#include "simulation/security_suite.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;
using simulation::SecuritySuite;
using simulation::SignalPoint;

using Networks = std::vector<WLAN_AVAILABLE_NETWORK>;

bool IsPrivate(const WLAN_BSS_ENTRY& entry)
{
    constexpr unsigned privacy = 0x0010;
    return (entry.usCapabilityInformation & privacy) != 0;
}

bool IsOf(const WLAN_AVAILABLE_NETWORK& network, const WLAN_BSS_ENTRY& entry)
{
    return network.dot11BssType == entry.dot11BssType && (network.bSecurityEnabled != FALSE) == IsPrivate(entry) &&
           SsidBytes(network.dot11Ssid) == SsidBytes(entry.dot11Ssid);
}

SecuritySuite SuiteOf(const WLAN_AVAILABLE_NETWORK& network)
{
    return {network.dot11DefaultAuthAlgorithm, network.dot11DefaultCipherAlgorithm};
}

/// If several networks have one name, the access point's own elements distinguish them.
SecuritySuite SecurityOfEntry(const HeardAccessPoint& heard, const Networks& networks)
{
    const std::string security = SecurityOf(BeaconElements(heard.elements));
    std::optional<SecuritySuite> likely;
    for (const WLAN_AVAILABLE_NETWORK& network : networks)
    {
        if (!IsOf(network, heard.entry))
            continue;
        const SecuritySuite suite = SuiteOf(network);
        if (security.find(SecurityText(suite.authentication, suite.encryption)) != std::string::npos)
            return suite;
        likely = likely.value_or(suite);
    }
    const SecuritySuite usual = IsPrivate(heard.entry) ? simulation::SuiteFromNames("WPA2PSK", "AES") : SecuritySuite{};
    return likely.value_or(usual);
}

void NameSecurity(SecuritySuite suite, AccessPoint& point, MadeScenario& made)
{
    constexpr unsigned wep40 = 1;
    constexpr unsigned wep104 = 5;
    const auto cipher = static_cast<unsigned>(suite.encryption);
    if (cipher == wep40 || cipher == wep104)
        suite.encryption = DOT11_CIPHER_ALGO_WEP;
    const char* const authentication = simulation::AuthenticationName(suite.authentication);
    const char* const encryption = simulation::EncryptionName(suite.encryption);
    if (authentication == nullptr || encryption == nullptr)
        made.Warn("no profile has the security " + SecurityText(suite.authentication, suite.encryption) + " of " +
                  forms::AddressText(point.bssid) + "; the scenario has WPA2PSK or AES in its place");
    point.authentication = authentication != nullptr ? authentication : "WPA2PSK";
    point.encryption = encryption != nullptr ? encryption : "AES";
}

AccessPoint DescribePoint(const HeardAccessPoint& heard, const Networks& networks, MadeScenario& made)
{
    const WLAN_BSS_ENTRY& entry = heard.entry;
    AccessPoint point;
    const std::string ssid = SsidBytes(entry.dot11Ssid);
    point.ssid.assign(ssid.begin(), ssid.end());
    point.hidden = ssid.empty();
    std::copy(std::begin(entry.dot11Bssid), std::end(entry.dot11Bssid), point.bssid.begin());
    point.frequencyKhz = (std::max)(static_cast<std::uint32_t>(entry.ulChCenterFrequency), 1U);
    point.rssi = std::clamp(static_cast<std::int32_t>(entry.lRssi), -120, 0);
    point.phyType = static_cast<std::uint32_t>(entry.dot11BssPhyType);
    point.bssType = static_cast<std::uint32_t>(entry.dot11BssType);
    point.beaconPeriod = entry.usBeaconPeriod;
    point.informationElements = heard.elements;
    NameSecurity(SecurityOfEntry(heard, networks), point, made);
    return point;
}

void AddPoint(std::vector<SignalPoint>& timetable, const SignalPoint& next)
{
    const std::size_t count = timetable.size();
    // A stretch without changes needs only its first and its last point.
    if (count >= 2 && timetable[count - 2].rssi == next.rssi && timetable[count - 1].rssi == next.rssi)
        timetable.pop_back();
    timetable.push_back(next);
}

} // namespace

std::vector<AccessPoint> HeardAir(Host& host, const GUID& adapter, MadeScenario& made)
{
    const auto heard = OrWarn(made, [&] { return host.service().AccessPoints(&adapter); });
    const Networks networks = OrWarn(made, [&] { return host.service().Networks(&adapter); });
    std::vector<AccessPoint> listed;
    for (const HeardAccessPoint& each : heard)
        listed.push_back(DescribePoint(each, networks, made));
    return AirOf(listed, made);
}

void AirMovement::Hear(std::uint32_t milliseconds, std::vector<AccessPoint> heard)
{
    for (const AccessPoint& point : heard)
    {
        if (FindAccessPoint(m_air, point.bssid) != nullptr)
            continue;
        m_air.push_back(point);
        if (milliseconds != 0)
            m_air.back().timetable = {{0, std::nullopt}};
    }
    for (AccessPoint& point : m_air)
    {
        const AccessPoint* const now = FindAccessPoint(heard, point.bssid);
        AddPoint(point.timetable, {milliseconds, now != nullptr ? std::optional(now->rssi) : std::nullopt});
    }
}

std::vector<AccessPoint> AirMovement::Finish()
{
    for (AccessPoint& point : m_air)
    {
        const auto isSame = [&point](const SignalPoint& each) { return each.rssi == point.timetable.front().rssi; };
        if (std::all_of(point.timetable.begin(), point.timetable.end(), isSame))
            point.timetable.clear();
    }
    return std::move(m_air);
}

} // namespace calvix::host
