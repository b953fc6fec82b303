#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace calvix::host
{

using ElementBytes = std::span<const std::uint8_t>;

/// The information elements of a beacon, each by its number; the extended ones by 0x100 and their own number.
class BeaconElements
{
public:
    explicit BeaconElements(ElementBytes bytes);

    /// The content of the first element of this number; none where it is missing or shorter than `least`.
    std::optional<ElementBytes> Find(unsigned number, std::size_t least = 0) const;
    /// The content, after the four bytes that identify it, of the first vendor element that begins with them.
    std::optional<ElementBytes> FindVendor(std::uint32_t identification) const;

private:
    struct Element
    {
        unsigned number;
        ElementBytes content;
    };
    std::vector<Element> m_elements;
};

namespace element
{
inline constexpr unsigned ht_capabilities = 45;
inline constexpr unsigned rsn = 48;
inline constexpr unsigned ht_operation = 61;
inline constexpr unsigned vht_capabilities = 191;
inline constexpr unsigned vht_operation = 192;
inline constexpr unsigned vendor = 221;
inline constexpr unsigned he_capabilities = 0x100 + 35;
inline constexpr unsigned he_operation = 0x100 + 36;
inline constexpr unsigned eht_operation = 0x100 + 106;
inline constexpr unsigned eht_capabilities = 0x100 + 108;
} // namespace element

/// How the elements say that the network is secured, "WPA2-PSK/CCMP"; empty where they say nothing.
std::string SecurityOf(const BeaconElements& elements);

} // namespace calvix::host
