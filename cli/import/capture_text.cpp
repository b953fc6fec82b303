#include "import/capture_text.h"

#include "forms/utf8.h"

#include <algorithm>
#include <charconv>

namespace calvix::host
{

std::string_view Trim(std::string_view text)
{
    // The last ones are those of French and East Asian texts (no-break, narrow no-break, figure and ideographic), and a mark.
    constexpr std::string_view kBlanks[] = {" ",        "\t",           "\r",           "\f",           "\v",
                                            "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x87", "\xE3\x80\x80", "\xEF\xBB\xBF"};
    for (std::size_t before = text.size() + 1; text.size() < before;)
    {
        before = text.size();
        for (const std::string_view blank : kBlanks)
        {
            text.remove_prefix(text.starts_with(blank) ? blank.size() : 0);
            text.remove_suffix(text.ends_with(blank) ? blank.size() : 0);
        }
    }
    return text;
}

std::vector<std::string_view> LinesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty())
    {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

bool HasWord(std::string_view text, std::string_view word)
{
    return (" " + std::string(text) + " ").find(" " + std::string(word) + " ") != std::string::npos;
}

int FirstNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_of("0123456789"), text.size()));
    int number = -1;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

int WholeNumber(std::string_view text)
{
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

bool IsNumberList(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789., ") == std::string_view::npos;
}

char32_t SmallLetter(char32_t letter)
{
    const auto within = [letter](char32_t first, char32_t last) { return letter >= first && letter <= last; };
    if (within(U'A', U'Z') || (within(0xC0, 0xDE) && letter != 0xD7) || within(0x391, 0x3A9) || within(0x410, 0x42F))
        return letter + 0x20;
    if (within(0x400, 0x40F))
        return letter + 0x50;
    // In these blocks a capital is followed by its small letter.
    const bool isEvenCapital = (within(0x100, 0x137) || within(0x14A, 0x177)) && letter % 2 == 0;
    const bool isOddCapital = (within(0x139, 0x148) || within(0x179, 0x17E)) && letter % 2 == 1;
    return isEvenCapital || isOddCapital ? letter + 1 : letter;
}

std::u32string CodePoints(std::string_view utf8)
{
    std::u32string points;
    for (std::size_t at = 0; at < utf8.size();)
        points += forms::NextCharacter(utf8, at).value_or(forms::kReplacementCharacter);
    return points;
}

} // namespace calvix::host
