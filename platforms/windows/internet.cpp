#include "windows/internet.h"

#include "windows/optional_library.h"

namespace calvix::windows
{

namespace
{

/// What wininet.dll exports. It is large and brings others with it, and only the reachability probe needs it.
struct InternetExports
{
    OptionalLibrary library{L"wininet.dll"};
    OptionalExport<decltype(&::InternetSetOptionA)> InternetSetOptionA{library, "InternetSetOptionA"};
    OptionalExport<decltype(&::InternetCheckConnectionA)> InternetCheckConnectionA{library, "InternetCheckConnectionA"};
};

const InternetExports& InternetLibrary()
{
    static const InternetExports exports;
    return exports;
}

} // namespace

BOOL Internet::InternetSetOptionA(HINTERNET internet, DWORD option, PVOID buffer, DWORD bufferSize)
{
    return InternetLibrary().InternetSetOptionA(internet, option, buffer, bufferSize);
}

BOOL Internet::InternetCheckConnectionA(const char* url, DWORD flags, DWORD reserved)
{
    return InternetLibrary().InternetCheckConnectionA(url, flags, reserved);
}

} // namespace calvix::windows
