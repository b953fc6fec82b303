#pragma once

#include "simulation/adapter.h"
#include "simulation/blocks.h"
#include "simulation/event_queue.h"
#include "simulation/handles.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <cstdint>
#include <memory>
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
    std::vector<AccessPoint> air; ///< what could be heard now; adapters know what they heard last

    DWORD lastError = 0;
    std::vector<std::string> defects;
    std::vector<std::string> debuggerLines;

    EventQueue time;
    Handles handles{defects};
    Blocks wlanBlocks{defects}; ///< the WLAN service's allocator

    std::vector<std::unique_ptr<Adapter>> adapters;

    /// The adapter of this interface GUID, or null.
    Adapter* FindAdapter(const GUID& guid) const;

    /// Whether any adapter is connected to a network.
    bool IsConnected() const;
};

} // namespace calvix::simulation
