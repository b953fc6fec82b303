#include "import/code_page_guess.h"

#include "import/capture_text.h"
#include "import/code_page_letters.h"
#include "import/letter_case.h"
#include "output/text_forms.h"
#include "simulation/narrow_encoding.h"

#include <algorithm>
#include <limits>

namespace calvix::host
{

namespace
{

enum class Script
{
    none, ///< signs, and what no language's letter is
    latin,
    cyrillic,
    kana,
    hangul,
    ideographs
};

Script ScriptOf(char32_t letter)
{
    const auto within = [letter](char32_t first, char32_t last) { return letter >= first && letter <= last; };
    if (within(U'A', U'Z') || within(U'a', U'z') || (within(0xC0, 0x17F) && letter != 0xD7 && letter != 0xF7))
        return Script::latin;
    if (within(0x400, 0x45F))
        return Script::cyrillic;
    if (within(0x3041, 0x30FF))
        return Script::kana;
    if (within(0xAC00, 0xD7A3))
        return Script::hangul;
    return within(0x4E00, 0x9FFF) ? Script::ideographs : Script::none;
}

/// A script that only texts of this code page are written in.
bool IsOwnScript(std::uint32_t codePage, Script script)
{
    return (codePage == 932 && script == Script::kana) || (codePage == 949 && script == Script::hangul);
}

/// How well a character fits between those beside it, for each of its bytes.
int Plausibility(const CodePageLetters& page, char32_t before, char32_t letter)
{
    const Script script = ScriptOf(letter);
    const Script scriptBefore = ScriptOf(before);
    const bool isAlphabet = script == Script::latin || script == Script::cyrillic;
    const bool isPlainWord = before >= U'a' && before <= U'z';
    const bool mixes =
        isAlphabet ? scriptBefore != Script::none && scriptBefore != script : script != Script::none && isPlainWord;
    const bool capitalInside = isAlphabet && IsCapital(letter) && scriptBefore == script && !IsCapital(before);
    if (mixes || capitalInside)
        return -3;
    if (IsOwnScript(page.codePage, script) || page.usual.find(SmallLetter(letter)) != std::u32string_view::npos)
        return 2;
    // There are too many ideographs to know them all.
    if (script == Script::ideographs && page.doubleByte)
        return page.codePage == 949 ? -1 : 0;
    return script == Script::none ? -4 : -1;
}

int PlausibilityOf(const CodePageLetters& page, std::u32string_view line)
{
    constexpr char32_t kFirstHalfWidth = 0xFF61;
    int sum = 0;
    for (std::size_t i = 0; i < line.size(); ++i)
    {
        const char32_t before = i > 0 ? line[i - 1] : U' ';
        const bool oneByte = !page.doubleByte || line[i] >= kFirstHalfWidth;
        const bool isPlainLetter = line[i] >= U'a' && line[i] <= U'z';
        if (line[i] >= 0x80)
            sum += Plausibility(page, before, line[i]) * (oneByte ? 1 : 2);
        else if (isPlainLetter && ScriptOf(before) != Script::none && ScriptOf(before) != Script::latin)
            sum -= 3; // a word that goes on in another script
    }
    return sum;
}

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char letter) { return static_cast<unsigned char>(letter) < 0x80; });
}

/// The lines that tell something about the code page.
std::vector<std::string_view> TellingLines(std::string_view bytes)
{
    std::vector<std::string_view> lines;
    std::vector<std::string_view> ssids;
    for (const std::string_view line : LinesOf(bytes))
    {
        const std::string_view text = Trim(line);
        if (!IsAscii(line))
            (text.starts_with("SSID") ? ssids : lines).push_back(line);
    }
    return lines.empty() ? ssids : lines;
}

int Score(const CodePageLetters& page, const std::vector<std::string_view>& lines)
{
    constexpr int kIllFormed = -20;
    int score = 0;
    for (const std::string_view line : lines)
    {
        bool illFormed = false;
        const std::wstring decoded = simulation::DecodeNarrow(page.codePage, line, illFormed);
        score += PlausibilityOf(page, CodePoints(Narrow(decoded))) + (illFormed ? kIllFormed : 0);
    }
    return score;
}

} // namespace

NarrowText DecodeNarrowText(std::uint32_t codePage, std::string_view bytes)
{
    NarrowText result;
    const std::vector<std::string_view> lines = LinesOf(bytes);
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        bool illFormed = false;
        if (!lines[i].empty())
            result.text += Narrow(simulation::DecodeNarrow(codePage, lines[i], illFormed));
        result.text += '\n';
        if (illFormed && result.illFormedLine == 0)
            result.illFormedLine = i + 1;
    }
    return result;
}

std::uint32_t LikelyCodePage(std::string_view bytes)
{
    const std::vector<std::string_view> lines = TellingLines(bytes);
    std::uint32_t likely = 0;
    int best = std::numeric_limits<int>::min();
    for (const CodePageLetters& page : kCodePageLetters)
    {
        const int score = simulation::HasNarrowEncoding(page.codePage) ? Score(page, lines) : best;
        if (score > best)
        {
            best = score;
            likely = page.codePage;
        }
    }
    return likely;
}

} // namespace calvix::host
