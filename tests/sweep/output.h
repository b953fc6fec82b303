#pragma once

#include "support/allocation_counter.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace calvix::test::sweep
{

/// What an output says that nobody has written to.
inline constexpr char kUntouched[] = "-";

/// Bytes as an outcome tells them.
inline std::string BytesText(const void* bytes, std::size_t size)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    for (std::size_t index = 0; index < size; ++index)
    {
        const unsigned char byte = static_cast<const unsigned char*>(bytes)[index];
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0xF];
    }
    return text;
}

/// A record for a method to fill, full of a pattern before.
template <typename Record>
class Output
{
    static_assert(std::is_trivially_copyable_v<Record>);

public:
    Output() { std::memset(&value, kPattern, sizeof(value)); }

    std::string Text() const
    {
        std::array<unsigned char, sizeof(Record)> bytes;
        std::memcpy(bytes.data(), &value, sizeof(value));
        const bool isWritten =
            std::any_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte != kPattern; });
        return isWritten ? BytesText(bytes.data(), bytes.size()) : kUntouched;
    }

    Record value;

private:
    static constexpr unsigned char kPattern = 0xA5;
};

template <std::size_t Size>
using TextOutput = Output<std::array<char, Size>>;

/// A container for a method to fill, with one empty entry of its own before, and room for no more.
template <typename Entry>
class OutputList
{
public:
    std::string Text() const
    {
        if (value.size() == 1 && EntryText(value.front()) == EntryText(Entry())) // zero to the last byte
            return kUntouched;
        std::string text = std::to_string(value.size()) + " entries";
        for (const Entry& entry : value)
            text += " " + EntryText(entry);
        return text;
    }

    std::vector<Entry> value = WithOneEntry();

private:
    static std::vector<Entry> WithOneEntry()
    {
        const AllocationPause notTheMethods;
        return std::vector<Entry>(1);
    }

    static std::string EntryText(const Entry& entry)
    {
        if constexpr (std::is_trivially_copyable_v<Entry>)
            return BytesText(&entry, sizeof(entry));
        else
            return BytesText(entry.data(), entry.size() * sizeof(entry[0]));
    }
};

} // namespace calvix::test::sweep
