#pragma once

#include "core/trace.h"
#include "core/wlan_lists.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace calvix
{

/// The available networks by the profile name that the service tagged them with. A profile and a network match when
/// the names are equal (exact, case-sensitive), whatever the SSIDs.
///
/// The networks are indexed as far as anybody has looked: who ends at a match has not paid for what lies behind it, and
/// who looks at everything pays for the sum of the two lists, not for their product.
class NetworksByProfile
{
public:
    NetworksByProfile() = default;
    NetworksByProfile(const NetworksByProfile&) = delete;
    NetworksByProfile& operator=(const NetworksByProfile&) = delete;

    /// Takes the networks of a list that outlives this object. 0, or the platform's error number for want of memory.
    ErrorNumber Take(const WLAN_AVAILABLE_NETWORK_LIST& networks);

    class Iterator
    {
    public:
        Iterator(NetworksByProfile& networks, std::uint32_t place) : m_networks(&networks), m_place(place) {}

        const WLAN_AVAILABLE_NETWORK* operator*() const { return &m_networks->m_items[m_place]; }
        Iterator& operator++()
        {
            m_place = m_networks->Next(m_place);
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_place != other.m_place; }

    private:
        NetworksByProfile* m_networks;
        std::uint32_t m_place;
    };

    struct Matches
    {
        Iterator first;
        Iterator last;

        Iterator begin() const { return first; }
        Iterator end() const { return last; }
    };

    /// The networks that match a profile, in list order.
    Matches Of(const WLAN_PROFILE_INFO& profile);

private:
    /// What is known of an indexed network. The networks of one name are a chain, whose first one knows its last.
    struct Indexed
    {
        std::uint32_t hash;
        std::uint32_t length;
        std::uint32_t first;
        std::uint32_t next;
        std::uint32_t last;
    };

    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    std::uint32_t First(std::wstring_view name);
    std::uint32_t Next(std::uint32_t place);
    std::uint32_t IndexOne();
    std::uint32_t& SlotOf(std::wstring_view name, std::uint32_t hash);
    bool IsNamed(std::uint32_t place, std::wstring_view name, std::uint32_t hash) const;

    std::span<const WLAN_AVAILABLE_NETWORK> m_items;
    std::size_t m_count = 0;          ///< networks indexed so far
    Indexed* m_indexed = nullptr;     ///< what is known of them
    std::span<std::uint32_t> m_slots; ///< a hash table of the chains' first networks; its size is a power of two

    // As many networks as are in view in most places take no memory from the heap.
    static constexpr std::size_t kUsualCount = 64;
    Indexed m_usualIndexed[kUsualCount];
    std::uint32_t m_usualSlots[2 * kUsualCount];
    std::unique_ptr<Indexed[]> m_manyIndexed;
    std::unique_ptr<std::uint32_t[]> m_manySlots;
};

} // namespace calvix
