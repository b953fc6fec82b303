#include "unit/inventory/listings_fixture.h"

#include <climits>

namespace calvix::test::bss_listing_test
{

using ::testing::Contains;

class BssListingTest : public ListingsTest
{
};

TEST_F(BssListingTest, EveryBssTypeHasItsText)
{
    for (const NamedValue& type :
         {NamedValue{1, "Infrastructure"}, {2, "Independent"}, {3, "Other"}, {0, "Other"}, {0xFFFFFFFF, "Other"}})
        EXPECT_THAT(Entry([&](auto& entry) { entry.dot11BssType = static_cast<DOT11_BSS_TYPE>(type.value); }),
                    Contains(std::string("BSS Network type[0]:\t ") + type.text));
}

TEST_F(BssListingTest, EveryPhyTypeHasItsText)
{
    const NamedValue rows[] = {{0, "any"},
                               {1, "fhss"},
                               {2, "dsss"},
                               {3, "irbaseband"},
                               {4, "ofdm"},
                               {5, "hrdsss"},
                               {6, "erp"},
                               {7, "ht"},
                               {8, "vht"},
                               {9, "unknown"},
                               {10, "unknown"},
                               {11, "unknown"},
                               {0x80000000, "IHV Start"},
                               {0x80000001, "unknown"},
                               {0xFFFFFFFF, "IHV End"}};
    for (const NamedValue& row : rows)
        EXPECT_THAT(Entry([&](auto& entry) { entry.dot11BssPhyType = static_cast<DOT11_PHY_TYPE>(row.value); }),
                    Contains(std::string("BssPhyType[0]:\t") + row.text));
}

TEST_F(BssListingTest, TheNumbersOfAnAccessPoint)
{
    const Lines lines = Entry(
        [](auto& entry)
        {
            entry.lRssi = INT_MIN;
            entry.ulChCenterFrequency = 5180000;
            entry.uLinkQuality = 4000000000U;
            entry.usBeaconPeriod = 65535;
            entry.uPhyId = 4000000002U;
        });
    EXPECT_THAT(lines, Contains("Rssi[0]:\t -2147483648"));
    EXPECT_THAT(lines, Contains("Center Frequency[0]:\t 5180000"));
    EXPECT_THAT(lines, Contains("Channel[0]:\t 36"));
    EXPECT_THAT(lines, Contains("Link Quality[0]:\t 4000000000"));
    EXPECT_THAT(lines, Contains("Beacon Period[0]:\t 65535"));
    EXPECT_THAT(lines, Contains("PhyId[0]:\t 4000000002"));
}

TEST_F(BssListingTest, StrengthAndChannelFollowTheRulesOfTheirMethods)
{
    for (const int rssi : {INT_MIN, -101, -100, -75, -49, 0})
        EXPECT_THAT(Entry([rssi](auto& entry) { entry.lRssi = rssi; }),
                    Contains("Signal Strength[0]:\t " + std::to_string(manager().GetSignalStrength(rssi))));
    EXPECT_THAT(Entry([](auto& entry) { entry.ulChCenterFrequency = 0; }), Contains("Channel[0]:\t 14"));
    EXPECT_THAT(Entry([](auto& entry) { entry.ulChCenterFrequency = 2484000; }), Contains("Channel[0]:\t 13"));
    EXPECT_THAT(Entry([](auto& entry) { entry.ulChCenterFrequency = 2485; }), Contains("Channel[0]:\t 4294966993"));
    EXPECT_THAT(Entry([](auto& entry) { entry.ulChCenterFrequency = 4000000000U; }),
                Contains("Center Frequency[0]:\t 4000000000"));
}

TEST_F(BssListingTest, AddressesAreUpperCase)
{
    const Lines lines = Entry(
        [](auto& entry)
        {
            const unsigned char address[6] = {0xFF, 0x0A, 0xBC, 0xDE, 0xF0, 0x00};
            std::copy(std::begin(address), std::end(address), entry.dot11Bssid);
        });
    EXPECT_THAT(lines, Contains("BSSID[0]:\t FF:0A:BC:DE:F0:00"));
}

} // namespace calvix::test::bss_listing_test
