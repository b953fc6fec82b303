#include "output/words.h"

#include "output/text_forms.h"
#include "platform/platform.h"

namespace calvix::host
{

namespace
{

std::string NumberedText(const char* what, unsigned long number)
{
    return std::string(what) + " " + std::to_string(number);
}

} // namespace

std::string AuthenticationText(DOT11_AUTH_ALGORITHM algorithm)
{
    switch (static_cast<unsigned>(algorithm))
    {
    case 1:
        return "open";
    case 2:
        return "shared key";
    case 3:
        return "WPA";
    case 4:
        return "WPA-PSK";
    case 5:
        return "WPA-none";
    case 6:
        return "WPA2";
    case 7:
        return "WPA2-PSK";
    case 8:
        return "WPA3-192";
    case 9:
        return "WPA3-SAE";
    case 10:
        return "OWE";
    case 11:
        return "WPA3";
    default:
        return NumberedText("authentication", static_cast<unsigned>(algorithm));
    }
}

std::string CipherText(DOT11_CIPHER_ALGORITHM algorithm)
{
    switch (static_cast<unsigned>(algorithm))
    {
    case 0x00:
        return "none";
    case 0x01:
    case 0x05:
    case 0x101:
        return "WEP";
    case 0x02:
        return "TKIP";
    case 0x04:
        return "CCMP";
    case 0x08:
        return "GCMP";
    case 0x09:
        return "GCMP-256";
    case 0x0a:
        return "CCMP-256";
    case 0x100:
        return "group";
    default:
        return NumberedText("cipher", static_cast<unsigned>(algorithm));
    }
}

std::string SecurityText(DOT11_AUTH_ALGORITHM algorithm, DOT11_CIPHER_ALGORITHM cipher)
{
    const std::string authentication = AuthenticationText(algorithm);
    return cipher == DOT11_CIPHER_ALGO_NONE ? authentication : authentication + "/" + CipherText(cipher);
}

std::string PhyText(DOT11_PHY_TYPE type)
{
    switch (static_cast<unsigned>(type))
    {
    case 1:
        return "FHSS";
    case 2:
        return "DSSS";
    case 4:
        return "802.11a";
    case 5:
        return "802.11b";
    case 6:
        return "802.11g";
    case 7:
        return "802.11n";
    case 8:
        return "802.11ac";
    case 9:
        return "802.11ad";
    case 10:
        return "802.11ax";
    case 11:
        return "802.11be";
    default:
        return NumberedText("PHY", static_cast<unsigned>(type));
    }
}

std::string BssTypeText(DOT11_BSS_TYPE type)
{
    switch (static_cast<unsigned>(type))
    {
    case 1:
        return "infrastructure";
    case 2:
        return "ad hoc";
    case 3:
        return "any";
    default:
        return NumberedText("BSS type", static_cast<unsigned>(type));
    }
}

std::string ConnectionModeText(WLAN_CONNECTION_MODE mode)
{
    switch (static_cast<unsigned>(mode))
    {
    case 0:
        return "profile";
    case 1:
        return "temporary profile";
    case 2:
        return "discovery, secure";
    case 3:
        return "discovery, unsecured";
    case 4:
        return "automatic";
    default:
        return NumberedText("mode", static_cast<unsigned>(mode));
    }
}

std::string ReasonText(DWORD reasonCode)
{
    wchar_t text[512] = {};
    constexpr DWORD capacity = sizeof(text) / sizeof(text[0]);
    if (platform::wlan().WlanReasonCodeToString(reasonCode, capacity, text, nullptr) != 0 || text[0] == 0)
        return NumberedText("reason code", reasonCode);
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
