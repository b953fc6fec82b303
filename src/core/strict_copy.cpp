#include "core/strict_copy.h"

#include "platform/platform.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace calvix
{

namespace
{

void ReportAndAbort(const char* message)
{
    platform::debugger().OutputDebugStringA(message);
    std::fputs(message, stderr);
    std::fflush(stderr);
    std::abort();
}

StrictCopyHandler g_handler = ReportAndAbort;

} // namespace

void FatalCallerError(const char* where, const char* what)
{
    const std::string message = std::string("calvix: fatal caller error in ") + where + ": " + what + "\n";
    g_handler(message.c_str());
    std::abort();
}

StrictCopyHandler SetStrictCopyHandler(StrictCopyHandler handler)
{
    const StrictCopyHandler previous = g_handler;
    g_handler = handler != nullptr ? handler : ReportAndAbort;
    return previous;
}

void StrictCopy(void* destination, std::size_t capacity, const void* source, std::size_t count, const char* where)
{
    if (count == 0)
        return;
    if (destination == nullptr)
        FatalCallerError(where, "null destination");
    if (source == nullptr)
        FatalCallerError(where, "null source");
    if (count > capacity)
        FatalCallerError(where, "the destination is too small");
    std::memcpy(destination, source, count);
}

void StrictCopyText(char* destination, int capacity, const char* source, const char* where)
{
    if (source == nullptr)
        FatalCallerError(where, "null source");
    const std::size_t room = capacity > 0 ? static_cast<std::size_t>(capacity) : 0;
    StrictCopy(destination, room, source, std::strlen(source) + 1, where);
}

} // namespace calvix
