#pragma once

#include "host/watched_calls.h"
#include "operations/changed_platform.h"
#include "wrappers/intercepted_platform.h"

#include <functional>
#include <ostream>

namespace calvix::host
{

/// Another platform, with its calls watched, its debugger's lines shown, and waiting in small steps.
class WatchedPlatform final
{
public:
    /// Trace lines are shown on `shown` unless it is null. Both must live as long as this object.
    WatchedPlatform(platform::Platform& inner, std::ostream* shown);
    WatchedPlatform(const WatchedPlatform&) = delete;
    WatchedPlatform& operator=(const WatchedPlatform&) = delete;

    platform::Platform& platform() { return m_platform.platform(); }
    WatchedCalls& calls() { return m_watched; }

    /// Called after each step of a wait, the library's own waits included, with its milliseconds.
    void AfterEachStep(std::function<void(unsigned)> action) { m_afterStep = std::move(action); }
    /// While not null, the debugger's text goes here, as it is, instead of being shown.
    void CaptureTraceIn(std::string* captured) { m_captured = captured; }
    /// While rehearsing, connection requests are noted and refused, and never reach the service: what is left to ask
    /// for after a refusal comes to light without anything being joined. Profiles are not moved either, though the
    /// library gets success for it.
    void Rehearse(bool rehearsing) { m_rehearsing = rehearsing; }

private:
    void ChangeConnecting();
    void SleepInSteps(DWORD milliseconds);
    void ShowTrace(const char* text);

    WatchedCalls m_watched;
    wrappers::InterceptedPlatform m_intercepted;
    operations::ChangedPlatform m_platform;
    bool m_rehearsing = false;
    std::function<void(unsigned)> m_afterStep;
    std::ostream* m_shown;
    std::string* m_captured = nullptr;
    bool m_atLineStart = true;
};

} // namespace calvix::host
