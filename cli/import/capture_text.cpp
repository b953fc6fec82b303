#include "import/capture_text.h"

#include <algorithm>
#include <charconv>

namespace calvix::host
{

namespace
{

constexpr std::string_view kBlanks = " \t\r\f\v";

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
    const std::size_t colon = line.find(':');
    CaptureField field;
    field.line = number;
    field.name = Trim(line.substr(0, colon));
    field.hasColon = colon != std::string_view::npos;
    if (field.hasColon)
        field.value = Trim(line.substr(colon + 1));
    return field;
}

} // namespace

std::string_view Trim(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
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

std::vector<CaptureField> ReadFields(std::string_view text)
{
    std::vector<CaptureField> fields;
    std::size_t number = 0;
    while (!text.empty())
    {
        const std::size_t end = text.find('\n');
        const std::string_view line = Trim(text.substr(0, end));
        ++number;
        if (!line.empty())
            fields.push_back(ReadField(line, number));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return fields;
}

void CaptureRecord::Add(const CaptureField& field)
{
    if (const CaptureField* earlier = Find(field.name))
        throw LineError(field.line, "\"" + field.name + "\" is given twice for " + m_title + ", first in line " +
                                        std::to_string(earlier->line));
    m_fields.push_back(field);
}

const CaptureField* CaptureRecord::Find(std::string_view name) const
{
    const auto found = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](const CaptureField& field) { return SameWord(field.name, name); });
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
