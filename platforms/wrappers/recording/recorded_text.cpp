#include "wrappers/recording/recorded_text.h"

#include "forms/utf8.h"
#include "wrappers/recording/damage.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <sstream>

namespace calvix::recording
{

namespace
{

using nlohmann::ordered_json;

constexpr std::uint32_t kBeyondUnicode = 0x110000;

int DigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    return digit >= 'a' && digit <= 'f' ? digit - 'a' + 10 : -1;
}

std::string UnitsText(std::wstring_view text)
{
    std::ostringstream units;
    units << std::hex << std::uppercase;
    for (const wchar_t unit : text)
        units << (units.tellp() > 0 ? " " : "") << static_cast<std::uint32_t>(unit);
    return units.str();
}

/// Windows has two units where a wide unit of other systems lies beyond U+FFFF.
void AppendUnit(std::wstring& text, std::uint32_t unit)
{
    if (sizeof(wchar_t) == 2 && unit > 0xFFFF && unit < kBeyondUnicode)
    {
        text += static_cast<wchar_t>(0xD800 + ((unit - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((unit - 0x10000) & 0x3FF));
        return;
    }
    text += static_cast<wchar_t>(unit);
}

std::wstring WideFromUnits(const std::string& units, const char* name)
{
    std::istringstream stream(units);
    std::wstring text;
    for (std::uint32_t unit = 0; stream >> std::hex >> unit;)
        AppendUnit(text, unit);
    if (!stream.eof())
        throw Damage(name, "is not a text");
    return text;
}

/// The string in the only member of an object, if it is of this name.
const std::string* OnlyMember(const ordered_json& value, const char* member)
{
    if (!value.is_object() || value.size() != 1 || !value.contains(member) || !value[member].is_string())
        return nullptr;
    return value[member].get_ptr<const std::string*>();
}

} // namespace

std::string HexText(std::string_view bytes)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const char byte : bytes)
    {
        text += digits[static_cast<std::uint8_t>(byte) >> 4];
        text += digits[static_cast<std::uint8_t>(byte) & 0xF];
    }
    return text;
}

bool ReadHex(std::string_view text, std::string& bytes)
{
    bytes.clear();
    if (text.size() % 2 != 0)
        return false;
    for (std::size_t i = 0; i < text.size(); i += 2)
    {
        const int high = DigitValue(text[i]);
        const int low = DigitValue(text[i + 1]);
        if (high < 0 || low < 0)
            return false;
        bytes += static_cast<char>(high * 16 + low);
    }
    return true;
}

ordered_json RecordedBytes(std::string_view bytes)
{
    if (forms::IsUtf8(bytes))
        return std::string(bytes);
    return {{"bytes", HexText(bytes)}};
}

ordered_json RecordedWide(std::wstring_view text)
{
    bool illFormed = false;
    std::string utf8 = forms::Utf8FromWide(text, &illFormed);
    if (!illFormed)
        return utf8;
    return {{"units", UnitsText(text)}};
}

std::string BytesFrom(const ordered_json& value, const char* name)
{
    if (value.is_string())
        return value.get<std::string>();
    std::string bytes;
    const std::string* const hex = OnlyMember(value, "bytes");
    if (hex == nullptr || !ReadHex(*hex, bytes))
        throw Damage(name, "is not a text");
    return bytes;
}

std::wstring WideFrom(const ordered_json& value, const char* name)
{
    if (value.is_string())
        return forms::WideFromUtf8(value.get<std::string>());
    if (const std::string* const units = OnlyMember(value, "units"))
        return WideFromUnits(*units, name);
    throw Damage(name, "is not a text");
}

} // namespace calvix::recording
