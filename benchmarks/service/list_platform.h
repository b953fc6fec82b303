#pragma once

#include "platform/platform.h"
#include "service/service_content.h"

#include <memory>

namespace calvix::benchmarks
{

/// A platform that is about as cheap as one can be: the ListService, and beside it facilities that say yes at once. What
/// remains of a call's time is the caller's.
class ListPlatform final : public platform::Platform
{
public:
    /// `content` outlives this object.
    explicit ListPlatform(const ServiceContent& content);
    ~ListPlatform() override;

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
    struct Facilities;
    std::unique_ptr<Facilities> m_facilities;
};

} // namespace calvix::benchmarks
