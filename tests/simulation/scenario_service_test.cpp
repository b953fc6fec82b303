// Scenario files: what they say of the service's rights and settings, of drivers and of access points that change.
#include "simulation/scenario.h"

#include <gtest/gtest.h>

namespace calvix::simulation::scenario_service_test
{

namespace
{

const std::string adapterHead = R"({"adapters": [{"guid": "{5CA1AB1E-0000-4000-8000-000000000001}",
    "description": "Radio", "address": "02:00:00:00:00:0f", )";
const std::string pointHead = R"({"accessPoints": [{"ssid": "A", "bssid": "02:00:00:00:01:01", )";
const std::string tail = "}]}";

Scenario Everything()
{
    Scenario scenario;
    scenario.administrator = false;
    scenario.powerSetting = 3;
    AdapterDescription adapter;
    adapter.guid = "{5CA1AB1E-0000-4000-8000-000000000001}";
    adapter.description = "Radio";
    adapter.autoConfiguration = false;
    adapter.backgroundScan = false;
    adapter.ihv[{0x01, 0xFF}] = {{0xA0}, 0};
    adapter.ihv[{}] = {{}, 31};
    adapter.ihv[{0x02}] = {{}, 0};
    scenario.adapters.push_back(adapter);
    AccessPoint point;
    point.bssid = {2, 0, 0, 0, 0, 1};
    point.key = "correct horse";
    point.answers = false;
    point.timetable = {{0, -50}, {1, std::nullopt}, {4294967295u, 0}};
    scenario.accessPoints.push_back(point);
    return scenario;
}

TEST(ScenarioService, EveryFieldIsRead)
{
    Scenario scenario = ParseScenario(R"({"administrator": false, "powerSetting": "maximum"})", "test");
    EXPECT_FALSE(scenario.administrator);
    EXPECT_EQ(scenario.powerSetting, 3u);
    scenario = ParseScenario(adapterHead + R"("autoConfiguration": false, "backgroundScan": false,
        "ihv": [{"request": "01fF", "answer": "a0"}, {"request": "", "error": 31}, {"request": "02", "answer": ""}])" +
                                 tail,
                             "test");
    EXPECT_FALSE(scenario.adapters[0].autoConfiguration);
    EXPECT_FALSE(scenario.adapters[0].backgroundScan);
    EXPECT_EQ(scenario.adapters[0].ihv, Everything().adapters[0].ihv);
    scenario = ParseScenario(pointHead + R"("key": "correct horse", "answers": false, "timetable":
        [{"at": 0, "rssi": -50}, {"at": 1, "rssi": null}, {"at": 4294967295, "rssi": 0}])" +
                                 tail,
                             "test");
    EXPECT_EQ(scenario.accessPoints[0].key, "correct horse");
    EXPECT_FALSE(scenario.accessPoints[0].answers);
    EXPECT_EQ(scenario.accessPoints[0].timetable, Everything().accessPoints[0].timetable);
}

TEST(ScenarioService, EveryFieldIsWritten)
{
    EXPECT_EQ(ParseScenario(WriteScenario(Everything()), "written"), Everything());
}

TEST(ScenarioService, RefusedFields)
{
    const struct
    {
        std::string text;
        const char* place;
    } cases[] = {
        {R"({"administrator": 1})", "/administrator"},
        {R"({"powerSetting": "some"})", "/powerSetting"},
        {adapterHead + R"("ihv": [{"request": "01"}])" + tail, "/adapters/0/ihv/0"},
        {adapterHead + R"("ihv": [{"request": "01", "answer": "", "error": 5}])" + tail, "/adapters/0/ihv/0"},
        {adapterHead + R"("ihv": [{"request": "0", "answer": ""}])" + tail, "/adapters/0/ihv/0/request"},
        {adapterHead + R"("ihv": [{"request": "0a", "error": 5}, {"request": "0A", "error": 6}])" + tail,
         "/adapters/0/ihv/1/request"},
        {pointHead + R"("timetable": [{"at": 5, "rssi": -50}, {"at": 5, "rssi": -60}])" + tail,
         "/accessPoints/0/timetable/1/at"},
        {pointHead + R"("timetable": [{"at": 5}])" + tail, "/accessPoints/0/timetable/0"},
        {pointHead + R"("timetable": [{"at": 5, "rssi": -121}])" + tail, "/accessPoints/0/timetable/0/rssi"},
        {pointHead + R"("timetable": [{"at": -1, "rssi": -60}])" + tail, "/accessPoints/0/timetable/0/at"},
    };
    for (const auto& each : cases)
    {
        try
        {
            ParseScenario(each.text, "test");
            ADD_FAILURE() << each.text;
        }
        catch (const ScenarioError& error)
        {
            EXPECT_NE(std::string(error.what()).find(std::string("test: ") + each.place + ":"), std::string::npos)
                << error.what();
        }
    }
}

} // namespace

} // namespace calvix::simulation::scenario_service_test
