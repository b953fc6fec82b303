#include "support/library_test.h"

#include <array>
#include <cstring>

namespace calvix::test::reason_text_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr unsigned long kNotVisible = 0x00028002; // WLAN_REASON_CODE_NOT_VISIBLE

class ReasonTextTest : public LibraryTest
{
public:
    ReasonTextTest() { m_room.fill('#'); }

    bool Ask(unsigned long reason, int capacity)
    {
        m_room.fill('#');
        return manager().ReasonCode2String(reason, m_room.data(), capacity);
    }

    std::string Text() const { return m_room.data(); }
    bool RoomUntouchedFrom(std::size_t place) const
    {
        return std::all_of(m_room.begin() + static_cast<std::ptrdiff_t>(place), m_room.end(),
                           [](char each) { return each == '#'; });
    }

private:
    std::array<char, 300> m_room;
};

} // namespace

TEST_F(ReasonTextTest, TheTextIsTheServices)
{
    EXPECT_TRUE(Ask(kNotVisible, 300));
    const std::string text = Text();
    EXPECT_FALSE(text.empty());
    EXPECT_TRUE(RoomUntouchedFrom(text.size() + 1));
    EXPECT_THAT(calls(), ElementsAre("WlanReasonCodeToString", "WideCharToMultiByte"));
    EXPECT_THAT(callLines(), ElementsAre("WlanReasonCodeToString(reasonCode=163842, bufferSize=256, buffer=non-null, "
                                         "reserved=null)",
                                         "WideCharToMultiByte(codePage=0, flags=0, source=\"" + text +
                                             "\", sourceLength=-1, destination=non-null, destinationLength=300, "
                                             "defaultCharacter=null, usedDefaultCharacter=null)"));
    ExpectSilence();
    EXPECT_TRUE(Ask(0, 300));
    EXPECT_NE(text, Text()) << "another reason, another text";
}

TEST_F(ReasonTextTest, NeedsNoClientHandle)
{
    ForgetClient();
    EXPECT_TRUE(Ask(kNotVisible, 300));
    EXPECT_EQ(0u, callCount("WlanOpenHandle"));
    EXPECT_EQ(nullptr, ManagerInternals::Client());
}

TEST_F(ReasonTextTest, AnInvalidParameterIsAFailure)
{
    FailOn("WlanReasonCodeToString", 87);
    EXPECT_FALSE(Ask(kNotVisible, 300));
    EXPECT_TRUE(RoomUntouchedFrom(0));
    EXPECT_THAT(calls(), ElementsAre("WlanReasonCodeToString"));
    EXPECT_THAT(traced(), IsEmpty());
}

// Deliberate: after any other error the empty text is handed out as the reason's.
TEST_F(ReasonTextTest, AnyOtherErrorGivesTheEmptyText)
{
    for (const DWORD error : {DWORD{5}, DWORD{8}, DWORD{0x80070057}})
    {
        ClearFailures();
        FailOn("WlanReasonCodeToString", error);
        EXPECT_TRUE(Ask(kNotVisible, 300)) << error;
        EXPECT_EQ("", Text());
        EXPECT_TRUE(RoomUntouchedFrom(1));
    }
}

TEST_F(ReasonTextTest, TheTextHasToFitWithItsTerminator)
{
    ASSERT_TRUE(Ask(kNotVisible, 300));
    const int length = static_cast<int>(Text().size());
    EXPECT_TRUE(Ask(kNotVisible, length + 1));
    EXPECT_FALSE(Ask(kNotVisible, length));
    EXPECT_TRUE(RoomUntouchedFrom(static_cast<std::size_t>(length)));
    EXPECT_FALSE(Ask(kNotVisible, 1));
}

// Deliberate: the conversion only measures the text then, and that counts as done.
TEST_F(ReasonTextTest, WithoutRoomNothingIsWrittenAndNothingIsWrong)
{
    EXPECT_TRUE(Ask(kNotVisible, 0));
    EXPECT_TRUE(RoomUntouchedFrom(0));
    EXPECT_TRUE(manager().ReasonCode2String(kNotVisible, nullptr, 0));
}

TEST_F(ReasonTextTest, ANullTextOrANegativeSizeIsThePlatformsToRefuse)
{
    EXPECT_FALSE(manager().ReasonCode2String(kNotVisible, nullptr, 300));
    EXPECT_FALSE(Ask(kNotVisible, -1));
    EXPECT_TRUE(RoomUntouchedFrom(0));
}

} // namespace calvix::test::reason_text_test
