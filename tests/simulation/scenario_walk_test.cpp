// The gallery's scenarios in which something happens, played with the library.
#include "support/library_test.h"

#include "forms/guid_text.h"
#include "notification_recorder.h"

#include <algorithm>
#include <filesystem>

namespace calvix::simulation::scenario_walk_test
{

using std::chrono::seconds;

class ScenarioPlay : public test::LibraryTest
{
protected:
    void Play(const char* file)
    {
        UseScenario(LoadScenario((std::filesystem::path(CALVIX_SOURCE_DIR) / "scenarios" / file).string()));
        guid = forms::GuidFromText(computer().Snapshot().adapters.at(0).guid).value();
    }

    std::optional<Connection> Connected() { return computer().Snapshot().adapters.at(0).connection; }

    GUID guid{};
};

TEST_F(ScenarioPlay, TheOfficeWalkNeedsTwoRoams)
{
    Play("office-walk.json");
    std::vector<int> roamedAfter;
    for (int second = 1; second <= 240; ++second)
    {
        Advance(seconds(1));
        if (manager().Roaming(&guid) == 0)
            roamedAfter.push_back(second);
    }
    ASSERT_EQ(roamedAfter.size(), 2u);
    ASSERT_TRUE(Connected().has_value());
    EXPECT_EQ(Connected()->bssid, computer().air().at(2).bssid) << "at the end of the corridor";
    EXPECT_GT(roamedAfter[0], 60) << "when a scan has heard the next access point";
    EXPECT_GT(roamedAfter[1], 120);
}

TEST_F(ScenarioPlay, TheTrainLosesItsNetworkAndFindsItAgain)
{
    Play("train.json");
    NotificationRecorder recorder;
    DWORD version = 0;
    HANDLE client = nullptr;
    ASSERT_EQ(computer().wlan().WlanOpenHandle(2, nullptr, &version, &client), ERROR_SUCCESS);
    ASSERT_EQ(computer().wlan().WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ACM, TRUE,
                                                         &NotificationRecorder::Callback, &recorder, nullptr, nullptr),
              ERROR_SUCCESS);
    Advance(seconds(44));
    EXPECT_TRUE(Connected().has_value());
    Advance(seconds(1));
    EXPECT_FALSE(Connected().has_value());
    Advance(seconds(145));
    EXPECT_TRUE(Connected().has_value());
    computer().WaitForNotifications();
    const std::vector<std::string> told = recorder.Take();
    const auto lost =
        std::find(told.begin(), told.end(), "acm 21 reason " + std::to_string(WLAN_REASON_CODE_DRIVER_DISCONNECTED));
    ASSERT_NE(lost, told.end());
    EXPECT_NE(std::find(lost, told.end(), "acm 10"), told.end());
    EXPECT_EQ(computer().wlan().WlanCloseHandle(client, nullptr), ERROR_SUCCESS);
}

TEST_F(ScenarioPlay, TheTravellersHotspotCarriesTheMarker)
{
    Play("airport-hotspot.json");
    EXPECT_TRUE(manager().SpecialSoftAP());
}

TEST_F(ScenarioPlay, ProgramsCannotTurnAHardwareSwitch)
{
    Play("radio-off.json");
    EXPECT_EQ(manager().RadioTurnOn(&guid), 0);
    EXPECT_EQ(manager().PhyRadioTurnedOff(&guid), 1);
    EXPECT_EQ(manager().PhyRadioIsOn(&guid), 0);
}

} // namespace calvix::simulation::scenario_walk_test
