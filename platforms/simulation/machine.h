#pragma once

#include "simulation/adapter.h"
#include "simulation/blocks.h"
#include "simulation/event_queue.h"
#include "simulation/handles.h"
#include "simulation/last_error_cell.h"
#include "simulation/notifier.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace calvix::simulation
{

/// What the facilities of one simulated computer share. Each facility refers to the one machine it works on; none
/// owns it.
struct Machine
{
    /// Throws ScenarioError when the scenario contradicts itself.
    explicit Machine(const Scenario& scenario);
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    std::string description;
    std::uint32_t codePage;
    bool serviceRunning;
    bool locationConsent;
    bool administrator;
    DWORD powerSetting;
    std::map<WLAN_SECURABLE_OBJECT, std::wstring> securitySettings; ///< as SDDL, what was set since the start
    std::vector<AccessPoint> air; ///< what could be heard now; adapters know what they heard last

    std::mutex mutex; ///< held by every operation that uses what stands below or above
    LastErrorCell lastError;
    std::vector<std::string> defects;
    std::vector<std::string> debuggerLines;

    Notifier notifier;
    EventQueue time;
    Handles handles{defects};
    Blocks wlanBlocks{defects}; ///< the WLAN service's allocator

    std::vector<std::unique_ptr<Adapter>> adapters;

    /// The adapter of this interface GUID, or null.
    Adapter* FindAdapter(const GUID& guid) const;

    /// Changes the setting and tells the clients.
    void SetPowerSetting(WLAN_POWER_SETTING setting);
};

} // namespace calvix::simulation
