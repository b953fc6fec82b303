#include "report/recorded_adapter.h"

#include "core/wlan_records.h"
#include "forms/xml_text.h"
#include "output/text_forms.h"
#include "output/words.h"
#include "report/take_picture.h"
#include "view/describe.h"
#include "view/status.h"
#include <calvix/platform_records.h>

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr auto kLinkUp = static_cast<unsigned>(wlan_interface_state_connected);
constexpr auto kLinkDown = static_cast<unsigned>(wlan_interface_state_disconnected);

std::string InQuotes(const std::string& text)
{
    return "\xe2\x80\x9c" + text + "\xe2\x80\x9d";
}

std::string InRow(const std::set<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + InQuotes(name);
    return text;
}

bool IsSecured(const WLAN_BSS_ENTRY& entry)
{
    constexpr unsigned privacy = 0x0010;
    return (entry.usCapabilityInformation & privacy) != 0;
}

/// Whether the list that was asked for would have an access point that is in view.
bool IsAskedFor(const AirQuestion& asked, const WLAN_BSS_ENTRY& entry)
{
    return !asked.ssid || (SsidBytes(*asked.ssid) == SsidBytes(entry.dot11Ssid) && asked.secured == IsSecured(entry));
}

/// The text of the first element of this name; empty when there is none.
std::string TextOfElement(const std::string& xml, const std::string& element)
{
    const std::string opening = "<" + element + ">";
    const std::size_t begin = xml.find(opening);
    const std::size_t end = xml.find("</" + element + ">", begin == std::string::npos ? 0 : begin);
    if (begin == std::string::npos || end == std::string::npos)
        return {};
    return xml.substr(begin + opening.size(), end - begin - opening.size());
}

} // namespace

void RecordedAdapter::Hear(const AirQuestion& asked, const std::vector<HeardAccessPoint>& accessPoints, unsigned second)
{
    m_airKnown = true;
    m_lastListed = second;
    m_allAsked = m_allAsked || !asked.ssid;
    if (asked.ssid)
        m_networksAsked.insert(SsidText(*asked.ssid));
    TakeOutOfView(asked);
    for (const HeardAccessPoint& heard : accessPoints)
    {
        m_view[MacText(heard.entry.dot11Bssid)] = heard;
        NoteHeard(m_history.heard, Described(heard));
    }
    AddMoment(second);
}

/// A list has everything that it was asked for: what is not in it any more is gone.
void RecordedAdapter::TakeOutOfView(const AirQuestion& asked)
{
    for (auto point = m_view.begin(); point != m_view.end();)
        point = IsAskedFor(asked, point->second.entry) ? m_view.erase(point) : std::next(point);
}

void RecordedAdapter::Hear(const std::vector<WLAN_PROFILE_INFO>& profiles)
{
    m_profiles = profiles;
    m_profilesChanged = false;
}

void RecordedAdapter::HearProfile(const std::wstring& xml)
{
    const std::string document = Narrow(xml);
    const std::string mode = TextOfElement(document, "connectionMode");
    if (mode == "auto" || mode == "manual")
        m_modes[forms::UnescapedXml(TextOfElement(document, "name"))] = mode;
}

void RecordedAdapter::HearConnection(const WLAN_CONNECTION_ATTRIBUTES& attributes, unsigned second)
{
    if (!IsConnectedState(attributes.isState))
        return Disconnect(second);
    const WLAN_ASSOCIATION_ATTRIBUTES& association = attributes.wlanAssociationAttributes;
    m_attributes = attributes;
    SignalFacts link;
    link.state = StateText(static_cast<unsigned long>(attributes.isState));
    link.connected = true;
    link.profile = Narrow(FixedText(attributes.strProfileName));
    link.ssid = DescribeSsid(association.dot11Ssid);
    link.bssid = MacText(association.dot11Bssid);
    link.quality = association.wlanSignalQuality;
    if (link.bssid == m_link.bssid)
        link.rssi = m_link.rssi;
    NoteLink(link, second);
}

void RecordedAdapter::HearSignal(int rssi, unsigned second)
{
    if (!m_link.connected)
        return;
    m_link.rssi = rssi;
    AddMoment(second);
}

/// The notification does not name the access point: it is the requested one, or the next answer has it.
void RecordedAdapter::Connect(unsigned second)
{
    const auto point = m_asked ? m_view.find(*m_asked) : m_view.end();
    if (point == m_view.end() || m_link.bssid == *m_asked)
        return;
    SignalFacts link;
    link.state = StateText(kLinkUp);
    link.connected = true;
    link.ssid = DescribeSsid(point->second.entry.dot11Ssid);
    link.bssid = *m_asked;
    link.quality = static_cast<unsigned long>(point->second.entry.uLinkQuality);
    m_attributes.reset();
    NoteLink(link, second);
}

void RecordedAdapter::Disconnect(unsigned second)
{
    SignalFacts link;
    link.state = StateText(kLinkDown);
    m_attributes.reset();
    NoteLink(link, second);
}

void RecordedAdapter::NoteLink(const SignalFacts& link, unsigned second)
{
    if (m_linkKnown)
        NoteEvent(m_history, m_link, {second, link, {}});
    m_linkKnown = true;
    m_link = link;
    AddMoment(second);
}

/// A sample a second, and one more for each access point that the link uses in it.
void RecordedAdapter::AddMoment(unsigned second)
{
    SignalSample sample{second, m_link, {}};
    for (const auto& [bssid, heard] : m_view)
        sample.air.emplace_back(bssid, heard.entry.lRssi);
    std::vector<SignalSample>& samples = m_history.samples;
    const bool isSame = !samples.empty() && samples.back().second == second &&
                        (samples.back().link.bssid == m_link.bssid || !m_linkSampled);
    if (isSame)
        samples.back() = sample;
    else
        samples.push_back(sample);
    m_linkSampled = m_linkKnown;
}

/// If no elements were recorded, the lists of networks may have the security.
AirAccessPoint RecordedAdapter::Described(const HeardAccessPoint& heard) const
{
    AirAccessPoint point = DescribeHeard(heard);
    if (!heard.elements.empty())
        return point;
    for (const WLAN_AVAILABLE_NETWORK& network : m_networks)
    {
        if (SsidBytes(network.dot11Ssid) == SsidBytes(heard.entry.dot11Ssid) &&
            (network.bSecurityEnabled != FALSE) == IsSecured(heard.entry))
            point.beacon.security =
                SecurityText(network.dot11DefaultAuthAlgorithm, network.dot11DefaultCipherAlgorithm);
    }
    return point;
}

void RecordedAdapter::Fill(ReportFacts& report, const AdapterFacts& adapter) const
{
    report.history = m_history;
    FillConnection(report, adapter);
    FillAir(report);
    FillProfiles(report);
    if (m_history.samples.size() < 2)
        report.recording->notRecorded.push_back("The signal over time: the session read it only once.");
}

void RecordedAdapter::FillConnection(ReportFacts& report, AdapterFacts adapter) const
{
    std::vector<std::string>& notRecorded = report.recording->notRecorded;
    if (!m_linkKnown)
        return notRecorded.push_back("The connection: the session did not query it.");
    // The link may be newer than the list of adapters.
    if (m_link.connected != IsConnectedState(static_cast<WLAN_INTERFACE_STATE>(adapter.state)))
    {
        adapter.state = m_link.connected ? kLinkUp : kLinkDown;
        adapter.stateText = StateText(adapter.state);
    }
    report.status.emplace().adapter = adapter;
    if (!m_link.connected)
        return;
    ConnectionFacts& connection = report.status->connection.emplace();
    if (m_attributes)
        connection = DescribeConnection(*m_attributes);
    else
        notRecorded.push_back("Details of the connection: the session did not query them after it was made.");
    connection.ssid = m_link.ssid;
    connection.bssid = m_link.bssid;
    connection.quality = m_link.quality;
    connection.rssi = m_link.rssi;
    if (!m_link.rssi)
        notRecorded.push_back("The signal of the connection in dBm: the session did not query it.");
}

void RecordedAdapter::FillAir(ReportFacts& report) const
{
    std::vector<std::string>& notRecorded = report.recording->notRecorded;
    report.airKnown = m_airKnown;
    for (const auto& [bssid, heard] : m_view)
        report.accessPoints.push_back(Described(heard));
    if (!m_airKnown)
        notRecorded.push_back("The access points: the session did not list them." + NamedNetworks());
    else if (!m_allAsked)
        notRecorded.push_back("Access points of other networks: the session listed only those of " +
                              InRow(m_networksAsked) + ".");
    constexpr unsigned longAgo = 10;
    const unsigned end = m_history.samples.empty() ? 0 : m_history.samples.back().second;
    if (m_airKnown && end >= m_lastListed + longAgo)
        notRecorded.push_back("The access points at the end: they were listed last at second " +
                              std::to_string(m_lastListed) + " of " + std::to_string(end) + ".");
}

std::string RecordedAdapter::NamedNetworks() const
{
    std::set<std::string> names;
    for (const WLAN_AVAILABLE_NETWORK& network : m_networks)
        if (network.dot11Ssid.uSSIDLength > 0)
            names.insert(SsidText(network.dot11Ssid));
    return names.empty() ? "" : " Its list of networks has " + InRow(names) + ".";
}

void RecordedAdapter::FillProfiles(ReportFacts& report) const
{
    RecordingFacts& recording = *report.recording;
    recording.hasProfiles = m_profiles.has_value();
    for (const WLAN_PROFILE_INFO& info : m_profiles.value_or(std::vector<WLAN_PROFILE_INFO>()))
    {
        ProfileFacts facts;
        facts.position = static_cast<unsigned>(report.profiles.size() + 1);
        facts.name = Narrow(FixedText(info.strProfileName));
        const auto mode = m_modes.find(facts.name);
        facts.mode = mode == m_modes.end() ? "unknown" : mode->second;
        facts.groupPolicy = (info.dwFlags & WLAN_PROFILE_GROUP_POLICY) != 0;
        facts.perUser = (info.dwFlags & WLAN_PROFILE_USER) != 0;
        report.profiles.push_back(facts);
    }
    if (m_profiles && m_profilesChanged)
        recording.notRecorded.push_back("The profiles at the end: they changed after the last list.");
    if (m_profiles)
        return;
    std::set<std::string> names;
    for (const WLAN_AVAILABLE_NETWORK& network : m_networks)
        names.insert(VisibleText(Narrow(FixedText(network.strProfileName))));
    names.erase("");
    recording.notRecorded.push_back("The stored profiles: the session did not list them." +
                                    (names.empty() ? "" : " Networks in view have the profiles " + InRow(names) + "."));
}

} // namespace calvix::host
