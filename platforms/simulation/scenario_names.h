#pragma once

#include "simulation/scenario.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::simulation
{

/// How scenario files spell values that are numbers and bytes in a Scenario.

/// A value's name in a scenario file.
template <typename Value>
struct Named
{
    Value value;
    const char* name;
};

inline constexpr Named<std::uint32_t> kPhyNames[] = {{1, "fhss"},   {2, "dsss"}, {3, "irbaseband"}, {4, "ofdm"},
                                                     {5, "hrdsss"}, {6, "erp"},  {7, "ht"},         {8, "vht"},
                                                     {9, "dmg"},    {10, "he"},  {11, "eht"}};
inline constexpr Named<std::uint32_t> kBssTypeNames[] = {{1, "infrastructure"}, {2, "independent"}};
inline constexpr Named<std::uint32_t> kPowerSettingNames[] = {{0, "none"}, {1, "low"}, {2, "medium"}, {3, "maximum"}};
inline constexpr Named<bool> kServiceNames[] = {{true, "running"}, {false, "stopped"}};
inline constexpr Named<RadioSwitch> kSwitchNames[] = {{RadioSwitch::on, "on"}, {RadioSwitch::off, "off"}};
inline constexpr Named<InternetAccess> kInternetNames[] = {{InternetAccess::reachable, "reachable"},
                                                           {InternetAccess::unresolved, "unresolved"},
                                                           {InternetAccess::unreachable, "unreachable"}};

/// Bytes as pairs of lower-case hexadecimal digits, and back from digits of either case; nothing for other text.
std::string HexText(const Bytes& bytes);
std::optional<Bytes> BytesFromHex(std::string_view text);

/// "02:ca:1f:00:00:01"; the reverse takes either case and gives nothing for other text.
std::string AddressText(const MacAddress& address);
std::optional<MacAddress> AddressFromText(std::string_view text);

/// The frequency of a channel in kHz; nothing for a channel that the band ("2.4", "5" or "6") does not have.
std::optional<std::uint32_t> ChannelFrequency(std::string_view band, std::uint32_t channel);

} // namespace calvix::simulation
