#include "operations/operations.h"
#include "testing/computer_internals.h"
#include "wrappers/call_log.h"
#include "wrappers/fault_injection.h"

#include <stdexcept>

namespace calvix::testing
{

namespace
{

Call ToCall(const wrappers::Call& call)
{
    Call copy{std::string(call.operation), {}, call.Line()};
    for (const wrappers::Argument& argument : call.arguments)
        copy.arguments.emplace(argument.name, argument.text);
    return copy;
}

} // namespace

struct Computer::Parts
{
    explicit Parts(const simulation::Scenario& scenario) : computer(scenario, chain) {}

    wrappers::CallLog log;
    wrappers::FaultInjection faults;
    wrappers::InterceptorChain chain{{&log, &faults}};
    test::TestComputer computer;
};

Computer::Computer() : Computer(std::make_unique<Parts>(simulation::BuiltInScenario())) {}

Computer::Computer(const std::string& scenario)
    : Computer(std::make_unique<Parts>(simulation::ParseScenario(scenario, "scenario")))
{
}

Computer::Computer(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}

Computer Computer::FromFile(const std::string& path)
{
    return Computer(std::make_unique<Parts>(simulation::LoadScenario(path)));
}

std::unique_ptr<Computer> ComputerInternals::Make(const simulation::Scenario& scenario)
{
    return std::unique_ptr<Computer>(new Computer(std::make_unique<Computer::Parts>(scenario)));
}

test::TestComputer& ComputerInternals::Inside(Computer& computer)
{
    return computer.m_parts->computer;
}

Computer::~Computer()
{
    m_parts->faults.Clear();
}

CWirelessManage& Computer::Manager()
{
    if (ManagerInternals::Instance() == nullptr)
        m_parts->computer.ForgetClosedClient();
    return m_parts->computer.Manager();
}

void Computer::Advance(std::chrono::milliseconds duration)
{
    m_parts->computer.computer().Advance(duration);
    m_parts->computer.computer().WaitForNotifications();
}

std::chrono::milliseconds Computer::Now() const
{
    return m_parts->computer.computer().Now();
}

void Computer::SetServiceRunning(bool running)
{
    m_parts->computer.computer().SetServiceRunning(running);
}

void Computer::SetLocationConsent(bool given)
{
    m_parts->computer.computer().SetLocationConsent(given);
}

void Computer::SetRadio(std::size_t adapter, bool on)
{
    simulation::Computer& computer = m_parts->computer.computer();
    const auto phys = computer.Snapshot().adapters.at(adapter).phys;
    for (std::size_t i = 0; i < phys.size(); ++i)
        computer.SetRadio(adapter, i, on ? simulation::RadioSwitch::on : simulation::RadioSwitch::off,
                          phys[i].hardware);
}

void Computer::Fail(const std::string& operation, unsigned long error, unsigned fromCall, unsigned times)
{
    if (operations::FactsOf(operation) == nullptr)
        throw std::invalid_argument("there is no operation \"" + operation + "\"");
    m_parts->faults.Fail(operation, {static_cast<DWORD>(error), fromCall, times});
}

void Computer::FailWhen(std::function<std::optional<unsigned long>(const Call&)> decide)
{
    m_parts->faults.FailWhen([decide = std::move(decide)](const wrappers::Call& call)
                             { return std::optional<DWORD>(decide(ToCall(call))); });
}

void Computer::StopFailing()
{
    m_parts->faults.Clear();
}

unsigned Computer::FailedCalls() const
{
    return m_parts->faults.Injected();
}

std::vector<Call> Computer::Calls() const
{
    std::vector<Call> calls;
    for (const wrappers::Call& call : m_parts->log.Calls())
        calls.push_back(ToCall(call));
    return calls;
}

std::size_t Computer::CallCount(std::string_view operation) const
{
    return m_parts->log.Count(operation);
}

void Computer::ForgetCalls()
{
    m_parts->log.Clear();
}

Held Computer::Held()
{
    simulation::Accounts accounts = m_parts->computer.Audit();
    return {accounts.liveBlocks, accounts.openClients, accounts.openHandles, std::move(accounts.defects)};
}

} // namespace calvix::testing
