#include "files/text_encoding.h"

#include "files/file_path.h"
#include "forms/utf8.h"

#include <algorithm>
#include <fstream>
#include <iterator>

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

} // namespace

std::string FromUtf16(std::string_view bytes, bool bigEndian)
{
    std::string text;
    char32_t high = 0; // half of a surrogate pair
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
    {
        const char32_t first = static_cast<unsigned char>(bytes[i]);
        const char32_t second = static_cast<unsigned char>(bytes[i + 1]);
        const char32_t unit = bigEndian ? first << 8 | second : second << 8 | first;
        const bool isLow = (unit & 0xFC00) == 0xDC00;
        if (isLow != (high != 0))
            break;
        if ((unit & 0xFC00) == 0xD800)
        {
            high = unit;
            continue;
        }
        forms::AppendUtf8(text, isLow ? 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00) : unit);
        high = 0;
        if (i + 2 == bytes.size())
            return text;
    }
    if (bytes.empty())
        return text;
    throw LineError(LineAt(text, text.size()), "this is not UTF-16: a character is cut in two");
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

bool HasByteOrderMark(std::string_view bytes)
{
    return bytes.starts_with(kUtf8Mark) || bytes.starts_with(kUtf16LittleMark) || bytes.starts_with(kUtf16BigMark);
}

std::string ToUtf8(std::string_view bytes)
{
    for (const std::string_view mark : {kUtf16LittleMark, kUtf16BigMark})
        if (bytes.starts_with(mark))
            return FromUtf16(bytes.substr(mark.size()), mark == kUtf16BigMark);
    if (bytes.starts_with(kUtf8Mark))
        bytes.remove_prefix(kUtf8Mark.size());
    for (std::size_t next = 0; next < bytes.size();)
        if (const std::size_t position = next; !forms::NextCharacter(bytes, next))
            throw LineError(LineAt(bytes, position),
                            "this is not UTF-8: capture it again after the command \"chcp 65001\"");
    return std::string(bytes);
}

} // namespace calvix::host
