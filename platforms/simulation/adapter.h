#pragma once

#include "simulation/event_queue.h"
#include "simulation/heard_bss.h"
#include "simulation/notifier.h"
#include "simulation/profile_store.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace calvix::simulation
{

/// What a connection request asks for.
struct ConnectionRequest
{
    std::shared_ptr<const Profile> profile;
    std::vector<MacAddress> desiredBssids; ///< empty: any
    bool hiddenNetwork = false;            ///< look for a hidden network, even if the profile does not say so
    WLAN_CONNECTION_MODE mode = wlan_connection_mode_profile;

    /// Whether the profile came with the request, or was made for it, and is not a stored one.
    bool HasTemporaryProfile() const
    {
        return mode != wlan_connection_mode_profile && mode != wlan_connection_mode_auto;
    }
};

/// A connection that is up.
struct Link
{
    ConnectionRequest request;
    AccessPoint accessPoint; ///< as it was heard last
    bool missedByLastScan = false;
    ULONG reportedQuality = 0;     ///< the signal quality that clients know of
    std::uint32_t receiveKbps = 0; ///< as the scenario says; 0: what the PHY type commonly reaches
    std::uint32_t transmitKbps = 0;

    const ProfileDocument& Profile() const { return request.profile->document; }
};

/// A connection that is being made. The service tries one access point after the other.
struct Attempt
{
    ConnectionRequest request;
    std::optional<MacAddress> target; ///< none: the network was not on the air when the attempt began
    std::vector<MacAddress> failed;   ///< access points that failed
};

/// What surrounds an adapter.
struct Surroundings
{
    EventQueue& time;
    const std::vector<AccessPoint>& air;
    const bool& serviceRunning;
    Notifier& notifier;
};

/// One wireless adapter and what the service keeps for it: radio switches, what the last scan heard, profiles,
/// connection.
class Adapter
{
public:
    /// Takes the adapter as described; it hears the air and makes the described connection at once, if its access
    /// point can be heard. What surrounds it outlives it. Throws ScenarioError when the description contradicts
    /// itself.
    Adapter(const AdapterDescription& description, const Surroundings& surroundings);
    Adapter(const Adapter&) = delete;
    Adapter& operator=(const Adapter&) = delete;

    /// The present state of the adapter.
    AdapterDescription Describe() const;

    const GUID& Guid() const { return m_guid; }
    const std::wstring& Description() const { return m_descriptionText; }
    const Statistics& FrameCounts() const { return m_description.statistics; }

    const std::vector<PhyDescription>& Phys() const { return m_description.phys; }
    /// Whether any PHY is on, that is both its switches.
    bool IsRadioOn() const;
    void SetRadio(std::size_t phy, RadioSwitch software, RadioSwitch hardware);

    /// Starts a scan, or joins the one that is under way. `ssid`: a hidden network to ask for by name.
    void StartScan(const std::optional<Bytes>& ssid = std::nullopt);
    /// What the last finished scan heard, and the connection's access point as it is heard now; nothing while the
    /// radio is off.
    const std::vector<HeardBss>& Heard();

    const ProfileStore& Profiles() const { return m_profiles; }
    /// The profile store's operations; clients are notified of them.
    DWORD StoreProfile(Profile profile, bool overwrite);
    DWORD MoveProfile(const std::wstring& name, DWORD position);
    DWORD ArrangeProfiles(const std::vector<std::wstring>& names);
    /// Chosen: a connection that was made with it stays up, under the name that it was made with.
    DWORD RenameProfile(const std::wstring& name, const std::wstring& newName);
    void SetCustomData(const std::wstring& name, Bytes data) { m_profiles.SetCustomData(name, std::move(data)); }
    /// Stores the temporary profile that the connection was made with; without a name, under its own.
    /// ERROR_INVALID_STATE without such a connection.
    DWORD SaveTemporaryProfile(const wchar_t* name, DWORD flags, bool overwrite);
    /// Also ends a connection that was made or is being made with it.
    DWORD DeleteProfile(const std::wstring& name);

    WLAN_INTERFACE_STATE State() const { return m_state; }
    void SetState(WLAN_INTERFACE_STATE state) { m_state = state; }
    /// The connection that is up, or null.
    const Link* CurrentLink() const { return m_link ? &*m_link : nullptr; }
    /// Signal strength of the connection: as heard now, or when it was heard last.
    std::int32_t LinkRssi() const { return LinkSignal().value_or(m_link->accessPoint.rssi); }

    /// Ends the connection and starts a new one; the result comes with time.
    void Connect(ConnectionRequest request);
    /// Ends the connection and cancels the attempt. The service does not connect by itself from then on.
    void Disconnect();

    /// Whether the service looks after this adapter, that is, scans and connects by itself.
    bool HasAutoConfiguration() const { return m_description.autoConfiguration; }
    void SetAutoConfiguration(bool enabled);
    /// Whether it scans by itself while connected, too.
    bool HasBackgroundScan() const { return m_description.backgroundScan; }
    void SetBackgroundScan(bool enabled);

    /// Settings that are stored and returned, and change nothing else: nothing is streamed, and a profile says which type of
    /// network it is for.
    bool HasMediaStreaming() const { return m_mediaStreaming; }
    void SetMediaStreaming(bool enabled) { m_mediaStreaming = enabled; }
    DOT11_BSS_TYPE BssType() const { return m_bssType; }
    void SetBssType(DOT11_BSS_TYPE type);

    /// What the driver answers to a vendor request, or null where it does not know it.
    const IhvAnswer* AnswerIhv(const Bytes& request) const;

private:
    void LoadProfiles();
    void Restore(const Connection& connection);

    void ScanByItself();
    void FinishScan();
    void StopScan();
    void NoticeNetworks();

    void Begin(ConnectionRequest request);
    void StartAttempt();
    void Authenticate();
    void FinishAttempt();
    DWORD Outcome(const AccessPoint* target) const;
    void Fail(DWORD reason);
    void GiveUp(DWORD reason);
    void Establish(const AccessPoint& accessPoint);
    void TakeDown(DWORD reason);
    void ConnectByItself();

    void StartLinkWatch();
    void WatchLink();
    void MeasureLink(std::int32_t rssi);
    void LoseLink();
    bool Roam();
    std::optional<std::int32_t> LinkSignal() const;
    void NoticeLostLink();
    void HearLink();

    const AccessPoint* FindAccessPoint(const ConnectionRequest& request, const std::vector<MacAddress>& except) const;
    const AccessPoint* FindTarget() const;

    void Notify(DWORD source, DWORD code, Bytes data = {}) const;
    /// Notifies of a change unless it failed, and returns its error.
    DWORD NotifyChange(DWORD error, DWORD code) const;
    void NotifyConnection(DWORD code, const ConnectionRequest& request, DWORD reason) const;
    void NotifyMedia(DWORD code, const ConnectionRequest& request, const MacAddress& bssid, DWORD reason = 0) const;

    AdapterDescription m_description;
    GUID m_guid;
    std::wstring m_descriptionText;
    Surroundings m_around;

    ProfileStore m_profiles;
    std::vector<HeardBss> m_heard;
    std::vector<std::pair<MacAddress, Bytes>> m_listed; ///< the access points and SSIDs that clients know to be listed
    bool m_scanning = false;
    EventQueue::EventId m_scanEvent = 0;
    bool m_mediaStreaming = false;
    DOT11_BSS_TYPE m_bssType = dot11_BSS_type_infrastructure;
    std::optional<Bytes> m_askedSsid;

    WLAN_INTERFACE_STATE m_state = wlan_interface_state_disconnected;
    std::optional<Link> m_link;
    std::optional<Attempt> m_attempt;
    EventQueue::EventId m_connectEvent = 0;
    bool m_wantsConnection = false;       ///< whether the service is to make up for a connection that was lost
    std::set<std::wstring> m_triedInVain; ///< profiles that it tried since the last scan
};

} // namespace calvix::simulation
