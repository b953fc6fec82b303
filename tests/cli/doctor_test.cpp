// What the doctor finds out: each computer of the gallery with something wrong, and its diagnosis.

#include "cli_test.h"

#include "platform/records/error_numbers.h"

#include <calvix/testing/computer.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>

namespace calvix::test::doctor_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;

struct Case
{
    const char* scenario;
    const char* operation; ///< that is refused; null: none
    DWORD error;
    int exitCode;
    const char* checks; ///< what was looked at, and what it came to
    const char* check;  ///< the one that matters
    const char* finding;
    const char* advice;
};

void PrintTo(const Case& row, std::ostream* out)
{
    *out << row.scenario << (row.operation != nullptr ? row.operation : "");
}

constexpr const char* kAllWell = "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio ok, 1 Location ok, 1 Scan ok, "
                                 "1 Networks ok, 1 Profiles ok, 1 Connection ok, Internet ok";

constexpr const char* kNotConnected =
    "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio ok, 1 Location ok, 1 Scan ok, 1 Networks ok, "
    "1 Profiles ok, 1 Connection warning, Internet ok";

const Case kCases[] = {
    {"office-walk", nullptr, 0, 0, kAllWell, "Connection", "Brightwater Staff at 02:B8:00:11:00:02, signal 100%", ""},
    {"airport-hotspot", nullptr, 0, 0, kAllWell, "Profiles",
     "in view: Traveller LC#7, Colleague LC#2, Silent LC#5, Airport Free", ""},
    {"automatic", nullptr, 0, 0, kAllWell, "Connection", "Harbour at 02:A7:00:02:00:01, signal 50%", ""},
    {"laptop", nullptr, 0, 0, kAllWell, "Networks", "1 network, 2 access points", ""},
    {"office", nullptr, 0, 0, kAllWell, "Networks", "4 networks, 13 access points", ""},
    {"train", nullptr, 0, 0, kAllWell, "Connection", "Night Express", ""},
    {"service-stopped", nullptr, 0, 3, "WLAN API ok, WLAN service failed, Internet ok", "WLAN service",
     "not running, 1062); the service control manager says of WlanSvc: stopped", "sc start WlanSvc"},
    {"home", "WlanOpenHandle", ERROR_MOD_NOT_FOUND, 3, "WLAN API failed, Internet ok", "WLAN API", "126",
     "Install-WindowsFeature Wireless-Networking"},
    {"no-adapter", nullptr, 0, 3, "WLAN API ok, WLAN service ok, Adapter failed, Internet ok", "Adapter",
     "no wireless adapter", "device manager"},
    {"radio-off", nullptr, 0, 1,
     "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio failed, 1 Profiles ok, Internet ok", "Radio",
     "off: software switch on, hardware switch off", "use the switch"},
    {"consent-denied", nullptr, 0, 1,
     "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio ok, 1 Location failed, 1 Profiles ok, Internet ok",
     "Location", "access denied, 5", "ms-settings:privacy-location"},
    {"two-adapters", nullptr, 0, 1,
     "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio failed, 1 Profiles ok, 2 Adapter ok, 2 Radio ok, "
     "2 Location ok, 2 Scan ok, 2 Networks ok, 2 Profiles ok, 2 Connection ok, Internet ok",
     "Radio", "hardware switch off", "use the switch"},
    {"home", "WlanOpenHandle", ERROR_ACCESS_DENIED, 1, "WLAN API ok, WLAN service failed, Internet ok", "WLAN service",
     "access denied, 5", "in the session of a signed-in user"},
    {"home", nullptr, 0, 0, kNotConnected, "Connection", "none", "calvix best"},
    {"airport", nullptr, 0, 0, kNotConnected, "Profiles", "3 stored, in view: 東空港 Free, Old Lounge", ""},
    {"office-walk", "WlanGetProfile", ERROR_ACCESS_DENIED, 0,
     "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio ok, 1 Location ok, 1 Scan ok, 1 Networks ok, "
     "1 Profiles warning, 1 Connection ok, Internet ok",
     "Profiles", "cannot be read: Brightwater Staff", "another user"},
    {"office-walk", "WlanScan", ERROR_BUSY, 1,
     "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio ok, 1 Location ok, 1 Scan failed, 1 Networks ok, "
     "1 Profiles ok, 1 Connection ok, Internet ok",
     "Scan", "busy, 170", "wait a moment"},
    {"office-walk", "InternetCheckConnectionA", 12007, 1,
     "WLAN API ok, WLAN service ok, 1 Adapter ok, 1 Radio ok, 1 Location ok, 1 Scan ok, 1 Networks ok, "
     "1 Profiles ok, 1 Connection ok, Internet failed",
     "Internet", "could not be reached", "name server"},
};

/// "WLAN API ok, 1 Adapter ok"
std::string InShort(const json& checks)
{
    std::string text;
    for (const json& check : checks)
        text += (text.empty() ? "" : ", ") +
                (check["adapter"].is_null() ? "" : std::to_string(check["adapter"].get<int>()) + " ") +
                check["check"].get<std::string>() + " " + check["verdict"].get<std::string>();
    return text;
}

json CheckNamed(const json& checks, const std::string& name)
{
    for (const json& check : checks)
        if (check["check"] == name)
            return check;
    return {};
}

class Diagnosis : public CliTest, public ::testing::WithParamInterface<Case>
{
};

TEST_P(Diagnosis, ShowsWhatIsWrongAndChangesNothing)
{
    const Case& expected = GetParam();
    auto computer =
        calvix::testing::Computer::FromFile(CALVIX_SOURCE_DIR "/scenarios/" + std::string(expected.scenario) + ".json");
    if (expected.operation != nullptr)
        computer.Fail(expected.operation, expected.error);
    const Outcome outcome = Run({"doctor", "--json"});

    EXPECT_EQ(expected.exitCode, outcome.exitCode) << outcome.err;
    const json result = json::parse(outcome.out);
    EXPECT_EQ(expected.exitCode != 0, result.contains("error"));
    EXPECT_EQ(expected.checks, InShort(result["checks"]));
    const json check = CheckNamed(result["checks"], expected.check);
    EXPECT_THAT(check["finding"].get<std::string>(), HasSubstr(expected.finding));
    EXPECT_THAT(check["advice"].is_null() ? "" : check["advice"].get<std::string>(), HasSubstr(expected.advice));
    for (const char* change : {"StartServiceA", "WlanSetInterface", "WlanConnect", "WlanDisconnect", "WlanSetProfile",
                               "WlanSetProfilePosition", "WlanDeleteProfile"})
        EXPECT_EQ(0u, computer.CallCount(change)) << change;
    EXPECT_TRUE(computer.Held().Nothing());
}

INSTANTIATE_TEST_SUITE_P(Gallery, Diagnosis, ::testing::ValuesIn(kCases));

TEST(DoctorCases, HaveEveryScenarioOfTheGallery)
{
    for (const auto& entry : std::filesystem::directory_iterator(CALVIX_SOURCE_DIR "/scenarios"))
        EXPECT_TRUE(std::any_of(std::begin(kCases), std::end(kCases),
                                [&](const Case& row)
                                { return entry.path().stem() == row.scenario && row.operation == nullptr; }))
            << entry.path();
}

} // namespace
} // namespace calvix::test::doctor_test
