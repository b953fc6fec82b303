// How crowded the channels are, by what their access points cover.

#include "cli_test.h"

#include <nlohmann/json.hpp>

#include <map>

namespace calvix::test::channels_test
{
namespace
{

using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::Not;

/// Three in the 2.4 GHz band, whose qualities are 80, 40 and 20, and one of 80 MHz and quality 60 in the 5 GHz band.
simulation::Scenario CrowdedAir()
{
    simulation::Scenario world = NoProfileWorld();
    world.accessPoints = {MakeAccessPoint("Middle", {2, 0, 0, 0, 0, 6}, 2437000, -60),
                          MakeAccessPoint("Left", {2, 0, 0, 0, 0, 1}, 2412000, -80),
                          MakeAccessPoint("Right", {2, 0, 0, 0, 0, 13}, 2472000, -90),
                          MakeAccessPoint("Wide", {2, 0, 0, 0, 0, 36}, 5180000, -70)};
    world.accessPoints[3].phyType = dot11_phy_type_vht;
    world.accessPoints[3].channelWidth = 80;
    return world;
}

class ChannelLoads : public CliTest
{
};

TEST_F(ChannelLoads, CountAnAccessPointByThePartThatItCovers)
{
    const Outcome outcome = RunOn(CrowdedAir(), {"channels", "--json"});
    ASSERT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    const json bands = json::parse(outcome.out)["bands"];
    std::map<int, json> low;
    for (const json& channel : bands[0]["channels"])
        low[channel["channel"]] = channel;
    EXPECT_EQ(13u, low.size());
    // A channel is 20 MHz wide and 5 MHz from the next, so that each step away is a quarter less.
    EXPECT_EQ(json({{"channel", 6}, {"accessPoints", 1}, {"strongest", -60}, {"load", 80}}), low[6]);
    EXPECT_EQ(60, low[7]["load"]);
    EXPECT_EQ(40, low[8]["load"]);
    EXPECT_EQ(json({{"channel", 3}, {"accessPoints", 2}, {"strongest", -60}, {"load", 20 + 20}}), low[3]);
    EXPECT_EQ(40, low[1]["load"]);
    EXPECT_EQ(10, low[11]["load"]);
    EXPECT_EQ(5, low[10]["load"]);
    // Channel 10 is quieter (5), but overlaps with both that are in use around it.
    EXPECT_EQ(11, bands[0]["leastCrowded"]);
}

TEST_F(ChannelLoads, CountAWideOneInEachChannelThatItCovers)
{
    const json bands = json::parse(RunOn(CrowdedAir(), {"channels", "--json"}).out)["bands"];
    std::string covered;
    for (const json& channel : bands[1]["channels"])
        if (channel["load"] == 60)
            covered += std::to_string(channel["channel"].get<int>()) + " ";
        else
            EXPECT_EQ(json(nullptr), channel["strongest"]) << channel;
    EXPECT_EQ("36 40 44 48 ", covered);
    EXPECT_EQ(52, bands[1]["leastCrowded"]);
    EXPECT_EQ(28u, bands[1]["channels"].size());
    EXPECT_EQ(59u, bands[2]["channels"].size());
}

TEST_F(ChannelLoads, ShowTheBandsInWhichSomethingIsHeard)
{
    const Outcome outcome = RunOn(CrowdedAir(), {"channels"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("\n      6    1  -60    80  ####\n"));
    EXPECT_THAT(outcome.out, HasSubstr("\n     52    0          0  least crowded\n"));
    EXPECT_THAT(outcome.out, Not(HasSubstr("6 GHz")));
    EXPECT_THAT(RunOn(SilentWorld(), {"channels"}).out, HasSubstr("No access point is in view."));
}

} // namespace
} // namespace calvix::test::channels_test
