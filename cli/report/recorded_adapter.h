#pragma once

#include "report/report_facts.h"
#include "report/session_calls.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace calvix::host
{

/// What a session has learnt about one adapter and its air.
class RecordedAdapter
{
public:
    void Hear(const AirQuestion& asked, const std::vector<HeardAccessPoint>& accessPoints, unsigned second);
    void Hear(const std::vector<WLAN_AVAILABLE_NETWORK>& networks) { m_networks = networks; }
    void Hear(const std::vector<WLAN_PROFILE_INFO>& profiles);
    void HearProfile(const std::wstring& xml);
    void ChangeProfiles() { m_profilesChanged = true; }
    void HearConnection(const WLAN_CONNECTION_ATTRIBUTES& attributes, unsigned second);
    void HearSignal(int rssi, unsigned second);
    void AskForConnection(const std::optional<std::string>& bssid) { m_asked = bssid; }
    void Connect(unsigned second);
    void Disconnect(unsigned second);

    bool HasAir() const { return m_airKnown; }
    bool HasLink() const { return m_linkKnown; }

    /// Fills in what is known, and notes what is not.
    void Fill(ReportFacts& report, const AdapterFacts& adapter) const;

private:
    void TakeOutOfView(const AirQuestion& asked);
    void NoteLink(const SignalFacts& link, unsigned second);
    void AddMoment(unsigned second);
    AirAccessPoint Described(const HeardAccessPoint& heard) const;
    void FillConnection(ReportFacts& report, AdapterFacts adapter) const;
    void FillAir(ReportFacts& report) const;
    void FillProfiles(ReportFacts& report) const;
    std::string NamedNetworks() const;

    std::map<std::string, HeardAccessPoint> m_view; ///< by BSSID
    std::vector<WLAN_AVAILABLE_NETWORK> m_networks;
    std::optional<std::vector<WLAN_PROFILE_INFO>> m_profiles;
    std::map<std::string, std::string> m_modes; ///< of profiles, by name
    bool m_profilesChanged = false;             ///< since they were listed
    bool m_airKnown = false;
    unsigned m_lastListed = 0; ///< the second of the last list
    bool m_allAsked = false;   ///< for all access points, not only for those of a network
    std::set<std::string> m_networksAsked;
    bool m_linkKnown = false;
    bool m_linkSampled = false; ///< the last sample knew the link
    SignalFacts m_link;
    std::optional<WLAN_CONNECTION_ATTRIBUTES> m_attributes;
    std::optional<std::string> m_asked; ///< the access point of the last request
    HistoryFacts m_history;
};

} // namespace calvix::host
