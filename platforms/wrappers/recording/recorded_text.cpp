#include "wrappers/recording/recorded_text.h"

#include "forms/hex_text.h"
#include "forms/utf8.h"
#include "wrappers/recording/damage.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <sstream>

namespace calvix::recording
{

namespace
{

using nlohmann::ordered_json;

std::string UnitsText(std::wstring_view text)
{
    std::ostringstream units;
    units << std::hex << std::uppercase;
    for (const wchar_t unit : text)
        units << (units.tellp() > 0 ? " " : "") << static_cast<std::uint32_t>(unit);
    return units.str();
}

std::wstring WideFromUnits(const std::string& units, const char* name)
{
    std::istringstream stream(units);
    std::wstring text;
    for (std::uint32_t unit = 0; stream >> std::hex >> unit;)
        forms::AppendWide(text, unit);
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

std::string Lowered(std::string_view text)
{
    std::string lowered(text);
    std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                   [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
    return lowered;
}

bool ReadHex(std::string_view text, std::string& bytes)
{
    const auto read = forms::BytesFromHex(text);
    if (read)
        bytes.assign(read->begin(), read->end());
    return read.has_value();
}

ordered_json RecordedBytes(std::string_view bytes)
{
    if (forms::IsUtf8(bytes))
        return std::string(bytes);
    return {{"bytes", forms::HexText(bytes)}};
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
