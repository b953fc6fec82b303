// How connections fail, and what the service does about it.
#include "notification_recorder.h"
#include "service_fixture.h"

namespace calvix::simulation::connection_outcome_test
{

namespace
{

using std::chrono::milliseconds;
using std::chrono::seconds;
using Lines = std::vector<std::string>;

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
        EXPECT_EQ(Wlan().WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, FALSE,
                                                  &NotificationRecorder::Callback, &recorder, nullptr, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
        computer->Advance(duration);
        computer->WaitForNotifications();
        return recorder.Take();
    }

    static Lines Failure(DWORD reason) { return {"acm 9", With("acm 11", reason), With("acm 10", reason)}; }

    void TearDown() override
    {
        ServiceTest::TearDown();
        computer.reset();
    }

    NotificationRecorder recorder;
};

TEST_F(ConnectionOutcome, SuccessIsReportedOnce)
{
    EXPECT_EQ(Try(), (Lines{"acm 9", "acm 10"}));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
}

TEST_F(ConnectionOutcome, ANetworkThatIsNotThere)
{
    scenario.accessPoints.clear();
    EXPECT_EQ(Try(), Failure(WLAN_REASON_CODE_NETWORK_NOT_AVAILABLE));
}

TEST_F(ConnectionOutcome, AWrongKey)
{
    scenario.accessPoints[0].key = "another horse";
    EXPECT_EQ(Try(), Failure(WLAN_REASON_CODE_MSMSEC_PSK_MISMATCH_SUSPECTED));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

TEST_F(ConnectionOutcome, AWrongKeyShowsWhileAuthenticating)
{
    scenario.accessPoints[0].key = "another horse";
    EXPECT_EQ(Try(milliseconds(999)), Lines{"acm 9"});
    EXPECT_EQ(InterfaceState(), wlan_interface_state_authenticating);
}

TEST_F(ConnectionOutcome, TheRightKey)
{
    scenario.accessPoints[0].key = "correct horse";
    EXPECT_EQ(Try(), (Lines{"acm 9", "acm 10"}));
}

TEST_F(ConnectionOutcome, AnAccessPointThatDoesNotAnswer)
{
    scenario.accessPoints[0].answers = false;
    EXPECT_EQ(Try(milliseconds(999)), Lines{"acm 9"});
    EXPECT_EQ(InterfaceState(), wlan_interface_state_associating);
    computer->Advance(milliseconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
    computer->WaitForNotifications();
    const DWORD reason = WLAN_REASON_CODE_ASSOCIATION_TIMEOUT;
    EXPECT_EQ(recorder.Take(), (Lines{With("acm 11", reason), With("acm 10", reason)}));
}

TEST_F(ConnectionOutcome, AnAccessPointThatIsTooFaint)
{
    scenario.accessPoints[0].rssi = -91;
    EXPECT_EQ(Try(), Failure(WLAN_REASON_CODE_NO_VISIBLE_AP));
}

TEST_F(ConnectionOutcome, AFaintOneJustInReach)
{
    scenario.accessPoints[0].rssi = -90;
    EXPECT_EQ(Try(), (Lines{"acm 9", "acm 10"}));
}

TEST_F(ConnectionOutcome, AnAccessPointThatVanishesMeanwhile)
{
    scenario.accessPoints[0].timetable = {{0, -50}, {700, std::nullopt}};
    EXPECT_EQ(Try(), Failure(WLAN_REASON_CODE_NO_VISIBLE_AP));
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
    computer->WaitForNotifications();
    EXPECT_EQ(recorder.Take(), (Lines{With("acm 10", WLAN_REASON_CODE_USER_CANCELLED), "acm 9", "acm 10"}));
}

} // namespace

} // namespace calvix::simulation::connection_outcome_test
