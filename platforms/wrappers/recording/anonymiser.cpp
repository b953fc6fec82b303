#include "wrappers/recording/anonymiser.h"

#include "forms/address_text.h"
#include "forms/utf8.h"
#include "forms/xml_text.h"
#include "operations/operations.h"
#include "wrappers/recording/recorded_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace calvix::recording
{

namespace
{

using nlohmann::ordered_json;

/// Shorter names are replaced as whole words only.
constexpr std::size_t kLongEnoughToStandOut = 4;

std::size_t CharactersOf(std::string_view bytes)
{
    if (!forms::IsUtf8(bytes))
        return bytes.size();
    return static_cast<std::size_t>(std::count_if(
        bytes.begin(), bytes.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string WithDashes(std::string address)
{
    std::replace(address.begin(), address.end(), ':', '-');
    return address;
}

bool IsPartOfWord(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || (static_cast<unsigned char>(c) & 0x80) != 0;
}

bool StandsAlone(std::string_view text, std::size_t begin, std::size_t size)
{
    const bool joinedBefore = begin > 0 && IsPartOfWord(text[begin - 1]);
    const bool joinedAfter = begin + size < text.size() && IsPartOfWord(text[begin + size]);
    return !joinedBefore && !joinedAfter;
}

/// Calls in which names come up. In others a word that happens to be a name means something else.
bool MayTellNames(const std::string& call)
{
    const operations::Facts* const operation = operations::FactsOf(call);
    return operation != nullptr && operation->tellsNames;
}

/// The document with `convert` applied to what follows each tag that ends so.
template <typename Convert>
std::string WithContents(const std::string& xml, std::string_view tagEnd, Convert convert)
{
    std::string result;
    std::size_t copied = 0;
    for (std::size_t tag = xml.find(tagEnd); tag != std::string::npos; tag = xml.find(tagEnd, copied))
    {
        const std::size_t begin = tag + tagEnd.size();
        const std::size_t end = (std::min)(xml.find('<', begin), xml.size());
        result.append(xml, copied, begin - copied).append(convert(xml.substr(begin, end - begin)));
        copied = end;
    }
    return result.append(xml, copied);
}

/// The text of a value, if it is one.
bool ReadText(const ordered_json& value, std::string& bytes)
{
    if (value.is_string())
        bytes = value.get<std::string>();
    else if (value.is_object() && value.size() == 1 && value.contains("bytes") && value["bytes"].is_string())
        return ReadHex(value["bytes"].get<std::string>(), bytes);
    else if (value.is_object() && value.size() == 1 && value.contains("units"))
        bytes = value.dump();
    else
        return false;
    return true;
}

} // namespace

void Anonymiser::Replace(std::string_view original, std::string_view pseudonym)
{
    if (!original.empty())
        m_pseudonyms.emplace(original, pseudonym);
}

std::string Anonymiser::PseudonymOf(std::string_view bytes, std::string_view word)
{
    const std::size_t length = CharactersOf(bytes);
    for (;;)
    {
        const int number = ++m_counts[std::string(word)];
        const std::string digits = std::to_string(number);
        std::string made(word.substr(0, length > digits.size() ? length - digits.size() : 1));
        if (length > made.size() + digits.size())
            made += std::string(length - made.size() - digits.size(), '-');
        made += digits;
        if (length == 1 && number <= 26)
            made = static_cast<char>('a' + number - 1);
        if (made != bytes && m_given.insert(made).second)
            return made;
    }
}

void Anonymiser::LearnName(std::string_view bytes, std::string_view word)
{
    if (bytes.empty() || m_pseudonyms.contains(bytes))
        return;
    const std::string pseudonym = PseudonymOf(bytes, word);
    Replace(bytes, pseudonym);
    Replace(forms::EscapedXml(bytes), pseudonym);
}

void Anonymiser::LearnAddress(const std::array<std::uint8_t, 6>& address)
{
    const std::string raw(address.begin(), address.end());
    const bool nobodys = std::all_of(address.begin(), address.end(), [](std::uint8_t byte) { return byte == 0; }) ||
                         std::all_of(address.begin(), address.end(), [](std::uint8_t byte) { return byte == 0xFF; });
    if (nobodys || m_pseudonyms.contains(raw))
        return;
    const int number = ++m_counts["address"];
    const std::array<std::uint8_t, 6> made = {
        2, 0, 0, 0, static_cast<std::uint8_t>(number >> 8), static_cast<std::uint8_t>(number)};
    Replace(raw, std::string(made.begin(), made.end()));
    for (const forms::Letters letters : {forms::Letters::capital, forms::Letters::lower})
    {
        const std::string text = forms::AddressText(address, letters);
        const std::string replacement = forms::AddressText(made, letters);
        Replace(text, replacement);
        Replace(WithDashes(text), WithDashes(replacement));
    }
}

void Anonymiser::LearnGuid(std::string_view text)
{
    const std::string bare(text.substr(1, text.size() - 2));
    if (m_pseudonyms.contains(bare))
        return;
    char made[40];
    std::snprintf(made, sizeof made, "00000000-0000-0000-0000-%012d", ++m_counts["guid"]);
    Replace(bare, made);
    Replace(Lowered(bare), made);
}

/// A name in another code page is that name too.
void Anonymiser::LearnAlias(ordered_json& line)
{
    std::string source;
    std::string result;
    const bool isConversion = line.contains("in") && line["in"].contains("source") && line["out"].contains("text");
    if (!isConversion || !ReadText(line["in"]["source"], source) || !ReadText(line["out"]["text"], result))
        return;
    if (const auto known = m_pseudonyms.find(source); known != m_pseudonyms.end())
        Replace(result, known->second);
    else if (const auto made = m_pseudonyms.find(result); made != m_pseudonyms.end())
        Replace(source, made->second);
}

/// In one pass, so that what was put in is not taken for a name.
std::string Anonymiser::InSentence(const std::string& text) const
{
    std::string result;
    for (std::size_t at = 0; at < text.size();)
    {
        const auto found =
            std::find_if(m_longestFirst.begin(), m_longestFirst.end(),
                         [&](const auto& entry)
                         {
                             const std::string& name = entry.first;
                             return text.compare(at, name.size(), name) == 0 &&
                                    (name.size() >= kLongEnoughToStandOut || StandsAlone(text, at, name.size()));
                         });
        result += found != m_longestFirst.end() ? found->second : std::string(1, text[at]);
        at += found != m_longestFirst.end() ? found->first.size() : 1;
    }
    return result;
}

/// Profiles have names in `name` elements, and SSIDs in hexadecimal in `hex` elements.
std::string Anonymiser::InProfile(const std::string& xml) const
{
    const auto inName = [this](const std::string& name)
    {
        const auto found = m_pseudonyms.find(name);
        return found != m_pseudonyms.end() ? found->second : name;
    };
    const auto inHex = [&inName](const std::string& hex)
    {
        std::string ssid;
        return ReadHex(hex, ssid) ? forms::HexText(inName(ssid)) : hex;
    };
    return WithContents(WithContents(xml, "name>", inName), "hex>", inHex);
}

std::string Anonymiser::InText(const std::string& text) const
{
    if (const auto whole = m_pseudonyms.find(text); whole != m_pseudonyms.end())
        return whole->second;
    return text.find("name>") != std::string::npos ? InProfile(text) : InSentence(text);
}

void Anonymiser::InValue(ordered_json& value) const
{
    std::string text;
    if (ReadText(value, text))
    {
        const std::string replaced = InText(text);
        if (replaced != text)
            value = RecordedBytes(replaced);
        return;
    }
    // Elements have no names any more, but bytes that might look like one.
    for (const auto& member : value.items())
        if (value.is_structured() && member.key() != "informationElements")
            InValue(member.value());
}

void Anonymiser::Apply(std::vector<ordered_json>& lines)
{
    for (ordered_json& line : lines)
        LearnAlias(line);
    m_longestFirst.assign(m_pseudonyms.begin(), m_pseudonyms.end());
    std::stable_sort(m_longestFirst.begin(), m_longestFirst.end(),
                     [](const auto& left, const auto& right) { return left.first.size() > right.first.size(); });
    for (ordered_json& line : lines)
    {
        if (line.contains("notification"))
            InValue(line["notification"]);
        else if (line.value("call", "") == "OutputDebugStringA")
            line["in"]["text"] = "";
        else if (MayTellNames(line.value("call", "")))
        {
            InValue(line["in"]);
            InValue(line["out"]);
        }
    }
}

std::string ElementsWithoutNames(const std::string& elements)
{
    // By their numbers; 255 is followed by a number of its own, here those of 802.11ax and 802.11be.
    constexpr std::uint8_t numbers[] = {1, 3, 5, 7, 42, 45, 48, 50, 61, 191, 192};
    constexpr std::uint8_t extended[] = {35, 36, 59, 106, 108};
    const auto has = [](const auto& list, char number)
    { return std::find(std::begin(list), std::end(list), static_cast<std::uint8_t>(number)) != std::end(list); };
    std::string kept;
    for (std::size_t at = 0; at + 1 < elements.size();)
    {
        const std::string element = elements.substr(at, 2 + static_cast<std::uint8_t>(elements[at + 1]));
        const bool isExtended = element[0] == '\xff' && element.size() > 2;
        if (isExtended ? has(extended, element[2]) : has(numbers, element[0]))
            kept += element;
        at += element.size();
    }
    return kept;
}

} // namespace calvix::recording
