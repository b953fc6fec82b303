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

    auto operator<=>(const Shape&) const = default;
};

/// A record as it lies in memory, ready to be copied.
using Block = std::vector<std::byte>;

/// Access points that every network is heard from.
inline constexpr int kAccessPoints = 2;

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
};

/// The content of a shape, built once.
const ServiceContent& ContentOf(const Shape& shape);

} // namespace calvix::benchmarks
