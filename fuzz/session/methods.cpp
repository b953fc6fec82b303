#include "session/methods.h"

#include "session/making.h"

namespace calvix::fuzz::session
{

namespace
{

using Manager = CWirelessManage;

/// A call with one made argument for each parameter of the overload.
template <typename... Parameters>
struct With
{
    template <typename Result>
    static Call Of(Result (Manager::*method)(Parameters...))
    {
        return [method](Manager& manager, Arguments& arguments) -> std::optional<long long>
        {
            // In braces, which are evaluated from the left whatever the compiler.
            std::tuple<Manager&, Parameters...> made{manager, Make<Parameters>::From(arguments)...};
            if constexpr (std::is_arithmetic_v<Result>)
            {
                return static_cast<long long>(std::apply(method, made));
            }
            else
            {
                std::apply(method, made);
                return std::nullopt;
            }
        };
    }
};

std::vector<Method> MethodsOfPlainArguments()
{
    return {
        {"AutoConnect(GUID const*)", With<const GUID*>::Of(&Manager::AutoConnect)},
        {"AutoConnectEx(GUID const*)", With<const GUID*>::Of(&Manager::AutoConnectEx)},
        {"AutoSwitch(GUID const*)", With<const GUID*>::Of(&Manager::AutoSwitch)},
        {"CheckAutoConfig()", With<>::Of(&Manager::CheckAutoConfig)},
        {"ConnectAutoMode(GUID const*)", With<const GUID*>::Of(&Manager::ConnectAutoMode)},
        {"ConnectBestAP(GUID const*)", With<const GUID*>::Of(&Manager::ConnectBestAP)},
        {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*)",
         With<const GUID*, std::vector<WLAN_BSS_ENTRY>*>::Of(&Manager::ConnectBestAP)},
        {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*, wchar_t const*)",
         With<const GUID*, std::vector<WLAN_BSS_ENTRY>*, const wchar_t*>::Of(&Manager::ConnectBestAP)},
        {"ConnectBestAP(GUID const*, wchar_t const*)", With<const GUID*, const wchar_t*>::Of(&Manager::ConnectBestAP)},
        {"DeleteProfile(GUID const*, char const*)", With<const GUID*, const char*>::Of(&Manager::DeleteProfile)},
        {"DeleteProfile(GUID const*, wchar_t const*)", With<const GUID*, const wchar_t*>::Of(&Manager::DeleteProfile)},
        {"Disconnect(GUID const*)", With<const GUID*>::Of(&Manager::Disconnect)},
        {"EnableAutoCfg(GUID const*)", With<const GUID*>::Of(&Manager::EnableAutoCfg)},
        {"EnableBackgroundScan(GUID const*)", With<const GUID*>::Of(&Manager::EnableBackgroundScan)},
        {"ForceComputerSleep()", With<>::Of(&Manager::ForceComputerSleep)},
        {"GetAP(GUID const*, DOT11_SSID*)", With<const GUID*, DOT11_SSID*>::Of(&Manager::GetAP)},
        {"GetAppPath()", With<>::Of(&Manager::GetAppPath)},
        {"GetAvailableNetwork()", With<>::Of(&Manager::GetAvailableNetwork)},
        {"GetAvailableNetworkCount(GUID const*)", With<const GUID*>::Of(&Manager::GetAvailableNetworkCount)},
        {"GetChannel(unsigned long)", With<unsigned long>::Of(&Manager::GetChannel)},
        {"GetConnectableAPList(GUID const*, wchar_t*, std::vector<WLAN_BSS_ENTRY>*)",
         With<const GUID*, wchar_t*, std::vector<WLAN_BSS_ENTRY>*>::Of(&Manager::GetConnectableAPList)},
        {"GetConnectableAPList(wchar_t*, std::vector<WLAN_BSS_ENTRY>*)",
         With<wchar_t*, std::vector<WLAN_BSS_ENTRY>*>::Of(&Manager::GetConnectableAPList)},
        {"GetConnectableNetworkCount(GUID const*)", With<const GUID*>::Of(&Manager::GetConnectableNetworkCount)},
        {"GetCurrentBSS()", With<>::Of(&Manager::GetCurrentBSS)},
        {"GetCurrentConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         With<const GUID*, WLAN_CONNECTION_ATTRIBUTES*>::Of(&Manager::GetCurrentConnection)},
        {"GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES*)",
         With<WLAN_CONNECTION_ATTRIBUTES*>::Of(&Manager::GetCurrentConnection)},
        {"GetCurrentRSSI(GUID const*, int&)", With<const GUID*, int&>::Of(&Manager::GetCurrentRSSI)},
        {"GetCurrentWiFi(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         With<const GUID*, WLAN_CONNECTION_ATTRIBUTES*>::Of(&Manager::GetCurrentWiFi)},
        {"GetLastSleepTime()", With<>::Of(&Manager::GetLastSleepTime)},
        {"GetLastWakeTime()", With<>::Of(&Manager::GetLastWakeTime)},
        {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, int)",
         With<const GUID*, std::vector<std::wstring>*, int>::Of(&Manager::GetMatchAPCount)},
        {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, wchar_t const*, int)",
         With<const GUID*, std::vector<std::wstring>*, const wchar_t*, int>::Of(&Manager::GetMatchAPCount)},
        {"GetMatchAPList(GUID const*, std::vector<WLAN_BSS_ENTRY>*)",
         With<const GUID*, std::vector<WLAN_BSS_ENTRY>*>::Of(&Manager::GetMatchAPList)},
        {"GetMatchBSSID(GUID const*)", With<const GUID*>::Of(&Manager::GetMatchBSSID)},
        {"GetNetworkBss()", With<>::Of(&Manager::GetNetworkBss)},
        {"GetNetworkBssCount()", With<>::Of(&Manager::GetNetworkBssCount)},
        {"GetNotConnectableReason(GUID const*, DOT11_SSID*, unsigned long, int&, unsigned long&)",
         With<const GUID*, DOT11_SSID*, unsigned long, int&, unsigned long&>::Of(&Manager::GetNotConnectableReason)},
        {"GetPowerScheme()", With<>::Of(&Manager::GetPowerScheme)},
        {"GetPowerSetting(unsigned long&)", With<unsigned long&>::Of(&Manager::GetPowerSetting)},
        {"GetPowerSettingStr(unsigned long)", With<unsigned long>::Of(&Manager::GetPowerSettingStr)},
        {"GetPrivileges()", With<>::Of(&Manager::GetPrivileges)},
        {"GetProfile(GUID const*, wchar_t const*)", With<const GUID*, const wchar_t*>::Of(&Manager::GetProfile)},
        {"GetProfileCount(GUID const*)", With<const GUID*>::Of(&Manager::GetProfileCount)},
        {"GetRssi(GUID const*, int&)", With<const GUID*, int&>::Of(&Manager::GetRssi)},
        {"GetSignalQuality(GUID const*)", With<const GUID*>::Of(&Manager::GetSignalQuality)},
        {"GetSignalStrength(int)", With<int>::Of(&Manager::GetSignalStrength)},
        {"GetSoftAPList(GUID const*, std::vector<std::string>*)",
         With<const GUID*, std::vector<std::string>*>::Of(&Manager::GetSoftAPList)},
        {"GetSystemPowerPolicy()", With<>::Of(&Manager::GetSystemPowerPolicy)},
        {"GetWiFiAdapterCount()", With<>::Of(&Manager::GetWiFiAdapterCount)},
        {"GetWiFiRSSI(GUID const*, DOT11_SSID&)", With<const GUID*, DOT11_SSID&>::Of(&Manager::GetWiFiRSSI)},
        {"GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>*)",
         With<std::vector<WLAN_INTERFACE_INFO>*>::Of(&Manager::GetWlanInterface)},
        {"GetWlanInterfaceDesc(GUID const*)", With<const GUID*>::Of(&Manager::GetWlanInterfaceDesc)},
        {"GetWlanInterfaceState(unsigned long)", With<unsigned long>::Of(&Manager::GetWlanInterfaceState)},
        {"GetWlanIsLink(GUID const*)", With<const GUID*>::Of(&Manager::GetWlanIsLink)},
        {"GetWlanProfile(GUID const*, char const*)", With<const GUID*, const char*>::Of(&Manager::GetWlanProfile)},
        {"GetWlanStatistics(GUID const*, _WIFI_TXRX_COUNT*)",
         With<const GUID*, _WIFI_TXRX_COUNT*>::Of(&Manager::GetWlanStatistics)},
        {"GetWlanStatus(GUID const*)", With<const GUID*>::Of(&Manager::GetWlanStatus)},
        {"IsAutoConnMode2(GUID const*, wchar_t const*)",
         With<const GUID*, const wchar_t*>::Of(&Manager::IsAutoConnMode2)},
        {"IsPowerHibernateAllowed()", With<>::Of(&Manager::IsPowerHibernateAllowed)},
        {"IsSurpportAoAc()", With<>::Of(&Manager::IsSurpportAoAc)},
        {"IsWiFiDisappear(GUID const*)", With<const GUID*>::Of(&Manager::IsWiFiDisappear)},
        {"IsWow64()", With<>::Of(&Manager::IsWow64)},
        {"LinkProfile(GUID const*, char*)", With<const GUID*, char*>::Of(&Manager::LinkProfile)},
        {"OpenUrl()", With<>::Of(&Manager::OpenUrl)},
        {"PhyRadioIsOn(GUID const*)", With<const GUID*>::Of(&Manager::PhyRadioIsOn)},
        {"PhyRadioIsOn2(GUID const*)", With<const GUID*>::Of(&Manager::PhyRadioIsOn2)},
        {"PhyRadioIsOn2(GUID const*, unsigned int&, unsigned int&)",
         With<const GUID*, unsigned int&, unsigned int&>::Of(&Manager::PhyRadioIsOn2)},
        {"PhyRadioTurnedOff(GUID const*)", With<const GUID*>::Of(&Manager::PhyRadioTurnedOff)},
        {"PhyRadioTurnedOff2(GUID const*)", With<const GUID*>::Of(&Manager::PhyRadioTurnedOff2)},
        {"PreRoaming(GUID const*)", With<const GUID*>::Of(&Manager::PreRoaming)},
        {"RadioTurnOff(GUID const*)", With<const GUID*>::Of(&Manager::RadioTurnOff)},
        {"RadioTurnOn(GUID const*)", With<const GUID*>::Of(&Manager::RadioTurnOn)},
        {"Reconnect(GUID const*, WLAN_CONNECTION_ATTRIBUTES*, unsigned long)",
         With<const GUID*, WLAN_CONNECTION_ATTRIBUTES*, unsigned long>::Of(&Manager::Reconnect)},
        {"Reconnect(GUID const*, WLAN_CONNECTION_NOTIFICATION_DATA*, unsigned long)",
         With<const GUID*, WLAN_CONNECTION_NOTIFICATION_DATA*, unsigned long>::Of(&Manager::Reconnect)},
        {"RecoverConnNotificationData(GUID const*)", With<const GUID*>::Of(&Manager::RecoverConnNotificationData)},
        {"RecoverConnection(GUID const*, WLAN_CONNECTION_ATTRIBUTES*)",
         With<const GUID*, WLAN_CONNECTION_ATTRIBUTES*>::Of(&Manager::RecoverConnection)},
        {"RecoverConnetionAttributes(GUID const*)", With<const GUID*>::Of(&Manager::RecoverConnetionAttributes)},
        {"Rescan()", With<>::Of(&Manager::Rescan)},
        {"Rescan(GUID const*, unsigned long&)", With<const GUID*, unsigned long&>::Of(&Manager::Rescan)},
        {"ResetConnection(GUID const*)", With<const GUID*>::Of(&Manager::ResetConnection)},
        {"ResetPowerScheme()", With<>::Of(&Manager::ResetPowerScheme)},
        {"ResetProfilePosition(GUID const*, char const*)",
         With<const GUID*, const char*>::Of(&Manager::ResetProfilePosition)},
        {"ResetWiFiRadio(GUID const*)", With<const GUID*>::Of(&Manager::ResetWiFiRadio)},
        {"RestartWiFiRadio(GUID const*)", With<const GUID*>::Of(&Manager::RestartWiFiRadio)},
        {"Roaming(GUID const*)", With<const GUID*>::Of(&Manager::Roaming)},
        {"SaveConnNotificationData(WLAN_CONNECTION_NOTIFICATION_DATA*)",
         With<WLAN_CONNECTION_NOTIFICATION_DATA*>::Of(&Manager::SaveConnNotificationData)},
        {"SaveCurrentConnectionAttributes(GUID const*)",
         With<const GUID*>::Of(&Manager::SaveCurrentConnectionAttributes)},
        {"SetCurrentWiFiToLast()", With<>::Of(&Manager::SetCurrentWiFiToLast)},
        {"SetIhvSecuritySettings()", With<>::Of(&Manager::SetIhvSecuritySettings)},
        {"SetPowerScheme()", With<>::Of(&Manager::SetPowerScheme)},
        {"SetPowerSetting(unsigned long)", With<unsigned long>::Of(&Manager::SetPowerSetting)},
        {"SetProfilePosition(GUID const*, wchar_t const*)",
         With<const GUID*, const wchar_t*>::Of(&Manager::SetProfilePosition)},
        {"SmartSwitch(GUID const*)", With<const GUID*>::Of(&Manager::SmartSwitch)},
        {"SpecialSoftAP()", With<>::Of(&Manager::SpecialSoftAP)},
        {"SupportedSafeMode(GUID const*)", With<const GUID*>::Of(&Manager::SupportedSafeMode)},
        {"TurnOnSoftwareRadio(GUID const*)", With<const GUID*>::Of(&Manager::TurnOnSoftwareRadio)},
        {"TurnOnSoftwareRadio(GUID const*, unsigned long&)",
         With<const GUID*, unsigned long&>::Of(&Manager::TurnOnSoftwareRadio)},
        {"WiFiIsConnected(GUID const*)", With<const GUID*>::Of(&Manager::WiFiIsConnected)},
        {"WiFiIsDisconnected(GUID const*)", With<const GUID*>::Of(&Manager::WiFiIsDisconnected)},
        {"__autoclassinit2(unsigned long long)", With<unsigned long long>::Of(&Manager::__autoclassinit2)},
    };
}

} // namespace

const std::vector<Method>& EveryMethod()
{
    static const std::vector<Method> methods = []
    {
        std::vector<Method> all = MethodsOfPlainArguments();
        const std::vector<Method> others = MethodsOfParticularArguments();
        all.insert(all.end(), others.begin(), others.end());
        return all;
    }();
    return methods;
}

} // namespace calvix::fuzz::session
