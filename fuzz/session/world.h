#pragma once

#include "input.h"

#include "simulation/scenario.h"

#include <string>

namespace calvix::fuzz::session
{

/// The process that is running in every world and the program that can be started.
inline constexpr std::uint32_t kProcess = 4242;
inline constexpr const char* kProgram = "worker.exe";

/// A small computer, its adapters being those of the tests' worlds.
simulation::Scenario MakeWorld(Input& input);

/// A name that networks and profiles share.
std::string NetworkName(Input& input);

/// A profile of such a name.
std::string ProfileDocument(Input& input);

} // namespace calvix::fuzz::session
