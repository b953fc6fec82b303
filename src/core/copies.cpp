#include "core/copies.h"

#include "core/trace.h"
#include "platform/platform.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

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
    char message[256];
    FormatTrace(message, sizeof(message), "calvix: fatal caller error in %s: %s\n", where, what);
    g_handler(message);
    std::abort();
}

StrictCopyHandler SetStrictCopyHandler(StrictCopyHandler handler)
{
    const StrictCopyHandler previous = g_handler;
    g_handler = handler != nullptr ? handler : ReportAndAbort;
    return previous;
}

void RequireRoom(const void* destination, std::size_t capacity, std::size_t count, const char* where)
{
    if (destination == nullptr)
        FatalCallerError(where, "null destination");
    if (count > capacity)
        FatalCallerError(where, "the destination is too small");
}

void StrictCopy(void* destination, std::size_t capacity, const void* source, std::size_t count, const char* where)
{
    if (count == 0)
        return;
    RequireRoom(destination, capacity, count, where);
    if (source == nullptr)
        FatalCallerError(where, "null source");
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
