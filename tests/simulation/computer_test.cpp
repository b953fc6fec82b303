// The computer as a whole: how it is made, and what it reports about itself.
#include "service_fixture.h"
#include "system_fixture.h"

namespace calvix::simulation::computer_test
{

using std::chrono::seconds;

using WholeComputer = ServiceTest;

TEST_F(WholeComputer, ASnapshotIsThePresentComputer)
{
    scenario.description = "a home";
    scenario.codePage = 65001;
    Start();
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    ASSERT_EQ(SetProfile(MakeProfile("New", "New")), ERROR_SUCCESS);
    ASSERT_EQ(SetSoftwareRadio(1, dot11_radio_state_off), ERROR_SUCCESS);
    computer->air().push_back(MakeAccessPoint("New", 9, -60));
    computer->SetLocationConsent(false);

    const Scenario snapshot = computer->Snapshot();
    EXPECT_EQ(snapshot.description, "a home");
    EXPECT_EQ(snapshot.codePage, 65001u);
    EXPECT_TRUE(snapshot.serviceRunning);
    EXPECT_FALSE(snapshot.locationConsent);
    EXPECT_EQ(snapshot.accessPoints.size(), 3u);
    ASSERT_EQ(snapshot.adapters.size(), 2u);
    const AdapterDescription& adapter = snapshot.adapters[0];
    EXPECT_EQ(adapter.guid, scenario.adapters[0].guid);
    EXPECT_EQ(adapter.phys[1].software, RadioSwitch::off);
    ASSERT_EQ(adapter.profiles.size(), 2u);
    EXPECT_EQ(adapter.profiles[0].xml, MakeProfile("New", "New"));
    EXPECT_EQ(adapter.profiles[1].xml, MakeProfile("HomeNet", "HomeNet"));
    ASSERT_TRUE(adapter.connection.has_value());
    EXPECT_EQ(adapter.connection->profile, "HomeNet");
    EXPECT_EQ(adapter.connection->bssid, scenario.accessPoints[0].bssid);
}

TEST_F(WholeComputer, ASnapshotMakesTheSameComputerAgain)
{
    Start();
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    const Scenario snapshot = computer->Snapshot();
    const Computer again(snapshot);
    EXPECT_EQ(WriteScenario(again.Snapshot()), WriteScenario(snapshot));
}

TEST_F(WholeComputer, AConnectionWhoseAccessPointIsGoneIsNotRestored)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    scenario.accessPoints.clear();
    Start();
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
    EXPECT_FALSE(computer->Snapshot().adapters[0].connection.has_value());
}

TEST_F(WholeComputer, ScenariosThatContradictThemselvesAreRefused)
{
    const struct
    {
        const char* message;
        void (*spoil)(Scenario&);
    } cases[] = {
        {"not a GUID", [](Scenario& s) { s.adapters[0].guid = "A0000001-0001-0001-0101-010101010101"; }},
        {"another adapter has this GUID", [](Scenario& s) { s.adapters[1].guid = s.adapters[0].guid; }},
        {"a profile cannot be used", [](Scenario& s) { s.adapters[0].profiles[0].xml = "<x/>"; }},
        {"two profiles are called HomeNet",
         [](Scenario& s) { s.adapters[0].profiles.push_back(s.adapters[0].profiles[0]); }},
        {"a profile that it does not have",
         [](Scenario& s) {
             s.adapters[0].connection = simulation::Connection{"Nobody", std::nullopt};
         }},
        {"too long", [](Scenario& s) { s.adapters[0].description = std::string(256, 'x'); }},
        {"not a GUID", [](Scenario& s) { s.power.schemes[0].guid = "Balanced"; }},
        {"not a GUID", [](Scenario& s) { s.power.schemes[0].values[0].setting = ""; }},
        {"another scheme has this GUID", [](Scenario& s) { s.power.schemes[1].guid = s.power.schemes[0].guid; }},
        {"active, but not there", [](Scenario& s) { s.power.schemes.erase(s.power.schemes.begin()); }},
        {"active, but not there", [](Scenario& s) { s.power.activeLegacyScheme = 2; }},
        {"there is another one", [](Scenario& s) { s.power.legacySchemes[1].id = 0; }},
        {"not a number of its own",
         [](Scenario& s) {
             s.processes = {{8, "a.exe"}, {8, "b.exe"}};
         }},
        {"not a number of its own",
         [](Scenario& s) {
             s.processes = {{0, "a.exe"}};
         }},
    };
    for (const auto& each : cases)
    {
        Scenario spoiled = scenario;
        each.spoil(spoiled);
        const std::string problem = ProblemOf([&] { const Computer refused(spoiled); });
        EXPECT_NE(problem.find(each.message), std::string::npos) << each.message << ", not " << problem;
    }
}

TEST_F(WholeComputer, AServiceStoppedFromTheStart)
{
    scenario.serviceRunning = false;
    Start();
    EXPECT_EQ(client, nullptr);
}

} // namespace calvix::simulation::computer_test
