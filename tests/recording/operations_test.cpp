// Every operation of the platform, recorded and replayed, and what lies between operations.

#include "forms/hex_text.h"
#include "simulation/computer.h"
#include "support/test_scenarios.h"
#include "wrappers/recording/key_mask.h"
#include "wrappers/recording/recorded_text.h"
#include "wrappers/recording/recorder.h"
#include "wrappers/recording/replay.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstring>
#include <functional>
#include <sstream>

namespace calvix::test::recorded_operations_test
{
namespace
{

using platform::Platform;

/// What an operation gave. Written with braces, as their content is evaluated in order.
struct Line
{
    template <typename... Values>
    explicit Line(const char* what, const Values&... values)
    {
        std::ostringstream line;
        line << what;
        ((line << ' ' << values), ...);
        text = line.str();
    }

    std::string text;
};

/// What a walk through the operations got to see.
class Findings
{
public:
    /// Keys are not in recordings, so they do not count.
    void Add(const Line& line) { m_lines.push_back(recording::KeyMask().InText(line.text)); }

    const std::vector<std::string>& lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
};

std::string Narrowed(const wchar_t* text)
{
    std::string narrow;
    for (; *text != 0; ++text)
        narrow += static_cast<char>(*text);
    return narrow;
}

std::string BytesText(const void* bytes, std::size_t size)
{
    return forms::HexText({static_cast<const char*>(bytes), size});
}

void WINAPI NoteNews(PWLAN_NOTIFICATION_DATA data, PVOID context)
{
    auto& findings = *static_cast<Findings*>(context);
    findings.Add(Line{"news", data->NotificationSource, data->NotificationCode, data->dwDataSize});
    if (data->pData != nullptr)
        findings.Add(Line{"data", BytesText(data->pData, data->dwDataSize)});
}

/// The bytes of every answer: the same layout as on the recorded computer, as this is the same system.
void AskInterface(Platform& platform, HANDLE client, Findings& findings)
{
    for (const WLAN_INTF_OPCODE opcode :
         {wlan_intf_opcode_autoconf_enabled, wlan_intf_opcode_background_scan_enabled, wlan_intf_opcode_radio_state,
          wlan_intf_opcode_bss_type, wlan_intf_opcode_interface_state, wlan_intf_opcode_current_connection,
          wlan_intf_opcode_channel_number, wlan_intf_opcode_statistics, wlan_intf_opcode_rssi,
          wlan_intf_opcode_current_operation_mode, wlan_intf_opcode_supported_safe_mode,
          wlan_intf_opcode_supported_infrastructure_auth_cipher_pairs, wlan_intf_opcode_ihv_start})
    {
        DWORD size = 0;
        PVOID data = nullptr;
        WLAN_OPCODE_VALUE_TYPE type = wlan_opcode_value_type_invalid;
        const DWORD error =
            platform.wlan().WlanQueryInterface(client, &kAdapterA, opcode, nullptr, &size, &data, &type);
        findings.Add(Line{"query", opcode, error, size, type});
        if (error != 0)
            continue;
        findings.Add(Line{"answer", BytesText(data, size)});
        platform.wlan().WlanFreeMemory(data);
    }
}

void ListEverything(Platform& platform, HANDLE client, Findings& findings)
{
    auto& wlan = platform.wlan();
    WLAN_INTERFACE_INFO_LIST* interfaces = nullptr;
    findings.Add(Line{"interfaces", wlan.WlanEnumInterfaces(client, nullptr, &interfaces), interfaces->dwNumberOfItems,
                      BytesText(interfaces, sizeof *interfaces)});
    wlan.WlanFreeMemory(interfaces);
    WLAN_AVAILABLE_NETWORK_LIST* networks = nullptr;
    findings.Add(Line{"networks", wlan.WlanGetAvailableNetworkList(client, &kAdapterA, 3, nullptr, &networks)});
    findings.Add(Line{"networks", networks->dwNumberOfItems, BytesText(networks->Network, sizeof networks->Network)});
    wlan.WlanFreeMemory(networks);
    WLAN_PROFILE_INFO_LIST* profiles = nullptr;
    findings.Add(Line{"profiles", wlan.WlanGetProfileList(client, &kAdapterA, nullptr, &profiles)});
    findings.Add(Line{"profiles", profiles->dwNumberOfItems, BytesText(profiles, sizeof *profiles)});
    wlan.WlanFreeMemory(profiles);
    findings.Add(Line{"unknown adapter", wlan.WlanGetProfileList(client, &kNoAdapter, nullptr, &profiles)});
    WLAN_BSS_LIST* heard = nullptr;
    findings.Add(Line{
        "bss", wlan.WlanGetNetworkBssList(client, &kAdapterA, nullptr, dot11_BSS_type_any, FALSE, nullptr, &heard)});
    findings.Add(Line{"bss", heard->dwNumberOfItems, heard->dwTotalSize});
    for (DWORD i = 0; i < heard->dwNumberOfItems; ++i)
    {
        WLAN_BSS_ENTRY& entry = heard->wlanBssEntries[i];
        const auto* const elements = reinterpret_cast<const char*>(&entry) + entry.ulIeOffset;
        findings.Add(Line{"elements", BytesText(elements, entry.ulIeSize)});
        findings.Add(Line{"entry", entry.lRssi, entry.ullTimestamp, entry.ulChCenterFrequency,
                          entry.wlanRateSet.uRateSetLength, entry.wlanRateSet.usRateSet[1],
                          BytesText(entry.dot11Bssid, 6), BytesText(entry.dot11Ssid.ucSSID, 32)});
    }
    wlan.WlanFreeMemory(heard);
}

void UseProfiles(Platform& platform, HANDLE client, Findings& findings)
{
    auto& wlan = platform.wlan();
    wchar_t* xml = nullptr;
    DWORD flags = 0;
    DWORD access = 0;
    findings.Add(Line{"profile", wlan.WlanGetProfile(client, &kAdapterA, L"OfficeNet", nullptr, &xml, &flags, &access),
                      Narrowed(xml), flags, access});
    DWORD reason = 77;
    findings.Add(Line{"set", wlan.WlanSetProfile(client, &kAdapterA, 0, xml, nullptr, TRUE, nullptr, &reason), reason});
    findings.Add(
        Line{"set", wlan.WlanSetProfile(client, &kAdapterA, 0, L"<no>", nullptr, TRUE, nullptr, &reason), reason});
    wlan.WlanFreeMemory(xml);
    wchar_t text[64] = {};
    findings.Add(Line{"reason", wlan.WlanReasonCodeToString(reason, 64, text, nullptr), Narrowed(text)});
    findings.Add(Line{"position", wlan.WlanSetProfilePosition(client, &kAdapterA, L"OfficeNet", 0, nullptr)});
    findings.Add(Line{"delete", wlan.WlanDeleteProfile(client, &kAdapterA, L"GoneNet", nullptr)});
}

void Connect(Platform& platform, HANDLE client, Findings& findings)
{
    auto& wlan = platform.wlan();
    DWORD previous = 77;
    findings.Add(Line{"register",
                      wlan.WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ALL, FALSE, NoteNews, &findings,
                                                    nullptr, &previous),
                      previous});
    DOT11_SSID ssid = MakeSsid("HomeNet");
    DOT11_BSSID_LIST wanted{};
    wanted.uNumOfEntries = 1;
    std::memcpy(wanted.BSSIDs, kHomeNet5.data(), 6);
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = L"HomeNet";
    parameters.pDot11Ssid = &ssid;
    parameters.pDesiredBssidList = &wanted;
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    findings.Add(Line{"connect", wlan.WlanConnect(client, &kAdapterA, &parameters, nullptr)});
    platform.clock().Sleep(5000);
    findings.Add(Line{"scan", wlan.WlanScan(client, &kAdapterA, &ssid, nullptr, nullptr)});
    platform.clock().Sleep(8000);
    findings.Add(Line{"disconnect", wlan.WlanDisconnect(client, &kAdapterA, nullptr)});
    platform.clock().Sleep(1000);
    findings.Add(Line{"unregister", wlan.WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, nullptr,
                                                                  nullptr, nullptr, &previous)});
    platform.clock().Sleep(100000);
}

void ChangeSettings(Platform& platform, HANDLE client, Findings& findings)
{
    auto& wlan = platform.wlan();
    const BOOL off = FALSE;
    findings.Add(Line{"set", wlan.WlanSetInterface(client, &kAdapterA, wlan_intf_opcode_autoconf_enabled, sizeof off,
                                                   &off, nullptr)});
    const WLAN_PHY_RADIO_STATE radio = {1, dot11_radio_state_off, dot11_radio_state_unknown};
    findings.Add(Line{"radio", wlan.WlanSetInterface(client, &kAdapterA, wlan_intf_opcode_radio_state, sizeof radio,
                                                     &radio, nullptr)});
    DWORD size = 0;
    PVOID data = nullptr;
    findings.Add(Line{
        "power",
        wlan.WlanQueryAutoConfigParameter(client, wlan_autoconf_opcode_power_setting, nullptr, &size, &data, nullptr),
        BytesText(data, size)});
    wlan.WlanFreeMemory(data);
    findings.Add(Line{"security", wlan.WlanSetSecuritySettings(client, wlan_secure_ihv_control, L"O:SY")});
    unsigned char buffer[4] = {0xFF, 0x01, 0x02, 0x03};
    DWORD returned = 0;
    findings.Add(
        Line{"vendor",
             wlan.WlanIhvControl(client, &kAdapterA, wlan_ihv_control_type_driver, 4, buffer, 4, buffer, &returned),
             returned, BytesText(buffer, 4)});
}

void UseServices(Platform& platform, Findings& findings)
{
    auto& services = platform.services();
    const SC_HANDLE manager = services.OpenSCManagerA(nullptr, nullptr, SC_MANAGER_CONNECT);
    const SC_HANDLE none = services.OpenServiceA(manager, "NoSuchService", SERVICE_START);
    findings.Add(Line{"service", none == nullptr, platform.errors().GetLastError()});
    const SC_HANDLE service = services.OpenServiceA(manager, "WlanSvc", SERVICE_ALL_ACCESS);
    SERVICE_STATUS status{};
    findings.Add(
        Line{"status", services.QueryServiceStatus(service, &status), status.dwCurrentState, status.dwServiceType});
    findings.Add(Line{"start", services.StartServiceA(service, 0, nullptr), platform.errors().GetLastError()});
    findings.Add(Line{"close", services.CloseServiceHandle(service), services.CloseServiceHandle(manager)});
}

void UsePower(Platform& platform, Findings& findings)
{
    auto& power = platform.power();
    SYSTEM_POWER_CAPABILITIES capabilities{};
    findings.Add(
        Line{"capabilities",
             power.CallNtPowerInformation(SystemPowerCapabilities, nullptr, 0, &capabilities, sizeof capabilities),
             BytesText(&capabilities, sizeof capabilities)});
    SYSTEM_POWER_POLICY policy{};
    findings.Add(Line{"policy",
                      power.CallNtPowerInformation(SystemPowerPolicyCurrent, nullptr, 0, &policy, sizeof policy),
                      BytesText(&policy, sizeof policy)});
    ULONGLONG when = 77;
    findings.Add(Line{"slept", power.CallNtPowerInformation(LastSleepTime, nullptr, 0, &when, sizeof when), when});
    UINT scheme = 77;
    POWER_POLICY legacy{};
    findings.Add(Line{"scheme", int{power.GetActivePwrScheme(&scheme)}, scheme});
    findings.Add(Line{"read", int{power.ReadPwrScheme(scheme, &legacy)}, BytesText(&legacy, sizeof legacy)});
    findings.Add(Line{"write", int{power.WritePwrScheme(&scheme, L"Name", L"Text", &legacy)}, scheme});
    findings.Add(Line{"activate", int{power.SetActivePwrScheme(scheme, nullptr, &legacy)}});
    findings.Add(Line{"allowed", int{power.IsPwrSuspendAllowed()}, int{power.IsPwrHibernateAllowed()},
                      int{power.IsPwrShutdownAllowed()}, power.IsSystemResumeAutomatic()});
    GUID listed{};
    DWORD size = sizeof listed;
    findings.Add(Line{
        "list",
        power.PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SCHEME, 0, reinterpret_cast<UCHAR*>(&listed), &size),
        BytesText(&listed, sizeof listed), size});
    GUID* active = nullptr;
    GUID* copy = nullptr;
    findings.Add(Line{"active", power.PowerGetActiveScheme(nullptr, &active), BytesText(active, sizeof *active)});
    alignas(wchar_t) UCHAR name[512] = {};
    size = sizeof name;
    findings.Add(Line{"name", power.PowerReadFriendlyName(nullptr, active, nullptr, nullptr, name, &size), size,
                      Narrowed(reinterpret_cast<const wchar_t*>(name))});
    findings.Add(Line{"copy", power.PowerDuplicateScheme(nullptr, active, &copy), BytesText(copy, sizeof *copy)});
    findings.Add(Line{"rename", power.PowerWriteFriendlyName(nullptr, copy, nullptr, nullptr, name, 20)});
    findings.Add(Line{"value", power.PowerWriteACValueIndex(nullptr, copy, &power_guid::sleep_subgroup,
                                                            &power_guid::standby_timeout, 5)});
    findings.Add(Line{"use", power.PowerSetActiveScheme(nullptr, copy)});
    power.LocalFree(active);
    power.LocalFree(copy);
    findings.Add(Line{"sleep", int{power.SetSuspendState(FALSE, TRUE, FALSE)}, platform.errors().GetLastError()});
}

void UseSecurity(Platform& platform, Findings& findings)
{
    HANDLE token = nullptr;
    findings.Add(Line{"token", platform.security().OpenProcessToken(platform.processes().GetCurrentProcess(),
                                                                    TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY, &token)});
    TOKEN_PRIVILEGES wanted{};
    wanted.PrivilegeCount = 1;
    wanted.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    findings.Add(Line{
        "luid", platform.security().LookupPrivilegeValueA(nullptr, "SeShutdownPrivilege", &wanted.Privileges[0].Luid),
        wanted.Privileges[0].Luid.LowPart, wanted.Privileges[0].Luid.HighPart});
    TOKEN_PRIVILEGES previous{};
    DWORD length = 0;
    findings.Add(Line{
        "adjust", platform.security().AdjustTokenPrivileges(token, FALSE, &wanted, sizeof previous, &previous, &length),
        previous.PrivilegeCount, previous.Privileges[0].Attributes, length});
    findings.Add(Line{"error", platform.errors().GetLastError()});
    findings.Add(Line{"close", platform.processes().CloseHandle(token)});
}

void UseProcesses(Platform& platform, Findings& findings)
{
    auto& processes = platform.processes();
    char path[300] = {};
    const DWORD length = processes.GetModuleFileNameA(nullptr, path, sizeof path);
    findings.Add(Line{"module", length, path});
    findings.Add(Line{"short", processes.GetModuleFileNameA(nullptr, path, 4), std::string(path, 3)});
    const FARPROC function = processes.GetProcAddress(processes.GetModuleHandleA("kernel32"), "IsWow64Process");
    BOOL wow64 = 77;
    if (function != nullptr)
        reinterpret_cast<BOOL(WINAPI*)(HANDLE, BOOL*)>(reinterpret_cast<void (*)()>(function))(
            processes.GetCurrentProcess(), &wow64);
    findings.Add(Line{"wow64", wow64});
    findings.Add(Line{"function", processes.GetProcAddress(nullptr, "Nothing") == nullptr});
    char commandLine[] = "survey.exe /now";
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    findings.Add(Line{"start",
                      processes.CreateProcessA(nullptr, commandLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                               &startup, &started),
                      started.dwProcessId, started.dwThreadId});
    findings.Add(Line{"wait", processes.WaitForSingleObject(started.hProcess, INFINITE)});
    findings.Add(Line{"close", processes.CloseHandle(started.hProcess), processes.CloseHandle(started.hThread)});
    findings.Add(Line{"open", processes.OpenProcess(PROCESS_TERMINATE, FALSE, 999) == nullptr,
                      platform.errors().GetLastError()});
    findings.Add(Line{"terminate", processes.TerminateProcess(nullptr, 1)});
}

void UseTexts(Platform& platform, Findings& findings)
{
    auto& text = platform.text();
    const char utf8[] = "Caf\xC3\xA9 \xF0\x9F\x98\x80";
    wchar_t wide[64] = {};
    findings.Add(Line{"size", text.MultiByteToWideChar(CP_UTF8, 0, utf8, -1, nullptr, 0)});
    findings.Add(Line{"wide", text.MultiByteToWideChar(CP_UTF8, 0, utf8, -1, wide, 64), BytesText(wide, sizeof wide)});
    findings.Add(Line{"part", text.MultiByteToWideChar(CP_UTF8, 0, utf8, 3, wide, 64), BytesText(wide, sizeof wide)});
    findings.Add(Line{"bad", text.MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, "\xE9", -1, wide, 64),
                      platform.errors().GetLastError()});
    char narrow[64] = {};
    BOOL used = 77;
    findings.Add(Line{"narrow", text.WideCharToMultiByte(CP_ACP, 0, L"\u00E9\u6771!", -1, narrow, 64, "", &used), used,
                      BytesText(narrow, sizeof narrow)});
    findings.Add(Line{"full", text.WideCharToMultiByte(CP_ACP, 0, L"too long", -1, narrow, 3, nullptr, nullptr)});
    findings.Add(Line{"guid", text.StringFromGUID2(kAdapterA, wide, 64), BytesText(wide, sizeof wide)});
}

void UseTheRest(Platform& platform, Findings& findings)
{
    DWORD limit = 5000;
    findings.Add(Line{"option", platform.internet().InternetSetOptionA(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &limit,
                                                                       sizeof limit)});
    findings.Add(Line{"online", platform.internet().InternetCheckConnectionA("https://www.example.com/",
                                                                             FLAG_ICC_FORCE_CONNECTION, 0)});
    const FILETIME stamp = {0x12345678, 0x01D00000};
    SYSTEMTIME time{};
    findings.Add(Line{"time", platform.clock().FileTimeToSystemTime(&stamp, &time), time.wYear, time.wMinute,
                      time.wMilliseconds});
    platform.debugger().OutputDebugStringA("a line\n");
}

Findings WalkThrough(Platform& platform)
{
    Findings findings;
    HANDLE client = nullptr;
    DWORD version = 0;
    findings.Add(Line{"open", platform.wlan().WlanOpenHandle(2, nullptr, &version, &client), version});
    ListEverything(platform, client, findings);
    AskInterface(platform, client, findings);
    UseProfiles(platform, client, findings);
    Connect(platform, client, findings);
    ChangeSettings(platform, client, findings);
    findings.Add(Line{"close", platform.wlan().WlanCloseHandle(client, nullptr)});
    UseServices(platform, findings);
    UsePower(platform, findings);
    UseSecurity(platform, findings);
    UseProcesses(platform, findings);
    UseTexts(platform, findings);
    UseTheRest(platform, findings);
    return findings;
}

std::string RecordingOf(const std::function<void(Platform&)>& session)
{
    simulation::Scenario scenario = simulation::LoadScenario(CALVIX_SOURCE_DIR "/scenarios/laptop.json");
    scenario.power.enumerationError = 0;
    scenario.adapters = RichScenario().adapters;
    scenario.accessPoints = RichScenario().accessPoints;
    simulation::Computer computer(scenario);
    std::ostringstream file;
    recording::Recorder recorder(computer, file, {});
    session(recorder.platform());
    recorder.Finish();
    return file.str();
}

TEST(RecordedOperations, AnswerInAReplayAsTheyDidThen)
{
    Findings recorded;
    std::istringstream file(RecordingOf([&recorded](Platform& platform) { recorded = WalkThrough(platform); }));
    recording::Replay replay(file, "walk.jsonl");
    const Findings replayed = WalkThrough(replay.platform());
    EXPECT_EQ(std::nullopt, replay.Finish().has_value() ? std::optional(replay.Finish()->text) : std::nullopt);
    ASSERT_EQ(recorded.lines().size(), replayed.lines().size());
    for (std::size_t i = 0; i < recorded.lines().size(); ++i)
        EXPECT_EQ(recorded.lines()[i], replayed.lines()[i]);
}

TEST(RecordedOperations, KeepTextsThatAreNoUnicode)
{
    using namespace recording;
    for (const std::string& bytes :
         {std::string(), std::string("plain"), std::string("Caf\xE9"), std::string("a\0b", 3),
          std::string("\xED\xA0\x80"), std::string("{\"bytes\":\"41\"}")})
        EXPECT_EQ(bytes, BytesFrom(nlohmann::ordered_json::parse(RecordedBytes(bytes).dump()), "text"));
    const std::wstring highAlone(1, static_cast<wchar_t>(0xD83D));
    for (const std::wstring& text : {std::wstring(), std::wstring(L"plain"), std::wstring(L"\U0001F600"), highAlone,
                                     L"a" + highAlone + L"b", std::wstring(1, static_cast<wchar_t>(0xDC00))})
        EXPECT_EQ(text, WideFrom(nlohmann::ordered_json::parse(RecordedWide(text).dump()), "text"));
    EXPECT_EQ(R"({"units":"D83D 41"})", RecordedWide(highAlone + L"A").dump());
    EXPECT_EQ(R"({"bytes":"436166E9"})", RecordedBytes("Caf\xE9").dump());
}

TEST(RecordedOperations, AreTheSameOnEverySystem)
{
    // A pair of units on Windows is one elsewhere, and the sizes that a conversion returns follow.
    std::istringstream file(
        R"({"calvixRecording":1,"simulated":false,"anonymised":false})"
        "\n"
        R"({"call":"MultiByteToWideChar","in":{"codePage":65001,"flags":0,"source":"\u0041\ud83d\ude00",)"
        R"("terminated":1,"sizeOnly":1},"out":{"result":4,"text":"\u0041\ud83d\ude00"}})"
        "\n{\"end\":2}\n");
    recording::Replay replay(file, "emoji.jsonl");
    const int size = replay.platform().text().MultiByteToWideChar(CP_UTF8, 0, "A\xF0\x9F\x98\x80", -1, nullptr, 0);
    EXPECT_EQ(static_cast<int>(std::wstring(L"A\U0001F600").size()) + 1, size);
    EXPECT_FALSE(replay.Finish()) << replay.Trouble()->text;
}

TEST(RecordedOperations, FailAfterADeparture)
{
    std::istringstream file(RecordingOf([](Platform& platform) { platform.clock().Sleep(1); }));
    recording::Replay replay(file, "sleep.jsonl");
    int troubles = 0;
    replay.AtTrouble([&troubles] { ++troubles; });
    replay.platform().clock().Sleep(2);
    HANDLE client = nullptr;
    DWORD version = 77;
    EXPECT_EQ(1223u, replay.platform().wlan().WlanOpenHandle(2, nullptr, &version, &client));
    EXPECT_EQ(nullptr, client);
    EXPECT_EQ(77u, version);
    EXPECT_EQ(FALSE, replay.platform().processes().CloseHandle(nullptr));
    replay.platform().clock().Sleep(1);
    EXPECT_EQ(1, troubles);
    EXPECT_EQ("sleep.jsonl:2: the program differs from the recording here: it calls Sleep {\"milliseconds\":2}; the "
              "recording has Sleep {\"milliseconds\":1}",
              replay.Finish()->text);
}

TEST(RecordedOperations, HaveMarksAndNotificationsAtTheirPlaces)
{
    std::istringstream file(R"({"calvixRecording":1,"simulated":false,"anonymised":false}
{"call":"WlanRegisterNotification","in":{"client":0,"source":8,"ignoreDuplicate":0,"callback":1},"out":{"result":0}}
{"notification":{"client":0,"source":8,"code":1,"interface":"{00000000-0000-0000-0000-000000000000}","bytes":""}}
{"notification":{"client":0,"source":8,"code":2,"interface":"{00000000-0000-0000-0000-000000000000}","bytes":""},"while":"Sleep"}
{"call":"Sleep","in":{"milliseconds":1},"out":{}}
{"mark":"interrupted"}
{"call":"Sleep","in":{"milliseconds":1},"out":{}}
{"end":7}
)");
    recording::Replay replay(file, "news.jsonl");
    Findings findings;
    replay.AtMark([&findings](const std::string& mark) { findings.Add(Line{mark.c_str()}); });
    replay.platform().wlan().WlanRegisterNotification(nullptr, 8, FALSE, NoteNews, &findings, nullptr, nullptr);
    findings.Add(Line{"first"});
    replay.platform().clock().Sleep(1);
    findings.Add(Line{"second"});
    replay.platform().clock().Sleep(1);
    EXPECT_FALSE(replay.Finish()) << replay.Trouble()->text;
    EXPECT_EQ((std::vector<std::string>{"news 8 1 0", "first", "news 8 2 0", "interrupted", "second"}),
              findings.lines());
}

} // namespace
} // namespace calvix::test::recorded_operations_test
