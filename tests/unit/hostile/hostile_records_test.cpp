// A service whose records hold what no service should say. What the methods make of it follows from their rules, or is
// their answer to a failed call; nothing is read beyond the records, which the sanitizers watch, and nothing is left held.

#include "explain/result_codes.h"
#include "methods/method.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"
#include "unit/hostile/empty_handed_service.h"

#include "core/wlan_records.h"

#include <cstddef>

namespace calvix::test::hostile_records_test
{
namespace
{

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::Each;

using methods::Method;
using methods::Outcome;
using methods::Role;

class HostileRecordsTest : public LibraryTest
{
public:
    Outcome Ask(const Method& method, methods::Arguments&& arguments = {})
    {
        methods::Call call(method, arguments);
        call.Make(manager());
        return call.Outcome();
    }
    /// Of the method with this name, the length of its result if that is a text.
    long long Result(const char* method)
    {
        const Outcome outcome = Ask(methods::FindMethod(method));
        return outcome.code.value_or(static_cast<long long>(outcome.text.size()));
    }

    void CallEverything()
    {
        for (const Method& method : methods::EveryMethod())
        {
            SCOPED_TRACE(method.declaration);
            if (method.Is("Delete"))
                continue;
            const bool fatal = EndsFatally([&] { Ask(method); });
            EXPECT_TRUE(!fatal || method.Is("GetCurrentSSID") || method.Is("GetCurrentLinkInfo"));
            ExpectNothingHeld();
        }
    }
};

const std::string kFullName(WLAN_MAX_NAME_LENGTH, 'n');
const std::wstring kFullWideName(WLAN_MAX_NAME_LENGTH, L'n');

template <std::size_t Capacity>
void FillUp(wchar_t (&name)[Capacity])
{
    std::fill(std::begin(name), std::end(name), L'n');
}

template <typename List, typename Change>
void ChangeEach(List& list, Change change)
{
    for (const auto& item : Items(list))
        change(const_cast<std::remove_cvref_t<decltype(item)>&>(item));
}

struct Spoiling
{
    const char* name;
    AnswerChanges changes;
};

Spoiling SsidLength(const char* name, ULONG stated)
{
    const auto spoil = [stated](auto& record) { record.dot11Ssid.uSSIDLength = stated; };
    return {name,
            {.networks = [spoil](auto& list) { ChangeEach(list, spoil); },
             .bss = [spoil](auto& list) { ChangeEach(list, spoil); },
             .query =
                 [spoil](WLAN_INTF_OPCODE opcode, PVOID data, DWORD&)
             {
                 if (opcode == wlan_intf_opcode_current_connection)
                     spoil(static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data)->wlanAssociationAttributes);
             }}};
}

Spoiling Numbers(const char* name, std::uint32_t number)
{
    const auto network = [number](WLAN_AVAILABLE_NETWORK& each)
    {
        each.wlanSignalQuality = number;
        each.dot11BssType = static_cast<DOT11_BSS_TYPE>(number);
        each.uNumberOfPhyTypes = number;
        each.wlanNotConnectableReason = number;
    };
    const auto entry = [number](WLAN_BSS_ENTRY& each)
    {
        each.ulChCenterFrequency = number;
        each.lRssi = static_cast<std::int32_t>(number);
        each.uLinkQuality = number;
        each.ulIeOffset = number;
        each.ulIeSize = number;
        each.ullHostTimestamp = number == 0 ? 0 : ~0ULL;
        each.dot11BssPhyType = static_cast<DOT11_PHY_TYPE>(number);
    };
    return {name,
            {.interfaces =
                 [number](WLAN_INTERFACE_INFO_LIST& list)
             {
                 list.dwIndex = number;
                 ChangeEach(list, [number](auto& each) { each.isState = static_cast<WLAN_INTERFACE_STATE>(number); });
             },
             .networks = [network](auto& list) { ChangeEach(list, network); },
             .profiles = [number](WLAN_PROFILE_INFO_LIST& list) { list.dwIndex = number; },
             .bss = [entry](auto& list) { ChangeEach(list, entry); }}};
}

AnswerChanges FullNames()
{
    return {.interfaces = [](auto& list)
            { ChangeEach(list, [](auto& each) { FillUp(each.strInterfaceDescription); }); },
            .networks = [](auto& list) { ChangeEach(list, [](auto& each) { FillUp(each.strProfileName); }); },
            .profiles = [](auto& list) { ChangeEach(list, [](auto& each) { FillUp(each.strProfileName); }); },
            .query =
                [](WLAN_INTF_OPCODE opcode, PVOID data, DWORD&)
            {
                if (opcode == wlan_intf_opcode_current_connection)
                    FillUp(static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data)->strProfileName);
            }};
}

template <typename List>
void Empty(List& list)
{
    list.dwNumberOfItems = 0;
    list.dwIndex = 5;
}

AnswerChanges EmptyLists()
{
    return {.interfaces = Empty<WLAN_INTERFACE_INFO_LIST>,
            .networks = Empty<WLAN_AVAILABLE_NETWORK_LIST>,
            .profiles = Empty<WLAN_PROFILE_INFO_LIST>,
            .bss = [](WLAN_BSS_LIST& list) { list.dwNumberOfItems = 0; }};
}

AnswerChanges AdaptersOfNowhere()
{
    return {.interfaces = [](auto& list) { ChangeEach(list, [](auto& each) { each.InterfaceGuid = kNoAdapter; }); }};
}

std::vector<Spoiling> EverySpoiling()
{
    return {SsidLength("SSIDs of 33 bytes", 33),
            SsidLength("SSIDs of 255 bytes", 255),
            SsidLength("SSIDs of 4294967295 bytes", 0xFFFFFFFF),
            Numbers("all zero", 0),
            Numbers("just above 100", 101),
            Numbers("the smallest negative number", 0x80000000),
            Numbers("the largest number", 0xFFFFFFFF),
            {"names without a terminator", FullNames()},
            {"empty lists", EmptyLists()},
            {"adapters of nowhere", AdaptersOfNowhere()}};
}

TEST_F(HostileRecordsTest, NoRecordBringsAMethodDown)
{
    for (Spoiling& spoiling : EverySpoiling())
    {
        SCOPED_TRACE(spoiling.name);
        UseScenario(Furnished(RichScenario()));
        const EditedAnswers altered(std::move(spoiling.changes));
        CallEverything();
    }
}

// --- Success without a result ---

struct EmptyHanded
{
    std::string operation;
    std::vector<const char*> methods;                           ///< whose result is the one of a refused operation
    std::vector<std::pair<const char*, long long>> others = {}; ///< with their results
};

const EmptyHanded kEmptyHanded[] = {
    {"WlanEnumInterfaces",
     {"GetWlanStatus", "GetWlanInterfaceGuid", "GetWlanInterface", "GetWlanInterfaceDesc", "GetWiFiAdapterCount",
      "Rescan()", "GetNetworkBssCount", "GetCurrentBSS", "GetConnectableAPList(wchar_t*", "SmartConnecting",
      "SetCurrentWiFiToLast", "SpecialSoftAP", "GetCurrentConnection(WLAN", "WiFiIsConnected"}},
    {"WlanGetProfileList",
     {"GetProfileCount", "GetWlanProfile", "SetProfilePosition", "GetConnectableNetworkCount", "AutoConnect",
      "GetMatchAPList", "ConnectBestAP", "SmartConnecting", "AutoSwitch", "ConnectAutoMode", "SetCurrentWiFiToLast"}},
    {"WlanGetAvailableNetworkList",
     {"GetAvailableNetworkCount", "GetAP", "GetNotConnectableReason", "GetSoftAPList", "LinkProfile", "AutoConnect",
      "GetMatchAPList", "ConnectBestAP", "SmartConnecting", "ConnectAutoMode"},
     {{"GetWiFiRSSI", -100}, {"GetAvailableNetwork", 1}}},
    {"WlanGetNetworkBssList",
     {"GetNetworkBssCount", "IsWiFiDisappear", "GetCurrentBSS", "GetCurrentRSSI", "GetMatchBSSID", "ConnectBestAP",
      "Reconnect", "PreRoaming", "Roaming", "RecoverConnetionAttributes"},
     {{"GetNetworkBss", 1}, {"GetMatchAPList", 0}}},
    {"WlanQueryInterface",
     {"GetRssi", "GetCurrentRSSI", "GetSignalQuality", "GetCurrentConnection(WLAN", "PhyRadioIsOn2",
      "SupportedSafeMode", "GetWlanStatistics", "GetCurrentBSS", "ResetConnection", "SaveCurrentConnectionAttributes",
      "AutoSwitch", "SmartSwitch", "PreRoaming", "SetCurrentWiFiToLast", "SpecialSoftAP"}},
    {"WlanQueryAutoConfigParameter", {}, {{"GetPowerSetting", 0}}},
    {"WlanGetProfile",
     {"GetProfile", "IsAutoConnMode2", "SaveCurrentConnectionAttributes"},
     {{"ConnectAutoMode", -9}}}};

/// The method's code for the operation; without one it passes on the error of data that is not there, 13, or answers no.
long long ResultOfRefusal(const Method& method, const std::string& operation)
{
    const host::MethodResults& results = *host::FindMethod(method.Name());
    for (const host::CodeRow& row : results.codes)
        if (const char* const refused = host::Describe(row.cause).operation; refused != nullptr && operation == refused)
            return row.code;
    return results.kind == host::ResultKind::platformError ? 13 : 0;
}

/// Where roaming is worth considering.
simulation::Scenario WeakScenario()
{
    simulation::Scenario scenario = Furnished(RichScenario());
    scenario.accessPoints[0].rssi = -88;
    return scenario;
}

TEST_F(HostileRecordsTest, SuccessWithoutAResultIsAFailedCall)
{
    for (const auto& [operation, names, others] : kEmptyHanded)
    {
        SCOPED_TRACE(operation);
        UseScenario(WeakScenario());
        const EmptyHandedAnswers emptyHanded(operation);
        std::vector<std::pair<const char*, long long>> results = others;
        for (const char* name : names)
            results.emplace_back(name, ResultOfRefusal(methods::FindMethod(name), operation));
        for (const auto& [name, result] : results)
        {
            SCOPED_TRACE(name);
            EXPECT_EQ(result, Result(name));
            EXPECT_THAT(Ask(methods::FindMethod(name)).outputs, Each(AnyOf(methods::kUntouched, "0 entries")));
        }
        CallEverything();
        EXPECT_THAT(traced(),
                    AnyOf(Contains(operation + " failed with error: 13"), Contains(operation + " failed! err is 13")));
    }
}

// --- Short answers ---

TEST_F(HostileRecordsTest, AnAnswerShorterThanItsRecordIsAFailedQuery)
{
    const EditedAnswers altered({.query = [](WLAN_INTF_OPCODE, PVOID, DWORD& size) { size = 0; }});
    EXPECT_EQ(-4, Result("GetRssi"));
    EXPECT_EQ(-5, Result("SupportedSafeMode"));
    EXPECT_EQ(-4, Result("PhyRadioIsOn2"));
    EXPECT_EQ(-4, Result("GetWlanStatistics"));
    EXPECT_EQ(0, Result("GetCurrentConnection")) << "of this record so much is copied as the service says";
}

/// Cuts the record of the current connection.
AnswerChanges ConnectionOf(std::size_t bytes)
{
    return {.query = [bytes](WLAN_INTF_OPCODE, PVOID, DWORD& size) { size = static_cast<DWORD>(bytes); }};
}

TEST_F(HostileRecordsTest, AConnectionLongerThanItsRecordIsNotSaved)
{
    const EditedAnswers altered(ConnectionOf(sizeof(WLAN_CONNECTION_ATTRIBUTES) + 1));
    ExpectFatal([&] { manager().SaveCurrentConnectionAttributes(&kAdapterA); }, "SaveCurrentConnectionAttributes");
}

// A method that needs a missing member treats the call as failed; none reads past the answer.
TEST_F(HostileRecordsTest, AConnectionThatEndsBeforeWhatIsReadIsAFailedQuery)
{
    using Record = WLAN_CONNECTION_ATTRIBUTES;
    const std::size_t name = offsetof(Record, wlanAssociationAttributes);
    const std::size_t association = offsetof(Record, wlanSecurityAttributes);
    const std::size_t secured = association + sizeof(BOOL);
    struct Case
    {
        const char* method;
        long long refused;
        std::size_t needed;
    };
    const Case cases[] = {{"SpecialSoftAP", 0, name},
                          {"SetCurrentWiFiToLast", 24, name},
                          {"SaveCurrentConnectionAttributes", -4, name},
                          {"AutoSwitch", -3, name},
                          {"ResetConnection", -4, association},
                          {"GetSignalQuality", -4, association},
                          {"GetCurrentSSID(char*, int)", -4, association},
                          {"GetCurrentSSID(char*, int, WLAN", -4, association},
                          {"GetCurrentLinkInfo", 24, association},
                          {"SmartSwitch", 24, association},
                          {"IsWiFiDisappear", 0, secured},
                          {"GetCurrentBSS", -4, secured},
                          {"GetCurrentRSSI", -4, secured},
                          {"PreRoaming", -4, secured},
                          {"Roaming", -4, secured}};
    for (const Case& each : cases)
    {
        SCOPED_TRACE(each.method);
        const std::string refusal = "WlanQueryInterface failed with error: 24";
        UseScenario(WeakScenario());
        {
            const EditedAnswers altered(ConnectionOf(each.needed - 1));
            EXPECT_EQ(each.refused, Result(each.method));
            EXPECT_THAT(traced(), Contains(refusal));
        }
        ClearCalls();
        const EditedAnswers altered(ConnectionOf(each.needed));
        Result(each.method);
        EXPECT_THAT(traced(), ::testing::Not(Contains(refusal)));
    }
}

TEST_F(HostileRecordsTest, APowerSettingThatDidNotComeWholeIsAFailedQuery)
{
    const EditedAnswers altered({.parameter = [](DWORD& size) { size = sizeof(WLAN_POWER_SETTING) - 1; }});
    EXPECT_EQ((Outcome{0, "", {methods::kUntouched}}), Ask(methods::FindMethod("GetPowerSetting")));
    EXPECT_THAT(traced(), ::testing::ElementsAre("WlanQueryAutoConfigParameter failed! err is 24"));
}

TEST_F(HostileRecordsTest, AnRssiOfFourBytesIsWhole)
{
    for (const DWORD bytes : {3UL, 4UL})
    {
        const EditedAnswers altered(ConnectionOf(bytes));
        EXPECT_EQ(bytes == 4 ? 0 : -4, Result("GetRssi")) << bytes;
    }
    EXPECT_EQ("sizeof(LONG)", call("WlanQueryInterface")["dataSize"]) << "which has 4 bytes on the platform";
}

// --- Null records ---

TEST_F(HostileRecordsTest, NullRecordsAreRefusedBeforeAnythingElse)
{
    struct Case
    {
        const char* method; ///< all that share the name
        Role role;
        long long refused;
    };
    const Case cases[] = {{"GetWlanInterface", Role::list, -13},
                          {"GetSoftAPList", Role::list, -13},
                          {"GetWlanStatistics", Role::record, -13},
                          {"GetProfile(GUID const*, wchar_t const*, wchar_t*", Role::room, -13},
                          {"GetMatchAPList", Role::list, -13},
                          {"GetConnectableAPList", Role::list, -13},
                          {"GetMatchAPCount", Role::list, -13},
                          {"GetAP", Role::ssid, -14},
                          {"GetNotConnectableReason", Role::ssid, -14},
                          {"GetCurrentWiFi", Role::connection, -14},
                          {"Reconnect", Role::connection, -14},
                          {"Reconnect", Role::notification, -14},
                          {"RecoverConnection", Role::connection, -14},
                          {"GetConnectableAPList", Role::name, -14},
                          {"ConnectBestAP", Role::list, -14},
                          {"ConnectBestAP", Role::name, -14}};
    ForgetClient();
    for (const Case& each : cases)
    {
        std::size_t refusals = 0;
        for (const Method& method : methods::EveryMethod())
            for (const methods::Parameter& parameter : method.parameters)
                if (method.Is(each.method) && parameter.role == each.role)
                {
                    EXPECT_EQ(each.refused, Ask(method, methods::ArgumentsWithNull(parameter)).code)
                        << method.declaration;
                    ++refusals;
                }
        EXPECT_LE(1u, refusals) << each.method;
    }
    EXPECT_TRUE(timeline().empty());
}

TEST_F(HostileRecordsTest, NoNullPointerBringsAMethodDown)
{
    UseScenario(Furnished(RichScenario()));
    for (const Method& method : methods::EveryMethod())
        for (const methods::Parameter& parameter : method.parameters)
        {
            if (!parameter.IsPointer())
                continue;
            SCOPED_TRACE(method.declaration + ", the " + parameter.type);
            Outcome outcome;
            const bool fatal = EndsFatally([&] { outcome = Ask(method, methods::ArgumentsWithNull(parameter)); });
            const host::MethodResults* const results = host::FindMethod(method.Name());
            ASSERT_NE(nullptr, results);
            EXPECT_TRUE(fatal || !outcome.code || host::Explain(*results, *outcome.code).known) << *outcome.code;
            ExpectNothingHeld();
        }
}

TEST_F(HostileRecordsTest, RadioStateWithoutItsFirstPhyHasNone)
{
    constexpr DWORD kCountOnly = offsetof(WLAN_RADIO_STATE, PhyRadioState);
    constexpr DWORD kWithPhy = kCountOnly + sizeof(WLAN_PHY_RADIO_STATE);
    for (const DWORD told : {kCountOnly, kWithPhy - 1})
    {
        const EditedAnswers altered({.query = [told](WLAN_INTF_OPCODE, PVOID, DWORD& size) { size = told; }});
        EXPECT_EQ(-5, Result("PhyRadioIsOn2")) << told;
    }
    const EditedAnswers altered({.query = [](WLAN_INTF_OPCODE, PVOID, DWORD& size) { size = kWithPhy; }});
    EXPECT_EQ(1, Result("PhyRadioIsOn2"));
}

// --- Names that fill their array ---

TEST_F(HostileRecordsTest, FullNamesAreWholeNames)
{
    const EditedAnswers altered(FullNames());
    GUID guid{};
    EXPECT_EQ(0, manager().GetWlanInterfaceGuid(kFullWideName.c_str(), guid));
    EXPECT_EQ(kFullName.substr(1), manager().GetWlanInterfaceDesc(&kAdapterA)) << "cut to what the text holds";
    std::vector<std::wstring> names;
    EXPECT_LT(0, manager().GetMatchAPCount(&kAdapterA, &names, 0));
    ASSERT_FALSE(names.empty());
    EXPECT_EQ(kFullWideName, names[0]);
}

TEST_F(HostileRecordsTest, FullNamesReachThePlatformTerminated)
{
    WLAN_CONNECTION_ATTRIBUTES remembered{};
    FillUp(remembered.strProfileName);
    remembered.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_infrastructure;
    remembered.wlanAssociationAttributes.dot11Ssid = MakeSsid("HomeNet");
    remembered.wlanSecurityAttributes.bSecurityEnabled = TRUE;
    const EditedAnswers altered(FullNames());
    EditedAnswers edited;
    std::vector<std::wstring> asked;
    edited.service.connectRequest = [&asked](const WLAN_CONNECTION_PARAMETERS& parameters)
    { asked.emplace_back(parameters.strProfile); };

    Result("SmartConnecting");
    Result("AutoConnect");
    Result("ResetConnection");
    manager().Reconnect(&kAdapterA, &remembered, 0);
    manager().RecoverConnection(&kAdapterA, &remembered);
    ASSERT_LE(5u, asked.size());
    for (const std::wstring& name : asked)
        EXPECT_EQ(kFullWideName, name);
}

TEST_F(HostileRecordsTest, FullNamesAreReadAndMovedTerminated)
{
    const EditedAnswers altered(FullNames());
    Result("SetCurrentWiFiToLast");
    Result("AutoSwitch");
    Result("SaveCurrentConnectionAttributes");
    Result("ConnectAutoMode");
    Result("ConnectBestAP");
    std::size_t seen = 0;
    for (const std::string_view operation : {"WlanSetProfilePosition", "WlanGetProfile"})
    {
        for (std::size_t number = 1; number <= callCount(operation); ++number, ++seen)
        {
            const Call made = call(operation, number);
            EXPECT_EQ("\"" + kFullName + "\"", made["name"]) << made.line;
        }
    }
    EXPECT_LE(5u, seen);
}

// --- SSIDs longer than can be ---

TEST_F(HostileRecordsTest, AnSsidIsReadNoFurtherThanItsArray)
{
    const auto current = [this](ULONG stated)
    {
        EditedAnswers edited;
        edited.service.currentConnection = [stated](WLAN_CONNECTION_ATTRIBUTES& connection)
        {
            DOT11_SSID& ssid = connection.wlanAssociationAttributes.dot11Ssid;
            std::fill(std::begin(ssid.ucSSID), std::end(ssid.ucSSID), static_cast<UCHAR>('S'));
            ssid.uSSIDLength = stated;
        };
        char text[80] = {};
        EXPECT_EQ(0, manager().GetCurrentSSID(text, sizeof text));
        return std::string(text);
    };
    EXPECT_EQ(std::string(32, 'S'), current(33));
    EXPECT_EQ(std::string(32, 'S'), current(64));
    for (const ULONG stated : {65UL, 255UL, 0xFFFFFFFFUL})
    {
        ExpectFatal([&] { current(stated); }, "GetSSID");
        ExpectNothingHeld();
    }
}

} // namespace
} // namespace calvix::test::hostile_records_test
