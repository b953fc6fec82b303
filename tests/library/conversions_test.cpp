// What needs no adapter gives the same on every computer.

#include <calvix/wireless_manage.h>

#include <gtest/gtest.h>

#include <array>

namespace
{

TEST(LibraryConversions, WriteAddressesAndGuids)
{
    constexpr std::array<unsigned char, 6> address = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
    std::array<char, 18> text{};
    CWirelessManage* const manager = CWirelessManage::Get();
    manager->FormMAC(address.data(), text.data());
    EXPECT_STREQ(text.data(), "00:1A:2B:3C:4D:5E");

    constexpr GUID guid = {0x0a1b2c3d, 0x4e5f, 0x6071, {0x82, 0x93, 0xa4, 0xb5, 0xc6, 0xd7, 0xe8, 0xf9}};
    EXPECT_STREQ(manager->GUID2String(guid), "{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9}");
}

TEST(LibraryConversions, WriteSsidsAsText)
{
    const DOT11_SSID ssid = {4, {'h', 'o', 'm', 'e'}};
    std::array<char, 33> narrow{};
    std::array<wchar_t, 33> wide{};
    CWirelessManage* const manager = CWirelessManage::Get();
    EXPECT_EQ(manager->GetSSID(&ssid, narrow.data(), static_cast<int>(narrow.size())), 1);
    EXPECT_STREQ(narrow.data(), "home");
    EXPECT_EQ(manager->GetSSID(&ssid, wide.data(), static_cast<int>(wide.size())), 1);
    EXPECT_STREQ(wide.data(), L"home");
    EXPECT_EQ(manager->WideCharToChar(L"office", narrow.data(), static_cast<int>(narrow.size())), 7);
    EXPECT_STREQ(narrow.data(), "office");
}

TEST(LibraryConversions, TurnBytesIntoDigitsAndBack)
{
    constexpr std::array<unsigned char, 3> bytes = {0x01, 0xAB, 0xFF};
    std::array<char, 7> text{};
    std::array<unsigned char, 3> back{};
    CWirelessManage* const manager = CWirelessManage::Get();
    EXPECT_EQ(manager->HexToString(bytes.data(), 3, text.data(), 6, true), text.data());
    EXPECT_STREQ(text.data(), "01ABFF");
    manager->StringToHex(text.data(), 6, back.data(), 3, false);
    EXPECT_EQ(back, bytes);
}

TEST(LibraryConversions, RateSignals)
{
    CWirelessManage* const manager = CWirelessManage::Get();
    EXPECT_EQ(manager->GetSignalStrength(-100), 0);
    EXPECT_EQ(manager->GetSignalStrength(-75), 50);
    EXPECT_EQ(manager->GetSignalStrength(-50), 100);
    EXPECT_EQ(manager->GetChannel(2412), 0U);
    EXPECT_EQ(manager->GetChannel(2484), 13U);
}

} // namespace
