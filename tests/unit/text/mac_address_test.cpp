#include "support/library_test.h"
#include "support/strict_copy_guard.h"

namespace calvix::test::mac_address_test
{

using ::testing::IsEmpty;

class MacAddressTest : public LibraryTest
{
protected:
    static constexpr unsigned char kAddress[6] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
    static constexpr unsigned char kHighAddress[6] = {0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF};
};

TEST_F(MacAddressTest, FormMacWritesEighteenCharacters)
{
    std::string room(20, '#');
    manager().FormMAC(kAddress, room.data());
    EXPECT_EQ(std::string("00:1A:2B:3C:4D:5E\0##", 20), room);
    manager().FormMAC(kHighAddress, room.data());
    EXPECT_EQ(std::string("AA:BB:CC:DD:EE:FF\0##", 20), room);
    EXPECT_THAT(timeline(), IsEmpty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(MacAddressTest, FormMacWithoutAnAddressOrADestinationDoesNothing)
{
    std::string room(20, '#');
    manager().FormMAC(nullptr, room.data());
    manager().FormMAC(kAddress, nullptr);
    EXPECT_EQ(std::string(20, '#'), room);
}

TEST_F(MacAddressTest, GetBssidKeepsToTheCapacity)
{
    const struct
    {
        int capacity;
        std::string room;
    } cases[] = {{24, std::string("AA:BB:CC:DD:EE:FF\0##", 20)}, {18, std::string("AA:BB:CC:DD:EE:FF\0##", 20)},
                 {17, std::string("AA:BB:CC:DD:EE:F\0###", 20)}, {6, std::string("AA:BB\0##############", 20)},
                 {1, std::string("\0###################", 20)},  {0, std::string("####################", 20)},
                 {-1, std::string("\0###################", 20)}};
    for (const auto& each : cases)
    {
        std::string room(20, '#');
        manager().GetBSSID(kHighAddress, room.data(), each.capacity);
        EXPECT_EQ(each.room, room) << each.capacity;
    }
    EXPECT_THAT(timeline(), IsEmpty());
}

TEST_F(MacAddressTest, GetBssidWritesLeadingZeros)
{
    char text[24];
    manager().GetBSSID(kAddress, text, 24);
    EXPECT_STREQ("00:1A:2B:3C:4D:5E", text);
}

TEST_F(MacAddressTest, GetBssidWithoutAnAddressIsAFatalCallerError)
{
    char text[24] = "kept";
    ExpectFatal([&] { manager().GetBSSID(nullptr, text, 24); }, "GetBSSID: null source");
    EXPECT_STREQ("kept", text);
}

} // namespace calvix::test::mac_address_test
