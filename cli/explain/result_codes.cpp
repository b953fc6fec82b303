#include "explain/result_codes.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace calvix::host
{

namespace
{

using enum Cause;
using enum ResultKind;

/// The rows of several tables, one after the other.
template <std::size_t... Sizes>
constexpr auto Joined(const CodeRow (&... tables)[Sizes])
{
    std::array<CodeRow, (Sizes + ...)> rows{};
    auto next = rows.begin();
    ((next = std::copy(std::begin(tables), std::end(tables), next)), ...);
    return rows;
}

// Frame and adapters

constexpr CodeRow kGetWlanStatus[] = {
    {-1, noSuchInterface}, {-2, clientNotOpened}, {-3, enumerationFailed}, {-4, noAdapter}};
constexpr CodeRow kGetWlanInterfaceGuid[] = {
    {-1, clientNotOpened}, {-2, enumerationFailed}, {-3, noAdapter}, {-4, noSuchDescription}};
constexpr CodeRow kGetWiFiAdapterCount[] = {{-2, clientNotOpened}, {-3, enumerationFailed}};
constexpr CodeRow kGetWlanInterface[] = {
    {-1, clientNotOpened}, {-2, enumerationFailed}, {-3, noAdapter}, {-13, nullOutput}};

// Scans, lists and counts

constexpr CodeRow kRescan[] = {{-1, clientNotOpened}, {-2, enumerationFailed}, {-3, noAdapter}, {-4, scanRefused}};
constexpr CodeRow kGetAvailableNetworkCount[] = {{-2, clientNotOpened}, {-5, networkListFailed}};
constexpr CodeRow kGetNetworkBssCount[] = {
    {-2, clientNotOpened}, {-3, enumerationFailed}, {-4, noAdapter}, {-5, bssListFailed}};
constexpr CodeRow kGetConnectableNetworkCount[] = {
    {-2, clientNotOpened}, {-5, profileListFailed}, {-6, noProfile}, {-7, networkListFailed}, {-8, networkListEmpty}};
constexpr CodeRow kGetAP[] = {{-1, clientNotOpened}, {-3, networkListFailed}, {-4, ssidNotVisible}, {-14, nullInput}};
constexpr CodeRow kGetNotConnectableReason[] = {
    {-1, clientNotOpened}, {-4, networkListFailed}, {-5, networkListEmpty}, {-6, networkNotListed}, {-14, nullInput}};
constexpr CodeRow kGetCurrentBSS[] = {{-1, clientNotOpened}, {-2, enumerationFailed}, {-3, noAdapter},
                                      {-4, notConnected},    {-5, bssListFailed},     {-6, noBssInView}};

// Signal metrics

constexpr CodeRow kGetRssi[] = {{-1, clientNotOpened}, {-4, rssiRefused}};
constexpr CodeRow kGetCurrentRSSI[] = {
    {-1, clientNotOpened}, {-4, notConnected}, {-5, bssListFailed}, {-6, noBssInView}, {-7, accessPointNotListed}};
constexpr CodeRow kGetWiFiRSSI[] = {{-1, clientNotOpened}};
constexpr CodeRow kGetSignalQuality[] = {{-1, clientNotOpened}, {-4, notConnected}};

// Profiles

constexpr CodeRow kGetWlanProfile[] = {{-1, profileNotFound}};
constexpr CodeRow kDeleteProfile[] = {{-1, clientNotOpened}, {-4, profileNotDeleted}};
constexpr CodeRow kProfilePosition[] = {{-1, clientNotOpened}};
constexpr CodeRow kGetProfileCount[] = {{-1, clientNotOpened}, {-4, profileListFailed}};
constexpr CodeRow kGetProfile[] = {{-1, clientNotOpened}, {-4, profileNotReadable}, {-13, nullOutput}};
constexpr CodeRow kSetProfile[] = {{-1, clientNotOpened}, {-4, profileNotStored}};
constexpr CodeRow kIsAutoConnMode2[] = {
    {-1, clientNotOpened}, {-4, profileNotReadable}, {-5, noConnectionMode}, {-6, malformedConnectionMode}};

// Current connection

constexpr CodeRow kCurrentConnection[] = {
    {-1, clientNotOpened}, {-2, enumerationFailed}, {-3, noAdapter}, {-4, notConnected}};
constexpr CodeRow kGetCurrentWiFi[] = {{-1, clientNotOpened}, {-4, bssListFailed}, {-14, nullInput}};
constexpr CodeRow kGetWlanStatistics[] = {{-1, clientNotOpened}, {-4, statisticsRefused}, {-13, nullOutput}};

// Access points of stored networks

constexpr CodeRow kGetMatchAP[] = {{-2, clientNotOpened},   {-5, profileListFailed}, {-6, noProfile},
                                   {-7, networkListFailed}, {-8, networkListEmpty},  {-13, nullOutput}};
constexpr CodeRow kGetConnectableAPList[] = {{-2, clientNotOpened},   {-3, enumerationFailed}, {-4, noAdapter},
                                             {-5, profileListFailed}, {-6, noProfile},         {-7, networkListFailed},
                                             {-8, networkListEmpty},  {-13, nullOutput},       {-14, nullInput}};
constexpr CodeRow kGetMatchBSSID[] = {{-1, diagnosticRun},      {-2, clientNotOpened},    {-5, profileListFailed},
                                      {-6, noProfile},          {-7, networkListFailed},  {-8, networkListEmpty},
                                      {-9, firstBssListFailed}, {-10, firstBssListEmpty}, {-11, laterBssListFailed},
                                      {-12, laterBssListEmpty}};

// Radio and interface settings

constexpr CodeRow kRadioState[] = {{-1, clientNotOpened}, {-4, radioStateUnknown}, {-5, noPhy}};
constexpr CodeRow kSupportedSafeMode[] = {{-2, clientNotOpened}, {-5, safeModeUnknown}};
constexpr CodeRow kRadioSwitch[] = {{-1, clientNotOpened}, {-4, radioNotSwitched}};
constexpr CodeRow kClientOnly[] = {{-1, clientNotOpened}};
// The method returns an unsigned number: all bits set.
constexpr CodeRow kSetIhvSecuritySettings[] = {{-1, otherServiceVersion}};

// Software access points, listings

constexpr CodeRow kGetSoftAPList[] = {{-1, clientNotOpened}, {-13, nullOutput}};
constexpr CodeRow kListing[] = {{1, someAdapterRefused}};

// Connecting, saved connection

constexpr CodeRow kLinkProfile[] = {{-1, clientNotOpened}, {-2, profileNotInView}};
constexpr CodeRow kReconnect[] = {
    {-1, clientNotOpened}, {-4, bssListFailed}, {-6, accessPointNotJoined}, {-14, nullInput}};
constexpr CodeRow kRecoverConnection[] = {{-1, clientNotOpened}, {-4, requestRefused}, {-14, nullInput}};
constexpr CodeRow kResetConnection[] = {{-1, clientNotOpened}, {-4, notConnected}, {-5, requestRefused}};
constexpr CodeRow kSaveConnection[] = {{-1, clientNotOpened}, {-4, notConnected}, {-5, profileNotReadable}};
constexpr CodeRow kRecoverSaved[] = {
    {-99, savedNotAutomatic}, {-1, clientNotOpened}, {-4, bssListFailed}, {-5, savedNotInView}, {-6, requestRefused}};
constexpr CodeRow kRecoverNotification[] = {{-1, clientNotOpened}, {-4, bssListFailed}, {-6, accessPointNotJoined}};

// Best access point, automatic connection, roaming

constexpr CodeRow kListed[] = {
    {-1, clientNotOpened}, {-4, profileListFailed}, {-5, noProfile}, {-6, networkListFailed}, {-7, networkListEmpty}};
constexpr CodeRow kNoCandidate[] = {{-9, noCandidate}};
constexpr CodeRow kNothingMatches[] = {{-9, nothingMatches}};
constexpr CodeRow kRanked[] = {{-10, bssListFailed}, {-11, bssListEmpty}, {-12, everyRequestRefused}};
constexpr CodeRow kNullExclusion[] = {{-14, nullInput}};
constexpr auto kConnectBestAP = Joined(kListed, kNoCandidate, kRanked, kNullExclusion);
constexpr auto kAutoConnect = Joined(kListed, kNothingMatches);
constexpr auto kAutoConnectEx = Joined(kListed, kNothingMatches, kRanked);
constexpr auto kConnectAutoMode = Joined(kListed, kNoCandidate);
constexpr CodeRow kAutoSwitch[] = {{-1, clientNotOpened}, {-3, notConnected},      {-4, profileListFailed},
                                   {-5, profileNotMoved}, {-6, networkListFailed}, {-7, nothingMatches}};
constexpr CodeRow kSmartSwitch[] = {{-1, clientNotOpened}, {-2, nothingBetter}};
constexpr CodeRow kSmartConnecting[] = {{-1, clientNotOpened}, {-2, nothingMatches}};
constexpr CodeRow kPreRoaming[] = {{-1, clientNotOpened}, {-4, notConnected}, {-5, signalGoodEnough},
                                   {-6, bssListFailed},   {-7, noBssInView},  {-8, alreadyThere}};
constexpr CodeRow kRoamingRefused[] = {{-9, requestRefused}};
constexpr auto kRoaming = Joined(kPreRoaming, kRoamingRefused);

// Power schemes, the internet

constexpr CodeRow kSetPowerScheme[] = {{-1, suspendNotAllowed},
                                       {-2, noActiveScheme},
                                       {-3, schemeNotReadable},
                                       {-4, schemeNotWritten},
                                       {-5, schemeNotActivated}};
constexpr CodeRow kResetPowerScheme[] = {
    {-1, suspendNotAllowed}, {-2, noActiveScheme}, {-3, schemeNotWritten}, {-4, schemeNotActivated}};
constexpr CodeRow kGetPowerScheme[] = {{-1, noActiveScheme},
                                       {-2, schemeNotCopied},
                                       {-3, schemeNotNamed},
                                       {-4, sleepTimeNotWritten},
                                       {-5, schemeNotActivated}};
constexpr CodeRow kOpenUrl[] = {{-1, internetNotReached}};

constexpr MethodResults kMethods[] = {
    {"Get", value, "the library's one object; null only when there is no memory for it"},
    {"Delete", nothing, "the client handle was closed and the object destroyed"},
    {"operator=", value, "this object, with the other one's state"},
    {"__autoclassinit2", nothing, "the beginning of the object was zeroed"},
    {"CheckAutoConfig", nothing, "the WLAN service was asked to start if it did not run; nothing is reported"},
    {"GetWlanStatus", value, "the adapter's state: 1 connected, 4 disconnected; GetWlanInterfaceState has the words",
     kGetWlanStatus},
    {"GetWlanIsLink", yesOrNo, "whether the adapter is connected"},
    {"GetWlanInterfaceState", text, "the words of an adapter's state"},
    {"GetWlanInterfaceGuid", status, "the adapter was found and its GUID written", kGetWlanInterfaceGuid},
    {"GUID2String", text, "the GUID's text"},
    {"GetWlanInterfaceDesc", text, "the adapter's description; empty when none was found"},
    {"GetWiFiAdapterCount", count, "the number of adapters", kGetWiFiAdapterCount},
    {"GetWlanInterface", status, "the adapters were listed", kGetWlanInterface},

    {"UnicodeToAnsi", yesOrNo, "whether the text was converted"},
    {"WideCharToChar", count, "the number of bytes made, terminator included; 0 when the text cannot be converted"},
    {"GetSSID", yesOrNo, "whether the SSID was converted to text"},
    {"StringToHex", text, "the bytes"},
    {"HexToString", text, "the hexadecimal text"},
    {"StringToHexString", text, "the hexadecimal text"},
    {"FormMAC", nothing, "the address was written as text"},
    {"GetBSSID", nothing, "the address was written as text"},

    {"Rescan", status, "the scan was requested; it is not done yet", kRescan},
    {"GetAvailableNetworkCount", count, "the number of visible networks, one for each matching profile",
     kGetAvailableNetworkCount},
    {"GetNetworkBssCount", count, "the number of access points in view of the first adapter", kGetNetworkBssCount},
    {"GetConnectableNetworkCount", count, "the number of pairs of a stored profile and a visible network",
     kGetConnectableNetworkCount},
    {"GetAP", status, "a visible network has the SSID", kGetAP},
    {"GetNotConnectableReason", status, "the network was found and its reason code written", kGetNotConnectableReason},
    {"IsWiFiDisappear", yesOrNo, "whether the connected network is out of view"},
    {"GetCurrentBSS", status, "the connected network has an access point in view", kGetCurrentBSS},

    {"GetChannel", value, "a channel number; in the 2.4 GHz band one below the customary number, 14 for none"},
    {"GetSignalStrength", value, "the signal strength from 0 to 100"},
    {"GetRssi", status, "the signal strength of the link was written", kGetRssi},
    {"GetCurrentRSSI", status, "the signal strength of the connected access point was written", kGetCurrentRSSI},
    {"GetWiFiRSSI", value, "an estimate in dBm from -100 to -50; -100 also when no such network is in view",
     kGetWiFiRSSI},
    {"GetSignalQuality", count, "the signal quality from 0 to 100", kGetSignalQuality},

    {"GetWlanProfile", platformError, "a profile of this name is stored", kGetWlanProfile},
    {"DeleteProfile", status, "the profile was deleted", kDeleteProfile},
    {"ResetProfilePosition", platformError, "the profile is in the second place, or there was nothing to move",
     kProfilePosition},
    {"SetProfilePosition", platformError, "the profile is in the last place, or there was nothing to move",
     kProfilePosition},
    {"GetProfileCount", count, "the number of stored profiles", kGetProfileCount},
    {"GetProfile", status, "the profile was read", kGetProfile},
    {"SetProfile", status, "the profile was stored", kSetProfile},
    {"IsThisSSID", yesOrNo, "whether the profile is for the SSID"},
    {"IsAutoConnMode", yesOrNo, "whether the profile connects automatically"},
    {"IsAutoConnMode2", yesOrNo, "whether the profile connects automatically", kIsAutoConnMode2},

    {"GetCurrentConnection", status, "the connection's attributes were written", kCurrentConnection},
    {"GetCurrentSSID", status, "the connected network's SSID was written", kCurrentConnection},
    {"GetCurrentLinkInfo", platformError, "state, SSID, address and BSS type of the link were written"},
    {"GetCurrentWiFi", count, "the number of access points in view that belong to the network", kGetCurrentWiFi},
    {"WiFiIsConnected", yesOrNo, "whether the adapter is connected"},
    {"WiFiIsDisconnected", yesOrNo, "whether the adapter is disconnected; no while it connects"},
    {"GetWlanStatistics", status, "the frame counters were written", kGetWlanStatistics},

    {"GetMatchAPList", count, "the number of access points that belong to stored profiles", kGetMatchAP},
    {"GetConnectableAPList", count, "the number of access points that belong to the profiles that count",
     kGetConnectableAPList},
    {"GetMatchAPCount", count, "the number of visible networks that have a profile and an access point in view",
     kGetMatchAP},
    {"GetMatchBSSID", status, "never returned", kGetMatchBSSID},

    {"ConnectBestAP", status, "a connection was requested and the service accepted it; it is not made yet",
     kConnectBestAP},

    {"RegisterNotification", platformError, "the callback is registered"},
    {"UnRegisterNotification", platformError, "no callback is registered any more"},

    {"PhyRadioIsOn", yesOrNo, "whether the radio is on"},
    {"PhyRadioIsOn2", yesOrNo, "whether the radio is on", kRadioState},
    {"PhyRadioTurnedOff", yesOrNo, "whether the radio is off"},
    {"PhyRadioTurnedOff2", yesOrNo, "whether the radio is off", kRadioState},
    {"SupportedSafeMode", yesOrNo, "whether the adapter supports safe mode", kSupportedSafeMode},
    {"RadioTurnOn", status, "the software radio was switched on", kRadioSwitch},
    {"TurnOnSoftwareRadio", status, "the software radio was switched on", kRadioSwitch},
    {"RadioTurnOff", status, "the software radio was switched off", kRadioSwitch},
    {"ResetWiFiRadio", status, "the radio was asked to go off and on; whether it did is not reported", kClientOnly},
    {"RestartWiFiRadio", nothing, "the radio was asked to go off and on; nothing is reported"},

    {"EnableAutoCfg", platformError, "automatic connection is on"},
    {"EnableBackgroundScan", platformError, "background scanning is on"},
    {"GetPowerSetting", platformError, "the power-saving level was queried; a refusal is not reported"},
    {"SetPowerSetting", status, "the method does nothing"},
    {"GetPowerSettingStr", text, "the name of a power-saving level"},
    {"SetIhvSecuritySettings", platformError, "ordinary users may send requests to the driver",
     kSetIhvSecuritySettings},
    {"IhvControl", platformError, "the driver answered"},

    {"GetSoftAPList", platformError, "the software access points in view were listed", kGetSoftAPList},
    {"SpecialSoftAP", yesOrNo, "whether the first adapter is connected to a software access point"},
    {"GetAvailableNetwork", platformError, "the visible networks were traced", kListing},
    {"GetNetworkBss", platformError, "the access points in view were traced", kListing},
    {"ReasonCode2String", yesOrNo, "whether the text was written"},

    {"LinkProfile", platformError, "a connection was requested and the service accepted it", kLinkProfile},
    {"Disconnect", platformError, "the service was asked to disconnect"},
    {"Reconnect", status, "a connection was requested and the service accepted it", kReconnect},
    {"RecoverConnection", status, "a connection was requested and the service accepted it", kRecoverConnection},
    {"ResetConnection", status, "the connection was requested again and the service accepted it", kResetConnection},
    {"SetCurrentWiFiToLast", platformError, "the profile is in the last place, or there was nothing to move",
     kClientOnly},
    {"SaveCurrentConnectionAttributes", status, "the connection is remembered", kSaveConnection},
    {"RecoverConnetionAttributes", status, "a connection was requested and the service accepted it", kRecoverSaved},
    {"SaveConnNotificationData", nothing, "the notification data is remembered"},
    {"RecoverConnNotificationData", status, "a connection was requested and the service accepted it",
     kRecoverNotification},

    {"AutoConnect", status, "connections were requested, whether or not the service accepted one", kAutoConnect},
    {"AutoConnectEx", status, "a connection was requested and the service accepted it", kAutoConnectEx},
    {"AutoSwitch", status, "connections were requested, whether or not the service accepted one", kAutoSwitch},
    {"SmartSwitch", platformError, "a connection was requested and the service accepted it", kSmartSwitch},
    {"SmartConnecting", platformError, "a connection was requested, or there is no adapter", kSmartConnecting},
    {"ConnectAutoMode", status, "connections were requested, whether or not the service accepted one",
     kConnectAutoMode},

    {"PreRoaming", status, "the network has a better access point", kPreRoaming},
    {"Roaming", status, "a better access point was requested and the service accepted it", kRoaming},

    {"GetPrivileges", yesOrNo, "whether the request was accepted, even if the account lacks the privilege"},
    {"EnablePriviledge", yesOrNo, "whether no step failed; yes also when the account does not hold the privilege"},
    {"ForceComputerSleep", yesOrNo, "whether the computer was put to sleep"},
    {"SetPowerScheme", status, "the power policy is remembered and an idle computer stays awake", kSetPowerScheme},
    {"ResetPowerScheme", status, "the remembered power policy is in force again", kResetPowerScheme},
    {"GetPowerScheme", status, "a copy of the power scheme that sleeps at once was made and is active",
     kGetPowerScheme},
    {"IsSurpportAoAc", yesOrNo, "whether the computer sleeps in the Modern Standby way"},
    {"GetLastWakeTime", value, "the last wake time in 100 ns; 0 when it could not be read"},
    {"GetLastSleepTime", value, "the last sleep time in 100 ns; 0 when it could not be read"},
    {"GetSystemPowerPolicy", platformError, "the power policy on battery could be read"},
    {"IsPowerHibernateAllowed", yesOrNo, "whether the computer woke by itself"},

    {"IsWow64", yesOrNo, "whether this is a 32-bit process on a 64-bit system"},
    {"CloseProcess", nothing, "the process was asked to end; nothing is reported"},
    {"CreateProcRunCmd", nothing, "the program has ended, or was never started; nothing is reported"},
    {"CreateProcRunExe", yesOrNo, "whether the program was started; it has ended"},
    {"GetAppPath", text, "the host program's folder; empty when it cannot be determined"},
    {"OpenUrl", status, "the internet can be reached", kOpenUrl},
};

} // namespace

std::span<const MethodResults> AllMethodResults()
{
    return kMethods;
}

} // namespace calvix::host
