#include "forms/utf8.h"

#include <algorithm>
#include <cstdint>

namespace calvix::forms
{

namespace
{

bool IsSurrogate(char32_t character)
{
    return character >= 0xD800 && character <= 0xDFFF;
}

/// What may follow a lead byte: how many bytes, and the range of the first of them, which keeps out overlong forms,
/// surrogates and what lies beyond U+10FFFF.
struct Sequence
{
    int following;
    std::uint8_t lowest;
    std::uint8_t highest;
};

Sequence SequenceOf(std::uint8_t lead)
{
    if (lead < 0x80)
        return {0, 0, 0};
    if (lead < 0xC2 || lead > 0xF4)
        return {-1, 0, 0};
    if (lead < 0xE0)
        return {1, 0x80, 0xBF};
    if (lead < 0xF0)
        return {2, std::uint8_t(lead == 0xE0 ? 0xA0 : 0x80), std::uint8_t(lead == 0xED ? 0x9F : 0xBF)};
    return {3, std::uint8_t(lead == 0xF0 ? 0x90 : 0x80), std::uint8_t(lead == 0xF4 ? 0x8F : 0xBF)};
}

} // namespace

std::optional<char32_t> NextCharacter(std::string_view text, std::size_t& position)
{
    const auto lead = static_cast<std::uint8_t>(text[position++]);
    Sequence sequence = SequenceOf(lead);
    if (sequence.following <= 0)
        return sequence.following == 0 ? std::optional<char32_t>(lead) : std::nullopt;
    char32_t character = lead & (0x3Fu >> sequence.following);
    for (; sequence.following > 0; --sequence.following)
    {
        const std::uint8_t byte = position < text.size() ? static_cast<std::uint8_t>(text[position]) : 0;
        if (byte < sequence.lowest || byte > sequence.highest)
            return std::nullopt;
        character = (character << 6) | (byte & 0x3Fu);
        sequence = {sequence.following, 0x80, 0xBF};
        ++position;
    }
    return character;
}

void AppendWide(std::wstring& text, char32_t character)
{
    if (sizeof(wchar_t) == 2 && character >= 0x10000)
    {
        text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
    else
    {
        text += static_cast<wchar_t>(character);
    }
}

void AppendUtf8(std::string& text, char32_t character)
{
    if (character < 0x80)
    {
        text += static_cast<char>(character);
        return;
    }
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    const std::uint32_t mark = following == 1 ? 0xC0 : following == 2 ? 0xE0 : 0xF0;
    text += static_cast<char>(mark | (character >> (6 * following)));
    for (int left = following - 1; left >= 0; --left)
        text += static_cast<char>(0x80 | ((character >> (6 * left)) & 0x3F));
}

namespace
{

std::optional<char32_t> NextOfWide(std::wstring_view text, std::size_t& position)
{
    const auto unit = static_cast<char32_t>(text[position++]);
    if (sizeof(wchar_t) == 2 && unit >= 0xD800 && unit < 0xDC00 && position < text.size())
    {
        const auto second = static_cast<char32_t>(text[position]);
        if (second >= 0xDC00 && second <= 0xDFFF)
        {
            ++position;
            return 0x10000 + ((unit - 0xD800) << 10) + (second - 0xDC00);
        }
    }
    return IsSurrogate(unit) || unit > 0x10FFFF ? std::nullopt : std::optional(unit);
}

/// Takes `source` apart with `next` and puts it together again with `append`.
template <typename Result, typename Source, typename Next, typename Append>
Result Convert(Source source, bool* illFormed, Next next, Append append)
{
    Result result;
    result.reserve(source.size());
    bool anyIllFormed = false;
    for (std::size_t position = 0; position < source.size();)
    {
        const std::optional<char32_t> character = next(source, position);
        anyIllFormed |= !character;
        append(result, character.value_or(kReplacementCharacter));
    }
    if (illFormed != nullptr)
        *illFormed = anyIllFormed;
    return result;
}

} // namespace

std::wstring WideFromUtf8(std::string_view text, bool* illFormed)
{
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(text.begin(), text.end(), isAscii)) // as most texts are
    {
        if (illFormed != nullptr)
            *illFormed = false;
        return {text.begin(), text.end()};
    }
    return Convert<std::wstring>(text, illFormed, NextCharacter, AppendWide);
}

std::string Utf8FromWide(std::wstring_view text, bool* illFormed)
{
    return Convert<std::string>(text, illFormed, NextOfWide, AppendUtf8);
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t position = 0; position < text.size();)
        if (!NextCharacter(text, position))
            return false;
    return true;
}

} // namespace calvix::forms
