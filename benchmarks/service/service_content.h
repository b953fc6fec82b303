#pragma once

#include <calvix/platform_records.h>

#include <compare>
#include <cstddef>
#include <string>
#include <vector>

namespace calvix::benchmarks
{

/// How much a service holds: stored profiles, visible networks, and how many of the networks carry a profile's name.
struct Shape
{
    std::size_t profiles;
    std::size_t networks;
    std::size_t matches;
    std::size_t accessPoints = 2; ///< entries of every BSS list
    bool lastOnly = false;        ///< the one match is that of the last profile with the last network

    auto operator<=>(const Shape&) const = default;
};

std::wstring ProfileName(std::size_t index);

/// A profile that connects automatically.
std::wstring ProfileXml();

/// A record as it lies in memory, ready to be copied.
using Block = std::vector<std::byte>;

/// Everything a ListService hands out. All networks are heard from the same access points and all profiles have the same
/// text, so that an answer costs its copy and no search.
struct ServiceContent
{
    explicit ServiceContent(const Shape& shape);

    Block interfaces;
    Block profiles;
    Block networks; ///< the matching ones spread evenly over the list
    Block accessPoints;
    Block profileXml; ///< of a profile that connects automatically
    Block connection;
    Block radio; ///< on, by both switches
    Block statistics;
    Block number; ///< what a query for a plain number gives
    Block powerSetting;

    /// What a query of the interface gives.
    const Block& AnswerTo(WLAN_INTF_OPCODE opcode) const;
};

/// The content of a shape, built once.
const ServiceContent& ContentOf(const Shape& shape);

} // namespace calvix::benchmarks
