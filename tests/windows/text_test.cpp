#include "platform/platform.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace
{

using calvix::platform::errors;
using calvix::platform::text;

constexpr GUID kGuid = {0x0a1b2c3d, 0x4e5f, 0x6071, {0x82, 0x93, 0xa4, 0xb5, 0xc6, 0xd7, 0xe8, 0xf9}};

TEST(WindowsText, ConvertsUtf8ThereAndBack)
{
    std::array<wchar_t, 16> wide{};
    ASSERT_EQ(text().MultiByteToWideChar(CP_UTF8, 0, "caf\xC3\xA9", -1, wide.data(), static_cast<int>(wide.size())), 5);
    EXPECT_STREQ(wide.data(), L"caf\u00E9");

    std::array<char, 16> narrow{};
    ASSERT_EQ(text().WideCharToMultiByte(CP_UTF8, 0, wide.data(), -1, narrow.data(), static_cast<int>(narrow.size()),
                                         nullptr, nullptr),
              6);
    EXPECT_STREQ(narrow.data(), "caf\xC3\xA9");
}

TEST(WindowsText, LeavesTheReasonOfAFailure)
{
    std::array<wchar_t, 2> tooSmall{};
    EXPECT_EQ(text().MultiByteToWideChar(CP_UTF8, 0, "cafe", -1, tooSmall.data(), static_cast<int>(tooSmall.size())),
              0);
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));

    std::array<wchar_t, 16> wide{};
    EXPECT_EQ(text().MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, "\xFF", -1, wide.data(),
                                         static_cast<int>(wide.size())),
              0);
    EXPECT_EQ(errors().GetLastError(), static_cast<DWORD>(ERROR_NO_UNICODE_TRANSLATION));
}

TEST(WindowsText, TellsThatTheDefaultCharacterStoodIn)
{
    constexpr UINT kWesternEuropean = 1252;
    std::array<char, 16> narrow{};
    BOOL usedDefault = FALSE;
    ASSERT_EQ(text().WideCharToMultiByte(kWesternEuropean, WC_NO_BEST_FIT_CHARS, L"a\u4E2D", -1, narrow.data(),
                                         static_cast<int>(narrow.size()), "#", &usedDefault),
              3);
    EXPECT_STREQ(narrow.data(), "a#");
    EXPECT_EQ(usedDefault, TRUE);
}

TEST(WindowsText, WritesAGuidInUpperCaseWithBraces)
{
    std::array<wchar_t, 39> wide{};
    EXPECT_EQ(text().StringFromGUID2(kGuid, wide.data(), static_cast<int>(wide.size())), 39);
    EXPECT_STREQ(wide.data(), L"{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9}");
    EXPECT_EQ(text().StringFromGUID2(kGuid, wide.data(), static_cast<int>(wide.size()) - 1), 0);
}

} // namespace
