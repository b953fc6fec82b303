// A whole session: a program on some computer calls the library, method after method, while the platform fails now and
// then and may answer with records that no service should hand out. Whatever it does, each result is one that the method
// has, and in the end nothing is left held.

#include "promise.h"
#include "targets.h"

#include "session/arguments.h"
#include "session/hostile_answers.h"
#include "session/scenario.h"

#include "explain/result_codes.h"
#include "support/fatal_errors.h"
#include "testing/test_computer.h"
#include "wrappers/fault_injection.h"

#include <algorithm>

namespace calvix::fuzz
{

namespace
{

using test::methods::Method;

/// Lets some calls of the platform fail: after so many have passed, so many in a row.
class Failures
{
public:
    Failures()
    {
        m_faults.FailWhen([this](const wrappers::Call& call) { return ErrorOf(call); });
    }

    wrappers::Interceptor& interceptor() { return m_faults; }

    void Plan(Input& input)
    {
        constexpr DWORD kErrors[] = {5, 6, 87, 259, 1062, 1168, 0xC000000D, 0x80342002};
        m_passing = input.Byte() % 8U;
        m_failing = input.OneIn(3) ? 1000 : 1;
        m_error = input.OneOf(kErrors);
    }
    void Stop() { m_failing = 0; }

    /// Handles that the platform has refused to close.
    std::size_t RefusedReleases() const { return m_refusedReleases; }

private:
    std::optional<DWORD> ErrorOf(const wrappers::Call& call)
    {
        if (m_failing == 0)
            return std::nullopt;
        if (m_passing > 0)
        {
            --m_passing;
            return std::nullopt;
        }
        --m_failing;
        if (call.operation.starts_with("Close") || call.operation == "WlanCloseHandle")
            ++m_refusedReleases;
        return m_error;
    }

    wrappers::FaultInjection m_faults;
    unsigned m_passing = 0;
    unsigned m_failing = 0;
    DWORD m_error = 0;
    std::size_t m_refusedReleases = 0;
};

/// The program, its computer and what stands between them.
class Session
{
public:
    explicit Session(Input& input) : m_input(input), m_computer(session::MakeScenario(input), m_failures.interceptor())
    {
        if (input.OneIn(3))
            m_hostile.emplace(session::HostileAnswers(input));
        g_bTraceOn = input.OneIn(2) ? 1 : 0;
    }

    void CallSomeMethod()
    {
        const auto& methods = test::methods::EveryMethod();
        const Method& method = methods[m_input.Below(methods.size())];
        if (m_input.OneIn(4))
            m_failures.Plan(m_input);
        if (m_input.OneIn(8))
            m_computer.computer().Advance(std::chrono::milliseconds(m_input.Byte() * 100));
        session::HostileArguments arguments(m_input);
        test::methods::Call call(method, arguments);
        if (!test::EndsFatally([&] { call.Make(*CWirelessManage::Get()); }) && call.Result().code)
            CheckCode(method, *call.Result().code);
        m_failures.Stop();
        m_computer.ForgetClosedClient();
        CheckAccounts();
    }

    void End()
    {
        CWirelessManage::Delete();
        CheckAccounts();
        Promise(m_computer.Audit().openClients <= m_failures.RefusedReleases(), "no client is left open");
        CheckSnapshot();
    }

private:
    void CheckCode(const Method& method, long long code) const
    {
        const host::MethodResults* const results = host::FindMethod(method.Name());
        // What hostile records hold comes out of some methods as it is.
        const bool known = m_hostile || results == nullptr || host::Explain(*results, code).known;
        Promise(known, (method.declaration + " has a result " + std::to_string(code)).c_str());
    }

    void CheckAccounts()
    {
        const simulation::Accounts accounts = m_computer.Audit();
        Promise(accounts.liveBlocks == 0, "every block of the service is released");
        Promise(accounts.openHandles <= m_failures.RefusedReleases(), "every handle is closed");
        Promise(accounts.openClients <= 1 + m_failures.RefusedReleases(), "there is one client");
        for (const std::string& defect : accounts.defects)
            Promise(false, defect.c_str());
    }

    /// Now and then: it takes longer than everything before.
    void CheckSnapshot()
    {
        if (!m_input.OneIn(16))
            return;
        const simulation::Scenario snapshot = m_computer.computer().Snapshot();
        // Scenario files know no adapter without a PHY.
        if (std::any_of(snapshot.adapters.begin(), snapshot.adapters.end(),
                        [](const auto& adapter) { return adapter.phys.empty(); }))
            return;
        const std::string written = simulation::WriteScenario(snapshot);
        Promise(simulation::ParseScenario(written, "snapshot") == snapshot, "the computer as it stands is a scenario");
    }

    Input& m_input;
    Failures m_failures;
    test::TestComputer m_computer;
    std::optional<test::EditedAnswers> m_hostile;
};

} // namespace

void RunSession(const std::uint8_t* data, std::size_t size)
{
    constexpr int kMostCalls = 32;
    Input input(data, size);
    const test::FatalErrorsCaught caught;
    Session session(input);
    for (int call = 0; call < kMostCalls && !input.IsEmpty(); ++call)
        session.CallSomeMethod();
    session.End();
}

} // namespace calvix::fuzz
