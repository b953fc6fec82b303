// Every way in which a scenario file can be unusable, and the message that says where and why.
#include "simulation/scenario.h"

#include "support/json_schema.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace calvix::simulation::scenario_message_test
{

namespace
{

std::string MessageFor(const std::string& json)
{
    try
    {
        ParseScenario(json, "office.json");
    }
    catch (const ScenarioError& error)
    {
        return error.what();
    }
    return "accepted";
}

/// A scenario with one adapter whose members end in `members`.
std::string WithAdapter(const std::string& members)
{
    return R"({"adapters": [{"guid": "{5CA1AB1E-0000-4000-8000-000000000001}", "description": "Radio",
        "address": "02:00:00:00:00:01")" +
           (members.empty() ? "" : ", " + members) + "}]}";
}

std::string WithAccessPoint(const std::string& members)
{
    return R"({"accessPoints": [{"ssid": "First", "bssid": "02:00:00:00:01:01"}, {)" + members + "}]}";
}

struct Case
{
    const char* name;
    std::string json;
    const char* message; ///< what the message begins with
};

class ScenarioMessage : public ::testing::TestWithParam<Case>
{
};

std::string NameOf(const ::testing::TestParamInfo<Case>& test)
{
    return test.param.name;
}

TEST_P(ScenarioMessage, NamesFilePlaceAndProblem)
{
    const std::string expected = GetParam().message;
    EXPECT_EQ(MessageFor(GetParam().json).substr(0, expected.size()), expected);
}

const char kPoint[] = R"("ssid": "Second", "bssid": "02:00:00:00:01:02")";

INSTANTIATE_TEST_SUITE_P(
    Syntax,
    ScenarioMessage,
    ::testing::Values(Case{"Comma", "{\n  \"codePage\": 1252,\n}", "office.json: line 3, column 1: syntax error"},
                      Case{"Empty", "", "office.json: line 1, column 1: syntax error"},
                      Case{"Rest", "{} {}", "office.json: line 1, column 4: syntax error"},
                      Case{"NotUtf8", "{\"description\": \"\xFF\"}", "office.json: line 1, column 18: syntax error"}),
    NameOf);

/// What the published schema refuses, too.
const Case kRefusedBySchema[] = {
    Case{"NoObject", "[]", "office.json: /: not of the type required. Expected: A simulated computer"},
    Case{"UnknownField", R"({"codepage": 1252})", "office.json: /: unknown field 'codepage'"},
    Case{"CodePage", R"({"codePage": 1251})",
         "office.json: /codePage: not one of the values allowed. Expected: The "
         "active narrow code page"},
    Case{"Service", R"({"service": "paused"})", "office.json: /service: not one of the values allowed"},
    Case{"Consent", R"({"locationConsent": "yes"})", "office.json: /locationConsent: not of the type required"},
    Case{"NoGuid", R"({"adapters": [{"description": "Radio", "address": "02:00:00:00:00:01"}]})",
         "office.json: /adapters/0: missing field 'guid'"},
    Case{"Guid", R"({"adapters": [{"guid": "5CA1", "description": "Radio", "address": "02:00:00:00:00:01"}]})",
         "office.json: /adapters/0/guid: not in the form required. Expected: The adapter's GUID with braces"},
    Case{"NoPhy", WithAdapter(R"("phys": [])"),
         "office.json: /adapters/0/phys: fewer elements than 1. Expected: The adapter's PHYs"},
    Case{"PhyName", WithAdapter(R"("phys": [{"type": "ht"}, {"type": "wifi9"}])"),
         "office.json: /adapters/0/phys/1/type: "},
    Case{"PhySwitch", WithAdapter(R"("phys": [{"software": true}])"),
         "office.json: /adapters/0/phys/0/software: not one of the values allowed"},
    Case{"ScanTime", WithAdapter(R"("scanMilliseconds": -1)"),
         "office.json: /adapters/0/scanMilliseconds: less than 0. Expected: How long a scan takes"},
    Case{"ProfileForms", WithAdapter(R"("profiles": [{"xml": "<WLANProfile/>", "mode": "auto"}])"),
         "office.json: /adapters/0/profiles/0: fields that exclude each other. Expected: A stored profile"},
    Case{"ProfileTypo", WithAdapter(R"("profiles": [{"name": "Home", "passphrase": "12345678"}])"),
         "office.json: /adapters/0/profiles/0: unknown field 'passphrase'"},
    Case{"ConnectionTypo", WithAdapter(R"("connection": {"ssid": "Home"})"),
         "office.json: /adapters/0/connection: unknown field 'ssid'"},
    Case{"Statistics", WithAdapter(R"("statistics": {"received": 1.5})"),
         "office.json: /adapters/0/statistics/received: not of the type required"},
    Case{"Frequency", WithAccessPoint(std::string(kPoint) + R"(, "frequencyKhz": "2.4 GHz")"),
         "office.json: /accessPoints/1/frequencyKhz: not of the type required. Expected: The primary channel's"},
    Case{"TwoFrequencies",
         WithAccessPoint(std::string(kPoint) + R"(, "frequencyKhz": 2412000, "band": "5", "channel": 36)"),
         "office.json: /accessPoints/1: fields that exclude each other"},
    Case{"NoBand", WithAccessPoint(std::string(kPoint) + R"(, "channel": 36)"),
         "office.json: /accessPoints/1: missing field 'band'"},
    Case{"NoSsid", WithAccessPoint(R"("bssid": "02:00:00:00:01:02")"),
         "office.json: /accessPoints/1: missing field 'ssid'"},
    Case{"TwoSsids", WithAccessPoint(std::string(kPoint) + R"(, "ssidHex": "41")"),
         "office.json: /accessPoints/1: fields that exclude each other"},
    Case{"Bssid", WithAccessPoint(R"("ssid": "Second", "bssid": "02-00-00-00-01-02")"),
         "office.json: /accessPoints/1/bssid: not in the form required. Expected: Six bytes in hexadecimal"},
    Case{"Authentication", WithAccessPoint(std::string(kPoint) + R"(, "authentication": "WPA2-PSK")"),
         "office.json: /accessPoints/1/authentication: not one of the values allowed. Expected: As profiles name "
         "it"},
    Case{"Rssi", WithAccessPoint(std::string(kPoint) + R"(, "rssi": 60)"),
         "office.json: /accessPoints/1/rssi: greater than 0. Expected: The signal strength"}};

INSTANTIATE_TEST_SUITE_P(Schema, ScenarioMessage, ::testing::ValuesIn(kRefusedBySchema), NameOf);

TEST(ScenarioMessages, TheSchemaRefusesTheSame)
{
    const auto schema = nlohmann::json::parse(ScenarioSchema());
    for (const Case& each : kRefusedBySchema)
        EXPECT_NE(test::SchemaProblem(schema, schema, nlohmann::json::parse(each.json)), "") << each.name;
}

INSTANTIATE_TEST_SUITE_P(
    BeyondTheSchema,
    ScenarioMessage,
    ::testing::Values(
        Case{"NegativeCount", WithAdapter(R"("statistics": {"received": -1})"),
             "office.json: /adapters/0/statistics/received: less than 0"},
        Case{"DuplicateBssid", WithAccessPoint(R"("ssid": "Second", "bssid": "02:00:00:00:01:01")"),
             "office.json: /accessPoints/1/bssid: the same as that of element 0"},
        Case{"DuplicateGuid",
             R"({"adapters": [
                 {"guid": "{5CA1AB1E-0000-4000-8000-00000000000a}", "description": "A", "address": "02:00:00:00:00:01"},
                 {"guid": "{5CA1AB1E-0000-4000-8000-00000000000A}", "description": "B", "address": "02:00:00:00:00:02"}]})",
             "office.json: /adapters/1/guid: the same as that of element 0"},
        Case{"UnknownProfile", WithAdapter(R"("profiles": [{"name": "Home"}], "connection": {"profile": "home"})"),
             "office.json: /adapters/0/connection/profile: the adapter has no profile of this name"},
        Case{"DuplicateProfile", WithAdapter(R"("profiles": [{"name": "Home"}, {"name": "Home"}])"),
             "office.json: /adapters/0/profiles/1: the adapter has another profile of this name"},
        Case{
            "LongSsid",
            WithAccessPoint(
                R"("ssid": "\u6771\u6771\u6771\u6771\u6771\u6771\u6771\u6771\u6771\u6771\u6771", "bssid": "02:00:00:00:01:02")"),
            "office.json: /accessPoints/1/ssid: an SSID has at most 32 bytes, and this text has 33 in UTF-8"},
        Case{"LongProfileName",
             WithAdapter(R"("profiles": [{"name": "the name of a network is never as long as this"}])"),
             "office.json: /adapters/0/profiles/0/name: an SSID has at most 32 bytes"},
        Case{"HexDigit", WithAccessPoint(R"("ssidHex": "4g", "bssid": "02:00:00:00:01:02")"),
             "office.json: /accessPoints/1/ssidHex: not pairs of hexadecimal digits"},
        Case{"HexPairs", WithAccessPoint(std::string(kPoint) + R"(, "informationElements": "001")"),
             "office.json: /accessPoints/1/informationElements: not pairs of hexadecimal digits"},
        Case{"Channel", WithAccessPoint(std::string(kPoint) + R"(, "band": "2.4", "channel": 36)"),
             "office.json: /accessPoints/1/channel: the 2.4 GHz band has no channel 36"},
        Case{"ProfileNoXml", WithAdapter(R"("profiles": [{"xml": "Home"}])"),
             "office.json: /adapters/0/profiles/0/xml: the WLAN service does not take this profile: error 1206"},
        Case{"ProfileOtherXml", WithAdapter(R"("profiles": [{"xml": "<Profile><name>Home</name></Profile>"}])"),
             "office.json: /adapters/0/profiles/0/xml: the WLAN service does not take this profile: error 1206"},
        Case{"ShortKey", WithAdapter(R"("profiles": [{"name": "Home", "key": "short"}])"),
             "office.json: /adapters/0/profiles/0: the WLAN service does not take this profile: error 1206"}),
    NameOf);

TEST(ScenarioMessages, AFileThatCannotBeReadIsNamed)
{
    for (const std::string path : {"no/such/scenario.json", "."})
    {
        try
        {
            LoadScenario(path);
            ADD_FAILURE() << path << " was read";
        }
        catch (const ScenarioError& error)
        {
            EXPECT_EQ(error.what(), path + ": cannot be read");
        }
    }
}

TEST(ScenarioMessages, DeepNestingIsReported)
{
    const std::string open(20000, '[');
    EXPECT_EQ(MessageFor(open + std::string(20000, ']')).substr(0, 15), "office.json: /:");
    std::string xml;
    for (int depth = 0; depth < 20000; ++depth)
        xml += "<a>";
    EXPECT_EQ(MessageFor(WithAdapter(R"("profiles": [{"xml": ")" + xml + "\"}]")).substr(0, 39),
              "office.json: /adapters/0/profiles/0/xml");
}

} // namespace

} // namespace calvix::simulation::scenario_message_test
