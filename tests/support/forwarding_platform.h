#pragma once

#include "platform/platform.h"

namespace calvix::test
{

/// The platform in use, behind a stand-in that changes what a derived class overrides, for as long as it lives.
class ForwardingPlatform : public platform::Platform
{
public:
    ForwardingPlatform() { platform::ReplacePlatform(this); }
    ~ForwardingPlatform() override { platform::ReplacePlatform(&m_inner); }
    ForwardingPlatform(const ForwardingPlatform&) = delete;
    ForwardingPlatform& operator=(const ForwardingPlatform&) = delete;

    platform::WlanService& wlan() override { return m_inner.wlan(); }
    platform::ServiceControl& services() override { return m_inner.services(); }
    platform::Power& power() override { return m_inner.power(); }
    platform::Security& security() override { return m_inner.security(); }
    platform::Processes& processes() override { return m_inner.processes(); }
    platform::Internet& internet() override { return m_inner.internet(); }
    platform::Text& text() override { return m_inner.text(); }
    platform::Clock& clock() override { return m_inner.clock(); }
    platform::DebuggerOutput& debugger() override { return m_inner.debugger(); }
    platform::LastError& errors() override { return m_inner.errors(); }

protected:
    platform::Platform& inner() { return m_inner; }

private:
    platform::Platform& m_inner = platform::CurrentPlatform();
};

} // namespace calvix::test
