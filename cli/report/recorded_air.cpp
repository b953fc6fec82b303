#include "report/recorded_air.h"

#include "core/wlan_records.h"
#include "explain/failure_words.h"
#include "files/file_path.h"
#include "forms/guid_text.h"
#include "host/adapter_choice.h"
#include "output/text_forms.h"
#include "report/recorded_adapter.h"
#include "report/take_picture.h"
#include "view/describe.h"
#include "view/status.h"
#include "wrappers/recording/replay.h"

#include <fstream>

namespace calvix::host
{

namespace
{

using forms::GuidText;

/// Keeps what a session learns apart for each adapter.
class SessionAir final : public SessionListener
{
public:
    void Pass(unsigned milliseconds) override { m_waited += milliseconds; }
    void Hear(const std::vector<WLAN_INTERFACE_INFO>& adapters) override
    {
        m_list = adapters;
        m_refusals.erase("WlanEnumInterfaces");
        for (const WLAN_INTERFACE_INFO& info : adapters)
            if (!IsConnectedState(info.isState))
                Of(info.InterfaceGuid).Disconnect(Second());
    }
    void Hear(const GUID& adapter, const AirQuestion& asked, const std::vector<HeardAccessPoint>& accessPoints) override
    {
        m_lastHeard = GuidText(adapter);
        m_refusals.erase("WlanGetNetworkBssList");
        Of(adapter).Hear(asked, accessPoints, Second());
    }
    void Hear(const GUID& adapter, const std::vector<WLAN_AVAILABLE_NETWORK>& networks) override
    {
        Of(adapter).Hear(networks);
    }
    void Hear(const GUID& adapter, const std::vector<WLAN_PROFILE_INFO>& profiles) override
    {
        m_refusals.erase("WlanGetProfileList");
        Of(adapter).Hear(profiles);
    }
    void HearProfile(const GUID& adapter, const std::wstring& xml) override { Of(adapter).HearProfile(xml); }
    void ChangeProfiles(const GUID& adapter) override { Of(adapter).ChangeProfiles(); }
    void HearConnection(const GUID& adapter, const WLAN_CONNECTION_ATTRIBUTES& attributes) override
    {
        m_refusals.erase(kConnectionQuestion);
        Of(adapter).HearConnection(attributes, Second());
    }
    void HearSignal(const GUID& adapter, int rssi) override { Of(adapter).HearSignal(rssi, Second()); }
    void AskForConnection(const GUID& adapter, const std::optional<std::string>& bssid) override
    {
        Of(adapter).AskForConnection(bssid);
    }
    void Connect(const GUID& adapter) override { Of(adapter).Connect(Second()); }
    void Disconnect(const GUID& adapter) override { Of(adapter).Disconnect(Second()); }
    void Refuse(const GUID*, const std::string& question, std::uint32_t error) override
    {
        m_refusals[question] = error;
    }

    void Fill(ReportFacts& report, const std::string& wanted) const;

private:
    unsigned Second() const { return static_cast<unsigned>(m_waited / 1000); }
    RecordedAdapter& Of(const GUID& adapter) { return m_adapters[GuidText(adapter)]; }
    std::string Chosen(const std::string& wanted) const;
    std::string Usual() const;
    AdapterFacts FactsOf(const std::string& guid) const;
    void FillRefusals(ReportFacts& report) const;

    unsigned long long m_waited = 0; ///< milliseconds: the only clock that every recording has
    std::vector<WLAN_INTERFACE_INFO> m_list;
    std::map<std::string, RecordedAdapter> m_adapters; ///< by GUID
    std::string m_lastHeard;
    std::map<std::string, std::uint32_t> m_refusals; ///< by what was asked, the last ones
};

/// The adapter whose air was listed last, or else one whose connection was asked for, or else the first.
std::string SessionAir::Usual() const
{
    if (!m_lastHeard.empty())
        return m_lastHeard;
    for (const auto& [guid, adapter] : m_adapters)
        if (adapter.HasLink())
            return guid;
    if (!m_list.empty())
        return GuidText(m_list.front().InterfaceGuid);
    return m_adapters.empty() ? std::string() : m_adapters.begin()->first;
}

std::string SessionAir::Chosen(const std::string& wanted) const
{
    if (wanted.empty())
        return Usual();
    if (const auto place = PlaceOf(wanted, m_list.size()))
        return GuidText(m_list[*place].InterfaceGuid);
    for (const WLAN_INTERFACE_INFO& info : m_list)
        if (wanted == Narrow(FixedText(info.strInterfaceDescription)))
            return GuidText(info.InterfaceGuid);
    for (const auto& [guid, adapter] : m_adapters)
        if (SameGuidText(wanted, guid))
            return guid;
    throw BadInput("the recording has no adapter \"" + wanted + "\"", "omit --interface to see which it has");
}

/// An adapter that was never listed is known by its GUID alone.
AdapterFacts SessionAir::FactsOf(const std::string& guid) const
{
    AdapterFacts facts;
    for (std::size_t i = 0; i < m_list.size(); ++i)
        if (GuidText(m_list[i].InterfaceGuid) == guid)
            return DescribeAdapter(m_list[i], static_cast<unsigned>(i + 1));
    facts.guid = guid;
    facts.number = static_cast<unsigned>(m_list.size() + 1);
    return facts;
}

void SessionAir::FillRefusals(ReportFacts& report) const
{
    static constexpr std::pair<const char*, const char*> parts[] = {{"WlanOpenHandle", "the WLAN service"},
                                                                    {"WlanEnumInterfaces", "the adapters"},
                                                                    {kConnectionQuestion, "the connection"},
                                                                    {"WlanGetNetworkBssList", "the access points"},
                                                                    {"WlanGetProfileList", "the stored profiles"}};
    for (const auto& [question, part] : parts)
    {
        const auto refusal = m_refusals.find(question);
        if (refusal == m_refusals.end())
            continue;
        const std::string operation = refusal->first.substr(0, refusal->first.find(' '));
        report.missing.push_back({part, ServiceFailure(operation.c_str(), refusal->second).report()});
    }
}

void SessionAir::Fill(ReportFacts& report, const std::string& wanted) const
{
    for (const WLAN_INTERFACE_INFO& info : m_list)
        report.adapters.push_back(DescribeAdapter(info, static_cast<unsigned>(report.adapters.size() + 1)));
    report.recording->hasAdapters = !m_list.empty();
    FillRefusals(report);
    const std::string guid = Chosen(wanted);
    if (m_list.empty())
        report.recording->notRecorded.push_back("The adapters: the session did not list them.");
    const auto known = m_adapters.find(guid);
    (known == m_adapters.end() ? RecordedAdapter() : known->second).Fill(report, FactsOf(guid));
    for (AdapterFacts& listed : report.adapters)
        if (report.status && listed.guid == guid)
            listed = report.status->adapter;
    ArrangePicture(report);
}

std::string NameOfFile(const std::string& path)
{
    return path.substr(path.find_last_of("/\\") + 1);
}

/// Throws RecordingError for what cannot be read.
ReportFacts ReadSessionAir(std::istream& file, const std::string& path, const std::string& adapter)
{
    SessionAir air;
    const SessionTraits traits = ListenToSession(file, path, air);
    ReportFacts report;
    report.recording = RecordingFacts{NameOfFile(path), traits.simulated, traits.anonymised, {}, {}};
    air.Fill(report, adapter);
    if (!traits.complete)
    {
        const std::string line = std::to_string(traits.lastLine);
        report.recording->incomplete =
            path + ":" + line + ": the recording ends after this line, before the end of the session";
        report.recording->notRecorded.push_back("The end of the session: the recording ends after line " + line + ".");
    }
    return report;
}

} // namespace

ReportFacts ReadRecordedAir(const std::string& path, const std::string& adapter)
{
    std::ifstream file(PathOf(path), std::ios::binary);
    if (!file)
        throw BadInput(path + ": cannot be read", "check the path and its permissions");
    try
    {
        return ReadSessionAir(file, path, adapter);
    }
    catch (const recording::RecordingError& error)
    {
        throw BadInput(error.what(), "make the recording again, with: calvix --record FILE COMMAND");
    }
}

} // namespace calvix::host
