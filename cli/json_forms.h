#pragma once

#include "facts.h"

#include <nlohmann/json_fwd.hpp>

namespace calvix::host
{

/// The facts as every command's JSON has them.
nlohmann::ordered_json JsonOf(const AdapterFacts& adapter);
nlohmann::ordered_json JsonOf(const AccessPointFacts& accessPoint);
nlohmann::ordered_json JsonOf(const ProfileFacts& profile);
nlohmann::ordered_json JsonOf(const StatusFacts& status);
nlohmann::ordered_json JsonOf(const CandidateFacts& candidate);
nlohmann::ordered_json JsonOf(const SignalFacts& signal);

} // namespace calvix::host
