#pragma once

#include "platform/platform.h"
#include "watched_wlan.h"
#include "wrappers/intercepted_power.h"
#include "wrappers/intercepted_processes.h"
#include "wrappers/intercepted_utilities.h"

#include <vector>

namespace calvix::host
{

/// Notes what the operating system refused outside its WLAN service. A question that is answered with no is no refusal.
class SystemRefusals final : public wrappers::Interceptor
{
public:
    /// `errors` tells why an operation failed that does not say it itself, and outlives this object.
    explicit SystemRefusals(platform::LastError& errors) : m_errors(errors) {}

    void After(const wrappers::Call& call, long long result) override;

    void Forget() { m_refusals.clear(); }
    /// The last one, empty if there was none.
    Refusal Last() const { return m_refusals.empty() ? Refusal{} : m_refusals.back(); }
    /// The first one of an operation, empty if there was none.
    Refusal Of(std::string_view operation) const;

private:
    platform::LastError& m_errors;
    std::vector<Refusal> m_refusals;
};

/// The facilities that are watched so.
class WatchedSystem
{
public:
    /// `inner` outlives this object.
    explicit WatchedSystem(platform::Platform& inner)
        : m_refusals(inner.errors()), m_power(inner.power(), m_point), m_security(inner.security(), m_point),
          m_processes(inner.processes(), m_point), m_internet(inner.internet(), m_point)
    {
    }

    SystemRefusals& refusals() { return m_refusals; }
    platform::Power& power() { return m_power; }
    platform::Security& security() { return m_security; }
    platform::Processes& processes() { return m_processes; }
    platform::Internet& internet() { return m_internet; }

private:
    SystemRefusals m_refusals;
    wrappers::InterceptionPoint m_point{m_refusals};
    wrappers::InterceptedPower m_power;
    wrappers::InterceptedSecurity m_security;
    wrappers::InterceptedProcesses m_processes;
    wrappers::InterceptedInternet m_internet;
};

} // namespace calvix::host
