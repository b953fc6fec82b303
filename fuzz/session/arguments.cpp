#include "session/arguments.h"

#include "session/scenario.h"

#include "support/test_scenarios.h"

#include <atomic>

namespace calvix::fuzz::session
{

using test::methods::Role;

namespace
{

std::atomic<unsigned> notifications;

void WINAPI CountNotification(PWLAN_NOTIFICATION_DATA, PVOID)
{
    ++notifications;
}

} // namespace

bool HostileArguments::IsNull(const Parameter& parameter)
{
    return m_input.OneIn(parameter.role == Role::callback ? 4 : 16);
}

const GUID* HostileArguments::Adapter()
{
    const GUID* const adapters[] = {&test::kNoAdapter, &test::kAdapterB, &test::kAdapterB, &test::kAdapterA};
    return m_input.OneIn(4) ? m_input.OneOf(adapters) : &test::kAdapterA;
}

std::string HostileArguments::Text()
{
    switch (m_input.Below(16))
    {
    case 0:
        return {};
    case 1:
        return std::string(m_input.Byte() * 4U, 'n');
    case 2:
        return std::string(m_input.Bytes(40)).c_str(); // as far as to a zero
    case 3:
        return "\"";
    default:
        return NetworkName(m_input);
    }
}

std::string HostileArguments::Text(const Parameter& parameter)
{
    return parameter.role == Role::text && m_input.OneIn(2) ? parameter.text : Text();
}

std::string HostileArguments::Document()
{
    if (m_input.OneIn(8))
        return Text();
    std::string xml = ProfileDocument(m_input);
    if (m_input.OneIn(4))
        xml.resize(xml.size() * m_input.Byte() / 256);
    return xml;
}

DOT11_SSID HostileArguments::Ssid()
{
    DOT11_SSID ssid = test::MakeSsid(NetworkName(m_input));
    if (m_input.OneIn(8))
        ssid.uSSIDLength = AnyNumber();
    return ssid;
}

WLAN_CONNECTION_ATTRIBUTES HostileArguments::Connection()
{
    WLAN_CONNECTION_ATTRIBUTES connection = test::methods::ConnectionWith(NetworkName(m_input));
    connection.wlanAssociationAttributes.dot11Ssid = Ssid();
    connection.wlanAssociationAttributes.dot11BssType = static_cast<DOT11_BSS_TYPE>(m_input.Below(4));
    connection.wlanSecurityAttributes.bSecurityEnabled = m_input.OneIn(4) ? FALSE : TRUE;
    return connection;
}

/// Sizes that are not unsigned are negative and 0, too.
long long HostileArguments::Number(const Parameter& parameter)
{
    if (parameter.role == Role::length)
        return static_cast<long long>(m_input.Below(40));
    if (parameter.role == Role::capacity && parameter.type == "unsigned long")
        return m_input.Byte();
    if (parameter.role == Role::capacity)
        return (static_cast<long long>(m_input.Below(200)) - 2) * (parameter.number > 1000 ? 10 : 1);
    if (parameter.type == "bool")
        return m_input.OneIn(2) ? 1 : 0;
    if (m_input.OneIn(2))
        return parameter.number;
    const std::uint32_t number = AnyNumber();
    return parameter.type == "int" ? static_cast<std::int32_t>(number) : static_cast<long long>(number);
}

WLAN_NOTIFICATION_CALLBACK HostileArguments::Callback()
{
    return CountNotification;
}

std::uint32_t HostileArguments::AnyNumber()
{
    constexpr std::uint32_t kEdges[] = {0, 1, 2, 3, 32, 33, 64, 65, 255, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    return m_input.OneIn(4) ? m_input.Number() : m_input.OneOf(kEdges);
}

} // namespace calvix::fuzz::session
