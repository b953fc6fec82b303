#pragma once

#include "simulation/scenario.h"

#include <cstdint>

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

} // namespace calvix::simulation
