#include "service/list_platform.h"

#include "service/list_service.h"
#include "service/willing_computer.h"

namespace calvix::benchmarks
{

struct ListPlatform::Facilities
{
    ListService wlan;
    WillingServices services;
    WillingPower power;
    WillingSecurity security;
    WillingProcesses processes;
    WillingInternet internet;
    WillingText text;
    WillingClock clock;
    WillingDebugger debugger;
    WillingErrors errors;
};

ListPlatform::ListPlatform(const ServiceContent& content) : m_facilities(std::make_unique<Facilities>())
{
    m_facilities->wlan.Use(content);
}

ListPlatform::~ListPlatform() = default;

platform::WlanService& ListPlatform::wlan()
{
    return m_facilities->wlan;
}

platform::ServiceControl& ListPlatform::services()
{
    return m_facilities->services;
}

platform::Power& ListPlatform::power()
{
    return m_facilities->power;
}

platform::Security& ListPlatform::security()
{
    return m_facilities->security;
}

platform::Processes& ListPlatform::processes()
{
    return m_facilities->processes;
}

platform::Internet& ListPlatform::internet()
{
    return m_facilities->internet;
}

platform::Text& ListPlatform::text()
{
    return m_facilities->text;
}

platform::Clock& ListPlatform::clock()
{
    return m_facilities->clock;
}

platform::DebuggerOutput& ListPlatform::debugger()
{
    return m_facilities->debugger;
}

platform::LastError& ListPlatform::errors()
{
    return m_facilities->errors;
}

} // namespace calvix::benchmarks
