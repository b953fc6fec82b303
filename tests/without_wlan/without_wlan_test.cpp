// Every method on two computers that cannot do wireless; a process is on one of them, as the test's environment says.

#include "without_wlan/library_sleep.h"

#include "explain/result_codes.h"
#include "methods/method.h"
#include "support/test_scenarios.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

namespace calvix::test::without_wlan_test
{

namespace
{

using namespace std::string_literals;
using methods::Method;
using methods::Outcome;

enum class Computer
{
    withoutWlan, ///< there is no wlanapi.dll, as on a Windows Server without the wireless feature
    wine         ///< Wine's own: the client handle opens, there is no adapter, and requests are refused
};

/// The error number of the missing wlanapi.dll, that of an operation that Wine exports without having written it, and any
/// other.
constexpr long long kNoLibrary = ERROR_MOD_NOT_FOUND;
constexpr long long kUnwritten = ERROR_CALL_NOT_IMPLEMENTED;
constexpr long long kAnError = INT64_MAX;

/// Methods by the code that they return without wlanapi.dll and with Wine's.
struct Codes
{
    std::pair<long long, long long> codes;
    std::vector<const char*> methods;
};

const Codes kCodes[] = {
    {{-1, -4}, {"ConnectBestAP", "AutoConnect", "AutoConnectEx", "ConnectAutoMode", "PreRoaming", "Roaming"}},
    {{-1, -4},
     {"GetCurrentConnection(GUID const*", "GetCurrentWiFi", "GetWlanStatistics", "Reconnect", "RecoverConnection",
      "ResetConnection", "SaveCurrentConnectionAttributes", "RecoverConnetionAttributes",
      "RecoverConnNotificationData"}},
    {{-1, -4}, {"Rescan(GUID const*", "GetNotConnectableReason", "GetRssi", "GetCurrentRSSI", "GetSignalQuality"}},
    {{-1, -4}, {"DeleteProfile", "GetProfileCount", "GetProfile", "SetProfile", "IsAutoConnMode2"}},
    {{-1, -4}, {"PhyRadioIsOn2", "PhyRadioTurnedOff2", "RadioTurnOn", "TurnOnSoftwareRadio", "RadioTurnOff"}},
    {{-1, -3},
     {"AutoSwitch", "GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES*", "GetCurrentSSID", "Rescan()", "GetAP",
      "GetCurrentBSS", "GetWlanInterfaceGuid", "GetWlanInterface"}},
    {{-1, kAnError}, {"SmartSwitch", "LinkProfile", "GetSoftAPList", "ResetProfilePosition", "SetProfilePosition"}},
    {{-1, 0}, {"SmartConnecting", "SetCurrentWiFiToLast", "ResetWiFiRadio"}},
    {{-1, -100}, {"GetWiFiRSSI"}},
    {{-2, -5},
     {"GetMatchAPList", "GetConnectableAPList(GUID const*", "GetMatchAPCount", "GetMatchBSSID",
      "GetAvailableNetworkCount", "GetConnectableNetworkCount", "SupportedSafeMode"}},
    {{-2, -4}, {"GetConnectableAPList(wchar_t*", "GetWlanStatus", "GetNetworkBssCount"}},
    {{-2, 0}, {"GetWiFiAdapterCount"}},
    {{kNoLibrary, kAnError},
     {"GetCurrentLinkInfo", "Disconnect", "EnableAutoCfg", "EnableBackgroundScan", "SetIhvSecuritySettings",
      "IhvControl", "GetWlanProfile"}},
    {{kNoLibrary, 0}, {"GetPowerSetting", "GetAvailableNetwork", "GetNetworkBss"}},
    {{kNoLibrary, kUnwritten}, {"RegisterNotification", "UnRegisterNotification"}},

    // Questions for yes or no, and what does not need the service.
    {{0, 0},
     {"WiFiIsConnected", "WiFiIsDisconnected", "IsWiFiDisappear", "SpecialSoftAP", "GetWlanIsLink", "PhyRadioIsOn",
      "PhyRadioTurnedOff", "SetPowerSetting"}},
    {{1, 1}, {"Get", "operator=", "IsThisSSID", "IsAutoConnMode", "ReasonCode2String", "UnicodeToAnsi", "GetSSID"}},
    {{301, 301}, {"WideCharToChar"}},
    {{36, 36}, {"GetChannel"}},
    {{50, 50}, {"GetSignalStrength"}},

    // As Wine's other libraries answer: programs may have the privileges, no computer can be suspended, there is no
    // store of power schemes, and nothing is known of sleeping. Without wininet.dll the network is not asked.
    {{1, 1}, {"GetPrivileges", "EnablePriviledge", "ForceComputerSleep", "CreateProcRunExe"}},
    {{0, 0}, {"IsSurpportAoAc", "IsPowerHibernateAllowed", "GetLastWakeTime", "GetLastSleepTime", "IsWow64"}},
    {{-1, -1}, {"SetPowerScheme", "ResetPowerScheme", "GetPowerScheme", "OpenUrl"}},
    {{static_cast<std::int32_t>(0xC0000002), static_cast<std::int32_t>(0xC0000002)}, {"GetSystemPowerPolicy"}},
};

std::string OwnFolder()
{
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string text = path;
    return text.substr(0, text.rfind('\\') + 1);
}

/// Texts are the same everywhere.
const std::pair<const char*, std::string> kTexts[] = {
    {"GetWlanInterfaceState", "connected"},
    {"GUID2String", "{A0000001-0001-4001-8001-00000000000A}"},
    {"GetWlanInterfaceDesc", ""},
    {"GetPowerSettingStr", "wlan_power_setting_medium_saving"},
    {"StringToHex", "AB"},
    {"HexToString", "1A2B"},
    {"StringToHexString", "0041"},
    {"GetAppPath", OwnFolder()},
};

const std::string kWideName(reinterpret_cast<const char*>(L"OfficeNet"), sizeof(L"OfficeNet"));

/// What outputs begin with that are written to all the same. A text that cannot be had is an empty one.
const std::pair<const char*, std::string> kWritten[] = {
    {"ReasonCode2String", "\0"s},
    {"UnicodeToAnsi", "Home\0"s},
    {"WideCharToChar", std::string(300, 'x') + '\0'},
    {"GetSSID(DOT11_SSID const*, char*", "OfficeNet\0"s},
    {"GetSSID(DOT11_SSID const*, wchar_t*", kWideName},
    {"StringToHex", "AB"},
    {"HexToString", "1A2B"},
    {"StringToHexString", "0041"},
    {"FormMAC", "00:1A:2B:3C:4D:5E\0"s},
    {"GetBSSID", "00:1A:2B:3C:4D:5E\0"s},
};

constexpr const char* kListEmptied[] = {"GetMatchAPList", "GetConnectableAPList", "GetMatchAPCount"};
constexpr const char* kErrorTold[] = {"Rescan", "TurnOnSoftwareRadio"};

template <typename Names>
bool IsAmong(const Method& method, const Names& names)
{
    return std::any_of(std::begin(names), std::end(names), [&](const char* name) { return method.Is(name); });
}

template <typename Rows>
const std::string* Find(const Rows& rows, const Method& method)
{
    const auto row =
        std::find_if(std::begin(rows), std::end(rows), [&](const auto& each) { return method.Is(each.first); });
    return row != std::end(rows) ? &row->second : nullptr;
}

void CheckResult(const Method& method, Computer computer, const Outcome& outcome)
{
    for (const Codes& row : kCodes)
    {
        if (!IsAmong(method, row.methods))
            continue;
        ASSERT_TRUE(outcome.code);
        const long long expected = computer == Computer::wine ? row.codes.second : row.codes.first;
        EXPECT_TRUE(expected == kAnError ? *outcome.code > 0 : *outcome.code == expected) << *outcome.code;
        return;
    }
    // Others give a text, nothing, or what their table has for a client that cannot be opened or a refused request.
    const std::string* const text = Find(kTexts, method);
    EXPECT_EQ(outcome.text, text != nullptr ? *text : "");
    const host::MethodResults* const results = host::FindMethod(method.Name());
    ASSERT_NE(results, nullptr);
    EXPECT_EQ(outcome.code.has_value(), text == nullptr && results->kind != host::ResultKind::nothing);
    if (outcome.code)
        EXPECT_TRUE(host::Explain(*results, *outcome.code).failure) << *outcome.code;
}

void CheckOutputs(const Method& method, const Outcome& outcome)
{
    const std::string* const written = Find(kWritten, method);
    for (const std::string& output : outcome.outputs)
        if (written != nullptr)
            EXPECT_THAT(output, testing::StartsWith(methods::BytesText(written->data(), written->size())));
        else if (IsAmong(method, kListEmptied))
            EXPECT_EQ(output, "0 entries");
        else if (IsAmong(method, kErrorTold))
            EXPECT_THAT(output, testing::AllOf(testing::SizeIs(8), testing::Ne("00000000")));
        else
            EXPECT_EQ(output, methods::kUntouched);
}

/// The radio reports neither state, so each is waited for as long as the library ever waits.
DWORD ExpectedSleep(const Method& method, const Outcome& outcome)
{
    if (method.Is("RestartWiFiRadio"))
        return 20'000;
    return method.Is("ResetWiFiRadio") && outcome.code == 0 ? 500 : 0;
}

/// A program that waits to be ended: its first thread never starts.
class SuspendedProgram
{
public:
    explicit SuspendedProgram(const std::string& path)
    {
        STARTUPINFOA startup{};
        startup.cb = sizeof(startup);
        EXPECT_TRUE(::CreateProcessA(path.c_str(), nullptr, nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr, nullptr,
                                     &startup, &m_program))
            << "no program to end";
    }
    ~SuspendedProgram()
    {
        constexpr DWORD kAgainstHangs = 600'000;
        EXPECT_EQ(::WaitForSingleObject(m_program.hProcess, kAgainstHangs), WAIT_OBJECT_0) << "it is still there";
        DWORD exitCode = 1;
        EXPECT_TRUE(::GetExitCodeProcess(m_program.hProcess, &exitCode));
        EXPECT_EQ(exitCode, 0u);
        ::CloseHandle(m_program.hThread);
        ::CloseHandle(m_program.hProcess);
    }
    SuspendedProgram(const SuspendedProgram&) = delete;
    SuspendedProgram& operator=(const SuspendedProgram&) = delete;

    DWORD Id() const { return m_program.dwProcessId; }

private:
    PROCESS_INFORMATION m_program{};
};

/// Useful arguments with programs that are here.
class ProgramArguments final : public methods::Arguments
{
protected:
    std::string Text(const methods::Parameter& parameter) override
    {
        const std::string program = "calvix_idle_program.exe";
        if (parameter.text == methods::kProgram)
            return program;
        if (parameter.text.find(methods::kProgram) != parameter.text.npos)
            return '"' + OwnFolder() + program + '"';
        return Arguments::Text(parameter);
    }
    long long Number(const methods::Parameter& parameter) override
    {
        if (parameter.number != methods::kProcess)
            return parameter.number;
        return m_toBeEnded.emplace(OwnFolder() + "calvix_idle_program.exe").Id();
    }

private:
    std::optional<SuspendedProgram> m_toBeEnded;
};

/// Every method; last come those after which the manager is not what it was.
std::vector<Method> AllMethods()
{
    std::vector<Method> all = methods::EveryMethod();
    std::stable_partition(all.begin(), all.end(),
                          [](const Method& method) { return !method.Is("Delete") && !method.Is("__autoclassinit2"); });
    return all;
}

/// Tests that call every method, which ends programs, changes power settings and puts a computer to sleep: skipped
/// anywhere but on Wine, which only pretends.
class OnWine : public testing::Test
{
protected:
    void SetUp() override
    {
        if (::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr)
            GTEST_SKIP() << "not to be done to a real computer";
    }
};

class EveryMethod : public OnWine, public testing::WithParamInterface<std::tuple<Computer, Method>>
{
};

TEST_P(EveryMethod, ReportsWhatCannotBeDone)
{
    const auto& [computer, method] = GetParam();
    CWirelessManage* const manager = CWirelessManage::Get();
    ASSERT_NE(manager, nullptr);
    ProgramArguments arguments;
    methods::Call call(method, arguments);
    const LibrarySleep sleep;
    call.Make(*manager);
    const Outcome outcome = call.Outcome();
    CheckResult(method, computer, outcome);
    CheckOutputs(method, outcome);
    EXPECT_EQ(sleep.Milliseconds(), ExpectedSleep(method, outcome));
}

const auto kTestName = [](const auto& test) { return TestName(std::get<Method>(test.param), test.index); };

INSTANTIATE_TEST_SUITE_P(WineWlan,
                         EveryMethod,
                         testing::Combine(testing::Values(Computer::wine), testing::ValuesIn(AllMethods())),
                         kTestName);

INSTANTIATE_TEST_SUITE_P(WithoutWlan,
                         EveryMethod,
                         testing::Combine(testing::Values(Computer::withoutWlan), testing::ValuesIn(AllMethods())),
                         kTestName);

using WineWlan = OnWine;
using WithoutWlan = OnWine;

TEST_F(WineWlan, IsThere)
{
    EXPECT_NE(::LoadLibraryW(L"wlanapi.dll"), nullptr);
}

TEST_F(WithoutWlan, ThereIsNoWlanLibraryHere)
{
    EXPECT_EQ(::LoadLibraryW(L"wlanapi.dll"), nullptr);
    EXPECT_EQ(::GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST_F(WithoutWlan, ARefusalNamesTheMissingLibrary)
{
    unsigned long error = 0;
    EXPECT_EQ(CWirelessManage::Get()->Rescan(&kAdapterA, error), -1);
    EXPECT_EQ(error, static_cast<unsigned long>(ERROR_MOD_NOT_FOUND));
}

TEST_F(WithoutWlan, DeleteHasNothingToClose)
{
    CWirelessManage::Get();
    CWirelessManage::Delete();
    ASSERT_NE(CWirelessManage::Get(), nullptr);
    EXPECT_EQ(CWirelessManage::Get()->GetWiFiAdapterCount(), -2);
}

TEST_F(WithoutWlan, AProgramThatIsNotThereIsNotStarted)
{
    std::string name = "calvix-no-such-program.exe";
    EXPECT_EQ(CWirelessManage::Get()->CreateProcRunExe(name.data()), 0);
    CWirelessManage::Get()->CreateProcRunCmd(name.data());
}

} // namespace
} // namespace calvix::test::without_wlan_test
