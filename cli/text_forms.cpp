#include "text_forms.h"

#include "core/wlan_records.h"

#include <cstdint>
#include <optional>

namespace calvix::host
{

namespace
{

constexpr char32_t kReplacement = 0xFFFD;
constexpr char kDigits[] = "0123456789ABCDEF";

struct Decoded
{
    std::optional<char32_t> character; ///< none: the first byte begins no character
    std::size_t length = 1;
};

bool IsSurrogate(char32_t c)
{
    return c >= 0xD800 && c <= 0xDFFF;
}

/// Length of the sequence that a lead byte announces; 0 for a byte that leads none.
std::size_t SequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2)
        return 0;
    if (lead < 0xE0)
        return 2;
    if (lead < 0xF0)
        return 3;
    return lead < 0xF5 ? 4 : 0;
}

Decoded DecodeFirst(std::string_view utf8)
{
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(utf8[0]);
    const std::size_t length = SequenceLength(lead);
    if (length == 0 || length > utf8.size())
        return {};
    char32_t c = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
    {
        const auto next = static_cast<unsigned char>(utf8[i]);
        if ((next & 0xC0U) != 0x80U)
            return {};
        c = (c << 6) | (next & 0x3FU);
    }
    if (c < smallest[length] || c > 0x10FFFF || IsSurrogate(c))
        return {};
    return {c, length};
}

void AppendUtf8(std::string& utf8, char32_t c)
{
    const auto tail = [c](int shift) { return static_cast<char>(0x80U | ((c >> shift) & 0x3FU)); };
    if (c < 0x80)
        utf8 += static_cast<char>(c);
    else if (c < 0x800)
        (utf8 += static_cast<char>(0xC0U | (c >> 6))) += tail(0);
    else if (c < 0x10000)
        ((utf8 += static_cast<char>(0xE0U | (c >> 12))) += tail(6)) += tail(0);
    else
        (((utf8 += static_cast<char>(0xF0U | (c >> 18))) += tail(12)) += tail(6)) += tail(0);
}

void AppendWide(std::wstring& wide, char32_t c)
{
    if (sizeof(wchar_t) >= 4 || c < 0x10000)
    {
        wide += static_cast<wchar_t>(c);
        return;
    }
    wide += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
    wide += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
}

/// The character that begins at `index`, which moves behind it. Pairs of surrogates are joined in both worlds.
char32_t NextWide(std::wstring_view wide, std::size_t& index)
{
    const auto first = static_cast<char32_t>(wide[index++]);
    if (!IsSurrogate(first))
        return first;
    const char32_t second = index < wide.size() ? static_cast<char32_t>(wide[index]) : 0;
    if (first >= 0xDC00 || second < 0xDC00 || second > 0xDFFF)
        return kReplacement;
    ++index;
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

void AppendEscape(std::string& text, char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    ((text += "\\x") += kDigits[value >> 4]) += kDigits[value & 0xFU];
}

/// Marks that turn the direction of the text behind them.
bool IsDirectionMark(char32_t c)
{
    return c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

bool IsControl(char32_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || IsDirectionMark(c);
}

std::optional<unsigned> DigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return static_cast<unsigned>(c - '0');
    if (c >= 'A' && c <= 'F')
        return static_cast<unsigned>(c - 'A' + 10);
    if (c >= 'a' && c <= 'f')
        return static_cast<unsigned>(c - 'a' + 10);
    return std::nullopt;
}

/// Scripts and pictures that take two columns of a terminal.
bool IsWide(char32_t c)
{
    struct Range
    {
        char32_t first;
        char32_t last;
    };
    constexpr Range ranges[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xAC00, 0xD7A3},
                                {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},
                                {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};
    for (const Range& range : ranges)
    {
        if (c >= range.first && c <= range.last)
            return true;
    }
    return false;
}

bool IsCombining(char32_t c)
{
    return (c >= 0x300 && c <= 0x36F) || c == 0x200D || (c >= 0xFE00 && c <= 0xFE0F);
}

} // namespace

std::wstring Widen(std::string_view utf8)
{
    std::wstring wide;
    while (!utf8.empty())
    {
        const Decoded decoded = DecodeFirst(utf8);
        AppendWide(wide, decoded.character.value_or(kReplacement));
        utf8.remove_prefix(decoded.length);
    }
    return wide;
}

std::string Narrow(std::wstring_view wide)
{
    std::string utf8;
    for (std::size_t index = 0; index < wide.size();)
        AppendUtf8(utf8, NextWide(wide, index));
    return utf8;
}

std::string VisibleText(std::string_view bytes)
{
    std::string text;
    while (!bytes.empty())
    {
        const Decoded decoded = DecodeFirst(bytes);
        const bool looksEscaped = bytes.substr(0, 2) == "\\x";
        if (!decoded.character || IsControl(*decoded.character) || looksEscaped)
        {
            for (const char byte : bytes.substr(0, decoded.length))
                AppendEscape(text, byte);
        }
        else
        {
            text += bytes.substr(0, decoded.length);
        }
        bytes.remove_prefix(decoded.length);
    }
    return text;
}

std::string BytesOfVisibleText(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool escape = text.substr(i, 2) == "\\x" && i + 3 < text.size();
        const auto high = escape ? DigitValue(text[i + 2]) : std::nullopt;
        const auto low = escape ? DigitValue(text[i + 3]) : std::nullopt;
        if (!high || !low)
        {
            bytes += text[i];
            continue;
        }
        bytes += static_cast<char>(*high * 16 + *low);
        i += 3;
    }
    return bytes;
}

std::optional<std::string> BytesOfHexText(std::string_view text)
{
    std::string bytes;
    std::optional<unsigned> high;
    for (const char c : text)
    {
        if (c == ' ' || c == ':' || c == '-')
            continue;
        const auto digit = DigitValue(c);
        if (!digit)
            return std::nullopt;
        const auto value = static_cast<unsigned>(*digit);
        if (high)
            bytes += static_cast<char>(*high * 16 + value);
        high = high ? std::nullopt : std::optional<unsigned>(value);
    }
    return high || bytes.empty() ? std::nullopt : std::optional(bytes);
}

std::optional<std::string> BytesOfSsidArgument(std::string_view text)
{
    constexpr std::string_view prefix = "hex:";
    if (text.starts_with(prefix))
        return BytesOfHexText(text.substr(prefix.size()));
    return BytesOfVisibleText(text);
}

std::string SsidBytes(const DOT11_SSID& ssid)
{
    std::string bytes(SsidLength(ssid), '\0');
    std::memcpy(bytes.data(), ssid.ucSSID, bytes.size());
    return bytes;
}

DOT11_SSID MakeSsid(std::string_view bytes)
{
    DOT11_SSID ssid{};
    const std::size_t length = (std::min)(bytes.size(), sizeof(ssid.ucSSID));
    std::memcpy(ssid.ucSSID, bytes.data(), length);
    ssid.uSSIDLength = static_cast<ULONG>(length);
    return ssid;
}

std::string HexText(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes)
    {
        const auto value = static_cast<unsigned char>(byte);
        (text += kDigits[value >> 4]) += kDigits[value & 0xFU];
    }
    return text;
}

std::string MacText(const DOT11_MAC_ADDRESS& address)
{
    std::string text;
    for (const UCHAR byte : address)
    {
        if (!text.empty())
            text += ':';
        (text += kDigits[byte >> 4]) += kDigits[byte & 0xFU];
    }
    return text;
}

std::size_t DisplayWidth(std::string_view utf8)
{
    std::size_t width = 0;
    while (!utf8.empty())
    {
        const Decoded decoded = DecodeFirst(utf8);
        const char32_t c = decoded.character.value_or(kReplacement);
        width += IsCombining(c) ? 0U : IsWide(c) ? 2U : 1U;
        utf8.remove_prefix(decoded.length);
    }
    return width;
}

} // namespace calvix::host
