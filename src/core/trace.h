#pragma once

#include "platform/platform.h"

#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <string_view>

#if defined(__MINGW32__)
#define CALVIX_PRINTF(formatIndex, valuesIndex) __attribute__((format(__MINGW_PRINTF_FORMAT, formatIndex, valuesIndex)))
#elif defined(__GNUC__)
#define CALVIX_PRINTF(formatIndex, valuesIndex) __attribute__((format(printf, formatIndex, valuesIndex)))
#else
#define CALVIX_PRINTF(formatIndex, valuesIndex)
#endif

namespace calvix
{

/// A platform error number: 32 bits in both worlds, unlike DWORD.
using ErrorNumber = std::uint32_t;

/// Result of the trace formatters, in the platform's HRESULT numbers.
inline constexpr std::uint32_t kFormatComplete = 0;
inline constexpr std::uint32_t kFormatTruncated = 0x8007007A;
inline constexpr std::uint32_t kFormatBadCapacity = 0x80070057;

/// Formats into `capacity` characters, cutting what does not fit; always terminated when there is room for that. A
/// capacity of 0 or above 0x7FFFFFFF is refused, the text then being empty where there is room.
std::uint32_t FormatTrace(char* buffer, std::size_t capacity, const char* format, ...) CALVIX_PRINTF(3, 4);
std::uint32_t FormatTraceV(char* buffer, std::size_t capacity, const char* format, std::va_list values);

/// The same for wide text.
std::uint32_t FormatTraceW(wchar_t* buffer, std::size_t capacity, const wchar_t* format, ...);

inline constexpr std::size_t kSharedTraceCapacity = 256;

/// The trace line that most methods format into; shared by the whole process.
extern char g_szTraceBuf[kSharedTraceCapacity];

/// Whether trace lines reach the debugger. Nothing in the library sets it: it is a switch for a debugger or a host.
extern unsigned char g_bTraceOn;

/// Writes a text and a line break to the debugger.
void WriteToDebugger(const char* text);

/// The same when tracing is on.
inline void EmitTrace(const char* text)
{
    if (g_bTraceOn != 0)
        WriteToDebugger(text);
}

/// Where a method's trace lines are formatted. The line is formatted whether or not tracing is on.
class Trace
{
public:
    Trace(char* buffer, std::size_t capacity) : m_buffer(buffer), m_capacity(capacity) {}
    Trace(const Trace&) = delete;
    Trace& operator=(const Trace&) = delete;

    /// Formats a line and emits it.
    void Line(const char* format, ...) CALVIX_PRINTF(2, 3);

    /// Copies a fixed text as the line and emits it.
    void Message(std::string_view text);

    /// Whether `error` is one; then formats it as the line (the format has one %u) and emits it.
    bool Failed(DWORD error, const char* format)
    {
        if (error == 0)
            return false;
        Line(format, static_cast<unsigned>(error));
        return true;
    }

private:
    char* m_buffer;
    std::size_t m_capacity;
};

/// Traces through the buffer that the process shares.
class SharedTrace : public Trace
{
public:
    SharedTrace() : Trace(g_szTraceBuf, kSharedTraceCapacity) {}
};

/// Traces through a buffer of the method's own.
template <std::size_t Capacity>
class LocalTrace : public Trace
{
public:
    // cppcheck-suppress uninitMemberVar
    LocalTrace() : Trace(m_text, Capacity) {}

private:
    char m_text[Capacity]; // not cleared: every line is written whole, and most calls write none
};

} // namespace calvix
