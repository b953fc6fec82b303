#include "core/wlan_records.h"

#include "support/test_scenarios.h"

#include <gtest/gtest.h>

namespace calvix::test::ssid_test
{

TEST(SsidTest, HoldsAtMostThirtyTwoBytes)
{
    DOT11_SSID ssid = MakeSsid("HomeNet");
    EXPECT_EQ(7u, SsidLength(ssid));
    ssid.uSSIDLength = 33;
    EXPECT_EQ(32u, SsidLength(ssid));
    ssid.uSSIDLength = 0xFFFFFFFF;
    EXPECT_EQ(32u, SsidLength(ssid));
    EXPECT_EQ(0u, SsidLength(MakeSsid("")));
}

TEST(SsidTest, IsComparedExactlyInLengthAndBytes)
{
    EXPECT_TRUE(SameSsid(MakeSsid("HomeNet"), MakeSsid("HomeNet")));
    EXPECT_TRUE(SameSsid(MakeSsid(""), MakeSsid("")));
    EXPECT_FALSE(SameSsid(MakeSsid("HomeNet"), MakeSsid("homenet")));
    EXPECT_FALSE(SameSsid(MakeSsid("HomeNet"), MakeSsid("HomeNet5G")));
    EXPECT_FALSE(SameSsid(MakeSsid(""), MakeSsid("HomeNet")));
    EXPECT_FALSE(SameSsid(MakeSsid(std::string("a\0b", 3)), MakeSsid(std::string("a\0c", 3))));
}

TEST(SsidTest, BytesBeyondTheLengthDoNotCount)
{
    DOT11_SSID left = MakeSsid("HomeNet");
    left.ucSSID[7] = 'X';
    EXPECT_TRUE(SameSsid(left, MakeSsid("HomeNet")));
    EXPECT_TRUE(SameSsidBytes(left, MakeSsid("HomeNet5G"), 7));
    EXPECT_FALSE(SameSsidBytes(left, MakeSsid("HomeNet5G"), 8));
}

TEST(FixedTextTest, EndsAtTheTerminatorOrTheArray)
{
    const wchar_t terminated[8] = {L'H', L'o', L'm', L'e', 0, L'X', L'X', L'X'};
    EXPECT_EQ(L"Home", FixedText(terminated));
    const wchar_t full[4] = {L'H', L'o', L'm', L'e'};
    EXPECT_EQ(L"Home", FixedText(full));
    const wchar_t empty[2] = {};
    EXPECT_EQ(L"", FixedText(empty));
}

} // namespace calvix::test::ssid_test
