#include "cli_test.h"

#include "report/beacon.h"
#include "simulation/channel_elements.h"

#include <nlohmann/json.hpp>

namespace calvix::test::report_beacon_test
{
namespace
{

using host::BeaconFacts;
using host::ReadBeacon;
using simulation::Bytes;

constexpr std::uint32_t kHt = 7;
constexpr std::uint32_t kVht = 8;
constexpr std::uint32_t kHe = 10;
constexpr std::uint32_t kEht = 11;

BeaconFacts Read(unsigned long frequencyKhz, const Bytes& elements, USHORT capabilities = 0x11)
{
    WLAN_BSS_ENTRY entry{};
    entry.ulChCenterFrequency = frequencyKhz;
    entry.usCapabilityInformation = capabilities;
    return ReadBeacon(entry, elements);
}

TEST(Beacon, HasTheChannelAsItsAccessPointUsesIt)
{
    struct Row
    {
        std::uint32_t phy;
        std::uint32_t primaryMhz;
        std::uint32_t width;
        unsigned long centreMhz;
    };
    for (const Row& row :
         {Row{kHt, 2437, 20, 2437}, Row{kHt, 2412, 40, 2422}, Row{kHt, 2462, 40, 2452}, Row{kHt, 5180, 40, 5190},
          Row{kHt, 5200, 40, 5190}, Row{kVht, 5220, 80, 5210}, Row{kVht, 5745, 80, 5775}, Row{kVht, 5520, 160, 5570},
          Row{kHe, 5260, 20, 5260}, Row{kHe, 5260, 80, 5290}, Row{kHe, 5955, 80, 5985}, Row{kHe, 6135, 160, 6185},
          Row{kEht, 5180, 160, 5250}, Row{kEht, 5975, 320, 6105}, Row{kEht, 6295, 40, 6285}})
    {
        simulation::AccessPoint point;
        point.phyType = row.phy;
        point.frequencyKhz = row.primaryMhz * 1000;
        point.channelWidth = row.width;
        const BeaconFacts facts = Read(point.frequencyKhz, simulation::ChannelElements(point));
        EXPECT_TRUE(facts.widthKnown);
        EXPECT_EQ(row.width, facts.widthMhz) << row.primaryMhz;
        EXPECT_EQ(row.centreMhz * 1000, facts.centreKhz) << row.primaryMhz << " at " << row.width;
        EXPECT_EQ(2u, facts.streams);
    }
}

TEST(Beacon, ReadsElementsAsAccessPointsSendThem)
{
    // 80 MHz around channel 42, primary channel 36, three streams at VHT's best modulation.
    const Bytes vht = {61, 22,  36, 0x05, 0, 0, 0, 0,    0,    0, 0, 0,    0,    0, 0, 0,   0, 0, 0,  0, 0, 0, 0,
                       0,  191, 12, 0,    0, 0, 0, 0xea, 0xff, 0, 0, 0xea, 0xff, 0, 0, 192, 5, 1, 42, 0, 0, 0};
    const BeaconFacts facts = Read(5180000, vht);
    EXPECT_EQ(80u, facts.widthMhz);
    EXPECT_EQ(5210000u, facts.centreKhz);
    EXPECT_EQ(3u, facts.streams);
    EXPECT_EQ(1300065u, facts.fastestKbps) << "three times 433.3 Mbit/s";
    // The older way to announce 160 MHz: a width of its own, with the centre of the whole.
    EXPECT_EQ(160u, Read(5180000, {192, 5, 2, 50, 0, 0, 0}).widthMhz);
    EXPECT_EQ(5250000u, Read(5180000, {192, 5, 2, 50, 0, 0, 0}).centreKhz);
}

TEST(Beacon, MalformedElementsAreIgnored)
{
    for (const Bytes& broken :
         {Bytes{}, Bytes{61}, Bytes{61, 22, 36}, Bytes{61, 1, 36}, Bytes{192, 2, 1, 42}, Bytes{255, 0},
          Bytes{255, 1, 36}, Bytes{255, 3, 106, 1, 0}, Bytes{192, 5, 1, 0, 0, 0, 0}, Bytes{48, 1, 1},
          Bytes{48, 8, 1, 0, 0, 0x0f, 0xac, 4, 0xff, 0xff}})
    {
        const BeaconFacts facts = Read(5180000, broken);
        EXPECT_FALSE(facts.widthKnown);
        EXPECT_EQ(20u, facts.widthMhz);
        EXPECT_EQ(5180000u, facts.centreKhz);
        EXPECT_EQ("WEP", facts.security) << "the privacy bit alone";
    }
    EXPECT_EQ("open", Read(5180000, {}, 0x01).security);
}

TEST(Beacon, HasTheSecurity)
{
    const Bytes mixed = {48, 24, 1, 0, 0,    0x0f, 0xac, 4, 1,    0,    0, 0x0f, 0xac,
                         4,  2,  0, 0, 0x0f, 0xac, 2,    0, 0x0f, 0xac, 8, 0x80, 0};
    EXPECT_EQ("WPA2-PSK + WPA3-SAE/CCMP", Read(5180000, mixed).security);
    const Bytes old = {221, 22, 0, 0x50, 0xf2, 1, 1, 0, 0, 0x50, 0xf2, 2,
                       1,   0,  0, 0x50, 0xf2, 2, 1, 0, 0, 0x50, 0xf2, 2};
    EXPECT_EQ("WPA-PSK/TKIP", Read(2412000, old).security);
}

class ReportBeacons : public CliTest
{
};

TEST_F(ReportBeacons, SimulatedSecurityMatchesTheServices)
{
    simulation::Scenario scenario = SilentScenario();
    std::uint8_t last = 1;
    for (const auto& [authentication, encryption] : std::vector<std::pair<std::string, std::string>>{{"WPA2PSK", "AES"},
                                                                                                     {"WPA3SAE", "AES"},
                                                                                                     {"OWE", "AES"},
                                                                                                     {"WPA2", "AES"},
                                                                                                     {"WPAPSK", "TKIP"},
                                                                                                     {"open", "none"}})
    {
        scenario.accessPoints.push_back(MakeAccessPoint("N" + authentication, {2, 0, 0, 0, 0, last++}, 5180000, -50));
        scenario.accessPoints.back().authentication = authentication;
        scenario.accessPoints.back().encryption = encryption;
    }
    std::map<std::string, std::string> told;
    const auto networks = nlohmann::json::parse(RunOn(scenario, {"networks", "--json"}).out);
    for (const auto& network : networks["networks"])
        told[network["ssid"]] = network["security"];
    const auto report = nlohmann::json::parse(RunOn(scenario, {"report", "-o", "-", "--json"}).out);
    ASSERT_EQ(6u, report["accessPoints"].size());
    for (const auto& point : report["accessPoints"])
        EXPECT_EQ(told[point["ssid"]], point["security"]) << point["ssid"];
}

} // namespace
} // namespace calvix::test::report_beacon_test
