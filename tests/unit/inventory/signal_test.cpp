#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>
#include <climits>
#include <iterator>

namespace calvix::test::signal_test
{

using ::testing::ElementsAre;

namespace
{

class SignalTest : public LibraryTest
{
public:
    int WiFiRssi(const std::string& ssid)
    {
        DOT11_SSID wanted = MakeSsid(ssid);
        return manager().GetWiFiRSSI(&kAdapterA, wanted);
    }
};

long long CurrentRssi(CWirelessManage& manager)
{
    int rssi = 77;
    const int code = manager.GetCurrentRSSI(&kAdapterA, rssi);
    EXPECT_EQ(77, rssi);
    return code;
}

AnswerChanges WithFirstQuality(ULONG quality)
{
    return {.networks = [quality](WLAN_AVAILABLE_NETWORK_LIST& list) { list.Network[0].wlanSignalQuality = quality; }};
}

} // namespace

// --- GetChannel ---

// Deliberate: in the low band one below the customary channel number.
TEST_F(SignalTest, ChannelsOfTheLowBandCountFromZero)
{
    for (unsigned long channel = 0; channel <= 12; ++channel)
        EXPECT_EQ(channel, manager().GetChannel(2412 + 5 * channel));
    EXPECT_EQ(13u, manager().GetChannel(2484));
    for (const unsigned long frequency : {0UL, 1UL, 1000UL, 2400UL, 2407UL, 2411UL, 2413UL, 2473UL, 2477UL, 2483UL})
        EXPECT_EQ(14u, manager().GetChannel(frequency)) << frequency << " MHz is no channel";
    EXPECT_TRUE(timeline().empty()) << "no operation is needed";
}

// There is no rule of its own for 6 GHz, and between the bands the subtraction wraps, in 32 bits in either world. Finer
// units are divided until they are below ten thousand.
TEST_F(SignalTest, ChannelsAbove)
{
    const std::pair<unsigned long, unsigned long> channels[] = {
        {2485, 4294966993}, {3995, 4294967295}, {4000, 0},     {4910, 182},  {4940, 188},     {4995, 199},
        {4996, 200},        {4999, 200},        {5000, 0},     {5004, 0},    {5005, 1},       {5180, 36},
        {5320, 64},         {5825, 165},        {5955, 191},   {7115, 423},  {9999, 999},     {10000, 1000},
        {10001, 14},        {24129, 0},         {24379, 5},    {2412000, 0}, {2437000000, 5}, {2484000, 13},
        {4920000, 184},     {5180000, 36},      {5955000, 191}};
    for (const auto& [frequency, channel] : channels)
        EXPECT_EQ(channel, manager().GetChannel(frequency)) << "frequency " << frequency;
}

// --- GetSignalStrength ---

TEST_F(SignalTest, StrengthIsLinearFromMinus100ToMinus50)
{
    struct
    {
        int rssi;
        int strength;
    } const rows[] = {{-100, 0},  {-99, 2}, {-75, 50},  {-70, 60}, {-51, 98}, {-50, 100},
                      {-49, 100}, {0, 100}, {100, 100}, {-101, 0}, {-200, 0}, {-1000000, 0}};
    for (const auto& row : rows)
        EXPECT_EQ(row.strength, manager().GetSignalStrength(row.rssi)) << row.rssi << " dBm";
    EXPECT_TRUE(timeline().empty()) << "no operation is needed";
}

// Twice such numbers is more than 32 bits hold; what is left of them counts.
TEST_F(SignalTest, StrengthIsComputedIn32Bits)
{
    EXPECT_EQ(100, manager().GetSignalStrength(INT_MAX));
    EXPECT_EQ(100, manager().GetSignalStrength(INT_MIN));
    EXPECT_EQ(0, manager().GetSignalStrength(0x40000000));
}

// --- GetRssi ---

TEST_F(SignalTest, RssiIsTheDrivers)
{
    int rssi = 77;
    EXPECT_EQ(0, manager().GetRssi(&kAdapterA, rssi));
    EXPECT_EQ(-50, rssi);
    EXPECT_THAT(callLines(), ElementsAre(QueryLine("rssi", "LONG"), kRelease));
    EXPECT_THAT(traced(), ElementsAre(kRssiReleased));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(SignalTest, RssiHasNoBounds)
{
    for (const int value : {-113, 0, 12})
    {
        const EditedAnswers altered(
            {.query = [value](WLAN_INTF_OPCODE, PVOID data, DWORD&) { *static_cast<std::int32_t*>(data) = value; }});
        int rssi = 77;
        EXPECT_EQ(0, manager().GetRssi(&kAdapterA, rssi));
        EXPECT_EQ(value, rssi);
    }
}

// --- GetCurrentRSSI ---

TEST_F(SignalTest, CurrentRssiIsThatOfTheConnectedAccessPoint)
{
    int rssi = 77;
    EXPECT_EQ(0, manager().GetCurrentRSSI(&kAdapterA, rssi));
    EXPECT_EQ(-50, rssi);
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), NetworkBssLine("HomeNet"), kRelease, kRelease));
    EXPECT_THAT(traced(), ElementsAre(kConnectionReleased, kBssReleased));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(SignalTest, CurrentRssiFindsTheAccessPointByItsAddressNotItsPlace)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", kHomeNet6};
    UseScenario(scenario);
    int rssi = 77;
    EXPECT_EQ(0, manager().GetCurrentRSSI(&kAdapterA, rssi));
    EXPECT_EQ(-70, rssi) << "the third of HomeNet's access points";
}

TEST_F(SignalTest, CurrentRssiComparesAllSixBytes)
{
    for (const int byte : {0, 5})
    {
        const EditedAnswers altered(
            {.bss = [byte](WLAN_BSS_LIST& list) { list.wlanBssEntries[0].dot11Bssid[byte] ^= 1; }});
        EXPECT_EQ(-7, CurrentRssi(manager())) << "byte " << byte;
    }
}

TEST_F(SignalTest, TheFirstEntryOfTheAccessPointCounts)
{
    const auto twins = [](WLAN_BSS_LIST& list)
    {
        ASSERT_EQ(3u, list.dwNumberOfItems);
        for (LONG i = 0; i < 3; ++i)
        {
            if (i > 0)
                std::copy(std::begin(kHomeNet24), std::end(kHomeNet24), list.wlanBssEntries[i].dot11Bssid);
            else
                list.wlanBssEntries[i].dot11Bssid[0] ^= 1;
            list.wlanBssEntries[i].lRssi = -10 - i;
        }
    };
    const EditedAnswers altered({.bss = twins});
    int rssi = 77;
    EXPECT_EQ(0, manager().GetCurrentRSSI(&kAdapterA, rssi));
    EXPECT_EQ(-11, rssi);
}

// --- GetWiFiRSSI ---

TEST_F(SignalTest, WiFiRssiIsEstimatedFromTheQuality)
{
    EXPECT_EQ(-50, WiFiRssi("HomeNet")) << "quality 100";
    EXPECT_EQ(-65, WiFiRssi("OfficeNet")) << "quality 70";
    EXPECT_THAT(callLines(), ElementsAre(NetworksLine(), kRelease, NetworksLine(), kRelease));
    EXPECT_TRUE(traced().empty());
}

TEST_F(SignalTest, WiFiRssiHalvesTheQualityInWholeNumbers)
{
    struct
    {
        ULONG quality;
        int rssi;
    } const rows[] = {{0, -100},
                      {1, -100},
                      {2, -99},
                      {3, -99},
                      {50, -75},
                      {80, -60},
                      {98, -51},
                      {99, -51},
                      {100, -50},
                      {101, -50},
                      {0xFFFFFFFF, 2147483547}};
    for (const auto& row : rows)
    {
        const EditedAnswers altered(WithFirstQuality(row.quality));
        EXPECT_EQ(row.rssi, WiFiRssi("HomeNet")) << "quality " << row.quality;
    }
}

// Deliberate: only the bytes that were asked for are compared.
TEST_F(SignalTest, WiFiRssiTakesTheFirstNetworkThatBeginsWithTheSsid)
{
    simulation::Scenario scenario = SilentScenario();
    scenario.accessPoints = {MakeAccessPoint("HomeNet", kHomeNet24, 2437000, -60)};
    UseScenario(scenario);
    EXPECT_EQ(-60, WiFiRssi("Home"));
    EXPECT_EQ(-100, WiFiRssi("HomeNet5G")) << "longer than the network's own";
    EXPECT_EQ(-100, WiFiRssi("ome"));
    EXPECT_EQ(-100, WiFiRssi("home"));

    scenario.accessPoints = {MakeAccessPoint("HomeNet5G", kHomeNet5G, 5220000, -80),
                             MakeAccessPoint("HomeNet", kHomeNet24, 2437000, -60)};
    UseScenario(scenario);
    EXPECT_EQ(-80, WiFiRssi("HomeNet")) << "the first in the list, though another one fits better";
}

// Deliberate: nothing to compare is equal to everything.
TEST_F(SignalTest, WiFiRssiOfAnEmptySsidIsTheFirstNetworks)
{
    const EditedAnswers altered(WithFirstQuality(40));
    EXPECT_EQ(-80, WiFiRssi(""));
}

TEST_F(SignalTest, WiFiRssiOfAnSsidLongerThanCanBeIsTheFloor)
{
    DOT11_SSID tooLong = MakeSsid(std::string(32, 'x'));
    tooLong.uSSIDLength = 4000;
    EXPECT_EQ(-100, manager().GetWiFiRSSI(&kAdapterA, tooLong));
}

// --- GetSignalQuality ---

TEST_F(SignalTest, QualityIsThatOfTheConnection)
{
    EXPECT_EQ(100, manager().GetSignalQuality(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), kRelease));
    ExpectSilence();
}

TEST_F(SignalTest, QualityIsGivenAsItIs)
{
    for (const int value : {0, 1, 73, 101, -1})
    {
        const auto change = [value](WLAN_INTF_OPCODE, PVOID data, DWORD&)
        {
            static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data)->wlanAssociationAttributes.wlanSignalQuality =
                static_cast<ULONG>(value);
        };
        const EditedAnswers altered({.query = change});
        EXPECT_EQ(value, manager().GetSignalQuality(&kAdapterA));
    }
}

} // namespace calvix::test::signal_test
