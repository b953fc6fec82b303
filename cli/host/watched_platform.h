#pragma once

#include "host/stepping_clock.h"
#include "host/watched_system.h"
#include "host/watched_wlan.h"
#include "platform/platform.h"
#include "wrappers/intercepted_platform.h"

#include <ostream>

namespace calvix::host
{

/// Forwards to the debugger and shows the same lines on a stream.
class ShownDebuggerOutput final
{
public:
    /// A null stream shows nothing.
    ShownDebuggerOutput(platform::DebuggerOutput& inner, std::ostream* shown) : m_inner(inner), m_shown(shown) {}

    /// While not null, what is written goes here, as it is, instead of being shown.
    void CaptureIn(std::string* captured) { m_captured = captured; }

    void OutputDebugStringA(const char* text);

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
    WatchedPlatform(platform::Platform& inner, std::ostream* shown);
    WatchedPlatform(const WatchedPlatform&) = delete;
    WatchedPlatform& operator=(const WatchedPlatform&) = delete;

    WatchedWlan& watched() { return m_wlan; }
    SystemRefusals& systemRefusals() { return m_system; }
    SteppingClock& steps() { return m_clock; }
    ShownDebuggerOutput& shownDebugger() { return m_debugger; }

private:
    RefusalNotes m_notes;
    SystemRefusals m_system;
    wrappers::InterceptorChain m_refusals{{&m_notes, &m_system}};
    wrappers::InterceptedPlatform m_calls;
    WatchedWlan m_wlan;
    SteppingClock m_clock;
    ShownDebuggerOutput m_debugger;
};

} // namespace calvix::host
