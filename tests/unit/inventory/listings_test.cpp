#include "support/contract_table.h"
#include "unit/call_lines.h"
#include "unit/inventory/listings_fixture.h"
#include "unit/inventory/trace_texts.h"

namespace calvix::test::listings_test
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

Lines operator+(Lines left, const Lines& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

// --- What the listings say of SmallScenario ---

const Lines kNetworkHead = {"Num Entries: 1",
                            "Current Index: 0",
                            "  Interface Index[0]:\t 0",
                            std::string("  InterfaceGUID[0]: ") + kAdapterAText,
                            "  Interface Description[0]: Wireless Adapter A",
                            "  Interface State[0]:\t ",
                            "Not connected"};
const Lines kNetworkBody = {"WLAN_AVAILABLE_NETWORK_LIST for this interface",
                            "  Num Entries: 1\n",
                            "  Profile Name[0]:  HomeNet",
                            "  SSID[0]:\t HomeNet",
                            "  BSS Network type[0]:\t ",
                            "Infrastructure (1)",
                            "  Number of BSSIDs[0]:\t 1",
                            "  Connectable[0]:\t ",
                            "Yes",
                            "  Number of PHY types supported[0]:\t 1",
                            "  Signal Quality[0]:\t 80 (RSSI: -60 dBm)",
                            "  Security Enabled[0]:\t ",
                            "Yes",
                            "  Default AuthAlgorithm[0]: ",
                            "RSNA with PSK(7)",
                            "  Default CipherAlgorithm[0]: ",
                            "CCMP (4)",
                            "  Flags[0]:\t 0x2",
                            "",
                            "",
                            "",
                            ""};
const Lines kBssHead = {"  Num Entries: 1",
                        "  Current Index: 0",
                        "  Interface Index[0]:\t 0",
                        std::string("  InterfaceGUID[0]: ") + kAdapterAText,
                        "  Interface Description[0]: Wireless Adapter A",
                        "  Interface State[0]:\t Not connected"};
const Lines kBssBody = {"WLAN_BSS_LIST for this interface",
                        "Num Entries: 1\n",
                        "SSID[0]:\t HomeNet",
                        "BSSID[0]:\t 00:1A:2B:3C:4D:5E",
                        "BSS Network type[0]:\t Infrastructure",
                        "BssPhyType[0]:\tht",
                        "Rssi[0]:\t -60",
                        "Signal Strength[0]:\t 80",
                        "Center Frequency[0]:\t 2437000",
                        "Channel[0]:\t 5",
                        "Link Quality[0]:\t 80",
                        "Beacon Period[0]:\t 100",
                        "PhyId[0]:\t 0",
                        "",
                        "",
                        "",
                        ""};
const Lines kReleases = {kBssReleased, kInterfacesReleased};

const std::string kTextOfGuid = std::string("StringFromGUID2(guid=") + kAdapterAText + ", text=non-null, capacity=39)";

long long ListNetworks(CWirelessManage& manager)
{
    return manager.GetAvailableNetwork();
}

long long ListBss(CWirelessManage& manager)
{
    return manager.GetNetworkBss();
}

AnswerChanges WithInterface(std::function<void(WLAN_INTERFACE_INFO&)> change)
{
    return {.interfaces = [change](WLAN_INTERFACE_INFO_LIST& list) { change(list.InterfaceInfo[0]); }};
}

} // namespace

// --- Whole listings ---

TEST_F(ListingsTest, TheNetworkListing)
{
    EXPECT_EQ(kNetworkHead + kNetworkBody + kReleases, Networks());
    EXPECT_THAT(callLines(), ElementsAre(InterfacesLine(), kTextOfGuid, NetworksLine(), kRelease, kRelease));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ListingsTest, TheBssListing)
{
    EXPECT_EQ(kBssHead + kBssBody + kReleases, Bss());
    EXPECT_THAT(callLines(), ElementsAre(InterfacesLine(), kTextOfGuid, EveryBssLine(), kRelease, kRelease));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ListingsTest, WithoutTracingEverythingIsAskedAllTheSame)
{
    Networks();
    const Lines networkCalls = callLines();
    Bss();
    const Lines bssCalls = callLines();
    SetTracing(false);
    EXPECT_THAT(Networks(), IsEmpty());
    EXPECT_EQ(networkCalls, callLines());
    EXPECT_THAT(Bss(), IsEmpty());
    EXPECT_EQ(bssCalls, callLines());
    FailOn("WlanGetAvailableNetworkList");
    EXPECT_EQ(1, manager().GetAvailableNetwork());
}

// Each list goes back to the service before the next interface is asked.
TEST_F(ListingsTest, EveryInterfaceIsListedInOrder)
{
    UseScenario(RichScenario());
    const Lines networks = Networks();
    EXPECT_EQ("Num Entries: 2", networks[0]);
    EXPECT_THAT(networks, Contains("  Interface Index[1]:\t 1"));
    EXPECT_THAT(networks, Contains(std::string("  InterfaceGUID[1]: ") + kAdapterBText));
    EXPECT_EQ("Connected", After(networks, "  Interface State[0]:\t "));
    EXPECT_EQ("Not connected", After(networks, "  Interface State[1]:\t "));
    EXPECT_THAT(calls(),
                ElementsAre("WlanEnumInterfaces", "StringFromGUID2", "WlanGetAvailableNetworkList", "WlanFreeMemory",
                            "StringFromGUID2", "WlanGetAvailableNetworkList", "WlanFreeMemory", "WlanFreeMemory"));
    EXPECT_EQ(kAdapterBText, call("WlanGetAvailableNetworkList", 2)["interface"]);
    EXPECT_EQ(2, std::count(networks.begin(), networks.end(), "WlanFreeMemory(pBssList)"));
    EXPECT_EQ("WlanFreeMemory(pIfList)", networks.back());

    EXPECT_THAT(Bss(), Contains("  Interface State[1]:\t Not connected"));
    EXPECT_EQ(kAdapterBText, call("WlanGetNetworkBssList", 2)["interface"]);
}

TEST_F(ListingsTest, EveryEntryHasItsNumber)
{
    simulation::Scenario scenario = SmallScenario();
    scenario.accessPoints.push_back(MakeAccessPoint("OfficeNet", kOfficeNet, 5745000, -65));
    scenario.accessPoints.push_back(MakeAccessPoint("CafeNet", kCafeNet, 2412000, -75));
    UseScenario(scenario);
    const Lines networks = Networks();
    const Lines bss = Bss();
    EXPECT_THAT(networks, Contains("  Num Entries: 3\n"));
    EXPECT_THAT(bss, Contains("Num Entries: 3\n"));
    for (const std::string number : {"[0]", "[1]", "[2]"})
    {
        EXPECT_TRUE(AnyStartsWith(networks, "  SSID" + number));
        EXPECT_TRUE(AnyStartsWith(networks, "  Flags" + number));
        EXPECT_TRUE(AnyStartsWith(bss, "SSID" + number));
        EXPECT_TRUE(AnyStartsWith(bss, "PhyId" + number));
    }
    EXPECT_EQ(8, std::count(networks.begin(), networks.end(), "")) << "two after each entry, two at the end";
    EXPECT_EQ(8, std::count(bss.begin(), bss.end(), ""));
}

TEST_F(ListingsTest, NothingHeardIsAListingWithoutEntries)
{
    simulation::Scenario scenario = SmallScenario();
    scenario.accessPoints.clear();
    UseScenario(scenario);
    const Lines noNetwork = {"WLAN_AVAILABLE_NETWORK_LIST for this interface", "  Num Entries: 0\n", "", ""};
    const Lines noBss = {"WLAN_BSS_LIST for this interface", "Num Entries: 0\n", "", ""};
    EXPECT_EQ(kNetworkHead + noNetwork + kReleases, Networks());
    EXPECT_EQ(kBssHead + noBss + kReleases, Bss());
}

TEST_F(ListingsTest, NoInterfaceIsAListingOfNone)
{
    UseScenario(NoAdapterScenario());
    EXPECT_THAT(Networks(), ElementsAre("Num Entries: 0", "Current Index: 0", "WlanFreeMemory(pIfList)"));
    EXPECT_THAT(Bss(), ElementsAre("  Num Entries: 0", "  Current Index: 0", "WlanFreeMemory(pIfList)"));
}

// --- The interface ---

TEST_F(ListingsTest, TheIndexIsTheLists)
{
    const AnswerChanges changes{.interfaces = [](WLAN_INTERFACE_INFO_LIST& list) { list.dwIndex = 4000000000U; }};
    EXPECT_EQ("Current Index: 4000000000", Networks(changes)[1]);
    EXPECT_EQ("  Current Index: 4000000000", Bss(changes)[1]);
}

TEST_F(ListingsTest, EveryStateHasItsText)
{
    const NamedValue states[] = {{0, "Not ready"},
                                 {1, "Connected"},
                                 {2, "First node in a ad hoc network"},
                                 {3, "Disconnecting"},
                                 {4, "Not connected"},
                                 {5, "Attempting to associate with a network"},
                                 {6, "Auto configuration is discovering settings for the network"},
                                 {7, "In process of authenticating"},
                                 {8, "Unknown state 8"},
                                 {0xFFFFFFFF, "Unknown state -1"}};
    for (const NamedValue& state : states)
    {
        const AnswerChanges changes = WithInterface([&state](WLAN_INTERFACE_INFO& info)
                                                    { info.isState = static_cast<WLAN_INTERFACE_STATE>(state.value); });
        EXPECT_EQ(state.text, After(Networks(changes), "  Interface State[0]:\t "));
        // Deliberate: one more blank before an unknown state, and no line of its own.
        const std::string blank = state.value > 7 ? " " : "";
        EXPECT_THAT(Bss(changes), Contains("  Interface State[0]:\t " + blank + state.text));
    }
}

TEST_F(ListingsTest, AGuidThatHasNoTextIsSaidToHaveNone)
{
    FailOn("StringFromGUID2", 122);
    EXPECT_EQ("StringFromGUID2 failed", Networks()[3]);
    EXPECT_EQ("StringFromGUID2 failed", Bss()[3]);
    EXPECT_FALSE(AnyStartsWith(traced(), "  InterfaceGUID"));
}

TEST_F(ListingsTest, LongLinesAreCutTo255Characters)
{
    const AnswerChanges interfaces =
        WithInterface([](WLAN_INTERFACE_INFO& info) { Fill(info.strInterfaceDescription, L'x'); });
    const std::string label = "  Interface Description[0]: ";
    EXPECT_EQ(label + std::string(255 - label.size(), 'x'), Networks(interfaces)[4]);
    EXPECT_EQ(label + std::string(255 - label.size(), 'x'), Bss(interfaces)[4]);
    const Lines lines = Network([](WLAN_AVAILABLE_NETWORK& network) { Fill(network.strProfileName, L'y'); });
    EXPECT_THAT(lines, Contains("  Profile Name[0]:  " + std::string(235, 'y')));
}

TEST_F(ListingsTest, NamesAreNarrowed)
{
    const AnswerChanges interfaces = WithInterface(
        [](WLAN_INTERFACE_INFO& info)
        {
            Fill(info.strInterfaceDescription, L'\0');
            std::wmemcpy(info.strInterfaceDescription, L"caf\u0113 \u2603!", 7);
        });
    EXPECT_EQ("  Interface Description[0]: caf? ?!", Networks(interfaces)[4]);
}

// --- SSIDs ---

TEST_F(ListingsTest, ANetworkWithoutANameHasNoSsidLine)
{
    EXPECT_FALSE(AnyStartsWith(Network([](auto& network) { network.dot11Ssid = MakeSsid(""); }), "  SSID"));
    EXPECT_FALSE(AnyStartsWith(Entry([](auto& entry) { entry.dot11Ssid = MakeSsid(""); }), "SSID"));
}

TEST_F(ListingsTest, TheSsidIsListedByteByByteAndNoFartherThanItReaches)
{
    const std::string bytes = "caf\xC3\xA9 100%s";
    EXPECT_THAT(Network([&](auto& network) { network.dot11Ssid = MakeSsid(bytes); }),
                Contains("  SSID[0]:\t " + bytes));
    EXPECT_THAT(Entry([&](auto& entry) { entry.dot11Ssid = MakeSsid(bytes); }), Contains("SSID[0]:\t " + bytes));

    const auto tooLong = [](auto& record)
    {
        record.dot11Ssid = MakeSsid(std::string(32, 's'));
        record.dot11Ssid.uSSIDLength = 4000;
    };
    EXPECT_THAT(Network(tooLong), Contains("  SSID[0]:\t " + std::string(32, 's')));
    EXPECT_THAT(Entry(tooLong), Contains("SSID[0]:\t " + std::string(32, 's')));
}

// --- Failures ---

TEST_F(ListingsTest, ARefusalEndsTheListingOfItsInterface)
{
    const auto local = TraceBuffer::local;
    CheckFailure(*this, {"GetAvailableNetwork", ListNetworks, "WlanGetAvailableNetworkList", 1,
                         kNetworkHead + Lines{kNetworksFailed, kInterfacesReleased}, local});
    CheckFailure(*this, {"GetNetworkBss", ListBss, "WlanGetNetworkBssList", 1,
                         kBssHead + Lines{kBssFailed, kInterfacesReleased}, local});
}

// A refusal of one interface shows in the result, and the others are listed all the same.
TEST_F(ListingsTest, OneRefusalDoesNotEndTheWalk)
{
    struct
    {
        const char* operation;
        long long (*list)(CWirelessManage&);
        const char* title;
    } const rows[] = {{"WlanGetAvailableNetworkList", ListNetworks, "WLAN_AVAILABLE_NETWORK_LIST for this interface"},
                      {"WlanGetNetworkBssList", ListBss, "WLAN_BSS_LIST for this interface"}};
    for (const auto& row : rows)
        for (const unsigned refused : {1U, 2U})
        {
            UseScenario(RichScenario());
            FailOn(row.operation, 31, refused, 1);
            EXPECT_EQ(1, row.list(manager()));
            const Lines lines = traced();
            EXPECT_EQ(2u, callCount(row.operation));
            EXPECT_EQ(1, std::count(lines.begin(), lines.end(), row.title));
            EXPECT_THAT(lines, Contains(std::string(row.operation) + " failed with error: 31"));
            EXPECT_THAT(lines, Contains("  Interface Index[1]:\t 1"));
        }
}

} // namespace calvix::test::listings_test
