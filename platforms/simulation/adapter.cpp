#include "simulation/adapter.h"

#include "forms/guid_text.h"
#include "forms/utf8.h"
#include "platform/records/error_numbers.h"
#include "simulation/service_records.h"
#include <calvix/platform_records.h>

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

namespace
{

// The service scans about once a minute without being asked.
constexpr std::chrono::seconds ownScanInterval{60};

constexpr std::size_t longestDescription = WLAN_MAX_NAME_LENGTH - 1;

GUID ReadGuid(const std::string& text)
{
    const auto guid = forms::GuidFromText(text);
    if (!guid)
        throw ScenarioError("adapter " + text + ": this is not a GUID");
    return *guid;
}

std::vector<std::pair<MacAddress, Bytes>> Listed(const std::vector<HeardBss>& heard)
{
    std::vector<std::pair<MacAddress, Bytes>> listed;
    for (const HeardBss& bss : heard)
        listed.emplace_back(bss.accessPoint.bssid, bss.Ssid());
    return listed;
}

bool IsOn(const PhyDescription& phy)
{
    return phy.software == RadioSwitch::on && phy.hardware == RadioSwitch::on;
}

} // namespace

Adapter::Adapter(const AdapterDescription& description, const Surroundings& surroundings)
    : m_description(description), m_guid(ReadGuid(description.guid)),
      m_descriptionText(forms::WideFromUtf8(description.description)), m_around(surroundings)
{
    if (m_descriptionText.size() > longestDescription || m_description.phys.size() > WLAN_MAX_PHY_INDEX)
    {
        throw ScenarioError("adapter " + description.guid +
                            ": the description is too long, or there are too many PHYs");
    }
    LoadProfiles();
    if (IsRadioOn())
        m_heard = Listen(m_around.air, std::nullopt, m_around.time.Now());
    if (m_description.connection)
        Restore(*m_description.connection);
    m_listed = Listed(m_heard);
    m_around.time.Schedule(ownScanInterval, [this] { ScanByItself(); });
    StartLinkWatch();
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
        if (!m_profiles.Append({forms::WideFromUtf8(stored.xml), std::move(*document)}))
        {
            throw ScenarioError("adapter " + m_description.guid + ": two profiles are called " +
                                forms::Utf8FromWide(name));
        }
    }
    m_description.profiles.clear();
}

void Adapter::Restore(const Connection& connection)
{
    ConnectionRequest request;
    request.profile = m_profiles.Find(forms::WideFromUtf8(connection.profile));
    if (request.profile == nullptr)
    {
        throw ScenarioError("adapter " + m_description.guid + ": connected by a profile that it does not have, " +
                            connection.profile);
    }
    if (connection.bssid)
        request.desiredBssids.push_back(*connection.bssid);
    const AccessPoint* const accessPoint = FindAccessPoint(request, {});
    if (accessPoint != nullptr && IsRadioOn())
    {
        // A connection is bound to an access point only by those who asked for that one.
        request.desiredBssids.clear();
        m_attempt = Attempt{std::move(request), std::nullopt, {}};
        Establish(*accessPoint);
        m_link->receiveKbps = connection.receiveKbps;
        m_link->transmitKbps = connection.transmitKbps;
    }
}

AdapterDescription Adapter::Describe() const
{
    AdapterDescription now = m_description;
    for (const auto& profile : m_profiles.InOrder())
        now.profiles.push_back({forms::Utf8FromWide(profile->xml)});
    now.connection.reset();
    if (m_link && !m_link->request.HasTemporaryProfile())
        now.connection = Connection{forms::Utf8FromWide(m_link->Profile().name), m_link->accessPoint.bssid,
                                    m_link->receiveKbps, m_link->transmitKbps};
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
    const bool isChanged = changed.software != software || changed.hardware != hardware;
    changed.software = software;
    changed.hardware = hardware;
    if (isChanged)
    {
        Notify(WLAN_NOTIFICATION_SOURCE_MSM, wlan_notification_msm_radio_state_change,
               RecordBytes(RadioRecord(phy, changed)));
    }
    if (wasOn && !IsRadioOn())
    {
        StopScan();
        m_heard.clear();
        TakeDown(WLAN_REASON_CODE_DRIVER_DISCONNECTED);
        NoticeNetworks();
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
        m_askedSsid = ssid;
    if (m_scanning)
        return;
    m_scanning = true;
    m_scanEvent =
        m_around.time.Schedule(std::chrono::milliseconds(m_description.scanMilliseconds), [this] { FinishScan(); });
}

void Adapter::FinishScan()
{
    m_scanning = false;
    m_heard = Listen(m_around.air, m_askedSsid, m_around.time.Now());
    m_askedSsid.reset();
    Notify(WLAN_NOTIFICATION_SOURCE_ACM, wlan_notification_acm_scan_complete);
    NoticeLostLink();
    HearLink();
    NoticeNetworks();
    m_triedInVain.clear();
    ConnectByItself();
}

void Adapter::StopScan()
{
    m_around.time.Cancel(m_scanEvent);
    if (m_scanning)
    {
        Notify(WLAN_NOTIFICATION_SOURCE_ACM, wlan_notification_acm_scan_fail,
               RecordBytes(DWORD{WLAN_REASON_CODE_SCAN_CALL_FAIL}));
    }
    m_scanning = false;
    m_askedSsid.reset();
}

// Clients are told when an access point has come, gone or told its name, and beside that when the first network comes
// into reach and when the last one has gone.
void Adapter::NoticeNetworks()
{
    const auto before = std::exchange(m_listed, Listed(m_heard));
    if (m_listed != before)
        Notify(WLAN_NOTIFICATION_SOURCE_ACM, wlan_notification_acm_scan_list_refresh);
    if (m_listed.empty() != before.empty())
    {
        Notify(WLAN_NOTIFICATION_SOURCE_ACM, m_listed.empty() ? wlan_notification_acm_network_not_available
                                                              : wlan_notification_acm_network_available);
    }
}

void Adapter::ScanByItself()
{
    const bool isWanted = HasAutoConfiguration() && (HasBackgroundScan() || !m_link);
    if (isWanted && m_around.serviceRunning && IsRadioOn())
        StartScan();
    m_around.time.Schedule(ownScanInterval, [this] { ScanByItself(); });
}

void Adapter::SetAutoConfiguration(bool enabled)
{
    if (std::exchange(m_description.autoConfiguration, enabled) != enabled)
    {
        Notify(WLAN_NOTIFICATION_SOURCE_ACM,
               enabled ? wlan_notification_acm_autoconf_enabled : wlan_notification_acm_autoconf_disabled);
    }
}

void Adapter::SetBackgroundScan(bool enabled)
{
    if (std::exchange(m_description.backgroundScan, enabled) != enabled)
    {
        Notify(WLAN_NOTIFICATION_SOURCE_ACM, enabled ? wlan_notification_acm_background_scan_enabled
                                                     : wlan_notification_acm_background_scan_disabled);
    }
}

void Adapter::SetBssType(DOT11_BSS_TYPE type)
{
    if (std::exchange(m_bssType, type) != type)
        Notify(WLAN_NOTIFICATION_SOURCE_ACM, wlan_notification_acm_bss_type_change, RecordBytes(type));
}

const IhvAnswer* Adapter::AnswerIhv(const Bytes& request) const
{
    const auto known = m_description.ihv.find(request);
    return known != m_description.ihv.end() ? &known->second : nullptr;
}

DWORD Adapter::NotifyChange(DWORD error, DWORD code) const
{
    if (error == ERROR_SUCCESS)
        Notify(WLAN_NOTIFICATION_SOURCE_ACM, code);
    return error;
}

DWORD Adapter::StoreProfile(Profile profile, bool overwrite)
{
    return NotifyChange(m_profiles.Store(std::move(profile), overwrite), wlan_notification_acm_profile_change);
}

DWORD Adapter::MoveProfile(const std::wstring& name, DWORD position)
{
    return NotifyChange(m_profiles.Move(name, position), wlan_notification_acm_profile_change);
}

DWORD Adapter::ArrangeProfiles(const std::vector<std::wstring>& names)
{
    return NotifyChange(m_profiles.Arrange(names), wlan_notification_acm_profile_change);
}

DWORD Adapter::RenameProfile(const std::wstring& name, const std::wstring& newName)
{
    return NotifyChange(m_profiles.Rename(name, newName), wlan_notification_acm_profile_name_change);
}

// Chosen: from then on the connection is one of the stored profile.
DWORD Adapter::SaveTemporaryProfile(const wchar_t* name, DWORD flags, bool overwrite)
{
    if (!m_link || !m_link->request.HasTemporaryProfile())
        return ERROR_INVALID_STATE;
    ConnectionRequest& request = m_link->request;
    Profile saved = name != nullptr ? WithName(*request.profile, name) : *request.profile;
    saved.flags = flags;
    const std::wstring savedName = saved.document.name;
    const DWORD error = StoreProfile(std::move(saved), overwrite);
    if (error != ERROR_SUCCESS)
        return error;
    request.profile = m_profiles.Find(savedName);
    request.mode = wlan_connection_mode_profile;
    return ERROR_SUCCESS;
}

DWORD Adapter::DeleteProfile(const std::wstring& name)
{
    const bool isInUse =
        (m_link && m_link->Profile().name == name) || (m_attempt && m_attempt->request.profile->document.name == name);
    const DWORD error = NotifyChange(m_profiles.Delete(name), wlan_notification_acm_profile_change);
    if (error == ERROR_SUCCESS && isInUse)
        TakeDown(WLAN_REASON_CODE_PROFILE_CHANGED_OR_DELETED);
    return error;
}

// A stopped service sends no notifications.
void Adapter::Notify(DWORD source, DWORD code, Bytes data) const
{
    if (m_around.serviceRunning)
        m_around.notifier.Post({source, code, m_guid, std::move(data)});
}

} // namespace calvix::simulation
