#include "simulation/adapter.h"

#include "platform/records/error_numbers.h"
#include "simulation/guid_text.h"
#include "simulation/utf8.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

// The service scans about once a minute without being asked.
constexpr std::chrono::seconds ownScanInterval{60};

constexpr std::size_t longestDescription = WLAN_MAX_NAME_LENGTH - 1;

GUID ReadGuid(const std::string& text)
{
    const auto guid = GuidFromText(text);
    if (!guid)
    {
        throw ScenarioError("adapter " + text + ": this is not a GUID");
    }
    return *guid;
}

bool IsOn(const PhyDescription& phy)
{
    return phy.software == RadioSwitch::on && phy.hardware == RadioSwitch::on;
}

} // namespace

Adapter::Adapter(const AdapterDescription& description, const Surroundings& surroundings)
    : m_description(description), m_guid(ReadGuid(description.guid)),
      m_descriptionText(WideFromUtf8(description.description)), m_around(surroundings)
{
    if (m_descriptionText.size() > longestDescription || m_description.phys.size() > WLAN_MAX_PHY_INDEX)
    {
        throw ScenarioError("adapter " + description.guid +
                            ": the description is too long, or there are too many PHYs");
    }
    LoadProfiles();
    if (IsRadioOn())
    {
        m_heard = Listen(m_around.air, std::nullopt, m_around.time.Now());
    }
    if (m_description.connection)
    {
        Restore(*m_description.connection);
    }
    m_around.time.Schedule(ownScanInterval, [this] { ScanByItself(); });
}

void Adapter::LoadProfiles()
{
    for (const StoredProfile& stored : m_description.profiles)
    {
        ProfileRefusal refusal{};
        auto document = ParseProfile(stored.xml, refusal);
        if (!document)
        {
            throw ScenarioError("adapter " + m_description.guid + ": a profile cannot be used, reason code " +
                                std::to_string(refusal.reason) + ": " + stored.xml);
        }
        const std::wstring name = document->name;
        if (!m_profiles.Append({WideFromUtf8(stored.xml), std::move(*document)}))
        {
            throw ScenarioError("adapter " + m_description.guid + ": two profiles are called " + Utf8FromWide(name));
        }
    }
    m_description.profiles.clear();
}

void Adapter::Restore(const Connection& connection)
{
    ConnectionRequest request;
    request.profile = m_profiles.Find(WideFromUtf8(connection.profile));
    if (request.profile == nullptr)
    {
        throw ScenarioError("adapter " + m_description.guid + ": connected by a profile that it does not have, " +
                            connection.profile);
    }
    if (connection.bssid)
    {
        request.desiredBssids.push_back(*connection.bssid);
    }
    const AccessPoint* const accessPoint = FindAccessPoint(request);
    if (accessPoint != nullptr && IsRadioOn())
    {
        m_link = Link{request.profile, *accessPoint};
        m_state = wlan_interface_state_connected;
        HearLink();
    }
}

AdapterDescription Adapter::Describe() const
{
    AdapterDescription now = m_description;
    for (const auto& profile : m_profiles.InOrder())
    {
        now.profiles.push_back({Utf8FromWide(profile->xml)});
    }
    now.connection.reset();
    if (m_link)
    {
        now.connection = Connection{Utf8FromWide(m_link->profile->document.name), m_link->accessPoint.bssid};
    }
    return now;
}

bool Adapter::IsRadioOn() const
{
    return std::any_of(Phys().begin(), Phys().end(), IsOn);
}

void Adapter::SetRadio(std::size_t phy, RadioSwitch software, RadioSwitch hardware)
{
    const bool wasOn = IsRadioOn();
    PhyDescription& changed = m_description.phys.at(phy);
    changed.software = software;
    changed.hardware = hardware;
    if (wasOn && !IsRadioOn())
    {
        StopScan();
        m_heard.clear();
        Disconnect();
    }
    else if (!wasOn && IsRadioOn() && m_around.serviceRunning)
    {
        // Chosen: a radio that comes on knows nothing of the air until its first scan, which the service starts.
        StartScan();
    }
}

// Chosen: what the last scan heard stays until the next one is done, although the platform lets drivers drop it as
// soon as a scan begins; and asking again while a scan is under way waits for that scan instead of failing.
void Adapter::StartScan(const std::optional<Bytes>& ssid)
{
    if (ssid)
    {
        m_askedSsid = ssid;
    }
    if (m_scanning)
    {
        return;
    }
    m_scanning = true;
    m_scanEvent =
        m_around.time.Schedule(std::chrono::milliseconds(m_description.scanMilliseconds), [this] { FinishScan(); });
}

void Adapter::FinishScan()
{
    m_scanning = false;
    m_heard = Listen(m_around.air, m_askedSsid, m_around.time.Now());
    m_askedSsid.reset();
    NoticeLostLink();
    HearLink();
}

void Adapter::StopScan()
{
    m_around.time.Cancel(m_scanEvent);
    m_scanning = false;
    m_askedSsid.reset();
}

void Adapter::ScanByItself()
{
    const bool isWanted = autoConfiguration && (backgroundScan || !m_link);
    if (isWanted && m_around.serviceRunning && IsRadioOn())
    {
        StartScan();
    }
    m_around.time.Schedule(ownScanInterval, [this] { ScanByItself(); });
}

DWORD Adapter::DeleteProfile(const std::wstring& name)
{
    const bool isInUse =
        (m_link && m_link->profile->document.name == name) || (m_request && m_request->profile->document.name == name);
    const DWORD error = m_profiles.Delete(name);
    if (error == ERROR_SUCCESS && isInUse)
    {
        Disconnect();
    }
    return error;
}

} // namespace calvix::simulation
