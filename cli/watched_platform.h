#pragma once

#include "platform/platform.h"
#include "stepping_clock.h"
#include "watched_system.h"
#include "watched_wlan.h"

#include <ostream>

namespace calvix::host
{

/// Forwards to the debugger and shows the same lines on a stream.
class ShownDebuggerOutput final : public platform::DebuggerOutput
{
public:
    /// A null stream shows nothing.
    ShownDebuggerOutput(platform::DebuggerOutput& inner, std::ostream* shown) : m_inner(inner), m_shown(shown) {}

    /// While not null, what is written goes here, as it is, instead of being shown.
    void CaptureIn(std::string* captured) { m_captured = captured; }

    void OutputDebugStringA(const char* text) override;

private:
    platform::DebuggerOutput& m_inner;
    std::ostream* m_shown;
    std::string* m_captured = nullptr;
    bool m_atLineStart = true;
};

/// The platform with the WLAN service, the system and the debugger watched, and waiting in small steps.
class WatchedPlatform final : public platform::Platform
{
public:
    /// Trace lines are shown on `shown` unless it is null. Both must live as long as this object.
    WatchedPlatform(platform::Platform& inner, std::ostream* shown)
        : m_inner(inner), m_wlan(inner.wlan()), m_system(inner), m_clock(inner.clock()),
          m_debugger(inner.debugger(), shown)
    {
    }

    WatchedWlan& watched() { return m_wlan; }
    SystemRefusals& systemRefusals() { return m_system.refusals(); }
    SteppingClock& steps() { return m_clock; }
    ShownDebuggerOutput& shownDebugger() { return m_debugger; }

    platform::WlanService& wlan() override { return m_wlan; }
    platform::ServiceControl& services() override { return m_inner.services(); }
    platform::Power& power() override { return m_system.power(); }
    platform::Security& security() override { return m_system.security(); }
    platform::Processes& processes() override { return m_system.processes(); }
    platform::Internet& internet() override { return m_system.internet(); }
    platform::Text& text() override { return m_inner.text(); }
    platform::Clock& clock() override { return m_clock; }
    platform::DebuggerOutput& debugger() override { return m_debugger; }
    platform::LastError& errors() override { return m_inner.errors(); }

private:
    platform::Platform& m_inner;
    WatchedWlan m_wlan;
    WatchedSystem m_system;
    SteppingClock m_clock;
    ShownDebuggerOutput m_debugger;
};

} // namespace calvix::host
