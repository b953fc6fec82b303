#pragma once

#include "platform/platform.h"
#include "windows/clock.h"
#include "windows/debugger_output.h"
#include "windows/internet.h"
#include "windows/last_error.h"
#include "windows/power.h"
#include "windows/processes.h"
#include "windows/security.h"
#include "windows/service_control.h"
#include "windows/text.h"
#include "windows/wlan_service.h"

namespace calvix::windows
{

/// The operating system. It has no state of its own, so any number of threads may use it.
class WindowsPlatform final : public platform::Platform
{
public:
    platform::WlanService& wlan() override;
    platform::ServiceControl& services() override;
    platform::Power& power() override;
    platform::Security& security() override;
    platform::Processes& processes() override;
    platform::Internet& internet() override;
    platform::Text& text() override;
    platform::Clock& clock() override;
    platform::DebuggerOutput& debugger() override;
    platform::LastError& errors() override;

private:
    WlanService wlan_;
    ServiceControl services_;
    Power power_;
    Security security_;
    Processes processes_;
    Internet internet_;
    Text text_;
    Clock clock_;
    DebuggerOutput debugger_;
    LastError errors_;
};

} // namespace calvix::windows
