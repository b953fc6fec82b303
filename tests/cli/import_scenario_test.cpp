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
    ReadCapture(kNetworks, "networks.txt", {}, captures);
    ReadCapture(kInterfaces, "interfaces.txt", {}, captures);
    return captures;
}

Captures Folder(const std::string& name)
{
    Captures captures;
    for (const char* file : {"/networks.txt", "/interfaces.txt"})
        ReadCapture(ReadWholeFile(name + file), file, {}, captures);
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

TEST(ImportScenario, WhatIsWrittenReadsBackTheSame)
{
    for (const std::string& folder : {DataPath("home"), std::string(CALVIX_SOURCE_DIR) + "/samples/cafe"})
        for (const bool makeProfiles : {false, true})
        {
            const Scenario scenario = AssembleScenario(Folder(folder), makeProfiles).scenario;
            EXPECT_EQ(simulation::ParseScenario(simulation::WriteScenario(scenario), "text"), scenario) << folder;
        }
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
              std::vector<std::string>{
                  "Wi-Fi 2-Juniper.xml: another profile has the name \"Juniper\"; this one is left out"});
}

TEST(ImportScenario, WithoutInterfacesOneAdapterIsMadeUp)
{
    const Scenario scenario = Import(kNetworks).scenario;
    ASSERT_EQ(scenario.adapters.size(), 1u);
    EXPECT_FALSE(scenario.adapters[0].connection);
    EXPECT_TRUE(scenario.adapters[0].profiles.empty());
    EXPECT_EQ(PhyTypes(scenario.adapters[0]), (std::vector<std::uint32_t>{5, 4, 6, 7, 8, 10}));
    EXPECT_EQ(simulation::ParseScenario(simulation::WriteScenario(scenario), "text"), scenario);
}

TEST(ImportScenario, WithoutNetworksTheAirIsWhatAdaptersAreConnectedTo)
{
    const MadeScenario imported = Import(kInterfaces);
    ASSERT_EQ(imported.scenario.accessPoints.size(), 1u);
    EXPECT_EQ(imported.scenario.accessPoints[0].rssi, -59);
    ASSERT_TRUE(imported.scenario.adapters[0].connection);
    EXPECT_EQ(imported.scenario.adapters[0].connection->bssid, imported.scenario.accessPoints[0].bssid);
    EXPECT_TRUE(imported.warnings.empty());
}

TEST(ImportScenario, AConnectionToAnAccessPointThatIsNotInTheListIsLeftOutAloud)
{
    Captures captures = BothCaptures();
    captures.networks = ReadNetworks(Replaced(kNetworks, "02:00:00:00:00:01", "02:00:00:00:00:09"));
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
    captures.networks = ReadNetworks(Replaced(kNetworks, "WPA2-Personal", "WPA3-Personal"));
    captures.profiles.push_back(ParseExportedProfile(kProfile, "Wi-Fi-Juniper.xml"));
    const MadeScenario imported = AssembleScenario(captures, false);
    EXPECT_FALSE(imported.scenario.adapters[0].connection);
    EXPECT_EQ(
        imported.warnings,
        std::vector<std::string>{
            "the connection of \"Wi-Fi\" to \"Juniper\" is left out: its profile is for another kind of network"});
}

TEST(ImportScenario, AConnectionHasTheNameOfAHiddenAccessPoint)
{
    Captures captures = BothCaptures();
    captures.networks = ReadNetworks(Listing("", "02:00:00:00:00:01", 60));
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
    struct Listed
    {
        const char* first;
        const char* second;
        int signal; ///< of the second; that of the first is 40 %
        std::int32_t rssi;
    };
    for (const Listed& each :
         {Listed{"Twice", "Twice", 80, -60}, Listed{"", "Twice", 30, -80}, Listed{"Twice", "", 30, -80}})
    {
        const std::vector<simulation::AccessPoint> air =
            Import("Interface name : A\n" + Listing(each.first, address, 40) + "Interface name : B\n" +
                   Listing(each.second, address, each.signal))
                .scenario.accessPoints;
        ASSERT_EQ(air.size(), 1u);
        EXPECT_EQ(air[0].rssi, each.rssi);
        EXPECT_EQ(air[0].ssid.size(), 5u);
        EXPECT_EQ(air[0].hidden, each.first != std::string(each.second)) << "it answered a computer that knew the name";
    }
}

TEST(ImportScenario, CapturesOfTwoLanguagesGoTogether)
{
    Captures captures;
    ReadCapture(Sample("languages/japanese/networks.txt"), "n", {}, captures);
    ReadCapture(Sample("languages/russian/interfaces.txt"), "i", {}, captures);
    const MadeScenario imported = AssembleScenario(captures, false);
    EXPECT_TRUE(imported.scenario.adapters.at(0).connection);
    EXPECT_EQ(imported.warnings, std::vector<std::string>());
    EXPECT_FALSE(
        Import(Sample("languages/german/networks.txt") + Sample("languages/french/networks.txt")).warnings.empty());
}

TEST(ImportScenario, TheSummaryCountsWhatIsListed)
{
    Scenario scenario = Import(kNetworks).scenario;
    EXPECT_EQ(CountScenario(scenario).networks, 2u);
    scenario.accessPoints[0].hidden = true;
    EXPECT_EQ(CountScenario(scenario).networks, 3u) << "those that hide their names are an entry of their own";
    scenario.adapters[0].phys[0].hardware = simulation::RadioSwitch::off;
    scenario.accessPoints.clear();
    EXPECT_EQ(CountScenario(scenario).networks, 0u);
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
    const MadeScenario imported = AssembleScenario(Read(Replaced(kNetworks, "CCMP", "WEP")), true);
    EXPECT_EQ(imported.scenario.adapters.at(0).profiles.size(), 1u);
    ASSERT_FALSE(imported.warnings.empty());
    EXPECT_EQ(imported.warnings[0], "the profile \"Juniper\" cannot be made: no profile has WPA2PSK with WEP");
    EXPECT_EQ(imported.warnings.size(), 1u) << "one warning for a network, however many access points it has";
}

} // namespace calvix::host::test::import_scenario_test
