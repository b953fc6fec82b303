#pragma once

#include <cstddef>
#include <string_view>

namespace calvix
{

/// Writes wide text as narrow text of the current C locale, with '?' for each character that it lacks; cut where the room
/// ends, and terminated unless there is none. The length of the whole text.
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

} // namespace calvix
