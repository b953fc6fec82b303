#include "simulation/channel_elements.h"

#include <gtest/gtest.h>

namespace calvix::simulation::channel_elements_test
{

namespace
{

AccessPoint PointOf(std::uint32_t phy, std::uint32_t mhz, std::uint32_t width)
{
    AccessPoint point;
    point.phyType = phy;
    point.frequencyKhz = mhz * 1000;
    point.channelWidth = width;
    return point;
}

TEST(ChannelElements, AreThoseOfThePhy)
{
    const Bytes expected = {45, 26,   0x62, 0, 0, 0xff, 0xff, 0, 0, 0,   0,  0,  0,  0, 0,    0,   0, 0, 0,
                            0,  0,    0,    0, 0, 0,    0,    0, 0, 61,  22, 36, 5,  0, 0,    0,   0, 0, 0,
                            0,  0,    0,    0, 0, 0,    0,    0, 0, 0,   0,  0,  0,  0, 191,  12,  0, 0, 0,
                            0,  0xfa, 0xff, 0, 0, 0xfa, 0xff, 0, 0, 192, 5,  1,  42, 0, 0xfc, 0xff};
    EXPECT_EQ(expected, ChannelElements(PointOf(8, 5180, 80)));
}

TEST(ChannelElements, AreLeftOutWhereNothingIsKnown)
{
    EXPECT_EQ(Bytes(), ChannelElements(PointOf(8, 5180, 0)));
    EXPECT_EQ(Bytes(), ChannelElements(PointOf(6, 2412, 20))) << "an old PHY has none";
}

TEST(ChannelElements, Channel14IsNotCountedInSteps)
{
    const Bytes elements = ChannelElements(PointOf(7, 2484, 20));
    ASSERT_EQ(52u, elements.size()) << "HT capabilities and HT operation";
    EXPECT_EQ(61, elements[28]);
    EXPECT_EQ(14, elements[30]);
}

TEST(ChannelElements, Channel2Of6GhzBelongsToItsBand)
{
    const Bytes elements = ChannelElements(PointOf(10, 5935, 20));
    ASSERT_EQ(38u, elements.size()) << "HE capabilities and HE operation, but nothing of older PHYs";
    EXPECT_EQ(36, elements[26]) << "HE operation";
    EXPECT_EQ(2, elements[33]) << "the primary channel";
    EXPECT_EQ(2, elements[35]) << "the middle of the channel";
}

TEST(ChannelElements, TheScenarioKeepsTheWidth)
{
    Scenario scenario;
    scenario.accessPoints = {PointOf(10, 5955, 160)};
    scenario.accessPoints[0].ssid = {'x'};
    scenario.accessPoints[0].bssid = {2, 0, 0, 0, 0, 1};
    EXPECT_EQ(scenario.accessPoints, ParseScenario(WriteScenario(scenario), "it").accessPoints);
    EXPECT_THROW(
        ParseScenario(R"({"accessPoints": [{"ssid": "x", "bssid": "02:00:00:00:00:01", "channelWidth": 30}]})", "it"),
        ScenarioError);
}

} // namespace

} // namespace calvix::simulation::channel_elements_test
