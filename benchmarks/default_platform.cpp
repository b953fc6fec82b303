#include "list_service.h"

#include "platform/platform.h"

#include <cstdio>
#include <cstdlib>

namespace
{

[[noreturn]] void Absent(const char* facility)
{
    std::fprintf(stderr, "The benchmarks' platform has no %s.\n", facility);
    std::abort();
}

/// A WLAN service and nothing else: a benchmark that reaches another facility would measure what is not there.
class ListPlatform final : public calvix::platform::Platform
{
public:
    explicit ListPlatform(calvix::platform::WlanService& service) : m_service(service) {}

    calvix::platform::WlanService& wlan() override { return m_service; }
    calvix::platform::ServiceControl& services() override { Absent("service control"); }
    calvix::platform::Power& power() override { Absent("power management"); }
    calvix::platform::Security& security() override { Absent("security"); }
    calvix::platform::Processes& processes() override { Absent("processes"); }
    calvix::platform::Internet& internet() override { Absent("internet"); }
    calvix::platform::Text& text() override { Absent("text conversion"); }
    calvix::platform::Clock& clock() override { Absent("clock"); }
    calvix::platform::DebuggerOutput& debugger() override { Absent("debugger"); }
    calvix::platform::LastError& errors() override { Absent("last error"); }

private:
    calvix::platform::WlanService& m_service;
};

} // namespace

calvix::platform::Platform& calvix::platform::DefaultPlatform()
{
    static ListPlatform platform(calvix::benchmarks::TheService());
    return platform;
}
