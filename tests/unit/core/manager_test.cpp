#include "support/library_test.h"

#include <cstring>

namespace calvix::test::manager_test
{

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ManagerTest : public LibraryTest
{
protected:
    /// The state in which the process begins: no instance, no client handle.
    void ForgetManager()
    {
        ForgetClient();
        ManagerInternals::Reset();
    }

    /// What an object is made of, byte by byte.
    static std::vector<unsigned char> BytesOf(const CWirelessManage& object)
    {
        const auto* const first = reinterpret_cast<const unsigned char*>(&object);
        return {first, first + sizeof object};
    }

    static void Fill(CWirelessManage& object, int value)
    {
        std::memset(static_cast<void*>(&object), value, sizeof object);
    }

    /// Zero to the last byte, those between the members included, but for the saved mode.
    static void ExpectFresh(CWirelessManage& object)
    {
        EXPECT_EQ(1, ManagerInternals::SavedAutoConnMode(object));
        ManagerInternals::SavedAutoConnMode(object) = 0;
        EXPECT_THAT(BytesOf(object), Each(0));
        ManagerInternals::SavedAutoConnMode(object) = 1;
    }
};

// --- Get --------------------------------------------------------------------------------------------------------

TEST_F(ManagerTest, GetOpensTheClientAndMakesTheInstance)
{
    ForgetManager();
    CWirelessManage* const instance = CWirelessManage::Get();
    ASSERT_NE(nullptr, instance);
    EXPECT_EQ(instance, ManagerInternals::Instance());
    EXPECT_NE(nullptr, ManagerInternals::Client());
    EXPECT_THAT(
        callLines(),
        ElementsAre("WlanOpenHandle(clientVersion=2, reserved=null, negotiatedVersion=non-null, client=non-null)"));
    ExpectSilence();
}

TEST_F(ManagerTest, GetTwiceGivesTheSameInstanceAndOneClient)
{
    ForgetManager();
    CWirelessManage* const first = CWirelessManage::Get();
    const HANDLE client = ManagerInternals::Client();
    EXPECT_EQ(first, CWirelessManage::Get());
    EXPECT_EQ(client, ManagerInternals::Client());
    EXPECT_EQ(1u, callCount("WlanOpenHandle"));
}

TEST_F(ManagerTest, TheNextCallTriesToOpenTheClientAgain)
{
    ForgetManager();
    computer().SetServiceRunning(false);
    CWirelessManage* const instance = CWirelessManage::Get();
    ASSERT_NE(nullptr, instance);
    EXPECT_EQ(nullptr, ManagerInternals::Client());
    EXPECT_THAT(traced(), ElementsAre("WlanOpenHandle failed with error: 1062"));

    EXPECT_EQ(-2, instance->GetWiFiAdapterCount());
    computer().SetServiceRunning(true);
    EXPECT_EQ(2, instance->GetWiFiAdapterCount());
    EXPECT_EQ(3u, callCount("WlanOpenHandle"));
    EXPECT_NE(nullptr, ManagerInternals::Client());
}

// The object is compared and copied by hosts as bytes: the places between the members count.
TEST_F(ManagerTest, AFreshInstanceIsZeroButForTheSavedMode)
{
    alignas(CWirelessManage) unsigned char room[sizeof(CWirelessManage)];
    std::memset(room, 0xA5, sizeof room);
    ExpectFresh(ManagerInternals::MakeIn(room));
}

// --- Delete -----------------------------------------------------------------------------------------------------

TEST_F(ManagerTest, DeleteClosesTheClientAndDestroysTheInstance)
{
    CWirelessManage::Delete();
    EXPECT_EQ(nullptr, ManagerInternals::Instance());
    EXPECT_THAT(callLines(), ElementsAre("WlanCloseHandle(client=1, reserved=null)"));
    ExpectSilence();
    EXPECT_EQ(0u, computer().Audit().openClients);
}

TEST_F(ManagerTest, DeleteTracesAClientThatCannotBeClosed)
{
    FailOn("WlanCloseHandle", 2150899714);
    CWirelessManage::Delete();
    EXPECT_EQ(nullptr, ManagerInternals::Instance()) << "the instance goes all the same";
    EXPECT_NE(nullptr, ManagerInternals::Client());
    EXPECT_THAT(traced(), ElementsAre("WlanCloseHandle failed with error: 2150899714"));
    EXPECT_EQ("WlanCloseHandle failed with error: 2150899714", sharedTrace());
}

TEST_F(ManagerTest, DeleteWithNothingToDeleteDoesNothing)
{
    ForgetManager();
    CWirelessManage::Delete();
    EXPECT_THAT(timeline(), IsEmpty());
    EXPECT_EQ(nullptr, ManagerInternals::Instance());
    EXPECT_EQ(nullptr, ManagerInternals::Client());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ManagerTest, DeleteWithoutAClientOnlyDestroysTheInstance)
{
    ForgetClient();
    ASSERT_NE(nullptr, ManagerInternals::Instance());
    CWirelessManage::Delete();
    EXPECT_THAT(timeline(), IsEmpty());
    EXPECT_EQ(nullptr, ManagerInternals::Instance());
}

TEST_F(ManagerTest, DeleteClosesAClientThatHasNoInstance)
{
    const HANDLE client = ManagerInternals::Client();
    ManagerInternals::Reset();
    ManagerInternals::Client() = client;
    CWirelessManage::Delete();
    EXPECT_THAT(calls(), ElementsAre("WlanCloseHandle"));
    EXPECT_EQ(client, ManagerInternals::Client());
}

// Deliberate: the closed handle's value stays, and the service refuses it.
TEST_F(ManagerTest, DeleteLeavesAStaleClientBehind)
{
    const HANDLE client = ManagerInternals::Client();
    CWirelessManage::Delete();
    EXPECT_EQ(client, ManagerInternals::Client());

    ClearCalls();
    CWirelessManage* const next = CWirelessManage::Get();
    EXPECT_THAT(calls(), IsEmpty()) << "no new client is opened";
    EXPECT_EQ(-3, next->GetWiFiAdapterCount());
    EXPECT_EQ("1", call("WlanEnumInterfaces")["client"]);
    EXPECT_THAT(traced(), ElementsAre("WlanEnumInterfaces failed with error: 6"));
    ExpectDefect("WlanEnumInterfaces: use of closed client handle");
}

TEST_F(ManagerTest, DeleteThenGetBeginsAnew)
{
    using Internals = ManagerInternals;
    CWirelessManage& before = manager();
    Internals::SavedAutoConnMode(before) = 0;
    std::memset(static_cast<void*>(&Internals::SavedConnection(before)), 0x55, sizeof(WLAN_CONNECTION_ATTRIBUTES));
    std::memset(static_cast<void*>(&Internals::SavedNotification(before)), 0x55,
                sizeof(WLAN_CONNECTION_NOTIFICATION_DATA));
    before.GUID2String(kAdapterA);
    CWirelessManage::Delete();
    ExpectFresh(*CWirelessManage::Get());
}

// --- Copies and zeroing -----------------------------------------------------------------------------------------

TEST_F(ManagerTest, AssignmentCopiesEveryMember)
{
    // A second instance, which only Get can make.
    CWirelessManage* const first = ManagerInternals::Instance();
    const HANDLE client = ManagerInternals::Client();
    ManagerInternals::Instance() = nullptr;
    CWirelessManage* const second = CWirelessManage::Get();
    ASSERT_NE(first, second);

    Fill(*first, 0x5A);
    ManagerInternals::Spare(*first) = true;
    Fill(*second, 0x33);
    EXPECT_EQ(second, &(*second = *first)) << "the object itself is returned";
    EXPECT_EQ(BytesOf(*first), BytesOf(*second)) << "what lies between the members, too";
    ManagerInternals::Reset();
    ManagerInternals::Instance() = first;
    ManagerInternals::Client() = client;
}

TEST_F(ManagerTest, ZeroesTheBytesFromTheStartOnly)
{
    CWirelessManage& object = manager();
    for (const std::size_t count : {std::size_t{0}, std::size_t{1}, std::size_t{600}, sizeof(CWirelessManage)})
    {
        SCOPED_TRACE(count);
        Fill(object, 0x5A);
        object.__autoclassinit2(count);
        const std::vector<unsigned char> bytes = BytesOf(object);
        const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(count);
        EXPECT_THAT(std::vector<unsigned char>(bytes.begin(), end), Each(0));
        EXPECT_THAT(std::vector<unsigned char>(end, bytes.end()), Each(0x5A));
    }
}

TEST_F(ManagerTest, ZeroingEndsWithTheObject)
{
    CWirelessManage& object = manager();
    Fill(object, 0x5A);
    object.__autoclassinit2(0xFFFFFFFFFFFFFFFF);
    EXPECT_THAT(BytesOf(object), Each(0));
}

} // namespace calvix::test::manager_test
