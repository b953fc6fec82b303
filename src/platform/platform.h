#pragma once

#include "platform/clock.h"
#include "platform/debugger_output.h"
#include "platform/internet.h"
#include "platform/last_error.h"
#include "platform/power.h"
#include "platform/processes.h"
#include "platform/security.h"
#include "platform/service_control.h"
#include "platform/text.h"
#include "platform/wlan_service.h"

#include <atomic>

namespace calvix::platform
{

/// The operating system as the library sees it: its operations, facility by facility. A platform is a value: whoever
/// changes some of the operations begins with a copy of the others.
struct Platform : WlanService,
                  ServiceControl,
                  Power,
                  Security,
                  Processes,
                  Internet,
                  Text,
                  Clock,
                  DebuggerOutput,
                  LastError
{
    WlanService& wlan() { return *this; }
    ServiceControl& services() { return *this; }
    Power& power() { return *this; }
    Security& security() { return *this; }
    Processes& processes() { return *this; }
    Internet& internet() { return *this; }
    Text& text() { return *this; }
    Clock& clock() { return *this; }
    DebuggerOutput& debugger() { return *this; }
    LastError& errors() { return *this; }
};

/// The provider that a binary is linked with: the operating system, or a simulated computer.
Platform& DefaultPlatform();

/// The provider put in the default's place, null while there is none.
inline std::atomic<Platform*> g_pReplacement{nullptr};

/// Puts `replacement` behind every operation from the next one on; null brings the default back. The caller keeps
/// ownership and keeps it alive as long as it is in place. Returns what was there before.
inline Platform* ReplacePlatform(Platform* replacement)
{
    return g_pReplacement.exchange(replacement);
}

inline Platform& CurrentPlatform()
{
    Platform* const replacement = g_pReplacement.load(std::memory_order_acquire);
    return replacement != nullptr ? *replacement : DefaultPlatform();
}

inline WlanService& wlan()
{
    return CurrentPlatform().wlan();
}
inline ServiceControl& services()
{
    return CurrentPlatform().services();
}
inline Power& power()
{
    return CurrentPlatform().power();
}
inline Security& security()
{
    return CurrentPlatform().security();
}
inline Processes& processes()
{
    return CurrentPlatform().processes();
}
inline Internet& internet()
{
    return CurrentPlatform().internet();
}
inline Text& text()
{
    return CurrentPlatform().text();
}
inline Clock& clock()
{
    return CurrentPlatform().clock();
}
inline DebuggerOutput& debugger()
{
    return CurrentPlatform().debugger();
}
inline LastError& errors()
{
    return CurrentPlatform().errors();
}

} // namespace calvix::platform
