#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace calvix
{

/// The text in a fixed array of a platform record: up to its terminator, or the whole array where that is missing.
template <std::size_t Capacity>
std::wstring_view FixedText(const wchar_t (&text)[Capacity])
{
    const wchar_t* const end = std::char_traits<wchar_t>::find(text, Capacity, L'\0');
    return {text, end != nullptr ? static_cast<std::size_t>(end - text) : Capacity};
}

/// A name out of a platform record as the platform's operations take names, which is terminated: a name that fills its
/// array would drag what follows it in the record along. Lives no longer than the record.
template <std::size_t Capacity>
class TerminatedName
{
public:
    explicit TerminatedName(const wchar_t (&name)[Capacity]) : m_text(name)
    {
        if (FixedText(name).size() < Capacity)
            return;
        std::copy(name, name + Capacity, m_copy);
        m_copy[Capacity] = L'\0';
        m_text = m_copy;
    }
    TerminatedName(const TerminatedName&) = delete;
    TerminatedName& operator=(const TerminatedName&) = delete;

    operator const wchar_t*() const { return m_text; }

private:
    const wchar_t* m_text;
    wchar_t m_copy[Capacity + 1]; ///< of a full array only
};

} // namespace calvix
