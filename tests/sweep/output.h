#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace calvix::test::sweep
{

/// A record for a method to fill, full of a pattern before.
template <typename Record>
class Output
{
    static_assert(std::is_trivially_copyable_v<Record>);

public:
    Output() { std::memset(&value, kPattern, sizeof(value)); }

    bool Written() const
    {
        std::array<unsigned char, sizeof(Record)> bytes;
        std::memcpy(bytes.data(), &value, sizeof(value));
        return std::any_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte != kPattern; });
    }

    Record value;

private:
    static constexpr unsigned char kPattern = 0xA5;
};

template <std::size_t Size>
using TextOutput = Output<std::array<char, Size>>;

/// A container for a method to fill, with one entry of its own before.
template <typename Entry>
class OutputList
{
public:
    bool Written() const { return value.size() != 1; }

    std::vector<Entry> value = std::vector<Entry>(1);
};

} // namespace calvix::test::sweep
