#include <calvix/wireless_manage.h>

#include "core/bounded_copy.h"
#include "core/interface_state_text.h"
#include "core/trace.h"

using namespace calvix;

std::string_view calvix::InterfaceStateText(unsigned long state)
{
    switch (state)
    {
    case wlan_interface_state_not_ready:
        return "not ready";
    case wlan_interface_state_connected:
        return "connected";
    case wlan_interface_state_ad_hoc_network_formed:
        return "ad hoc network formed";
    case wlan_interface_state_disconnecting:
        return "disconnecting";
    case wlan_interface_state_disconnected:
        return "disconnected";
    case wlan_interface_state_associating:
        return "associating";
    case wlan_interface_state_discovering:
        return "discovering";
    case wlan_interface_state_authenticating:
        return "authenticating";
    default:
        return {};
    }
}

char* CWirelessManage::GetWlanInterfaceState(unsigned long state)
{
    auto& m_szInterfaceState = m_Text[0].szLong;
    if (const std::string_view text = InterfaceStateText(state); !text.empty())
        CopyTruncating(m_szInterfaceState, text);
    else
        FormatTrace(m_szInterfaceState, sizeof(m_szInterfaceState), "unknown(%lu)", state);
    return m_szInterfaceState;
}

char* CWirelessManage::GUID2String(const GUID& guid)
{
    auto& m_szGuid = m_Text[0].szShort;
    const auto& end = guid.Data4;
    FormatTrace(m_szGuid, sizeof(m_szGuid), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                static_cast<unsigned>(guid.Data1), guid.Data2, guid.Data3, end[0], end[1], end[2], end[3], end[4],
                end[5], end[6], end[7]);
    return m_szGuid;
}
