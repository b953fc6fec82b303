#pragma once

#include <cstddef>

namespace calvix
{

/// Called with what went wrong, and where, when a strict copy cannot be made. It must not return; when it does, the
/// process is aborted.
using StrictCopyHandler = void (*)(const char* message);

/// Puts a handler in the place of the default one, which writes the message to the debugger and to standard error and
/// aborts the process. Null brings the default back. Returns the handler that was in place.
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
