#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace calvix::fuzz
{

/// The bytes of an input, taken from the front as decisions and texts. Behind the end everything is zero or empty, so
/// that a cut input is one, too.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

    bool IsEmpty() const { return m_rest.empty(); }

    std::uint8_t Byte()
    {
        if (m_rest.empty())
            return 0;
        const auto byte = static_cast<std::uint8_t>(m_rest.front());
        m_rest.remove_prefix(1);
        return byte;
    }

    std::uint32_t Number()
    {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i)
            number = number << 8 | Byte();
        return number;
    }

    /// 0 to `limit` - 1.
    std::size_t Below(std::size_t limit) { return Byte() % limit; }

    /// Once in `count` bytes; never at the end of the input.
    bool OneIn(unsigned count) { return Byte() % count == count - 1; }

    /// A length byte, at most `longest`, and as many bytes.
    std::string_view Bytes(std::size_t longest) { return Take((std::min)(std::size_t{Byte()}, longest)); }

    std::string_view Rest() { return Take(m_rest.size()); }

    /// Up to the separator, which is dropped.
    std::string_view Until(std::string_view separator)
    {
        const std::size_t end = m_rest.find(separator);
        const std::string_view part = Take(end);
        if (end != std::string_view::npos)
            m_rest.remove_prefix(separator.size());
        return part;
    }

    template <std::size_t Count, typename Value>
    const Value& OneOf(const Value (&values)[Count])
    {
        return values[Below(Count)];
    }

private:
    std::string_view Take(std::size_t count)
    {
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    std::string_view m_rest;
};

} // namespace calvix::fuzz
