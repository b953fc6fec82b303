#include "methods/method_row.h"

namespace calvix::benchmarks
{

namespace
{

constexpr unsigned char kAddress[] = {0x02, 0x1A, 0x50, 0x10, 0x00, 0x01};

} // namespace

Rows ConversionRows()
{
    return {
        Row("UnicodeToAnsi(wchar_t const*, char*)",
            [](auto& side, Scene& s) { return side.UnicodeToAnsi(L"Wireless network 1", s.out.plain.text); }),
        Row("WideCharToChar(wchar_t const*, char*, int)",
            [](auto& side, Scene& s) { return side.WideCharToChar(L"Wireless network 1", s.out.plain.text, 64); }),
        Row("GetSSID(DOT11_SSID const*, char*, int)",
            [](auto& side, Scene& s) { return side.GetSSID(&s.ssid, s.out.plain.text, 64); }),
        Row("GetSSID(DOT11_SSID const*, wchar_t*, int)",
            [](auto& side, Scene& s) { return side.GetSSID(&s.ssid, s.out.plain.wide, 64); }),
        Row("StringToHex(char const*, int, unsigned char*, int, bool)",
            [](auto& side, Scene& s) { return side.StringToHex("021A50100001", 12, s.out.plain.bytes, 8, false); }),
        Row("HexToString(unsigned char const*, int, char*, int, bool)",
            [](auto& side, Scene& s) { return side.HexToString(kAddress, 6, s.out.plain.text, 16, false); }),
        Row("StringToHexString(char const*, int, unsigned char*, int)",
            [](auto& side, Scene& s) { return side.StringToHexString("network", 7, s.out.plain.bytes, 32); }),
        Row("FormMAC(unsigned char const*, char*)",
            [](auto& side, Scene& s) { return side.FormMAC(kAddress, s.out.plain.text); }),
        Row("GetBSSID(unsigned char const*, char*, int)",
            [](auto& side, Scene& s) { return side.GetBSSID(kAddress, s.out.plain.text, 18); }),
        Row("GetChannel(unsigned long)", [](auto& side, Scene&) { return side.GetChannel(2437000); }),
        Row("GetSignalStrength(int)", [](auto& side, Scene&) { return side.GetSignalStrength(-61); }),
        Row("IsThisSSID(wchar_t const*, wchar_t*)",
            [](auto& side, Scene& s) { return side.IsThisSSID(s.xml.c_str(), s.profile); }),
        Row("IsAutoConnMode(wchar_t const*)", [](auto& side, Scene& s) { return side.IsAutoConnMode(s.xml.c_str()); }),
        Row("ReasonCode2String(unsigned long, char*, int)",
            [](auto& side, Scene& s) { return side.ReasonCode2String(163851, s.out.plain.text, 256); }),
        Row("GetPowerSettingStr(unsigned long)",
            [](auto& side, Scene&) { return side.GetPowerSettingStr(wlan_power_setting_medium_saving); }),
    };
}

} // namespace calvix::benchmarks
