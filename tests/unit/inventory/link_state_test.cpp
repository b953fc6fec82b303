#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

namespace calvix::test::link_state_test
{

using ::testing::ElementsAre;

namespace
{

class LinkStateTest : public LibraryTest
{
};

/// The service lists its two interfaces under this GUID, in these states.
AnswerChanges Twins(const GUID& guid, WLAN_INTERFACE_STATE first, WLAN_INTERFACE_STATE second)
{
    return {.interfaces = [=](WLAN_INTERFACE_INFO_LIST& list)
            {
                ASSERT_EQ(2u, list.dwNumberOfItems);
                const WLAN_INTERFACE_STATE states[] = {first, second};
                for (DWORD i = 0; i < 2; ++i)
                {
                    list.InterfaceInfo[i].InterfaceGuid = guid;
                    list.InterfaceInfo[i].isState = states[i];
                }
            }};
}

} // namespace

TEST_F(LinkStateTest, DistinguishesConnectedFromDisconnectedAdapters)
{
    EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
    EXPECT_EQ(0, manager().WiFiIsDisconnected(&kAdapterA));
    EXPECT_EQ(0, manager().WiFiIsConnected(&kAdapterB));
    EXPECT_EQ(1, manager().WiFiIsDisconnected(&kAdapterB)) << "entries after the first count, too";
    EXPECT_EQ((std::vector<std::string>{InterfacesLine(), kRelease, InterfacesLine(), kRelease, InterfacesLine(),
                                        kRelease, InterfacesLine(), kRelease}),
              callLines());
    ExpectSilence();
}

// Deliberate: an adapter on its way is neither connected nor disconnected.
TEST_F(LinkStateTest, EveryState)
{
    struct
    {
        WLAN_INTERFACE_STATE state;
        int connected;
        int disconnected;
    } const rows[] = {{wlan_interface_state_not_ready, 0, 0},
                      {wlan_interface_state_connected, 1, 0},
                      {wlan_interface_state_ad_hoc_network_formed, 0, 0},
                      {wlan_interface_state_disconnecting, 0, 0},
                      {wlan_interface_state_disconnected, 0, 1},
                      {wlan_interface_state_associating, 0, 0},
                      {wlan_interface_state_discovering, 0, 0},
                      {wlan_interface_state_authenticating, 0, 0}};
    for (const auto& row : rows)
    {
        computer().SetInterfaceState(0, row.state);
        EXPECT_EQ(row.connected, manager().WiFiIsConnected(&kAdapterA)) << "state " << row.state;
        EXPECT_EQ(row.disconnected, manager().WiFiIsDisconnected(&kAdapterA)) << "state " << row.state;
    }
}

TEST_F(LinkStateTest, AnUnknownInterfaceIsNeither)
{
    EXPECT_EQ(0, manager().WiFiIsConnected(&kNoAdapter));
    EXPECT_EQ(0, manager().WiFiIsDisconnected(&kNoAdapter));
    EXPECT_EQ(0, manager().WiFiIsConnected(nullptr));
    EXPECT_EQ(0, manager().WiFiIsDisconnected(nullptr));
    EXPECT_TRUE(traced().empty());
}

TEST_F(LinkStateTest, ComparesAll16BytesOfTheInterface)
{
    GUID almostA = kAdapterA;
    almostA.Data4[7] ^= 1;
    EXPECT_EQ(0, manager().WiFiIsConnected(&almostA));
    GUID almostB = kAdapterB;
    almostB.Data1 ^= 1;
    EXPECT_EQ(0, manager().WiFiIsDisconnected(&almostB));
}

TEST_F(LinkStateTest, TheLastEntryOfTheInterfaceDecides)
{
    const auto connected = wlan_interface_state_connected;
    const auto disconnected = wlan_interface_state_disconnected;
    {
        const EditedAnswers altered(Twins(kAdapterA, connected, disconnected));
        EXPECT_EQ(0, manager().WiFiIsConnected(&kAdapterA));
        EXPECT_EQ(1, manager().WiFiIsDisconnected(&kAdapterA));
    }
    const EditedAnswers altered(Twins(kAdapterA, disconnected, connected));
    EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
    EXPECT_EQ(0, manager().WiFiIsDisconnected(&kAdapterA));
}

} // namespace calvix::test::link_state_test
