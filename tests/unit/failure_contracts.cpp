#include "unit/failure_contracts.h"

#include "methods/method.h"
#include "unit/inventory/trace_texts.h"

#include <map>

namespace calvix::test::failure_contract
{

namespace
{

using enum Traces;

constexpr unsigned kAccessDeniedStatus = 0xC0000022;

// In the place of an operation: where there is nothing for the methods.
constexpr const char* kNoAdapterAtAll = "no adapter";
constexpr const char* kNoProfileAtAll = "no profile";
constexpr const char* kNothingHeard = "nothing heard";
constexpr const char* kNotConnectedAtAll = "not connected";
// The adapter is still connected, but the last scan did not hear its network, or its access point.
constexpr const char* kNetworkLost = "network lost";
constexpr const char* kAccessPointLost = "access point lost";

template <simulation::Scenario (*scenario)()>
void Use(LibraryTest& test)
{
    test.UseScenario(scenario());
}

/// The first ones of the network are not on the air any more.
template <int count>
void LoseAccessPoints(LibraryTest& test)
{
    auto& air = test.computer().air();
    air.erase(air.begin(), air.begin() + count);
    EXPECT_EQ(0, test.manager().Rescan());
    test.Advance(std::chrono::seconds(4));
}

constexpr const char* kNameError = "Profile Name error: %u";
constexpr const char* kSetStateFailed = "set state failed!err is %u";

void SaveConnection(LibraryTest& test)
{
    EXPECT_EQ(0, test.manager().SaveCurrentConnectionAttributes(&kAdapterA));
}

void SaveNotification(LibraryTest& test)
{
    methods::Arguments useful;
    methods::Call(methods::FindMethod("SaveConnNotificationData"), useful).Make(test.manager());
}

const std::vector<Failing> kFirstInterface = {{"WlanOpenHandle", -1},
                                              {"WlanEnumInterfaces", -2},
                                              {kNoAdapterAtAll, -3, Lines{kNoAdapterText}},
                                              {"WlanQueryInterface", -4}};
const std::vector<Failing> kQuery = {{"WlanOpenHandle", -1}, {"WlanQueryInterface", -4}};
/// A radio whose state cannot be read is neither on nor off.
const std::vector<Failing> kYesOrNo = {{"WlanOpenHandle", 0}, {"WlanQueryInterface", 0}};
const std::vector<Failing> kReadProfile = {{"WlanOpenHandle", -1}, {"WlanGetProfile", -4}};
const std::vector<Failing> kDeleteProfile = {{"WlanOpenHandle", -1}, {"WlanDeleteProfile", -4}};
const std::vector<Failing> kReconnect = {{"WlanOpenHandle", -1}, {"WlanGetNetworkBssList", -4}, {"WlanConnect", -6}};
const std::vector<Failing> kSwitchRadio = {{"WlanOpenHandle", -1}, {"WlanSetInterface", -4, Lines{kSetStateFailed}}};

const Contract kConnecting[] = {
    {"LinkProfile",
     local,
     {{"WlanOpenHandle", -1},
      {"WlanGetAvailableNetworkList", kItsError},
      {"MultiByteToWideChar", kItsError, Lines{kNameError}},
      {"WlanConnect", kItsError}}},
    // Deliberate: -1 for no failure here.
    {"Disconnect", local, {{"WlanOpenHandle", kItsError}, {"WlanDisconnect", kItsError}}},
    {"Reconnect(GUID const*, WLAN_CONNECTION_ATTRIBUTES*", local, kReconnect},
    {"Reconnect(GUID const*, WLAN_CONNECTION_NOTIFICATION_DATA*", local, kReconnect},
    // Deliberate: the only one of these methods that traces through the shared buffer.
    {"RecoverConnection", shared, {{"WlanOpenHandle", -1}, {"WlanConnect", -4}}},
    {"ResetConnection", local, {{"WlanOpenHandle", -1}, {"WlanQueryInterface", -4}, {"WlanConnect", -5}}},
    {"SaveCurrentConnectionAttributes",
     local,
     {{"WlanOpenHandle", -1}, {"WlanQueryInterface", -4}, {"WlanGetProfile", -5}}},
    {"RecoverConnetionAttributes",
     local,
     {{"WlanOpenHandle", -1}, {"WlanGetNetworkBssList", -4}, {kEmptyBssList, -5, Lines{}}, {"WlanConnect", -6}},
     SaveConnection},
    {"RecoverConnNotificationData", local, kReconnect, SaveNotification},
};

const Contract kCurrentConnection[] = {
    {"GetCurrentConnection(GUID const*", shared, kQuery},
    {"GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES*", shared, kFirstInterface},
    {"GetCurrentSSID(char*, int)", shared, kFirstInterface},
    {"GetCurrentSSID(char*, int, WLAN_CONNECTION_ATTRIBUTES*)", shared, kFirstInterface},
    // Deliberate: the platform's own numbers, where the other queries give -1 and -4.
    {"GetCurrentLinkInfo", local, {{"WlanOpenHandle", kItsError}, {"WlanQueryInterface", kItsError}}},
    {"GetCurrentWiFi", shared, {{"WlanOpenHandle", -1}, {"WlanGetNetworkBssList", -4}}},
    {"GetWlanStatistics", shared, kQuery},
};

const Contract kProfiles[] = {
    {"SetCurrentWiFiToLast",
     local,
     {{"WlanOpenHandle", -1},
      {"WlanEnumInterfaces", kItsError},
      {kNoAdapterAtAll, 0, Lines{"No valid WLAN adapter"}}, // Deliberate: no adapter reads as success.
      {"WlanGetProfileList", kItsError},
      {"WlanQueryInterface", kItsError},
      {"WlanSetProfilePosition", kItsError}}},
    // Deliberate: the failing step's own error number, that of the client handle included.
    {"GetWlanProfile",
     local,
     {{"WlanOpenHandle", kItsError},
      {"MultiByteToWideChar", kItsError, Lines{kNameError}},
      {"WlanGetProfileList", kItsError}}},
    {"GetProfileCount", shared, {{"WlanOpenHandle", -1}, {"WlanGetProfileList", -4}}},
    {"ResetProfilePosition",
     local,
     {{"WlanOpenHandle", -1},
      {"WlanGetProfileList", kItsError},
      {"MultiByteToWideChar", kItsError, Lines{kNameError}},
      {"WlanSetProfilePosition", kItsError}}},
    {"SetProfilePosition",
     local,
     {{"WlanOpenHandle", -1}, {"WlanGetProfileList", kItsError}, {"WlanSetProfilePosition", kItsError}}},
    {"DeleteProfile(GUID const*, char const*)", shared, kDeleteProfile},
    {"DeleteProfile(GUID const*, wchar_t const*)", shared, kDeleteProfile},
    {"GetProfile(GUID const*, wchar_t const*, wchar_t*", local, kReadProfile},
    {"GetProfile(GUID const*, wchar_t const*, char*", local, kReadProfile},
    {"GetProfile(GUID const*, wchar_t const*)", shared, kReadProfile},
    {"IsAutoConnMode2", local, kReadProfile},
    {"SetProfile", local, {{"WlanOpenHandle", -1}, {"WlanSetProfile", -4}}},
};

const Contract kRadio[] = {
    {"PhyRadioIsOn2(GUID const*, unsigned int&", local, kQuery},
    {"PhyRadioIsOn2(GUID const*)", shared, kQuery},
    {"PhyRadioIsOn", local, kYesOrNo},
    {"PhyRadioTurnedOff", local, kYesOrNo},
    {"PhyRadioTurnedOff2", local, kQuery},
    {"SupportedSafeMode", local, {{"WlanOpenHandle", -2}, {"WlanQueryInterface", -5}}},
    {"RadioTurnOn", shared, kSwitchRadio},
    {"TurnOnSoftwareRadio(GUID const*)", shared, kSwitchRadio},
    {"RadioTurnOff", local, kSwitchRadio},
    // Deliberate: what becomes of the two switches is only traced.
    {"ResetWiFiRadio",
     local,
     {{"WlanOpenHandle", -1},
      {"WlanSetInterface", 0, Lines{"set radio failed!err is %u", kSetStateFailed}, true},
      {"WlanSetInterface", 0, Lines{"set radio off OK", kSetStateFailed}, false, 2}}},
    {"EnableAutoCfg",
     local,
     {{"WlanOpenHandle", kItsError}, {"WlanSetInterface", kItsError, Lines{"Enable auto config failed! err is %u"}}}},
    {"EnableBackgroundScan",
     local,
     {{"WlanOpenHandle", kItsError},
      {"WlanSetInterface", kItsError, Lines{"Enable background scan failed! err is %u"}}}},
    // Deliberate: a refused query gives 0 like an answered one; only the open error comes out.
    {"GetPowerSetting",
     local,
     {{"WlanOpenHandle", kItsError},
      {"WlanQueryAutoConfigParameter", 0, Lines{"WlanQueryAutoConfigParameter failed! err is %u"}}}},
    // Deliberate: the service's refusal is not traced.
    {"SetIhvSecuritySettings",
     local,
     {{"WlanOpenHandle", kItsError, Lines{"SetSecuritySettings -> WlanOpenHandle failed with error: %u"}},
      {"WlanSetSecuritySettings", kItsError, Lines{}}}},
    // The result is unsigned, the traced number is not, and its line has a break of its own.
    {"IhvControl",
     local,
     {{"WlanOpenHandle", kItsError, Lines{"IhvControl -> WlanOpenHandle failed with error: %u"}},
      {"WlanIhvControl", kItsError, Lines{"WlanIhvControl ErrorCode:%d\n"}}}},
};

const Contract kFrame[] = {
    {"Get", shared, {{"WlanOpenHandle", true}}}, // the instance is there all the same
    {"RegisterNotification",
     shared,
     {{"WlanOpenHandle", kItsError}, {"WlanRegisterNotification", kItsError, Lines{"WlanRegisterNotification: %d"}}}},
    {"UnRegisterNotification",
     shared,
     {{"WlanOpenHandle", kItsError}, {"WlanRegisterNotification", kItsError, Lines{"WlanUnRegisterNotification: %d"}}}},
};

const Contract kTexts[] = {
    {"GetSSID(DOT11_SSID const*, char*", nothing, {{"MultiByteToWideChar", 0}, {"WideCharToMultiByte", 0}}},
    {"GetSSID(DOT11_SSID const*, wchar_t*", nothing, {{"MultiByteToWideChar", 0}}},
    {"UnicodeToAnsi", nothing, {{"WideCharToMultiByte", false}}},
    {"ReasonCode2String", nothing, {{"WideCharToMultiByte", false}}},
};

const Contract kSystem[] = {
    {"SetPowerScheme",
     nothing,
     {{"IsPwrSuspendAllowed", -1},
      {"GetActivePwrScheme", -2},
      {"ReadPwrScheme", -3},
      {"WritePwrScheme", -4},
      {"SetActivePwrScheme", -5}}},
    {"ResetPowerScheme",
     nothing,
     {{"IsPwrSuspendAllowed", -1}, {"GetActivePwrScheme", -2}, {"WritePwrScheme", -3}, {"SetActivePwrScheme", -4}}},
    {"GetPowerScheme",
     nothing,
     {{"PowerGetActiveScheme", -1},
      {"PowerDuplicateScheme", -2},
      {"PowerWriteFriendlyName", -3},
      {"PowerWriteACValueIndex", -4},
      {"PowerWriteACValueIndex", -4, {}, false, 2},
      {"PowerSetActiveScheme", -5}}},
    {"IsSurpportAoAc",
     shared,
     {{"CallNtPowerInformation", 0, Lines{"SYSTEM_POWER_CAPABILITIES fail"}}},
     nullptr,
     kAccessDeniedStatus},
    {"GetLastWakeTime",
     shared,
     {{"CallNtPowerInformation", 0, Lines{"GetLastWakeTime fail"}}},
     nullptr,
     kAccessDeniedStatus},
    {"GetLastSleepTime",
     shared,
     {{"CallNtPowerInformation", 0, Lines{"GetLastSleepTime fail"}}},
     nullptr,
     kAccessDeniedStatus},
    // Deliberate: only the last of its questions matters.
    {"IsPowerHibernateAllowed",
     nothing,
     {{"IsPwrHibernateAllowed", true, {}, true},
      {"IsPwrShutdownAllowed", true, {}, true},
      {"IsPwrSuspendAllowed", true, {}, true},
      {"IsSystemResumeAutomatic", false}}},
    {"ForceComputerSleep", nothing, {{"SetSuspendState", false}}},
    {"GetPrivileges",
     nothing,
     {{"OpenProcessToken", false}, {"LookupPrivilegeValueA", false}, {"AdjustTokenPrivileges", false}}},
    // Deliberate: a privilege that cannot be asked for counts as enabled.
    {"EnablePriviledge",
     nothing,
     {{"OpenProcessToken", true}, {"LookupPrivilegeValueA", true}, {"AdjustTokenPrivileges", false}}},
    {"IsWow64", nothing, {{"GetModuleHandleA", false, {}, true}, {"GetProcAddress", false}}},
    {"CreateProcRunExe",
     nothing,
     {{"GetModuleFileNameA", false, {}, true}, {"CreateProcessA", false}, {"WaitForSingleObject", true}}},
    {"OpenUrl", nothing, {{"InternetSetOptionA", 0, {}, true}, {"InternetCheckConnectionA", -1}}},
};

const Lines kNoAdapterLine = {kNoAdapterText};
const Lines kNotConnectedLine = {kNotConnected};

const std::vector<Failing> kListInterfaces = {
    {"WlanOpenHandle", -1}, {"WlanEnumInterfaces", -2}, {kNoAdapterAtAll, -3, kNoAdapterLine}};
/// Deliberate: the result does not distinguish a missing connection from a missing service.
const std::vector<Failing> kNoLink = {
    {"WlanOpenHandle", 0}, {"WlanEnumInterfaces", 0}, {kNoAdapterAtAll, 0, kNoAdapterLine}};

/// Profiles and networks, of which there must be some, and the access points of so many networks, each of which may fail.
std::vector<Failing> Collect(std::size_t networks)
{
    std::vector<Failing> failures = {{"WlanOpenHandle", -2},
                                     {"WlanGetProfileList", -5},
                                     {kNoProfileAtAll, -6, Lines{"No network profile: 4294967290"}},
                                     {"WlanGetAvailableNetworkList", -7},
                                     {kNothingHeard, -8, Lines{"No available network: 4294967288"}}};
    if (networks != 0)
        failures.push_back({"WlanGetNetworkBssList", 0, Lines(networks, kBssFailed), true});
    return failures;
}

/// The current connection, of which there must be one.
std::vector<Failing> AfterConnection(std::vector<Failing> failures)
{
    const Failing connection[] = {
        {"WlanOpenHandle", -1}, {"WlanQueryInterface", -4}, {kNotConnectedAtAll, -4, kNotConnectedLine}};
    failures.insert(failures.begin(), std::begin(connection), std::end(connection));
    return failures;
}

const Contract kAdapters[] = {
    {.method = "GetWlanStatus",
     .traces = shared,
     .failures = {{"WlanOpenHandle", -2}, {"WlanEnumInterfaces", -3}, {kNoAdapterAtAll, -4, kNoAdapterLine}},
     .findsAdapter = true},
    {.method = "GetWlanIsLink", .traces = shared, .failures = kNoLink, .findsAdapter = true},
    {.method = "WiFiIsConnected", .traces = local, .failures = kNoLink, .findsAdapter = true},
    {.method = "WiFiIsDisconnected",
     .traces = shared,
     .failures = kNoLink,
     .prepare = Use<DisconnectedScenario>,
     .findsAdapter = true},
    {"GetWlanInterfaceGuid", shared, kListInterfaces},
    {.method = "GetWlanInterfaceDesc",
     .traces = local,
     .failures = {{"WlanOpenHandle", 0},
                  {"WlanEnumInterfaces", 0},
                  {kNoAdapterAtAll, 0, kNoAdapterLine},
                  {"WideCharToMultiByte", 0, Lines{"Wlan Interface Describe: "}}},
     .findsAdapter = true},
    {"GetWiFiAdapterCount",
     local,
     {{"WlanOpenHandle", -2}, {"WlanEnumInterfaces", -3}, {kNoAdapterAtAll, 0, Lines{kInterfacesReleased}}}},
    {"GetWlanInterface", shared, kListInterfaces},
    {"Rescan()",
     shared,
     {{"WlanOpenHandle", -1}, {"WlanEnumInterfaces", -2}, {kNoAdapterAtAll, -3, kNoAdapterLine}, {"WlanScan", -4}}},
    // Deliberate: only the trace shows that the list was empty.
    {"GetAvailableNetwork", local, {{"WlanOpenHandle", kItsError}, {"WlanEnumInterfaces", 0}}},
    {"GetNetworkBss", local, {{"WlanOpenHandle", kItsError}, {"WlanEnumInterfaces", 0}}},
};

const Contract kInventory[] = {
    {"GetAvailableNetworkCount", shared, {{"WlanOpenHandle", -2}, {"WlanGetAvailableNetworkList", -5}}},
    {"GetNetworkBssCount",
     local,
     {{"WlanOpenHandle", -2},
      {"WlanEnumInterfaces", -3},
      {kNoAdapterAtAll, -4, kNoAdapterLine},
      {"WlanGetNetworkBssList", -5}}},
    {"GetConnectableNetworkCount", local, Collect(0)},
    {"GetAP",
     local,
     {{"WlanOpenHandle", -1}, {"WlanGetAvailableNetworkList", -3}, {kNothingHeard, -4, Lines{kNetworksReleased}}}},
    {"GetNotConnectableReason",
     local,
     {{"WlanOpenHandle", -1}, {"WlanGetAvailableNetworkList", -4}, {kNothingHeard, -5, Lines{}}}},
    // Deliberate: a failure answers like a network that is still in view.
    {"IsWiFiDisappear",
     local,
     {{"WlanOpenHandle", 0},
      {"WlanQueryInterface", 0},
      {kNotConnectedAtAll, 0, kNotConnectedLine},
      {"WlanGetNetworkBssList", 0, Lines{kBssFailed, kConnectionReleased}},
      {kNetworkLost, 1, Lines{kNoBss, kConnectionReleased, kBssReleased}}}},
    {"GetCurrentBSS",
     local,
     {{"WlanOpenHandle", -1},
      {"WlanEnumInterfaces", -2},
      {kNoAdapterAtAll, -3, Lines{kInterfacesReleased}},
      {"WlanQueryInterface", -4, Lines{"WlanQueryInterface failed with error: %u", kInterfacesReleased}},
      {kNotConnectedAtAll, -4, Lines{kNotConnected, kInterfacesReleased}},
      {"WlanGetNetworkBssList", -5, Lines{kBssFailed, kConnectionReleased, kInterfacesReleased}},
      {kNetworkLost, -6, Lines{kNoBss, kConnectionReleased, kBssReleased, kInterfacesReleased}}}},
    {"GetRssi", local, AfterConnection({})},
    {"GetCurrentRSSI", local,
     AfterConnection({{"WlanGetNetworkBssList", -5, Lines{kBssFailed, kConnectionReleased}},
                      {kNetworkLost, -6, Lines{kNoBss, kConnectionReleased, kBssReleased}},
                      {kAccessPointLost, -7, Lines{kConnectionReleased, kBssReleased}}})},
    // Deliberate: after the handle is open, a failure answers like a network at the floor of the scale.
    {"GetWiFiRSSI",
     local,
     {{"WlanOpenHandle", -1}, {"WlanGetAvailableNetworkList", -100}, {kNothingHeard, -100, Lines{}}}},
    {"GetSignalQuality", shared, AfterConnection({})},
    // Deliberate: the platform's own error number, beside -1 for the handle.
    {"GetSoftAPList", local, {{"WlanOpenHandle", -1}, {"WlanGetAvailableNetworkList", kItsError}}},
    {"SpecialSoftAP",
     local,
     {{"WlanOpenHandle", false},
      {"WlanEnumInterfaces", false},
      {kNoAdapterAtAll, false, kNoAdapterLine},
      {"WlanQueryInterface", false},
      {kNotConnectedAtAll, false, kNotConnectedLine}}},
};

/// Lists of profiles and networks, of which there must be some. The codes are traced as unsigned numbers.
std::vector<Failing> AfterLists(std::vector<Failing> failures)
{
    const Failing lists[] = {{"WlanOpenHandle", -1},
                             {"WlanGetProfileList", -4},
                             {kNoProfileAtAll, -5, Lines{"No network profile: 4294967291"}},
                             {"WlanGetAvailableNetworkList", -6},
                             {kNothingHeard, -7, Lines{"No available network: 4294967289"}}};
    failures.insert(failures.begin(), std::begin(lists), std::end(lists));
    return failures;
}

/// Of the three networks in view that profiles are stored for.
const Lines kThreeRefused = {3, "WlanConnect failed with error: %u"};

const std::vector<Failing> kBest =
    AfterLists({{"WlanGetNetworkBssList", -10}, {kEmptyBssList, -11, Lines{}}, {"WlanConnect", -12}});

/// Another access point of the network is better than the connected one.
void WeakenConnection(LibraryTest& test)
{
    simulation::Scenario scenario = RichScenario();
    scenario.accessPoints[0].rssi = -88;
    test.UseScenario(scenario);
}

const Contract kAutomatic[] = {
    {"GetMatchAPList", local, Collect(3)},
    {"GetConnectableAPList(GUID const*", local, Collect(2)},
    {"GetConnectableAPList(wchar_t*",
     local,
     {{"WlanOpenHandle", -2},
      {"WlanEnumInterfaces", -3},
      {kNoAdapterAtAll, -4, Lines{"No valid WLAN adapter: 4294967292"}},
      {"WlanGetProfileList", -5},
      {"WlanGetAvailableNetworkList", -7},
      {"WlanGetNetworkBssList", 0, Lines(2, kBssFailed), true}}},
    {"GetMatchAPCount(GUID const*, std::vector<std::wstring>*, int)", local, Collect(1)},
    // Deliberate: signed here, where the other methods trace the codes as unsigned numbers.
    {"GetMatchBSSID",
     local,
     {{"WlanOpenHandle", -2},
      {"WlanGetProfileList", -5},
      {kNoProfileAtAll, -6, Lines{"No network profile: -6"}},
      {"WlanGetAvailableNetworkList", -7},
      {kNothingHeard, -8, Lines{"No available network: -8"}}}},
    {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*, wchar_t", shared, kBest},
    {"ConnectBestAP(GUID const*, std::vector<WLAN_BSS_ENTRY>*)", shared, kBest},
    {"ConnectBestAP(GUID const*, wchar_t", shared, kBest},
    {"ConnectBestAP(GUID const*)", shared, kBest},
    {"AutoConnectEx", shared,
     AfterLists({{"WlanGetNetworkBssList", -10}, {kEmptyBssList, -11, Lines{}}, {"WlanConnect", -12, kThreeRefused}})},
    // Deliberate: walks on which every request was refused report success.
    {"AutoConnect", shared, AfterLists({{"WlanConnect", 0, kThreeRefused}})},
    {"AutoSwitch",
     local,
     {{"WlanOpenHandle", -1},
      {"WlanQueryInterface", -3},
      {kNotConnectedAtAll, -3, kNotConnectedLine},
      {"WlanGetProfileList", -4},
      {"WlanSetProfilePosition", -5},
      {"WlanGetAvailableNetworkList", -6},
      {"WlanConnect", 0, kThreeRefused}}},
    {.method = "SmartSwitch",
     .traces = local,
     .failures = {{"WlanOpenHandle", -1},
                  {"WlanQueryInterface", kItsError},
                  {kNotConnectedAtAll, 5023, kNotConnectedLine},
                  {"MultiByteToWideChar", kItsError, Lines{kNameError}},
                  {"WlanGetProfileList", kItsError},
                  {"WlanGetAvailableNetworkList", kItsError},
                  {"WlanConnect", kItsError}},
     .prepare = WeakenConnection,
     .convertsWrongly = true},
    {.method = "SmartConnecting",
     .traces = local,
     .failures = {{"WlanOpenHandle", -1},
                  {"WlanEnumInterfaces", kItsError},
                  {kNoAdapterAtAll, 0, kNoAdapterLine}, // Deliberate: no adapter reads as success.
                  {"WlanGetProfileList", kItsError},
                  {kNoProfileAtAll, -2, Lines{}},
                  {"WlanGetAvailableNetworkList", kItsError},
                  {kNothingHeard, -2, Lines{}},
                  {"WlanConnect", kItsError}},
     .findsAdapter = true},
    // Deliberate: a walk on which every request was refused reports success.
    {.method = "ConnectAutoMode",
     .traces = local,
     .failures = AfterLists({{"WlanGetProfile", -9, Lines(5, "WlanGetProfile failed with error: %u")},
                             {"MultiByteToWideChar", -9, Lines{}},
                             {"WlanConnect", 0, {}, true}}),
     .convertsWrongly = true},
    {"PreRoaming", local, AfterConnection({{"WlanGetNetworkBssList", -6, Lines{}}, {kEmptyBssList, -7, Lines{}}}),
     WeakenConnection},
    {"Roaming", local,
     AfterConnection({{"WlanGetNetworkBssList", -6, Lines{}}, {kEmptyBssList, -7, Lines{}}, {"WlanConnect", -9}}),
     WeakenConnection},
};

} // namespace

std::vector<Contract> EveryContract()
{
    std::vector<Contract> all;
    const auto add = [&all](const auto& contracts)
    { all.insert(all.end(), std::begin(contracts), std::end(contracts)); };
    add(kConnecting);
    add(kCurrentConnection);
    add(kProfiles);
    add(kRadio);
    add(kFrame);
    add(kTexts);
    add(kSystem);
    add(kAdapters);
    add(kInventory);
    add(kAutomatic);
    return all;
}

void (*Bringing(const std::string& operation))(LibraryTest&)
{
    static const std::map<std::string, void (*)(LibraryTest&)> states = {
        {kNoAdapterAtAll, Use<NoAdapterScenario>}, {kNoProfileAtAll, Use<NoProfileScenario>},
        {kNothingHeard, Use<SilentScenario>},      {kNotConnectedAtAll, Use<DisconnectedScenario>},
        {kNetworkLost, LoseAccessPoints<3>},       {kAccessPointLost, LoseAccessPoints<1>}};
    const auto state = states.find(operation);
    return state != states.end() ? state->second : nullptr;
}

} // namespace calvix::test::failure_contract
