#include "core/copies.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace calvix::test::bounded_copy_test
{

namespace
{

/// What a copy leaves in a room of ten characters, with its terminators written as '0'.
template <typename Character, typename Copy>
std::string RoomAfter(Copy copy)
{
    Character room[10];
    std::fill_n(room, 10, Character('#'));
    const Character text[] = {'H', 'o', 'm', 'e', 'N', 'e', 't', 0};
    copy(room, text);
    std::string shown;
    for (const Character each : room)
        shown += each == 0 ? '0' : static_cast<char>(each);
    return shown;
}

template <typename Character>
void CheckCopies()
{
    const struct
    {
        int capacity;
        const char* room;
    } cases[] = {{10, "HomeNet0##"}, {8, "HomeNet0##"}, {7, "HomeNe0###"},
                 {5, "Home0#####"},  {1, "0#########"}, {0, "##########"}};
    for (const auto& each : cases)
    {
        SCOPED_TRACE(each.capacity);
        EXPECT_EQ(each.room,
                  RoomAfter<Character>([&](auto* room, const auto* text)
                                       { CopyTruncating(room, static_cast<std::size_t>(each.capacity), text); }));
        EXPECT_EQ(each.room, RoomAfter<Character>([&](auto* room, const auto* text)
                                                  { CopyTruncatingToCaller(room, each.capacity, text); }));
    }
    EXPECT_EQ("0#########",
              RoomAfter<Character>([](auto* room, const auto* text) { CopyTruncatingToCaller(room, -1, text); }));
    Character* const nowhere = nullptr;
    RoomAfter<Character>([=](auto*, const auto* text) { CopyTruncating(nowhere, 10, text); });
}

} // namespace

TEST(BoundedCopyTest, CutsSilentlyAndTerminates)
{
    CheckCopies<char>();
    CheckCopies<wchar_t>();
}

} // namespace calvix::test::bounded_copy_test
