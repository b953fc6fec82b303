#include "text_contract.h"

#include <array>
#include <cwchar>

namespace calvix::test::guid_text_contract_test
{

namespace
{

class GuidTextContract : public TextContract
{
};

INSTANTIATE_TEST_SUITE_P(Platform, GuidTextContract, testing::ValuesIn(Providers()), ProviderName);

constexpr GUID kGuid{0x5CA1AB1E, 0x00FF, 0x4abc, {0x80, 0x00, 0x01, 0x23, 0x45, 0x67, 0x89, 0xab}};

TEST_P(GuidTextContract, IsInBracesAndUpperCase)
{
    std::array<wchar_t, 64> text{};
    EXPECT_EQ(Text().StringFromGUID2(kGuid, text.data(), 64), 39) << "with the terminator";
    EXPECT_STREQ(text.data(), L"{5CA1AB1E-00FF-4ABC-8000-0123456789AB}");
    EXPECT_EQ(Text().StringFromGUID2(GUID{}, text.data(), 64), 39);
    EXPECT_STREQ(text.data(), L"{00000000-0000-0000-0000-000000000000}");
}

TEST_P(GuidTextContract, NeedsRoomForAll)
{
    std::array<wchar_t, 39> text{};
    EXPECT_EQ(Text().StringFromGUID2(kGuid, text.data(), 39), 39);
    text.fill(L'#');
    for (const int capacity : {0, 1, 38})
        EXPECT_EQ(Text().StringFromGUID2(kGuid, text.data(), capacity), 0);
    EXPECT_EQ(text.front(), L'#') << "nothing is written";
}

} // namespace

} // namespace calvix::test::guid_text_contract_test
