#pragma once

namespace calvix::simulation
{

/// Files of the repository that the build compiles in.
extern const char* const kBuiltInScenarioText; ///< scenarios/home.json

} // namespace calvix::simulation
