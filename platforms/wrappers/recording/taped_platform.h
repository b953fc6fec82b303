#pragma once

#include "platform/platform.h"
#include "wrappers/recording/taped_power.h"
#include "wrappers/recording/taped_system.h"
#include "wrappers/recording/taped_utilities.h"
#include "wrappers/recording/taped_wlan_service.h"

namespace calvix::recording
{

/// A platform whose calls all pass a tape. `inner` is where they go while recording, and null in a replay.
class TapedPlatform final : public platform::Platform
{
public:
    TapedPlatform(Tape& tape, platform::Platform* inner);

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
    TapedWlanService m_wlan;
    TapedServiceControl m_services;
    TapedPower m_power;
    TapedSecurity m_security;
    TapedProcesses m_processes;
    TapedInternet m_internet;
    TapedText m_text;
    TapedClock m_clock;
    TapedDebuggerOutput m_debugger;
    TapedLastError m_errors;
};

} // namespace calvix::recording
