#include "support/library_test.h"

#include <limits>

namespace calvix::test::hex_text_test
{

using ::testing::IsEmpty;

namespace
{

constexpr bool kTextOrder = false;
constexpr bool kReversed = true;
constexpr bool kFromEnd = false;
constexpr bool kFromStart = true;

} // namespace

class HexTextTest : public LibraryTest
{
protected:
    /// The bytes of a destination of `length` places, as upper-case digits, and whether the guard after them is intact.
    std::string ToHex(const std::string& text, int length, bool reversed)
    {
        std::vector<unsigned char> room(static_cast<std::size_t>(length) + 1, 0x5A);
        const std::string neighbours = "7" + text + "7"; // digits that are not to be read
        unsigned char* const result =
            manager().StringToHex(neighbours.data() + 1, static_cast<int>(text.size()), room.data(), length, reversed);
        EXPECT_EQ(room.data(), result);
        EXPECT_EQ(0x5A, room.back()) << "written past the destination";
        room.pop_back();
        std::string shown;
        for (const unsigned char each : room)
        {
            char pair[3];
            std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned>(each));
            shown += pair;
        }
        return shown;
    }

    /// The content of a room of ten characters; terminators are shown as '.', untouched places as '#'. The place
    /// before the room is watched.
    std::string ToText(const std::vector<unsigned char>& bytes, int capacity, bool fromStart)
    {
        std::string room(11, '#');
        char* const destination = room.data() + 1;
        EXPECT_EQ(destination, manager().HexToString(bytes.data(), static_cast<int>(bytes.size()), destination,
                                                     capacity, fromStart));
        return Shown(room);
    }

    std::string ToHexText(const std::string& text, int length, int capacity)
    {
        std::string room(11, '#');
        auto* const destination = reinterpret_cast<unsigned char*>(room.data() + 1);
        EXPECT_EQ(destination, manager().StringToHexString(text.data(), length, destination, capacity));
        return Shown(room);
    }

private:
    static std::string Shown(std::string room)
    {
        EXPECT_EQ('#', room.front()) << "written before the destination";
        std::replace(room.begin(), room.end(), '\0', '.');
        return room.substr(1);
    }
};

// --- StringToHex ------------------------------------------------------------------------------------------------

TEST_F(HexTextTest, TextBecomesBytes)
{
    const struct
    {
        std::string text;
        int length;
        std::string inTextOrder;
        std::string reversed;
    } cases[] = {{"0A1B", 4, "00000A1B", "1B0A0000"},
                 {"0A1B", 2, "0A1B", "1B0A"},
                 {"ABC", 2, "0ABC", "BC0A"}, // an odd length: the first character is a lone low half
                 {"F", 1, "0F", "0F"},
                 {"ab", 1, "AB", "AB"},
                 {"BA", 1, "BA", "BA"},
                 {"ba", 1, "BA", "BA"}, // in the high place of a byte a digit wrong by 32 would not show
                 {"aBcDeF09", 4, "ABCDEF09", "09EFCDAB"},
                 {"0A1B2C", 2, "1B2C", "2C1B"}, // a short destination takes the text's end
                 {"ABC", 1, "BC", "BC"},
                 {"", 3, "000000", "000000"}};
    for (const auto& each : cases)
    {
        EXPECT_EQ(each.inTextOrder, ToHex(each.text, each.length, kTextOrder)) << each.text;
        EXPECT_EQ(each.reversed, ToHex(each.text, each.length, kReversed)) << each.text;
    }
    EXPECT_THAT(timeline(), IsEmpty());
}

// Deliberate: other characters than hexadecimal digits give the result of the arithmetic, modulo 256.
TEST_F(HexTextTest, OtherCharactersGiveBytesToo)
{
    const struct
    {
        std::string text;
        std::string byte;
    } cases[] = {{"0g", "10"}, {"0z", "23"}, {"z0", "30"}, {"0G", "10"},    {"G0", "00"},
                 {"0Z", "23"}, {"0/", "FF"}, {"/0", "F0"}, {"0 ", "F0"},    {"0:", "0A"},
                 {"0@", "10"}, {"0`", "29"}, {"0{", "44"}, {"0\xE9", "B9"}, {"0\x80", "50"}};
    for (const auto& each : cases)
        EXPECT_EQ(each.byte, ToHex(each.text, 1, kTextOrder)) << each.text;
}

TEST_F(HexTextTest, ATextLengthBelowOneGivesZeroBytes)
{
    for (const int length : {0, -1, -100})
    {
        unsigned char room[3] = {1, 2, 3};
        EXPECT_EQ(room, manager().StringToHex("AB", length, room, 2, kTextOrder));
        EXPECT_EQ(0, room[0]);
        EXPECT_EQ(0, room[1]);
        EXPECT_EQ(3, room[2]);
    }
}

TEST_F(HexTextTest, TheSmallestNumbersAreLengthsBelowOne)
{
    constexpr int smallest = std::numeric_limits<int>::min();
    unsigned char bytes[2] = {1, 2};
    for (const bool reversed : {kTextOrder, kReversed})
    {
        EXPECT_EQ(bytes, manager().StringToHex("AB", smallest, bytes, 1, reversed));
        EXPECT_EQ(0, bytes[0]);
        EXPECT_EQ(2, bytes[1]);
        bytes[0] = 1;
        EXPECT_EQ(bytes, manager().StringToHex("AB", 2, bytes, smallest, reversed));
        EXPECT_EQ(1, bytes[0]);
    }
    const unsigned char source[] = {0xAB};
    for (const bool order : {kFromEnd, kFromStart})
    {
        char text[] = "####";
        EXPECT_EQ(text, manager().HexToString(source, smallest, text, 3, order));
        EXPECT_EQ(std::string("00\0#", 4), std::string(text, 4));
    }
    char untouched[] = "####";
    manager().HexToString(source, 1, untouched, smallest, kFromEnd);
    unsigned char digits[] = "####";
    EXPECT_EQ(digits, manager().StringToHexString("A", smallest, digits, 3));
    EXPECT_EQ(std::string("00\0#", 4), std::string(reinterpret_cast<char*>(digits), 4));
    manager().StringToHexString("A", 1, digits + 3, smallest);
    EXPECT_STREQ("####", untouched);
    EXPECT_EQ('#', digits[3]);
}

TEST_F(HexTextTest, NoTextGivesZeroBytesAndNoDestinationNothing)
{
    unsigned char room[2] = {1, 2};
    EXPECT_EQ(room, manager().StringToHex(nullptr, 2, room, 2, kTextOrder));
    EXPECT_EQ(0, room[0] + room[1]);
    EXPECT_EQ(nullptr, manager().StringToHex("AB", 2, nullptr, 2, kTextOrder));
    room[0] = 1;
    EXPECT_EQ(room, manager().StringToHex("AB", 2, room, 0, kTextOrder));
    EXPECT_EQ(1, room[0]);
}

// --- HexToString ------------------------------------------------------------------------------------------------

// Kept on purpose: from the end the text fills the whole capacity and has no terminator.
TEST_F(HexTextTest, BytesBecomeTextFromTheEnd)
{
    EXPECT_EQ("1234######", ToText({0x12, 0x34}, 4, kFromEnd));
    EXPECT_EQ("001234####", ToText({0x12, 0x34}, 6, kFromEnd));
    EXPECT_EQ("34########", ToText({0x12, 0x34}, 2, kFromEnd)) << "the start of the destination ends it";
    EXPECT_EQ("00ABCDEF##", ToText({0xAB, 0xCD, 0xEF}, 8, kFromEnd));
}

TEST_F(HexTextTest, AnOddCapacityFromTheEndStaysInsideTheDestination)
{
    EXPECT_EQ("BCD#######", ToText({0xAB, 0xCD}, 3, kFromEnd));
    EXPECT_EQ("D#########", ToText({0xAB, 0xCD}, 1, kFromEnd));
}

TEST_F(HexTextTest, BytesBecomeTextFromTheStart)
{
    EXPECT_EQ("AB00.#####", ToText({0xAB}, 5, kFromStart));
    EXPECT_EQ("12340.####", ToText({0x12, 0x34}, 6, kFromStart));
    EXPECT_EQ("0A0.######", ToText({0x0A}, 4, kFromStart));
}

// Deliberate: from the start all digits are written, whatever the capacity.
TEST_F(HexTextTest, FromTheStartTheCapacityDoesNotCut)
{
    EXPECT_EQ("010203####", ToText({1, 2, 3}, 4, kFromStart));
    EXPECT_EQ("1234######", ToText({0x12, 0x34}, 4, kFromStart)) << "the terminator is overwritten";
    EXPECT_EQ("12########", ToText({0x12}, 0, kFromStart));
}

TEST_F(HexTextTest, NoBytesGiveTerminatedZeroDigits)
{
    EXPECT_EQ("0000.#####", ToText({}, 5, kFromStart));
    EXPECT_EQ("000.######", ToText({}, 4, kFromEnd));
    EXPECT_EQ(".#########", ToText({}, 1, kFromEnd));
    EXPECT_EQ("##########", ToText({}, 0, kFromEnd));
    char room[] = "####";
    EXPECT_EQ(room, manager().HexToString(nullptr, 2, room, 3, kFromStart));
    EXPECT_STREQ("00", room);
    EXPECT_EQ(nullptr, manager().HexToString(nullptr, 2, nullptr, 3, kFromStart));
}

// --- StringToHexString ------------------------------------------------------------------------------------------

TEST_F(HexTextTest, CharactersBecomeTheirNumbers)
{
    EXPECT_EQ("0041######", ToHexText("A", 1, 4));
    EXPECT_EQ("486F6D65##", ToHexText("Home", 4, 8));
    EXPECT_EQ("000000486F", ToHexText("Ho", 2, 10));
    EXPECT_EQ("42########", ToHexText("AB", 2, 2)) << "a short destination takes the text's end";
    EXPECT_EQ("142#######", ToHexText("AB", 2, 3)) << "an odd capacity has no room for the last high digit";
    EXPECT_EQ("0A1B######", ToHexText("\n\x1B", 2, 4));
}

TEST_F(HexTextTest, TheTopBitIsDropped)
{
    EXPECT_EQ("41########", ToHexText("\xC1", 1, 2));
    EXPECT_EQ("7F00######", ToHexText("\xFF\x80", 2, 4));
}

TEST_F(HexTextTest, ATextOfNoLengthGivesTerminatedZeroDigits)
{
    EXPECT_EQ("000.######", ToHexText("A", 0, 4));
    EXPECT_EQ("000.######", ToHexText("A", -1, 4));
    EXPECT_EQ("##########", ToHexText("A", 1, 0));
    unsigned char room[] = "####";
    EXPECT_EQ(room, manager().StringToHexString(nullptr, 1, room, 3));
    EXPECT_STREQ("00", reinterpret_cast<const char*>(room));
    EXPECT_EQ(nullptr, manager().StringToHexString("A", 1, nullptr, 3));
}

} // namespace calvix::test::hex_text_test
