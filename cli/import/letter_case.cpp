#include "import/letter_case.h"

#include "output/text_forms.h"

namespace calvix::host
{

namespace
{

/// In these blocks a capital is followed by its small letter.
bool IsCapitalOfPair(char32_t letter)
{
    const bool evenFirst = (letter >= 0x100 && letter <= 0x137) || (letter >= 0x14A && letter <= 0x177);
    const bool oddFirst = (letter >= 0x139 && letter <= 0x148) || (letter >= 0x179 && letter <= 0x17E);
    return (evenFirst && letter % 2 == 0) || (oddFirst && letter % 2 == 1);
}

bool IsSpace(char32_t letter)
{
    return letter == U' ' || letter == U'\t' || letter == U'\u00A0' || letter == U'\u202F' || letter == U'\u3000';
}

bool IsHyphen(char32_t letter)
{
    return letter == U'-' || (letter >= U'\u2010' && letter <= U'\u2014') || letter == U'\uFF0D';
}

} // namespace

char32_t SmallLetter(char32_t letter)
{
    const bool latin = (letter >= U'A' && letter <= U'Z') || (letter >= 0xC0 && letter <= 0xDE && letter != 0xD7);
    const bool cyrillicOrGreek = (letter >= 0x410 && letter <= 0x42F) || (letter >= 0x391 && letter <= 0x3A9);
    if (latin || cyrillicOrGreek)
        return letter + 0x20;
    if (letter >= 0x400 && letter <= 0x40F)
        return letter + 0x50;
    return IsCapitalOfPair(letter) ? letter + 1 : letter;
}

std::u32string CodePoints(std::string_view utf8)
{
    std::u32string points;
    for (const wchar_t unit : Widen(utf8))
    {
        const char32_t value =
            static_cast<char32_t>(unit) & (sizeof(wchar_t) == 2 ? char32_t{0xFFFF} : char32_t{0x1FFFFF});
        const bool low = (value & 0xFFFFFC00u) == 0xDC00u;
        if (low && !points.empty() && (points.back() & 0xFFFFFC00u) == 0xD800u)
            points.back() = 0x10000 + ((points.back() - 0xD800) << 10) + (value - 0xDC00);
        else
            points += value;
    }
    return points;
}

std::u32string ComparedText(std::string_view utf8)
{
    std::u32string text;
    bool afterSpace = false;
    for (const char32_t letter : CodePoints(utf8))
    {
        if (IsSpace(letter))
        {
            afterSpace = true;
            continue;
        }
        const bool joins = IsHyphen(letter) || (!text.empty() && text.back() == U'-');
        if (afterSpace && !joins && !text.empty())
            text += U' ';
        text += IsHyphen(letter) ? U'-' : SmallLetter(letter);
        afterSpace = false;
    }
    return text;
}

} // namespace calvix::host
