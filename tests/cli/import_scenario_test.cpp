#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_scenario_test
{

namespace
{

using simulation::AdapterDescription;
using simulation::Scenario;

Captures BothCaptures()
{
    Captures captures;
    captures.networks = ParseNetworks(kNetworks, "some/folder/networks.txt");
    captures.interfaces = ParseInterfaces(kInterfaces, "interfaces.txt");
    return captures;
}

Captures Folder(const std::string& name)
{
    Captures captures;
    captures.networks = ParseNetworks(ToUtf8(ReadWholeFile(name + "/networks.txt")), "networks.txt");
    captures.interfaces = ParseInterfaces(ToUtf8(ReadWholeFile(name + "/interfaces.txt")), "interfaces.txt");
    captures.profiles = ReadProfileFolder(name + "/profiles");
    return captures;
}

std::vector<std::uint32_t> PhyTypes(const AdapterDescription& adapter)
{
    std::vector<std::uint32_t> types;
    for (const simulation::PhyDescription& phy : adapter.phys)
        types.push_back(phy.type);
    return types;
}

/// A one-network capture with the given name and address.
std::string Listing(const std::string& ssid, const std::string& address, int signal)
{
    return "There are 1 networks currently visible.\nSSID 1 : " + ssid +
           "\nNetwork type : Infrastructure\nAuthentication : WPA2-Personal\nEncryption : CCMP\nBSSID 1 : " + address +
           "\nSignal : " + std::to_string(signal) + "%\nRadio type : 802.11n\nChannel : 1\n";
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST(ImportScenario, AdaptersAirAndConnectionOfOneMachine)
{
    const MadeScenario imported = AssembleScenario(BothCaptures(), false);
    EXPECT_TRUE(imported.warnings.empty());
    const Scenario& scenario = imported.scenario;
    EXPECT_EQ(scenario.description, "Imported from networks.txt and interfaces.txt");
    EXPECT_EQ(scenario.accessPoints.size(), 3u);
    ASSERT_EQ(scenario.adapters.size(), 2u);
    EXPECT_EQ(scenario.adapters[0].guid, "{11111111-2222-3333-4444-55556666ABCD}");
    EXPECT_EQ(scenario.adapters[0].description, "First: the inner one");
    ASSERT_TRUE(scenario.adapters[0].connection);
    EXPECT_EQ(scenario.adapters[0].connection->profile, "Juniper");
    EXPECT_EQ(scenario.adapters[0].connection->bssid, scenario.accessPoints[0].bssid);
    ASSERT_EQ(scenario.adapters[0].profiles.size(), 1u);
    EXPECT_TRUE(Contains(scenario.adapters[0].profiles[0].xml, "<connectionMode>auto</connectionMode>"));
    EXPECT_TRUE(Contains(scenario.adapters[0].profiles[0].xml, "<authentication>WPA2PSK</authentication>"));
    EXPECT_FALSE(scenario.adapters[1].connection);
    EXPECT_TRUE(scenario.adapters[1].profiles.empty());
    for (const simulation::PhyDescription& phy : scenario.adapters[1].phys)
    {
        EXPECT_EQ(phy.hardware, simulation::RadioSwitch::on);
        EXPECT_EQ(phy.software, simulation::RadioSwitch::off);
    }
}

TEST(ImportScenario, WhatIsWrittenReadsBackTheSame)
{
    for (const std::string& folder : {DataPath("home"), std::string(CALVIX_SOURCE_DIR) + "/samples/cafe"})
        for (const bool makeProfiles : {false, true})
        {
            const Scenario scenario = AssembleScenario(Folder(folder), makeProfiles).scenario;
            EXPECT_EQ(simulation::ParseScenario(simulation::WriteScenario(scenario), "text"), scenario) << folder;
        }
}

TEST(ImportScenario, CountsWhatItHolds)
{
    const ScenarioCounts home = CountScenario(AssembleScenario(Folder(DataPath("home")), false).scenario);
    EXPECT_EQ(home.adapters, 2u);
    EXPECT_EQ(home.accessPoints, 11u);
    EXPECT_EQ(home.networks, 7u);
    EXPECT_EQ(home.hidden, 2u);
    // Two are the first adapter's, one the second's, and one everybody's.
    EXPECT_EQ(home.profiles, 5u);
}

TEST(ImportScenario, ExportedProfilesGoToTheAdapterThatTheirFilesName)
{
    const Scenario home = AssembleScenario(Folder(DataPath("home")), false).scenario;
    ASSERT_EQ(home.adapters[0].profiles.size(), 3u);
    EXPECT_TRUE(Contains(home.adapters[0].profiles[0].xml, "ckerei S"));
    EXPECT_TRUE(Contains(home.adapters[0].profiles[1].xml, "<name>Attic</name>"));
    EXPECT_TRUE(Contains(home.adapters[0].profiles[2].xml, "<name>Juniper Lane</name>"));
    ASSERT_EQ(home.adapters[1].profiles.size(), 2u);
    EXPECT_TRUE(Contains(home.adapters[1].profiles[1].xml, "<name>Floor 2: Left</name>"));
}

TEST(ImportScenario, AnExportedProfileComesBeforeAMadeUpOne)
{
    Captures captures = BothCaptures();
    captures.profiles.push_back(ParseExportedProfile(kProfile, "Wi-Fi-Juniper.xml"));
    const MadeScenario imported = AssembleScenario(captures, false);
    ASSERT_EQ(imported.scenario.adapters[0].profiles.size(), 1u);
    EXPECT_EQ(imported.scenario.adapters[0].profiles[0].xml, kProfile);
    EXPECT_TRUE(imported.scenario.adapters[0].connection);
}

TEST(ImportScenario, TheSecondProfileOfANameIsLeftOutAloud)
{
    Captures captures;
    captures.profiles.push_back(ParseExportedProfile(kProfile, "Wi-Fi-Juniper.xml"));
    captures.profiles.push_back(ParseExportedProfile(kProfile, "Wi-Fi 2-Juniper.xml"));
    const MadeScenario imported = AssembleScenario(captures, false);
    EXPECT_EQ(imported.scenario.adapters.at(0).profiles.size(), 1u);
    EXPECT_EQ(imported.warnings,
              std::vector<std::string>{"Wi-Fi 2-Juniper.xml: another profile has the name \"Juniper\"; "
                                       "this one is left out"});
}

TEST(ImportScenario, WithoutInterfacesOneAdapterIsMadeUp)
{
    Captures captures;
    captures.networks = ParseNetworks(kNetworks, "networks.txt");
    const Scenario scenario = AssembleScenario(captures, false).scenario;
    ASSERT_EQ(scenario.adapters.size(), 1u);
    EXPECT_FALSE(scenario.adapters[0].connection);
    EXPECT_TRUE(scenario.adapters[0].profiles.empty());
    EXPECT_EQ(PhyTypes(scenario.adapters[0]), (std::vector<std::uint32_t>{5, 4, 6, 7, 8, 10}));
    EXPECT_EQ(simulation::ParseScenario(simulation::WriteScenario(scenario), "text"), scenario);
}

TEST(ImportScenario, WithoutNetworksTheAirIsWhatAdaptersAreConnectedTo)
{
    Captures captures;
    captures.interfaces = ParseInterfaces(kInterfaces, "interfaces.txt");
    const MadeScenario imported = AssembleScenario(captures, false);
    ASSERT_EQ(imported.scenario.accessPoints.size(), 1u);
    EXPECT_EQ(imported.scenario.accessPoints[0].rssi, -59);
    ASSERT_TRUE(imported.scenario.adapters[0].connection);
    EXPECT_EQ(imported.scenario.adapters[0].connection->bssid, imported.scenario.accessPoints[0].bssid);
    EXPECT_TRUE(imported.warnings.empty());
}

TEST(ImportScenario, AConnectionToAnAccessPointThatIsNotInTheListIsLeftOutAloud)
{
    Captures captures = BothCaptures();
    captures.networks = ParseNetworks(Replaced(kNetworks, "02:00:00:00:00:01", "02:00:00:00:00:09"), "networks.txt");
    const MadeScenario imported = AssembleScenario(captures, false);
    EXPECT_EQ(imported.scenario.accessPoints.size(), 3u);
    EXPECT_FALSE(imported.scenario.adapters[0].connection);
    EXPECT_EQ(imported.scenario.adapters[0].profiles.size(), 1u);
    EXPECT_EQ(imported.warnings, std::vector<std::string>{"the connection of \"Wi-Fi\" to \"Juniper\" is left out: the "
                                                          "captured networks do not list its access point"});
}

TEST(ImportScenario, AConnectionWhoseProfileDoesNotFitIsLeftOutAloud)
{
    Captures captures = BothCaptures();
    captures.networks = ParseNetworks(Replaced(kNetworks, "WPA2-Personal", "WPA3-Personal"), "networks.txt");
    captures.profiles.push_back(ParseExportedProfile(kProfile, "Wi-Fi-Juniper.xml"));
    const MadeScenario imported = AssembleScenario(captures, false);
    EXPECT_FALSE(imported.scenario.adapters[0].connection);
    EXPECT_EQ(imported.warnings, std::vector<std::string>{"the connection of \"Wi-Fi\" to \"Juniper\" is left out: its "
                                                          "profile is for another kind of network"});
}

TEST(ImportScenario, AConnectionHasTheNameOfAHiddenAccessPoint)
{
    Captures captures = BothCaptures();
    captures.networks = ParseNetworks(Listing("", "02:00:00:00:00:01", 60), "networks.txt");
    const Scenario scenario = AssembleScenario(captures, false).scenario;
    ASSERT_EQ(scenario.accessPoints.size(), 1u);
    EXPECT_TRUE(scenario.accessPoints[0].hidden);
    EXPECT_EQ(std::string(scenario.accessPoints[0].ssid.begin(), scenario.accessPoints[0].ssid.end()), "Juniper");
    EXPECT_TRUE(scenario.adapters[0].connection);
    EXPECT_TRUE(Contains(scenario.adapters[0].profiles.at(0).xml, "<nonBroadcast>true</nonBroadcast>"));
}

TEST(ImportScenario, AnAccessPointThatIsListedTwiceIsOne)
{
    const std::string address = "02:00:00:00:00:07";
    Captures captures;
    captures.networks = ParseNetworks("Interface name : A\n" + Listing("Twice", address, 40) + "Interface name : B\n" +
                                          Listing("Twice", address, 80),
                                      "file");
    const Scenario heardByTwo = AssembleScenario(captures, false).scenario;
    ASSERT_EQ(heardByTwo.accessPoints.size(), 1u);
    EXPECT_EQ(heardByTwo.accessPoints[0].rssi, -60);
    EXPECT_FALSE(heardByTwo.accessPoints[0].hidden);

    for (const auto& [first, second] : {std::pair("", "Twice"), std::pair("Twice", "")})
    {
        captures.networks = ParseNetworks("Interface name : A\n" + Listing(first, address, 40) +
                                              "Interface name : B\n" + Listing(second, address, 30),
                                          "file");
        const Scenario answered = AssembleScenario(captures, false).scenario;
        ASSERT_EQ(answered.accessPoints.size(), 1u);
        EXPECT_TRUE(answered.accessPoints[0].hidden);
        EXPECT_EQ(answered.accessPoints[0].ssid.size(), 5u);
        EXPECT_EQ(answered.accessPoints[0].rssi, -80);
    }
}

TEST(ImportScenario, ProfilesCanBeMadeForTheNamedNetworksThatHaveNone)
{
    const Scenario home = AssembleScenario(Folder(DataPath("home")), true).scenario;
    std::string all;
    for (const simulation::StoredProfile& profile : home.adapters[0].profiles)
        all += profile.xml;
    for (const char* name : {"Juniper Lane 6", "Floor 2: Left", "Board &amp; Dice", "chess-table"})
        EXPECT_TRUE(Contains(all, "\t<name>" + std::string(name) + "</name>")) << name;
    // Three were exported for the first adapter and two for the second; the hidden network gets none.
    EXPECT_EQ(home.adapters[0].profiles.size(), 3u + 4u);
    EXPECT_EQ(home.adapters[1].profiles.size(), 2u + 4u);
}

TEST(ImportScenario, NoProfileIsMadeForSecurityThatNoProfileCanAskFor)
{
    Captures captures;
    captures.networks = ParseNetworks(Replaced(kNetworks, "CCMP", "WEP"), "file");
    const MadeScenario imported = AssembleScenario(captures, true);
    EXPECT_EQ(imported.scenario.adapters.at(0).profiles.size(), 1u);
    ASSERT_FALSE(imported.warnings.empty());
    EXPECT_EQ(imported.warnings[0], "the profile \"Juniper\" cannot be made: no profile has WPA2PSK with WEP");
    EXPECT_EQ(imported.warnings.size(), 1u) << "one warning for a network, however many access points it has";
}

} // namespace calvix::host::test::import_scenario_test
