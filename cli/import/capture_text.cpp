#include "import/capture_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace calvix::host
{

namespace
{

/// Also the blanks that French and East Asian texts have around colons and numbers: no-break, narrow no-break, figure and
/// ideographic spaces.
constexpr std::array<std::string_view, 10> kBlanks{
    " ", "\t", "\r", "\f", "\v", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x87", "\xE3\x80\x80", "\xEF\xBB\xBF"};
constexpr std::string_view kWideColon = "\xEF\xBC\x9A";

bool IsInk(char letter)
{
    return letter > ' ' && letter <= '~';
}

std::size_t BlankAtStart(std::string_view text)
{
    if (text.empty() || IsInk(text.front()))
        return 0;
    const auto blank =
        std::find_if(kBlanks.begin(), kBlanks.end(), [&](std::string_view each) { return text.starts_with(each); });
    return blank == kBlanks.end() ? 0 : blank->size();
}

std::size_t BlankAtEnd(std::string_view text)
{
    if (text.empty() || IsInk(text.back()))
        return 0;
    const auto blank =
        std::find_if(kBlanks.begin(), kBlanks.end(), [&](std::string_view each) { return text.ends_with(each); });
    return blank == kBlanks.end() ? 0 : blank->size();
}

/// A no-break space in a name is as good as any other.
std::string PlainName(std::string_view name)
{
    std::string plain(Trim(name));
    for (std::size_t at = 0; (at = plain.find("\xC2\xA0", at)) != std::string::npos;)
        plain.replace(at, 2, " ");
    return plain;
}

char LowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

CaptureField ReadField(std::string_view line, std::size_t number)
{
    const std::size_t narrow = line.find(':');
    const std::size_t wide = line.find(kWideColon);
    const std::size_t colon = std::min(narrow, wide);
    CaptureField field;
    field.line = number;
    field.name = PlainName(line.substr(0, colon));
    field.hasColon = colon != std::string_view::npos;
    if (field.hasColon)
        field.value = Trim(line.substr(colon + (colon == wide ? kWideColon.size() : 1)));
    return field;
}

} // namespace

std::string_view Trim(std::string_view text)
{
    while (const std::size_t blank = BlankAtStart(text))
        text.remove_prefix(blank);
    while (const std::size_t blank = BlankAtEnd(text))
        text.remove_suffix(blank);
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

bool SameWord(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return LowerCase(a) == LowerCase(b); });
}

int FirstNumber(std::string_view text)
{
    const auto first = std::find_if(text.begin(), text.end(), IsDigit);
    const std::string_view rest = text.substr(static_cast<std::size_t>(first - text.begin()));
    int number = -1;
    std::from_chars(rest.data(), rest.data() + rest.size(), number);
    return number;
}

bool IsNumbered(std::string_view name, std::string_view keyword)
{
    if (!name.starts_with(keyword))
        return false;
    const std::string_view number = Trim(name.substr(keyword.size()));
    return !number.empty() && name[keyword.size()] == ' ' && std::all_of(number.begin(), number.end(), IsDigit);
}

bool BeginsNetwork(const CaptureField& field)
{
    return IsNumbered(field.name, "SSID");
}

bool BeginsAccessPoint(const CaptureField& field)
{
    return IsNumbered(field.name, "BSSID") || IsNumbered(field.name, "BSSIDD");
}

int WholeNumber(std::string_view text)
{
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

std::vector<CaptureField> ReadFields(std::string_view text)
{
    std::vector<CaptureField> fields;
    bool beginsParagraph = true;
    const std::vector<std::string_view> lines = LinesOf(text);
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        const std::string_view line = Trim(lines[i]);
        if (!line.empty())
        {
            fields.push_back(ReadField(line, i + 1));
            fields.back().indent = static_cast<std::size_t>(line.data() - lines[i].data());
            fields.back().beginsParagraph = beginsParagraph;
        }
        beginsParagraph = line.empty();
    }
    return fields;
}

std::string FieldText(const CaptureField& field)
{
    return field.hasColon ? field.name + " : " + field.value : field.name;
}

void CaptureRecord::Add(const CaptureField& field)
{
    if (const CaptureField* earlier = Find(field.Key()))
        throw LineError(field.line, "\"" + field.name + "\" is given twice for " + m_title + ", first in line " +
                                        std::to_string(earlier->line));
    m_fields.push_back(field);
}

const CaptureField* CaptureRecord::Find(std::string_view name) const
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const CaptureField& field) { return SameWord(field.Key(), name); });
    return found == m_fields.end() ? nullptr : &*found;
}

const CaptureField& CaptureRecord::Need(std::string_view name) const
{
    const CaptureField* field = Find(name);
    if (field == nullptr)
        throw LineError(m_line, m_title + " has no \"" + std::string(name) + "\"");
    return *field;
}

} // namespace calvix::host
