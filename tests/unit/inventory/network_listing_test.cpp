#include "unit/inventory/listings_fixture.h"

namespace calvix::test::network_listing_test
{

using ::testing::Contains;
using ::testing::Not;

class NetworkListingTest : public ListingsTest
{
public:
    template <typename Field>
    void
    ExpectTexts(const std::string& label, Field WLAN_AVAILABLE_NETWORK::*field, const std::vector<NamedValue>& values)
    {
        for (const NamedValue& row : values)
            EXPECT_EQ(row.text,
                      After(Network([&](auto& network) { network.*field = static_cast<Field>(row.value); }), label));
    }
};

TEST_F(NetworkListingTest, WhyANetworkCannotBeJoined)
{
    const Lines lines = Network(
        [](auto& network)
        {
            network.bNetworkConnectable = FALSE;
            network.wlanNotConnectableReason = 0x80000001;
        });
    EXPECT_EQ("No", After(lines, "  Connectable[0]:\t "));
    EXPECT_EQ("  Not connectable WLAN_REASON_CODE value[0]:\t 2147483649", After(lines, "No"));
    EXPECT_EQ("Yes", After(Network([](auto& network) { network.bNetworkConnectable = 2; }), "  Connectable[0]:\t "));
    EXPECT_FALSE(AnyStartsWith(traced(), "  Not connectable"));
}

TEST_F(NetworkListingTest, CountsAndSecurity)
{
    const Lines lines = Network(
        [](auto& network)
        {
            network.uNumberOfBssids = 4000000000U;
            network.uNumberOfPhyTypes = 4000000001U;
            network.bSecurityEnabled = FALSE;
        });
    EXPECT_THAT(lines, Contains("  Number of BSSIDs[0]:\t 4000000000"));
    EXPECT_THAT(lines, Contains("  Number of PHY types supported[0]:\t 4000000001"));
    EXPECT_EQ("No", After(lines, "  Security Enabled[0]:\t "));
}

TEST_F(NetworkListingTest, TheDbmAreEstimatedFromTheQuality)
{
    struct
    {
        ULONG quality;
        int rssi;
    } const rows[] = {{0, -100}, {1, -100}, {51, -75}, {99, -51}, {100, -50}};
    for (const auto& row : rows)
        EXPECT_THAT(Network([&](auto& network) { network.wlanSignalQuality = row.quality; }),
                    Contains("  Signal Quality[0]:\t " + std::to_string(row.quality) +
                             " (RSSI: " + std::to_string(row.rssi) + " dBm)"));
}

TEST_F(NetworkListingTest, EveryNetworkTypeHasItsText)
{
    ExpectTexts(
        "  BSS Network type[0]:\t ", &WLAN_AVAILABLE_NETWORK::dot11BssType,
        {{1, "Infrastructure (1)"}, {2, "Independent (2)"}, {3, "Other (3)"}, {0xFFFFFFFF, "Other (4294967295)"}});
}

TEST_F(NetworkListingTest, EveryAuthenticationHasItsText)
{
    // Deliberate: no blank after RSNA with PSK.
    ExpectTexts("  Default AuthAlgorithm[0]: ", &WLAN_AVAILABLE_NETWORK::dot11DefaultAuthAlgorithm,
                {{1, "802.11 Open (1)"},
                 {2, "802.11 Shared (2)"},
                 {3, "WPA (3)"},
                 {4, "WPA-PSK (4)"},
                 {5, "WPA-None (5)"},
                 {6, "RSNA (6)"},
                 {7, "RSNA with PSK(7)"},
                 {8, "Other (8)"},
                 {0, "Other (0)"},
                 {9, "Other (9)"},
                 {0x80000000, "Other (2147483648)"}});
}

TEST_F(NetworkListingTest, EveryCipherHasItsText)
{
    ExpectTexts("  Default CipherAlgorithm[0]: ", &WLAN_AVAILABLE_NETWORK::dot11DefaultCipherAlgorithm,
                {{0, "None (0)"},
                 {1, "WEP-40 (1)"},
                 {2, "TKIP (2)"},
                 {4, "CCMP (4)"},
                 {5, "WEP-104 (5)"},
                 {0x101, "WEP (257)"},
                 {3, "Other (3)"},
                 {8, "Other (8)"},
                 {0x100, "Other (256)"},
                 {0xFFFFFFFF, "Other (4294967295)"}});
}

// Deliberate: both remarks depend on the connected flag, the one about the profile, too.
TEST_F(NetworkListingTest, TheRemarksOnTheFlags)
{
    for (const DWORD flags : {DWORD{0}, DWORD{2}, DWORD{0x10A}, DWORD{1}, DWORD{3}, DWORD{0x80000001}})
    {
        const Lines lines = Network([flags](auto& network) { network.dwFlags = flags; });
        char label[40] = {};
        std::snprintf(label, sizeof(label), "  Flags[0]:\t 0x%x", static_cast<unsigned>(flags));
        if ((flags & 1) != 0)
        {
            EXPECT_EQ(" - Currently connected", After(lines, label));
            EXPECT_EQ(" - Has profile", After(lines, " - Currently connected"));
            EXPECT_EQ("", After(lines, " - Has profile"));
        }
        else
        {
            EXPECT_EQ("", After(lines, label));
            EXPECT_THAT(lines, Not(Contains(" - Has profile")));
        }
    }
}

} // namespace calvix::test::network_listing_test
