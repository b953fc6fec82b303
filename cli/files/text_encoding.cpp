#include "files/text_encoding.h"

#include "files/file_path.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <vector>

namespace calvix::host
{

namespace
{

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";

std::size_t LineAt(std::string_view text, std::size_t position)
{
    const std::string_view before = text.substr(0, position);
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

void AppendUtf8(std::string& text, std::uint32_t point)
{
    const auto put = [&text](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (point < 0x80)
    {
        put(point);
        return;
    }
    if (point < 0x800)
    {
        put(0xC0 | point >> 6);
    }
    else
    {
        if (point < 0x10000)
        {
            put(0xE0 | point >> 12);
        }
        else
        {
            put(0xF0 | point >> 18);
            put(0x80 | (point >> 12 & 0x3F));
        }
        put(0x80 | (point >> 6 & 0x3F));
    }
    put(0x80 | (point & 0x3F));
}

std::vector<std::uint16_t> Units(std::string_view bytes, bool bigEndian)
{
    std::vector<std::uint16_t> units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
    {
        const unsigned first = static_cast<unsigned char>(bytes[i]);
        const unsigned second = static_cast<unsigned char>(bytes[i + 1]);
        units.push_back(static_cast<std::uint16_t>(bigEndian ? first << 8 | second : second << 8 | first));
    }
    return units;
}

bool IsHighSurrogate(unsigned unit)
{
    return (unit & 0xFC00) == 0xD800;
}

bool IsLowSurrogate(unsigned unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

unsigned ByteAt(std::string_view text, std::size_t position)
{
    return position < text.size() ? static_cast<unsigned char>(text[position]) : 0;
}

bool IsFollower(unsigned byte)
{
    return (byte & 0xC0) == 0x80;
}

bool StartsBadly(unsigned lead, unsigned second)
{
    const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
    const bool surrogate = lead == 0xED && second > 0x9F;
    const bool tooLarge = lead == 0xF4 && second > 0x8F;
    return overlong || surrogate || tooLarge;
}

std::size_t LengthFromLead(unsigned lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return 2;
    if (lead >= 0xE0 && lead <= 0xEF)
        return 3;
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

/// Length of the well-formed character at a position, 0 when there is none.
std::size_t CharacterLength(std::string_view text, std::size_t position)
{
    const unsigned lead = ByteAt(text, position);
    const std::size_t length = LengthFromLead(lead);
    for (std::size_t i = 1; i < length; ++i)
        if (!IsFollower(ByteAt(text, position + i)))
            return 0;
    return length > 1 && StartsBadly(lead, ByteAt(text, position + 1)) ? 0 : length;
}

std::string CheckedUtf8(std::string_view text)
{
    for (std::size_t position = 0; position < text.size();)
    {
        const std::size_t length = CharacterLength(text, position);
        if (length == 0)
            throw LineError(LineAt(text, position),
                            "this is not UTF-8 (capture it again after the command \"chcp 65001\")");
        position += length;
    }
    return std::string(text);
}

} // namespace

std::string FromUtf16(std::string_view bytes, bool bigEndian)
{
    const std::vector<std::uint16_t> units = Units(bytes, bigEndian);
    std::string text;
    for (std::size_t i = 0; i < units.size(); ++i)
    {
        std::uint32_t point = units[i];
        if (IsHighSurrogate(units[i]) && i + 1 < units.size() && IsLowSurrogate(units[i + 1]))
        {
            ++i;
            point = 0x10000 + ((point - 0xD800) << 10) + (units[i] - 0xDC00u);
        }
        else if (IsHighSurrogate(units[i]) || IsLowSurrogate(units[i]))
        {
            throw LineError(LineAt(text, text.size()), "this is not UTF-16: half of a surrogate pair");
        }
        AppendUtf8(text, point);
    }
    if (bytes.size() % 2 != 0)
        throw LineError(LineAt(text, text.size()), "this is not UTF-16: the last character is cut in two");
    return text;
}

std::string ToUtf8(std::string_view bytes)
{
    if (bytes.starts_with(kUtf16LittleMark))
        return FromUtf16(bytes.substr(kUtf16LittleMark.size()), false);
    if (bytes.starts_with(kUtf16BigMark))
        return FromUtf16(bytes.substr(kUtf16BigMark.size()), true);
    if (bytes.starts_with(kUtf8Mark))
        bytes.remove_prefix(kUtf8Mark.size());
    return CheckedUtf8(bytes);
}

std::string ReadWholeFile(const std::string& path)
{
    const std::filesystem::path location = PathOf(path);
    std::ifstream file(location, std::ios::binary);
    std::error_code ignored;
    if (!file || std::filesystem::is_directory(location, ignored))
        throw CaptureError(path + ": cannot be read");
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

} // namespace calvix::host
