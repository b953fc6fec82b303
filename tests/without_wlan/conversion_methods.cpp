// These answer the same everywhere.

#include "without_wlan/method_case.h"

#include <cwchar>

namespace calvix::test::every_method
{

namespace
{

constexpr unsigned char kAddress[] = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};
constexpr char kAddressText[] = "00:1A:2B:3C:4D:5E";
constexpr DOT11_SSID kHome = {4, {'H', 'o', 'm', 'e'}};

MethodCase Everywhere(const char* declaration, std::string (*call)(CWirelessManage&), const char* answer)
{
    return {declaration, call, testing::StrEq(answer), testing::StrEq(answer)};
}

} // namespace

std::vector<MethodCase> ConversionMethods()
{
    using Manager = CWirelessManage;
    return {
        Everywhere(
            "UnicodeToAnsi(wchar_t const*, char*)",
            [](Manager& m)
            {
                char text[1024] = {};
                return Said(m.UnicodeToAnsi(L"Home", text)) + text;
            },
            "1Home"),
        Everywhere(
            "WideCharToChar(wchar_t const*, char*, int)",
            [](Manager& m)
            {
                char text[8] = {};
                return Said(m.WideCharToChar(L"Home", text, sizeof(text))) + text;
            },
            "5Home"),
        Everywhere(
            "GetSSID(DOT11_SSID const*, char*, int)",
            [](Manager& m)
            {
                char text[33] = {};
                return Said(m.GetSSID(&kHome, text, sizeof(text))) + text;
            },
            "1Home"),
        Everywhere(
            "GetSSID(DOT11_SSID const*, wchar_t*, int)",
            [](Manager& m)
            {
                wchar_t text[33] = {};
                const int code = m.GetSSID(&kHome, text, 33);
                return Said(code) + (std::wcscmp(text, L"Home") == 0 ? "Home" : "something else");
            },
            "1Home"),
        Everywhere(
            "StringToHex(char const*, int, unsigned char*, int, bool)",
            [](Manager& m)
            {
                unsigned char bytes[2] = {};
                m.StringToHex("ABC", 3, bytes, sizeof(bytes), false);
                return Said(bytes[0]) + " " + Said(bytes[1]);
            },
            "10 188"),
        Everywhere(
            "HexToString(unsigned char const*, int, char*, int, bool)",
            [](Manager& m)
            {
                char text[5] = {};
                return Said(m.HexToString(kAddress + 1, 2, text, 4, false));
            },
            "1A2B"),
        Everywhere(
            "StringToHexString(char const*, int, unsigned char*, int)",
            [](Manager& m)
            {
                unsigned char text[5] = {};
                return Said(reinterpret_cast<char*>(m.StringToHexString("A", 1, text, 4)));
            },
            "0041"),
        Everywhere(
            "FormMAC(unsigned char const*, char*)",
            [](Manager& m)
            {
                char text[18] = {};
                m.FormMAC(kAddress, text);
                return Said(text);
            },
            kAddressText),
        Everywhere(
            "GetBSSID(unsigned char const*, char*, int)",
            [](Manager& m)
            {
                char text[18] = {};
                m.GetBSSID(kAddress, text, sizeof(text));
                return Said(text);
            },
            kAddressText),
    };
}

} // namespace calvix::test::every_method
