// What methods give and trace when a call of the platform fails, a row a call, in the order in which they make them.

#include "methods/method.h"
#include "support/contract_table.h"
#include "support/fatal_errors.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>
#include <map>

namespace calvix::test::failure_contract_test
{

namespace
{

using methods::Arguments;
using methods::Method;
using methods::Parameter;
using methods::Role;

/// As a code: the number with which the operation failed.
constexpr long long kItsError = kSomeError;
constexpr unsigned kInvalidParameter = 87;
constexpr unsigned kNotFound = 1168;
constexpr unsigned kAccessDeniedStatus = 0xC0000022;

using Lines = std::vector<std::string>;

/// A failing call, after which the method calls nothing but releases, unless it goes on.
struct Failing
{
    std::string operation;
    long long code;
    std::optional<Lines> traced = {}; ///< none: "... failed with error: ...", if the method traces at all
    bool goesOn = false;
    unsigned fromCall = 1;
};

/// Where the lines of a method come from.
enum class Traces
{
    shared,
    local,
    nothing
};

using enum Traces;

struct Contract
{
    const char* method;
    Traces traces;
    std::vector<Failing> failures;
    void (*prepare)(LibraryTest&) = nullptr;
    unsigned error = kSomeError;
};

/// gtest prints the parameter of a test that failed.
[[maybe_unused]] void PrintTo(const Contract& contract, std::ostream* stream)
{
    *stream << contract.method;
}

// In the place of an operation: where there is nothing for the methods.
constexpr const char* kNoAdapterAtAll = "no adapter";
constexpr const char* kNoProfileAtAll = "no profile";
constexpr const char* kNothingHeard = "nothing heard";
constexpr const char* kNotConnectedAtAll = "not connected";

const std::map<std::string, simulation::Scenario (*)()> kEmptyWorlds = {{kNoAdapterAtAll, NoAdapterWorld},
                                                                        {kNoProfileAtAll, NoProfileWorld},
                                                                        {kNothingHeard, SilentWorld},
                                                                        {kNotConnectedAtAll, DisconnectedWorld}};

constexpr const char* kNameError = "Profile Name error: %u";
constexpr const char* kSetStateFailed = "set state failed!err is %u";

void SaveConnection(LibraryTest& test)
{
    EXPECT_EQ(0, test.manager().SaveCurrentConnectionAttributes(&kAdapterA));
}

void SaveNotification(LibraryTest& test)
{
    Arguments useful;
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
    {"RecoverConnetionAttributes", local, kReconnect, SaveConnection},
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
      {"WlanGetNetworkBssList", 0, Lines{kBssFailed, kConnectionReleased}}}},
    {"GetCurrentBSS",
     local,
     {{"WlanOpenHandle", -1},
      {"WlanEnumInterfaces", -2},
      {kNoAdapterAtAll, -3, Lines{kInterfacesReleased}},
      {"WlanQueryInterface", -4, Lines{"WlanQueryInterface failed with error: %u", kInterfacesReleased}},
      {kNotConnectedAtAll, -4, Lines{kNotConnected, kInterfacesReleased}},
      {"WlanGetNetworkBssList", -5, Lines{kBssFailed, kConnectionReleased, kInterfacesReleased}}}},
    {"GetRssi", local, AfterConnection({})},
    {"GetCurrentRSSI", local, AfterConnection({{"WlanGetNetworkBssList", -5, Lines{kBssFailed, kConnectionReleased}}})},
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

const std::vector<Failing> kBest = AfterLists({{"WlanGetNetworkBssList", -10}, {"WlanConnect", -12}});

/// Another access point of the network is better than the connected one.
void WeakenConnection(LibraryTest& test)
{
    simulation::Scenario world = RichWorld();
    world.accessPoints[0].rssi = -88;
    test.UseWorld(world);
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
    {"AutoConnectEx", shared, AfterLists({{"WlanGetNetworkBssList", -10}, {"WlanConnect", -12, kThreeRefused}})},
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
    {"PreRoaming", local, AfterConnection({{"WlanGetNetworkBssList", -6, Lines{}}}), WeakenConnection},
    {"Roaming", local, AfterConnection({{"WlanGetNetworkBssList", -6, Lines{}}, {"WlanConnect", -9}}),
     WeakenConnection},
};

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
    add(kInventory);
    add(kAutomatic);
    return all;
}

/// Null, or the GUID of no adapter, in the place of one parameter.
class ArgumentsOfNothing final : public Arguments
{
public:
    ArgumentsOfNothing(const Parameter& parameter, bool isNull) : m_parameter(parameter), m_isNull(isNull) {}

protected:
    bool IsNull(const Parameter& parameter) override { return m_isNull && &parameter == &m_parameter; }
    const GUID* Adapter() override { return m_isNull ? Arguments::Adapter() : &kNoAdapter; }

private:
    const Parameter& m_parameter;
    bool m_isNull;
};

class FailureContract : public LibraryTest, public ::testing::WithParamInterface<Contract>
{
public:
    FailureContract() : LibraryTest(Furnished(RichWorld())) {}

    const Method& method() const { return methods::FindMethod(GetParam().method); }

    /// The method has to leave its outputs alone.
    auto CallWith(Arguments& arguments) const
    {
        return [&arguments, &method = method()](CWirelessManage& manager) -> long long
        {
            methods::Call call(method, arguments);
            call.Make(manager);
            EXPECT_THAT(call.Outcome().outputs,
                        ::testing::Each(::testing::AnyOf(methods::kUntouched, "null", "0 entries")));
            return call.Outcome().code.value();
        };
    }

    FailureRow RowOf(const Failing& failing, Arguments& arguments) const
    {
        const Contract& contract = GetParam();
        const Lines usual = {failing.operation + " failed with error: %u"};
        FailureRow row{.method = contract.method,
                       .call = CallWith(arguments),
                       .expected = failing.code,
                       .traced = failing.traced.value_or(contract.traces == nothing ? Lines() : usual),
                       .buffer = contract.traces == shared ? TraceBuffer::shared : TraceBuffer::local,
                       .error = contract.error,
                       .fromCall = failing.fromCall,
                       .prepare = contract.prepare};
        if (const auto world = kEmptyWorlds.find(failing.operation); world != kEmptyWorlds.end())
            row.prepare = [make = world->second](LibraryTest& test) { test.UseWorld(make()); };
        else
        {
            row.failingOperation = failing.operation;
            row.ends = !failing.goesOn;
        }
        return row;
    }

    /// The last operation of a call that is refused; none if the method refuses it itself.
    std::string RefusedBy(Arguments& arguments)
    {
        if (GetParam().prepare != nullptr)
            GetParam().prepare(*this);
        ClearCalls();
        if (EndsFatally([&] { CallWith(arguments)(manager()); }))
            return {};
        std::string last;
        for (const std::string& operation : calls())
            if (operation != "WlanFreeMemory")
                last = operation;
        return last;
    }

    void ExpectRefusal(const Parameter& parameter, bool isNull)
    {
        ArgumentsOfNothing arguments(parameter, isNull);
        const std::string operation = RefusedBy(arguments);
        Restart();
        if (operation.empty())
            return;
        const std::vector<Failing>& failures = GetParam().failures;
        const auto failing = std::find_if(failures.begin(), failures.end(),
                                          [&](const Failing& each) { return each.operation == operation; });
        ASSERT_NE(failures.end(), failing) << operation;
        FailureRow row = RowOf(*failing, arguments);
        row.failingOperation.clear();
        row.ends = false;
        row.error = operation == "WlanGetNetworkBssList" && !isNull ? kNotFound : kInvalidParameter;
        if (failing->code == kItsError)
            row.expected = row.error;
        CheckFailure(*this, row);
    }
};

TEST_P(FailureContract, HasACodeForEachFailure)
{
    Arguments useful;
    for (const Failing& failing : GetParam().failures)
        CheckFailure(*this, RowOf(failing, useful));
}

TEST_P(FailureContract, LeavesWrongInputsForThePlatformToRefuse)
{
    for (const Parameter& parameter : method().parameters)
    {
        SCOPED_TRACE(parameter.type);
        if (parameter.role == Role::adapter)
            ExpectRefusal(parameter, false);
        if (parameter.role == Role::adapter || parameter.role == Role::name || parameter.role == Role::document)
            ExpectRefusal(parameter, true);
    }
}

INSTANTIATE_TEST_SUITE_P(Of,
                         FailureContract,
                         ::testing::ValuesIn(EveryContract()),
                         [](const auto& contract)
                         { return TestName(methods::FindMethod(contract.param.method), contract.index); });

} // namespace
} // namespace calvix::test::failure_contract_test
