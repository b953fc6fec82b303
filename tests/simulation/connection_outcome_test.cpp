// How connections fail, and what the service does about it.
#include "service_fixture.h"

namespace calvix::simulation::connection_outcome_test
{

namespace
{

using std::chrono::milliseconds;
using std::chrono::seconds;

std::string With(const char* event, DWORD reason)
{
    return std::string(event) + " reason " + std::to_string(reason);
}

class ConnectionOutcome : public ServiceTest
{
protected:
    void SetUp() override { scenario.accessPoints.resize(1); }

    /// The notifications of the auto-configuration module about a connection by HomeNet's profile in `duration`.
    Lines Try(milliseconds duration = seconds(10))
    {
        Start();
        EXPECT_EQ(Register(WLAN_NOTIFICATION_SOURCE_ACM), ERROR_SUCCESS);
        EXPECT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
        computer->Advance(duration);
        return Told();
    }
};

TEST_F(ConnectionOutcome, IsReportedOnce)
{
    const struct
    {
        const char* what;
        void (*change)(AccessPoint&);
        DWORD reason;
    } cases[] = {
        {"as it is", [](AccessPoint&) {}, WLAN_REASON_CODE_SUCCESS},
        {"the right key", [](AccessPoint& point) { point.key = "correct horse"; }, WLAN_REASON_CODE_SUCCESS},
        {"a wrong key", [](AccessPoint& point) { point.key = "another horse"; },
         WLAN_REASON_CODE_MSMSEC_PSK_MISMATCH_SUSPECTED},
        {"just in reach", [](AccessPoint& point) { point.rssi = -90; }, WLAN_REASON_CODE_SUCCESS},
        {"too faint", [](AccessPoint& point) { point.rssi = -91; }, WLAN_REASON_CODE_NO_VISIBLE_AP},
        {"vanishes meanwhile",
         [](AccessPoint& point) {
             point.timetable = {{0, -50}, {700, std::nullopt}};
         },
         WLAN_REASON_CODE_NO_VISIBLE_AP},
        {"another SSID", [](AccessPoint& point) { point.ssid.push_back('2'); }, WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE},
        {"another BSS type", [](AccessPoint& point) { point.bssType = 2; }, WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE},
        {"another authentication", [](AccessPoint& point) { point.authentication = "WPA3SAE"; },
         WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE},
        {"another encryption", [](AccessPoint& point) { point.encryption = "TKIP"; },
         WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE},
        {"hidden", [](AccessPoint& point) { point.hidden = true; }, WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE},
    };
    for (const auto& [what, change, reason] : cases)
    {
        SCOPED_TRACE(what);
        scenario.accessPoints = {MakeAccessPoint("HomeNet", 1, -50)};
        change(scenario.accessPoints[0]);
        const Lines failure = {"acm 9", With("acm 11", reason), With("acm 10", reason)};
        const bool succeeds = reason == WLAN_REASON_CODE_SUCCESS;
        EXPECT_EQ(Try(), succeeds ? (Lines{"acm 9", "acm 10"}) : failure);
        EXPECT_EQ(InterfaceState(), succeeds ? wlan_interface_state_connected : wlan_interface_state_disconnected);
    }
}

TEST_F(ConnectionOutcome, AWrongKeyShowsWhileAuthenticating)
{
    scenario.accessPoints[0].key = "another horse";
    EXPECT_EQ(Try(milliseconds(999)), Lines{"acm 9"});
    EXPECT_EQ(InterfaceState(), wlan_interface_state_authenticating);
}

TEST_F(ConnectionOutcome, AnAccessPointThatDoesNotAnswer)
{
    scenario.accessPoints[0].answers = false;
    EXPECT_EQ(Try(milliseconds(999)), Lines{"acm 9"});
    EXPECT_EQ(InterfaceState(), wlan_interface_state_associating);
    computer->Advance(milliseconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
    const DWORD reason = WLAN_REASON_CODE_ASSOCIATION_TIMEOUT;
    EXPECT_EQ(Told(), (Lines{With("acm 11", reason), With("acm 10", reason)}));
}

TEST_F(ConnectionOutcome, TheNextAccessPointIsTriedAfterAFailure)
{
    scenario.accessPoints[0].answers = false;
    scenario.accessPoints.push_back(MakeAccessPoint("HomeNet", 2, -80));
    EXPECT_EQ(Try(milliseconds(1999)), (Lines{"acm 9", With("acm 11", WLAN_REASON_CODE_ASSOCIATION_TIMEOUT)}));
    computer->Advance(milliseconds(1));
    EXPECT_EQ(Connection().value().wlanAssociationAttributes.dot11Bssid[5], 2);
}

TEST_F(ConnectionOutcome, ThreeFailuresAreEnough)
{
    scenario.accessPoints.clear();
    for (std::uint8_t number = 1; number <= 4; ++number)
    {
        scenario.accessPoints.push_back(MakeAccessPoint("HomeNet", number, -50 - number));
        scenario.accessPoints.back().answers = number == 4;
    }
    const std::string failed = With("acm 11", WLAN_REASON_CODE_ASSOCIATION_TIMEOUT);
    EXPECT_EQ(Try(), (Lines{"acm 9", failed, failed, failed, With("acm 10", WLAN_REASON_CODE_ASSOCIATION_TIMEOUT)}));
}

TEST_F(ConnectionOutcome, AnAttemptThatIsReplacedIsCancelled)
{
    Try(milliseconds(500));
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(Told(), (Lines{With("acm 10", WLAN_REASON_CODE_USER_CANCELLED), "acm 9", "acm 10"}));
}

} // namespace

} // namespace calvix::simulation::connection_outcome_test
