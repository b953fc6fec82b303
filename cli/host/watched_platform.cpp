#include "host/watched_platform.h"

#include "operations/bound.h"

namespace calvix::host
{

void ShownDebuggerOutput::OutputDebugStringA(const char* text)
{
    m_inner.OutputDebugStringA(text);
    if (m_captured != nullptr)
    {
        *m_captured += text;
        return;
    }
    if (m_shown == nullptr)
        return;
    for (const char* c = text; *c != '\0'; ++c)
    {
        if (m_atLineStart)
            *m_shown << "trace: ";
        *m_shown << *c;
        m_atLineStart = *c == '\n';
    }
}

WatchedPlatform::WatchedPlatform(platform::Platform& inner, std::ostream* shown)
    : Platform(inner), m_system(inner.errors()), m_calls(inner, m_refusals), m_wlan(m_calls.wlan(), m_notes),
      m_clock(inner.clock()), m_debugger(inner.debugger(), shown)
{
    using operations::CallsTo;
    Platform& whole = *this;
    whole = m_calls;
    WlanSetProfile = CallsTo<&WatchedWlan::WlanSetProfile>(m_wlan);
    WlanSetProfilePosition = CallsTo<&WatchedWlan::WlanSetProfilePosition>(m_wlan);
    WlanConnect = CallsTo<&WatchedWlan::WlanConnect>(m_wlan);
    Sleep = CallsTo<&SteppingClock::Sleep>(m_clock);
    OutputDebugStringA = CallsTo<&ShownDebuggerOutput::OutputDebugStringA>(m_debugger);
}

} // namespace calvix::host
