#pragma once

#include "core/trace.h"
#include "simulation/computer.h"
#include "testing/program.h"
#include "wrappers/intercepted_platform.h"

namespace calvix::test
{

/// A fresh simulated computer with a program on it that uses the library, and an interceptor between them. One at a time.
class TestComputer
{
public:
    explicit TestComputer(const simulation::Scenario& scenario, wrappers::Interceptor& interceptor = SeesNothing())
        : m_computer(scenario), m_platform(m_computer, interceptor), m_program(m_platform)
    {
    }
    ~TestComputer()
    {
        g_bTraceOn = 0;
        ForgetClosedClient();
    }
    TestComputer(const TestComputer&) = delete;
    TestComputer& operator=(const TestComputer&) = delete;

    simulation::Computer& computer() { return m_computer; }
    const simulation::Computer& computer() const { return m_computer; }
    simulation::Accounts Audit() { return m_computer.Audit(); }

    CWirelessManage& Manager() { return m_program.Manager(); }

    /// Delete leaves the closed handle where it was, on purpose; every method would only report it from then on.
    void ForgetClosedClient()
    {
        if (Audit().openClients == 0)
            ManagerInternals::Client() = nullptr;
    }

    /// The next method that needs the client opens it again.
    void CloseClient()
    {
        if (ManagerInternals::Client() != nullptr)
            m_platform.wlan().WlanCloseHandle(ManagerInternals::Client(), nullptr);
        ManagerInternals::Client() = nullptr;
    }

private:
    static wrappers::Interceptor& SeesNothing()
    {
        static wrappers::Interceptor interceptor;
        return interceptor;
    }

    simulation::Computer m_computer;
    wrappers::InterceptedPlatform m_platform;
    Program m_program;
};

} // namespace calvix::test
