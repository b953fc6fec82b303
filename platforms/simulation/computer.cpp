#include "simulation/computer.h"

#include "simulation/timetable.h"
#include "simulation/wlan_service.h"

namespace calvix::simulation
{

/// The machine and everything that works on it.
struct Facilities
{
    explicit Facilities(const Scenario& scenario) : machine(scenario) {}

    /// The operations of the platform that they do. To be called once.
    platform::Platform Operations()
    {
        return {
            wlan.Operations(),
            MakeServiceControl(machine, parts),
            MakePower(machine, parts),
            MakeSecurity(machine, parts),
            MakeProcesses(machine, parts),
            MakeInternet(machine, parts),
            MakeText(machine, parts),
            MakeClock(machine, parts),
            MakeDebuggerOutput(machine, parts),
            {.GetLastError = CallsTo<&LastErrorCell::GetLastError>(machine.lastError)},
        };
    }

    Machine machine;
    SimulatedWlanService wlan{machine};
    Parts parts;
};

Computer::Computer(const Scenario& scenario) : Computer(std::make_unique<Facilities>(scenario)) {}

Computer::Computer(std::unique_ptr<Facilities> parts) : Platform(parts->Operations()), m_parts(std::move(parts)) {}

// The service's thread ends first: a callback that is running may be using anything.
Computer::~Computer()
{
    m_parts->machine.notifier.Stop();
}

void Computer::Advance(std::chrono::milliseconds duration)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.time.Advance(duration);
}

std::chrono::milliseconds Computer::Now() const
{
    const std::lock_guard lock(m_parts->machine.mutex);
    return m_parts->machine.time.Now();
}

void Computer::SetServiceRunning(bool running)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.present.serviceRunning = running;
}

void Computer::SetAdministrator(bool administrator)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.present.administrator = administrator;
}

void Computer::SetPowerSetting(WLAN_POWER_SETTING setting)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.SetPowerSetting(setting);
}

std::wstring Computer::SecuritySettings(WLAN_SECURABLE_OBJECT object) const
{
    const std::lock_guard lock(m_parts->machine.mutex);
    const auto& settings = m_parts->machine.securitySettings;
    const auto known = settings.find(object);
    return known != settings.end() ? known->second : std::wstring();
}

void Computer::WaitForNotifications()
{
    m_parts->machine.notifier.WaitUntilIdle();
}

void Computer::SetLocationConsent(bool given)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.present.locationConsent = given;
}

void Computer::SetRadio(std::size_t adapter, std::size_t phy, RadioSwitch software, RadioSwitch hardware)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.adapters.at(adapter)->SetRadio(phy, software, hardware);
}

void Computer::SetInterfaceState(std::size_t adapter, WLAN_INTERFACE_STATE state)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.adapters.at(adapter)->SetState(state);
}

void Computer::SetInternet(InternetAccess access)
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.present.internet = access;
}

std::optional<POWER_POLICY> Computer::LegacyPowerPolicy(UINT schemeId) const
{
    const std::lock_guard lock(m_parts->machine.mutex);
    const PowerStore::LegacyScheme* const scheme = m_parts->machine.powerStore.FindLegacy(schemeId);
    return scheme != nullptr ? std::optional(scheme->policy) : std::nullopt;
}

unsigned Computer::SuspendCount() const
{
    const std::lock_guard lock(m_parts->machine.mutex);
    return m_parts->machine.suspendCount;
}

bool Computer::IsPrivilegeEnabled(const std::string& name) const
{
    const std::lock_guard lock(m_parts->machine.mutex);
    return m_parts->machine.IsPrivilegeEnabled(name);
}

std::vector<RunningProcess> Computer::RunningProcesses() const
{
    const std::lock_guard lock(m_parts->machine.mutex);
    return m_parts->machine.processes.Running();
}

std::vector<AccessPoint>& Computer::air()
{
    return m_parts->machine.present.accessPoints;
}

const std::vector<std::string>& Computer::DebuggerLines() const
{
    return m_parts->machine.debuggerLines;
}

void Computer::ClearDebuggerLines()
{
    const std::lock_guard lock(m_parts->machine.mutex);
    m_parts->machine.debuggerLines.clear();
}

SimulatedWlanService& Computer::service()
{
    return m_parts->wlan;
}

Accounts Computer::Audit()
{
    Machine& machine = m_parts->machine;
    const std::lock_guard lock(machine.mutex);
    machine.wlanBlocks.CheckFreed();
    machine.localBlocks.CheckFreed();
    Accounts accounts;
    accounts.liveBlocks = machine.wlanBlocks.CountLive() + machine.localBlocks.CountLive();
    accounts.openClients = machine.handles.CountOpen(HandleKind::wlanClient);
    accounts.openHandles = machine.handles.CountOpen() - accounts.openClients;
    accounts.defects = machine.defects;
    return accounts;
}

Scenario Computer::Snapshot() const
{
    const Machine& machine = m_parts->machine;
    const std::lock_guard lock(m_parts->machine.mutex);
    Scenario scenario = machine.present;
    scenario.power.upMilliseconds += static_cast<std::uint64_t>(machine.time.Now().count());
    scenario.power.legacySchemes = machine.powerStore.DescribeLegacy();
    scenario.processes = machine.processes.Running();
    for (AccessPoint& accessPoint : scenario.accessPoints)
        accessPoint.timetable = RestOfTimetable(accessPoint, machine.time.Now());
    for (const auto& adapter : machine.adapters)
        scenario.adapters.push_back(adapter->Describe());
    return scenario;
}

} // namespace calvix::simulation
