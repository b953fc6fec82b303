#pragma once

#include "simulation/adapter.h"
#include "simulation/blocks.h"
#include "simulation/event_queue.h"
#include "simulation/handles.h"
#include "simulation/last_error_cell.h"
#include "simulation/notifier.h"
#include "simulation/power_store.h"
#include "simulation/process_table.h"
#include "simulation/scenario.h"

#include <calvix/platform_records.h>

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
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

    Scenario present; ///< kept up to date; legacy power schemes, processes and adapters are in the members below
    BOOL showDeniedNetworks = FALSE;
    BOOL allowExplicitCredentials = TRUE;
    DWORD blockPeriod = 0;                                          ///< seconds
    std::map<WLAN_SECURABLE_OBJECT, std::wstring> securitySettings; ///< as SDDL, what was set since the start

    std::mutex mutex; ///< held by every operation that uses the other members
    LastErrorCell lastError;
    std::vector<std::string> defects;
    std::vector<std::string> debuggerLines;

    Notifier notifier;
    EventQueue time;
    Handles handles{defects};
    Blocks wlanBlocks{defects};  ///< the WLAN service's allocator
    Blocks localBlocks{defects}; ///< what power management hands out

    PowerStore powerStore;
    unsigned suspendCount = 0;
    bool wokenByItself;
    ProcessTable processes;
    std::vector<std::unique_ptr<Adapter>> adapters;

    /// The adapter of this interface GUID, or null.
    Adapter* FindAdapter(const GUID& guid) const;

    /// How long the computer has been up, also in sleep, in units of 100 ns.
    std::uint64_t InterruptTime() const;

    bool IsPrivilegeEnabled(std::string_view name) const;

    /// Narrow text in the computer's code page, and back.
    std::string NarrowFromUtf8(std::string_view text) const;
    std::string Utf8FromNarrow(std::string_view text) const;

    /// Changes the setting and notifies the clients.
    void SetPowerSetting(WLAN_POWER_SETTING setting);
};

} // namespace calvix::simulation
