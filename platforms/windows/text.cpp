#include "windows/text.h"

#include "windows/optional_library.h"

#include <objbase.h>

namespace calvix::windows
{

namespace
{

/// Every Windows has ole32.dll, but it brings a dozen others, and only the listings write a GUID.
struct GuidTextExports
{
    OptionalLibrary library{L"ole32.dll"};
    OptionalExport<decltype(&::StringFromGUID2)> StringFromGUID2{library, "StringFromGUID2"};
};

const GuidTextExports& GuidTextLibrary()
{
    static const GuidTextExports exports;
    return exports;
}

} // namespace

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
    return GuidTextLibrary().StringFromGUID2(guid, text, capacity);
}

} // namespace calvix::windows
