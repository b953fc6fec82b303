#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace calvix
{

/// Copies terminated text into `capacity` characters, cutting what does not fit; always terminated. Without room
/// (capacity 0, or no destination) nothing is written.
template <typename Character>
void CopyTruncating(Character* destination, std::size_t capacity, const Character* source)
{
    if (destination == nullptr || capacity == 0)
        return;
    using Traits = std::char_traits<Character>;
    const Character* const end = Traits::find(source, capacity - 1, Character{});
    const std::size_t length = end != nullptr ? static_cast<std::size_t>(end - source) : capacity - 1;
    Traits::copy(destination, source, length);
    destination[length] = 0;
}

/// The same for text of a known length.
template <std::size_t Capacity>
void CopyTruncating(char (&destination)[Capacity], std::string_view source)
{
    const std::size_t length = source.size() < Capacity ? source.size() : Capacity - 1;
    source.copy(destination, length);
    destination[length] = '\0';
}

/// The same for a capacity that a caller passed in as a signed number: a negative one gives the empty text.
template <typename Character>
void CopyTruncatingToCaller(Character* destination, int capacity, const Character* source)
{
    const Character nothing[1] = {0};
    if (capacity < 0)
        CopyTruncating(destination, 1, nothing);
    else
        CopyTruncating(destination, static_cast<std::size_t>(capacity), source);
}

/// Called when a strict copy fails, with the reason and the place. It must not return; if it does, the process aborts.
using StrictCopyHandler = void (*)(const char* message);

/// Replaces the default handler, which writes the message to the debugger and to standard error and aborts the process.
/// Null restores the default. Returns the previous handler.
StrictCopyHandler SetStrictCopyHandler(StrictCopyHandler handler);

/// Ends the process through the handler: the caller of the method `where` broke its contract.
[[noreturn]] void FatalCallerError(const char* where, const char* what);

/// Too small a destination for `count` bytes, or none, is a fatal caller error of the method `where`.
void RequireRoom(const void* destination, std::size_t capacity, std::size_t count, const char* where);

/// Copies `count` bytes, never fewer: too small a destination, or a null pointer where there is something to copy, is
/// a fatal caller error of the method `where`. The C runtimes differ in what their own checked copies do then (some
/// return quietly), hence this one.
void StrictCopy(void* destination, std::size_t capacity, const void* source, std::size_t count, const char* where);

/// The same for terminated text, terminator included; `capacity` is as the caller passed it in.
void StrictCopyText(char* destination, int capacity, const char* source, const char* where);

} // namespace calvix
