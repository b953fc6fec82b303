#include "wrappers/intercepted_platform.h"

namespace calvix::wrappers
{

InterceptedPlatform::InterceptedPlatform(platform::Platform& inner, Interceptor& interceptor)
    : m_point(interceptor), m_wlan(inner.wlan(), m_point), m_services(inner.services(), m_point),
      m_power(inner.power(), m_point), m_security(inner.security(), m_point), m_processes(inner.processes(), m_point),
      m_internet(inner.internet(), m_point), m_text(inner.text(), m_point), m_clock(inner.clock(), m_point),
      m_debugger(inner.debugger(), m_point), m_errors(inner.errors(), m_point)
{
}

} // namespace calvix::wrappers
