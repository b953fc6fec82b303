// Scenario files: what they mean, the gallery, and writing.
#include "simulation/scenario.h"

#include "support/json_schema.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace calvix::simulation::scenario_file_test
{

namespace
{

const std::filesystem::path kGallery = std::filesystem::path(CALVIX_SOURCE_DIR) / "scenarios";

std::string TextOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> GalleryFiles()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kGallery))
        names.push_back(entry.path().filename().string());
    return names;
}

Bytes BytesOf(const std::string& text)
{
    return {text.begin(), text.end()};
}

TEST(ScenarioFile, AnEmptyObjectIsAComputerWithoutAdapter)
{
    EXPECT_EQ(ParseScenario("{}", "test"), Scenario{});
}

TEST(ScenarioFile, WhatIsLeftOutHasItsDefault)
{
    const Scenario scenario = ParseScenario(
        R"({"adapters": [{"guid": "{5CA1AB1E-0000-4000-8000-000000000001}", "description": "Radio",
                          "address": "02:00:00:00:00:0f"}],
            "accessPoints": [{"ssid": "", "bssid": "02:00:00:00:01:01"}]})",
        "test");
    AdapterDescription adapter;
    adapter.guid = "{5CA1AB1E-0000-4000-8000-000000000001}";
    adapter.description = "Radio";
    adapter.address = {2, 0, 0, 0, 0, 15};
    AccessPoint point;
    point.bssid = {2, 0, 0, 0, 1, 1};
    ASSERT_EQ(scenario.adapters.size(), 1u);
    EXPECT_EQ(scenario.adapters[0], adapter);
    ASSERT_EQ(scenario.accessPoints.size(), 1u);
    EXPECT_EQ(scenario.accessPoints[0], point);
}

TEST(ScenarioFile, EveryFieldIsRead)
{
    const Scenario scenario = ParseScenario(
        R"({"$schema": "s", "description": "d", "codePage": 936, "service": "stopped", "locationConsent": false,
            "adapters": [{"guid": "{5CA1AB1E-0000-4000-8000-000000000001}", "description": "Radio",
                          "address": "02:AA:bb:00:00:01",
                          "phys": [{"type": "eht", "software": "off", "hardware": "on"}, {"type": 77, "hardware": "off"}],
                          "scanMilliseconds": 1, "connectMilliseconds": 2,
                          "profiles": [{"name": "Home"}],
                          "connection": {"profile": "Home", "bssid": "02:00:00:00:01:01",
                                         "receiveKbps": 2401900, "transmitKbps": 117000},
                          "statistics": {"transmitted": 3, "received": 18446744073709551615}}],
            "accessPoints": [{"ssidHex": "00fF", "hidden": true, "bssid": "02:00:00:00:01:01", "frequencyKhz": 5180000,
                              "rssi": -71, "phy": "he", "bssType": "independent", "authentication": "open",
                              "encryption": "none", "beaconPeriod": 7, "informationElements": "dd0101"}]})",
        "test");
    EXPECT_EQ(scenario.description, "d");
    EXPECT_EQ(scenario.codePage, 936u);
    EXPECT_FALSE(scenario.serviceRunning);
    EXPECT_FALSE(scenario.locationConsent);

    ASSERT_EQ(scenario.adapters.size(), 1u);
    const AdapterDescription& adapter = scenario.adapters[0];
    EXPECT_EQ(adapter.address, (MacAddress{0x02, 0xAA, 0xBB, 0, 0, 1}));
    const std::vector<PhyDescription> phys{{11, RadioSwitch::off, RadioSwitch::on},
                                           {77, RadioSwitch::on, RadioSwitch::off}};
    EXPECT_EQ(adapter.phys, phys);
    EXPECT_EQ(adapter.scanMilliseconds, 1u);
    EXPECT_EQ(adapter.connectMilliseconds, 2u);
    EXPECT_EQ(adapter.connection, (Connection{"Home", MacAddress{2, 0, 0, 0, 1, 1}, 2401900, 117000}));
    EXPECT_EQ(adapter.statistics, (Statistics{3, 18446744073709551615u}));

    ASSERT_EQ(scenario.accessPoints.size(), 1u);
    const AccessPoint expected{{0x00, 0xFF}, true, {2, 0, 0, 0, 1, 1}, 5180000, -71, 10, 2, "open",
                               "none",       7,    {0xDD, 1, 1}};
    EXPECT_EQ(scenario.accessPoints[0], expected);
}

TEST(ScenarioFile, ChannelsMeanFrequencies)
{
    const struct
    {
        const char* band;
        int channel;
        std::uint32_t frequencyKhz;
    } cases[] = {{"2.4", 1, 2412000}, {"2.4", 13, 2472000}, {"2.4", 14, 2484000}, {"5", 36, 5180000},
                 {"5", 165, 5825000}, {"6", 1, 5955000},    {"6", 2, 5935000},    {"6", 233, 7115000}};
    for (const auto& each : cases)
    {
        const Scenario scenario =
            ParseScenario(R"({"accessPoints": [{"ssid": "A", "bssid": "02:00:00:00:01:01", "band": ")" +
                              std::string(each.band) + R"(", "channel": )" + std::to_string(each.channel) + "}]}",
                          "test");
        EXPECT_EQ(scenario.accessPoints.at(0).frequencyKhz, each.frequencyKhz) << each.band << " " << each.channel;
    }
}

TEST(ScenarioFile, ShortProfilesBecomeDocuments)
{
    const Scenario scenario = ParseScenario(
        R"({"adapters": [{"guid": "{5CA1AB1E-0000-4000-8000-000000000001}", "description": "Radio",
                          "address": "02:00:00:00:00:01",
                          "profiles": [{"name": "Home"},
                                       {"name": "Away", "ssidHex": "ff00", "mode": "manual", "authentication": "WPA3SAE",
                                        "encryption": "GCMP256", "key": "12345678", "hidden": true},
                                       {"name": "Game", "bssType": "independent", "authentication": "open",
                                        "encryption": "none"}]}]})",
        "test");
    ProfileSettings home;
    home.name = "Home";
    home.ssid = BytesOf("Home");
    const ProfileSettings away{"Away", {0xFF, 0x00}, "manual", "WPA3SAE", "GCMP256", "12345678", true, 1};
    const ProfileSettings game{"Game", BytesOf("Game"), "manual", "open", "none", "", false, 2};
    const std::vector<StoredProfile> expected{{MakeProfileXml(home)}, {MakeProfileXml(away)}, {MakeProfileXml(game)}};
    EXPECT_EQ(scenario.adapters.at(0).profiles, expected);
}

TEST(ScenarioFile, WritingKeepsWhatTheShortFormsCannotSay)
{
    Scenario scenario;
    scenario.description = "\"quoted\" \xE6\x9D\xB1";
    AccessPoint point;
    point.ssid = BytesOf("half \xE6\x9D");
    point.bssid = {2, 0, 0, 0, 0, 1};
    point.phyType = 4000000000u;
    point.bssType = 9;
    scenario.accessPoints.push_back(point);
    point.bssid = {2, 0, 0, 0, 0, 2};
    point.ssid = Bytes(32, 0);
    point.informationElements = {0, 255};
    scenario.accessPoints.push_back(point);
    EXPECT_EQ(ParseScenario(WriteScenario(scenario), "written"), scenario);
}

TEST(ScenarioGallery, HoldsWhatTheDocumentationSays)
{
    const std::vector<std::string> names = GalleryFiles();
    const std::set<std::string> expected{"home.json",         "office.json",          "airport.json",
                                         "no-adapter.json",   "service-stopped.json", "consent-denied.json",
                                         "two-adapters.json", "office-walk.json",     "train.json",
                                         "radio-off.json",    "airport-hotspot.json", "automatic.json",
                                         "laptop.json"};
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()), expected);
}

TEST(ScenarioGallery, EveryFileIsReadAndSurvivesWriting)
{
    for (const std::string& name : GalleryFiles())
    {
        SCOPED_TRACE(name);
        const Scenario scenario = LoadScenario((kGallery / name).string());
        EXPECT_FALSE(scenario.description.empty());
        EXPECT_EQ(ParseScenario(WriteScenario(scenario), "written"), scenario);
    }
}

TEST(ScenarioGallery, AddressesAreLocallyAdministered)
{
    const auto isLocal = [](const MacAddress& address) { return (address[0] & 0x03) == 0x02; };
    for (const std::string& name : GalleryFiles())
    {
        SCOPED_TRACE(name);
        const Scenario scenario = LoadScenario((kGallery / name).string());
        for (const AdapterDescription& adapter : scenario.adapters)
            EXPECT_TRUE(isLocal(adapter.address)) << adapter.description;
        for (std::size_t index = 0; index < scenario.accessPoints.size(); ++index)
            EXPECT_TRUE(isLocal(scenario.accessPoints[index].bssid)) << "access point " << index;
    }
}

TEST(ScenarioGallery, TheBuiltInScenarioIsHome)
{
    EXPECT_EQ(BuiltInScenario(), LoadScenario((kGallery / "home.json").string()));
}

TEST(ScenarioGallery, IsWhatTheSchemaDescribes)
{
    const auto schema = nlohmann::json::parse(ScenarioSchema());
    for (const std::string& name : GalleryFiles())
        EXPECT_EQ(test::SchemaProblem(schema, schema, nlohmann::json::parse(TextOf(kGallery / name))), "") << name;
}

} // namespace

} // namespace calvix::simulation::scenario_file_test
