#include "core/profile_network_match.h"

#include "core/fixed_text.h"
#include "platform/records/error_numbers.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>

namespace calvix
{

namespace
{

constexpr std::uint64_t kFactors[] = {0x9E3779B97F4A7C15, 0xC2B2AE3D27D4EB4F, 0x165667B19E3779F9};

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t first, std::uint64_t second)
{
    return (std::rotl(hash, 23) ^ (first * kFactors[0] + second * kFactors[1])) * kFactors[2];
}

/// Names are many bytes long and mostly differ in the last of them only: all are taken, sixteen at a time.
std::uint32_t HashOf(std::wstring_view name)
{
    const char* bytes = reinterpret_cast<const char*>(name.data());
    std::size_t size = name.size() * sizeof(wchar_t);
    std::uint64_t hash = size;
    std::uint64_t words[2] = {};
    for (; size >= sizeof(words); size -= sizeof(words), bytes += sizeof(words))
    {
        std::memcpy(words, bytes, sizeof(words));
        hash = Mixed(hash, words[0], words[1]);
    }
    words[0] = 0;
    words[1] = 0;
    if (size != 0)
        std::memcpy(words, bytes, size);
    return static_cast<std::uint32_t>(Mixed(hash, words[0], words[1]) >> 32);
}

} // namespace

ErrorNumber NetworksByProfile::Take(const WLAN_AVAILABLE_NETWORK_LIST& networks)
{
    m_items = Items(networks);
    m_indexed = m_usualIndexed;
    const std::size_t slots = (std::max)(std::size_t{2}, std::bit_ceil(2 * m_items.size()));
    m_slots = {m_usualSlots, slots};
    if (m_items.size() > kUsualCount)
    {
        m_manyIndexed.reset(new (std::nothrow) Indexed[m_items.size()]);
        m_manySlots.reset(new (std::nothrow) std::uint32_t[slots]);
        if (m_manyIndexed == nullptr || m_manySlots == nullptr)
            return ERROR_NOT_ENOUGH_MEMORY;
        m_indexed = m_manyIndexed.get();
        m_slots = {m_manySlots.get(), slots};
    }
    std::fill(m_slots.begin(), m_slots.end(), kNone);
    return 0;
}

NetworksByProfile::Matches NetworksByProfile::Of(const WLAN_PROFILE_INFO& profile)
{
    return {{*this, First(FixedText(profile.strProfileName))}, {*this, kNone}};
}

std::uint32_t NetworksByProfile::First(std::wstring_view name)
{
    const std::uint32_t hash = HashOf(name);
    const std::uint32_t known = SlotOf(name, hash);
    if (known != kNone)
        return known;
    while (m_count < m_items.size())
    {
        const std::uint32_t place = IndexOne();
        if (IsNamed(place, name, hash))
            return place;
    }
    return kNone;
}

std::uint32_t NetworksByProfile::Next(std::uint32_t place)
{
    if (m_indexed[place].next != kNone)
        return m_indexed[place].next;
    const std::uint32_t first = m_indexed[place].first;
    while (m_count < m_items.size())
    {
        const std::uint32_t other = IndexOne();
        if (m_indexed[other].first == first)
            return other;
    }
    return kNone;
}

/// Indexes the next network. Its place.
std::uint32_t NetworksByProfile::IndexOne()
{
    const auto place = static_cast<std::uint32_t>(m_count++);
    const std::wstring_view name = FixedText(m_items[place].strProfileName);
    const std::uint32_t hash = HashOf(name);
    const auto length = static_cast<std::uint32_t>(name.size());
    std::uint32_t& first = SlotOf(name, hash);
    if (first == kNone)
    {
        first = place;
        m_indexed[place] = {hash, length, place, kNone, place};
        return place;
    }
    m_indexed[place] = {hash, length, first, kNone, place};
    m_indexed[m_indexed[first].last].next = place;
    m_indexed[first].last = place;
    return place;
}

/// Where the first network of the name stands, or would stand.
std::uint32_t& NetworksByProfile::SlotOf(std::wstring_view name, std::uint32_t hash)
{
    for (std::size_t slot = hash;; ++slot)
    {
        std::uint32_t& first = m_slots[slot & (m_slots.size() - 1)];
        if (first == kNone || IsNamed(first, name, hash))
            return first;
    }
}

bool NetworksByProfile::IsNamed(std::uint32_t place, std::wstring_view name, std::uint32_t hash) const
{
    const Indexed& indexed = m_indexed[place];
    return indexed.hash == hash && std::wstring_view(m_items[place].strProfileName, indexed.length) == name;
}

} // namespace calvix
