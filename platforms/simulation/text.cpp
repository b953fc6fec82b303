#include "simulation/facility.h"

#include "forms/guid_text.h"
#include "forms/utf8.h"
#include "platform/records/error_numbers.h"
#include "simulation/narrow_encoding.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace calvix::simulation
{

namespace
{

constexpr std::uint32_t kLatin1 = 1252;
constexpr std::uint32_t kLatin1Oem = 437;
constexpr std::uint32_t kShiftJis = 932;
constexpr UINT kThreadCodePage = 3;

/// The text of a source and a length; a negative length includes the terminator.
template <typename Character>
std::basic_string_view<Character> SourceText(const Character* source, int length)
{
    if (length < 0)
        return {source, std::char_traits<Character>::length(source) + 1};
    return {source, static_cast<std::size_t>(length)};
}

template <typename Source, typename Target>
bool AreArgumentsValid(const Source* source, int sourceLength, const Target* destination, int destinationLength)
{
    return source != nullptr && sourceLength != 0 && destinationLength >= 0 &&
           (destinationLength == 0 || destination != nullptr) &&
           static_cast<const void*>(source) != static_cast<const void*>(destination);
}

/// Whether a byte begins a character of two in one of the code pages that have such.
bool IsLeadByte(std::uint32_t codePage, std::uint8_t byte)
{
    if (codePage == kShiftJis)
        return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
    return (codePage == 936 || codePage == 949 || codePage == 950) && byte >= 0x81 && byte <= 0xFE;
}

/// How many elements of the character at `position` follow its first.
std::size_t FollowingElements(std::uint32_t, std::wstring_view text, std::size_t position)
{
    if constexpr (sizeof(wchar_t) == 2)
        return text[position] >= 0xD800 && text[position] < 0xDC00 ? 1 : 0;
    else
        return 0;
}

std::size_t FollowingElements(std::uint32_t codePage, std::string_view text, std::size_t position)
{
    const auto byte = static_cast<std::uint8_t>(text[position]);
    if (codePage == CP_UTF8)
        return byte < 0xC0 ? 0 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
    return IsLeadByte(codePage, byte) ? 1 : 0;
}

/// The size of the whole characters at the beginning of `text` that take no more than `room`.
template <typename Character>
std::size_t SizeOfWholeCharacters(std::uint32_t codePage, const std::basic_string<Character>& text, std::size_t room)
{
    std::size_t size = 0;
    while (size < text.size())
    {
        const std::size_t next = size + 1 + FollowingElements(codePage, text, size);
        if (next > room)
            break;
        size = next;
    }
    return size;
}

bool IsKnown(std::uint32_t codePage)
{
    return codePage == CP_UTF8 || HasNarrowEncoding(codePage);
}

/// The platform's text conversions, for a computer whose active code page can be chosen.
///
/// Composing and decomposing (MB_COMPOSITE, WC_COMPOSITECHECK and what goes with it) is not furnished: those flags are
/// refused as invalid ones are.
class SimulatedText final : public Facility
{
public:
    using Facility::Facility;

    int MultiByteToWideChar(
        UINT codePage, DWORD flags, const char* source, int sourceLength, wchar_t* destination, int destinationLength)
    {
        if (!AreArgumentsValid(source, sourceLength, destination, destinationLength))
            return Fail(ERROR_INVALID_PARAMETER);
        const std::uint32_t actual = Resolve(codePage);
        if (!IsKnown(actual))
            return Fail(ERROR_INVALID_PARAMETER);
        const DWORD forNarrow = MB_PRECOMPOSED | MB_USEGLYPHCHARS | MB_ERR_INVALID_CHARS;
        if ((flags & ~(actual == CP_UTF8 ? DWORD{MB_ERR_INVALID_CHARS} : forNarrow)) != 0)
            return Fail(ERROR_INVALID_FLAGS);

        const std::string_view bytes = SourceText(source, sourceLength);
        bool illFormed = false;
        const std::wstring text =
            actual == CP_UTF8 ? forms::WideFromUtf8(bytes, &illFormed) : DecodeNarrow(actual, bytes, illFormed);
        if (illFormed && (flags & MB_ERR_INVALID_CHARS) != 0)
            return Fail(ERROR_NO_UNICODE_TRANSLATION);
        return Deliver(actual, text, destination, destinationLength);
    }

    int WideCharToMultiByte(UINT codePage,
                            DWORD flags,
                            const wchar_t* source,
                            int sourceLength,
                            char* destination,
                            int destinationLength,
                            const char* defaultCharacter,
                            BOOL* usedDefaultCharacter)
    {
        if (!AreArgumentsValid(source, sourceLength, destination, destinationLength))
            return Fail(ERROR_INVALID_PARAMETER);
        const std::uint32_t actual = Resolve(codePage);
        const bool utf8 = actual == CP_UTF8;
        // UTF-8 has every character, and arguments about a replacement are invalid.
        if (!IsKnown(actual) || (utf8 && (defaultCharacter != nullptr || usedDefaultCharacter != nullptr)))
            return Fail(ERROR_INVALID_PARAMETER);
        if ((flags & ~static_cast<DWORD>(utf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS)) != 0)
            return Fail(ERROR_INVALID_FLAGS);

        const std::wstring_view text = SourceText(source, sourceLength);
        // An empty default is its terminator: what has no equivalent then ends the text. Callers rely on that.
        const char replacement = defaultCharacter != nullptr ? *defaultCharacter : '?';
        bool replaced = false;
        const std::string bytes =
            utf8 ? forms::Utf8FromWide(text, &replaced)
                 : EncodeNarrow(actual, text, replacement, (flags & WC_NO_BEST_FIT_CHARS) != 0, replaced);
        if (utf8 && replaced && (flags & WC_ERR_INVALID_CHARS) != 0)
            return Fail(ERROR_NO_UNICODE_TRANSLATION);
        if (usedDefaultCharacter != nullptr)
            *usedDefaultCharacter = replaced ? TRUE : FALSE;
        return Deliver(actual, bytes, destination, destinationLength);
    }

    int StringFromGUID2(const GUID& guid, wchar_t* text, int capacity)
    {
        const std::wstring result = forms::WideFromUtf8(forms::GuidText(guid));
        const int needed = static_cast<int>(result.size()) + 1;
        if (text == nullptr || capacity < needed)
            return 0;
        std::copy_n(result.c_str(), needed, text);
        return needed;
    }

private:
    /// The code page of a number: the low numbers are roles of a code page.
    std::uint32_t Resolve(UINT codePage) const
    {
        if (codePage == CP_ACP || codePage == kThreadCodePage)
            return m_machine.present.codePage;
        if (codePage == CP_OEMCP)
            return m_machine.present.codePage == kLatin1 ? kLatin1Oem : m_machine.present.codePage;
        return codePage;
    }

    /// Hands out `text`, or its size to who came without room; ERROR_INSUFFICIENT_BUFFER gets the characters that fit all
    /// the same.
    template <typename Character>
    int Deliver(std::uint32_t codePage, const std::basic_string<Character>& text, Character* destination, int room)
    {
        const int size = static_cast<int>(text.size());
        if (room == 0)
            return size;
        if (size > room)
        {
            std::copy_n(text.data(), SizeOfWholeCharacters(codePage, text, static_cast<std::size_t>(room)),
                        destination);
            return Fail(ERROR_INSUFFICIENT_BUFFER);
        }
        std::copy_n(text.data(), text.size(), destination);
        return size;
    }
};

} // namespace

platform::Text MakeText(Machine& machine, Parts& parts)
{
    auto& text = AddPart<SimulatedText>(machine, parts);
    return {
        .MultiByteToWideChar = CallsTo<&SimulatedText::MultiByteToWideChar>(text),
        .WideCharToMultiByte = CallsTo<&SimulatedText::WideCharToMultiByte>(text),
        .StringFromGUID2 = CallsTo<&SimulatedText::StringFromGUID2>(text),
    };
}

} // namespace calvix::simulation
