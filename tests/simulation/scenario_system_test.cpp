// Scenario files: what they say beside adapters and access points as such, and of drivers and access points that change.
#include "system_fixture.h"

namespace calvix::simulation::scenario_system_test
{

namespace
{

const char kFirstGuid[] = "{5CA1AB1E-0001-4000-8000-000000000001}";
const char kSecondGuid[] = "{5CA1AB1E-0002-4000-8000-000000000002}";

Scenario Everything()
{
    Scenario scenario;
    PowerDescription& power = scenario.power;
    power.suspendAllowed = power.hibernateAllowed = power.shutdownAllowed = false;
    power.modernStandby = power.battery = power.resumesAutomatically = true;
    power.upMilliseconds = 9;
    power.lastSleepTime = 18446744073709551615u;
    power.lastWakeTime = 8;
    power.sleepMilliseconds = 7;
    power.enumerationError = 259;
    power.schemes = {{kFirstGuid, {1, 2, 3}, {{kSecondGuid, kFirstGuid, 4, 5}}}, {kSecondGuid, FriendlyName("B"), {}}};
    power.activeScheme = kSecondGuid;
    power.legacySchemes = {{5, "Five", 1, 2, 3, 4}, {6, "Six"}};
    power.activeLegacyScheme = 6;
    scenario.tokens = false;
    scenario.privileges = {{"SeDebugPrivilege", true}, {"SeBackupPrivilege", false}};
    scenario.programPath = "host.exe";
    scenario.wow64 = true;
    scenario.programs = {{"a.exe", 5, 6}, {"b.exe", std::nullopt, 0}, {"c.exe"}};
    scenario.processes = {{1, "a.exe", 2, 3, true}, {4, "b.exe"}};
    scenario.internet = InternetAccess::unresolved;
    scenario.administrator = false;
    scenario.powerSetting = 3;
    AdapterDescription& adapter = scenario.adapters.emplace_back();
    adapter.guid = kFirstGuid;
    adapter.description = "Radio";
    adapter.address = {2, 0, 0, 0, 0, 15};
    adapter.autoConfiguration = adapter.backgroundScan = false;
    adapter.ihv = {{{0x01, 0xFF}, {{0xA0}, 0}}, {{}, {{}, 31}}, {{0x02}, {{}, 0}}};
    AccessPoint& point = scenario.accessPoints.emplace_back();
    point.ssid = {'A'};
    point.bssid = {2, 0, 0, 0, 1, 1};
    point.key = "correct horse";
    point.answers = false;
    point.timetable = {{0, -50}, {1, std::nullopt}, {4294967295u, 0}};
    return scenario;
}

TEST(ScenarioSystem, EveryFieldIsRead)
{
    const Scenario scenario = ParseScenario(R"({
        "power": {"suspendAllowed": false, "hibernateAllowed": false, "shutdownAllowed": false, "modernStandby": true,
            "battery": true, "resumesAutomatically": true, "upMilliseconds": 9, "lastSleepTime": 18446744073709551615,
            "lastWakeTime": 8, "sleepMilliseconds": 7, "enumerationError": 259,
            "schemes": [
                {"guid": "{5CA1AB1E-0001-4000-8000-000000000001}", "nameHex": "010203", "values": [
                    {"subgroup": "{5CA1AB1E-0002-4000-8000-000000000002}",
                     "setting": "{5CA1AB1E-0001-4000-8000-000000000001}", "ac": 4, "dc": 5}]},
                {"guid": "{5CA1AB1E-0002-4000-8000-000000000002}", "name": "B"}],
            "activeScheme": "{5CA1AB1E-0002-4000-8000-000000000002}",
            "legacySchemes": [{"id": 5, "name": "Five", "idleTimeoutAc": 1, "idleTimeoutDc": 2, "videoTimeoutAc": 3,
                               "videoTimeoutDc": 4}, {"id": 6, "name": "Six"}],
            "activeLegacyScheme": 6},
        "tokens": false, "privileges": [{"name": "SEDEBUGPRIVILEGE", "enabled": true}, {"name": "SeBackupPrivilege"}],
        "programPath": "host.exe", "wow64": true,
        "programs": [{"path": "a.exe", "milliseconds": 5, "exitCode": 6}, {"path": "b.exe", "milliseconds": null},
                     {"path": "c.exe"}],
        "processes": [{"id": 1, "path": "a.exe", "milliseconds": 2, "exitCode": 3, "foreign": true},
                      {"id": 4, "path": "b.exe"}],
        "internet": "unresolved", "administrator": false, "powerSetting": "maximum",
        "adapters": [{"guid": "{5CA1AB1E-0001-4000-8000-000000000001}", "description": "Radio",
            "address": "02:00:00:00:00:0f", "autoConfiguration": false, "backgroundScan": false,
            "ihv": [{"request": "01fF", "answer": "a0"}, {"request": "", "error": 31}, {"request": "02", "answer": ""}]}],
        "accessPoints": [{"ssid": "A", "bssid": "02:00:00:00:01:01", "key": "correct horse", "answers": false,
            "timetable": [{"at": 0, "rssi": -50}, {"at": 1, "rssi": null}, {"at": 4294967295, "rssi": 0}]}]})",
                                            "test");
    EXPECT_EQ(scenario, Everything());
}

TEST(ScenarioSystem, EveryFieldIsWritten)
{
    EXPECT_EQ(ParseScenario(WriteScenario(Everything()), "written"), Everything());
    Scenario other;
    other.power.schemes.clear();
    other.power.activeScheme.reset();
    other.power.activeLegacyScheme.reset();
    other.privileges.clear();
    other.wow64.reset();
    other.internet = InternetAccess::unreachable;
    EXPECT_EQ(ParseScenario(WriteScenario(other), "written"), other);
}

TEST(ScenarioSystem, WhatIsAsUsualIsNotWritten)
{
    const std::string written = WriteScenario(Scenario{});
    for (const char* name :
         {"power", "tokens", "privileges", "programPath", "wow64", "programs", "processes", "internet"})
        EXPECT_EQ(written.find("\"" + std::string(name) + "\""), std::string::npos) << name;
}

TEST(ScenarioSystem, TheFirstSchemeIsActiveUnlessAnotherOrNoneIs)
{
    const std::string schemes = R"("schemes": [{"guid": "{5CA1AB1E-0001-4000-8000-000000000001}", "name": "A"}])";
    const std::string legacy = R"("legacySchemes": [{"id": 5, "name": "Five"}])";
    PowerDescription power = ParseScenario(R"({"power": {)" + schemes + ", " + legacy + "}}", "test").power;
    EXPECT_EQ(power.activeScheme, kFirstGuid);
    EXPECT_EQ(power.activeLegacyScheme, 5u);
    power = ParseScenario(R"({"power": {"schemes": [], "legacySchemes": []}})", "test").power;
    EXPECT_EQ(power.activeScheme, std::nullopt);
    EXPECT_EQ(power.activeLegacyScheme, std::nullopt);
    power = ParseScenario(R"({"power": {"activeScheme": null, "activeLegacyScheme": 3}})", "test").power;
    EXPECT_EQ(power.activeScheme, std::nullopt);
    EXPECT_EQ(power.activeLegacyScheme, 3u);
    EXPECT_EQ(power.schemes, DefaultPowerSchemes());
}

TEST(ScenarioSystem, ASnapshotHasItAll)
{
    Scenario scenario = Everything();
    EXPECT_EQ(Computer(scenario).Snapshot(), scenario);
    const Computer usual{Scenario{}};
    EXPECT_EQ(usual.Snapshot(), Scenario{});
}

TEST(ScenarioSystem, ASnapshotIsOfTheMoment)
{
    Computer computer(Everything());
    computer.Advance(std::chrono::milliseconds(1));
    Scenario expected = Everything();
    expected.power.upMilliseconds = 10;
    expected.processes[0].milliseconds = 1;
    expected.accessPoints[0].timetable = {{0, std::nullopt}, {4294967294u, 0}};
    EXPECT_EQ(computer.Snapshot(), expected);
    computer.Advance(std::chrono::milliseconds(1));
    EXPECT_EQ(computer.Snapshot().processes.size(), 1u);
}

TEST(ScenarioSystem, RefusedFields)
{
    const std::string scheme = R"({"guid": "{5CA1AB1E-0001-4000-8000-00000000000a}", "name": "A"})";
    const std::string sameScheme = R"({"guid": "{5CA1AB1E-0001-4000-8000-00000000000A}", "name": "B"})";
    const std::string adapter = R"({"adapters": [{"guid": "{5CA1AB1E-0001-4000-8000-000000000001}",
        "description": "Radio", "address": "02:00:00:00:00:0f", "ihv": [)";
    const std::string point = R"({"accessPoints": [{"ssid": "A", "bssid": "02:00:00:00:01:01", "timetable": [)";
    const std::string end = "]}]}";
    const struct
    {
        std::string text;
        std::string message;
    } cases[] = {
        {R"({"power": {"sleeps": true}})", "/power: unknown field 'sleeps'"},
        {R"({"power": {"lastWakeTime": -1}})", "/power/lastWakeTime: less than 0"},
        {R"({"power": {"sleepMilliseconds": 86400001}})", "/power/sleepMilliseconds: "},
        {R"({"power": {"enumerationError": -1}})", "/power/enumerationError: "},
        {R"({"power": {"schemes": [{"guid": "Balanced", "name": "A"}]}})",
         "/power/schemes/0/guid: not in the form required. Expected: A GUID with braces"},
        {R"({"power": {"schemes": [{"guid": "{5CA1AB1E-0001-4000-8000-00000000000a}"}]}})", "/power/schemes/0: "},
        {R"({"power": {"schemes": [{"guid": "{5CA1AB1E-0001-4000-8000-00000000000a}", "nameHex": "0"}]}})",
         "/power/schemes/0/nameHex: not pairs of hexadecimal digits"},
        {R"({"power": {"schemes": [)" + scheme + ", " + sameScheme + "]}}",
         "/power/schemes/1/guid: the same as that of element 0"},
        {R"({"power": {"activeScheme": "{5CA1AB1E-0001-4000-8000-00000000000a}"}})",
         "/power/activeScheme: there is no scheme with this GUID"},
        {R"({"power": {"activeScheme": ""}})", "/power/activeScheme: "},
        {R"({"power": {"legacySchemes": [{"id": 1}]}})", "/power/legacySchemes/0: missing field 'name'"},
        {R"({"power": {"legacySchemes": [{"id": 1, "name": "A"}, {"id": 1, "name": "B"}]}})",
         "/power/legacySchemes/1/id: the same as that of element 0"},
        {R"({"power": {"activeLegacyScheme": 2}})",
         "/power/activeLegacyScheme: there is no legacy scheme of this number"},
        {R"({"privileges": [{"name": "SeFlyPrivilege"}]})",
         "/privileges/0/name: the platform has no privilege of this name"},
        {R"({"privileges": [{"name": "SeDebugPrivilege"}, {"name": "sedebugprivilege"}]})",
         "/privileges/1/name: the same as that of element 0"},
        {R"({"wow64": 1})", "/wow64: not of the type required"},
        {R"({"programs": [{"path": ""}]})", "/programs/0/path: "},
        {R"({"programs": [{"path": "a.exe"}, {"path": "A.EXE"}]})", "/programs/1/path: the same as that of element 0"},
        {R"({"programs": [{"path": "a.exe", "milliseconds": -1}]})", "/programs/0/milliseconds: "},
        {R"({"processes": [{"id": 0, "path": "a.exe"}]})", "/processes/0/id: "},
        {R"({"processes": [{"id": 1, "path": "a.exe"}, {"id": 1, "path": "b.exe"}]})",
         "/processes/1/id: the same as that of element 0"},
        {R"({"internet": true})", "/internet: "},
        {R"({"administrator": 1})", "/administrator:"},
        {R"({"powerSetting": "some"})", "/powerSetting:"},
        {adapter + R"({"request": "01"})" + end, "/adapters/0/ihv/0:"},
        {adapter + R"({"request": "01", "answer": "", "error": 5})" + end, "/adapters/0/ihv/0:"},
        {adapter + R"({"request": "0", "answer": ""})" + end, "/adapters/0/ihv/0/request:"},
        {adapter + R"({"request": "0a", "error": 5}, {"request": "0A", "error": 6})" + end,
         "/adapters/0/ihv/1/request:"},
        {point + R"({"at": 5, "rssi": -50}, {"at": 5, "rssi": -60})" + end, "/accessPoints/0/timetable/1/at:"},
        {point + R"({"at": 5})" + end, "/accessPoints/0/timetable/0:"},
        {point + R"({"at": 5, "rssi": -121})" + end, "/accessPoints/0/timetable/0/rssi:"},
        {point + R"({"at": -1, "rssi": -60})" + end, "/accessPoints/0/timetable/0/at:"},
    };
    for (const auto& each : cases)
    {
        const std::string problem = ProblemOf([&] { ParseScenario(each.text, "test"); });
        EXPECT_EQ(problem.substr(0, each.message.size() + 6), "test: " + each.message) << each.text;
    }
}

} // namespace

} // namespace calvix::simulation::scenario_system_test
