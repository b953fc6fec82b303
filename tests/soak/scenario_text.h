#pragma once

#include <string>

namespace calvix::test::soak
{

/// The scenario as a scenario file's text: two adapters, a network whose access points take turns being near, one that is off
/// the air every night, strangers, and each day like the one before.
std::string ScenarioText(unsigned days);

/// The networks that profiles are stored for.
inline constexpr const char* kOwnNetworks[] = {"Soak Home", "Soak Office", "Soak Cafe", "Soak Attic"};

} // namespace calvix::test::soak
