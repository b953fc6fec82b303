// Access points that move and fade.
#include "service_fixture.h"
#include "simulation/timetable.h"

namespace calvix::simulation::timetable_test
{

namespace
{

using std::chrono::milliseconds;
using std::chrono::seconds;

AccessPoint Passing()
{
    AccessPoint point = MakeAccessPoint("HomeNet", 1, -99);
    point.timetable = {{1000, -80}, {3000, -50}, {4000, std::nullopt}, {5000, -60}};
    return point;
}

TEST(Timetable, SaysHowStrongAnAccessPointIs)
{
    const std::pair<int, std::optional<std::int32_t>> cases[] = {
        {0, -80},    {1000, -80},          {2000, -65},          {2500, -58}, {3000, -50},
        {3999, -50}, {4000, std::nullopt}, {4999, std::nullopt}, {5000, -60}, {99000, -60}};
    for (const auto& [at, rssi] : cases)
        EXPECT_EQ(SignalAt(Passing(), milliseconds(at)), rssi) << at;
}

TEST(Timetable, WithoutOneTheStrengthIsAlwaysTheSame)
{
    AccessPoint point = Passing();
    point.timetable.clear();
    EXPECT_EQ(SignalAt(point, seconds(50)), -99);
    EXPECT_TRUE(RestOfTimetable(point, seconds(50)).empty());
}

TEST(Timetable, TheRestBeginsNow)
{
    using Points = std::vector<SignalPoint>;
    EXPECT_EQ(RestOfTimetable(Passing(), milliseconds(0)), Passing().timetable);
    EXPECT_EQ(RestOfTimetable(Passing(), milliseconds(2000)),
              (Points{{0, -65}, {1000, -50}, {2000, std::nullopt}, {3000, -60}}));
    EXPECT_EQ(RestOfTimetable(Passing(), milliseconds(4500)), (Points{{0, std::nullopt}, {500, -60}}));
    EXPECT_EQ(RestOfTimetable(Passing(), milliseconds(9000)), Points({{0, -60}}));
}

class Fading : public ServiceTest
{
protected:
    Fading()
    {
        scenario.accessPoints.resize(1);
        scenario.accessPoints[0].timetable = {{0, -50}, {20'000, -90}, {20'001, std::nullopt}};
        scenario.accessPoints.push_back(MakeAccessPoint("Other", 2, -30));
        scenario.accessPoints[1].timetable = {{0, -40}, {20'000, -80}};
    }
};

TEST_F(Fading, ScansHearWhatThereIsAtTheirTime)
{
    Start();
    computer->Advance(seconds(5));
    EXPECT_EQ(ListStations().at(0).lRssi, -50) << "as of the last scan";
    Scan(seconds(5));
    const Stations stations = ListStations();
    ASSERT_EQ(stations.size(), 2u);
    EXPECT_EQ(stations[0].lRssi, -64) << "the scan was done after 7 seconds";
    EXPECT_EQ(stations[0].uLinkQuality, 72u);
    EXPECT_EQ(stations[1].lRssi, -54);
    Scan(seconds(12));
    Scan();
    EXPECT_EQ(ListStations().size(), 1u);
}

TEST_F(Fading, TheConnectionIsHeardAllTheTime)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    Start();
    computer->Advance(milliseconds(5000));
    EXPECT_EQ(Query<std::int32_t>(wlan_intf_opcode_rssi), -60);
    EXPECT_EQ(Connection().value().wlanAssociationAttributes.wlanSignalQuality, 80u);
    const Stations stations = ListStations();
    ASSERT_EQ(stations.size(), 2u);
    EXPECT_EQ(stations[0].lRssi, -60);
    EXPECT_EQ(stations[1].lRssi, -40) << "as of the last scan";
}

TEST_F(Fading, TheConnectionEndsWithItsAccessPoint)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    Start();
    computer->Advance(seconds(20));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
    computer->Advance(seconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

TEST_F(Fading, ASnapshotGoesOnWhereItWasTaken)
{
    Start();
    computer->Advance(seconds(10));
    const Scenario snapshot = computer->Snapshot();
    Computer again(snapshot);
    EXPECT_EQ(WriteScenario(again.Snapshot()), WriteScenario(snapshot));
    computer->Advance(seconds(5));
    again.Advance(seconds(5));
    const std::vector<AccessPoint>& air = again.air();
    for (std::size_t index = 0; index < air.size(); ++index)
        EXPECT_EQ(SignalAt(air[index], again.Now()), SignalAt(computer->air()[index], computer->Now()));
}

} // namespace

} // namespace calvix::simulation::timetable_test
