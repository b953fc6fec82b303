#include "sweep/bench.h"

#include "operations/operations.h"
#include "support/allocation_counter.h"
#include "support/edited_answers.h"
#include "wrappers/call_log.h"

#include <array>
#include <map>
#include <span>
#include <string_view>

namespace calvix::test::sweep
{

namespace
{

using wrappers::Fault;

constexpr std::array<DWORD, 3> kErrors = {5, 1062, 1168};
/// Of the one operation that returns an NTSTATUS.
constexpr std::array<DWORD, 3> kStatuses = {0xC0000022, 0xC000000D, 0xC00000BB};

constexpr std::array<std::string_view, 3> kReleases = {"WlanCloseHandle", "CloseServiceHandle", "CloseHandle"};

constexpr std::array<std::string_view, 4> kLists = {"WlanEnumInterfaces", "WlanGetProfileList",
                                                    "WlanGetAvailableNetworkList", "WlanGetNetworkBssList"};
/// Besides the lists.
constexpr std::array<std::string_view, 2> kRecords = {"WlanQueryInterface", "WlanGetProfile"};

/// Methods with what is called before them, and never fails, so that they find something to do.
constexpr std::pair<const char*, const char*> kFirst[] = {
    {"UnRegisterNotification", "RegisterNotification"},
    {"RecoverConnetionAttributes", "SaveCurrentConnectionAttributes"},
    {"RecoverConnNotificationData", "SaveConnNotificationData"},
    {"ForceComputerSleep", "GetPrivileges"},
    {"ResetPowerScheme", "SetPowerScheme"}};

template <typename List>
void Empty(List** list) requires requires
{
    (*list)->dwNumberOfItems;
}
{
    (*list)->dwNumberOfItems = 0;
}

void Empty(auto) {}

/// Changes the answers of the calls that a failure is about: takes the entries out of lists, or adds an error.
class Altering : public ChangedPlatform
{
public:
    explicit Altering(const Failure& failure) : m_failure(failure)
    {
        operations::ForEachOperation([this]<auto operation, typename... Roles>(
            const operations::Description<operation, Roles...>& description) {
            if constexpr ((std::is_base_of_v<operations::BlockOut, Roles> || ...))
                if (description.name == m_failure.operation)
                    After<operation>([this](DWORD error, auto... arguments)
                                     { return this->Alter(error, arguments...); });
        });
    }

    unsigned Altered() const { return m_altered; }

private:
    DWORD Alter(DWORD error, auto... arguments)
    {
        if (!m_failure.Concerns(++m_seen))
            return error;
        ++m_altered;
        if (m_failure.way == Way::refusedBesideAnswer)
            return m_failure.fault.error;
        if (error == 0)
            (Empty(arguments), ...);
        return error;
    }

    const Failure& m_failure;
    unsigned m_seen = 0;
    unsigned m_altered = 0;
};

} // namespace

Bench::Bench(const simulation::Scenario& scenario, wrappers::Interceptor& interceptor)
    : m_computer(scenario, interceptor)
{
    g_bTraceOn = 1;
}

bool OpensClient(const Method& method)
{
    return !method.Is("Delete") && !method.Is("UnRegisterNotification");
}

void Bench::Prepare(const Method& method)
{
    CWirelessManage& manager = m_computer.Manager();
    for (const auto& [name, first] : kFirst)
    {
        if (!method.Is(name))
            continue;
        methods::Arguments useful;
        methods::Call(methods::FindMethod(first), useful).Make(manager);
    }
    if (OpensClient(method))
        m_computer.CloseClient();
}

Outcome Bench::Call(const Method& method)
{
    std::optional<AllocationPause> notTheMethods(std::in_place);
    m_computer.ForgetClosedClient();
    CWirelessManage& manager = m_computer.Manager();
    methods::Arguments useful;
    methods::Call call(method, useful);
    notTheMethods.reset();
    call.Make(manager);
    notTheMethods.emplace();
    return call.Outcome();
}

Reference Record(const simulation::Scenario& scenario, const Method& method)
{
    wrappers::CallLog log;
    Bench bench(scenario, log);
    bench.Prepare(method);
    log.Clear();
    Reference reference;
    {
        EditedAnswers answers;
        answers.service.bss = [&reference](const WLAN_BSS_LIST& list)
        { reference.bssEntries.push_back(static_cast<unsigned>(list.dwNumberOfItems)); };
        reference.first = bench.Call(method);
    }
    reference.operations = log.Operations();
    reference.again = bench.Call(method);
    return reference;
}

std::string Failure::Text() const
{
    const std::string calls = operation + " call " + std::to_string(fault.fromCall) +
                              (fault.times == 1 ? ", no other, " : " and all later ones, ");
    switch (way)
    {
    case Way::refused:
        break;
    case Way::emptied:
        return calls + "list nothing";
    case Way::refusedBesideAnswer:
        return calls + "fail beside their answer with " + std::to_string(fault.error);
    }
    return calls + "fail with " + std::to_string(fault.error);
}

bool Failure::IsRelease() const
{
    return Contains(kReleases, operation);
}

std::vector<Failure> FailuresOf(const Reference& reference)
{
    std::vector<Failure> failures;
    std::map<std::string, unsigned> seen;
    for (const std::string& operation : reference.operations)
    {
        const operations::Fails fails = operations::FactsOf(operation)->fails;
        if (fails == operations::Fails::never)
            continue;
        const unsigned number = ++seen[operation];
        const auto& errors = fails == operations::Fails::withStatus ? kStatuses : kErrors;
        for (const DWORD error : std::span(errors).first<CALVIX_SWEEP_ERRORS>())
            for (const unsigned times : {1U, Fault::kUnlimited})
                failures.push_back({operation, {error, number, times}});
        if (Contains(kLists, operation))
            for (const unsigned times : {1U, Fault::kUnlimited})
                failures.push_back({operation, {0, number, times}, Way::emptied});
        if (Contains(kLists, operation) || Contains(kRecords, operation))
            failures.push_back({operation, {kErrors[0], number, Fault::kUnlimited}, Way::refusedBesideAnswer});
    }
    return failures;
}

namespace
{

/// Calls the method while the platform lets it down, and counts how often.
Outcome CallInTrouble(
    Bench& bench, wrappers::FaultInjection& faults, const Method& method, const Failure& failure, unsigned& failed)
{
    if (failure.way != Way::refused)
    {
        const Altering altering(failure);
        const Outcome outcome = bench.Call(method);
        failed = altering.Altered();
        return outcome;
    }
    faults.Fail(failure.operation, failure.fault);
    const Outcome outcome = bench.Call(method);
    failed = faults.Injected();
    faults.Clear();
    return outcome;
}

} // namespace

Run Repeat(const simulation::Scenario& scenario, const Method& method, const Failure& failure)
{
    wrappers::FaultInjection faults;
    Bench bench(scenario, faults);
    bench.Prepare(method);
    Run run;
    run.outcome = CallInTrouble(bench, faults, method, failure, run.failed);
    run.afterwards = bench.Audit();
    run.again = bench.Call(method);
    run.inTheEnd = bench.Audit();
    return run;
}

} // namespace calvix::test::sweep
