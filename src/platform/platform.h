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

/// The operating system as the library sees it: its operations, facility by facility. A platform is a value: to change
/// some operations, copy it and replace them.
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

/// The provider that replaces the default, or null.
inline std::atomic<Platform*> g_pReplacement{nullptr};

/// Makes `replacement` the provider of all operations from the next one on; null restores the default. The caller keeps
/// ownership, and keeps it alive while it is in use. Returns the previous one.
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
