// The converter on Windows: the system's.
#ifdef _WIN32

#include "simulation/narrow_encoding.h"

#include <windows.h>

namespace calvix::simulation
{

bool HasNarrowEncoding(std::uint32_t codePage)
{
    return IsValidCodePage(codePage) != FALSE;
}

std::wstring DecodeNarrow(std::uint32_t codePage, std::string_view bytes, bool& illFormed)
{
    const int length = static_cast<int>(bytes.size());
    illFormed = MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, bytes.data(), length, nullptr, 0) == 0;
    const int needed = MultiByteToWideChar(codePage, 0, bytes.data(), length, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(codePage, 0, bytes.data(), length, result.data(), needed);
    return result;
}

std::string
EncodeNarrow(std::uint32_t codePage, std::wstring_view text, char replacement, bool exactOnly, bool& replaced)
{
    const DWORD flags = exactOnly ? WC_NO_BEST_FIT_CHARS : 0;
    const char defaultCharacter[] = {replacement, '\0'};
    const int length = static_cast<int>(text.size());
    BOOL used = FALSE;
    const int needed = WideCharToMultiByte(codePage, flags, text.data(), length, nullptr, 0, defaultCharacter, &used);
    std::string result(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(codePage, flags, text.data(), length, result.data(), needed, defaultCharacter, &used);
    replaced = used != FALSE;
    return result;
}

} // namespace calvix::simulation

#endif
