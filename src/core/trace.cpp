#include "core/trace.h"

#include "core/copies.h"
#include "core/memory.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <vector>

namespace calvix
{

char g_szTraceBuf[kSharedTraceCapacity];
unsigned char g_bTraceOn;

namespace
{

constexpr std::size_t kLargestCapacity = 0x7FFFFFFF;
constexpr std::size_t kLargestWideText = 0x100000;

/// Leaves the text empty where there is room.
template <typename Character>
bool IsBadCapacity(Character* buffer, std::size_t capacity)
{
    if (capacity > kLargestCapacity)
        buffer[0] = 0;
    return capacity == 0 || capacity > kLargestCapacity;
}

/// Formats the whole text. The C runtimes' wide formatters do not cut reliably: where the text does not fit, some report
/// a failure and some the length it has. Nothing, without even a terminator, for a text that cannot be formatted.
std::vector<wchar_t> FormatWhole(const wchar_t* format, std::va_list values)
{
    std::vector<wchar_t> text;
    for (std::size_t room = 512; room <= kLargestWideText; room *= 2)
    {
        text.assign(room, L'\0');
        std::va_list again;
        va_copy(again, values);
        const int length = std::vswprintf(text.data(), room, format, again);
        va_end(again);
        if (length >= 0 && static_cast<std::size_t>(length) < room)
            return text;
    }
    return {};
}

} // namespace

std::uint32_t FormatTraceV(char* buffer, std::size_t capacity, const char* format, std::va_list values)
{
    if (IsBadCapacity(buffer, capacity))
        return kFormatBadCapacity;
    const int length = std::vsnprintf(buffer, capacity, format, values);
    if (length < 0)
    {
        buffer[0] = '\0';
        return kFormatTruncated;
    }
    return static_cast<std::size_t>(length) < capacity ? kFormatComplete : kFormatTruncated;
}

std::uint32_t FormatTrace(char* buffer, std::size_t capacity, const char* format, ...)
{
    std::va_list values;
    va_start(values, format);
    const std::uint32_t result = FormatTraceV(buffer, capacity, format, values);
    va_end(values);
    return result;
}

std::uint32_t FormatTraceW(wchar_t* buffer, std::size_t capacity, const wchar_t* format, ...)
{
    if (IsBadCapacity(buffer, capacity))
        return kFormatBadCapacity;
    std::vector<wchar_t> text;
    std::va_list values;
    va_start(values, format);
    const bool outOfMemory = OutOfMemoryIn([&] { text = FormatWhole(format, values); });
    va_end(values);
    if (outOfMemory || text.empty())
    {
        buffer[0] = L'\0';
        return kFormatTruncated;
    }
    CopyTruncating(buffer, capacity, text.data());
    return std::wcslen(text.data()) < capacity ? kFormatComplete : kFormatTruncated;
}

void WriteToDebugger(const char* text)
{
    platform::debugger().OutputDebugStringA(text);
    platform::debugger().OutputDebugStringA("\n");
}

void Trace::Line(const char* format, ...)
{
    std::va_list values;
    va_start(values, format);
    FormatTraceV(m_buffer, m_capacity, format, values);
    va_end(values);
    EmitTrace(m_buffer);
}

void Trace::Message(std::string_view text)
{
    const std::size_t length = (std::min)(text.size(), m_capacity - 1);
    std::memcpy(m_buffer, text.data(), length);
    m_buffer[length] = '\0';
    EmitTrace(m_buffer);
}

} // namespace calvix
