#pragma once

#include "core/trace.h"

#include <cstddef>
#include <string_view>

namespace calvix
{

/// Writes wide text as narrow text of the current C locale, with '?' for each character that it lacks. Cuts and
/// terminates the text at the capacity, if that is not 0. Returns the length of the whole text.
std::size_t NarrowInLocale(std::wstring_view wide, char* narrow, std::size_t capacity);

/// The same for a trace line, with room for more than a line holds.
class NarrowText
{
public:
    // cppcheck-suppress uninitMemberVar
    explicit NarrowText(std::wstring_view wide) { NarrowInLocale(wide, m_text, sizeof(m_text)); }

    const char* c_str() const { return m_text; }

private:
    char m_text[512];
};

/// Room for a profile name with its terminator, as in the records of the WLAN service.
inline constexpr int kProfileNameCapacity = 256;

/// Converts a profile name from the active code page into `wide`. 0, or the platform's error number after tracing it:
/// an invalid character, or a name that does not fit.
ErrorNumber WidenProfileName(const char* name, wchar_t (&wide)[kProfileNameCapacity], Trace& trace);

inline constexpr int kSsidTextCapacity = 128;

/// An SSID as text that can be compared with profile names, since profiles are named after their network; empty for a
/// record that states more than `longestStated` bytes. False, with the reason in the platform's last error, when it
/// cannot be converted. Deliberate: the flags are those for narrow code pages, which the platform refuses for UTF-8;
/// there no SSID converts, and hosts know the automatic methods so.
bool SsidAsProfileName(const DOT11_SSID& ssid, unsigned long longestStated, wchar_t (&text)[kSsidTextCapacity]);

} // namespace calvix
