#include "windows/text.h"

#include <objbase.h>

namespace calvix::windows
{

int Text::MultiByteToWideChar(
    UINT codePage, DWORD flags, const char* source, int sourceLength, wchar_t* destination, int destinationLength)
{
    return ::MultiByteToWideChar(codePage, flags, source, sourceLength, destination, destinationLength);
}

int Text::WideCharToMultiByte(UINT codePage,
                              DWORD flags,
                              const wchar_t* source,
                              int sourceLength,
                              char* destination,
                              int destinationLength,
                              const char* defaultCharacter,
                              BOOL* usedDefaultCharacter)
{
    return ::WideCharToMultiByte(codePage, flags, source, sourceLength, destination, destinationLength,
                                 defaultCharacter, usedDefaultCharacter);
}

int Text::StringFromGUID2(const GUID& guid, wchar_t* text, int capacity)
{
    return ::StringFromGUID2(guid, text, capacity);
}

} // namespace calvix::windows
