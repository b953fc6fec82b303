#include "forms/guid_text.h"

#include "forms/hex_text.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

namespace calvix::forms
{

namespace
{

constexpr std::string_view shape = "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}";

/// From digits of which there are enough.
std::uint32_t HexNumber(std::string_view text)
{
    std::uint32_t number = 0;
    for (const char character : text)
        number = number * 16 + HexDigit(character).value_or(0);
    return number;
}

bool HasShape(std::string_view text)
{
    return std::equal(text.begin(), text.end(), shape.begin(), shape.end(),
                      [](char character, char expected)
                      { return expected == 'X' ? HexDigit(character).has_value() : character == expected; });
}

} // namespace

std::optional<GUID> GuidFromText(std::string_view text)
{
    if (!HasShape(text))
        return std::nullopt;
    const auto number = [text](std::size_t at, std::size_t digits) { return HexNumber(text.substr(at, digits)); };
    GUID guid{};
    guid.Data1 = number(1, 8);
    guid.Data2 = static_cast<std::uint16_t>(number(10, 4));
    guid.Data3 = static_cast<std::uint16_t>(number(15, 4));
    constexpr std::size_t byteAt[] = {20, 22, 25, 27, 29, 31, 33, 35};
    for (std::size_t index = 0; index < 8; ++index)
        guid.Data4[index] = static_cast<std::uint8_t>(number(byteAt[index], 2));
    return guid;
}

std::string GuidText(const GUID& guid)
{
    char text[shape.size() + 1];
    std::snprintf(text, sizeof(text), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                  static_cast<unsigned>(guid.Data1), guid.Data2, guid.Data3, guid.Data4[0], guid.Data4[1],
                  guid.Data4[2], guid.Data4[3], guid.Data4[4], guid.Data4[5], guid.Data4[6], guid.Data4[7]);
    return text;
}

} // namespace calvix::forms
