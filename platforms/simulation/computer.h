#pragma once

#include "platform/platform.h"
#include "simulation/scenario.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace calvix::simulation
{

struct Facilities;
class SimulatedWlanService;

/// What the computer noticed that a correct program does not do, or keeps while it should not.
struct Accounts
{
    std::size_t liveBlocks = 0;       ///< blocks of the WLAN service and of power management not yet released
    std::size_t openClients = 0;      ///< WLAN client handles not yet closed
    std::size_t openHandles = 0;      ///< other handles (service manager, tokens, processes) not yet closed
    std::vector<std::string> defects; ///< double frees, frees of foreign pointers, writes into freed blocks, use of
                                      ///< closed handles: one line each
};

/// A small Windows machine in one process. Any thread may use it, but for what gives a reference (air, DebuggerLines):
/// do that only while nothing else uses the computer. It must not be destroyed inside a notification callback.
class Computer final : public platform::Platform
{
public:
    explicit Computer(const Scenario& scenario);
    ~Computer();
    Computer(const Computer&) = delete;
    Computer& operator=(const Computer&) = delete;

    /// Lets simulated time pass: scans finish, connections are made. Nothing else moves it but Sleep, which also waits
    /// until what happened meanwhile is delivered to the clients.
    void Advance(std::chrono::milliseconds duration);
    /// Simulated time since the computer started.
    std::chrono::milliseconds Now() const;

    /// Waits until the clients have received all notifications. Inside a callback it returns at once.
    void WaitForNotifications();

    void SetServiceRunning(bool running);
    void SetAdministrator(bool administrator);
    void SetPowerSetting(WLAN_POWER_SETTING setting);
    /// What WlanSetSecuritySettings set last, empty if nothing was set since the computer started.
    std::wstring SecuritySettings(WLAN_SECURABLE_OBJECT object) const;
    void SetLocationConsent(bool given);
    void SetRadio(std::size_t adapter, std::size_t phy, RadioSwitch software, RadioSwitch hardware);
    /// Puts an adapter's connection in any state, as drivers report them in passing.
    void SetInterfaceState(std::size_t adapter, WLAN_INTERFACE_STATE state);
    /// The airspace. Changes are heard with the next scan, asked for or of the service itself (about every 60 s),
    /// but the connection's own access point is heard all the time.
    std::vector<AccessPoint>& air();

    void SetInternet(InternetAccess access);

    /// The whole present policy of a legacy power scheme; nothing if there is no such scheme. What else there
    /// is to know about the power schemes is in Snapshot().power.
    std::optional<POWER_POLICY> LegacyPowerPolicy(UINT schemeId) const;
    /// How often programs have put the computer to sleep.
    unsigned SuspendCount() const;
    bool IsPrivilegeEnabled(const std::string& name) const;
    /// The processes that run, beside the program that uses the computer.
    std::vector<RunningProcess> RunningProcesses() const;

    /// What went to the debugger so far, in order, one element a call.
    const std::vector<std::string>& DebuggerLines() const;
    void ClearDebuggerLines();

    /// The WLAN service with all of its functions, those beside the platform's operations included.
    SimulatedWlanService& service();

    /// Checks every freed block for writes and reports what is still held.
    Accounts Audit();

    /// The present state of the computer, as a scenario.
    Scenario Snapshot() const;

private:
    explicit Computer(std::unique_ptr<Facilities> parts);

    std::unique_ptr<Facilities> m_parts;
};

} // namespace calvix::simulation
