#include "text/value_text.h"

#include <calvix/wireless_manage.h>

#include "core/copies.h"
#include "core/trace.h"

using namespace calvix;

namespace
{

std::string_view PowerSettingText(unsigned long level)
{
    switch (level)
    {
    case wlan_power_setting_no_saving:
        return "wlan_power_setting_no_saving";
    case wlan_power_setting_low_saving:
        return "wlan_power_setting_low_saving";
    case wlan_power_setting_medium_saving:
        return "wlan_power_setting_medium_saving";
    case wlan_power_setting_maximum_saving:
        return "wlan_power_setting_maximum_saving";
    default:
        return "wlan_power_setting_invalid";
    }
}

} // namespace

void calvix::FormatAddress(const unsigned char* address, char* text, std::size_t capacity)
{
    FormatTrace(text, capacity, "%02X:%02X:%02X:%02X:%02X:%02X", address[0], address[1], address[2], address[3],
                address[4], address[5]);
}

void CWirelessManage::FormMAC(const unsigned char* address, char* destination)
{
    if (address != nullptr && destination != nullptr)
        FormatAddress(address, destination, kAddressTextSize);
}

void CWirelessManage::GetBSSID(const unsigned char* address, char* destination, int capacity)
{
    DOT11_MAC_ADDRESS copy = {};
    StrictCopy(copy, sizeof(copy), address, sizeof(copy), "GetBSSID");
    char text[24] = {};
    FormatAddress(copy, text, sizeof(text));
    CopyTruncatingToCaller(destination, capacity, text);
}

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
    if (const std::string_view text = InterfaceStateText(state); !text.empty())
        CopyTruncating(m_szInterfaceState, text);
    else
        FormatTrace(m_szInterfaceState, sizeof(m_szInterfaceState), "unknown(%lu)", state);
    return m_szInterfaceState;
}

char* CWirelessManage::GUID2String(const GUID& guid)
{
    const auto& end = guid.Data4;
    FormatTrace(m_szGuid, sizeof(m_szGuid), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                static_cast<unsigned>(guid.Data1), guid.Data2, guid.Data3, end[0], end[1], end[2], end[3], end[4],
                end[5], end[6], end[7]);
    return m_szGuid;
}

char* CWirelessManage::GetPowerSettingStr(unsigned long level)
{
    CopyTruncating(m_szPowerSetting, PowerSettingText(level));
    return m_szPowerSetting;
}

bool CWirelessManage::ReasonCode2String(unsigned long reasonCode, char* text, int textSize)
{
    constexpr DWORD capacity = 256;
    wchar_t reason[capacity] = {};
    // Deliberate: only an invalid parameter is a failure; after any other the empty text is converted.
    if (platform::wlan().WlanReasonCodeToString(reasonCode, capacity, reason, nullptr) == ERROR_INVALID_PARAMETER)
        return false;
    return platform::text().WideCharToMultiByte(CP_ACP, 0, reason, -1, text, textSize, nullptr, nullptr) != 0;
}
