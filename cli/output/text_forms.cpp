#include "output/text_forms.h"

#include "core/wlan_records.h"
#include "forms/utf8.h"

#include <cstdint>
#include <optional>

namespace calvix::host
{

namespace
{

/// The character that begins at `index`, which moves to the next one. Pairs of surrogates are joined in both worlds.
char32_t NextWide(std::wstring_view wide, std::size_t& index)
{
    const auto first = static_cast<char32_t>(wide[index++]);
    if (first < 0xD800 || first > 0xDFFF)
        return first;
    const char32_t second = index < wide.size() ? static_cast<char32_t>(wide[index]) : 0;
    if (first >= 0xDC00 || second < 0xDC00 || second > 0xDFFF)
        return forms::kReplacementCharacter;
    ++index;
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

/// Marks that turn the direction of the text after them.
bool IsDirectionMark(char32_t c)
{
    return c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

bool IsControl(char32_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || IsDirectionMark(c);
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
        if (c >= range.first && c <= range.last)
            return true;
    return false;
}

bool IsCombining(char32_t c)
{
    return (c >= 0x300 && c <= 0x36F) || c == 0x200D || (c >= 0xFE00 && c <= 0xFE0F);
}

} // namespace

std::wstring Widen(std::string_view utf8)
{
    return forms::WideFromUtf8(utf8);
}

std::string Narrow(std::wstring_view wide)
{
    std::string utf8;
    for (std::size_t index = 0; index < wide.size();)
        forms::AppendUtf8(utf8, NextWide(wide, index));
    return utf8;
}

std::string VisibleText(std::string_view bytes)
{
    std::string text;
    for (std::size_t at = 0; at < bytes.size();)
    {
        const std::size_t begin = at;
        const bool looksEscaped = bytes.substr(at, 2) == "\\x";
        const std::optional<char32_t> character = forms::NextCharacter(bytes, at);
        const std::string_view part = bytes.substr(begin, at - begin);
        if (character && !IsControl(*character) && !looksEscaped)
        {
            text += part;
            continue;
        }
        for (const char byte : part)
            text += "\\x" + HexText(std::string_view(&byte, 1));
    }
    return text;
}

bool IsVisible(std::string_view bytes)
{
    for (std::size_t at = 0; at < bytes.size();)
        if (const auto character = forms::NextCharacter(bytes, at); !character || IsControl(*character))
            return false;
    return true;
}

std::string BytesOfVisibleText(std::string_view text)
{
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        const bool escape = text.substr(i, 2) == "\\x" && i + 3 < text.size();
        const auto high = escape ? forms::HexDigit(text[i + 2]) : std::nullopt;
        const auto low = escape ? forms::HexDigit(text[i + 3]) : std::nullopt;
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
        const auto digit = forms::HexDigit(c);
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

std::size_t DisplayWidth(std::string_view utf8)
{
    std::size_t width = 0;
    for (std::size_t at = 0; at < utf8.size();)
    {
        const char32_t c = forms::NextCharacter(utf8, at).value_or(forms::kReplacementCharacter);
        width += IsCombining(c) ? 0U : IsWide(c) ? 2U : 1U;
    }
    return width;
}

} // namespace calvix::host
