#include "import/capture_words.h"

#include "import/capture_text.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

bool IsHyphen(char32_t letter)
{
    return letter == U'-' || (letter >= U'\u2010' && letter <= U'\u2014') || letter == U'\uFF0D';
}

/// A text as words are compared: small letters, no blanks around hyphens, plain hyphens.
std::u32string ComparedText(std::string_view utf8)
{
    constexpr std::u32string_view kSpaces = U" \t\u00A0\u202F\u3000";
    std::u32string text;
    bool afterSpace = false;
    for (const char32_t letter : CodePoints(utf8))
    {
        const bool isSpace = kSpaces.find(letter) != std::u32string_view::npos;
        const bool joins = text.empty() || text.back() == U'-' || IsHyphen(letter);
        if (!isSpace && afterSpace && !joins)
            text += U' ';
        if (!isSpace)
            text += IsHyphen(letter) ? U'-' : SmallLetter(letter);
        afterSpace = isSpace;
    }
    return text;
}

struct KnownWord
{
    std::string_view meaning;
    std::u32string text; ///< as ComparedText has it
};

/// Removes the part of a text before a separator.
std::string_view Next(std::string_view& text, char separator)
{
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return Trim(part);
}

std::vector<KnownWord> ReadWords()
{
    std::vector<KnownWord> known;
    for (std::string_view line : LinesOf(kCaptureWords))
        for (const std::string_view meaning = Next(line, '='); !line.empty();)
            known.push_back({meaning, ComparedText(Next(line, '|'))});
    return known;
}

const std::vector<KnownWord>& KnownWords()
{
    static const std::vector<KnownWord> words = ReadWords();
    return words;
}

/// Whether a text's last word, which the scripts without blanks do not set apart, is this one.
bool EndsWithWord(const std::u32string& text, const std::u32string& word)
{
    if (!text.ends_with(word))
        return false;
    const std::size_t before = text.size() - word.size();
    const bool isAlphabet = word.front() < 0x500;
    return before == 0 || !isAlphabet || text[before - 1] == U' ' || text[before - 1] == U':';
}

} // namespace

std::string Vocabulary::Explained(std::string_view word) const
{
    const std::u32string wanted = ComparedText(word);
    const auto found = std::find_if(explained.begin(), explained.end(),
                                    [&](const auto& each) { return ComparedText(each.first) == wanted; });
    return found == explained.end() ? "" : found->second;
}

std::string Vocabulary::MeaningOf(std::string_view word, std::initializer_list<std::string_view> meanings) const
{
    if (std::string own = Explained(word); !own.empty())
        return own;
    const std::u32string wanted = ComparedText(word);
    for (const KnownWord& known : KnownWords())
        if (known.text == wanted && std::find(meanings.begin(), meanings.end(), known.meaning) != meanings.end())
            return std::string(known.meaning);
    return {};
}

std::string_view SwitchOf(std::string_view text)
{
    const std::u32string compared = ComparedText(text);
    const KnownWord* longest = nullptr;
    // The longest, because "désactivé" ends like "activé" where a script has no blanks.
    for (const KnownWord& known : KnownWords())
        if ((known.meaning == "on" || known.meaning == "off") && EndsWithWord(compared, known.text) &&
            (longest == nullptr || known.text.size() > longest->text.size()))
            longest = &known;
    return longest != nullptr ? longest->meaning : "";
}

} // namespace calvix::host
