#pragma once

#include "platform/platform.h"
#include "wrappers/intercepted_power.h"
#include "wrappers/intercepted_processes.h"
#include "wrappers/intercepted_utilities.h"
#include "wrappers/intercepted_wlan_service.h"

namespace calvix::wrappers
{

/// A provider that forwards every call to `inner` and lets an interceptor see it and fail it. Both stay the caller's
/// and outlive this object. Calls nothing but the interceptor, and allocates nothing unless that wants arguments.
///
/// How a failure shows depends on the operation: one that returns an error number (or an NTSTATUS) returns it; one that
/// returns FALSE, null or no characters does that, and GetLastError answers with the error until any other operation is
/// called. Outputs stay as they were. GetCurrentProcess and the operations without a result cannot fail.
class InterceptedPlatform final : public platform::Platform
{
public:
    InterceptedPlatform(platform::Platform& inner, Interceptor& interceptor);

    platform::WlanService& wlan() override { return m_wlan; }
    platform::ServiceControl& services() override { return m_services; }
    platform::Power& power() override { return m_power; }
    platform::Security& security() override { return m_security; }
    platform::Processes& processes() override { return m_processes; }
    platform::Internet& internet() override { return m_internet; }
    platform::Text& text() override { return m_text; }
    platform::Clock& clock() override { return m_clock; }
    platform::DebuggerOutput& debugger() override { return m_debugger; }
    platform::LastError& errors() override { return m_errors; }

private:
    InterceptionPoint m_point;
    InterceptedWlanService m_wlan;
    InterceptedServiceControl m_services;
    InterceptedPower m_power;
    InterceptedSecurity m_security;
    InterceptedProcesses m_processes;
    InterceptedInternet m_internet;
    InterceptedText m_text;
    InterceptedClock m_clock;
    InterceptedDebuggerOutput m_debugger;
    InterceptedLastError m_errors;
};

} // namespace calvix::wrappers
