#include "simulation/computer.h"

#include "simulation/clock.h"
#include "simulation/debugger_output.h"
#include "simulation/internet.h"
#include "simulation/last_error.h"
#include "simulation/machine.h"
#include "simulation/power.h"
#include "simulation/processes.h"
#include "simulation/security.h"
#include "simulation/service_control.h"
#include "simulation/text.h"
#include "simulation/wlan_service.h"

namespace calvix::simulation
{

struct Computer::Parts
{
    explicit Parts(const Scenario& scenario) : machine(scenario) {}

    Machine machine;
    SimulatedWlanService wlan{machine};
    SimulatedServiceControl services{machine.lastError, machine.handles, machine.serviceRunning};
    SimulatedPower power{machine.lastError};
    SimulatedSecurity security{machine.lastError};
    SimulatedProcesses processes{machine.lastError};
    SimulatedInternet internet{machine.lastError};
    SimulatedText text{machine.lastError, machine.codePage};
    SimulatedClock clock{machine.lastError, machine.time};
    SimulatedDebuggerOutput debugger{machine.debuggerLines};
    SimulatedLastError errors{machine.lastError};
};

Computer::Computer(const Scenario& scenario) : m_parts(std::make_unique<Parts>(scenario)) {}

Computer::~Computer() = default;

platform::WlanService& Computer::wlan()
{
    return m_parts->wlan;
}

platform::ServiceControl& Computer::services()
{
    return m_parts->services;
}

platform::Power& Computer::power()
{
    return m_parts->power;
}

platform::Security& Computer::security()
{
    return m_parts->security;
}

platform::Processes& Computer::processes()
{
    return m_parts->processes;
}

platform::Internet& Computer::internet()
{
    return m_parts->internet;
}

platform::Text& Computer::text()
{
    return m_parts->text;
}

platform::Clock& Computer::clock()
{
    return m_parts->clock;
}

platform::DebuggerOutput& Computer::debugger()
{
    return m_parts->debugger;
}

platform::LastError& Computer::errors()
{
    return m_parts->errors;
}

void Computer::Advance(std::chrono::milliseconds duration)
{
    m_parts->machine.time.Advance(duration);
}

std::chrono::milliseconds Computer::Now() const
{
    return m_parts->machine.time.Now();
}

void Computer::SetServiceRunning(bool running)
{
    m_parts->machine.serviceRunning = running;
}

void Computer::SetLocationConsent(bool given)
{
    m_parts->machine.locationConsent = given;
}

void Computer::SetRadio(std::size_t adapter, std::size_t phy, RadioSwitch software, RadioSwitch hardware)
{
    m_parts->machine.adapters.at(adapter)->SetRadio(phy, software, hardware);
}

void Computer::SetInterfaceState(std::size_t adapter, WLAN_INTERFACE_STATE state)
{
    m_parts->machine.adapters.at(adapter)->SetState(state);
}

std::vector<AccessPoint>& Computer::air()
{
    return m_parts->machine.air;
}

const std::vector<std::string>& Computer::DebuggerLines() const
{
    return m_parts->machine.debuggerLines;
}

void Computer::ClearDebuggerLines()
{
    m_parts->machine.debuggerLines.clear();
}

Accounts Computer::Audit()
{
    Machine& machine = m_parts->machine;
    machine.wlanBlocks.CheckFreed();
    Accounts accounts;
    accounts.liveBlocks = machine.wlanBlocks.CountLive();
    accounts.openClients = machine.handles.CountOpen(HandleKind::wlanClient);
    accounts.openHandles = machine.handles.CountOpen() - accounts.openClients;
    accounts.defects = machine.defects;
    return accounts;
}

Scenario Computer::Snapshot() const
{
    const Machine& machine = m_parts->machine;
    Scenario scenario;
    scenario.description = machine.description;
    scenario.codePage = machine.codePage;
    scenario.serviceRunning = machine.serviceRunning;
    scenario.locationConsent = machine.locationConsent;
    scenario.accessPoints = machine.air;
    for (const auto& adapter : machine.adapters)
    {
        scenario.adapters.push_back(adapter->Describe());
    }
    return scenario;
}

} // namespace calvix::simulation
