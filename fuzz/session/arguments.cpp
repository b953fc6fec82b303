#include "session/arguments.h"

#include "forms/utf8.h"
#include "session/world.h"

#include "support/test_worlds.h"

#include <cstring>

namespace calvix::fuzz::session
{

template <typename Character>
Character* Arguments::Text(const std::basic_string<Character>& text)
{
    std::vector<Character>& owned = New(std::vector<Character>(text.begin(), text.end()));
    owned.push_back(Character{});
    return owned.data();
}

const GUID* Arguments::Adapter()
{
    switch (m_input.Below(16))
    {
    case 0:
        return nullptr;
    case 1:
        return &test::kNoAdapter;
    case 2:
    case 3:
        return &test::kAdapterB;
    default:
        return &test::kAdapterA;
    }
}

const wchar_t* Arguments::WideText()
{
    switch (m_input.Below(16))
    {
    case 0:
        return nullptr;
    case 1:
        return Text(std::wstring(m_input.Byte() * 4U, L'n'));
    case 2:
        return Text(forms::WideFromUtf8(m_input.Bytes(40)));
    default:
        return Text(forms::WideFromUtf8(NetworkName(m_input)));
    }
}

const char* Arguments::NarrowText()
{
    switch (m_input.Below(16))
    {
    case 0:
        return nullptr;
    case 1:
        return Text(std::string(m_input.Byte() * 4U, 'n'));
    case 2:
        return Text(std::string(m_input.Bytes(40)));
    default:
        return Text(NetworkName(m_input));
    }
}

const wchar_t* Arguments::Document()
{
    if (m_input.OneIn(8))
        return WideText();
    std::string xml = ProfileDocument(m_input);
    if (m_input.OneIn(4))
        xml.resize(xml.size() * m_input.Byte() / 256);
    return Text(forms::WideFromUtf8(xml));
}

DOT11_SSID* Arguments::Ssid()
{
    DOT11_SSID ssid = test::MakeSsid(NetworkName(m_input));
    if (m_input.OneIn(8))
        ssid.uSSIDLength = Number();
    return &New(ssid);
}

WLAN_CONNECTION_ATTRIBUTES* Arguments::Connection()
{
    WLAN_CONNECTION_ATTRIBUTES connection{};
    const std::wstring name = forms::WideFromUtf8(NetworkName(m_input));
    name.copy(connection.strProfileName, WLAN_MAX_NAME_LENGTH - 1);
    connection.wlanAssociationAttributes.dot11Ssid = *Ssid();
    connection.wlanAssociationAttributes.dot11BssType = static_cast<DOT11_BSS_TYPE>(m_input.Below(4));
    connection.wlanSecurityAttributes.bSecurityEnabled = m_input.OneIn(4) ? FALSE : TRUE;
    return &New(connection);
}

WLAN_CONNECTION_NOTIFICATION_DATA* Arguments::Notification()
{
    WLAN_CONNECTION_NOTIFICATION_DATA data{};
    const std::wstring name = forms::WideFromUtf8(NetworkName(m_input));
    name.copy(data.strProfileName, WLAN_MAX_NAME_LENGTH - 1);
    data.dot11Ssid = *Ssid();
    data.dot11BssType = static_cast<DOT11_BSS_TYPE>(m_input.Below(4));
    data.bSecurityEnabled = m_input.OneIn(4) ? FALSE : TRUE;
    return &New(data);
}

std::uint32_t Arguments::Number()
{
    constexpr std::uint32_t kEdges[] = {0, 1, 2, 3, 32, 33, 64, 65, 255, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    return m_input.OneIn(4) ? m_input.Number() : m_input.OneOf(kEdges);
}

} // namespace calvix::fuzz::session
