#include "support/library_test.h"

namespace calvix::test::interface_text_test
{

using ::testing::IsEmpty;

class InterfaceTextTest : public LibraryTest
{
};

TEST_F(InterfaceTextTest, EveryStateHasItsText)
{
    const struct
    {
        unsigned long state;
        const char* text;
    } cases[] = {{0, "not ready"},
                 {1, "connected"},
                 {2, "ad hoc network formed"},
                 {3, "disconnecting"},
                 {4, "disconnected"},
                 {5, "associating"},
                 {6, "discovering"},
                 {7, "authenticating"},
                 {8, "unknown(8)"},
                 {100, "unknown(100)"},
                 {0xFFFFFFFFul, "unknown(4294967295)"}};
    for (const auto& each : cases)
    {
        char* const text = manager().GetWlanInterfaceState(each.state);
        EXPECT_STREQ(each.text, text) << each.state;
        EXPECT_EQ(ManagerInternals::InterfaceState(manager()), text) << "the text is the object's own";
    }
    const unsigned long highest = ~0UL;
    EXPECT_EQ("unknown(" + std::to_string(highest) + ")", manager().GetWlanInterfaceState(highest));
    EXPECT_THAT(timeline(), IsEmpty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(InterfaceTextTest, GuidsAreWrittenWithBracesInUpperCase)
{
    const struct
    {
        GUID guid;
        const char* text;
    } cases[] = {{{}, "{00000000-0000-0000-0000-000000000000}"},
                 {{0x89abcdef, 0x0123, 0x4567, {0x08, 0x9a, 0xbc, 0xde, 0xf0, 0x01, 0x02, 0x03}},
                  "{89ABCDEF-0123-4567-089A-BCDEF0010203}"},
                 {{0xFFFFFFFF, 0xFFFF, 0xFFFF, {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}},
                  "{FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF}"},
                 {{1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}}, "{00000001-0002-0003-0405-060708090A0B}"},
                 {kAdapterA, kAdapterAText}};
    for (const auto& each : cases)
    {
        char* const text = manager().GUID2String(each.guid);
        EXPECT_STREQ(each.text, text);
        EXPECT_EQ(38u, std::strlen(text));
        EXPECT_EQ(ManagerInternals::GuidText(manager()), text) << "the text is the object's own";
    }
    EXPECT_THAT(timeline(), IsEmpty());
}

TEST_F(InterfaceTextTest, TheTwoTextsDoNotDisturbEachOther)
{
    char* const state = manager().GetWlanInterfaceState(2);
    char* const guid = manager().GUID2String(kAdapterB);
    EXPECT_STREQ("ad hoc network formed", state);
    manager().GetWlanInterfaceState(0);
    EXPECT_STREQ("not ready", state) << "the text changes with the next call of the same method";
    EXPECT_STREQ(kAdapterBText, guid);
}

} // namespace calvix::test::interface_text_test
