#pragma once

#include "simulation/event_queue.h"
#include "simulation/heard_bss.h"
#include "simulation/profile_store.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// What a connection request asks for.
struct ConnectionRequest
{
    std::shared_ptr<const Profile> profile;
    std::vector<MacAddress> desiredBssids; ///< empty: any
    bool hiddenNetwork = false;            ///< look for a hidden network, whatever the profile says
};

/// A connection that stands.
struct Link
{
    std::shared_ptr<const Profile> profile;
    AccessPoint accessPoint; ///< as it was when the connection was made
    bool missedByLastScan = false;
};

/// What surrounds an adapter.
struct Surroundings
{
    EventQueue& time;
    const std::vector<AccessPoint>& air;
    const bool& serviceRunning;
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

    /// The adapter as it stands now.
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
    bool IsScanning() const { return m_scanning; }
    /// What the last finished scan heard; nothing while the radio is off.
    const std::vector<HeardBss>& Heard() const { return m_heard; }

    ProfileStore& Profiles() { return m_profiles; }
    const ProfileStore& Profiles() const { return m_profiles; }
    /// Deletes a profile, and ends a connection that was made or is being made with it.
    DWORD DeleteProfile(const std::wstring& name);

    WLAN_INTERFACE_STATE State() const { return m_state; }
    void SetState(WLAN_INTERFACE_STATE state) { m_state = state; }
    /// The connection that stands, or null.
    const Link* CurrentLink() const { return m_link ? &*m_link : nullptr; }
    /// Signal strength of the connection: as heard now, or when it was heard last.
    std::int32_t LinkRssi() const;

    /// Takes down what stands and starts to connect; the outcome comes with time.
    void Connect(ConnectionRequest request);
    /// Takes down what stands and gives up what is being tried.
    void Disconnect();

    bool autoConfiguration = true; ///< whether the service looks after this adapter, that is, scans by itself
    bool backgroundScan = true;    ///< whether it scans by itself while connected, too

private:
    void LoadProfiles();
    void Restore(const Connection& connection);
    void ScanByItself();
    void FinishScan();
    void StopScan();
    void NoticeLostLink();
    void Authenticate();
    void FinishConnecting();
    void HearLink();
    const AccessPoint* FindAccessPoint(const ConnectionRequest& request) const;

    AdapterDescription m_description;
    GUID m_guid;
    std::wstring m_descriptionText;
    Surroundings m_around;

    ProfileStore m_profiles;
    std::vector<HeardBss> m_heard;
    bool m_scanning = false;
    EventQueue::EventId m_scanEvent = 0;
    std::optional<Bytes> m_askedSsid;

    WLAN_INTERFACE_STATE m_state = wlan_interface_state_disconnected;
    std::optional<Link> m_link;
    std::optional<ConnectionRequest> m_request;
    EventQueue::EventId m_connectEvent = 0;
};

} // namespace calvix::simulation
