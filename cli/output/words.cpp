#include "output/words.h"

#include "output/text_forms.h"
#include "platform/platform.h"

#include <span>

namespace calvix::host
{

namespace
{

struct NumberText
{
    unsigned number;
    const char* text;
};

constexpr NumberText kAuthenticationTexts[] = {{1, "open"},     {2, "shared key"}, {3, "WPA"},      {4, "WPA-PSK"},
                                               {5, "WPA-none"}, {6, "WPA2"},       {7, "WPA2-PSK"}, {8, "WPA3-192"},
                                               {9, "WPA3-SAE"}, {10, "OWE"},       {11, "WPA3"}};
constexpr NumberText kCipherTexts[] = {{0x00, "none"},     {0x01, "WEP"},   {0x05, "WEP"},  {0x101, "WEP"},
                                       {0x02, "TKIP"},     {0x04, "CCMP"},  {0x08, "GCMP"}, {0x09, "GCMP-256"},
                                       {0x0a, "CCMP-256"}, {0x100, "group"}};
constexpr NumberText kPhyTexts[] = {{1, "FHSS"},      {2, "DSSS"},     {4, "802.11a"},  {5, "802.11b"},
                                    {6, "802.11g"},   {7, "802.11n"},  {8, "802.11ac"}, {9, "802.11ad"},
                                    {10, "802.11ax"}, {11, "802.11be"}};
constexpr NumberText kBssTypeTexts[] = {{1, "infrastructure"}, {2, "ad hoc"}, {3, "any"}};
constexpr NumberText kConnectionModeTexts[] = {
    {0, "profile"}, {1, "temporary profile"}, {2, "discovery, secure"}, {3, "discovery, unsecured"}, {4, "automatic"}};

/// The number's text in the table; one that is not there is `what` and the number.
std::string TextOf(unsigned long number, std::span<const NumberText> table, const char* what)
{
    for (const NumberText& row : table)
        if (row.number == number)
            return row.text;
    return std::string(what) + " " + std::to_string(number);
}

} // namespace

std::string SecurityText(DOT11_AUTH_ALGORITHM algorithm, DOT11_CIPHER_ALGORITHM cipher)
{
    const std::string text = TextOf(static_cast<unsigned>(algorithm), kAuthenticationTexts, "authentication");
    if (cipher == DOT11_CIPHER_ALGO_NONE)
        return text;
    return text + "/" + TextOf(static_cast<unsigned>(cipher), kCipherTexts, "cipher");
}

std::string PhyText(DOT11_PHY_TYPE type)
{
    return TextOf(static_cast<unsigned>(type), kPhyTexts, "PHY");
}

std::string BssTypeText(DOT11_BSS_TYPE type)
{
    return TextOf(static_cast<unsigned>(type), kBssTypeTexts, "BSS type");
}

std::string ConnectionModeText(WLAN_CONNECTION_MODE mode)
{
    return TextOf(static_cast<unsigned>(mode), kConnectionModeTexts, "mode");
}

std::string ReasonText(DWORD reasonCode)
{
    wchar_t text[512] = {};
    constexpr DWORD capacity = sizeof(text) / sizeof(text[0]);
    if (platform::wlan().WlanReasonCodeToString(reasonCode, capacity, text, nullptr) != 0 || text[0] == 0)
        return TextOf(reasonCode, {}, "reason code");
    return Narrow(text);
}

std::string BandText(unsigned long frequencyKhz)
{
    const auto mhz = static_cast<unsigned>(frequencyKhz / 1000);
    if (mhz < 2500)
        return "2.4 GHz";
    return mhz < 5930 ? "5 GHz" : "6 GHz";
}

} // namespace calvix::host
