// The converter off Windows: the C library's.
#ifndef _WIN32

#include "simulation/narrow_encoding.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <iconv.h>
#include <map>
#include <memory>

namespace calvix::simulation
{

namespace
{

constexpr std::uint32_t kJapanese = 932;

struct CloseConverter
{
    void operator()(void* converter) const { iconv_close(converter); }
};
using Converter = std::unique_ptr<void, CloseConverter>;

Converter OpenConverter(const char* to, const char* from)
{
    const iconv_t converter = iconv_open(to, from);
    return Converter(reinterpret_cast<std::intptr_t>(converter) == -1 ? nullptr : converter);
}

struct Converters
{
    Converter decoder;
    Converter encoder;
};

/// Opening a converter loads its tables, so each thread keeps those it has used.
const Converters& ConvertersOf(std::uint32_t codePage)
{
    thread_local std::map<std::uint32_t, Converters> open;
    const auto found = open.find(codePage);
    if (found != open.end())
        return found->second;
    const std::string name = "CP" + std::to_string(codePage);
    Converters converters{OpenConverter("WCHAR_T", name.c_str()), OpenConverter(name.c_str(), "WCHAR_T")};
    return open.emplace(codePage, std::move(converters)).first->second;
}

/// Converts what it can of `source` and returns how many elements of it were used; less than all of them means that the
/// next one has no equivalent.
template <typename Target, typename Source>
std::size_t ConvertStretch(iconv_t converter, std::basic_string_view<Source> source, std::basic_string<Target>& result)
{
    // The C library's own declaration has no const; it does not write there.
    char* from = reinterpret_cast<char*>(const_cast<Source*>(source.data()));
    std::size_t left = source.size() * sizeof(Source);
    while (left > 0)
    {
        std::array<Target, 128> room;
        char* to = reinterpret_cast<char*>(room.data());
        std::size_t space = sizeof(room);
        const std::size_t outcome = iconv(converter, &from, &left, &to, &space);
        result.append(room.data(), (sizeof(room) - space) / sizeof(Target));
        if (outcome == static_cast<std::size_t>(-1) && errno != E2BIG)
            break;
    }
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    return source.size() - left / sizeof(Source);
}

bool IsSingleByte(std::uint32_t codePage)
{
    return codePage != kJapanese && codePage != 936 && codePage != 949 && codePage != 950;
}

/// What the platform makes of a byte that the C library's table leaves out: in the single-byte code pages the control
/// character of the same number, which is in the platform's tables.
bool IsControlInPlatformTable(std::uint32_t codePage, std::uint32_t value)
{
    return IsSingleByte(codePage) && value >= 0x80 && value <= 0x9F;
}

} // namespace

bool HasNarrowEncoding(std::uint32_t codePage)
{
    const Converters& converters = ConvertersOf(codePage);
    return converters.decoder != nullptr && converters.encoder != nullptr;
}

std::wstring DecodeNarrow(std::uint32_t codePage, std::string_view bytes, bool& illFormed)
{
    const iconv_t decoder = ConvertersOf(codePage).decoder.get();
    std::wstring result;
    illFormed = false;
    for (;;)
    {
        bytes.remove_prefix(ConvertStretch(decoder, bytes, result));
        if (bytes.empty())
            return result;
        const auto byte = static_cast<std::uint8_t>(bytes.front());
        bytes.remove_prefix(1);
        const bool control = IsControlInPlatformTable(codePage, byte);
        illFormed |= !control;
        // The platform's replacement is the middle dot in the Japanese code page and the question mark in the others.
        result += control ? static_cast<wchar_t>(byte) : codePage == kJapanese ? L'\u30FB' : L'?';
    }
}

std::string EncodeNarrow(std::uint32_t codePage,
                         std::wstring_view text,
                         char replacement,
                         bool /*the C library never puts a similar character*/,
                         bool& replaced)
{
    const iconv_t encoder = ConvertersOf(codePage).encoder.get();
    std::string result;
    replaced = false;
    for (;;)
    {
        text.remove_prefix(ConvertStretch(encoder, text, result));
        if (text.empty())
            return result;
        const std::uint32_t character = static_cast<char32_t>(text.front());
        text.remove_prefix(1);
        if (IsControlInPlatformTable(codePage, character))
        {
            result += static_cast<char>(character);
            continue;
        }
        replaced = true;
        // Beyond the basic plane a character is two units of the platform's wide text, and each is replaced.
        result.append(character > 0xFFFF ? 2 : 1, replacement);
    }
}

} // namespace calvix::simulation

#endif
