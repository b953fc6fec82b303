#pragma once

#include "output/facts.h"

#include <nlohmann/json_fwd.hpp>

#include <ostream>

namespace calvix::host
{

/// The facts as every command's JSON has them.
nlohmann::ordered_json JsonOf(const AdapterFacts& adapter);
nlohmann::ordered_json JsonOf(const AccessPointFacts& accessPoint);
nlohmann::ordered_json JsonOf(const ProfileFacts& profile);
nlohmann::ordered_json JsonOf(const StatusFacts& status);
nlohmann::ordered_json JsonOf(const CandidateFacts& candidate);
nlohmann::ordered_json JsonOf(const SignalFacts& signal);

/// One object with a line break behind it, which is what a command prints.
void PrintObject(std::ostream& out, const nlohmann::ordered_json& json);

} // namespace calvix::host
