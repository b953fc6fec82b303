#include "host/watched_platform.h"

#include "host/interrupt.h"

#include <algorithm>

namespace calvix::host
{

using platform::WlanService;

WatchedPlatform::WatchedPlatform(platform::Platform& inner, std::ostream* shown)
    : m_watched(inner.errors()), m_intercepted(inner, m_watched), m_platform(m_intercepted), m_shown(shown)
{
    ChangeConnecting();
    m_platform.Instead<&platform::Clock::Sleep>([this](DWORD milliseconds) { SleepInSteps(milliseconds); });
    m_platform.Before<&platform::DebuggerOutput::OutputDebugStringA>([this](const char* text) { ShowTrace(text); });
}

void WatchedPlatform::ChangeConnecting()
{
    m_platform.After<&WlanService::WlanSetProfile>(
        [this](DWORD error, HANDLE, const GUID*, DWORD, const wchar_t*, const wchar_t*, BOOL, PVOID, DWORD* reasonCode)
        {
            if (error != 0 && reasonCode != nullptr)
                m_watched.NoteProfileReason(*reasonCode);
        });
    m_platform.Instead<&WlanService::WlanSetProfilePosition>(
        [this](auto... arguments)
        { return m_rehearsing ? DWORD{ERROR_SUCCESS} : m_intercepted.WlanSetProfilePosition(arguments...); });
    m_platform.Instead<&WlanService::WlanConnect>(
        [this](HANDLE client, const GUID* adapter, const WLAN_CONNECTION_PARAMETERS* parameters, PVOID reserved)
        {
            const DWORD error = m_rehearsing ? DWORD{ERROR_CANCELLED}
                                             : m_intercepted.WlanConnect(client, adapter, parameters, reserved);
            m_watched.NoteConnect(adapter, parameters, error);
            return error;
        });
}

/// Something can be shown between the steps, and Ctrl-C is noticed. What is left of a wait after Ctrl-C is left out.
void WatchedPlatform::SleepInSteps(DWORD milliseconds)
{
    constexpr DWORD longestStep = 100;
    while (milliseconds > 0 && !Interrupted())
    {
        const DWORD step = (std::min)(milliseconds, longestStep);
        m_intercepted.Sleep(step);
        milliseconds -= step;
        if (m_afterStep)
            m_afterStep(static_cast<unsigned>(step));
    }
}

void WatchedPlatform::ShowTrace(const char* text)
{
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

} // namespace calvix::host
